#pragma once

#include <QString>

#include <functional>

namespace guide {

/// A button of the navigation bar.
struct BarButton {
    /// What is drawn: the title, a symbol, or an activity indicator.
    enum class Kind { Title, Refresh, Play, Info, Activity, List, Options };

    Kind kind = Kind::Title;
    /// Also the accessible name of a symbol.
    QString title;
    /// Main queue; null for an indicator.
    std::function<void()> action;
    bool enabled = true;
};

} // namespace guide
