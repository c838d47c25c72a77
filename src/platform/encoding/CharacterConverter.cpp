#include "platform/encoding/CharacterConverter.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>

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

class Latin10Converter final : public CharacterConverter {
  public:
    void replaceFaults() override {}
    bool convert(QByteArrayView& input, bool, std::span<char>& room) override {
        constexpr std::size_t kLongestCharacter = 3;
        while (!input.isEmpty() && room.size() >= kLongestCharacter) {
            const auto byte = static_cast<unsigned char>(input.front());
            const char16_t character = byte < 0xa0 ? char16_t{byte} : kLatin10[byte - 0xa0U];
            const QByteArray bytes = QString(QChar(character)).toUtf8();
            std::copy(bytes.cbegin(), bytes.cend(), room.begin());
            room = room.subspan(static_cast<std::size_t>(bytes.size()));
            input = input.sliced(1);
        }
        return true;
    }
};

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
    return U_FAILURE(status) ? nullptr : std::move(converter);
}

class IcuConverter final : public CharacterConverter {
  public:
    IcuConverter(Converter source, Converter target)
        : m_source(std::move(source))
        , m_target(std::move(target)) {
        UErrorCode status = U_ZERO_ERROR;
        ucnv_setToUCallBack(m_source.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
        ucnv_setFromUCallBack(m_target.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
    }

    bool isUtf8() const override { return ucnv_getType(m_source.get()) == UCNV_UTF8; }
    int smallestCharacter() const override { return ucnv_getMinCharSize(m_source.get()); }

    void replaceFaults() override {
        UErrorCode status = U_ZERO_ERROR;
        ucnv_setToUCallBack(m_source.get(), replace, &m_replaced, nullptr, nullptr, &status);
    }

    bool convert(QByteArrayView& input, bool last, std::span<char>& room) override {
        UErrorCode status = U_ZERO_ERROR;
        if (input.isNull()) {
            input = QByteArrayView("");
        }
        char* out = room.data();
        const char* in = input.data();
        ucnv_convertEx(m_target.get(), m_source.get(), &out, room.data() + room.size(), &in,
                       input.data() + input.size(), m_pivot.data(), &m_pivotSource, &m_pivotTarget,
                       m_pivot.data() + m_pivot.size(), m_isFirst, last, &status);
        m_isFirst = false;
        input = input.sliced(in - input.data());
        room = room.subspan(static_cast<std::size_t>(out - room.data()));
        return U_SUCCESS(status) || status == U_BUFFER_OVERFLOW_ERROR;
    }

  private:
    static void replace(const void* context, UConverterToUnicodeArgs* arguments, const char*, std::int32_t,
                        UConverterCallbackReason reason, UErrorCode* status) {
        if (reason > UCNV_IRREGULAR) {
            return;
        }
        *status = U_ZERO_ERROR;
        ++*const_cast<std::int64_t*>(static_cast<const std::int64_t*>(context)); // NOLINT: the member
        constexpr UChar kReplacement = 0xfffd;
        ucnv_cbToUWriteUChars(arguments, &kReplacement, 1, 0, status);
    }

    const Converter m_source;
    const Converter m_target;
    std::array<UChar, 4096> m_pivot;
    UChar* m_pivotSource = m_pivot.data();
    UChar* m_pivotTarget = m_pivot.data();
    bool m_isFirst = true;
};

} // namespace

std::unique_ptr<CharacterConverter> CharacterConverter::open(const QString& ianaName) {
    if (isLatin10(ianaName)) {
        return std::make_unique<Latin10Converter>();
    }
    Converter source = openConverter(ianaName);
    UErrorCode status = U_ZERO_ERROR;
    Converter target(source ? ucnv_open("UTF-8", &status) : nullptr);
    return target ? std::make_unique<IcuConverter>(std::move(source), std::move(target)) : nullptr;
}

} // namespace guide
