#include "parsers/xmltv/XMLTagBounds.h"

namespace guide {

namespace {

/// Of a tag, whose attributes the library compares with each other; the names in the declaration of an
/// attribute likewise.
constexpr std::size_t kMostAttributes = 10'000;
constexpr std::size_t kMostDeclarationBytes = std::size_t{128} << 10;

} // namespace

bool isReadableTag(std::string_view text) {
    if (text.starts_with("<![CDATA[")) {
        return true;
    }
    const bool isDeclaration = text.starts_with("<!") && !text.starts_with("<!--");
    text = text.substr(0, isDeclaration ? kMostDeclarationBytes : kMostTagBytes);
    if (text.starts_with("<!--") || text.starts_with("<?")) {
        return text.find(text[1] == '?' ? "?>" : "-->") != std::string_view::npos;
    }
    std::size_t values = 0;
    for (std::size_t at = text.find_first_of(">\"'"); at != std::string_view::npos;
         at = text.find_first_of(">\"'", at + 1)) {
        if (text[at] == '>') {
            return values <= kMostAttributes;
        }
        ++values;
        at = text.find(text[at], at + 1);
        if (at == std::string_view::npos) {
            break;
        }
    }
    return false;
}

// Tags contain no "<", so that only the last "<" of each stretch is looked for.
std::optional<std::size_t> unreadableTag(std::string_view document) {
    std::size_t mark = document.find('<');
    while (mark != std::string_view::npos && document.size() - mark > kLongStretch) {
        const std::size_t last = document.substr(mark, kLongStretch).rfind('<');
        if (last > 0) {
            mark += last;
            continue;
        }
        if (!isReadableTag(document.substr(mark))) {
            return mark;
        }
        mark = document.find('<', mark + kLongStretch);
    }
    return std::nullopt;
}

} // namespace guide
