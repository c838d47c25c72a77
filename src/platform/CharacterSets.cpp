#include "platform/CharacterSets.h"

#include "platform/Utf8.h"

#include <array>
#include <memory>
#include <unicode/ucnv.h>

namespace guide {

namespace {

struct ConverterDeleter {
    void operator()(UConverter* converter) const { ucnv_close(converter); }
};
using Converter = std::unique_ptr<UConverter, ConverterDeleter>;

constexpr qsizetype kLongestName = 60;

// A comma opens the converter's own options, which are no part of a name; an empty name would be the system's
// set.
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
