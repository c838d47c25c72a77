#pragma once

#include "screens/kit/RowAction.h"
#include "screens/kit/RowEvent.h"
#include "screens/kit/Table.h"
#include "screens/kit/ViewController.h"

#include <vector>

namespace guide {

/// A screen whose content is a table.
class TableViewController : public ViewController {
  public:
    Content& content() final { return m_table; }
    const Table& table() const { return m_table; }
    Table& table() { return m_table; }

    // ---- the user's events

    /// Passes the event to the screen if the row exists and accepts such an event. A tap on a selectable row
    /// selects it; a tap on a row that is not selectable presses its play button, if there is one.
    void sendRowEvent(const RowId& id, const RowEvent& event);
    /// From the trailing edge inwards. The actions may outlive the row.
    std::vector<RowAction> rowActions(const RowId& id);
    /// The row became visible, or changed while visible.
    void rowDisplayed(const RowId& id);
    void pressEmptyNoteButton();
    /// Ctrl+A. Returns whether it means anything on this screen.
    virtual bool selectAll() { return false; }

    /// The selected row is the one that opened the closed screen.
    void screenBesideClosed() override { m_table.deselectRow(); }

  protected:
    virtual void rowEvent(const RowId&, const RowEvent&) {}
    virtual std::vector<RowAction> actionsForRow(const RowId&) { return {}; }
    virtual void rowWillBeDisplayed(const RowId&) {}

  private:
    Table m_table;
};

} // namespace guide
