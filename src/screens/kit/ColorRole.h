#pragma once

namespace guide {

/// What a colour is for. ui/ holds a light and a dark value of each.
enum class ColorRole {
    Label,
    SecondaryLabel,
    Background,
    GroupedBackground,
    Tint,
    /// A show that is on now.
    Running,
    Favourite,
    Alarm,
    /// The day above its shows.
    Heading,
};

} // namespace guide
