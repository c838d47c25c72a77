#pragma once

#include "text/facts/ShowFacts.h"

#include <QString>

#include <optional>
#include <vector>

namespace guide {

/// A subtitle of a feed taken apart.
struct ReadSubtitle {
    std::optional<QString> subtitle;
    ShowFacts facts;
    /// What it says of the kind of the show, as written.
    std::optional<QString> genre;
};

/// Takes facts and genres off a subtitle: an episode, marks, and the parts that some feeds divide by double
/// bars, "S15E11 ║ Gioco al rialzo ║ Reality, Auktion ║ US ║ 2023 ║ 12". The rest stays, numbers at its start
/// included.
ReadSubtitle readSubtitle(const QString& text, const QString& language);

} // namespace guide
