#pragma once

#include "store/ShowItem.h"

#include <optional>

namespace guide {

/// The list with the details of one show, found by the identity of its entry, put in place of its old ones,
/// and the pictures when there are any. Nothing when the list does not hold the entry.
std::optional<ShowItems> listWithDetails(const ShowItems& list, const TVEntry& entry,
                                         std::shared_ptr<const TVEntrySupplementalData> details,
                                         const QSet<QUrl>& pictures);

/// The list with the IMDb page set on every show of exactly this mask and title, and the pictures when there
/// are any. Nothing when the list holds no such show.
std::optional<ShowItems> listWithIMDB(const ShowItems& list, const QString& identificator,
                                      TVListingsCategory category, const QUrl& url,
                                      const QSet<QUrl>& pictures);

} // namespace guide
