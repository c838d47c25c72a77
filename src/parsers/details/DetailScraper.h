#pragma once

#include "parsers/details/DetailPage.h"
#include "parsers/details/PageSource.h"
#include "store/ShowItem.h"

#include <functional>
#include <memory>
#include <optional>

namespace guide {

/// What a scraper works with; all that it refers to outlives it.
struct DetailScraperEnvironment {
    PageSource pages;
    const SourceHostTable& hosts;
    /// Takes what was found of a show, as the store's change of one show does. May be empty.
    std::function<void(std::shared_ptr<const TVEntry> entry,
                       std::shared_ptr<const TVEntrySupplementalData> details, const QSet<QUrl>& pictures)>
        update;
    /// The device's.
    QLocale locale = {};
};

/// Brings the long details of a show from the page that the show names. Keeps nothing between two calls.
class DetailScraper {
  public:
    explicit DetailScraper(DetailScraperEnvironment environment);

    /// The show with the details, pictures and categories of its page, which go to the store as well, but for
    /// the categories. Nothing when the show names no page or the page does not come. Blocks for up to three
    /// fetches. `trace`, where there is one, learns what was looked for in vain.
    std::optional<ShowItem> netDescriptionFor(const std::shared_ptr<const TVEntry>& entry,
                                              MarkerTrace* trace = nullptr) const;

  private:
    DetailScraperEnvironment m_environment;
};

} // namespace guide
