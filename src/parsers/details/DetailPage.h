#pragma once

#include "parsers/details/PageSource.h"
#include "parsers/markers/MarkerWalk.h"
#include "sources/SourceHostTable.h"
#include "store/PictureURLs.h"
#include "store/TVEntrySupplementalData.h"
#include "text/categories/TVListingsCategory.h"

#include <QByteArray>
#include <QLocale>
#include <QString>
#include <QUrl>

#include <optional>
#include <string_view>

namespace guide {

/// The input of a detail reader; everything referred to must outlive the call.
struct DetailPage {
    /// UTF-8.
    std::string_view text;
    /// The address of the page.
    const QUrl& url;
    const QString& sourceId;
    const SourceHostTable& hosts;
    /// Fetches pages that the page links to.
    const PageSource& pages;
    /// The device's locale.
    QLocale locale;
    /// Records markers that were not found.
    MarkerTrace& trace;

    MarkerWalk walk() const { return {text, trace}; }
};

/// What a detail reader finds.
struct ShowDetails {
    TVListingsCategory categories = 0;
    TVEntrySupplementalData details;
    PictureURLs pictures;
};

/// Fills in what the page contains. Everything else stays unset; an empty text counts as missing.
using DetailReader = void (*)(const DetailPage& page, ShowDetails& show);

/// The text; nothing when it is empty.
std::optional<QString> textUnlessEmpty(const QString& text);
/// The text with its character references decoded; nothing when it is missing or empty.
std::optional<QString> decodedText(const std::optional<std::string_view>& lifted);
/// The link with its character references decoded, relative to `base`. Nothing unless it is a web URL.
std::optional<QUrl> decodedLink(const std::optional<std::string_view>& lifted, const QUrl& base);
void addPicture(ShowDetails& show, const std::optional<QUrl>& picture);

} // namespace guide
