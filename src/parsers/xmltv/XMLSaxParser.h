#pragma once

#include "platform/encoding/TextSource.h"

#include <QByteArray>

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace guide {

/// The number of every element that was not requested or has a prefix.
inline constexpr std::size_t kOtherXMLElement = static_cast<std::size_t>(-1);

/// The attributes of a start tag; valid during the call.
class XMLAttributes {
  public:
    virtual ~XMLAttributes() = default;
    /// The value of an attribute without a prefix, in UTF-8 with references resolved. Valid until the next
    /// call.
    virtual std::optional<std::string_view> value(std::string_view name) const = 0;
};

/// Receives the contents of a document in order. Elements are numbered by their position among the requested
/// names.
class XMLEvents {
  public:
    virtual ~XMLEvents() = default;
    virtual void started(std::size_t element, const XMLAttributes& attributes) = 0;
    /// Text up to the next tag, reference, section or comment; UTF-8, never empty.
    virtual void text(std::string_view piece) = 0;
    virtual void ended(std::size_t element) = 0;
    /// Whether text that follows the last event is delivered; asked after each start and end. Half of a
    /// document's text is blanks between elements.
    virtual bool wantsText() const { return true; }
    /// A row was malformed: what was started is not ended, and the next row is started.
    virtual void skippedRow() {}
};

/// Where and why a parse ended before the end of its document.
struct XMLBreak {
    /// The offset of the byte that the parser had reached.
    std::size_t byte = 0;
    std::string message;
    /// Whether nothing behind it may be read: the reader stopped, or a limit was exceeded.
    bool isFinal = false;
    /// Where the content of the last element that was started begins: a section that is not closed hides
    /// everything from there to `byte`.
    std::size_t content = 0;
};

/// Parses a document up to its first zero byte or the first fatal error, which it returns; nothing when the
/// document was well-formed. A start tag of more than 1 MB or with thousands of attributes, on which the
/// library would spend minutes, counts as an error. `stopped`, if given, is called for every element and ends
/// the parse when it returns true.
///
/// The document is UTF-8 regardless of its declaration. External resources are never read, and entity
/// expansion is limited. `document` must end in a zero byte, as every QByteArray that owns its bytes does.
std::optional<XMLBreak> parseXML(const QByteArray& document, std::span<const char* const> elementNames,
                                 XMLEvents& events, const std::function<bool()>& stopped = {});

/// The same in bounded memory, with the same events. A stretch of more than 4 MB without a tag counts as an
/// error too. The source must not give zero bytes.
std::optional<XMLBreak> parseXML(TextSource& document, std::span<const char* const> elementNames,
                                 XMLEvents& events, const std::function<bool()>& stopped = {});

/// The same of a document whose root has rows: elements of one name, given as "<" and the name. A row that is
/// not well-formed is skipped, with what follows it up to the next row; entities that the document declares
/// are unknown from there on. Returns why reading ended early.
std::optional<XMLBreak> parseXMLRows(TextSource& document, std::span<const char* const> elementNames,
                                     XMLEvents& events, std::string_view rowOpening,
                                     const std::function<bool()>& stopped = {});

} // namespace guide
