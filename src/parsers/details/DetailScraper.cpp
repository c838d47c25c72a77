#include "parsers/details/DetailScraper.h"

#include "parsers/SourceFormats.h"
#include "parsers/formats/ReaderPages.h"

namespace guide {

DetailScraper::DetailScraper(DetailScraperEnvironment environment)
    : m_environment(std::move(environment)) {}

std::optional<ShowItem> DetailScraper::netDescriptionFor(const std::shared_ptr<const TVEntry>& entry,
                                                         MarkerTrace* trace) const {
    const auto url = entry->url();
    const auto page = url && !url->isEmpty() ? m_environment.pages(*url) : std::nullopt;
    if (!page || page->isEmpty()) {
        return std::nullopt;
    }
    MarkerTrace unused;
    const QString sourceId = entry->sourceId().value_or(QString());
    ShowDetails show;
    detailReaderForSourceId(sourceId, m_environment.hosts)({pageText(*page), *url, sourceId,
                                                            m_environment.hosts, m_environment.pages,
                                                            m_environment.locale, trace ? *trace : unused},
                                                           show);
    show.details.language = entry->language();
    const auto details = std::make_shared<const TVEntrySupplementalData>(std::move(show.details));
    if (m_environment.update) {
        m_environment.update(entry, details, show.pictures);
    }
    return ShowItem(entry, show.categories, details, show.pictures);
}

} // namespace guide
