#include "screens/kit/TableChanges.h"

#include <algorithm>
#include <cstddef>

namespace guide {

namespace {

std::size_t at(int place) {
    return static_cast<std::size_t>(place);
}

// The new places of the known rows outside the longest increasing subsequence of old places.
std::vector<int> movedRows(const std::vector<int>& oldPlaces) {
    // Indexed by the length of a subsequence minus 1: among the last rows of all subsequences of that length,
    // the new place of the one with the smallest old place.
    std::vector<int> ends;
    // For each row its predecessor in the longest subsequence that ends with it.
    std::vector<int> previous(oldPlaces.size(), -1);
    for (int row = 0; at(row) < oldPlaces.size(); ++row) {
        if (oldPlaces[at(row)] < 0) {
            continue;
        }
        const auto longer = std::lower_bound(ends.begin(), ends.end(), row, [&oldPlaces](int end, int each) {
            return oldPlaces[at(end)] < oldPlaces[at(each)];
        });
        if (longer != ends.begin()) {
            previous[at(row)] = *(longer - 1);
        }
        if (longer == ends.end()) {
            ends.push_back(row);
        } else {
            *longer = row;
        }
    }
    std::vector<bool> stays(oldPlaces.size(), false);
    for (int row = ends.empty() ? -1 : ends.back(); row >= 0; row = previous[at(row)]) {
        stays[at(row)] = true;
    }
    std::vector<int> moved;
    for (int row = 0; at(row) < oldPlaces.size(); ++row) {
        if (oldPlaces[at(row)] >= 0 && !stays[at(row)]) {
            moved.push_back(row);
        }
    }
    return moved;
}

// For each old row its new place, or -1 when it is not kept.
std::vector<int> keptRows(int oldCount, const std::vector<int>& oldPlaces) {
    std::vector<int> rows(at(oldCount), -1);
    for (int row = 0; at(row) < oldPlaces.size(); ++row) {
        if (oldPlaces[at(row)] >= 0) {
            rows[at(oldPlaces[at(row)])] = row;
        }
    }
    return rows;
}

} // namespace

TableChanges tableChanges(int oldCount, std::vector<int> oldPlaces) {
    TableChanges changes;
    std::vector<int> moved = movedRows(oldPlaces);
    if (moved.size() > kMaxMoves) {
        for (const int row : moved) {
            oldPlaces[at(row)] = -1;
        }
        moved.clear();
    }

    std::vector<int> rows = keptRows(oldCount, oldPlaces);
    for (int end = oldCount; end > 0;) {
        int first = end;
        while (first > 0 && rows[at(first - 1)] < 0) {
            --first;
        }
        if (first < end) {
            changes.removals.push_back({first, end - first});
        }
        end = first - 1;
    }
    std::erase(rows, -1);

    // Ascending, so that the kept row before each one has already reached its place.
    for (const int row : moved) {
        const auto from = std::find(rows.begin(), rows.end(), row);
        const int fromPlace = static_cast<int>(from - rows.begin());
        rows.erase(from);
        int before = row - 1;
        while (before >= 0 && oldPlaces[at(before)] < 0) {
            --before;
        }
        const auto to = before < 0 ? rows.begin() : std::find(rows.begin(), rows.end(), before) + 1;
        changes.moves.push_back({fromPlace, static_cast<int>(to - rows.begin())});
        rows.insert(to, row);
    }

    for (int first = 0; at(first) < oldPlaces.size();) {
        int end = first;
        while (at(end) < oldPlaces.size() && oldPlaces[at(end)] < 0) {
            ++end;
        }
        if (end > first) {
            changes.insertions.push_back({first, end - first});
        }
        first = end + 1;
    }
    return changes;
}

} // namespace guide
