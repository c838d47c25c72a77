#include "parsers/xmltv/FeedDetails.h"

#include <initializer_list>

namespace guide {

void FeedDetails::clear() {
    for (FeedTexts* texts : {&titles, &subtitles, &descriptions, &actors, &directors, &categories, &countries,
                             &episodes, &ageRatings}) {
        texts->clear();
    }
    for (FeedText* text : {&date, &starRating, &icon}) {
        text->clear();
    }
    isNew = isPremiere = isPreviouslyShown = tellsPreviousShow = isSeries = false;
    m_open.clear();
}

void FeedDetails::started(XMLTVElement element, const XMLTVAttributes& attributes) {
    const bool isChild = m_open.empty();
    const XMLTVElement parent = isChild ? XMLTVElement::Programme : m_open.back();
    m_open.push_back(element);
    const auto attribute = [&attributes](std::string_view name) {
        return attributes.value(name).value_or(std::string_view());
    };
    switch (element) {
    // Some feeds have credits without the element around them.
    case XMLTVElement::Actor:
        actors.start();
        return;
    case XMLTVElement::Director:
        directors.start();
        return;
    case XMLTVElement::Value:
        if (parent == XMLTVElement::StarRating && starRating.isSet()) {
            starRating.append(" ");
        }
        return;
    default:
        break;
    }
    if (!isChild) {
        return;
    }
    switch (element) {
    case XMLTVElement::Title:
        titles.start(attribute("lang"));
        break;
    case XMLTVElement::SubTitle:
        subtitles.start(attribute("lang"));
        break;
    case XMLTVElement::Desc:
        descriptions.start(attribute("lang"));
        break;
    case XMLTVElement::Category:
        categories.start(attribute("lang"));
        if (const auto description = attributes.value("desc")) {
            categories.append(*description);
            categories.start(attribute("lang"));
        }
        break;
    case XMLTVElement::Genres:
        categories.start();
        break;
    case XMLTVElement::Country:
        countries.start();
        break;
    case XMLTVElement::EpisodeNum:
        episodes.start(attribute("system"));
        isSeries = true;
        break;
    case XMLTVElement::SeriesId:
        isSeries = true;
        break;
    case XMLTVElement::Rating:
        ageRatings.start(attribute("system"));
        break;
    case XMLTVElement::Icon:
        if (const auto source = attributes.value("src")) {
            icon.assign(*source);
        }
        break;
    case XMLTVElement::New:
        isNew = true;
        break;
    case XMLTVElement::Premiere:
        isPremiere = true;
        break;
    case XMLTVElement::PreviouslyShown:
        isPreviouslyShown = true;
        tellsPreviousShow = !attribute("start").empty() || !attribute("channel").empty();
        break;
    default:
        break;
    }
}

XMLTVElement FeedDetails::textOwner() const {
    if (m_open.size() == 1) {
        return m_open.back();
    }
    if (m_open.empty()) {
        return XMLTVElement::Programme;
    }
    const XMLTVElement element = m_open.back();
    const XMLTVElement parent = m_open[m_open.size() - 2];
    const bool isCredit = element == XMLTVElement::Actor || element == XMLTVElement::Director;
    if (isCredit) {
        return element;
    }
    return element == XMLTVElement::Value ? parent : XMLTVElement::Other;
}

void FeedDetails::text(std::string_view piece) {
    const bool isValue = m_open.size() > 1 && m_open.back() == XMLTVElement::Value;
    switch (textOwner()) {
    case XMLTVElement::Title:
        titles.append(piece);
        break;
    case XMLTVElement::SubTitle:
        subtitles.append(piece);
        break;
    case XMLTVElement::Desc:
        descriptions.append(piece);
        break;
    case XMLTVElement::Actor:
        actors.append(piece);
        break;
    case XMLTVElement::Director:
        directors.append(piece);
        break;
    case XMLTVElement::Category:
    case XMLTVElement::Genres:
        categories.append(piece);
        break;
    case XMLTVElement::Country:
        countries.append(piece);
        break;
    case XMLTVElement::EpisodeNum:
        episodes.append(piece);
        break;
    case XMLTVElement::Date:
        date.append(piece);
        break;
    case XMLTVElement::Rating:
        if (isValue) {
            ageRatings.append(piece);
        }
        break;
    case XMLTVElement::StarRating:
        if (isValue) {
            starRating.append(piece);
        }
        break;
    default:
        break;
    }
}

bool FeedDetails::wantsText() const {
    const XMLTVElement owner = textOwner();
    return owner != XMLTVElement::Programme && owner != XMLTVElement::Other;
}

void FeedDetails::ended() {
    if (!m_open.empty()) {
        m_open.pop_back();
    }
}

std::size_t FeedDetails::byteCount() const {
    std::size_t bytes = date.bytes().size() + starRating.bytes().size() + icon.bytes().size();
    for (const FeedTexts* texts : {&titles, &subtitles, &descriptions, &actors, &directors, &categories,
                                   &countries, &episodes, &ageRatings}) {
        bytes += texts->byteCount();
    }
    return bytes;
}

} // namespace guide
