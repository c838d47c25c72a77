#pragma once

#include "parsers/details/DetailPage.h"
#include "parsers/details/PageSource.h"
#include "store/ShowItem.h"

#include <functional>
#include <memory>
#include <optional>

namespace guide {

/// Everything referred to must outlive the scraper.
struct DetailScraperEnvironment {
    PageSource pages;
    const SourceHostTable& hosts;
    /// Receives the details found for a show. May be empty.
    std::function<void(std::shared_ptr<const TVEntry> entry,
                       std::shared_ptr<const TVEntrySupplementalData> details, const PictureURLs& pictures)>
        update;
    /// The device's locale.
    QLocale locale = {};
};

/// Fetches the long details of a show from its page. Stateless.
class DetailScraper {
  public:
    explicit DetailScraper(DetailScraperEnvironment environment);

    /// The show with the details, pictures and categories of its page. Details and pictures are also passed
    /// to `update`. Nothing when the show has no page or the page cannot be fetched. Blocks for up to three
    /// fetches. `trace`, if given, records markers that were not found.
    std::optional<ShowItem> netDescriptionFor(const std::shared_ptr<const TVEntry>& entry,
                                              MarkerTrace* trace = nullptr) const;

  private:
    DetailScraperEnvironment m_environment;
};

} // namespace guide
