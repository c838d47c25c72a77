#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace guide {

/// What a colour is for; how it looks in a light and in a dark scheme is the drawing's matter.
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

/// The emphasis of a run of text, with the size that it has at the device's ordinary text size.
enum class TextStyle {
    /// 23 points, semibold, digits of one width.
    Time,
    /// 11 points, digits of one width, raised by 11.
    RaisedTime,
    /// 18 points, bold.
    Title,
    /// 11 points, raised by 7.
    RaisedMark,
    /// 13 points.
    Details,
    /// 20 points, bold.
    ChannelTitle,
};

struct StyledRun {
    QString text;
    TextStyle style = TextStyle::Details;
    ColorRole color = ColorRole::Label;

    friend bool operator==(const StyledRun&, const StyledRun&) = default;
};

/// A text of runs, each with an emphasis and a colour.
struct StyledText {
    std::vector<StyledRun> runs;

    void append(QString text, TextStyle style, ColorRole color);
    bool empty() const { return runs.empty(); }
    /// All runs, one behind the other.
    QString plain() const;
    /// The first run of the style; null when there is none.
    const StyledRun* find(TextStyle style) const;

    friend bool operator==(const StyledText&, const StyledText&) = default;
};

} // namespace guide
