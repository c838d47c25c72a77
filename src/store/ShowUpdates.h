#pragma once

#include "store/ShowItem.h"

#include <optional>

namespace guide {

/// A copy of the list in which the show with this very entry has new details, and new pictures when there are
/// any. Nothing when the list does not hold the entry.
std::optional<ShowItems> listWithDetails(const ShowItems& list, const TVEntry& entry,
                                         std::shared_ptr<const TVEntrySupplementalData> details,
                                         const PictureURLs& pictures);

/// A copy of the list in which every show of exactly this mask and title has the IMDb page, and new pictures
/// when there are any. Nothing when the list holds no such show.
std::optional<ShowItems> listWithIMDB(const ShowItems& list, const QString& identificator,
                                      TVListingsCategory category, const QUrl& url,
                                      const PictureURLs& pictures);

} // namespace guide
