#pragma once

#include "screens/kit/Content.h"
#include "screens/kit/Row.h"

#include <QString>

#include <cstddef>
#include <functional>
#include <optional>
#include <unordered_map>
#include <vector>

namespace guide {

enum class SectionLayout { List, Tiles };

/// A group of rows with a heading. Empty texts are not drawn; a section without rows is not drawn at all.
struct Section {
    SectionId id;
    QString header;
    /// An explanation below the rows.
    QString footer;
    /// The section's mark in the index strip, one or two characters.
    QString indexTitle;
    SectionLayout layout = SectionLayout::List;
    std::vector<Row> rows;
};

/// What a table without rows says instead: why there is nothing, and a button that leads on.
struct EmptyNote {
    QString title;
    QString message;
    /// Empty for no button.
    QString buttonTitle = {};
    /// Main queue.
    std::function<void()> action = {};
};

/// Follows a table as one list of rows, numbered through all sections. Each change comes as a pair of calls
/// around it, and between two pairs the table is consistent: its rows are those of the changes announced so
/// far. Replaying the announcements on the old rows gives the new ones.
class TableObserver {
  public:
    virtual ~TableObserver() = default;

    /// Around everything that one setSections announces. Not called when it changes nothing.
    virtual void tableWillChange() = 0;
    virtual void tableDidChange() = 0;

    virtual void rowsWillBeRemoved(int first, int count) = 0;
    virtual void rowsRemoved() = 0;
    /// `to` counts the rows as they are without the moved one: where that row is afterwards.
    virtual void rowWillMove(int from, int to) = 0;
    virtual void rowMoved() = 0;
    virtual void rowsWillBeInserted(int first, int count) = 0;
    virtual void rowsInserted() = 0;
    /// Their content is another one; id and kind are the same.
    virtual void rowsUpdated(int first, int count) = 0;
    /// Header, footer, index title or layout of the rows' sections changed.
    virtual void sectionsUpdated(int first, int count) = 0;

    virtual void rowSelectionChanged(std::optional<int> before, std::optional<int> after) = 0;
    virtual void emptyNoteChanged() = 0;
    virtual void editingChanged() = 0;
};

/// The rows of a screen, in sections. Main queue.
class Table final : public Content {
  public:
    ContentKind kind() const override { return ContentKind::Table; }

    const std::vector<Section>& sections() const { return m_sections; }

    // ---- the rows as one list

    int rowCount() const { return static_cast<int>(m_lines.size()); }
    const Row& rowAt(int index) const { return *m_lines[static_cast<std::size_t>(index)].row; }
    /// While changes are being announced this may be a section of before.
    const Section& sectionAt(int index) const { return *m_lines[static_cast<std::size_t>(index)].section; }
    std::optional<int> indexOf(const RowId& id) const;
    /// Null when there is no such row.
    const Row* find(const RowId& id) const;

    /// One observer at a time. The observer must outlive the table or be unregistered with nullptr.
    void setObserver(TableObserver* observer) { m_observer = observer; }

    /// Replaces all sections and announces the difference: rows are matched by id and kind. Ids are unique;
    /// of rows with equal ids only the first is kept. The selection stays while its row does.
    void setSections(std::vector<Section> sections);
    /// Replaces the rows of one section. Does nothing when there is no such section.
    void setRows(const SectionId& section, std::vector<Row> rows);
    /// Replaces the row with the same id. Does nothing when there is none.
    void setRow(Row row);

    const std::optional<RowId>& selectedRow() const { return m_selectedRow; }
    void selectRow(const RowId& id);
    void deselectRow();

    bool editing() const { return m_editing; }
    void setEditing(bool editing);

    const std::optional<EmptyNote>& emptyNote() const { return m_emptyNote; }
    void setEmptyNote(std::optional<EmptyNote> note);

  private:
    struct Line {
        const Section* section;
        const Row* row;
    };

    std::vector<Section> m_sections;
    std::vector<Line> m_lines;
    std::optional<RowId> m_selectedRow;
    std::optional<EmptyNote> m_emptyNote;
    bool m_editing = false;
    TableObserver* m_observer = nullptr;
};

} // namespace guide
