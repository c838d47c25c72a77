#include "parsers/xmltv/FeedElementFacts.h"

#include "text/facts/EpisodeElement.h"
#include "text/facts/EpisodeNotation.h"
#include "text/facts/TitleNotes.h"

#include <QRegularExpression>

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t kLongestFact = 200;
constexpr std::size_t kMostCountries = 12;

QString factText(std::string_view bytes) {
    return bytes.size() > kLongestFact ? QString() : feedString(bytes).simplified();
}

EpisodeNumber episodeOf(const FeedTexts& episodes, const QString& language) {
    EpisodeNumber number;
    // By how much they are worth.
    for (const std::string_view system : {"xmltv_ns", "onscreen", "common", "SxxExx", "SxxxExxx", ""}) {
        for (const FeedTexts::Each& each : episodes.all()) {
            if (each.kind == system) {
                completeEpisode(number,
                                episodeOfElement(feedString(each.kind), factText(each.text), language));
            }
        }
    }
    return number;
}

std::optional<int> yearOfDate(const QString& date) {
    // Where the time of computers begins: the date is unknown.
    return date == u"19700101"_s ? std::nullopt
                                 : yearOf(QStringView(date).first(std::min<qsizetype>(4, date.size())));
}

std::vector<QString> countriesOf(const FeedTexts& countries) {
    static const QRegularExpression kSeparators(u"[|/,;]"_s);
    std::vector<QString> result;
    for (const FeedTexts::Each& each : countries.all()) {
        for (const QString& part : factText(each.text).split(kSeparators, Qt::SkipEmptyParts)) {
            const QString country = part.trimmed();
            if (!country.isEmpty() && result.size() < kMostCountries &&
                std::ranges::find(result, country) == result.end()) {
                result.push_back(country);
            }
        }
    }
    return result;
}

/// "3/5", "7.8 / 10", "8,1/10".
std::optional<StarRating> starRatingOf(const QString& text) {
    static const QRegularExpression kRating(u"^(\\d{1,3}(?:[.,]\\d+)?)\\s*/\\s*(\\d{1,3})"_s);
    const auto match = kRating.match(text);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    const StarRating rating{match.captured(1).replace(u',', u'.').toDouble(), match.captured(2).toDouble()};
    return rating.most > 0 && rating.value > 0 && rating.value <= rating.most ? std::optional(rating)
                                                                              : std::nullopt;
}

Newness newnessOf(const FeedDetails& details) {
    const bool isNew = details.isNew || details.isPremiere;
    if (isNew && details.isPreviouslyShown) {
        // Shown elsewhere or long ago; otherwise the feed contradicts itself.
        return details.tellsPreviousShow ? Newness::New : Newness::Unknown;
    }
    return details.isPreviouslyShown ? Newness::Repeat : isNew ? Newness::New : Newness::Unknown;
}

} // namespace

ShowFacts factsOfElements(const FeedDetails& details, const QString& language) {
    ShowFacts facts;
    if (!details.episodes.all().empty()) {
        facts.episode = episodeOf(details.episodes, language);
    }
    if (details.date.isSet()) {
        facts.year = yearOfDate(factText(details.date.bytes()));
    }
    if (!details.countries.all().empty()) {
        facts.countries = countriesOf(details.countries);
    }
    for (const FeedTexts::Each& each : details.ageRatings.all()) {
        const QString rating = factText(each.text);
        if (!rating.isEmpty() && rating.size() <= 40 && !facts.ageRating) {
            facts.ageRating = rating;
        }
    }
    if (details.starRating.isSet()) {
        facts.starRating = starRatingOf(factText(details.starRating.bytes()));
    }
    facts.newness = newnessOf(details);
    return facts;
}

} // namespace guide
