#include "parsers/details/DetailScraper.h"

#include "parsers/details/CinestarDetails.h"
#include "parsers/details/ComedyCentralDetails.h"
#include "parsers/details/HBODetails.h"
#include "parsers/details/JojCinemaDetails.h"
#include "parsers/details/PalinsestoDetails.h"
#include "parsers/details/PortDetails.h"
#include "parsers/formats/ReaderPages.h"

namespace guide {

using namespace Qt::StringLiterals;

DetailReader detailReaderForSourceId(const QString& sourceId) {
    if (sourceId.startsWith(u'-')) {
        return readHBODetails;
    }
    if (sourceId == "cc.romania"_L1) {
        return readComedyCentralDetails;
    }
    if (sourceId.startsWith("cinestar."_L1)) {
        return readCinestarDetails;
    }
    if (sourceId.startsWith("joj."_L1)) {
        return readJojCinemaDetails;
    }
    if (sourceId.startsWith(u'_')) {
        return readPalinsestoDetails;
    }
    return readPortDetails;
}

DetailScraper::DetailScraper(DetailScraperEnvironment environment)
    : m_environment(std::move(environment)) {}

std::optional<ShowItem> DetailScraper::netDescriptionFor(const std::shared_ptr<const TVEntry>& entry,
                                                         MarkerTrace* trace) const {
    const auto url = entry->url();
    const auto page = url && !url->isEmpty() ? m_environment.pages(*url) : std::nullopt;
    if (!page || page->isEmpty()) {
        return std::nullopt;
    }
    MarkerTrace unasked;
    const QString sourceId = entry->sourceId().value_or(QString());
    ShowDetails show;
    detailReaderForSourceId(sourceId)({pageText(*page), *url, sourceId, m_environment.hosts,
                                       m_environment.pages, m_environment.locale, trace ? *trace : unasked},
                                      show);
    show.details.language = entry->language();
    const auto details = std::make_shared<const TVEntrySupplementalData>(std::move(show.details));
    if (m_environment.update) {
        m_environment.update(entry, details, show.pictures);
    }
    return ShowItem(entry, show.categories, details, show.pictures);
}

} // namespace guide
