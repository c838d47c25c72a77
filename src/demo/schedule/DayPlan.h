#pragma once

#include <QString>

#include <vector>

namespace guide {

/// The kind of schedule that a channel has.
enum class ChannelProfile {
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

/// A programme in a plan: its kind, or "film" for one of the channel's genres.
struct PlannedItem {
    QString kind;
    /// Distinguishes programmes of one kind on one channel: its second quiz, its late film. 0 to 8, or
    /// kWeeklyOrdinals plus the weekday.
    int ordinal = 0;
    /// Repeats the programme at this place in the previous day's plan.
    bool repeat = false;
    /// Is repeated until the next fixed time.
    bool filling = false;
};

/// The programmes between two fixed times.
struct PlannedBlock {
    /// Minutes after midnight of the day's date; kDayBegins or more.
    int from = 0;
    std::vector<PlannedItem> items;
};

/// Weekly programmes have an ordinal above this one.
inline constexpr int kWeeklyOrdinals = 8;

inline constexpr int kDayBegins = 360;

/// The plan for a day, from six in the morning to six, on a channel with this profile. `weekday` is 1
/// (Monday) to 7.
std::vector<PlannedBlock> dayPlan(ChannelProfile profile, int weekday);

} // namespace guide
