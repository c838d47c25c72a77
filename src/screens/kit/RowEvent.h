#pragma once

#include "screens/kit/RowId.h"

#include <QString>
#include <QTime>

#include <optional>
#include <variant>

namespace guide {

struct Tapped {
    /// Together with the rows since the last tap: with Shift.
    bool extending = false;
};
struct AccessoryTapped {};
/// Of a SwitchRow.
struct Toggled {
    bool on = false;
};
/// Of a ChoiceRow or an ActionsRow: the index of the choice or the button.
struct Chosen {
    int choice = 0;
};
/// Of a TimeRow.
struct TimePicked {
    QTime time;
};
/// Of an InputRow: at each change, and once more with `finished` when the field is left or Enter is pressed.
struct TextEdited {
    QString text;
    bool finished = false;
    /// Enter was pressed.
    bool entered = false;
};
/// By the button of edit mode or the Delete key.
struct Deleted {};
/// By the handle of edit mode or the keyboard: the row moves before `next`, or to the end of its section when
/// unset.
struct MovedBefore {
    std::optional<RowId> next;
};

using RowEvent =
    std::variant<Tapped, AccessoryTapped, Toggled, Chosen, TimePicked, TextEdited, Deleted, MovedBefore>;

} // namespace guide
