#pragma once

#include "parsers/details/PageSource.h"
#include "platform/queues/DispatchQueue.h"
#include "screens/RecordedShows.h"
#include "sources/SourceHostTable.h"

namespace guide {

/// Looks up past broadcasts over the network, on the global background queue. Its dependencies must outlive
/// the blocks on the queues.
class RecordedShowsLookup final : public RecordedShowsSource {
  public:
    RecordedShowsLookup(DispatchQueues& queues, const SourceHostTable& hosts, PageSource pages)
        : m_queues(queues)
        , m_hosts(hosts)
        , m_pages(std::move(pages)) {}

    void recordedShowsWithTitle(const QString& title,
                                MainBlock<std::vector<RecordedShow>> mainBlock) override;

  private:
    DispatchQueues& m_queues;
    const SourceHostTable& m_hosts;
    const PageSource m_pages;
};

} // namespace guide
