#pragma once

#include <QString>

#include <functional>

namespace guide {

/// One button of the navigation bar; an activity indicator is one that cannot be pressed.
struct BarButton {
    enum class Kind { Title, Refresh, Play, Activity };

    Kind kind = Kind::Title;
    /// What it is called, also where a picture stands for it.
    QString title;
    /// Main queue; null for an activity indicator.
    std::function<void()> action;
};

} // namespace guide
