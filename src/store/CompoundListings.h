#pragma once

#include "store/ShowItem.h"

#include <QHash>
#include <QImage>
#include <QString>

#include <unordered_map>
#include <vector>

namespace guide {

/// Shows grouped by day, with the icons of the channels that occur.
struct CompoundResult {
    /// One a day, in the order of first appearance.
    std::vector<QString> sectionTitles;
    std::unordered_map<ObjectId, QImage> channelIcons;
    std::unordered_map<ObjectId, QString> channelIconNames;
    /// By section title, in input order.
    QHash<QString, ShowItems> sections;
};

} // namespace guide
