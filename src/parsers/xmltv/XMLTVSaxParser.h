#pragma once

#include "parsers/xmltv/XMLSaxParser.h"

#include <string_view>

namespace guide {

/// The elements that the reader of a feed knows. Everything else is Other, including every name with a
/// prefix.
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
    Credits,
    Date,
    Country,
    Rating,
    StarRating,
    Value,
    New,
    Premiere,
    Genres,
};

using XMLTVAttributes = XMLAttributes;

/// Receives the contents of a feed in order.
class XMLTVEvents {
  public:
    virtual ~XMLTVEvents() = default;
    virtual void started(XMLTVElement element, const XMLTVAttributes& attributes) = 0;
    /// Text up to the next tag, reference, section or comment; UTF-8, never empty.
    virtual void text(std::string_view piece) = 0;
    virtual void ended(XMLTVElement element) = 0;
    /// As XMLEvents::wantsText().
    virtual bool wantsText() const { return true; }
    /// A programme was malformed: what was started is not ended.
    virtual void skippedProgramme() {}
};

/// Parses a whole feed, as parseXML does.
std::optional<XMLBreak> parseXMLTV(const QByteArray& document, XMLTVEvents& events,
                                   const std::function<bool()>& stopped = {});
std::optional<XMLBreak> parseXMLTV(TextSource& document, XMLTVEvents& events,
                                   const std::function<bool()>& stopped = {});

/// Skips programmes that are malformed, as parseXMLRows does.
std::optional<XMLBreak> parseXMLTVRows(TextSource& document, XMLTVEvents& events,
                                       const std::function<bool()>& stopped = {});

} // namespace guide
