#include "platform/encoding/CharacterSets.h"

#include "platform/encoding/CharacterConverter.h"
#include "platform/encoding/Utf8.h"

namespace guide {

std::optional<QByteArray> utf8FromUtf8(QByteArray bytes) {
    if (!isValidUtf8(bytes)) {
        return std::nullopt;
    }
    return bytes;
}

std::optional<QByteArray> utf8FromCharacterSet(QByteArray bytes, const QString& ianaName) {
    const auto converter = CharacterConverter::open(ianaName);
    if (!converter) {
        return std::nullopt;
    }
    if (converter->isUtf8()) {
        return utf8FromUtf8(std::move(bytes));
    }
    QByteArray output(bytes.size() + bytes.size() / 4 + 16, Qt::Uninitialized);
    QByteArrayView input(bytes);
    for (qsizetype written = 0;;) {
        std::span<char> room(output.data() + written, static_cast<std::size_t>(output.size() - written));
        if (!converter->convert(input, true, room)) {
            return std::nullopt;
        }
        written = output.size() - static_cast<qsizetype>(room.size());
        constexpr std::size_t kLongestCharacter = 4;
        if (input.isEmpty() && room.size() >= kLongestCharacter) {
            output.truncate(written);
            return output;
        }
        output.resize(output.size() * 2);
    }
}

} // namespace guide
