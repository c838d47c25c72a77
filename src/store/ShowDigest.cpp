#include "store/ShowDigest.h"

#include "platform/encoding/Utf8.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QtEndian>

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr Moment kReferenceDate{std::chrono::seconds(978'307'200)};
constexpr qsizetype kDigestDigits = 32;
/// After the channel and the start.
constexpr qsizetype kTitleAt = 12 + 4;

/// Seconds since the reference date, rounded with halves away from zero and truncated to 32 bits.
std::int32_t secondsSinceReferenceDate(const std::optional<Moment>& date) {
    const std::int64_t milliseconds = date ? (*date - kReferenceDate).count() : 0;
    const std::int64_t half = milliseconds < 0 ? -500 : 500;
    return static_cast<std::int32_t>((milliseconds + half) / 1000);
}

bool beginsWithLetter(const QByteArray& digits) {
    return digits.front() >= 'a';
}

} // namespace

ShowDigest showDigest(const ObjectId& channel, const std::optional<Moment>& date,
                      const QString& identificator) {
    constexpr qsizetype kMostBytesPerUnit = 3;
    QByteArray buffer(kTitleAt + kMostBytesPerUnit * identificator.size(), Qt::Uninitialized);
    char* at = std::copy(channel.bytes().begin(), channel.bytes().end(), buffer.data());
    qToBigEndian(qint32{secondsSinceReferenceDate(date)}, at);
    // Encoded as in listing files, so that a show keeps its digest when it is read back.
    buffer.truncate(writeUtf8(identificator, buffer.data() + kTitleAt) - buffer.constData());
    const QByteArray hash = QCryptographicHash::hash(buffer, QCryptographicHash::Md5);
    ShowDigest digest{};
    std::copy(hash.begin(), hash.end(), digest.begin());
    return digest;
}

QUrl urlOfDigest(const ShowDigest& digest, const QString& scheme) {
    QByteArray digits = QByteArray(reinterpret_cast<const char*>(digest.data()), digest.size()).toHex();
    if (!beginsWithLetter(digits)) {
        digits.prepend('c');
    }
    return QUrl(scheme + "://"_L1 + QLatin1StringView(digits));
}

std::optional<QUrl> urlDigestFromChannel(const ObjectId& channel, const std::optional<Moment>& date,
                                         const std::optional<QString>& identificator, const QString& scheme) {
    return identificator ? std::optional(urlOfDigest(showDigest(channel, date, *identificator), scheme))
                         : std::nullopt;
}

std::optional<ShowDigest> digestOfUrl(const QUrl& url) {
    const QString host = url.host();
    const bool prefixed = host.size() == kDigestDigits + 1 && host.front() == u'c';
    const QStringView digits = prefixed ? QStringView(host).sliced(1) : QStringView(host);
    if (digits.size() != kDigestDigits || (digits.front() >= u'a') == prefixed) {
        return std::nullopt;
    }
    ShowDigest digest{};
    for (std::size_t i = 0; i < 2 * digest.size(); ++i) {
        const char16_t c = digits[static_cast<qsizetype>(i)].unicode();
        const bool isNumber = c >= u'0' && c <= u'9';
        if (!isNumber && (c < u'a' || c > u'f')) {
            return std::nullopt;
        }
        const unsigned value = isNumber ? c - u'0' : c - u'a' + 10U;
        digest[i / 2] = static_cast<std::uint8_t>(digest[i / 2] * 16U + value);
    }
    return digest;
}

} // namespace guide
