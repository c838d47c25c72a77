#pragma once

#include <QStringView>

namespace guide {

// Dates of broadcasts in titles, which make each broadcast of a show look like another show. Other dates
// belong to the name: only those within a year of `broadcastIn` count.

/// Whether the text is a whole date, perhaps with a weekday, a time and words such as "puntata del", and
/// nothing else: "31/12/2025", "Tuesday, December 30, 2025 9PM", "ze dne 1. ledna 2026".
bool isDateNote(QStringView text, int broadcastIn);

/// Where a whole date in digits begins that ends the text behind a blank; -1 when there is none.
qsizetype dateAtEnd(QStringView text, int broadcastIn);

} // namespace guide
