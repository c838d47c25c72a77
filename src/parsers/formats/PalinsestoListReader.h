#pragma once

#include "parsers/formats/ListReader.h"
#include "sources/URLPlan.h"

namespace guide {

/// The Italian schedule files: one document for all channels of a broadcaster, with a flat vocabulary
/// ("programma" and its attributes) or a nested one ("giorno", "canale", "prg"). A channel whose document is
/// not well-formed gets no shows.
void readPalinsestoLists(const ListReaderInput& input, ParsedLists& lists);

/// The file of the free channels, and that of the others.
PlannedURLs planMediasetFile(const PlanRequest& request);
PlannedURLs planMediasetPayFile(const PlanRequest& request);
/// Whether the id is "_" and the code of a free channel.
bool isMediasetCode(const QString& sourceId);

} // namespace guide
