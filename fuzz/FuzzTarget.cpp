#include "FuzzTarget.h"

#include <cstdio>
#include <cstdlib>
#include <iterator>

namespace guide::fuzz {

const std::vector<FuzzTarget>& fuzzTargets() {
    static const std::vector<FuzzTarget> all = [] {
        std::vector<FuzzTarget> targets;
        for (const auto& group :
             {readerTargets, feedTargets, detailTargets, textTargets, archiveTargets, sourceTargets}) {
            std::vector<FuzzTarget> some = group();
            std::move(some.begin(), some.end(), std::back_inserter(targets));
        }
        return targets;
    }();
    return all;
}

void require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", what);
        std::abort();
    }
}

} // namespace guide::fuzz
