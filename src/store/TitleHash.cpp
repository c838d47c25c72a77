#include "store/TitleHash.h"

namespace guide {

namespace {

constexpr char16_t kDottedCapitalI = 0x0130;

char16_t lowercased(QChar character) {
    const char16_t code = character.unicode();
    if (code < 0x80) {
        return code >= u'A' && code <= u'Z' ? static_cast<char16_t>(code + (u'a' - u'A')) : code;
    }
    return character.toLower().unicode();
}

} // namespace

std::uint32_t titleHash(QStringView title) {
    std::uint32_t hash = 5381;
    for (const QChar character : title) {
        if (character.isSurrogate() || character.unicode() == kDottedCapitalI) {
            return kNoTitleHash;
        }
        hash = hash * 33 + lowercased(character);
    }
    return hash != kNoTitleHash ? hash : 1;
}

} // namespace guide
