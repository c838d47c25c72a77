#include "parsers/markers/PlainText.h"

#include "parsers/markers/MarkerWalk.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <libxml/HTMLparser.h>
#include <string>

namespace guide {

namespace {

constexpr std::size_t kLongestReference = 12;

bool isBlank(char byte) {
    return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r' || byte == '\f';
}

/// The lowercase name of a tag, without its slash. `tag` is the text between "<" and ">".
std::string tagName(std::string_view tag) {
    if (!tag.empty() && tag.front() == '/') {
        tag.remove_prefix(1);
    }
    std::string name;
    for (const char byte : tag.substr(0, kLongestReference)) {
        if (std::isalnum(static_cast<unsigned char>(byte)) == 0) {
            break;
        }
        name += static_cast<char>(std::tolower(static_cast<unsigned char>(byte)));
    }
    return name;
}

bool breaksTheLine(const std::string& name) {
    static constexpr std::array kBlocks{"br", "p",     "div", "li", "ul", "ol",
                                        "tr", "table", "h1",  "h2", "h3", "h4"};
    return std::find(kBlocks.begin(), kBlocks.end(), name) != kBlocks.end();
}

/// The character of a reference such as "#232", "#xE8" or "egrave"; 0 when there is none.
char32_t referenced(std::string_view name) {
    unsigned number = 0;
    if (name.starts_with('#')) {
        const bool hexadecimal = name.size() > 1 && (name[1] == 'x' || name[1] == 'X');
        const std::string_view digits = name.substr(hexadecimal ? 2 : 1);
        const auto end = digits.data() + digits.size();
        if (std::from_chars(digits.data(), end, number, hexadecimal ? 16 : 10).ptr != end) {
            return 0;
        }
    } else {
        const std::string terminated(name);
        const htmlEntityDesc* entity = htmlEntityLookup(reinterpret_cast<const xmlChar*>(terminated.c_str()));
        number = entity ? entity->value : 0;
    }
    const bool isCharacter = number <= 0x10ffff && (number < 0xd800 || number > 0xdfff);
    return isCharacter ? number : 0;
}

/// Collects the visible text: blanks only between words, no empty lines.
class VisibleText {
  public:
    void add(std::string_view bytes) {
        if (bytes.empty()) {
            return;
        }
        if (!m_text.empty() && (m_line || m_blank)) {
            m_text += m_line ? '\n' : ' ';
        }
        m_line = m_blank = false;
        m_text += bytes;
    }
    void blank() { m_blank = true; }
    void line() { m_line = true; }
    const std::string& text() const { return m_text; }

  private:
    std::string m_text;
    bool m_blank = false;
    bool m_line = false;
};

} // namespace

QString plainText(std::string_view html) {
    VisibleText visible;
    // No tag can end after the last ">".
    const std::size_t lastTagEnd = html.rfind('>');
    std::size_t place = 0;
    while (place < html.size()) {
        const char byte = html[place];
        if (isBlank(byte)) {
            visible.blank();
            ++place;
        } else if (byte == '<' && lastTagEnd != std::string_view::npos && place < lastTagEnd) {
            const std::size_t end = html.find('>', place);
            if (breaksTheLine(tagName(html.substr(place + 1, end - place - 1)))) {
                visible.line();
            }
            place = end + 1;
        } else if (byte == '&') {
            const std::size_t end = html.substr(place, kLongestReference).find(';');
            const char32_t character =
                end == std::string_view::npos ? 0 : referenced(html.substr(place + 1, end - 1));
            if (character == 0) {
                visible.add("&");
                ++place;
            } else {
                visible.add(QString::fromUcs4(&character, 1).toStdString());
                place += end + 1;
            }
        } else {
            std::size_t end = place + 1;
            while (end < html.size() && !isBlank(html[end]) && html[end] != '<' && html[end] != '&') {
                ++end;
            }
            visible.add(html.substr(place, end - place));
            place = end;
        }
    }
    return pageString(visible.text());
}

} // namespace guide
