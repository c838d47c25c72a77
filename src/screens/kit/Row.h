#pragma once

#include "screens/kit/ColorRole.h"
#include "screens/kit/PictureKey.h"
#include "screens/kit/RowId.h"
#include "screens/kit/Symbol.h"
#include "text/search/TextMatches.h"

#include <QString>
#include <QTime>

#include <cstddef>
#include <optional>
#include <type_traits>
#include <variant>
#include <vector>

namespace guide {

/// What a row shows at its trailing edge.
enum class Accessory { None, Disclosure, Play, Spinner };

/// One broadcast. Times and day are in the device's locale and zone; empty texts are not drawn.
struct ShowRow {
    /// Below the start time.
    QString day = {};
    QString startTime = {};
    QString endTime = {};
    QString title = {};
    QString details = {};
    /// Whether all lines of the details are shown, rather than the first few.
    bool allDetails = false;
    /// Of the start time: alarm, running, favourite or secondary label.
    ColorRole timeColor = ColorRole::SecondaryLabel;
    bool running = false;
    bool favourite = false;
    bool alarmed = false;
    /// How long before the show its alarm rings, in a list of alarms: a bell and this text at the trailing
    /// edge replace the mark behind the title.
    QString alarmLead = {};
    bool popular = false;
    /// Elapsed share of the show, 0 to 1, while it is running.
    std::optional<double> progress = {};
    /// At the leading edge, in lists of several channels.
    PictureKey channelIcon = {};
    /// Spoken, and drawn in place of an icon that there is not.
    QString channelName = {};
    /// The parts of the title and of the details that were searched for.
    std::vector<TextRange> titleMatches = {};
    std::vector<TextRange> detailsMatches = {};
    /// At the trailing edge.
    PictureKey picture = {};
    Accessory accessory = Accessory::None;

    friend bool operator==(const ShowRow&, const ShowRow&) = default;
};

/// The heading of a channel's shows, or a channel to choose.
struct ChannelRow {
    QString title = {};
    /// For example when the schedule was updated.
    QString subtitle = {};
    PictureKey icon = {};
    bool checked = false;
    Accessory accessory = Accessory::None;

    friend bool operator==(const ChannelRow&, const ChannelRow&) = default;
};

/// Text with an optional icon, check mark and accessory. A disclosure indicator means that a tap opens a
/// screen.
struct TextRow {
    QString title = {};
    QString subtitle = {};
    /// At the trailing edge, in secondary colour.
    QString detail = {};
    ColorRole titleColor = ColorRole::Label;
    bool checked = false;
    Accessory accessory = Accessory::None;
    PictureKey icon = {};
    /// In place of an icon; in the title's colour, unless that is the ordinary one.
    std::optional<Symbol> symbol = {};

    friend bool operator==(const TextRow&, const TextRow&) = default;
};

struct SwitchRow {
    QString title = {};
    QString subtitle = {};
    bool on = false;
    bool enabled = true;

    friend bool operator==(const SwitchRow&, const SwitchRow&) = default;
};

/// One of several choices.
struct ChoiceRow {
    QString title = {};
    std::vector<QString> choices = {};
    std::optional<int> chosen = {};
    bool enabled = true;

    friend bool operator==(const ChoiceRow&, const ChoiceRow&) = default;
};

/// A time of day. A tap opens a time picker.
struct TimeRow {
    QString title = {};
    QTime time = {};
    bool enabled = true;

    friend bool operator==(const TimeRow&, const TimeRow&) = default;
};

/// A text field. While it has the focus, an update replaces its text only with another `revision`.
struct InputRow {
    enum class Kind { Text, URL, Password, Number };

    Kind kind = Kind::Text;
    QString title = {};
    QString text = {};
    QString placeholder = {};
    /// Shown below the field; empty when the text is valid.
    QString error = {};
    bool enabled = true;
    /// Takes the keyboard when the user opens the screen with a keyboard or a pointer.
    bool focusOnOpening = false;
    int revision = 0;

    friend bool operator==(const InputRow&, const InputRow&) = default;
};

struct ButtonRow {
    enum class Style { Plain, Primary, Destructive };

    QString title = {};
    Style style = Style::Plain;
    bool enabled = true;

    friend bool operator==(const ButtonRow&, const ButtonRow&) = default;
};

/// The progress of running work, which is unknown when `fraction` is unset.
struct ProgressRow {
    QString title = {};
    std::optional<double> fraction = {};

    friend bool operator==(const ProgressRow&, const ProgressRow&) = default;
};

/// A picture across the row: the header of a detail page, or a QR code.
struct PictureRow {
    enum class Shape { Wide, Square };

    PictureKey picture = {};
    Shape shape = Shape::Wide;
    /// What the picture shows, for screen readers.
    QString description = {};

    friend bool operator==(const PictureRow&, const PictureRow&) = default;
};

/// The head of a show's page, its first row. Empty texts are not drawn.
struct HeadRow {
    /// 16 to 9, above the texts; nothing is drawn in its place when there is none.
    PictureKey picture = {};
    /// Whether a picture of another shape is shown whole, rather than cut to fill its place.
    bool wholePicture = false;
    QString title = {};
    PictureKey channelIcon = {};
    /// One line, behind the icon.
    QString facts = {};
    /// Whether the show is running, to come soon, or over.
    QString status = {};
    bool running = false;
    /// Elapsed share of the show, 0 to 1, while it is running.
    std::optional<double> progress = {};

    friend bool operator==(const HeadRow&, const HeadRow&) = default;
};

/// The picture on a button of an ActionsRow.
enum class ActionSymbol {
    Favourite,
    Alert,
    Play,
    Trailer,
    Pictures,
    WebPage,
    Broadcasts,
    PastBroadcasts,
    CopyLink,
};

struct ActionButton {
    ActionSymbol symbol = ActionSymbol::Play;
    QString title = {};
    /// Unset for a button that is not a switch.
    std::optional<bool> on = {};
    bool enabled = true;

    friend bool operator==(const ActionButton&, const ActionButton&) = default;
};

/// What can be done with the show of the page, as round buttons.
struct ActionsRow {
    std::vector<ActionButton> buttons = {};

    friend bool operator==(const ActionsRow&, const ActionsRow&) = default;
};

/// Running text in full.
struct ParagraphRow {
    QString text = {};

    friend bool operator==(const ParagraphRow&, const ParagraphRow&) = default;
};

/// A way to other rows, for sections of tiles.
struct TileRow {
    QString title = {};
    /// For example how many rows it leads to.
    QString detail = {};
    Symbol symbol = Symbol::Categories;
    /// Of the tile, in degrees; ui/ derives its colours from it.
    int hue = 0;
    bool enabled = true;

    friend bool operator==(const TileRow&, const TileRow&) = default;
};

/// The 24 hours of a day as a bar on which parts are marked.
struct DayBarRow {
    /// In minutes of the day, from 0 to 1440.
    struct Part {
        int from = 0;
        int to = 0;

        friend bool operator==(const Part&, const Part&) = default;
    };

    std::vector<Part> parts = {};
    /// Of times at equal distances, from the beginning of the day to its end.
    std::vector<QString> scale = {};
    /// What the bar shows, for screen readers.
    QString description = {};

    friend bool operator==(const DayBarRow&, const DayBarRow&) = default;
};

using RowContent =
    std::variant<ShowRow, ChannelRow, TextRow, SwitchRow, ChoiceRow, TimeRow, InputRow, ButtonRow,
                 ProgressRow, PictureRow, HeadRow, ActionsRow, ParagraphRow, TileRow, DayBarRow>;

/// The alternatives of RowContent, in its order.
enum class RowKind {
    Show,
    Channel,
    Text,
    Switch,
    Choice,
    Time,
    Input,
    Button,
    Progress,
    Picture,
    Head,
    Actions,
    Paragraph,
    Tile,
    DayBar
};

/// None for a kind that has no accessory.
inline Accessory accessoryOf(const RowContent& content) {
    return std::visit(
        [](const auto& each) {
            if constexpr (requires { each.accessory; }) {
                return each.accessory;
            } else {
                return Accessory::None;
            }
        },
        content);
}

struct Row {
    RowId id;
    RowContent content = {};
    /// Whether a tap does something.
    bool selectable = false;
    /// With the buttons of edit mode, and with the keyboard at any time.
    bool deletable = false;
    bool movable = false;

    RowKind kind() const { return static_cast<RowKind>(content.index()); }

    friend bool operator==(const Row&, const Row&) = default;
};

template <RowKind kind>
using RowContentOf = std::variant_alternative_t<static_cast<std::size_t>(kind), RowContent>;

static_assert(std::variant_size_v<RowContent> == static_cast<std::size_t>(RowKind::DayBar) + 1);
static_assert(std::is_same_v<RowContentOf<RowKind::Show>, ShowRow> &&
              std::is_same_v<RowContentOf<RowKind::Channel>, ChannelRow> &&
              std::is_same_v<RowContentOf<RowKind::Text>, TextRow> &&
              std::is_same_v<RowContentOf<RowKind::Switch>, SwitchRow> &&
              std::is_same_v<RowContentOf<RowKind::Choice>, ChoiceRow> &&
              std::is_same_v<RowContentOf<RowKind::Time>, TimeRow> &&
              std::is_same_v<RowContentOf<RowKind::Input>, InputRow> &&
              std::is_same_v<RowContentOf<RowKind::Button>, ButtonRow> &&
              std::is_same_v<RowContentOf<RowKind::Progress>, ProgressRow> &&
              std::is_same_v<RowContentOf<RowKind::Picture>, PictureRow> &&
              std::is_same_v<RowContentOf<RowKind::Tile>, TileRow> &&
              std::is_same_v<RowContentOf<RowKind::DayBar>, DayBarRow>);

} // namespace guide
