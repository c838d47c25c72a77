#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

// The parts of a feed's text that the scans tell apart. All texts end in a zero byte.

namespace guide {

inline constexpr std::string_view kProgrammeOpening = "<programme";
inline constexpr std::string_view kProgrammeClosing = "</programme";

enum class Markup {
    Whole,
    /// The text ends before the part does.
    Unfinished,
    /// It is malformed or something else, whatever follows.
    Doubtful,
};

const char* skipBlanks(const char* at);

/// Whether the tag at `at` has this name: `opening` is "<" or "</" and the name.
Markup elementNamed(const char* at, std::string_view opening);

// These move `at` behind a part when it is whole.

/// A comment, CDATA section or processing instruction.
Markup skipAside(const char*& at);
/// A document type declaration. Doubtful when it has an internal subset.
Markup skipDocumentType(const char*& at);
/// The content and end tag of an element in a text that ends at `textEnd`. Doubtful when another one of its
/// name or a programme begins inside.
Markup skipElement(const char*& at, const char* textEnd, std::string_view opening, std::string_view closing);

/// An opening tag with at most 16 attributes, as written. Views refer to the text.
class OpeningTag {
  public:
    /// Reads the tag whose name ends at `at`.
    Markup read(const char* at);

    const char* end() const { return m_end; }
    /// Whether the tag is also the end of its element.
    bool isEmptyElement() const { return m_isEmptyElement; }
    std::optional<std::string_view> value(std::string_view name) const {
        for (std::size_t i = 0; i < m_count; ++i) {
            if (m_attributes[i].first == name) {
                return m_attributes[i].second;
            }
        }
        return std::nullopt;
    }

  private:
    std::array<std::pair<std::string_view, std::string_view>, 16> m_attributes;
    std::size_t m_count = 0;
    const char* m_end = nullptr;
    bool m_isEmptyElement = false;
};

/// The normalised value of an attribute: references resolved, tabs and line ends replaced by blanks. Nothing
/// when it contains a reference that only a DTD defines.
std::optional<std::string> attributeValue(std::string_view raw);

/// The text of an element: references resolved, sections opened; tags and comments are left out.
std::string elementText(std::string_view content);

/// Walks over the child elements of an element's content, which is part of a text that ends in a zero byte.
class FeedElements {
  public:
    explicit FeedElements(std::string_view content)
        : m_at(content.data())
        , m_end(content.data() + content.size()) {}

    /// Moves to the next child. False behind the last one and where the content is malformed.
    bool next();
    bool isMalformed() const { return m_isMalformed; }

    // Of the child.
    std::string_view name() const { return m_name; }
    const OpeningTag& tag() const { return m_tag; }
    std::string_view content() const { return m_content; }

  private:
    const char* m_at;
    const char* const m_end;
    std::string_view m_name;
    OpeningTag m_tag;
    std::string_view m_content;
    bool m_isMalformed = false;
};

} // namespace guide
