#include "screens/TextTidying.h"

#include <QRegularExpression>
#include <QSet>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// Two sentences may well end in the same few words.
constexpr qsizetype kShortestCopy = 60;

/// Some sources join sentences without a blank, as in "the end.Directed by", and put one before a comma.
QString withBlanks(QString text) {
    static const QRegularExpression joined(u"(?<=\\p{Ll})(\\.{3}|[.!?…,;])(?=\\p{Lu}\\p{Ll})"_s);
    return text.replace(joined, u"\\1 "_s).replace(" ,"_L1, ","_L1);
}

QString withOneClosingMark(QString text) {
    static const QRegularExpression twoStops(u"(?<!\\.)\\.\\.(?=\\s|$)"_s);
    text.replace(twoStops, u"."_s);
    if (text.size() < 2 || !text.endsWith(u'.')) {
        return text;
    }
    const QChar before = text[text.size() - 2];
    if (u"!?…"_s.contains(before)) {
        text.chop(1);
    } else if (u",;: "_s.contains(before)) {
        text.remove(text.size() - 2, 1);
    }
    return text;
}

/// Some sources append a text to itself, cut off at the length that they allow.
QString withoutCopyAtEnd(const QString& line) {
    qsizetype end = line.size();
    while (end > 0 && u".… "_s.contains(line[end - 1])) {
        --end;
    }
    if (end < 2 * kShortestCopy) {
        return line;
    }
    qsizetype begin = end - kShortestCopy;
    const qsizetype distance = begin - line.indexOf(QStringView(line).sliced(begin, kShortestCopy));
    if (distance == 0) {
        return line;
    }
    while (begin > distance && line[begin - 1] == line[begin - 1 - distance]) {
        --begin;
    }
    while (begin < end && line[begin - 1].isLetterOrNumber() && line[begin].isLetterOrNumber()) {
        ++begin;
    }
    return line.first(begin).trimmed();
}

bool isHeading(QStringView text, const QString& heading) {
    return text.compare(heading, Qt::CaseInsensitive) == 0;
}

} // namespace

QString tidied(const QString& text) {
    QStringList lines;
    for (const QStringView line : QStringTokenizer(text, u'\n')) {
        const QString simple = line.toString().simplified();
        const bool isNeeded = !simple.isEmpty() || (!lines.isEmpty() && !lines.constLast().isEmpty());
        if (isNeeded) {
            lines << simple;
        }
    }
    QString result = lines.join(u'\n').trimmed();
    if (result.startsWith("- "_L1)) {
        result.remove(0, 2);
    }
    return withOneClosingMark(withBlanks(std::move(result)));
}

QString tidiedDescription(const QString& text, const QStringList& headings) {
    QStringList lines = tidied(text).split(u'\n');
    for (QString& line : lines) {
        line = withoutCopyAtEnd(line);
    }
    // Some feeds repeat whole paragraphs.
    QSet<QString> known;
    lines.removeIf([&known](const QString& line) {
        const bool isLong = line.size() >= kShortestCopy;
        const bool isRepeated = isLong && known.contains(line);
        if (isLong) {
            known.insert(line);
        }
        return isRepeated;
    });
    QString description = lines.join(u'\n');
    for (const QString& heading : headings) {
        const QStringView start =
            QStringView(description).first(std::min(heading.size(), description.size()));
        if (heading.isEmpty() || !isHeading(start, heading)) {
            continue;
        }
        static const QRegularExpression divider(u"^\\s?[-–:.]\\s"_s);
        const QStringView rest = QStringView(description).sliced(heading.size());
        if (rest.isEmpty() || rest == u'.') {
            return {};
        }
        if (const auto match = divider.match(rest.toString()); match.hasMatch()) {
            description.remove(0, heading.size() + match.capturedLength());
        }
    }
    return description;
}

} // namespace guide
