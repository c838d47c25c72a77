#pragma once

#include "parsers/formats/ListReader.h"

namespace guide {

/// The Italian schedule files: one document for all channels of a broadcaster, with a flat vocabulary
/// ("programma" and its attributes) or a nested one ("giorno", "canale", "prg"). A channel whose document is
/// not well-formed gets nothing.
void readPalinsestoLists(const ListReaderInput& input, ParsedLists& lists);

} // namespace guide
