#pragma once

#include "core/CatalogueChannel.h"
#include "core/RowTally.h"

#include <QMap>
#include <QString>

#include <optional>

namespace guide {

/// A channel as the catalogue's property list and archive write it: "Location", "Title", "Language", "Icon",
/// "Location1" to "Location7", "Stream".
using ChannelDictionary = QMap<QString, QString>;

/// A channel together with the values that it was read from, which the archive keeps unchanged.
struct CatalogueRow {
    CatalogueChannel channel;
    ChannelDictionary values;
};

/// Nothing when location, title, language or icon is missing, the title is empty, or the icon is not a region
/// and a name with a slash between them; the tally then counts the row as left out. The sources end at the
/// first missing number.
std::optional<CatalogueRow> catalogueRow(ChannelDictionary values, RowTally* tally = nullptr);

} // namespace guide
