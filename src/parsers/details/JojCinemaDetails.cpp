#include "parsers/details/JojCinemaDetails.h"

#include "text/cleaning/MarkupText.h"

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// Stops at the first missing marker.
void readFacts(MarkerWalk& walk, TVEntrySupplementalData& details) {
    const auto facts = walk.take("<p>", "<");
    if (!facts) {
        return;
    }
    details.details = decodedText(facts);
    const auto roles = walk.take("<br>Hrají: ", "<");
    if (!roles) {
        return;
    }
    details.roles = textUnlessEmpty(pageString(*roles));
    const auto directedBy = walk.take("<br>Režie: ", "<");
    if (!directedBy) {
        return;
    }
    details.directedBy = textUnlessEmpty(pageString(*directedBy));
    if (const auto more = decodedText(walk.take("<br>", "<"))) {
        details.details = details.details ? *details.details + u", "_s + *more : *more;
    }
}

} // namespace

void readJojCinemaDetails(const DetailPage& page, ShowDetails& show) {
    MarkerWalk walk = page.walk();
    const auto perex = walk.take(" class=\"perex\">", "<");
    if (!perex) {
        return;
    }
    QString paragraphs = pageString(*perex);
    if (const auto second = walk.take("<p>", "<")) {
        paragraphs += u'\n' + pageString(*second);
        readFacts(walk, show.details);
    }
    show.details.description = textUnlessEmpty(decodeMarkup(paragraphs));
}

} // namespace guide
