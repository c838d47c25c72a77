#pragma once

#include "parsers/xmltv/FeedDetails.h"
#include "parsers/xmltv/FeedMemo.h"
#include "parsers/xmltv/FeedText.h"
#include "platform/Moment.h"
#include "store/ShowItem.h"
#include "text/cleaning/FeedTextCleaning.h"
#include "text/display/Alphabet.h"
#include "text/reading/FeedReading.h"

#include <QLocale>
#include <QString>

#include <optional>
#include <string>
#include <string_view>

namespace guide {

/// A show as the feed describes it, before its texts are analysed.
struct FeedShow {
    FeedText title;
    FeedText subtitle;
    FeedText description;
    FeedText roles;
    FeedText directedBy;
    FeedText icon;
    /// Whether the icon is a name relative to the image base.
    bool iconIsImage = false;
    bool previouslyShown = false;
    TVListingsCategory categories = 0;
    /// The channel id of the feed.
    std::string sourceId;
    /// Of the channel; empty if it is unknown.
    QString channelName;
    std::optional<Moment> dateTime;
    std::optional<Moment> endDateTime;
    /// Read with FeedReading::readsFacts only; titles, subtitles, descriptions and credits are then here.
    FeedDetails details;

    /// Resets every field and keeps the capacity of the texts.
    void clear();
};

/// What is needed to clean the shows of a feed.
struct FeedShowOptions {
    /// Must outlive the shows.
    const Alphabet& alphabet;
    /// The device's locale, for titles in capitals.
    QLocale locale = {};
    /// Image names are appended to it; when empty, they give no pictures.
    QString imageBase = {};
    /// The site of the feed, whose name is removed from descriptions; may be empty.
    QString siteHost = {};
    FeedReading reading = catalogueReading();
};

/// Makes the shows of one feed: analyses and cleans their texts and derives their categories. Repeated titles
/// are processed once and share memory.
class FeedShowMaker {
  public:
    explicit FeedShowMaker(FeedShowOptions options);
    ~FeedShowMaker();

    /// `show` must have a title; `category` is the text of all its category elements, and `language` that of
    /// the channel. The entry has neither channel nor source id. Nothing when the title is a placeholder for
    /// an unknown show.
    std::optional<ExtendedTVEntry> make(const FeedShow& show, const FeedText& category,
                                        const QString& language = {});

  private:
    struct TitleParts;

    /// In UTF-8; valid until the language changes.
    std::string_view codeOf(const QString& language);
    const TitleParts& titleParts(std::string_view title, const QString& language, int broadcastIn);
    void cleanTexts(CleanedDescription& cleaned, ShowFacts& facts, const QString& language) const;
    TVListingsCategory ownCategories(const FeedShow& show, const TitleParts& title,
                                     const FinishedSubtitle& subtitle, const CleanedDescription& cleaned,
                                     const ShowFacts& facts, const QString& language);
    TVListingsCategory categories(std::string_view categoryText);
    QString categoryName(std::string_view text);
    PictureURLs pictures(const FeedShow& show);

    const FeedShowOptions m_options;
    FeedMemo<TitleParts> m_titles;
    /// Reused.
    std::string m_key;
    QString m_language;
    std::string m_code;
    FeedMemo<TVListingsCategory> m_categories;
    FeedMemo<QString> m_categoryNames;
    FeedMemo<PictureURLs> m_icons;
    FeedMemo<PictureURLs> m_images;
};

} // namespace guide
