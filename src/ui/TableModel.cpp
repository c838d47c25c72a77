#include "ui/TableModel.h"

#include "screens/Localized.h"

#include <QFontMetricsF>
#include <QImage>
#include <QStringList>
#include <QVariantMap>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr double kBetweenTimes = 4;

QString textOf(const StyledText& text, TextStyle style) {
    const StyledRun* run = text.find(style);
    return run ? run->text.trimmed() : QString();
}

ColorRole colorOf(const StyledText& text, TextStyle style) {
    const StyledRun* run = text.find(style);
    return run ? run->color : ColorRole::Label;
}

} // namespace

TableModel::TableModel(std::shared_ptr<ViewController> viewController, QObject* parent)
    : QAbstractListModel(parent)
    , m_viewController(std::move(viewController)) {
    for (const Section& section : m_viewController->table().sections()) {
        m_counts.push_back(static_cast<int>(section.rows.size()));
    }
    m_total = std::accumulate(m_counts.begin(), m_counts.end(), 0);
    m_viewController->table().setObserver(this);
}

TableModel::~TableModel() {
    m_viewController->table().setObserver(nullptr);
}

int TableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_total;
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
    const IndexPath path = pathOf(index.row());
    const Row* row = m_viewController->table().row(path);
    if (!row) {
        return {};
    }
    const TextStyle mainStyle = row->kind == RowKind::Channel ? TextStyle::ChannelTitle : TextStyle::Title;
    switch (role) {
    case KindRole:
        return row->kind == RowKind::Channel ? ChannelKind : ShowKind;
    case SectionTitleRole:
        return m_viewController->table().sections()[static_cast<std::size_t>(path.section)].title;
    case TitleRole:
        return textOf(row->text, mainStyle);
    case TitleColorRole:
        return static_cast<int>(colorOf(row->text, mainStyle));
    case MarkRole:
        return textOf(row->text, TextStyle::RaisedMark);
    case StartTimeRole:
        return textOf(row->text, TextStyle::Time);
    case StartTimeColorRole:
        return static_cast<int>(colorOf(row->text, TextStyle::Time));
    case EndTimeRole:
        return textOf(row->endTime, TextStyle::RaisedTime);
    case DetailsRole:
        return row->details.plain();
    case AllDetailsRole:
        return row->allDetails;
    case IconRole:
        return row->icon;
    case PictureRole:
        return row->picture;
    case HasPictureRole:
        return row->picture.width() > 0;
    case ProgressRole:
        return row->progress.value_or(-1);
    case AccessoryRole:
        return static_cast<int>(row->accessory);
    case AccessoryNameRole:
        return row->accessory == Accessory::Play ? Localized::tr("Play") : QString();
    case SelectableRole:
        return row->selectable;
    case SelectedRole:
        return m_viewController->table().selectedRow() == path;
    case LastInSectionRole:
        return path.row + 1 == m_viewController->table().rowCount(path.section);
    case SpokenRole:
        return spoken(*row);
    case RevisionRole:
        return m_revision;
    default:
        return {};
    }
}

QHash<int, QByteArray> TableModel::roleNames() const {
    return {{KindRole, "kind"},
            {SectionTitleRole, "sectionTitle"},
            {TitleRole, "title"},
            {TitleColorRole, "titleColor"},
            {MarkRole, "mark"},
            {StartTimeRole, "startTime"},
            {StartTimeColorRole, "startTimeColor"},
            {EndTimeRole, "endTime"},
            {DetailsRole, "details"},
            {AllDetailsRole, "allDetails"},
            {IconRole, "icon"},
            {PictureRole, "picture"},
            {HasPictureRole, "hasPicture"},
            {ProgressRole, "progress"},
            {AccessoryRole, "accessory"},
            {AccessoryNameRole, "accessoryName"},
            {SelectableRole, "selectable"},
            {SelectedRole, "selected"},
            {LastInSectionRole, "lastInSection"},
            {SpokenRole, "spoken"},
            {RevisionRole, "revision"}};
}

QVariant TableModel::spoken(const Row& row) const {
    QStringList parts;
    const QString start = textOf(row.text, TextStyle::Time);
    const QString end = textOf(row.endTime, TextStyle::RaisedTime);
    if (!start.isEmpty()) {
        parts << (end.isEmpty() ? start : start + u'–' + end);
    }
    parts << textOf(row.text, row.kind == RowKind::Channel ? TextStyle::ChannelTitle : TextStyle::Title)
          << row.spokenState << row.details.plain();
    parts.removeAll(QString());
    return parts.join(", "_L1);
}

QString TableModel::emptyTitle() const {
    const auto& note = m_viewController->table().emptyNote();
    return note ? note->title : QString();
}

QString TableModel::emptyMessage() const {
    const auto& note = m_viewController->table().emptyNote();
    return note ? note->message : QString();
}

void TableModel::keepPlace(int index) {
    m_place = index < 0 ? QModelIndex() : this->index(index);
}

int TableModel::place() const {
    return m_place.isValid() ? m_place.row() : -1;
}

void TableModel::tap(int index) {
    m_viewController->tapRow(pathOf(index));
}

void TableModel::tapAccessory(int index) {
    m_viewController->tapAccessory(pathOf(index));
}

QVariantList TableModel::swipeActions(int index) {
    m_swipeActions = m_viewController->swipeActions(pathOf(index));
    QVariantList actions;
    for (const SwipeAction& action : m_swipeActions) {
        actions << QVariantMap{{u"title"_s, action.title},
                               {u"name"_s, action.name.isEmpty() ? action.title : action.name},
                               {u"color"_s, static_cast<int>(action.color)}};
    }
    return actions;
}

void TableModel::performSwipeAction(int action) {
    const auto chosen = static_cast<std::size_t>(action);
    // A copy: the action may change the rows, and with them what is offered.
    if (const auto perform = chosen < m_swipeActions.size() ? m_swipeActions[chosen].action : nullptr) {
        perform();
    }
}

void TableModel::shown(int index) {
    m_viewController->willDisplayRow(pathOf(index));
}

// ---- places

int TableModel::flatIndex(int section, int row) const {
    return std::accumulate(m_counts.begin(), m_counts.begin() + section, row);
}

IndexPath TableModel::pathOf(int index) const {
    IndexPath path{0, index};
    for (const int count : m_counts) {
        if (path.row < count) {
            break;
        }
        path.row -= count;
        ++path.section;
    }
    return path;
}

// ---- changes

void TableModel::tableReloaded() {
    Q_EMIT aboutToChange();
    const std::vector<Section>& sections = m_viewController->table().sections();
    // What was there stays where it is and is drawn anew; only ends of sections and whole sections come and
    // go.
    while (m_counts.size() > sections.size()) {
        const int gone = m_counts.back();
        removeFlat(m_total - gone, gone, static_cast<int>(m_counts.size()) - 1);
        m_counts.pop_back();
    }
    const int kept = m_total;
    for (std::size_t index = 0; index < sections.size(); ++index) {
        const int section = static_cast<int>(index);
        const int wanted = static_cast<int>(sections[index].rows.size());
        if (index == m_counts.size()) {
            m_counts.push_back(0);
        }
        const int known = m_counts[index];
        if (wanted > known) {
            insertFlat(flatIndex(section, known), wanted - known, section);
        } else if (wanted < known) {
            removeFlat(flatIndex(section, wanted), known - wanted, section);
        }
    }
    if (kept > 0 && m_total > 0) {
        changed(0, m_total - 1);
    }
    measure();
    Q_EMIT hasChanged();
}

void TableModel::rowsInserted(int section, int first, int count) {
    Q_EMIT aboutToChange();
    const int at = flatIndex(section, first);
    insertFlat(at, count, section);
    if (first > 0) {
        changed(at - 1, at - 1, {LastInSectionRole});
    }
    measure();
    Q_EMIT hasChanged();
}

void TableModel::rowsRemoved(int section, int first, int count) {
    Q_EMIT aboutToChange();
    const int at = flatIndex(section, first);
    removeFlat(at, count, section);
    if (first > 0) {
        changed(at - 1, at - 1, {LastInSectionRole});
    }
    Q_EMIT hasChanged();
}

void TableModel::rowsReloaded(int section, int first, int count) {
    Q_EMIT aboutToChange();
    const int at = flatIndex(section, first);
    changed(at, at + count - 1);
    measure();
    Q_EMIT hasChanged();
}

void TableModel::rowSelectionChanged() {
    if (m_total > 0) {
        changed(0, m_total - 1, {SelectedRole});
    }
}

void TableModel::insertFlat(int first, int count, int section) {
    if (count > 0) {
        beginInsertRows({}, first, first + count - 1);
        m_counts[static_cast<std::size_t>(section)] += count;
        m_total += count;
        endInsertRows();
    }
}

void TableModel::removeFlat(int first, int count, int section) {
    if (count > 0) {
        beginRemoveRows({}, first, first + count - 1);
        m_counts[static_cast<std::size_t>(section)] -= count;
        m_total -= count;
        endRemoveRows();
    }
}

void TableModel::changed(int first, int last, const QList<int>& roles) {
    m_revision += roles.isEmpty() ? 1 : 0;
    Q_EMIT dataChanged(index(first), index(last), roles);
}

// ---- the column of the times

void TableModel::measureTimes(const QFont& startFont, const QFont& endFont) {
    m_startFont = startFont;
    m_endFont = endFont;
    measure();
}

void TableModel::measure() {
    // Digits are of one width, so that the longest text is the widest.
    QString start;
    QString end;
    const auto longer = [](QString& longest, const StyledText& text, TextStyle style) {
        const StyledRun* run = text.find(style);
        if (run && run->text.size() > longest.size()) {
            longest = run->text;
        }
    };
    for (const Section& section : m_viewController->table().sections()) {
        for (const Row& row : section.rows) {
            longer(start, row.text, TextStyle::Time);
            longer(end, row.endTime, TextStyle::RaisedTime);
        }
    }
    const double width = std::ceil(QFontMetricsF(m_startFont).horizontalAdvance(start)) + kBetweenTimes +
                         std::ceil(QFontMetricsF(m_endFont).horizontalAdvance(end));
    const double column = start.isEmpty() && end.isEmpty() ? 0 : width;
    if (column != m_timeColumn) {
        m_timeColumn = column;
        Q_EMIT timeColumnChanged();
    }
}

} // namespace guide
