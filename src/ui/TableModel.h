#pragma once

#include "screens/kit/ViewController.h"

#include <QAbstractListModel>
#include <QFont>
#include <QQmlEngine>
#include <QVariantList>

#include <memory>
#include <vector>

namespace guide {

/// A screen's table as one list of rows, for QML. Changes of the table become the smallest changes of the
/// list, so that what is in sight stays where it is.
class TableModel : public QAbstractListModel, private TableObserver {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the page")

    /// How wide the column of the times has to be, in the theme's fonts.
    Q_PROPERTY(double timeColumn READ timeColumn NOTIFY timeColumnChanged)
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY emptyTextsChanged)
    Q_PROPERTY(QString emptyMessage READ emptyMessage NOTIFY emptyTextsChanged)

  public:
    enum Kind { ChannelKind, ShowKind };
    Q_ENUM(Kind)
    enum AccessoryKind { NoAccessory, DisclosureAccessory, PlayAccessory, SpinnerAccessory };
    Q_ENUM(AccessoryKind)

    enum Role {
        KindRole = Qt::UserRole,
        SectionTitleRole,
        TitleRole,
        TitleColorRole,
        MarkRole,
        StartTimeRole,
        StartTimeColorRole,
        EndTimeRole,
        DetailsRole,
        AllDetailsRole,
        IconRole,
        PictureRole,
        HasPictureRole,
        ProgressRole,
        AccessoryRole,
        AccessoryNameRole,
        SelectableRole,
        SelectedRole,
        LastInSectionRole,
        SpokenRole,
        RevisionRole,
    };

    TableModel(std::shared_ptr<ViewController> viewController, QObject* parent);
    ~TableModel() override;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    double timeColumn() const { return m_timeColumn; }
    QString emptyTitle() const;
    QString emptyMessage() const;

    /// The fonts of the time column, anew after a change of the system's text size.
    void measureTimes(const QFont& startFont, const QFont& endFont);

    /// The row to come back to after a change, and where it is then; -1 once it has gone.
    Q_INVOKABLE void keepPlace(int index);
    Q_INVOKABLE int place() const;

    Q_INVOKABLE void tap(int index);
    Q_INVOKABLE void tapAccessory(int index);
    /// What a swipe on the row offers, each with `title`, `name` and `color`; performed by its number, until
    /// the next ones are asked for.
    Q_INVOKABLE QVariantList swipeActions(int index);
    Q_INVOKABLE void performSwipeAction(int action);
    /// The row has come into sight, or says something else while it is.
    Q_INVOKABLE void shown(int index);

  Q_SIGNALS:
    /// Around all that one change of the table brings.
    void aboutToChange();
    void hasChanged();
    void timeColumnChanged();
    void emptyTextsChanged();

  private:
    void tableReloaded() override;
    void rowsInserted(int section, int first, int count) override;
    void rowsRemoved(int section, int first, int count) override;
    void rowsReloaded(int section, int first, int count) override;
    void rowSelectionChanged() override;
    void emptyNoteChanged() override { Q_EMIT emptyTextsChanged(); }

    int flatIndex(int section, int row) const;
    IndexPath pathOf(int index) const;
    void insertFlat(int first, int count, int section);
    void removeFlat(int first, int count, int section);
    void changed(int first, int last, const QList<int>& roles = {});
    void measure();
    QVariant spoken(const Row& row) const;

    const std::shared_ptr<ViewController> m_viewController;
    /// The rows of each section as the list knows them.
    std::vector<int> m_counts;
    int m_total = 0;
    QPersistentModelIndex m_place;
    std::vector<SwipeAction> m_swipeActions;
    int m_revision = 0;
    QFont m_startFont;
    QFont m_endFont;
    double m_timeColumn = 0;
};

} // namespace guide
