#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace guide {

struct AlertAction {
    enum class Style { Default, Cancel, Destructive };

    QString title;
    Style style = Style::Default;
    /// Main queue; may be null.
    std::function<void()> action = {};
};

/// A modal question or message.
struct Alert {
    QString title;
    QString message;
    /// At least one.
    std::vector<AlertAction> actions;
};

} // namespace guide
