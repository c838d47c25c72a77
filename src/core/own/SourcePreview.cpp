#include "core/own/SourcePreview.h"

#include <algorithm>

namespace guide {

QString PreviewChannel::title() const {
    const auto named = std::ranges::find_if(names, [](const QString& name) {
        return std::ranges::any_of(name, [](QChar c) { return c.isLetter(); });
    });
    return named != names.end() ? *named : names.isEmpty() ? id : names.front();
}

} // namespace guide
