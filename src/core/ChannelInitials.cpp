#include "core/ChannelInitials.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMost = 3;
constexpr qsizetype kMostDigits = 2;
constexpr qsizetype kLongestTitle = 200;

/// Of the plates; 5.2:1 against white, 4:1 against black.
constexpr double kLuminance = 0.15;

/// A run of letters or of digits.
struct Part {
    QString text;
    bool isNumber = false;
    /// How many of its characters are taken.
    qsizetype taken = 0;

    bool isCapitals() const {
        return !isNumber && text.size() <= kMost && text == text.toUpper() && text != text.toLower();
    }
    qsizetype characters() const { return text.size(); }
};

bool isMark(const QString& word) {
    static constexpr std::array kMarks{"HD"_L1,  "FHD"_L1,   "UHD"_L1,   "QHD"_L1,  "SD"_L1,   "HQ"_L1,
                                       "LQ"_L1,  "4K"_L1,    "8K"_L1,    "HEVC"_L1, "H264"_L1, "H265"_L1,
                                       "RAW"_L1, "1080P"_L1, "1080I"_L1, "720P"_L1};
    return std::ranges::any_of(
        kMarks, [&word](QLatin1StringView mark) { return word.compare(mark, Qt::CaseInsensitive) == 0; });
}

/// Without a country in front, what is in brackets at the end, and the suffix of an id.
QString bareTitle(const QString& title) {
    static const QRegularExpression country(
        u"^\\s*(?:[\\[(]\\s*[A-Z]{2,3}\\s*[\\])]|[A-Z]{2,3}\\s*[:|]|[A-Z]{2}\\s+-\\s)\\s*"_s);
    static const QRegularExpression bracket(u"\\s*[\\[(][^\\])]*[\\])]\\s*$"_s);
    static const QRegularExpression suffix(u"(?:@\\w+|(?<=\\w)\\.[a-z]{2})$"_s);
    // Compatible forms: raised letters become plain ones.
    const QString plain = title.left(kLongestTitle).normalized(QString::NormalizationForm_KC);
    QString bare = plain;
    for (const QRegularExpression& each : {country, bracket, suffix}) {
        QString shorter = bare;
        shorter.remove(each);
        if (!shorter.trimmed().isEmpty()) {
            bare = shorter;
        }
    }
    return bare;
}

std::vector<Part> partsOf(const QString& title) {
    // Letters with their marks; numbers, perhaps with a plus in front.
    static const QRegularExpression word(u"[\\p{L}\\p{N}\\p{M}]+|\\+\\d+"_s);
    static const QRegularExpression run(u"[\\p{L}\\p{M}]+|\\+?\\p{N}+"_s);
    QStringList words;
    for (auto each = word.globalMatch(title); each.hasNext();) {
        words.append(each.next().captured());
    }
    const auto drop = [&words](const auto& isDropped) {
        QStringList rest = words;
        rest.removeIf(isDropped);
        if (!rest.isEmpty()) {
            words = rest;
        }
    };
    drop(isMark);
    const bool hasOtherName = std::ranges::any_of(words, [](const QString& each) {
        return each.front().isLetter() && each.compare("TV"_L1, Qt::CaseInsensitive) != 0;
    });
    if (hasOtherName) {
        drop([](const QString& each) { return each.compare("TV"_L1, Qt::CaseInsensitive) == 0; });
    }
    std::vector<Part> parts;
    for (const QString& each : std::as_const(words)) {
        for (auto part = run.globalMatch(each); part.hasNext();) {
            const QString text = part.next().captured();
            parts.push_back({text, text.back().isNumber()});
        }
    }
    return parts;
}

/// Up to `count` characters; one that needs two code units, or marks, stays whole.
QString firstCharacters(const QString& text, qsizetype count) {
    qsizetype at = 0;
    for (qsizetype taken = 0; at < text.size() && taken < count; ++taken) {
        at += text[at].isHighSurrogate() && at + 1 < text.size() ? 2 : 1;
        while (at < text.size() && text[at].isMark()) {
            ++at;
        }
    }
    return text.left(at);
}

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

QString channelInitials(const QString& title) {
    std::vector<Part> parts = partsOf(bareTitle(title));
    if (parts.empty()) {
        return u"TV"_s;
    }
    // A number tells channels of one name apart, so that it is taken whole before letters are.
    qsizetype left = kMost;
    bool hasName = false;
    const auto number = std::ranges::find_if(parts, &Part::isNumber);
    if (number != parts.end()) {
        number->taken = std::min(number->characters(), kMostDigits);
        left -= number->taken;
    }
    for (Part& part : parts) {
        if (left > 0 && part.taken == 0 && (!part.isNumber || !hasName)) {
            part.taken = 1;
            --left;
        }
        hasName = hasName || !part.isNumber;
    }
    for (Part& part : parts) {
        if (part.taken > 0 && part.isCapitals()) {
            const qsizetype more = std::min(left, part.characters() - part.taken);
            part.taken += more;
            left -= more;
        }
    }
    QString initials;
    for (const Part& part : parts) {
        initials += firstCharacters(part.text, part.taken);
    }
    return initials.toUpper();
}

QColor channelColor(std::uint64_t seed) {
    // Neighbouring numbers get distant hues.
    constexpr double kGoldenRatio = 0.6180339887498949;
    const double hue = std::fmod(static_cast<double>(seed % 1'000'003) * kGoldenRatio, 1.0);
    double darker = 0;
    double lighter = 1;
    for (int step = 0; step < 16; ++step) {
        const double lightness = (darker + lighter) / 2;
        (luminance(QColor::fromHslF(float(hue), 0.6F, float(lightness))) > kLuminance ? lighter : darker) =
            lightness;
    }
    return QColor::fromHslF(float(hue), 0.6F, float(darker));
}

namespace {

/// FNV-1a, which gives the same number everywhere.
std::uint64_t titleSeed(const QString& title) {
    std::uint64_t seed = 0xcbf2'9ce4'8422'2325;
    for (const QChar character : title) {
        seed = (seed ^ character.unicode()) * 0x100'0000'01b3;
    }
    return seed;
}

} // namespace

QImage channelInitialsIcon(const QString& title, const QSize& pixels) {
    QImage icon(pixels, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(channelColor(titleSeed(title)));
    const double radius = pixels.height() / 6.0;
    painter.drawRoundedRect(QRectF(QPointF(0, 0), pixels), radius, radius);
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) == nullptr) {
        return icon;
    }
    const QString text = channelInitials(title);
    QFont font;
    font.setBold(true);
    font.setPixelSize(std::max(1, pixels.height() * 5 / 9));
    const double most = pixels.width() * 0.86;
    if (const double width = QFontMetricsF(font).horizontalAdvance(text); width > most) {
        font.setPixelSize(std::max(1, static_cast<int>(font.pixelSize() * most / width)));
    }
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRectF(QPointF(0, 0), pixels), Qt::AlignCenter, text);
    painter.end();
    return icon;
}

} // namespace guide
