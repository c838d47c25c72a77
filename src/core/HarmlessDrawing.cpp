#include "core/HarmlessDrawing.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <array>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMostBytes = qsizetype(1) << 20;
constexpr int kMostElements = 20'000;
constexpr int kDeepest = 64;
/// Each reference can draw everything that the referred part refers to, so that nested ones multiply.
constexpr int kMostUses = 16;

bool isForbidden(QStringView element) {
    static constexpr std::array kForbidden{"script"_L1, "image"_L1, "foreignObject"_L1, "feImage"_L1};
    return std::ranges::any_of(kForbidden, [element](QLatin1StringView each) {
        return element.compare(each, Qt::CaseInsensitive) == 0;
    });
}

// "url(#part)" is a reference within the drawing.
bool refersOutside(QStringView style) {
    if (style.contains("@import"_L1, Qt::CaseInsensitive)) {
        return true;
    }
    constexpr auto kReference = "url("_L1;
    for (qsizetype at = style.indexOf(kReference, 0, Qt::CaseInsensitive); at >= 0;
         at = style.indexOf(kReference, at + 1, Qt::CaseInsensitive)) {
        const QStringView target = style.sliced(at + kReference.size()).trimmed();
        const qsizetype quote = target.startsWith(u'\'') || target.startsWith(u'"') ? 1 : 0;
        if (!target.sliced(quote).startsWith(u'#')) {
            return true;
        }
    }
    return false;
}

bool isHarmless(const QXmlStreamAttribute& attribute) {
    const QStringView name = attribute.name();
    const bool isEventHandler = name.startsWith("on"_L1, Qt::CaseInsensitive);
    const bool isLink = name.compare("href"_L1, Qt::CaseInsensitive) == 0;
    return !isEventHandler && (!isLink || attribute.value().startsWith(u'#')) &&
           !refersOutside(attribute.value());
}

} // namespace

bool isHarmlessDrawing(const QByteArray& svg) {
    if (svg.size() > kMostBytes) {
        return false;
    }
    QXmlStreamReader xml(svg);
    int elements = 0;
    int uses = 0;
    int depth = 0;
    while (!xml.atEnd()) {
        switch (xml.readNext()) {
        case QXmlStreamReader::DTD:
            if (!xml.entityDeclarations().isEmpty()) {
                return false;
            }
            break;
        case QXmlStreamReader::StartElement: {
            uses += xml.name() == "use"_L1 ? 1 : 0;
            const QXmlStreamAttributes attributes = xml.attributes();
            if (++elements > kMostElements || ++depth > kDeepest || uses > kMostUses ||
                isForbidden(xml.name()) || !std::ranges::all_of(attributes, isHarmless)) {
                return false;
            }
            break;
        }
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        case QXmlStreamReader::Characters:
            if (refersOutside(xml.text())) {
                return false;
            }
            break;
        case QXmlStreamReader::ProcessingInstruction:
            // A style sheet of another file.
            if (xml.processingInstructionTarget() == "xml-stylesheet"_L1) {
                return false;
            }
            break;
        default:
            break;
        }
    }
    return !xml.hasError();
}

} // namespace guide
