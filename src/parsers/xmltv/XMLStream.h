#pragma once

#include "platform/encoding/TextSource.h"

#include <QByteArray>

#include <cstddef>
#include <span>
#include <string_view>

namespace guide {

/// A document on its way from a source to libxml2: keeps what the parser has read last, holds back tags that
/// must not reach it, and never divides a line end.
class XMLStream {
  public:
    /// A longer stretch without a tag ends the document.
    static constexpr std::size_t kLongestText = std::size_t{4} << 20;

    /// The source must outlive this object.
    explicit XMLStream(TextSource& source)
        : m_source(source) {}

    /// Gives the parser the next bytes; 0 at the end.
    std::size_t read(std::span<char> room);
    /// Allows everything before the offset to be forgotten.
    void forget(std::size_t offset);

    /// Begins a new document, with `root` in front, at the first opening tag at or after the offset that is
    /// also after the tag of the last restart. False when no such tag follows. `opening` is "<" and a name.
    bool restartAt(std::size_t offset, std::string_view opening, std::string_view root);

    /// What is remembered, including bytes that were not given to the parser yet.
    std::string_view bytes() const { return {m_bytes.constData(), static_cast<std::size_t>(m_bytes.size())}; }
    /// The offset of its first byte in the document.
    std::size_t start() const { return m_start; }
    /// The number of bytes that the parser was given.
    std::size_t given() const { return m_given; }
    /// Why the document was ended early; empty when it was not.
    std::string_view fault() const { return m_fault; }

  private:
    /// Reads on; false at the end of the source.
    bool fill();
    void skipByteOrderMark();
    /// Moves m_checked on.
    void check();
    std::string_view from(std::size_t offset) const { return bytes().substr(offset - m_start); }
    std::size_t end() const { return m_start + bytes().size(); }

    TextSource& m_source;
    QByteArray m_bytes;
    // Offsets in the document.
    std::size_t m_start = 0;
    std::size_t m_given = 0;
    /// Everything before it may be given to the parser.
    std::size_t m_checked = 0;
    /// The "<" that was looked at last, or where the search for the next one begins.
    std::size_t m_mark = 0;
    /// Of the current text.
    std::size_t m_textStart = 0;
    bool m_atStart = true;
    bool m_hasMark = false;
    bool m_isLast = false;
    /// Where the search for a place to restart at begins at the earliest.
    std::size_t m_firstRestart = 0;
    std::string_view m_fault;
};

} // namespace guide
