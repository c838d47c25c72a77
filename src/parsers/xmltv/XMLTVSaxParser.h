#pragma once

#include "parsers/xmltv/XMLSaxParser.h"

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

using XMLTVAttributes = XMLAttributes;

/// What a document says, in its order.
class XMLTVEvents {
  public:
    virtual ~XMLTVEvents() = default;
    virtual void started(XMLTVElement element, const XMLTVAttributes& attributes) = 0;
    /// A piece of text, as UTF-8 and never empty: up to the next tag, reference, section or comment.
    virtual void text(std::string_view piece) = 0;
    virtual void ended(XMLTVElement element) = 0;
};

/// Parses a whole feed, as parseXML does.
void parseXMLTV(const QByteArray& document, XMLTVEvents& events);

} // namespace guide
