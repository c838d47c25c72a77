#pragma once

#include "parsers/FeedMemo.h"
#include "platform/Moment.h"
#include "store/ShowItem.h"
#include "text/display/Alphabet.h"

#include <QLocale>
#include <QString>

#include <optional>
#include <string>
#include <string_view>

namespace guide {

/// A text that is gathered piece by piece, as UTF-8; unset until the first piece.
class FeedText {
  public:
    bool isSet() const { return m_isSet; }
    std::string_view bytes() const { return m_bytes; }
    void append(std::string_view piece) {
        m_bytes.append(piece);
        m_isSet = true;
    }
    /// Takes one blank for each run of blanks in the piece.
    void appendCollapsed(std::string_view piece);
    void assign(std::string_view text) {
        m_bytes.assign(text);
        m_isSet = true;
    }
    /// Keeps the memory for the next text.
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

/// A show as a feed tells it, before its texts are taken apart.
struct FeedShow {
    FeedText title;
    FeedText subtitle;
    FeedText description;
    FeedText roles;
    FeedText directedBy;
    FeedText icon;
    /// Whether the icon's name stands below the feed's image base.
    bool iconIsImage = false;
    bool previouslyShown = false;
    TVListingsCategory categories = 0;
    /// The feed's id of the channel.
    std::string sourceId;
    std::optional<Moment> dateTime;
    Moment endDateTime;

    /// Makes it a new one, which keeps the memory of the texts.
    void clear();
};

/// What the cleaning of a feed's shows needs beside them.
struct FeedShowOptions {
    /// Outlives the shows.
    const Alphabet& alphabet;
    /// The device's, for titles that come in capitals.
    QLocale locale = {};
    /// What the name of an image is appended to; without it such a name gives no picture.
    QString imageBase = {};
    /// The feed's own site, which signs its descriptions; may be empty.
    QString siteHost = {};
};

/// Makes the shows of one feed: takes their texts apart, cleans them and finds their categories. What many
/// shows of a feed say alike is worked on once, and their texts share memory.
class FeedShowMaker {
  public:
    explicit FeedShowMaker(FeedShowOptions options);
    ~FeedShowMaker();

    /// `show` has a title; `category` is all that the category elements say. The entry has neither channel
    /// nor source id. Nothing when the title says that the feed knows nothing of the slot.
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
