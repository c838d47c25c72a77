#pragma once

#include "demo/text/DemoTexts.h"

namespace guide {

/// The texts in the source tree.
inline std::shared_ptr<const DemoTexts> sourceTexts() {
    static const auto texts = DemoTexts::load(QStringLiteral(QUELLIN_SOURCE_DATA "/demo"));
    if (!texts) {
        qFatal("data/demo has errors");
    }
    return texts;
}

} // namespace guide
