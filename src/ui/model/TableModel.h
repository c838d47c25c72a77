#pragma once

#include "screens/kit/TableViewController.h"

#include <QAbstractListModel>
#include <QFont>
#include <QLocale>
#include <QQmlEngine>
#include <QStringList>

#include <memory>
#include <vector>

namespace guide {

/// An action on a row, for QML.
struct RowActionValue {
    Q_GADGET
    QML_VALUE_TYPE(rowAction)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    /// The title in words.
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
    /// A colour role.
    Q_PROPERTY(int color MEMBER color CONSTANT FINAL)

  public:
    QString title;
    QString name;
    int color = 0;
};

/// A screen's table as one list of rows, for QML. The changes that the table announces become changes of the
/// list one by one.
class TableModel : public QAbstractListModel, private TableObserver {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the page")

    /// The width that the show rows' times need, in the theme's fonts.
    Q_PROPERTY(double timeColumn READ timeColumn NOTIFY timeColumnChanged)
    Q_PROPERTY(bool editing READ editing NOTIFY editingUpdated)
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY emptyNoteUpdated)
    Q_PROPERTY(QString emptyMessage READ emptyMessage NOTIFY emptyNoteUpdated)
    /// Empty for no button.
    Q_PROPERTY(QString emptyButton READ emptyButton NOTIFY emptyNoteUpdated)
    /// The value of the first row, and of the second one, of a show's page: its head and its actions.
    /// Undefined for other pages.
    Q_PROPERTY(QVariant head READ head NOTIFY hasChanged)
    Q_PROPERTY(QVariant headActions READ headActions NOTIFY hasChanged)
    /// The marks of the index strip, one per section that has one.
    Q_PROPERTY(QStringList indexTitles READ indexTitles NOTIFY sectionsChanged)

  public:
    enum Role {
        /// A Kit.RowKind.
        KindRole = Qt::UserRole,
        /// A SectionValue.
        SectionRole,
        /// The value type of the row's kind.
        RowRole,
    };

    TableModel(std::shared_ptr<TableViewController> viewController, const QLocale& locale, QObject* parent);
    ~TableModel() override;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    double timeColumn() const { return m_timeColumn; }
    bool editing() const { return table().editing(); }
    QString emptyTitle() const;
    QString emptyMessage() const;
    QString emptyButton() const;
    QVariant head() const { return valueOf(0, RowKind::Head); }
    QVariant headActions() const { return valueOf(1, RowKind::Actions); }
    QStringList indexTitles() const;

    /// -1 when there is no such row.
    int indexOf(const RowId& id) const { return table().indexOf(id).value_or(-1); }

    /// The fonts of the time column, again after each change of the text size.
    void setTimeFonts(const QFont& startFont, const QFont& endFont);

    // ---- the user's events; indexes without a row are ignored

    Q_INVOKABLE void tap(int index, bool extending = false) { send(index, Tapped{extending}); }
    Q_INVOKABLE void tapAccessory(int index) { send(index, AccessoryTapped{}); }
    Q_INVOKABLE void toggle(int index, bool on) { send(index, Toggled{on}); }
    Q_INVOKABLE void choose(int index, int choice) { send(index, Chosen{choice}); }
    Q_INVOKABLE void pickTime(int index, int hour, int minute) {
        send(index, TimePicked{QTime(hour, minute)});
    }
    Q_INVOKABLE void edit(int index, const QString& text, bool finished) {
        send(index, TextEdited{text, finished});
    }
    Q_INVOKABLE void remove(int index) { send(index, Deleted{}); }
    /// By Enter.
    Q_INVOKABLE void enter(int index, const QString& text) { send(index, TextEdited{text, true, true}); }
    /// Moves a row before the one at `next`, an index before the move. Possible when both are rows of one
    /// section, or `next` is just past its end.
    Q_INVOKABLE bool canMoveBefore(int index, int next) const;
    Q_INVOKABLE void moveBefore(int index, int next);

    /// The actions on the row. performAction() takes an index into the latest answer.
    Q_INVOKABLE QList<guide::RowActionValue> actions(int index);
    Q_INVOKABLE void performAction(int action);
    /// Whether the latest actions() are for this row, and nothing but what time changes has changed in it.
    Q_INVOKABLE bool actionsApply(int index) const;
    /// While the user touches the list, its rows stay where they are.
    Q_INVOKABLE void hold(bool held) { m_viewController->table().setHeld(held); }
    Q_INVOKABLE bool selectAll() { return m_viewController->selectAll(); }
    Q_INVOKABLE void pressEmptyButton() { m_viewController->pressEmptyNoteButton(); }
    /// The row became visible, or changed while visible.
    Q_INVOKABLE void shown(int index);

    /// The first row from `from` on, and then from the beginning, whose name begins with the text, ignoring
    /// case and diacritics; -1 when there is none. Only channels and tiles are found by their names.
    Q_INVOKABLE int rowStartingWith(const QString& typed, int from) const;
    /// The first row of the section with that mark of the index strip.
    Q_INVOKABLE int rowOfIndexTitle(int mark) const;

  Q_SIGNALS:
    /// Emitted before and after all changes that belong together.
    void aboutToChange();
    void hasChanged();
    void timeColumnChanged();
    void emptyNoteUpdated();
    void editingUpdated();
    void sectionsChanged();

  private:
    void tableWillChange() override;
    void tableDidChange() override;
    void rowsWillBeRemoved(int first, int count) override;
    void rowsRemoved() override;
    void rowWillMove(int from, int to) override;
    void rowMoved() override;
    void rowsWillBeInserted(int first, int count) override;
    void rowsInserted() override;
    void rowsUpdated(int first, int count) override;
    void sectionsUpdated(int first, int count) override;
    void rowSelectionChanged(std::optional<int> before, std::optional<int> after) override;
    void emptyNoteChanged() override { Q_EMIT emptyNoteUpdated(); }
    void editingChanged() override { Q_EMIT editingUpdated(); }

    const Table& table() const { return m_viewController->table(); }
    bool isRow(int index) const { return index >= 0 && index < table().rowCount(); }
    void send(int index, const RowEvent& event);
    QVariant sectionValue(int index) const;
    /// Unset unless the row has the kind.
    QVariant valueOf(int index, RowKind kind) const;
    void indexSections();
    void measureTimes(int first, int count);
    void measureColumn();

    const std::shared_ptr<TableViewController> m_viewController;
    const QLocale m_locale;
    /// The index of the first row of each section, then the number of all rows.
    std::vector<int> m_starts;
    bool m_structureChanged = false;
    int m_insertedFirst = 0;
    int m_insertedCount = 0;
    std::vector<RowAction> m_actions;
    /// The row that they are for, as it was then.
    std::optional<Row> m_actionsRow;
    /// The longest times so far. Digits have equal widths, so the longest text is the widest.
    QString m_longestStart;
    QString m_longestEnd;
    QFont m_startFont;
    QFont m_endFont;
    double m_timeColumn = 0;
};

} // namespace guide
