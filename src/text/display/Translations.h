#pragma once

#include <QLocale>

namespace guide {

/// Loads the texts of the device's language into the string table; English for a language without a
/// translation. Once, on the main thread, before the first text is made. The program must contain the tables
/// (guide_translations() in CMake).
void installTranslations(const QLocale& locale);

} // namespace guide
