#pragma once

#include "screens/kit/Content.h"
#include "screens/kit/Row.h"
#include "screens/kit/RowIndex.h"

#include <QString>

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace guide {

struct TableChanges;

enum class SectionLayout { List, Tiles };

/// A group of rows with a heading. Empty texts are not drawn; a section without rows is not drawn at all.
struct Section {
    SectionId id;
    QString header = {};
    /// An explanation below the rows.
    QString footer = {};
    /// The section's mark in the index strip, one or two characters.
    QString indexTitle = {};
    SectionLayout layout = SectionLayout::List;
    std::vector<Row> rows = {};
};

/// Shown in place of the rows of an empty table: why it is empty, and a button with the next step.
struct EmptyNote {
    QString title;
    QString message;
    /// Empty for no button.
    QString buttonTitle = {};
    /// Main queue.
    std::function<void()> action = {};
};

/// Follows a table as one list of rows, numbered across all sections. Each removal, move or insertion is
/// surrounded by a pair of calls, and between two pairs the table is consistent: it reflects the changes
/// announced so far. Replaying the announcements on the old rows gives the new ones.
class TableObserver {
  public:
    virtual ~TableObserver() = default;

    /// Called before and after all announcements of one change. Not called when nothing changes.
    virtual void tableWillChange() = 0;
    virtual void tableDidChange() = 0;

    virtual void rowsWillBeRemoved(int first, int count) = 0;
    virtual void rowsRemoved() = 0;
    /// `to` is the index of the row after the move.
    virtual void rowWillMove(int from, int to) = 0;
    virtual void rowMoved() = 0;
    virtual void rowsWillBeInserted(int first, int count) = 0;
    virtual void rowsInserted() = 0;
    /// Their content changed; id and kind are the same.
    virtual void rowsUpdated(int first, int count) = 0;
    /// The header, footer, index title or layout of the rows' sections changed.
    virtual void sectionsUpdated(int first, int count) = 0;

    /// The indexes of the previously selected row, if it still exists, and of the selected one.
    virtual void rowSelectionChanged(std::optional<int> before, std::optional<int> after) = 0;
    virtual void emptyNoteChanged() = 0;
    virtual void editingChanged() = 0;
};

/// The rows of a screen, in sections. Main queue.
class Table final : public Content {
  public:
    ContentKind kind() const override { return ContentKind::Table; }

    /// The sections that are shown, even while the change is still being announced.
    const std::vector<Section>& sections() const { return m_sections; }
    /// The sections that were set last, from which the next ones are made. They differ from sections() while
    /// the rest of a change waits for its turn.
    const std::vector<Section>& latestSections() const;

    // ---- the rows as one list

    int rowCount() const { return static_cast<int>(m_lines.size()); }
    const Row& rowAt(int index) const { return *line(index).row; }
    /// While changes are being announced this may be an old section.
    const Section& sectionAt(int index) const { return *line(index).section; }
    /// Constant time, except while changes are being announced.
    std::optional<int> indexOf(const RowId& id) const;
    /// Null when there is no such row.
    const Row* find(const RowId& id) const;

    /// One observer at a time. The observer must outlive the table or be unregistered with nullptr.
    void setObserver(TableObserver* observer) { m_observer = observer; }

    /// Replaces all sections and announces the difference: rows are matched by id and kind. Ids are unique;
    /// of rows with equal ids only the first is kept. The selection stays while its row does. When called
    /// from an observer during announcements, it takes effect after them. While the rows are held, only the
    /// content of rows that stay is updated, and the rest of the change waits.
    void setSections(std::vector<Section> sections);
    /// Replaces the rows of one section. Does nothing when there is no such section.
    void setRows(const SectionId& section, std::vector<Row> rows);
    /// Replaces the row with the same id. Does nothing when there is none.
    void setRow(Row row);

    /// While held, no row is inserted, removed or moved: the user is touching the list. Rows are still
    /// inserted into an empty table.
    void setHeld(bool held);

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
        Row* row;
    };
    /// The numbers of rows at the beginning and at the end whose id and kind do not change.
    struct CommonEnds {
        int prefix = 0;
        int suffix = 0;
        /// For each row of the prefix, whether its content changed. Avoids a second comparison.
        std::vector<bool> updated;
    };
    class Announcement;

    const Line& line(int index) const { return m_lines[static_cast<std::size_t>(index)]; }
    const RowId& idAt(int index) const { return line(index).row->id; }
    static std::vector<Line> linesOf(std::vector<Section>& sections);
    /// Fills the index. Returns whether rows were dropped, which makes the lines and the index invalid.
    static bool dropDuplicates(std::vector<Section>& sections, const std::vector<Line>& lines,
                               RowIndex& index);
    /// The part of a change that may be shown now; keeps the change itself while the rows are held.
    std::vector<Section> showableNow(std::vector<Section> sections);
    void changeTo(std::vector<Section> sections);
    CommonEnds commonEnds(const std::vector<Line>& lines) const;
    /// Turns m_lines into `lines` and announces each step.
    void follow(const std::vector<Line>& lines, RowIndex index, const CommonEnds& ends);
    TableChanges changesTo(const std::vector<Line>& lines, const CommonEnds& ends) const;
    void apply(const TableChanges& changes, const std::vector<Line>& lines, int offset,
               Announcement& announcement);
    void updateLines(const std::vector<Line>& lines, const CommonEnds& ends, Announcement& announcement);
    void updateLine(int place, Row row);
    const RowIndex& index() const;

    std::vector<Section> m_sections;
    /// All rows in order. During announcements some are still old rows.
    std::vector<Line> m_lines;
    /// Of m_lines; built on first use.
    mutable RowIndex m_index;
    bool m_changing = false;
    /// Set by an observer during announcements.
    std::optional<std::vector<Section>> m_waiting;
    bool m_held = false;
    /// Set while the rows are held.
    std::optional<std::vector<Section>> m_afterHold;
    std::optional<RowId> m_selectedRow;
    std::optional<EmptyNote> m_emptyNote;
    bool m_editing = false;
    TableObserver* m_observer = nullptr;
};

} // namespace guide
