#include "screens/kit/StyledText.h"

#include <algorithm>
#include <utility>

namespace guide {

void StyledText::append(QString text, TextStyle style, ColorRole color) {
    runs.push_back({std::move(text), style, color});
}

QString StyledText::plain() const {
    QString all;
    for (const StyledRun& run : runs) {
        all += run.text;
    }
    return all;
}

const StyledRun* StyledText::find(TextStyle style) const {
    const auto found =
        std::find_if(runs.begin(), runs.end(), [style](const StyledRun& run) { return run.style == style; });
    return found == runs.end() ? nullptr : &*found;
}

} // namespace guide
