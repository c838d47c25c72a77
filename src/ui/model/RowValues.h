#pragma once

#include "screens/kit/Row.h"
#include "screens/kit/Table.h"
#include "ui/look/Glyph.h"

#include <QColor>
#include <QList>
#include <QLocale>
#include <QObject>
#include <QQmlEngine>
#include <QStringList>
#include <QUrl>

#include <optional>

namespace guide {

/// What QML sees of a row, whatever its kind: the role `row`. One type per kind adds the fields of the kit's
/// struct. Values are copies, so that a delegate never reads a table that is changing.
struct RowValue {
    Q_GADGET
    Q_PROPERTY(bool selectable MEMBER selectable CONSTANT FINAL)
    Q_PROPERTY(bool selected MEMBER selected CONSTANT FINAL)
    Q_PROPERTY(bool deletable MEMBER deletable CONSTANT FINAL)
    Q_PROPERTY(bool movable MEMBER movable CONSTANT FINAL)
    Q_PROPERTY(QString accessibleName MEMBER accessibleName CONSTANT FINAL)

  public:
    RowValue() = default;
    RowValue(const Row& row, bool isSelected, const QLocale& locale);

    bool selectable = false;
    bool selected = false;
    bool deletable = false;
    bool movable = false;
    QString accessibleName;

    friend bool operator==(const RowValue&, const RowValue&) = default;
};

struct ShowRowValue : RowValue, ShowRow {
    Q_GADGET
    QML_VALUE_TYPE(showRow)
    Q_PROPERTY(QString day MEMBER day CONSTANT FINAL)
    Q_PROPERTY(QString startTime MEMBER startTime CONSTANT FINAL)
    Q_PROPERTY(QString endTime MEMBER endTime CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString details MEMBER details CONSTANT FINAL)
    Q_PROPERTY(bool allDetails MEMBER allDetails CONSTANT FINAL)
    Q_PROPERTY(int timeColor READ timeColorRole CONSTANT FINAL)
    Q_PROPERTY(bool running MEMBER running CONSTANT FINAL)
    Q_PROPERTY(bool favourite MEMBER favourite CONSTANT FINAL)
    Q_PROPERTY(bool alarmed MEMBER alarmed CONSTANT FINAL)
    Q_PROPERTY(QString alarmLead MEMBER alarmLead CONSTANT FINAL)
    Q_PROPERTY(bool popular MEMBER popular CONSTANT FINAL)
    /// -1 while the show is not running.
    Q_PROPERTY(double progress READ shownProgress CONSTANT FINAL)
    Q_PROPERTY(QUrl channelIcon READ channelIconUrl CONSTANT FINAL)
    Q_PROPERTY(QString channelName MEMBER channelName CONSTANT FINAL)
    /// Whether parts of it are marked.
    Q_PROPERTY(bool titleMarked READ titleMarked CONSTANT FINAL)
    Q_PROPERTY(bool detailsMarked READ detailsMarked CONSTANT FINAL)
    Q_PROPERTY(QUrl picture READ pictureUrl CONSTANT FINAL)
    Q_PROPERTY(int accessory READ accessoryKind CONSTANT FINAL)

  public:
    int timeColorRole() const { return static_cast<int>(timeColor); }
    double shownProgress() const { return progress.value_or(-1); }
    QUrl channelIconUrl() const;
    bool titleMarked() const { return !titleMatches.empty(); }
    bool detailsMarked() const { return !detailsMatches.empty(); }
    /// As styled text, with the marked parts bold and in the colour.
    Q_INVOKABLE QString markedTitle(const QColor& color) const;
    Q_INVOKABLE QString markedDetails(const QColor& color) const;
    QUrl pictureUrl() const;
    int accessoryKind() const { return static_cast<int>(accessory); }

    friend bool operator==(const ShowRowValue&, const ShowRowValue&) = default;
};

struct ChannelRowValue : RowValue, ChannelRow {
    Q_GADGET
    QML_VALUE_TYPE(channelRow)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString subtitle MEMBER subtitle CONSTANT FINAL)
    Q_PROPERTY(QUrl icon READ iconUrl CONSTANT FINAL)
    Q_PROPERTY(bool checked MEMBER checked CONSTANT FINAL)
    Q_PROPERTY(int accessory READ accessoryKind CONSTANT FINAL)

  public:
    QUrl iconUrl() const;
    int accessoryKind() const { return static_cast<int>(accessory); }

    friend bool operator==(const ChannelRowValue&, const ChannelRowValue&) = default;
};

struct TextRowValue : RowValue, TextRow {
    Q_GADGET
    QML_VALUE_TYPE(textRow)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString subtitle MEMBER subtitle CONSTANT FINAL)
    Q_PROPERTY(QString detail MEMBER detail CONSTANT FINAL)
    Q_PROPERTY(int titleColor READ titleColorRole CONSTANT FINAL)
    Q_PROPERTY(bool checked MEMBER checked CONSTANT FINAL)
    Q_PROPERTY(int accessory READ accessoryKind CONSTANT FINAL)
    Q_PROPERTY(QUrl icon READ iconUrl CONSTANT FINAL)
    /// A Glyph.Symbol; -1 for none.
    Q_PROPERTY(int symbol READ symbolNumber CONSTANT FINAL)
    /// A colour role.
    Q_PROPERTY(int symbolColor READ symbolColorRole CONSTANT FINAL)

  public:
    int titleColorRole() const { return static_cast<int>(titleColor); }
    int symbolColorRole() const {
        return static_cast<int>(titleColor == ColorRole::Label ? ColorRole::SecondaryLabel : titleColor);
    }
    int accessoryKind() const { return static_cast<int>(accessory); }
    QUrl iconUrl() const;
    int symbolNumber() const { return symbol ? static_cast<int>(*symbol) : -1; }

    friend bool operator==(const TextRowValue&, const TextRowValue&) = default;
};

struct SwitchRowValue : RowValue, SwitchRow {
    Q_GADGET
    QML_VALUE_TYPE(switchRow)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString subtitle MEMBER subtitle CONSTANT FINAL)
    Q_PROPERTY(bool on MEMBER on CONSTANT FINAL)
    Q_PROPERTY(bool enabled MEMBER enabled CONSTANT FINAL)

  public:
    friend bool operator==(const SwitchRowValue&, const SwitchRowValue&) = default;
};

struct ChoiceRowValue : RowValue, ChoiceRow {
    Q_GADGET
    QML_VALUE_TYPE(choiceRow)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QStringList choices READ choiceList CONSTANT FINAL)
    /// -1 for none.
    Q_PROPERTY(int chosen READ chosenIndex CONSTANT FINAL)
    Q_PROPERTY(QString chosenText READ chosenText CONSTANT FINAL)
    Q_PROPERTY(bool enabled MEMBER enabled CONSTANT FINAL)

  public:
    QStringList choiceList() const { return {choices.begin(), choices.end()}; }
    int chosenIndex() const { return chosen.value_or(-1); }
    QString chosenText() const;

    friend bool operator==(const ChoiceRowValue&, const ChoiceRowValue&) = default;
};

struct TimeRowValue : RowValue, TimeRow {
    Q_GADGET
    QML_VALUE_TYPE(timeRow)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString timeText MEMBER timeText CONSTANT FINAL)
    Q_PROPERTY(int hour READ hour CONSTANT FINAL)
    Q_PROPERTY(int minute READ minute CONSTANT FINAL)
    Q_PROPERTY(bool enabled MEMBER enabled CONSTANT FINAL)

  public:
    int hour() const { return time.hour(); }
    int minute() const { return time.minute(); }

    QString timeText;

    friend bool operator==(const TimeRowValue&, const TimeRowValue&) = default;
};

struct InputRowValue : RowValue, InputRow {
    Q_GADGET
    QML_VALUE_TYPE(inputRow)
    Q_PROPERTY(int kind READ inputKind CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString text MEMBER text CONSTANT FINAL)
    Q_PROPERTY(QString placeholder MEMBER placeholder CONSTANT FINAL)
    Q_PROPERTY(QString error MEMBER error CONSTANT FINAL)
    Q_PROPERTY(bool enabled MEMBER enabled CONSTANT FINAL)
    Q_PROPERTY(bool focusOnOpening MEMBER focusOnOpening CONSTANT FINAL)
    Q_PROPERTY(int revision MEMBER revision CONSTANT FINAL)

  public:
    int inputKind() const { return static_cast<int>(kind); }

    friend bool operator==(const InputRowValue&, const InputRowValue&) = default;
};

struct ButtonRowValue : RowValue, ButtonRow {
    Q_GADGET
    QML_VALUE_TYPE(buttonRow)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(int style READ buttonStyle CONSTANT FINAL)
    Q_PROPERTY(bool enabled MEMBER enabled CONSTANT FINAL)

  public:
    int buttonStyle() const { return static_cast<int>(style); }

    friend bool operator==(const ButtonRowValue&, const ButtonRowValue&) = default;
};

struct ProgressRowValue : RowValue, ProgressRow {
    Q_GADGET
    QML_VALUE_TYPE(progressRow)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    /// -1 while unknown.
    Q_PROPERTY(double fraction READ shownFraction CONSTANT FINAL)

  public:
    double shownFraction() const { return fraction.value_or(-1); }

    friend bool operator==(const ProgressRowValue&, const ProgressRowValue&) = default;
};

struct PictureRowValue : RowValue, PictureRow {
    Q_GADGET
    QML_VALUE_TYPE(pictureRow)
    Q_PROPERTY(QUrl picture READ pictureUrl CONSTANT FINAL)
    Q_PROPERTY(bool square READ square CONSTANT FINAL)
    Q_PROPERTY(QString description MEMBER description CONSTANT FINAL)

  public:
    QUrl pictureUrl() const;
    bool square() const { return shape == Shape::Square; }

    friend bool operator==(const PictureRowValue&, const PictureRowValue&) = default;
};

struct HeadRowValue : RowValue, HeadRow {
    Q_GADGET
    QML_VALUE_TYPE(headRow)
    Q_PROPERTY(QUrl picture READ pictureUrl CONSTANT FINAL)
    Q_PROPERTY(bool wholePicture MEMBER wholePicture CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QUrl channelIcon READ channelIconUrl CONSTANT FINAL)
    Q_PROPERTY(QString facts MEMBER facts CONSTANT FINAL)
    Q_PROPERTY(QString status MEMBER status CONSTANT FINAL)
    Q_PROPERTY(bool running MEMBER running CONSTANT FINAL)
    /// -1 while the show is not running.
    Q_PROPERTY(double progress READ shownProgress CONSTANT FINAL)

  public:
    QUrl pictureUrl() const;
    QUrl channelIconUrl() const;
    double shownProgress() const { return progress.value_or(-1); }

    friend bool operator==(const HeadRowValue&, const HeadRowValue&) = default;
};

struct ActionButtonValue : ActionButton {
    Q_GADGET
    QML_VALUE_TYPE(actionButton)
    Q_PROPERTY(int glyph READ glyph CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(bool checkable READ checkable CONSTANT FINAL)
    Q_PROPERTY(bool on READ isOn CONSTANT FINAL)
    Q_PROPERTY(bool enabled MEMBER enabled CONSTANT FINAL)

  public:
    Glyph::Symbol glyph() const;
    bool checkable() const { return on.has_value(); }
    bool isOn() const { return on.value_or(false); }

    friend bool operator==(const ActionButtonValue&, const ActionButtonValue&) = default;
};

struct ActionsRowValue : RowValue, ActionsRow {
    Q_GADGET
    QML_VALUE_TYPE(actionsRow)
    Q_PROPERTY(QList<guide::ActionButtonValue> buttons READ buttonList CONSTANT FINAL)

  public:
    QList<ActionButtonValue> buttonList() const;

    friend bool operator==(const ActionsRowValue&, const ActionsRowValue&) = default;
};

struct ParagraphRowValue : RowValue, ParagraphRow {
    Q_GADGET
    QML_VALUE_TYPE(paragraphRow)
    Q_PROPERTY(QString text MEMBER text CONSTANT FINAL)

  public:
    friend bool operator==(const ParagraphRowValue&, const ParagraphRowValue&) = default;
};

struct TileRowValue : RowValue, TileRow {
    Q_GADGET
    QML_VALUE_TYPE(tileRow)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString detail MEMBER detail CONSTANT FINAL)
    /// A Glyph.Symbol.
    Q_PROPERTY(int symbol READ symbolNumber CONSTANT FINAL)
    Q_PROPERTY(int hue MEMBER hue CONSTANT FINAL)
    Q_PROPERTY(bool enabled MEMBER enabled CONSTANT FINAL)

  public:
    int symbolNumber() const { return static_cast<int>(symbol); }

    friend bool operator==(const TileRowValue&, const TileRowValue&) = default;
};

struct DayBarRowValue : RowValue, DayBarRow {
    Q_GADGET
    QML_VALUE_TYPE(dayBarRow)
    /// Of each marked part the begin and the end, as shares of the day.
    Q_PROPERTY(QList<double> edges READ edges CONSTANT FINAL)
    Q_PROPERTY(QStringList scale READ scaleList CONSTANT FINAL)

  public:
    QList<double> edges() const;
    QStringList scaleList() const { return {scale.begin(), scale.end()}; }

    friend bool operator==(const DayBarRowValue&, const DayBarRowValue&) = default;
};

/// A row's section and the row's place in it: the role `section`.
struct SectionValue {
    Q_GADGET
    QML_VALUE_TYPE(tableSection)
    Q_PROPERTY(QString header MEMBER header CONSTANT FINAL)
    Q_PROPERTY(QString footer MEMBER footer CONSTANT FINAL)
    Q_PROPERTY(bool tiles MEMBER tiles CONSTANT FINAL)
    /// The row's number within the section.
    Q_PROPERTY(int place MEMBER place CONSTANT FINAL)
    Q_PROPERTY(bool first READ first CONSTANT FINAL)
    Q_PROPERTY(bool last MEMBER last CONSTANT FINAL)
    /// Whether it is the first row, and rows of another kind follow.
    Q_PROPERTY(bool leads MEMBER leads CONSTANT FINAL)

  public:
    bool first() const { return place == 0; }

    QString header;
    QString footer;
    bool tiles = false;
    int place = 0;
    bool last = true;
    bool leads = false;

    friend bool operator==(const SectionValue&, const SectionValue&) = default;
};

/// The row as the value type of its kind.
QVariant rowValue(const Row& row, bool selected, const QLocale& locale);

} // namespace guide
