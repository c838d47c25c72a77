#include "parsers/xmltv/FeedShow.h"

#include "parsers/ParsersLog.h"
#include "parsers/xmltv/FeedElementFacts.h"
#include "parsers/xmltv/FeedShowTexts.h"
#include "sources/WebURL.h"
#include "text/categories/CategoryMapping.h"
#include "text/categories/FeedGenres.h"
#include "text/cleaning/FeedTextCleaning.h"
#include "text/cleaning/TextTidying.h"
#include "text/cleaning/TitleCapitals.h"
#include "text/facts/EpisodeNotation.h"
#include "text/reading/CreditsReading.h"
#include "text/reading/DescriptionReading.h"
#include "text/reading/SubtitleReading.h"
#include "text/reading/TitleReading.h"
#include "text/search/FoldedText.h"

#include <QSet>
#include <QUrl>

#include <algorithm>
#include <array>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// Titles of slots for which the feed has no information.
constexpr std::array kPlaceholderTitles{"NEMA INFORMACIJA"_L1, "Nema informacija o programu"_L1};

/// More than any real subtitle has; limits the work for hostile input.
constexpr int kMostBrackets = 1'000;

bool isPlaceholder(const QString& title) {
    return std::find(kPlaceholderTitles.begin(), kPlaceholderTitles.end(), title) != kPlaceholderTitles.end();
}

/// Whether the description contains a cast. Searching for a single character first is many times faster, and
/// few descriptions contain it.
bool hasCastLabel(QStringView description) {
    constexpr QStringView kLabel = u"Uloge: ";
    constexpr qsizetype kColon = 5;
    for (qsizetype i = description.indexOf(u':', kColon); i >= 0; i = description.indexOf(u':', i + 1)) {
        if (description.sliced(i - kColon).startsWith(kLabel)) {
            return true;
        }
    }
    return false;
}

/// The categories named by bracketed words of the subtitle; those words are removed from it.
TVListingsCategory bracketCategories(QString& subtitle, TVListingsCategory known) {
    TVListingsCategory categories = known;
    for (int i = 0; i < kMostBrackets; ++i) {
        const auto range = bracketRange(subtitle);
        if (!range) {
            break;
        }
        const QString bracket = applySubtitleBracket(subtitle, range->start, range->length);
        const TVListingsCategory before =
            std::exchange(categories, categories | mapBracketCategories(bracket));
        if (categories == before) {
            qCInfo(parsersLog, "[UNPARSED CATEGORIES]=%s", qUtf8Printable(bracket));
        }
    }
    return categories;
}

/// Sets what the first facts leave open. A mark against what an element says leaves the newness open.
void completeFacts(ShowFacts& facts, const ShowFacts& other) {
    const auto complete = [](auto& fact, const auto& from) {
        if (!fact) {
            fact = from;
        }
    };
    complete(facts.originalTitle, other.originalTitle);
    complete(facts.year, other.year);
    complete(facts.ageRating, other.ageRating);
    complete(facts.starRating, other.starRating);
    completeEpisode(facts.episode, other.episode);
    if (facts.countries.empty()) {
        facts.countries = other.countries;
    }
    if (facts.newness == Newness::Unknown) {
        facts.newness = other.newness;
    } else if (other.newness != Newness::Unknown && other.newness != facts.newness) {
        facts.newness = Newness::Unknown;
    }
}

/// Some feeds repeat the title in front of the subtitle, or in its place.
void removeTitle(std::optional<QString>& subtitle, const QString& title) {
    if (!subtitle || !subtitle->startsWith(title, Qt::CaseInsensitive)) {
        return;
    }
    const QStringView rest = QStringView(*subtitle).sliced(title.size());
    if (rest.isEmpty()) {
        subtitle.reset();
        return;
    }
    for (const QStringView joint : {QStringView(u" - "), QStringView(u": ")}) {
        if (rest.startsWith(joint) && rest.size() > joint.size()) {
            subtitle = rest.sliced(joint.size()).toString();
            return;
        }
    }
}

/// 0 without a moment.
int yearOf(const std::optional<Moment>& moment) {
    using std::chrono::days;
    return moment ? static_cast<int>(std::chrono::year_month_day(std::chrono::floor<days>(*moment)).year())
                  : 0;
}

/// "LIVE: Inter - Milan" is titled by what follows.
bool isLiveMark(QStringView text) {
    static const QSet<QString> kMarks{u"live"_s,       u"diretta"_s, u"in diretta"_s, u"en direct"_s,
                                      u"direct"_s,     u"direkt"_s,  u"elo"_s,        u"zive"_s,
                                      u"nazivo"_s,     u"uzivo"_s,   u"v zivo"_s,     u"na zywo"_s,
                                      u"en directo"_s, u"directo"_s, u"em direto"_s,  u"canli"_s,
                                      u"in direct"_s,  u"ζωντανα"_s, u"на живо"_s,    u"уживо"_s};
    return kMarks.contains(foldedText(text));
}

/// Some feeds repeat the subtitle behind the title.
QString withoutSubtitle(const QString& title, const std::optional<QString>& subtitle) {
    if (!subtitle || subtitle->isEmpty() || !title.endsWith(*subtitle, Qt::CaseInsensitive)) {
        return title;
    }
    const QStringView rest = QStringView(title).chopped(subtitle->size());
    for (const QStringView joint : {QStringView(u": "), QStringView(u" - ")}) {
        if (rest.endsWith(joint) && rest.size() > joint.size()) {
            const QStringView front = rest.chopped(joint.size());
            return isLiveMark(front) ? title : front.toString();
        }
    }
    return title;
}

} // namespace

void FeedShow::clear() {
    for (FeedText* text : {&title, &subtitle, &description, &roles, &directedBy, &icon}) {
        text->clear();
    }
    iconIsImage = false;
    previouslyShown = false;
    categories = 0;
    sourceId.clear();
    channelName.clear();
    dateTime.reset();
    endDateTime.reset();
    details.clear();
}

/// What is derived from a title.
struct FeedShowMaker::TitleParts {
    bool isPlaceholder = false;
    /// As in the feed.
    QString title;
    QString shown;
    std::optional<QString> instantDescription;
    bool isRepeated = false;
    /// Whether the instant description contains a country and a year.
    bool hasProductionNote = false;
    /// The categories of the title, and those added by its instant description.
    TVListingsCategory categories = 0;
    TVListingsCategory instantCategories = 0;
    /// With FeedReading::keepsTitlesWhole only.
    std::optional<QString> subtitle;
    ShowFacts facts;
    /// The title without the number at its end, in case that number is a season.
    std::optional<SeasonedTitle> seasoned;
};

FeedShowMaker::FeedShowMaker(FeedShowOptions options)
    : m_options(std::move(options)) {}

FeedShowMaker::~FeedShowMaker() = default;

std::optional<ExtendedTVEntry> FeedShowMaker::make(const FeedShow& show, const FeedText& category,
                                                   const QString& language) {
    const FeedReading& reading = m_options.reading;
    const FeedShowTexts texts = reading.readsFacts ? chosenTexts(show.details, codeOf(language))
                                                   : FeedShowTexts{.title = show.title.bytes(),
                                                                   .subtitle = show.subtitle.string(),
                                                                   .description = show.description.string(),
                                                                   .roles = show.roles.string(),
                                                                   .directedBy = show.directedBy.string(),
                                                                   .otherTitle = {}};
    const TitleParts& title = titleParts(texts.title, language, yearOf(show.dateTime));
    if (title.isPlaceholder) {
        return std::nullopt;
    }
    ShowFacts facts = reading.readsFacts ? factsOfElements(show.details, language) : ShowFacts();
    if (texts.otherTitle && !texts.otherTitle->isEmpty()) {
        facts.originalTitle = texts.otherTitle;
    }
    completeFacts(facts, title.facts);
    TVListingsCategory found = show.categories | title.categories;

    FinishedSubtitle finished;
    if (reading.keepsNumberedSubtitles) {
        if (texts.subtitle) {
            // Few of them are alike.
            ReadSubtitle read = readSubtitle(*texts.subtitle, language);
            completeFacts(facts, read.facts);
            finished = {std::move(read.subtitle), std::move(read.genre)};
        }
        if (!finished.subtitle1) {
            finished.subtitle1 = title.subtitle;
        }
        removeTitle(finished.subtitle1, title.shown);
    } else {
        std::optional<QString> subtitle = texts.subtitle;
        if (subtitle) {
            found = bracketCategories(*subtitle, found);
        }
        const SubtitleCategories words = mapSubtitleWords(subtitle, title.title);
        found |= words.categories;
        finished = finishSubtitle(subtitle, words.recognised);
    }
    found |= title.instantCategories;

    CleanedDescription cleaned{texts.description, texts.roles, texts.directedBy};
    cleanTexts(cleaned, facts, language);
    if (reading.believesGenres) {
        found = ownCategories(show, title, finished, cleaned, facts, language);
    } else {
        if (cleaned.description) {
            found |= mapDescriptionWords(*cleaned.description);
            if (!title.hasProductionNote && hasCastLabel(*cleaned.description)) {
                found |= TVListingsCategoryMovies;
            }
        }
        if (cleaned.roles) {
            found |= TVListingsCategoryMovies;
        }
        if (category.isSet()) {
            found |= categories(category.bytes());
        }
    }
    if (found & TVListingsCategorySeries) {
        found &= ~TVListingsCategoryMovies;
    }

    // A Roman number is the season of an episode, unlike that of a film; another one only if the feed says
    // so.
    const bool isSeasoned =
        title.seasoned && (title.seasoned->isArabic ? facts.episode.season == title.seasoned->season
                                                    : facts.episode.episode && !facts.episode.season);
    if (isSeasoned) {
        facts.episode.season = title.seasoned->season;
    }

    ExtendedTVEntry made{std::make_shared<TVEntry>(m_options.alphabet), found,
                         std::make_shared<TVEntrySupplementalData>(), pictures(show)};
    const QString& shown = isSeasoned ? title.seasoned->title : title.shown;
    made.basic->setIdentificator(reading.keepsTitlesWhole ? withoutSubtitle(shown, finished.subtitle1)
                                                          : shown);
    made.basic->setSubtitle1(std::move(finished.subtitle1));
    made.basic->setInstantDetails1(std::move(finished.instantDetails1));
    made.basic->setInstantDescription1(title.instantDescription);
    made.basic->setDateTime(show.dateTime);
    made.basic->setEndDateTime(show.endDateTime);
    made.basic->setPreviouslyShown(show.previouslyShown || title.isRepeated ||
                                   facts.newness == Newness::Repeat);
    const auto isShown = [&title](const QString& original) {
        return original.compare(title.shown, Qt::CaseInsensitive) == 0 ||
               original.compare(title.title.trimmed(), Qt::CaseInsensitive) == 0;
    };
    if (facts.originalTitle && isShown(*facts.originalTitle)) {
        facts.originalTitle.reset();
    }
    if (!facts.empty()) {
        made.basic->setFacts(std::make_shared<const ShowFacts>(std::move(facts)));
    }
    made.extra->description = std::move(cleaned.description);
    made.extra->roles = std::move(cleaned.roles);
    made.extra->directedBy = std::move(cleaned.directedBy);
    return made;
}

void FeedShowMaker::cleanTexts(CleanedDescription& cleaned, ShowFacts& facts, const QString& language) const {
    const FeedReading& reading = m_options.reading;
    if (reading.tidiesTexts && cleaned.description) {
        ReadDescription read = readDescription(*cleaned.description, language);
        if (reading.readsFacts) {
            completeFacts(facts, read.facts);
        }
        const auto complete = [](std::optional<QString>& names, std::optional<QString>& from) {
            if (!names) {
                names = std::move(from);
            }
        };
        complete(cleaned.roles, read.credits.roles);
        complete(cleaned.directedBy, read.credits.directedBy);
        cleaned.description = isFeedPlaceholder(read.text) ? QString() : std::move(read.text);
    }
    if (reading.knowsCreditLabels && cleaned.description) {
        ReadCredits credits = takeCredits(*cleaned.description);
        if (!cleaned.roles) {
            cleaned.roles = std::move(credits.roles);
        }
        if (!cleaned.directedBy) {
            cleaned.directedBy = std::move(credits.directedBy);
        }
    }
    if (!reading.tidiesTexts) {
        cleaned = cleanDescription(std::move(cleaned), m_options.siteHost);
        return;
    }
    if (cleaned.description) {
        closeSentence(*cleaned.description);
        if (cleaned.description->isEmpty()) {
            cleaned.description.reset();
        }
    }
}

TVListingsCategory FeedShowMaker::ownCategories(const FeedShow& show, const TitleParts& title,
                                                const FinishedSubtitle& subtitle,
                                                const CleanedDescription& cleaned, const ShowFacts& facts,
                                                const QString& language) {
    ShowText text{.title = title.shown,
                  .subtitle = subtitle.subtitle1.value_or(QString()),
                  .description = cleaned.description.value_or(QString()),
                  .categories = {},
                  .language = language,
                  .hasRoles = cleaned.roles.has_value(),
                  .length = {},
                  .hasEpisode = show.details.isSeries || !facts.episode.empty(),
                  .channelName = show.channelName.isEmpty() ? feedString(show.sourceId) : show.channelName};
    text.categories.reserve(show.details.categories.all().size() + 2);
    for (const FeedTexts::Each& each : show.details.categories.all()) {
        if (!each.text.empty()) {
            text.categories.push_back(categoryName(each.text));
        }
    }
    for (const std::optional<QString>& genre : {subtitle.instantDetails1, title.instantDescription}) {
        if (genre) {
            text.categories.push_back(*genre);
        }
    }
    if (show.dateTime && show.endDateTime) {
        text.length = std::chrono::duration_cast<std::chrono::seconds>(*show.endDateTime - *show.dateTime);
    }
    return feedCategories(text);
}

std::string_view FeedShowMaker::codeOf(const QString& language) {
    if (m_language != language) {
        m_language = language;
        m_code = language.toStdString();
    }
    return m_code;
}

const FeedShowMaker::TitleParts& FeedShowMaker::titleParts(std::string_view title, const QString& language,
                                                           int broadcastIn) {
    const FeedReading& reading = m_options.reading;
    // Only these depend on the language and the year.
    if (reading.keepsTitlesWhole || reading.keepsAcronyms) {
        m_key.assign(codeOf(language)).append(1, '\n');
        m_key.append(std::to_string(broadcastIn)).append(1, '\n').append(title);
    } else {
        m_key.assign(title);
    }
    if (const TitleParts* known = m_titles.find(m_key)) {
        return *known;
    }
    TitleParts parts;
    parts.title = feedString(title);
    if (reading.keepsTitlesWhole) {
        ReadTitle read = readTitle(parts.title, language, broadcastIn);
        parts.isPlaceholder = read.title.isEmpty();
        parts.shown = std::move(read.title);
        parts.subtitle = std::move(read.subtitle);
        parts.facts = std::move(read.facts);
        parts.instantDescription = std::move(read.genre);
        parts.seasoned = seasonedTitle(parts.shown);
    } else {
        // Some feeds write line ends in titles as these two characters.
        parts.title.remove("\\n"_L1);
        parts.shown = showTitle(parts.title, m_options.locale);
        parts.instantDescription = showInstantDescription(parts.title);
        parts.isRepeated = isRepeatMarked(parts.title);
        parts.hasProductionNote = hasProductionNote(parts.title);
    }
    if (reading.keepsAcronyms) {
        parts.shown = withoutCapitals(parts.shown, language);
        if (parts.seasoned) {
            parts.seasoned->title = withoutCapitals(parts.seasoned->title, language);
        }
    }
    parts.isPlaceholder = parts.isPlaceholder || (reading.knowsPlaceholders ? isFeedPlaceholder(parts.title)
                                                                            : isPlaceholder(parts.title));
    if (parts.title.contains("Sezonul"_L1) || parts.title.contains("Episodul"_L1)) {
        parts.categories |= TVListingsCategorySeries;
    }
    if (parts.instantDescription) {
        parts.instantCategories = mapInstantDescriptionWords(*parts.instantDescription);
    }
    if (parts.hasProductionNote) {
        parts.instantCategories |= TVListingsCategorySeries;
    }
    return m_titles.add(m_key, std::move(parts));
}

TVListingsCategory FeedShowMaker::categories(std::string_view categoryText) {
    const TVListingsCategory* known = m_categories.find(categoryText);
    return known ? *known : m_categories.add(categoryText, mapCategoryText(feedString(categoryText)));
}

QString FeedShowMaker::categoryName(std::string_view text) {
    const QString* known = m_categoryNames.find(text);
    return known ? *known : m_categoryNames.add(text, feedString(text));
}

PictureURLs FeedShowMaker::pictures(const FeedShow& show) {
    const std::string_view name =
        m_options.reading.readsFacts ? show.details.icon.bytes() : show.icon.bytes();
    if (name.empty() || (show.iconIsImage && m_options.imageBase.isEmpty())) {
        return {};
    }
    FeedMemo<PictureURLs>& memo = show.iconIsImage ? m_images : m_icons;
    if (const PictureURLs* known = memo.find(name)) {
        return *known;
    }
    const QString base = show.iconIsImage ? m_options.imageBase : QString();
    QByteArray whole = base.toUtf8();
    whole.append(name);
    PictureURLs found;
    if (!found.insertPlain(whole)) {
        const QUrl url(base + feedString(name), QUrl::StrictMode);
        if (m_options.reading.onlyWebPictures ? isWebURL(url) : url.isValid()) {
            found.insert(url);
        }
    }
    return memo.add(name, std::move(found));
}

} // namespace guide
