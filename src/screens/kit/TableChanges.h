#pragma once

#include <vector>

namespace guide {

/// How one list of rows becomes another, in the order of the members. The indexes of each step refer
/// to the rows after the preceding steps.
struct TableChanges {
    struct Run {
        int first = 0;
        int count = 0;
    };
    struct Move {
        int from = 0;
        /// The index after the move.
        int to = 0;
    };

    /// From the end to the beginning.
    std::vector<Run> removals;
    std::vector<Move> moves;
    /// From the beginning to the end.
    std::vector<Run> insertions;
};

/// If a change needs more moves than this, those rows are removed and inserted instead.
inline constexpr int kMaxMoves = 50;

/// `oldPlaces` has, for each new row, its place among the `oldCount` old rows, or -1 for a row that is new.
/// Moves as few rows as possible.
TableChanges tableChanges(int oldCount, std::vector<int> oldPlaces);

} // namespace guide
