#pragma once

#include "parsers/xmltv/FeedText.h"
#include "parsers/xmltv/XMLTVSaxParser.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace guide {

/// The children of a programme, each element by itself.
class FeedDetails {
  public:
    void clear();

    // The elements of a programme, without its own tags.
    void started(XMLTVElement element, const XMLTVAttributes& attributes);
    void text(std::string_view piece);
    void ended();
    /// False between elements and in unknown ones, whose text is nothing.
    bool wantsText() const;

    /// By language.
    FeedTexts titles;
    FeedTexts subtitles;
    FeedTexts descriptions;
    FeedTexts actors;
    FeedTexts directors;
    FeedTexts categories;
    FeedTexts countries;
    /// By numbering system.
    FeedTexts episodes;
    FeedText date;
    /// By rating system.
    FeedTexts ageRatings;
    FeedText starRating;
    FeedText icon;
    bool isNew = false;
    bool isPremiere = false;
    bool isPreviouslyShown = false;
    /// The feed says when or on which channel.
    bool tellsPreviousShow = false;
    bool isSeries = false;

    std::size_t byteCount() const;

  private:
    /// The element that a text belongs to, of those that are open.
    XMLTVElement textOwner() const;

    std::vector<XMLTVElement> m_open;
};

} // namespace guide
