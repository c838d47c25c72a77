#pragma once

// The string table, for all screens.
#include "text/display/Localized.h" // IWYU pragma: export
