#include "parsers/details/CinestarDetails.h"

#include "text/cleaning/MarkupText.h"

#include <QStringList>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr std::string_view kValue = "\"value\">";

std::optional<QString> value(const DetailPage& page, std::string_view blockStart) {
    const auto block = page.walk().take(blockStart, "</div>");
    return block ? decodedText(MarkerWalk(*block, page.trace).take(kValue, "<")) : std::nullopt;
}

/// The value of a block that spans several lines.
std::optional<QString> trimmedValue(const DetailPage& page, std::string_view blockStart) {
    const auto block = page.walk().take(blockStart, "</div>");
    const auto trimmed = block ? trimmedListingText(pageString(*block)) : std::nullopt;
    if (!trimmed) {
        return std::nullopt;
    }
    const std::string text = trimmed->toStdString();
    const auto lifted = MarkerWalk(text, page.trace).take(kValue, "<");
    return lifted ? textUnlessEmpty(pageString(*lifted)) : std::nullopt;
}

std::optional<QString> description(const DetailPage& page) {
    const auto content =
        page.walk().take("<div class=\"entry-content col-xs-11 col-md-10 col-lg-8\">", "</div>");
    if (!content) {
        return std::nullopt;
    }
    QString text = pageString(*content).trimmed();
    if (text.startsWith("<p>"_L1)) {
        text.remove(0, 3);
    }
    if (const qsizetype end = text.lastIndexOf("</p>"_L1); end >= 0) {
        text.remove(end, 4);
    }
    const auto trimmed = trimmedListingText(text);
    return trimmed ? textUnlessEmpty(decodeMarkup(*trimmed)) : std::nullopt;
}

} // namespace

void readCinestarDetails(const DetailPage& page, ShowDetails& show) {
    addPicture(show,
               decodedLink(page.walk().take("class=\"blur-origin\" style=\"background-image: url('", "'"),
                           page.url));
    QStringList details;
    for (const std::string_view block :
         {"<div class=\"country\">", "<div class=\"duration\">", "<div class=\"year\">"}) {
        if (const auto part = value(page, block)) {
            details.append(*part);
        }
    }
    show.details.details = textUnlessEmpty(details.join(u", "_s));
    show.details.directedBy = trimmedValue(page, "<div class=\"director\">");
    show.details.roles = trimmedValue(page, "<div class=\"actors\">");
    show.details.description = description(page);
}

} // namespace guide
