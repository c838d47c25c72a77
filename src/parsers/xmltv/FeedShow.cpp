#include "parsers/xmltv/FeedShow.h"

#include "parsers/ParsersLog.h"
#include "platform/encoding/Utf8.h"
#include "text/categories/CategoryMapping.h"
#include "text/cleaning/FeedTextCleaning.h"

#include <QUrl>

#include <algorithm>
#include <array>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

QString fromUtf8(std::string_view bytes) {
    QString text;
    const bool isValid = readUtf8(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())), text);
    // The parser delivers only valid UTF-8.
    return isValid ? text : QString();
}

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
        const QString bracket = applySubtitleBracket(subtitle, range->start, range->size);
        const TVListingsCategory before =
            std::exchange(categories, categories | mapBracketCategories(bracket));
        if (categories == before) {
            qCInfo(parsersLog, "[UNPARSED CATEGORIES]=%s", qUtf8Printable(bracket));
        }
    }
    return categories;
}

} // namespace

void FeedText::appendCollapsed(std::string_view piece) {
    for (std::size_t at = piece.find("  "); at != std::string_view::npos; at = piece.find("  ")) {
        m_bytes.append(piece.substr(0, at + 1));
        piece.remove_prefix(std::min(piece.find_first_not_of(' ', at), piece.size()));
    }
    append(piece);
}

std::optional<QString> FeedText::string() const {
    if (!m_isSet) {
        return std::nullopt;
    }
    return fromUtf8(m_bytes);
}

void FeedShow::clear() {
    for (FeedText* text : {&title, &subtitle, &description, &roles, &directedBy, &icon}) {
        text->clear();
    }
    iconIsImage = false;
    previouslyShown = false;
    categories = 0;
    sourceId.clear();
    dateTime.reset();
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
};

FeedShowMaker::FeedShowMaker(FeedShowOptions options)
    : m_options(std::move(options)) {}

FeedShowMaker::~FeedShowMaker() = default;

std::optional<ExtendedTVEntry> FeedShowMaker::make(const FeedShow& show, const FeedText& category) {
    const TitleParts& title = titleParts(show.title.bytes());
    if (title.isPlaceholder) {
        return std::nullopt;
    }
    TVListingsCategory found = show.categories | title.categories;

    std::optional<QString> subtitle = show.subtitle.string();
    if (subtitle) {
        found = bracketCategories(*subtitle, found);
    }
    const SubtitleCategories words = mapSubtitleWords(subtitle, title.title);
    found |= words.categories;
    found |= title.instantCategories;
    FinishedSubtitle finished = finishSubtitle(subtitle, words.recognised);

    CleanedDescription cleaned = cleanDescription(
        {show.description.string(), show.roles.string(), show.directedBy.string()}, m_options.siteHost);
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
    if (found & TVListingsCategorySeries) {
        found &= ~TVListingsCategoryMovies;
    }

    ExtendedTVEntry made{std::make_shared<TVEntry>(m_options.alphabet), found,
                         std::make_shared<TVEntrySupplementalData>(), pictures(show)};
    made.basic->setIdentificator(title.shown);
    made.basic->setSubtitle1(std::move(finished.subtitle1));
    made.basic->setInstantDetails1(std::move(finished.instantDetails1));
    made.basic->setInstantDescription1(title.instantDescription);
    made.basic->setDateTime(show.dateTime);
    made.basic->setEndDateTime(show.endDateTime);
    made.basic->setPreviouslyShown(show.previouslyShown || title.isRepeated);
    made.extra->description = std::move(cleaned.description);
    made.extra->roles = std::move(cleaned.roles);
    made.extra->directedBy = std::move(cleaned.directedBy);
    return made;
}

const FeedShowMaker::TitleParts& FeedShowMaker::titleParts(std::string_view title) {
    if (const TitleParts* known = m_titles.find(title)) {
        return *known;
    }
    TitleParts parts;
    parts.title = fromUtf8(title);
    // Some feeds write line ends in titles as these two characters.
    parts.title.remove("\\n"_L1);
    parts.isPlaceholder = isPlaceholder(parts.title);
    parts.shown = showTitle(parts.title, m_options.locale);
    parts.instantDescription = showInstantDescription(parts.title);
    parts.isRepeated = isRepeatMarked(parts.title);
    parts.hasProductionNote = hasProductionNote(parts.title);
    if (parts.title.contains("Sezonul"_L1) || parts.title.contains("Episodul"_L1)) {
        parts.categories |= TVListingsCategorySeries;
    }
    if (parts.instantDescription) {
        parts.instantCategories = mapInstantDescriptionWords(*parts.instantDescription);
    }
    if (parts.hasProductionNote) {
        parts.instantCategories |= TVListingsCategorySeries;
    }
    return m_titles.add(title, std::move(parts));
}

TVListingsCategory FeedShowMaker::categories(std::string_view categoryText) {
    const TVListingsCategory* known = m_categories.find(categoryText);
    return known ? *known : m_categories.add(categoryText, mapCategoryText(fromUtf8(categoryText)));
}

QSet<QUrl> FeedShowMaker::pictures(const FeedShow& show) {
    const std::string_view name = show.icon.bytes();
    if (name.empty() || (show.iconIsImage && m_options.imageBase.isEmpty())) {
        return {};
    }
    FeedMemo<QSet<QUrl>>& memo = show.iconIsImage ? m_images : m_icons;
    if (const QSet<QUrl>* known = memo.find(name)) {
        return *known;
    }
    const QString text = fromUtf8(name);
    const QUrl url(show.iconIsImage ? m_options.imageBase + text : text, QUrl::StrictMode);
    return memo.add(name, url.isValid() ? QSet<QUrl>{url} : QSet<QUrl>{});
}

} // namespace guide
