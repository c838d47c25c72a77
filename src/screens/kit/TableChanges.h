#pragma once

#include <vector>

namespace guide {

/// How one list of rows becomes another, in the order of the members. Each step counts the rows as the steps
/// before it left them.
struct TableChanges {
    struct Run {
        int first = 0;
        int count = 0;
    };
    struct Move {
        int from = 0;
        /// Counted without the moved row.
        int to = 0;
    };

    /// From the end to the beginning.
    std::vector<Run> removals;
    std::vector<Move> moves;
    /// From the beginning to the end.
    std::vector<Run> insertions;
};

/// Beyond this number of moves, rows that change their order are removed and inserted.
inline constexpr int kMaxMoves = 50;

/// `oldPlaces` has, for each new row, its place among the `oldCount` old rows, or -1 for a row that is new.
/// Moves as few rows as possible.
TableChanges tableChanges(int oldCount, std::vector<int> oldPlaces);

} // namespace guide
