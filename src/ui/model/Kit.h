#pragma once

#include "screens/kit/BarButton.h"
#include "screens/kit/ColorRole.h"
#include "screens/kit/Row.h"

#include <QObject>
#include <QQmlEngine>

/// The kit's enumerations under the name `Kit` in QML. Each enumerator takes its value from the kit's, so
/// that the two cannot differ; QML cannot name one that is missing here.
namespace guide::kit {
Q_NAMESPACE
QML_NAMED_ELEMENT(Kit)
Q_CLASSINFO("RegisterEnumClassesUnscoped", "false")

enum class RowKind {
    Show = int(guide::RowKind::Show),
    Channel = int(guide::RowKind::Channel),
    Text = int(guide::RowKind::Text),
    Switch = int(guide::RowKind::Switch),
    Choice = int(guide::RowKind::Choice),
    Time = int(guide::RowKind::Time),
    Input = int(guide::RowKind::Input),
    Button = int(guide::RowKind::Button),
    Progress = int(guide::RowKind::Progress),
    Picture = int(guide::RowKind::Picture),
    Head = int(guide::RowKind::Head),
    Actions = int(guide::RowKind::Actions),
    Paragraph = int(guide::RowKind::Paragraph),
    Tile = int(guide::RowKind::Tile),
    DayBar = int(guide::RowKind::DayBar),
};
Q_ENUM_NS(RowKind)
static_assert(std::size_t(RowKind::DayBar) + 1 == std::variant_size_v<RowContent>);

enum class Accessory {
    None = int(guide::Accessory::None),
    Disclosure = int(guide::Accessory::Disclosure),
    Play = int(guide::Accessory::Play),
    Spinner = int(guide::Accessory::Spinner),
};
Q_ENUM_NS(Accessory)

enum class InputKind {
    Text = int(guide::InputRow::Kind::Text),
    URL = int(guide::InputRow::Kind::URL),
    Password = int(guide::InputRow::Kind::Password),
    Number = int(guide::InputRow::Kind::Number),
};
Q_ENUM_NS(InputKind)

enum class ButtonStyle {
    Plain = int(guide::ButtonRow::Style::Plain),
    Primary = int(guide::ButtonRow::Style::Primary),
    Destructive = int(guide::ButtonRow::Style::Destructive),
};
Q_ENUM_NS(ButtonStyle)

enum class BarButtonKind {
    Title = int(guide::BarButton::Kind::Title),
    Refresh = int(guide::BarButton::Kind::Refresh),
    Play = int(guide::BarButton::Kind::Play),
    Info = int(guide::BarButton::Kind::Info),
    Activity = int(guide::BarButton::Kind::Activity),
    List = int(guide::BarButton::Kind::List),
    Options = int(guide::BarButton::Kind::Options),
};
Q_ENUM_NS(BarButtonKind)

} // namespace guide::kit
