#pragma once

#include <QByteArray>

#include <optional>
#include <string_view>

namespace guide {

/// The elements that a feed's reader knows; everything else, and every name with a prefix, is Other.
enum class XMLTVElement {
    Other,
    Programme,
    Title,
    SubTitle,
    Desc,
    Actor,
    Director,
    Category,
    Image,
    Icon,
    PreviouslyShown,
    EpisodeNum,
    SeriesId,
};

/// The attributes of an element that has just started; lives as long as the call that hands it over.
class XMLTVAttributes {
  public:
    virtual ~XMLTVAttributes() = default;
    /// The value of an attribute without a prefix, as UTF-8, references resolved. The view lives until the
    /// next value is asked for.
    virtual std::optional<std::string_view> value(std::string_view name) const = 0;
};

/// What a document says, in its order.
class XMLTVEvents {
  public:
    virtual ~XMLTVEvents() = default;
    virtual void started(XMLTVElement element, const XMLTVAttributes& attributes) = 0;
    /// A piece of text, as UTF-8 and never empty. Where pieces end is the parser's own affair.
    virtual void text(std::string_view piece) = 0;
    virtual void ended(XMLTVElement element) = 0;
};

/// Parses a whole document, up to its first zero byte, and returns when it ends or at the first fatal error.
///
/// The document is UTF-8 whatever it says of itself. Nothing outside it is ever read, and what its own
/// entities expand to is bounded. `document` ends in a zero byte, as every QByteArray does that owns its
/// bytes.
void parseXMLTV(const QByteArray& document, XMLTVEvents& events);

} // namespace guide
