#include "screens/kit/Table.h"

#include <algorithm>
#include <utility>

namespace guide {

int Table::rowCount(int section) const {
    const auto index = static_cast<std::size_t>(section);
    return section >= 0 && index < m_sections.size() ? static_cast<int>(m_sections[index].rows.size()) : 0;
}

const Row* Table::row(IndexPath path) const {
    if (path.row < 0 || path.row >= rowCount(path.section)) {
        return nullptr;
    }
    return &m_sections[static_cast<std::size_t>(path.section)].rows[static_cast<std::size_t>(path.row)];
}

void Table::reload(std::vector<Section> sections) {
    m_sections = std::move(sections);
    if (m_selectedRow && !row(*m_selectedRow)) {
        m_selectedRow.reset();
    }
    if (m_observer) {
        m_observer->tableReloaded();
    }
}

void Table::updateSection(int section, std::vector<Row> rows) {
    if (section < 0 || static_cast<std::size_t>(section) >= m_sections.size()) {
        return;
    }
    std::vector<Row>& old = m_sections[static_cast<std::size_t>(section)].rows;
    const std::size_t before = old.size();
    const std::size_t after = rows.size();
    if (after < before) {
        old.resize(after);
        if (m_selectedRow && !row(*m_selectedRow)) {
            m_selectedRow.reset();
        }
        if (m_observer) {
            m_observer->rowsRemoved(section, static_cast<int>(after), static_cast<int>(before - after));
        }
    }
    const std::size_t common = std::min(before, after);
    for (std::size_t first = 0; first < common;) {
        std::size_t end = first;
        while (end < common && !(old[end] == rows[end])) {
            old[end] = std::move(rows[end]);
            ++end;
        }
        if (end > first && m_observer) {
            m_observer->rowsReloaded(section, static_cast<int>(first), static_cast<int>(end - first));
        }
        first = end + 1;
    }
    if (after > before) {
        std::move(rows.begin() + static_cast<std::ptrdiff_t>(before), rows.end(), std::back_inserter(old));
        if (m_observer) {
            m_observer->rowsInserted(section, static_cast<int>(before), static_cast<int>(after - before));
        }
    }
}

void Table::reloadRow(IndexPath path, Row row) {
    if (!this->row(path)) {
        return;
    }
    m_sections[static_cast<std::size_t>(path.section)].rows[static_cast<std::size_t>(path.row)] =
        std::move(row);
    if (m_observer) {
        m_observer->rowsReloaded(path.section, path.row, 1);
    }
}

void Table::selectRow(IndexPath path) {
    if (row(path) && m_selectedRow != path) {
        m_selectedRow = path;
        if (m_observer) {
            m_observer->rowSelectionChanged();
        }
    }
}

void Table::deselectRow() {
    if (m_selectedRow) {
        m_selectedRow.reset();
        if (m_observer) {
            m_observer->rowSelectionChanged();
        }
    }
}

void Table::setEmptyNote(std::optional<EmptyNote> note) {
    if (note != m_emptyNote) {
        m_emptyNote = std::move(note);
        if (m_observer) {
            m_observer->emptyNoteChanged();
        }
    }
}

} // namespace guide
