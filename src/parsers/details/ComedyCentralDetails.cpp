#include "parsers/details/ComedyCentralDetails.h"

namespace guide {

void readComedyCentralDetails(const DetailPage& page, ShowDetails& show) {
    addPicture(show, decodedLink(page.walk().take(":image\" content=\"", "\""), page.url));
    MarkerWalk copy = page.walk();
    if (copy.pass(" class=\"subject-copy\">")) {
        show.details.description = decodedText(copy.take("<p>", "<"));
    }
}

} // namespace guide
