#pragma once

#include <QString>

#include <functional>

namespace guide {

/// A short message at the bottom of the window, usually with a button that undoes what was just done. It
/// closes by itself.
struct Notice {
    QString text;
    /// Empty for no button.
    QString actionTitle = {};
    /// Main queue.
    std::function<void()> action = {};
    /// A notice replaces the one of the same topic, unless the topic is empty.
    QString topic = {};
};

} // namespace guide
