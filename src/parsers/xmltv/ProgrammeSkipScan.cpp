#include "parsers/xmltv/ProgrammeSkipScan.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <vector>

namespace guide {

namespace {

constexpr std::string_view kOpening = "<programme";
constexpr std::string_view kClosing = "</programme";
constexpr std::string_view kPlaceholder = "<programme/>";

bool startsWith(const char* at, std::string_view text) {
    return std::strncmp(at, text.data(), text.size()) == 0;
}

bool isBlank(char character) {
    return character == ' ' || character == '\n' || character == '\t' || character == '\r';
}

const char* skipBlanks(const char* at) {
    while (isBlank(*at)) {
        ++at;
    }
    return at;
}

/// Whether a tag name ends at this character.
bool endsName(char character) {
    return isBlank(character) || character == '>' || character == '/';
}

/// The end of the comment, CDATA section or processing instruction that opens at `at`; null when it has no
/// end or is something else.
const char* asideEnd(const char* at) {
    struct Aside {
        std::string_view opening;
        const char* closing;
    };
    static constexpr std::array kAsides{Aside{"<!--", "-->"}, Aside{"<![CDATA[", "]]>"}, Aside{"<?", "?>"}};
    for (const Aside& aside : kAsides) {
        if (startsWith(at, aside.opening)) {
            const char* closing = std::strstr(at + aside.opening.size(), aside.closing);
            return closing ? closing + std::strlen(aside.closing) : nullptr;
        }
    }
    return nullptr;
}

/// The end of a document type declaration; null when it has an internal subset or no end.
const char* documentTypeEnd(const char* at) {
    while (*at != '>') {
        if (*at == '[' || *at == '\0') {
            return nullptr;
        }
        if (*at == '"' || *at == '\'') {
            at = std::strchr(at + 1, *at);
            if (!at) {
                return nullptr;
            }
        }
        ++at;
    }
    return at + 1;
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

/// The normalised value of an attribute: references resolved, tabs and line ends replaced by blanks. Nothing
/// when it contains a reference that only a DTD defines.
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

/// The opening tag of a programme.
struct OpeningTag {
    /// The end of the tag.
    const char* end = nullptr;
    /// Whether the element is empty.
    bool closed = false;
    /// The raw channel attribute, if present.
    std::optional<std::string_view> channel;
};

/// Reads the tag that opens at `at`; nothing when it is malformed.
std::optional<OpeningTag> openingTag(const char* at) {
    constexpr std::size_t kMostAttributes = 16;
    std::array<std::string_view, kMostAttributes> names;
    std::size_t count = 0;
    OpeningTag tag;
    at += kOpening.size();
    for (;;) {
        const char* name = skipBlanks(at);
        if (*name == '>' || (name[0] == '/' && name[1] == '>')) {
            tag.closed = *name == '/';
            tag.end = name + (tag.closed ? 2 : 1);
            return tag;
        }
        const std::size_t nameSize = std::strcspn(name, "= \n\t\r\"'<>/&");
        if (name == at || nameSize == 0 || count == kMostAttributes) {
            return std::nullopt;
        }
        const std::string_view attribute{name, nameSize};
        for (std::size_t i = 0; i < count; ++i) {
            if (names[i] == attribute) {
                return std::nullopt;
            }
        }
        names[count++] = attribute;
        const char* equals = skipBlanks(name + nameSize);
        if (*equals != '=') {
            return std::nullopt;
        }
        const char* quote = skipBlanks(equals + 1);
        if (*quote != '"' && *quote != '\'') {
            return std::nullopt;
        }
        const char* value = quote + 1;
        const char* closing = std::strchr(value, *quote);
        if (!closing) {
            return std::nullopt;
        }
        const auto valueSize = static_cast<std::size_t>(closing - value);
        if (std::memchr(value, '<', valueSize)) {
            return std::nullopt;
        }
        if (attribute == "channel") {
            tag.channel = std::string_view{value, valueSize};
        }
        at = closing + 1;
    }
}

/// The position after the end tag of the programme whose content begins at `at`; null when it is missing or
/// another programme begins before it.
const char* programmeEnd(const char* at) {
    for (;;) {
        at = std::strchr(at, '<');
        if (!at) {
            return nullptr;
        }
        switch (at[1]) {
        case '!':
        case '?':
            at = asideEnd(at);
            if (!at) {
                return nullptr;
            }
            break;
        case '/':
            if (startsWith(at, kClosing) && endsName(at[kClosing.size()])) {
                at = skipBlanks(at + kClosing.size());
                return *at == '>' ? at + 1 : nullptr;
            }
            at += 2;
            break;
        case 'p':
            if (startsWith(at, kOpening) && endsName(at[kOpening.size()])) {
                return nullptr;
            }
            [[fallthrough]];
        default:
            ++at;
        }
    }
}

/// Scans a feed once, from "<" to "<", and records the parts to keep.
class Scan {
  public:
    Scan(const char* feed, const WantedChannels& wanted, std::uint64_t mostBytes)
        : m_wanted(wanted)
        , m_mostBytes(mostBytes)
        , m_at(feed)
        , m_keptFrom(feed) {}

    /// False when the whole feed has to be read.
    bool run() {
        while (const char* mark = std::strchr(m_at, '<')) {
            if (startsWith(mark, kOpening) && endsName(mark[kOpening.size()])) {
                m_at = programme(mark);
            } else if (mark[1] == '?' || mark[1] == '!') {
                m_at = startsWith(mark, "<!DOCTYPE") ? documentTypeEnd(mark) : asideEnd(mark);
            } else {
                m_at = mark + 1;
            }
            if (!m_at || !isSmall()) {
                return false;
            }
        }
        if (m_kept.empty()) {
            return false;
        }
        keep(m_keptFrom + std::strlen(m_keptFrom));
        return isSmall();
    }

    FilteredFeed feed() && {
        FilteredFeed filtered;
        filtered.feed.resize(m_size);
        char* to = filtered.feed.data();
        for (const std::string_view stretch : m_kept) {
            to = static_cast<char*>(std::memcpy(to, stretch.data(), stretch.size())) + stretch.size();
        }
        filtered.parts = std::move(m_kept);
        return filtered;
    }

  private:
    /// The position after the programme that opens at `mark`; null when that is uncertain.
    const char* programme(const char* mark) {
        const auto tag = openingTag(mark);
        if (!tag) {
            return nullptr;
        }
        const auto unwanted = isUnwanted(tag->channel);
        const char* end = tag->closed ? tag->end : programmeEnd(tag->end);
        if (!unwanted || !end) {
            return nullptr;
        }
        if (*unwanted) {
            // A run continues as long as only blanks separate its programmes.
            if (m_kept.empty() || skipBlanks(m_keptFrom) != mark) {
                keep(mark);
                m_kept.push_back(kPlaceholder);
                m_size += static_cast<qsizetype>(kPlaceholder.size());
            }
            m_keptFrom = end;
        }
        return end;
    }

    std::optional<bool> isUnwanted(std::optional<std::string_view> channel) {
        if (!channel) {
            return true;
        }
        // Most feeds are sorted by channel.
        if (!m_lastChannel.data() || m_lastChannel != *channel) {
            const auto id = attributeValue(*channel);
            if (!id) {
                return std::nullopt;
            }
            m_lastUnwanted = !m_wanted.contains(*id);
            m_lastChannel = *channel;
        }
        return m_lastUnwanted;
    }

    bool isSmall() const {
        return static_cast<std::uint64_t>(m_size) + m_kept.size() * sizeof(std::string_view) <= m_mostBytes;
    }

    void keep(const char* to) {
        m_kept.emplace_back(m_keptFrom, static_cast<std::size_t>(to - m_keptFrom));
        m_size += to - m_keptFrom;
    }

    const WantedChannels& m_wanted;
    const std::uint64_t m_mostBytes;
    const char* m_at;
    /// The start of the part that has not been recorded yet.
    const char* m_keptFrom;
    std::vector<std::string_view> m_kept;
    qsizetype m_size = 0;
    std::string_view m_lastChannel;
    bool m_lastUnwanted = false;
};

} // namespace

std::size_t FilteredFeed::offsetInWhole(const QByteArray& whole, std::size_t offset) const {
    const char* last = whole.constData();
    for (const std::string_view part : parts) {
        const bool isPlaceholder = part.data() == kPlaceholder.data();
        if (offset < part.size() && !isPlaceholder) {
            last = part.data() + offset;
            break;
        }
        if (offset < part.size()) {
            break;
        }
        offset -= part.size();
        last = isPlaceholder ? last : part.data() + part.size();
    }
    return static_cast<std::size_t>(last - whole.constData());
}

std::optional<FilteredFeed> withoutUnwantedProgrammes(const QByteArray& feed, const WantedChannels& wanted,
                                                      std::uint64_t mostBytes) {
    if (wanted.all()) {
        return std::nullopt;
    }
    Scan scan(feed.constData(), wanted, mostBytes);
    return scan.run() ? std::optional(std::move(scan).feed()) : std::nullopt;
}

} // namespace guide
