#pragma once

#include "screens/kit/StyledText.h"

#include <QImage>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace guide {

/// A row's place: its section, and its number within it.
struct IndexPath {
    int section = 0;
    int row = 0;

    friend bool operator==(const IndexPath&, const IndexPath&) = default;
    friend auto operator<=>(const IndexPath&, const IndexPath&) = default;
};

enum class RowKind {
    /// The head of a channel's shows: icon, title, when it was updated.
    Channel,
    /// One show: times, title, details, how far it is.
    Show,
};

/// What stands at a row's trailing edge.
enum class Accessory { None, Disclosure, Play, Spinner };

/// One of the things that a swipe from a row's trailing edge offers.
struct SwipeAction {
    QString title;
    /// The title in words, for a title that is a sign.
    QString name;
    ColorRole color = ColorRole::Tint;
    /// Main queue.
    std::function<void()> action;
};

/// What one row says. How it is drawn is the drawing's matter.
struct Row {
    RowKind kind = RowKind::Show;
    /// The main line.
    StyledText text;
    /// When the show ends, for where there is room beside the start time.
    StyledText endTime;
    /// What stands below the main line; empty for nothing.
    StyledText details;
    /// As many lines as the details need, rather than the first few.
    bool allDetails = false;
    /// 50 by 36 points, or null.
    QImage icon;
    QImage picture;
    /// How far the show is, 0 to 1, while it is on.
    std::optional<double> progress;
    Accessory accessory = Accessory::None;
    bool selectable = false;
    /// What the colours tell, in words, for whoever does not see them.
    QString spokenState;

    friend bool operator==(const Row&, const Row&) = default;
};

struct Section {
    /// Empty for a section without a header.
    QString title;
    std::vector<Row> rows;
};

/// What a table without rows says instead: why there is nothing, and what to do.
struct EmptyNote {
    QString title;
    QString message;

    friend bool operator==(const EmptyNote&, const EmptyNote&) = default;
};

/// Follows a table. Each call comes when the table has just changed, before it changes again; rows are
/// counted as they are after the change, removed ones as they were before.
class TableObserver {
  public:
    virtual ~TableObserver() = default;
    /// Anything may have changed.
    virtual void tableReloaded() = 0;
    virtual void rowsInserted(int section, int first, int count) = 0;
    virtual void rowsRemoved(int section, int first, int count) = 0;
    virtual void rowsReloaded(int section, int first, int count) = 0;
    virtual void rowSelectionChanged() = 0;
    virtual void emptyNoteChanged() = 0;
};

/// The rows of a screen, in sections. Main queue.
class Table {
  public:
    const std::vector<Section>& sections() const { return m_sections; }
    int rowCount(int section) const;
    /// Null where there is no such row.
    const Row* row(IndexPath path) const;

    /// One observer at a time; it has to outlive the table or take itself away with null.
    void setObserver(TableObserver* observer) { m_observer = observer; }

    void reload(std::vector<Section> sections);
    /// Brings a section to these rows with the fewest changes that leave the common rows in their places:
    /// those that say something else are reloaded, rows at the end are inserted or removed.
    void updateSection(int section, std::vector<Row> rows);
    void reloadRow(IndexPath path, Row row);

    std::optional<IndexPath> selectedRow() const { return m_selectedRow; }
    void selectRow(IndexPath path);
    void deselectRow();

    const std::optional<EmptyNote>& emptyNote() const { return m_emptyNote; }
    void setEmptyNote(std::optional<EmptyNote> note);

  private:
    std::vector<Section> m_sections;
    std::optional<IndexPath> m_selectedRow;
    std::optional<EmptyNote> m_emptyNote;
    TableObserver* m_observer = nullptr;
};

} // namespace guide
