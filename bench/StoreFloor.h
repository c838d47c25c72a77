#pragma once

#include "core/ObjectId.h"
#include "platform/Moment.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace guide::bench {

/// The stored and derived fields of a show, without anything else.
struct FloorShow {
    ObjectId::Bytes channel{};
    std::optional<QString> sourceId, language, title, instantDetails, subtitle, instantDescription, url;
    std::optional<QString> shownTitle, shownInstantDetails, shownSubtitle, shownInstantDescription;
    Moment start, end;
    bool previouslyShown = false;
    std::uint32_t categories = 0;
    std::optional<QString> description, episodeDescription, details, directedBy, roles, detailsLanguage;
};

/// Reads the shows of a listing file through a memory map, without any checks. Only for archives without
/// links and pictures.
std::vector<FloorShow> floorShows(const QByteArray& path);

enum class Flush { No, Yes };
/// Writes a temporary file, flushes it to the disk if asked to, and renames it over the path.
bool floorReplace(const QByteArray& path, const QByteArray& content, Flush flush);

} // namespace guide::bench
