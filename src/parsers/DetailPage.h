#pragma once

#include "parsers/MarkerWalk.h"
#include "parsers/PageSource.h"
#include "sources/SourceHostTable.h"
#include "store/TVEntrySupplementalData.h"
#include "text/categories/TVListingsCategory.h"

#include <QByteArray>
#include <QLocale>
#include <QSet>
#include <QString>
#include <QUrl>

#include <optional>
#include <string_view>

namespace guide {

/// What a reader of show pages is given; all of it outlives the call.
struct DetailPage {
    /// UTF-8.
    std::string_view text;
    /// Where the page came from.
    const QUrl& url;
    const QString& sourceId;
    const SourceHostTable& hosts;
    /// For pages that the page leads to.
    const PageSource& pages;
    /// The device's.
    QLocale locale;
    /// Told of what is looked for in vain.
    MarkerTrace& trace;

    MarkerWalk walk() const { return {text, trace}; }
};

/// What a show's page tells of it.
struct ShowDetails {
    TVListingsCategory categories = 0;
    TVEntrySupplementalData details;
    QSet<QUrl> pictures;
};

/// Fills in what the page holds. What it lacks stays unset; a text that is empty counts as lacking.
using DetailReader = void (*)(const DetailPage& page, ShowDetails& show);

/// The text; nothing when it is empty.
std::optional<QString> textUnlessEmpty(const QString& text);
/// A lifted text with its references decoded; nothing when it is missing or empty.
std::optional<QString> decodedText(const std::optional<std::string_view>& lifted);
/// A lifted link with its references decoded; a relative one belongs to the site of `base`. Nothing but an
/// address of the web that names a host.
std::optional<QUrl> decodedLink(const std::optional<std::string_view>& lifted, const QUrl& base);
void addPicture(ShowDetails& show, const std::optional<QUrl>& picture);

} // namespace guide
