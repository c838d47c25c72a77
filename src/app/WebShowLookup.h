#pragma once

#include "parsers/details/DetailScraper.h"
#include "parsers/details/IMDbLookup.h"
#include "screens/ShowLookup.h"

#include <functional>
#include <optional>

namespace guide {

/// Looks shows up on the pages of their sources and on IMDb.
class WebShowLookup final : public ShowLookup {
  public:
    WebShowLookup(DetailScraperEnvironment scraper, IMDbLookupEnvironment imdb)
        : m_scraper(std::move(scraper))
        , m_imdb(imdb) {}

    void netDescriptionFor(const std::shared_ptr<const TVEntry>& entry,
                           MainBlock<ShowItem> mainBlock) override;
    void imdbLink(const ShowItem& show, MainBlock<IMDbLink> mainBlock) override;

    /// Blocks. The show as its page describes it; nothing when there is no page.
    std::optional<ShowItem> description(const std::shared_ptr<const TVEntry>& entry) const {
        return m_scraper.netDescriptionFor(entry);
    }
    /// Calls `found` on a background thread when a page is found: once, the title's page before the
    /// subtitle's.
    void imdbLink(const ShowItem& show, std::function<void(const IMDbLink&)> found) const;

  private:
    const DetailScraper m_scraper;
    const IMDbLookupEnvironment m_imdb;
};

} // namespace guide
