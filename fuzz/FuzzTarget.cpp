#include "FuzzTarget.h"

#include <cstdio>
#include <cstdlib>
#include <iterator>

namespace guide::fuzz {

const std::vector<FuzzTarget>& fuzzTargets() {
    static const std::vector<FuzzTarget> all = [] {
        std::vector<FuzzTarget> targets;
        for (const auto& group : {readerTargets, feedTargets, detailTargets, textTargets, archiveTargets,
                                  sourceTargets, profileTargets, ownSourceTargets, calendarTargets}) {
            std::vector<FuzzTarget> added = group();
            std::move(added.begin(), added.end(), std::back_inserter(targets));
        }
        return targets;
    }();
    return all;
}

void require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "violated: %s\n", what);
        std::abort();
    }
}

} // namespace guide::fuzz
