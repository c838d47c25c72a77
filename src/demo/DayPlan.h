#pragma once

#include <QString>

#include <vector>

namespace guide {

/// What a channel does with its day.
enum class Character {
    General,
    GeneralWest,
    GeneralEast,
    News,
    Film,
    OldFilm,
    Series,
    Crime,
    Sport,
    Children,
    Music,
    Documentary,
    Hobby,
};

/// A place in a plan: a kind of programme, or "film" for one of the channel's genres.
struct PlannedItem {
    QString kind;
    /// Tells apart what a channel has twice: its second quiz, its late film. From 0 to 8, or kWeeklyOrdinals
    /// and the weekday.
    int ordinal = 0;
    /// What stood in this place of the plan a day ago.
    bool repeat = false;
    /// Again and again until the next fixed time.
    bool filling = false;
};

/// What stands between two fixed times.
struct PlannedStretch {
    /// Minutes after the midnight with which the day began, 360 (six o'clock) and more; the day ends at
    /// 1,800.
    int from = 0;
    std::vector<PlannedItem> items;
};

/// What comes once a week has an ordinal above this one.
inline constexpr int kWeeklyOrdinals = 8;

inline constexpr int kDayBegins = 360;
inline constexpr int kDayEnds = 1800;

/// The day of a channel of this character, from six in the morning to six. `weekday` is 1 for Monday to 7.
std::vector<PlannedStretch> dayPlan(Character character, int weekday);

} // namespace guide
