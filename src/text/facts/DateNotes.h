#pragma once

#include <QStringView>

namespace guide {

// Dates of broadcasts in titles, which make each broadcast of a show look like another show. Other dates
// belong to the name: only those within a year of `broadcastIn` count.

/// Whether the text is a whole date, perhaps with a weekday, a time and words such as "puntata del", and
/// nothing else: "31/12/2025", "Tuesday, December 30, 2025 9PM", "ze dne 1. ledna 2026".
bool isDateNote(QStringView text, int broadcastIn);

/// The position of a whole date in digits that ends the text and follows a blank; -1 without one.
qsizetype dateAtEnd(QStringView text, int broadcastIn);

} // namespace guide
