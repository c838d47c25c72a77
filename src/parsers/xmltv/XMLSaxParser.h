#pragma once

#include <QByteArray>

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace guide {

/// The number of an element that was not asked for, and of every name with a prefix.
inline constexpr std::size_t kOtherXMLElement = static_cast<std::size_t>(-1);

/// The attributes of an element that has just started; lives as long as the call that hands it over.
class XMLAttributes {
  public:
    virtual ~XMLAttributes() = default;
    /// The value of an attribute without a prefix, as UTF-8, references resolved. The view lives until the
    /// next value is asked for.
    virtual std::optional<std::string_view> value(std::string_view name) const = 0;
};

/// What a document says, in its order. Elements are told by their places among the names asked for.
class XMLEvents {
  public:
    virtual ~XMLEvents() = default;
    virtual void started(std::size_t element, const XMLAttributes& attributes) = 0;
    /// A piece of text, as UTF-8 and never empty: up to the next tag, reference, section or comment.
    virtual void text(std::string_view piece) = 0;
    virtual void ended(std::size_t element) = 0;
};

/// Parses a whole document, up to its first zero byte, and returns when it ends or at the first fatal error;
/// whether it was well-formed to its end.
///
/// The document is UTF-8 whatever it says of itself. Nothing outside it is ever read, and what its own
/// entities expand to is bounded. `document` ends in a zero byte, as every QByteArray does that owns its
/// bytes.
bool parseXML(const QByteArray& document, std::span<const char* const> elementNames, XMLEvents& events);

} // namespace guide
