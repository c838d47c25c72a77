#pragma once

#include <QString>

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace guide {

/// What the parser delivers, which is always valid UTF-8.
QString feedString(std::string_view bytes);

/// A text assembled piece by piece, in UTF-8; unset before the first piece.
class FeedText {
  public:
    bool isSet() const { return m_isSet; }
    std::string_view bytes() const { return m_bytes; }
    void append(std::string_view piece) {
        m_bytes.append(piece);
        m_isSet = true;
    }
    /// Appends the piece with each run of blanks collapsed to one.
    void appendCollapsed(std::string_view piece);
    void assign(std::string_view text) {
        m_bytes.assign(text);
        m_isSet = true;
    }
    /// Keeps the capacity.
    void clear() {
        m_bytes.clear();
        m_isSet = false;
    }
    /// Nothing while unset.
    std::optional<QString> string() const;

  private:
    std::string m_bytes;
    bool m_isSet = false;
};

/// The texts of several elements of one name.
class FeedTexts {
  public:
    struct Each {
        /// An attribute that tells them apart, such as the language; may be empty.
        std::string kind;
        std::string text;
    };

    /// Begins the text of the next element.
    void start(std::string_view kind = {});
    /// Adds to the last one.
    void append(std::string_view piece) {
        if (m_count > 0) {
            m_texts[m_count - 1].text.append(piece);
        }
    }
    std::span<const Each> all() const { return {m_texts.data(), m_count}; }
    std::size_t byteCount() const;
    /// Keeps the capacity.
    void clear() { m_count = 0; }

  private:
    /// Enough for any real show; limits the work for hostile input.
    static constexpr std::size_t kMost = 200;

    std::vector<Each> m_texts;
    std::size_t m_count = 0;
};

} // namespace guide
