#include "parsers/details/PalinsestoDetails.h"

#include "parsers/markers/PlainText.h"
#include "text/cleaning/Capitalisation.h"

#include <QStringList>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> description(const DetailPage& page) {
    QStringList paragraphs;
    MarkerWalk walk = page.walk();
    while (const auto paragraph = walk.take("<div class=\"textParagrafo\">", "</div>")) {
        paragraphs.append(plainText(*paragraph));
    }
    return textUnlessEmpty(paragraphs.join(u'\n'));
}

std::optional<QString> directedBy(const DetailPage& page) {
    const auto lifted = page.walk().take("Regia: ", " -");
    return lifted ? textUnlessEmpty(plainText(*lifted)) : std::nullopt;
}

/// Ends at the next part of the line or the end of the sentence; a cast without an end takes the rest.
std::optional<QString> roles(const DetailPage& page) {
    MarkerWalk walk = page.walk();
    if (!walk.pass(" - Cast: ")) {
        return std::nullopt;
    }
    const std::size_t end = std::min(walk.findOrLimit(" -"), walk.findOrLimit(". "));
    const QString cast = plainText(walk.part(walk.position(), end).rest());
    return textUnlessEmpty(capitalizedWords(cast, page.locale));
}

std::optional<QUrl> picture(const DetailPage& page) {
    const std::string_view start = "<meta content=\"";
    MarkerWalk walk = page.walk();
    const auto end = walk.find("\" property=\"og:image\">");
    const auto meta = end ? walk.part(0, *end).findLast("<meta content=\"http") : std::nullopt;
    if (!meta) {
        return std::nullopt;
    }
    const std::string_view link = walk.part(*meta + start.size(), *end).rest();
    const bool isLogo = link.ends_with("/ogPremiumLogo.jpg") || link.ends_with("/logo-Premium_share.png");
    // A quotation mark inside means that another tag was matched.
    return isLogo || link.find('"') != std::string_view::npos ? std::nullopt : decodedLink(link, page.url);
}

} // namespace

void readPalinsestoDetails(const DetailPage& page, ShowDetails& show) {
    show.details.description = description(page);
    show.details.directedBy = directedBy(page);
    show.details.roles = roles(page);
    addPicture(show, picture(page));
}

} // namespace guide
