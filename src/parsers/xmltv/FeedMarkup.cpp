#include "parsers/xmltv/FeedMarkup.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace guide {

namespace {

bool isBlank(char character) {
    return character == ' ' || character == '\n' || character == '\t' || character == '\r';
}

/// The next "<" that may begin a comment, section or instruction, an element whose name begins with `opening`
/// or that of a programme, or an end tag whose name begins with `closing`; or the end of the text. Elements
/// have one tag in twenty bytes or so, and nearly all of them are none of these.
const char* nextTellingMark(const char* at, const char* end, char opening, char closing) {
#ifdef __SSE2__
    constexpr std::ptrdiff_t kBlock = sizeof(__m128i);
    const auto are = [](const char* block, char character) {
        return _mm_cmpeq_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(block)),
                              _mm_set1_epi8(character));
    };
    const auto either = [](__m128i a, __m128i b) { return _mm_or_si128(a, b); };
    for (; end - at >= kBlock + 2; at += kBlock) {
        const char* const next = at + 1;
        const __m128i begins = either(either(are(next, '!'), are(next, '?')),
                                      either(either(are(next, opening), are(next, kProgrammeOpening[1])),
                                             _mm_and_si128(are(next, '/'), are(at + 2, closing))));
        const int found = _mm_movemask_epi8(_mm_and_si128(are(at, '<'), begins));
        if (found != 0) {
            return at + std::countr_zero(static_cast<unsigned>(found));
        }
    }
#else
    static_cast<void>(opening);
    static_cast<void>(closing);
#endif
    return at < end ? std::find(at, end, '<') : end;
}

/// Ends the name of an attribute.
constexpr std::array<bool, 256> kEndsName = [] {
    std::array<bool, 256> ends{};
    for (const char character : std::string_view("= \n\t\r\"'<>/&\0", 12)) {
        ends[static_cast<unsigned char>(character)] = true;
    }
    return ends;
}();

std::size_t nameSizeAt(const char* name) {
    const char* end = name;
    while (!kEndsName[static_cast<unsigned char>(*end)]) {
        ++end;
    }
    return static_cast<std::size_t>(end - name);
}

enum class Match { No, Yes, Cut };

/// Whether the text begins with the words; cut when it ends within them.
Match match(const char* at, std::string_view words) {
    for (const char expected : words) {
        if (*at != expected) {
            return *at == '\0' ? Match::Cut : Match::No;
        }
        ++at;
    }
    return Match::Yes;
}

void appendUtf8(std::string& text, std::uint32_t codePoint) {
    const auto add = [&text](std::uint32_t byte) { text.push_back(static_cast<char>(byte)); };
    if (codePoint < 0x80) {
        add(codePoint);
    } else if (codePoint < 0x800) {
        add(0xC0 | (codePoint >> 6));
        add(0x80 | (codePoint & 0x3F));
    } else if (codePoint < 0x10000) {
        add(0xE0 | (codePoint >> 12));
        add(0x80 | ((codePoint >> 6) & 0x3F));
        add(0x80 | (codePoint & 0x3F));
    } else {
        add(0xF0 | (codePoint >> 18));
        add(0x80 | ((codePoint >> 12) & 0x3F));
        add(0x80 | ((codePoint >> 6) & 0x3F));
        add(0x80 | (codePoint & 0x3F));
    }
}

bool isXMLCharacter(std::uint32_t codePoint) {
    return codePoint == 0x9 || codePoint == 0xA || codePoint == 0xD ||
           (codePoint >= 0x20 && codePoint < 0xD800) || (codePoint >= 0xE000 && codePoint < 0xFFFE) ||
           (codePoint >= 0x10000 && codePoint < 0x110000);
}

/// The character of a reference such as "#60" or "#x3C".
std::optional<std::uint32_t> numberedCharacter(std::string_view reference) {
    const bool hexadecimal = reference.starts_with("#x");
    const std::string_view digits = reference.substr(hexadecimal ? 2 : 1);
    std::uint32_t number = 0;
    for (const char digit : digits) {
        std::uint32_t value = 0;
        if (digit >= '0' && digit <= '9') {
            value = static_cast<std::uint32_t>(digit - '0');
        } else if (hexadecimal && digit >= 'a' && digit <= 'f') {
            value = static_cast<std::uint32_t>(digit - 'a' + 10);
        } else if (hexadecimal && digit >= 'A' && digit <= 'F') {
            value = static_cast<std::uint32_t>(digit - 'A' + 10);
        } else {
            return std::nullopt;
        }
        number = number * (hexadecimal ? 16 : 10) + value;
        if (number >= 0x110000) {
            return std::nullopt;
        }
    }
    return !digits.empty() && isXMLCharacter(number) ? std::optional(number) : std::nullopt;
}

std::optional<std::uint32_t> referredCharacter(std::string_view reference) {
    struct Predefined {
        std::string_view name;
        char character;
    };
    static constexpr std::array kPredefined{Predefined{"amp", '&'}, Predefined{"lt", '<'},
                                            Predefined{"gt", '>'}, Predefined{"quot", '"'},
                                            Predefined{"apos", '\''}};
    if (reference.starts_with('#')) {
        return numberedCharacter(reference);
    }
    for (const Predefined& predefined : kPredefined) {
        if (predefined.name == reference) {
            return static_cast<std::uint32_t>(predefined.character);
        }
    }
    return std::nullopt;
}

} // namespace

const char* skipBlanks(const char* at) {
    while (isBlank(*at)) {
        ++at;
    }
    return at;
}

Markup elementNamed(const char* at, std::string_view opening) {
    switch (match(at, opening)) {
    case Match::No:
        return Markup::Doubtful;
    case Match::Cut:
        return Markup::Unfinished;
    case Match::Yes:
        break;
    }
    const char next = at[opening.size()];
    if (next == '\0') {
        return Markup::Unfinished;
    }
    return isBlank(next) || next == '>' || next == '/' ? Markup::Whole : Markup::Doubtful;
}

Markup skipAside(const char*& at) {
    struct Aside {
        std::string_view opening;
        const char* closing;
    };
    static constexpr std::array kAsides{Aside{"<!--", "-->"}, Aside{"<![CDATA[", "]]>"}, Aside{"<?", "?>"}};
    for (const Aside& aside : kAsides) {
        switch (match(at, aside.opening)) {
        case Match::No:
            continue;
        case Match::Cut:
            return Markup::Unfinished;
        case Match::Yes:
            break;
        }
        const char* closing = std::strstr(at + aside.opening.size(), aside.closing);
        if (!closing) {
            return Markup::Unfinished;
        }
        at = closing + std::strlen(aside.closing);
        return Markup::Whole;
    }
    return Markup::Doubtful;
}

Markup skipDocumentType(const char*& at) {
    const char* end = at;
    while (*end != '>') {
        if (*end == '\0') {
            return Markup::Unfinished;
        }
        if (*end == '[') {
            return Markup::Doubtful;
        }
        if (*end == '"' || *end == '\'') {
            end = std::strchr(end + 1, *end);
            if (!end) {
                return Markup::Unfinished;
            }
        }
        ++end;
    }
    at = end + 1;
    return Markup::Whole;
}

Markup skipElement(const char*& at, const char* textEnd, std::string_view opening, std::string_view closing) {
    for (const char* mark = at;;) {
        mark = nextTellingMark(mark, textEnd, opening[1], closing[2]);
        if (mark == textEnd || mark[1] == '\0') {
            return Markup::Unfinished;
        }
        if (mark[1] == '!' || mark[1] == '?') {
            if (const Markup aside = skipAside(mark); aside != Markup::Whole) {
                return aside;
            }
        } else if (mark[1] == '/' && mark[2] != closing[2]) {
            mark += 2;
        } else if (mark[1] == '/') {
            const Markup end = elementNamed(mark, closing);
            if (end == Markup::Unfinished) {
                return end;
            }
            if (end == Markup::Whole) {
                mark = skipBlanks(mark + closing.size());
                if (*mark != '>') {
                    return *mark == '\0' ? Markup::Unfinished : Markup::Doubtful;
                }
                at = mark + 1;
                return Markup::Whole;
            }
            mark += 2;
        } else if (mark[1] != opening[1] && mark[1] != kProgrammeOpening[1]) {
            ++mark;
        } else {
            for (const std::string_view forbidden : {opening, kProgrammeOpening}) {
                const Markup begin =
                    mark[1] == forbidden[1] ? elementNamed(mark, forbidden) : Markup::Doubtful;
                if (begin != Markup::Doubtful) {
                    return begin == Markup::Whole ? Markup::Doubtful : begin;
                }
            }
            ++mark;
        }
    }
}

Markup OpeningTag::read(const char* at) {
    m_count = 0;
    for (;;) {
        const char* name = skipBlanks(at);
        if (*name == '>' || (name[0] == '/' && name[1] == '>')) {
            m_isEmptyElement = *name == '/';
            m_end = name + (m_isEmptyElement ? 2 : 1);
            return Markup::Whole;
        }
        if (*name == '\0' || (name[0] == '/' && name[1] == '\0')) {
            return Markup::Unfinished;
        }
        const std::size_t nameSize = nameSizeAt(name);
        if (name == at || nameSize == 0 || m_count == m_attributes.size()) {
            return Markup::Doubtful;
        }
        const char* equals = skipBlanks(name + nameSize);
        const char* quote = *equals == '=' ? skipBlanks(equals + 1) : equals;
        if (*quote == '\0') {
            return Markup::Unfinished;
        }
        const std::string_view attribute{name, nameSize};
        if (value(attribute) || *equals != '=' || (*quote != '"' && *quote != '\'')) {
            return Markup::Doubtful;
        }
        const char* const begin = quote + 1;
        const char* const closing = std::strchr(begin, *quote);
        const auto valueSize = closing ? static_cast<std::size_t>(closing - begin) : std::strlen(begin);
        if (std::memchr(begin, '<', valueSize)) {
            return Markup::Doubtful;
        }
        if (!closing) {
            return Markup::Unfinished;
        }
        m_attributes[m_count++] = {attribute, {begin, valueSize}};
        at = closing + 1;
    }
}

std::optional<std::string> attributeValue(std::string_view raw) {
    std::string value;
    value.reserve(raw.size());
    for (std::size_t i = 0; i < raw.size(); ++i) {
        if (raw[i] == '&') {
            const std::size_t end = raw.find(';', i);
            if (end == std::string_view::npos) {
                return std::nullopt;
            }
            const auto character = referredCharacter(raw.substr(i + 1, end - i - 1));
            if (!character) {
                return std::nullopt;
            }
            appendUtf8(value, *character);
            i = end;
        } else if (raw[i] == '\r' && i + 1 < raw.size() && raw[i + 1] == '\n') {
            continue;
        } else {
            value.push_back(isBlank(raw[i]) ? ' ' : raw[i]);
        }
    }
    return value;
}

std::string elementText(std::string_view content) {
    constexpr std::string_view kSection = "<![CDATA[";
    constexpr std::string_view kSectionEnd = "]]>";
    std::string text;
    text.reserve(content.size());
    while (!content.empty()) {
        const std::size_t plain = std::min(content.find_first_of("<&"), content.size());
        text.append(content.substr(0, plain));
        content.remove_prefix(plain);
        if (content.starts_with(kSection)) {
            const std::size_t end = std::min(content.find(kSectionEnd), content.size());
            text.append(content.substr(kSection.size(), end - kSection.size()));
            content.remove_prefix(std::min(end + kSectionEnd.size(), content.size()));
        } else if (content.starts_with('<')) {
            const std::string_view closing = content.starts_with("<!--") ? "-->" : ">";
            const std::size_t end = content.find(closing);
            content.remove_prefix(end == std::string_view::npos ? content.size() : end + closing.size());
        } else if (content.starts_with('&')) {
            const std::size_t end = content.find(';');
            const auto character =
                end == std::string_view::npos ? std::nullopt : referredCharacter(content.substr(1, end - 1));
            if (character) {
                appendUtf8(text, *character);
            } else {
                text.push_back('&');
            }
            content.remove_prefix(character ? end + 1 : 1);
        }
    }
    return text;
}

bool FeedElements::next() {
    while (const char* mark = m_at < m_end ? std::strchr(m_at, '<') : nullptr) {
        if (mark >= m_end) {
            return false;
        }
        m_at = mark;
        if (mark[1] == '!' || mark[1] == '?') {
            if (skipAside(m_at) != Markup::Whole) {
                break;
            }
            continue;
        }
        const std::size_t size = nameSizeAt(mark + 1);
        if (size == 0 || m_tag.read(mark + 1 + size) != Markup::Whole) {
            break;
        }
        m_name = {mark + 1, size};
        m_at = m_tag.end();
        if (!m_tag.isEmptyElement() && skipElement(m_at, m_end, "<" + std::string(m_name),
                                                   "</" + std::string(m_name)) != Markup::Whole) {
            break;
        }
        if (m_at > m_end) {
            break;
        }
        const auto length = static_cast<std::size_t>(m_at - m_tag.end());
        const std::string_view rest(m_tag.end(), length);
        m_content = rest.substr(0, m_tag.isEmptyElement() ? 0 : rest.rfind('<'));
        return true;
    }
    m_isMalformed = m_isMalformed || m_at < m_end;
    m_at = m_end;
    return false;
}

} // namespace guide
