#include "sources/RandomIndex.h"

#include <QRandomGenerator>

namespace guide {

RandomIndex systemRandomIndex() {
    return [](unsigned bound) { return QRandomGenerator::system()->bounded(bound); };
}

} // namespace guide
