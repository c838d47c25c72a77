#pragma once

#include "core/ObjectId.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace guide {

/// One channel of the catalogue.
struct CatalogueChannel {
    ObjectId id;
    QString title;
    QString language;
    QString region;
    /// Name of the icon image, without the region.
    QString icon = {};
    /// The sources of its listings in the order in which they are tried.
    QStringList sourceIds = {};
    /// The address of its live stream; may be empty.
    std::optional<QString> stream = {};

    friend bool operator==(const CatalogueChannel&, const CatalogueChannel&) = default;
};

} // namespace guide
