#pragma once

#include "text/facts/ShowFacts.h"

#include <QString>
#include <QStringView>

#include <optional>
#include <vector>

namespace guide {

// What feeds add to titles and texts in brackets, behind a comma or behind a dash.

/// Where and when a show was made.
struct ProductionNote {
    std::optional<int> year;
    std::vector<QString> countries;
};

/// "(R)", "(Reluare)", "(NUOVO)", "(Α' ΤΗΛΕΟΠΤΙΚΗ ΜΕΤΑΔΟΣΗ)": Repeat or New; Unknown for another text. One
/// letter is a mark only in brackets.
Newness newnessMark(QStringView text, bool isBracketed);

/// "ST", "AD,HD", "skryté titulky": how a show is broadcast.
bool isTechnicalNote(QStringView text);

/// "USA, 1999", "SAD/1999", "D 2012", "2012": years and countries and nothing else. Nothing without a year
/// unless `mayLackYear`.
std::optional<ProductionNote> productionNote(QStringView text, bool mayLackYear = false);

/// Whether the text says of what kind a show is and nothing else: "dramska serija", "ελληνική ταινία".
bool isGenreNote(QStringView text);

/// "FSK 12", "Κ8", "+16", "od 12 let": the rating as written, without its words.
std::optional<QString> ageNote(QStringView text);

/// A year in which a show may have been made.
std::optional<int> yearOf(QStringView text);

} // namespace guide
