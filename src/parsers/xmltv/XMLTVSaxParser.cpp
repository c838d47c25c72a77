#include "parsers/xmltv/XMLTVSaxParser.h"

#include "parsers/xmltv/FeedMarkup.h"

#include <array>

namespace guide {

namespace {

/// In the order of XMLTVElement, without Other.
constexpr std::array kElementNames{
    "programme", "title",  "sub-title",        "desc",        "actor",    "director", "category",
    "image",     "icon",   "previously-shown", "episode-num", "seriesid", "credits",  "date",
    "country",   "rating", "star-rating",      "value",       "new",      "premiere", "genres"};

class Events final : public XMLEvents {
  public:
    explicit Events(XMLTVEvents& events)
        : m_events(events) {}

    void started(std::size_t element, const XMLAttributes& attributes) override {
        m_events.started(named(element), attributes);
    }
    void text(std::string_view piece) override { m_events.text(piece); }
    void ended(std::size_t element) override { m_events.ended(named(element)); }
    bool wantsText() const override { return m_events.wantsText(); }
    void skippedRow() override { m_events.skippedProgramme(); }

  private:
    /// Unknown elements are numbered one below the first known one.
    static XMLTVElement named(std::size_t element) { return static_cast<XMLTVElement>(element + 1); }

    XMLTVEvents& m_events;
};
static_assert(kOtherXMLElement + 1 == static_cast<std::size_t>(XMLTVElement::Other));
static_assert(kElementNames.size() == static_cast<std::size_t>(XMLTVElement::Genres));

} // namespace

std::optional<XMLBreak> parseXMLTV(const QByteArray& document, XMLTVEvents& events,
                                   const std::function<bool()>& stopped) {
    Events named(events);
    return parseXML(document, kElementNames, named, stopped);
}

std::optional<XMLBreak> parseXMLTV(TextSource& document, XMLTVEvents& events,
                                   const std::function<bool()>& stopped) {
    Events named(events);
    return parseXML(document, kElementNames, named, stopped);
}

std::optional<XMLBreak> parseXMLTVRows(TextSource& document, XMLTVEvents& events,
                                       const std::function<bool()>& stopped) {
    Events named(events);
    return parseXMLRows(document, kElementNames, named, kProgrammeOpening, stopped);
}

} // namespace guide
