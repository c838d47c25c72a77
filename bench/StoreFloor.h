#pragma once

#include "core/ObjectId.h"
#include "platform/Moment.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace guide::bench {

/// The fields of a show, stored and derived, and nothing around them.
struct FloorShow {
    ObjectId::Bytes channel{};
    std::optional<QString> sourceId, language, title, instantDetails, subtitle, instantDescription, url;
    std::optional<QString> shownTitle, shownInstantDetails, shownSubtitle, shownInstantDescription;
    Moment start, end;
    bool previouslyShown = false;
    std::uint32_t categories = 0;
    std::optional<QString> description, episodeDescription, details, directedBy, roles, detailsLanguage;
};

/// The shows of a listing file, through a memory map, by a walk that believes every byte. Of archives without
/// links and pictures.
std::vector<FloorShow> floorShows(const QByteArray& path);

/// A temporary file renamed over the path, nothing else.
bool floorReplace(const QByteArray& path, const QByteArray& content);

} // namespace guide::bench
