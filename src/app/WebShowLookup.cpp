#include "app/WebShowLookup.h"

#include <mutex>
#include <utility>
#include <vector>

namespace guide {

namespace {

/// The answers to the searches for one show.
struct Answers {
    std::mutex guard;
    std::vector<IMDbAnswer> bySearch; // guarded
    std::size_t missing = 0;          // guarded
};

} // namespace

void WebShowLookup::netDescriptionFor(const std::shared_ptr<const TVEntry>& entry,
                                      MainBlock<ShowItem> mainBlock) {
    m_imdb.queues.globalQueue(QueuePriority::UserInitiated).async([this, entry, mainBlock]() mutable {
        mainBlock.post(m_imdb.queues.mainQueue(), description(entry).value_or(ShowItem()));
    });
}

void WebShowLookup::imdbLink(const ShowItem& show, MainBlock<IMDbLink> mainBlock) {
    imdbLink(show, [mainBlock, &mainQueue = m_imdb.queues.mainQueue()](const IMDbLink& link) mutable {
        mainBlock.post(mainQueue, link);
    });
}

void WebShowLookup::imdbLink(const ShowItem& show, std::function<void(const IMDbLink&)> found) const {
    const TVEntry& entry = *show.entry();
    const std::size_t searches =
        imdbSearches(entry.title(), entry.subtitle(), show.categories().value_or(0), m_imdb.hosts)
            .urls.size();
    if (searches == 0) {
        return;
    }
    const auto answers = std::make_shared<Answers>();
    answers->bySearch.resize(searches);
    answers->missing = searches;
    imdbLinkWithClosure({std::make_shared<TVEntry>(entry), show.categories(), nullptr, {}}, m_imdb,
                        [answers, found = std::move(found)](unsigned index, const IMDbAnswer& answer) {
                            std::optional<IMDbLink> link;
                            {
                                const std::lock_guard lock(answers->guard);
                                answers->bySearch[index] = answer;
                                if (--answers->missing > 0) {
                                    return;
                                }
                                for (const IMDbAnswer& each : answers->bySearch) {
                                    if (!link && each.imdbURL) {
                                        link = IMDbLink{*each.imdbURL, each.pictureURL};
                                    }
                                }
                            }
                            if (link) {
                                found(*link);
                            }
                        });
}

} // namespace guide
