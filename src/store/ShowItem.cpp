#include "store/ShowItem.h"

namespace guide {

ShowItem::ShowItem(std::shared_ptr<const TVEntry> entry, std::optional<TVListingsCategory> categories,
                   std::shared_ptr<const TVEntrySupplementalData> details, PictureURLs pictures) {
    // The archive has no later part without the earlier ones.
    if (!pictures.isEmpty() && !details) {
        details = std::make_shared<const TVEntrySupplementalData>();
    }
    if (details && !categories) {
        categories = 0;
    }
    m_parts = std::make_shared<const Parts>(
        Parts{std::move(entry), categories, std::move(details), std::move(pictures)});
}

ShowItem::ShowItem(ExtendedTVEntry show)
    : ShowItem(std::move(show.basic), show.categories, std::move(show.extra), std::move(show.pictures)) {}

int ShowItem::elementCount() const {
    if (!m_parts->pictures.isEmpty()) {
        return 4;
    }
    if (m_parts->details) {
        return 3;
    }
    return m_parts->categories ? 2 : 1;
}

} // namespace guide
