#pragma once

#include "parsers/xmltv/FeedMemo.h"
#include "platform/Moment.h"
#include "store/ShowItem.h"
#include "text/display/Alphabet.h"
#include "text/reading/FeedReading.h"

#include <QLocale>
#include <QString>

#include <optional>
#include <string>
#include <string_view>

namespace guide {

/// A text assembled piece by piece, in UTF-8; unset before the first piece.
class FeedText {
  public:
    bool isSet() const { return m_isSet; }
    std::string_view bytes() const { return m_bytes; }
    void append(std::string_view piece) {
        m_bytes.append(piece);
        m_isSet = true;
    }
    /// Appends the piece with each run of blanks collapsed to one.
    void appendCollapsed(std::string_view piece);
    void assign(std::string_view text) {
        m_bytes.assign(text);
        m_isSet = true;
    }
    /// Keeps the capacity.
    void clear() {
        m_bytes.clear();
        m_isSet = false;
    }
    /// Nothing while unset.
    std::optional<QString> string() const;

  private:
    std::string m_bytes;
    bool m_isSet = false;
};

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
    std::optional<Moment> dateTime;
    Moment endDateTime;

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

/// Makes the shows of one feed: analyses and cleans their texts and derives their categories. Repeated texts
/// are processed once and share memory.
class FeedShowMaker {
  public:
    explicit FeedShowMaker(FeedShowOptions options);
    ~FeedShowMaker();

    /// `show` must have a title; `category` is the text of all its category elements. The entry has neither
    /// channel nor source id. Nothing when the title is a placeholder for an unknown show.
    std::optional<ExtendedTVEntry> make(const FeedShow& show, const FeedText& category);

  private:
    struct TitleParts;

    const TitleParts& titleParts(std::string_view title);
    TVListingsCategory categories(std::string_view categoryText);
    QSet<QUrl> pictures(const FeedShow& show);

    const FeedShowOptions m_options;
    FeedMemo<TitleParts> m_titles;
    FeedMemo<TVListingsCategory> m_categories;
    FeedMemo<QSet<QUrl>> m_icons;
    FeedMemo<QSet<QUrl>> m_images;
};

} // namespace guide
