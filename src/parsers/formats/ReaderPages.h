#pragma once

#include "parsers/formats/ListReader.h"

#include <memory>

namespace guide {

/// The pages concatenated. A single page is shared, not copied.
QByteArray joinedPages(const std::vector<QByteArray>& pages);

/// The page with that index; null, with a log line, when fewer pages were fetched.
const QByteArray* pageNumbered(const ListReaderInput& input, std::size_t index);

inline std::string_view pageText(const QByteArray& page) {
    return {page.constData(), static_cast<std::size_t>(page.size())};
}

/// A show of the item's channel at that moment; the reader sets title and source id.
std::shared_ptr<TVEntry> newEntry(const ListReaderInput& input, const LoadItem& item, Moment start);
/// The same, with a title.
std::shared_ptr<TVEntry> newEntry(const ListReaderInput& input, const LoadItem& item, const QString& title,
                                  Moment start);

} // namespace guide
