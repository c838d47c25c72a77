#pragma once

#include "platform/Moment.h"
#include "store/ShowItem.h"
#include "text/Alphabet.h"

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
    /// What the name of an image is appended to; without it such a name gives no picture.
    QString imageBase = {};
    /// The feed's own site, which signs its descriptions; may be empty.
    QString siteHost = {};
};

/// Whether the feed says with this title that it knows nothing of the slot.
bool isPlaceholder(const QString& title);

/// The show with its texts taken apart and cleaned, and its categories. `title` is that of `show`, which has
/// one; `category` is all that the feed's own category elements say.
ExtendedTVEntry finishedShow(const FeedShow& show, const QString& title,
                             const std::optional<QString>& category, const FeedShowOptions& options);

} // namespace guide
