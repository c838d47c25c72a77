#include "app/RecordedShowsLookup.h"

#include "parsers/details/RecordedShows.h"
#include "sources/WebURL.h"

namespace guide {

void RecordedShowsLookup::recordedShowsWithTitle(const QString& title,
                                                 MainBlock<std::vector<RecordedShow>> mainBlock) {
    m_queues.globalQueue(QueuePriority::Background)
        .async([&main = m_queues.mainQueue(), &hosts = m_hosts, pages = m_pages, title,
                mainBlock = std::move(mainBlock)]() mutable {
            std::vector<RecordedShow> shows;
            if (const auto archived = guide::recordedShowsWithTitle(title, hosts, pages)) {
                for (const auto& [label, value] : archived->broadcasts.asKeyValueRange()) {
                    const QUrl url = archived->page.resolved(QUrl(value));
                    shows.push_back({label, isWebURL(url) ? std::optional(url) : std::nullopt});
                }
            }
            mainBlock.post(main, std::move(shows));
        });
}

} // namespace guide
