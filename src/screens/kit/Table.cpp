#include "screens/kit/Table.h"

#include "screens/kit/TableChanges.h"

#include <QDebug>

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace guide {

namespace {

bool sameRow(const Row& one, const Row& other) {
    return one.kind() == other.kind() && one.id == other.id;
}

// For two versions of the same row.
bool sameContent(const Row& one, const Row& other) {
    return one.selectable == other.selectable && one.deletable == other.deletable &&
           one.movable == other.movable && one.content == other.content;
}

bool sameHeading(const Section& one, const Section& other) {
    return one.header == other.header && one.footer == other.footer && one.indexTitle == other.indexTitle &&
           one.layout == other.layout;
}

} // namespace

/// Announces the steps of one change between tableWillChange and tableDidChange.
class Table::Announcement {
  public:
    explicit Announcement(Table& table)
        : m_table(table) {}
    Announcement(const Announcement&) = delete;
    Announcement& operator=(const Announcement&) = delete;
    ~Announcement() {
        if (m_begun && m_table.m_observer) {
            m_table.m_observer->tableDidChange();
        }
    }

    /// To be called before the table changes.
    void begin() {
        if (!std::exchange(m_begun, true) && m_table.m_observer) {
            m_table.m_observer->tableWillChange();
        }
    }
    template <class... Parameters, class... Args>
    void tell(void (TableObserver::*step)(Parameters...), Args... args) {
        begin();
        if (m_table.m_observer) {
            (m_table.m_observer->*step)(args...);
        }
    }

  private:
    Table& m_table;
    bool m_begun = false;
};

// ---- rows by their ids

const RowIndex& Table::index() const {
    if (m_index.empty()) {
        m_index.reserve(m_lines.size());
        for (int place = 0; place < rowCount(); ++place) {
            m_index.insert(place, [this](int each) -> const RowId& { return idAt(each); });
        }
    }
    return m_index;
}

std::optional<int> Table::indexOf(const RowId& id) const {
    if (m_changing && m_index.empty()) {
        const auto found = std::find_if(m_lines.begin(), m_lines.end(),
                                        [&id](const Line& each) { return each.row->id == id; });
        return found == m_lines.end() ? std::nullopt
                                      : std::optional(static_cast<int>(found - m_lines.begin()));
    }
    return index().find(id, [this](int place) -> const RowId& { return idAt(place); });
}

const Row* Table::find(const RowId& id) const {
    const std::optional<int> place = indexOf(id);
    return place ? &rowAt(*place) : nullptr;
}

// ---- changes

const std::vector<Section>& Table::latestSections() const {
    return m_waiting ? *m_waiting : m_afterHold ? *m_afterHold : m_sections;
}

void Table::setSections(std::vector<Section> sections) {
    m_waiting = std::move(sections);
    if (m_changing) {
        return;
    }
    m_changing = true;
    while (m_waiting) {
        changeTo(showableNow(*std::exchange(m_waiting, std::nullopt)));
    }
    m_changing = false;
}

void Table::setHeld(bool held) {
    m_held = held;
    if (!held && m_afterHold && !m_waiting) {
        setSections(*std::exchange(m_afterHold, std::nullopt));
    }
}

std::vector<Section> Table::showableNow(std::vector<Section> sections) {
    m_afterHold.reset();
    if (!m_held || m_lines.empty()) {
        return sections;
    }
    const std::vector<Line> lines = linesOf(sections);
    if (std::ranges::equal(lines, m_lines, [](const Line& one, const Line& other) {
            return sameRow(*one.row, *other.row);
        })) {
        return sections;
    }
    std::unordered_map<RowId, const Row*> rows;
    rows.reserve(lines.size());
    for (const Line& line : lines) {
        rows.emplace(line.row->id, line.row);
    }
    std::vector<Section> shown = m_sections;
    for (Section& section : shown) {
        for (Row& row : section.rows) {
            const auto latest = rows.find(row.id);
            if (latest != rows.end() && sameRow(*latest->second, row)) {
                row = *latest->second;
            }
        }
    }
    m_afterHold = std::move(sections);
    return shown;
}

void Table::setRows(const SectionId& section, std::vector<Row> rows) {
    std::vector<Section> sections = latestSections();
    const auto found = std::find_if(sections.begin(), sections.end(),
                                    [&section](const Section& each) { return each.id == section; });
    if (found != sections.end()) {
        found->rows = std::move(rows);
        setSections(std::move(sections));
    }
}

void Table::setRow(Row row) {
    if (!m_changing && !m_afterHold) {
        const std::optional<int> place = indexOf(row.id);
        if (!place) {
            return;
        }
        if (rowAt(*place).kind() == row.kind()) {
            if (!sameContent(rowAt(*place), row)) {
                m_changing = true;
                updateLine(*place, std::move(row));
                m_changing = false;
                if (m_waiting) {
                    setSections(*std::exchange(m_waiting, std::nullopt));
                }
            }
            return;
        }
    }
    std::vector<Section> sections = latestSections();
    for (Section& section : sections) {
        for (Row& each : section.rows) {
            if (each.id == row.id) {
                each = std::move(row);
                setSections(std::move(sections));
                return;
            }
        }
    }
}

void Table::updateLine(int place, Row row) {
    Announcement announcement(*this);
    announcement.begin();
    *line(place).row = std::move(row);
    announcement.tell(&TableObserver::rowsUpdated, place, 1);
}

std::vector<Table::Line> Table::linesOf(std::vector<Section>& sections) {
    std::size_t count = 0;
    for (const Section& section : sections) {
        count += section.rows.size();
    }
    std::vector<Line> lines;
    lines.reserve(count);
    for (Section& section : sections) {
        for (Row& row : section.rows) {
            lines.push_back({&section, &row});
        }
    }
    return lines;
}

bool Table::dropDuplicates(std::vector<Section>& sections, const std::vector<Line>& lines, RowIndex& index) {
    index.reserve(lines.size());
    std::unordered_set<const Row*> duplicates;
    for (std::size_t place = 0; place < lines.size(); ++place) {
        if (index.insert(static_cast<int>(place), [&lines](int each) -> const RowId& {
                return lines[static_cast<std::size_t>(each)].row->id;
            })) {
            duplicates.insert(lines[place].row);
        }
    }
    if (duplicates.empty()) {
        return false;
    }
    qWarning() << "Table: dropped" << duplicates.size() << "rows whose ids occur twice";
    for (Section& section : sections) {
        std::erase_if(section.rows, [&duplicates](const Row& row) { return duplicates.contains(&row); });
    }
    return true;
}

Table::CommonEnds Table::commonEnds(const std::vector<Line>& lines) const {
    CommonEnds ends;
    const std::size_t most = std::min(m_lines.size(), lines.size());
    std::size_t prefix = 0;
    ends.updated.reserve(most);
    while (prefix < most && sameRow(*m_lines[prefix].row, *lines[prefix].row)) {
        ends.updated.push_back(!sameContent(*m_lines[prefix].row, *lines[prefix].row));
        ++prefix;
    }
    std::size_t suffix = 0;
    while (prefix + suffix < most &&
           sameRow(*m_lines[m_lines.size() - 1 - suffix].row, *lines[lines.size() - 1 - suffix].row)) {
        ++suffix;
    }
    ends.prefix = static_cast<int>(prefix);
    ends.suffix = static_cast<int>(suffix);
    return ends;
}

void Table::changeTo(std::vector<Section> sections) {
    std::vector<Line> lines = linesOf(sections);
    RowIndex index;
    CommonEnds ends = commonEnds(lines);
    // When every row matches an old one, the ids are unique like the old ones.
    const bool allMatch = ends.prefix + ends.suffix == static_cast<int>(lines.size());
    if (!allMatch && dropDuplicates(sections, lines, index)) {
        lines = linesOf(sections);
        index.clear();
        ends = commonEnds(lines);
    }
    // Keeps the old rows alive while lines still point to them.
    const std::vector<Section> old = std::exchange(m_sections, std::move(sections));
    follow(lines, std::move(index), ends);
}

TableChanges Table::changesTo(const std::vector<Line>& lines, const CommonEnds& ends) const {
    const int oldCount = rowCount() - ends.prefix - ends.suffix;
    std::vector<int> oldPlaces(lines.size() - static_cast<std::size_t>(ends.prefix + ends.suffix), -1);
    if (oldCount > 0 && !oldPlaces.empty()) {
        const RowIndex& known = index();
        for (std::size_t place = 0; place < oldPlaces.size(); ++place) {
            const Row& row = *lines[place + static_cast<std::size_t>(ends.prefix)].row;
            const auto old = known.find(row.id, [this](int each) -> const RowId& { return idAt(each); });
            if (old && sameRow(rowAt(*old), row)) {
                oldPlaces[place] = *old - ends.prefix;
            }
        }
    }
    return tableChanges(oldCount, std::move(oldPlaces));
}

void Table::follow(const std::vector<Line>& lines, RowIndex index, const CommonEnds& ends) {
    Announcement announcement(*this);
    const bool sameRows =
        lines.size() == m_lines.size() && static_cast<std::size_t>(ends.prefix) == lines.size();
    if (!sameRows) {
        const TableChanges changes = changesTo(lines, ends);
        m_index.clear();
        apply(changes, lines, ends.prefix, announcement);
        m_index = std::move(index);
    }
    updateLines(lines, ends, announcement);
    if (m_selectedRow && !sameRows && !indexOf(*m_selectedRow)) {
        m_selectedRow.reset();
        announcement.tell(&TableObserver::rowSelectionChanged, std::nullopt, std::nullopt);
    }
}

void Table::apply(const TableChanges& changes, const std::vector<Line>& lines, int offset,
                  Announcement& announcement) {
    const auto begin = [this, offset] { return m_lines.begin() + offset; };
    for (const TableChanges::Run& run : changes.removals) {
        announcement.tell(&TableObserver::rowsWillBeRemoved, offset + run.first, run.count);
        m_lines.erase(begin() + run.first, begin() + run.first + run.count);
        announcement.tell(&TableObserver::rowsRemoved);
    }
    for (const TableChanges::Move& move : changes.moves) {
        announcement.tell(&TableObserver::rowWillMove, offset + move.from, offset + move.to);
        const Line moved = *(begin() + move.from);
        m_lines.erase(begin() + move.from);
        m_lines.insert(begin() + move.to, moved);
        announcement.tell(&TableObserver::rowMoved);
    }
    for (const TableChanges::Run& run : changes.insertions) {
        announcement.tell(&TableObserver::rowsWillBeInserted, offset + run.first, run.count);
        const auto first = lines.begin() + offset + run.first;
        m_lines.insert(begin() + run.first, first, first + run.count);
        announcement.tell(&TableObserver::rowsInserted);
    }
}

void Table::updateLines(const std::vector<Line>& lines, const CommonEnds& ends, Announcement& announcement) {
    std::vector<TableChanges::Run> updatedSections;
    // The sections that were compared last.
    Line before{nullptr, nullptr};
    Line after{nullptr, nullptr};
    bool headingChanged = false;
    // Returns whether the content changed.
    const auto replaceLine = [&](std::size_t place) {
        Line& line = m_lines[place];
        if (line.section != before.section || lines[place].section != after.section) {
            before = line;
            after = lines[place];
            headingChanged = !sameHeading(*before.section, *after.section);
        }
        if (headingChanged) {
            const int row = static_cast<int>(place);
            if (updatedSections.empty() ||
                updatedSections.back().first + updatedSections.back().count != row) {
                updatedSections.push_back({row, 0});
            }
            ++updatedSections.back().count;
        }
        const bool contentChanged =
            place < ends.updated.size()
                ? ends.updated[place]
                : line.row != lines[place].row && !sameContent(*line.row, *lines[place].row);
        if (contentChanged || headingChanged) {
            announcement.begin();
        }
        line = lines[place];
        return contentChanged;
    };
    for (std::size_t first = 0; first < lines.size(); ++first) {
        const std::size_t begin = first;
        while (first < lines.size() && replaceLine(first)) {
            ++first;
        }
        if (first > begin) {
            announcement.tell(&TableObserver::rowsUpdated, static_cast<int>(begin),
                              static_cast<int>(first - begin));
        }
    }
    for (const TableChanges::Run& run : updatedSections) {
        announcement.tell(&TableObserver::sectionsUpdated, run.first, run.count);
    }
}

// ---- selection, editing, note

void Table::selectRow(const RowId& id) {
    const std::optional<int> place = indexOf(id);
    if (place && m_selectedRow != id) {
        const std::optional<int> before = m_selectedRow ? indexOf(*m_selectedRow) : std::nullopt;
        m_selectedRow = id;
        if (m_observer) {
            m_observer->rowSelectionChanged(before, place);
        }
    }
}

void Table::deselectRow() {
    if (m_selectedRow) {
        const std::optional<int> before = indexOf(*m_selectedRow);
        m_selectedRow.reset();
        if (m_observer) {
            m_observer->rowSelectionChanged(before, std::nullopt);
        }
    }
}

void Table::setEditing(bool editing) {
    if (editing != m_editing) {
        m_editing = editing;
        if (m_observer) {
            m_observer->editingChanged();
        }
    }
}

void Table::setEmptyNote(std::optional<EmptyNote> note) {
    const bool same = note.has_value() == m_emptyNote.has_value() &&
                      (!note || (note->title == m_emptyNote->title && note->message == m_emptyNote->message &&
                                 note->buttonTitle == m_emptyNote->buttonTitle));
    m_emptyNote = std::move(note);
    if (m_observer && !same) {
        m_observer->emptyNoteChanged();
    }
}

} // namespace guide
