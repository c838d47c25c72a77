#include "store/ShowUpdates.h"

#include <algorithm>

namespace guide {

namespace {

ShowItem itemWith(const ShowItem& item, std::shared_ptr<const TVEntrySupplementalData> details,
                  const PictureURLs& pictures) {
    return ShowItem(item.entry(), item.categories(), std::move(details),
                    pictures.isEmpty() ? item.pictures() : pictures);
}

} // namespace

std::optional<ShowItems> listWithDetails(const ShowItems& list, const TVEntry& entry,
                                         std::shared_ptr<const TVEntrySupplementalData> details,
                                         const PictureURLs& pictures) {
    const auto found = std::find_if(list.begin(), list.end(), [&entry](const ShowItem& item) {
        return item.entry().get() == &entry || item.entry()->dateTime() > entry.dateTime();
    });
    if (found == list.end() || found->entry().get() != &entry) {
        return std::nullopt;
    }
    if (!details) {
        details = std::make_shared<const TVEntrySupplementalData>();
    }
    ShowItems updated = list;
    updated[static_cast<std::size_t>(found - list.begin())] = itemWith(*found, std::move(details), pictures);
    return updated;
}

std::optional<ShowItems> listWithIMDB(const ShowItems& list, const QString& identificator,
                                      TVListingsCategory category, const QUrl& url,
                                      const PictureURLs& pictures) {
    std::optional<ShowItems> updated;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const ShowItem& item = list[i];
        if (item.categories() != category || item.entry()->identificator() != identificator) {
            continue;
        }
        if (!updated) {
            updated = list;
        }
        auto details = item.details() ? std::make_shared<TVEntrySupplementalData>(*item.details())
                                      : std::make_shared<TVEntrySupplementalData>();
        details->imdbURL = url;
        (*updated)[i] = itemWith(item, std::move(details), pictures);
    }
    return updated;
}

} // namespace guide
