#include "ui/model/TableModel.h"

#include "text/search/FoldedText.h"
#include "ui/model/Kit.h"
#include "ui/model/RowValues.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <utility>

namespace guide {

namespace {

constexpr double kBetweenTimes = 4;

/// Whether two versions of a row differ at most in what time and loaded pictures change.
bool sameButForTime(const RowContent& one, const RowContent& other) {
    const auto* before = std::get_if<ShowRow>(&one);
    const auto* after = std::get_if<ShowRow>(&other);
    if (!before || !after) {
        return one == other;
    }
    ShowRow same = *before;
    same.day = after->day;
    same.timeColor = after->timeColor;
    same.running = after->running;
    same.progress = after->progress;
    same.picture = after->picture;
    return same == *after;
}

} // namespace

TableModel::TableModel(std::shared_ptr<TableViewController> viewController, const QLocale& locale,
                       QObject* parent)
    : QAbstractListModel(parent)
    , m_viewController(std::move(viewController))
    , m_locale(locale) {
    indexSections();
    measureTimes(0, table().rowCount());
    m_viewController->table().setObserver(this);
}

TableModel::~TableModel() {
    m_viewController->table().setObserver(nullptr);
    hold(false);
}

int TableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : table().rowCount();
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
    if (!isRow(index.row())) {
        return {};
    }
    const Row& row = table().rowAt(index.row());
    switch (role) {
    case KindRole:
        return static_cast<int>(row.kind());
    case SectionRole:
        return sectionValue(index.row());
    case RowRole:
        return rowValue(row, table().selectedRow() == row.id, m_locale);
    default:
        return {};
    }
}

QHash<int, QByteArray> TableModel::roleNames() const {
    return {{KindRole, "kind"}, {SectionRole, "section"}, {RowRole, "row"}};
}

QString TableModel::emptyTitle() const {
    return table().emptyNote() ? table().emptyNote()->title : QString();
}

QString TableModel::emptyMessage() const {
    return table().emptyNote() ? table().emptyNote()->message : QString();
}

QString TableModel::emptyButton() const {
    return table().emptyNote() ? table().emptyNote()->buttonTitle : QString();
}

QVariant TableModel::valueOf(int index, RowKind kind) const {
    return isRow(index) && table().rowAt(index).kind() == kind ? data(this->index(index), RowRole)
                                                               : QVariant();
}

// ---- sections

void TableModel::indexSections() {
    m_starts.assign(1, 0);
    for (const Section& section : table().sections()) {
        m_starts.push_back(m_starts.back() + static_cast<int>(section.rows.size()));
    }
}

QVariant TableModel::sectionValue(int index) const {
    const Section& section = table().sectionAt(index);
    SectionValue value;
    value.header = section.header;
    value.footer = section.footer;
    value.tiles = section.layout == SectionLayout::Tiles;
    // While changes are being announced this is the old place; tableDidChange() announces the new one.
    const auto next = std::ranges::upper_bound(m_starts, index);
    if (next != m_starts.end()) {
        value.place = index - *std::prev(next);
        value.last = index + 1 == *next;
        value.leads = value.first() && !section.rows.empty() &&
                      section.rows.front().kind() != section.rows.back().kind();
    }
    return QVariant::fromValue(value);
}

QStringList TableModel::indexTitles() const {
    QStringList titles;
    for (const Section& section : table().sections()) {
        if (!section.indexTitle.isEmpty() && !section.rows.empty()) {
            titles << section.indexTitle;
        }
    }
    return titles;
}

int TableModel::rowOfIndexTitle(int mark) const {
    const std::vector<Section>& sections = table().sections();
    for (std::size_t number = 0; number < sections.size(); ++number) {
        if (!sections[number].indexTitle.isEmpty() && !sections[number].rows.empty() && mark-- == 0) {
            return m_starts[number];
        }
    }
    return -1;
}

int TableModel::rowStartingWith(const QString& typed, int from) const {
    const QString folded = foldedText(typed);
    const int count = table().rowCount();
    const int first = std::max(from, 0);
    for (int step = 0; step < count && !folded.isEmpty(); ++step) {
        const int index = (first + step) % count;
        const RowContent& content = table().rowAt(index).content;
        const auto* channel = std::get_if<ChannelRow>(&content);
        const auto* tile = std::get_if<TileRow>(&content);
        if ((channel && foldedText(channel->title).startsWith(folded)) ||
            (tile && foldedText(tile->title).startsWith(folded))) {
            return index;
        }
    }
    return -1;
}

// ---- the user's events

void TableModel::send(int index, const RowEvent& event) {
    if (isRow(index)) {
        m_viewController->sendRowEvent(table().rowAt(index).id, event);
    }
}

bool TableModel::canMoveBefore(int index, int next) const {
    if (!isRow(index) || !table().rowAt(index).movable || index == next || index + 1 == next) {
        return false;
    }
    const auto end = std::ranges::upper_bound(m_starts, index);
    return end != m_starts.end() && next >= *std::prev(end) && next <= *end;
}

void TableModel::moveBefore(int index, int next) {
    if (!canMoveBefore(index, next)) {
        return;
    }
    const bool toEnd = !isRow(next) || table().sectionAt(next).id != table().sectionAt(index).id;
    send(index, MovedBefore{toEnd ? std::nullopt : std::optional(table().rowAt(next).id)});
}

QList<RowActionValue> TableModel::actions(int index) {
    m_actions =
        isRow(index) ? m_viewController->rowActions(table().rowAt(index).id) : std::vector<RowAction>();
    m_actionsRow = isRow(index) ? std::optional(table().rowAt(index)) : std::nullopt;
    QList<RowActionValue> actions;
    for (const RowAction& action : m_actions) {
        actions.push_back({action.title, action.name.isEmpty() ? action.title : action.name,
                           static_cast<int>(action.color)});
    }
    return actions;
}

bool TableModel::actionsApply(int index) const {
    return m_actionsRow && isRow(index) && table().rowAt(index).id == m_actionsRow->id &&
           sameButForTime(m_actionsRow->content, table().rowAt(index).content);
}

void TableModel::performAction(int action) {
    const auto chosen = static_cast<std::size_t>(action);
    // A copy: the action may change the rows, and with them what is offered.
    if (const auto perform = chosen < m_actions.size() ? m_actions[chosen].action : nullptr) {
        perform();
    }
}

void TableModel::shown(int index) {
    if (isRow(index)) {
        m_viewController->rowDisplayed(table().rowAt(index).id);
    }
}

// ---- changes

void TableModel::tableWillChange() {
    Q_EMIT aboutToChange();
}

void TableModel::tableDidChange() {
    if (std::exchange(m_structureChanged, false)) {
        indexSections();
        // The places of rows in their sections changed. A view reads only those of visible rows.
        if (table().rowCount() > 0) {
            Q_EMIT dataChanged(index(0), index(table().rowCount() - 1), {SectionRole});
        } else {
            m_longestStart.clear();
            m_longestEnd.clear();
        }
        Q_EMIT sectionsChanged();
    }
    measureColumn();
    Q_EMIT hasChanged();
}

void TableModel::rowsWillBeRemoved(int first, int count) {
    m_structureChanged = true;
    beginRemoveRows({}, first, first + count - 1);
}

void TableModel::rowsRemoved() {
    endRemoveRows();
}

void TableModel::rowWillMove(int from, int to) {
    m_structureChanged = true;
    beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
}

void TableModel::rowMoved() {
    endMoveRows();
}

void TableModel::rowsWillBeInserted(int first, int count) {
    m_structureChanged = true;
    m_insertedFirst = first;
    m_insertedCount = count;
    beginInsertRows({}, first, first + count - 1);
}

void TableModel::rowsInserted() {
    endInsertRows();
    measureTimes(m_insertedFirst, m_insertedCount);
}

void TableModel::rowsUpdated(int first, int count) {
    measureTimes(first, count);
    Q_EMIT dataChanged(index(first), index(first + count - 1), {RowRole});
}

void TableModel::sectionsUpdated(int first, int count) {
    Q_EMIT dataChanged(index(first), index(first + count - 1), {SectionRole});
    Q_EMIT sectionsChanged();
}

void TableModel::rowSelectionChanged(std::optional<int> before, std::optional<int> after) {
    for (const std::optional<int>& row : {before, after}) {
        if (row) {
            Q_EMIT dataChanged(index(*row), index(*row), {RowRole});
        }
    }
}

// ---- the time column

void TableModel::setTimeFonts(const QFont& startFont, const QFont& endFont) {
    m_startFont = startFont;
    m_endFont = endFont;
    measureColumn();
}

// The column grows with new rows and is reset when the table is emptied. Times of one locale have about the
// same length, and a shrinking column would move every title.
void TableModel::measureTimes(int first, int count) {
    const auto keepLonger = [](QString& longest, const QString& text) {
        if (text.size() > longest.size()) {
            longest = text;
        }
    };
    for (int row = first; row < first + count; ++row) {
        if (const auto* show = std::get_if<ShowRow>(&table().rowAt(row).content)) {
            keepLonger(m_longestStart, show->startTime);
            keepLonger(m_longestEnd, show->endTime);
        }
    }
}

void TableModel::measureColumn() {
    const double width = std::ceil(QFontMetricsF(m_startFont).horizontalAdvance(m_longestStart)) +
                         kBetweenTimes + std::ceil(QFontMetricsF(m_endFont).horizontalAdvance(m_longestEnd));
    const double column = m_longestStart.isEmpty() && m_longestEnd.isEmpty() ? 0 : width;
    if (column != m_timeColumn) {
        m_timeColumn = column;
        Q_EMIT timeColumnChanged();
    }
}

} // namespace guide
