#include "core/own/SourcePreview.h"

#include <algorithm>

namespace guide {

QString PreviewChannel::title() const {
    const auto named = std::ranges::find_if(names, [](const QString& name) {
        return std::ranges::any_of(name, [](QChar c) { return c.isLetter(); });
    });
    return named != names.end() ? *named : names.isEmpty() ? id : names.front();
}

QString SourcePreview::commonLanguage() const {
    QString common;
    int most = 0;
    for (auto each = languages.cbegin(); each != languages.cend(); ++each) {
        if (!each.key().isEmpty() && each.value() > most) {
            most = each.value();
            common = each.key();
        }
    }
    return common;
}

} // namespace guide
