#include "platform/encoding/CharacterSets.h"

#include "platform/encoding/Utf8.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>
#include <unicode/ucnv.h>

using namespace Qt::StringLiterals;

namespace guide {

namespace {

struct ConverterDeleter {
    void operator()(UConverter* converter) const { ucnv_close(converter); }
};
using Converter = std::unique_ptr<UConverter, ConverterDeleter>;

constexpr qsizetype kLongestName = 60;

// The upper half of ISO-8859-16 from 0xA0, which ICU lacks. Bytes below map to themselves.
constexpr std::u16string_view kLatin10 =
    u"\u00a0ĄąŁ€„Š§š©Ș«Ź\u00adźŻ°±ČłŽ”¶·žčș»ŒœŸżÀÁÂĂÄĆÆÇÈÉÊËÌÍÎÏĐŃÒÓÔŐÖŚŰÙÚÛÜĘȚß"
    u"àáâăäćæçèéêëìíîïđńòóôőöśűùúûüęțÿ";
static_assert(kLatin10.size() == 0x60);

bool isLatin10(const QString& name) {
    static const std::array<QLatin1StringView, 5> kNames{"iso885916"_L1, "latin10"_L1, "l10"_L1,
                                                         "isoir226"_L1, "csiso885916"_L1};
    QString plain;
    for (const QChar character : name) {
        if (character.isLetterOrNumber()) {
            plain += character.toLower();
        }
    }
    return std::find(kNames.begin(), kNames.end(), plain) != kNames.end();
}

QByteArray fromLatin10(const QByteArray& bytes) {
    QString text(bytes.size(), Qt::Uninitialized);
    for (qsizetype index = 0; index < bytes.size(); ++index) {
        const auto byte = static_cast<unsigned char>(bytes[index]);
        text[index] = byte < 0xa0 ? QChar(char16_t{byte}) : QChar(kLatin10[byte - 0xa0U]);
    }
    return text.toUtf8();
}

// A comma begins the converter's options and is not part of a name; an empty name would select the system's
// character set.
Converter openConverter(const QString& name) {
    const QByteArray plain = name.trimmed().toLatin1();
    bool letters = false;
    for (const char character : plain) {
        letters = letters || (character >= '0' && character <= '9') ||
                  (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
    }
    if (!letters || plain.size() > kLongestName || plain.contains(',') || plain.contains('\0')) {
        return nullptr;
    }
    UErrorCode status = U_ZERO_ERROR;
    Converter converter(ucnv_open(plain.constData(), &status));
    if (U_FAILURE(status)) {
        return nullptr;
    }
    ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
    ucnv_setFromUCallBack(converter.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
    return U_FAILURE(status) ? nullptr : std::move(converter);
}

std::optional<QByteArray> converted(const QByteArray& bytes, UConverter* source) {
    UErrorCode status = U_ZERO_ERROR;
    const Converter target(ucnv_open("UTF-8", &status));
    if (U_FAILURE(status)) {
        return std::nullopt;
    }
    QByteArray output(bytes.size() + bytes.size() / 4 + 16, Qt::Uninitialized);
    std::array<UChar, 4096> pivot;
    UChar* pivotSource = pivot.data();
    UChar* pivotTarget = pivot.data();
    const char* in = bytes.constData();
    const char* inEnd = in + bytes.size();
    qsizetype written = 0;
    for (bool first = true;; first = false) {
        char* out = output.data() + written;
        status = U_ZERO_ERROR;
        ucnv_convertEx(target.get(), source, &out, output.constData() + output.size(), &in, inEnd,
                       pivot.data(), &pivotSource, &pivotTarget, pivot.data() + pivot.size(), first, true,
                       &status);
        written = out - output.constData();
        if (status != U_BUFFER_OVERFLOW_ERROR) {
            break;
        }
        output.resize(output.size() * 2);
    }
    if (U_FAILURE(status)) {
        return std::nullopt;
    }
    output.truncate(written);
    return output;
}

} // namespace

std::optional<QByteArray> utf8FromUtf8(QByteArray bytes) {
    if (!isValidUtf8(bytes)) {
        return std::nullopt;
    }
    return bytes;
}

std::optional<QByteArray> utf8FromCharacterSet(QByteArray bytes, const QString& ianaName) {
    if (isLatin10(ianaName)) {
        return fromLatin10(bytes);
    }
    const Converter source = openConverter(ianaName);
    if (!source) {
        return std::nullopt;
    }
    if (ucnv_getType(source.get()) == UCNV_UTF8) {
        return utf8FromUtf8(std::move(bytes));
    }
    return converted(bytes, source.get());
}

} // namespace guide
