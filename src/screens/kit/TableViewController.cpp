#include "screens/kit/TableViewController.h"

#include <functional>

namespace guide {

namespace {

// Whether a row accepts an event.
struct Takes {
    const Row& row;
    const Table& table;

    template <class Content>
    const Content* content() const {
        return std::get_if<Content>(&row.content);
    }
    template <class Content>
    bool enabled() const {
        return content<Content>() && content<Content>()->enabled;
    }

    bool operator()(const Tapped&) const { return row.selectable; }
    bool operator()(const AccessoryTapped&) const {
        const Accessory accessory = accessoryOf(row.content);
        return accessory == Accessory::Play || accessory == Accessory::Disclosure;
    }
    bool operator()(const Toggled&) const { return enabled<SwitchRow>(); }
    bool operator()(const Chosen& event) const {
        const auto place = static_cast<std::size_t>(event.choice);
        if (const auto* actions = content<ActionsRow>()) {
            return place < actions->buttons.size() && actions->buttons[place].enabled;
        }
        return enabled<ChoiceRow>() && place < content<ChoiceRow>()->choices.size();
    }
    bool operator()(const TimePicked& event) const { return enabled<TimeRow>() && event.time.isValid(); }
    bool operator()(const TextEdited&) const { return enabled<InputRow>(); }
    bool operator()(const Deleted&) const { return row.deletable; }
    bool operator()(const MovedBefore& event) const {
        return row.movable &&
               (!event.next || (event.next->section == row.id.section && table.find(*event.next)));
    }
};

} // namespace

void TableViewController::sendRowEvent(const RowId& id, const RowEvent& event) {
    const Row* row = m_table.find(id);
    if (!row) {
        return;
    }
    // A copy, because `id` may be part of the row, which the screen may replace.
    const RowId own = row->id;
    if (std::visit(Takes{*row, m_table}, event)) {
        if (std::holds_alternative<Tapped>(event)) {
            m_table.selectRow(own);
        }
        rowEvent(own, event);
    } else if (std::holds_alternative<Tapped>(event) && accessoryOf(row->content) == Accessory::Play) {
        rowEvent(own, AccessoryTapped{});
    }
}

std::vector<RowAction> TableViewController::rowActions(const RowId& id) {
    return m_table.find(id) ? actionsForRow(id) : std::vector<RowAction>();
}

void TableViewController::rowDisplayed(const RowId& id) {
    if (m_table.find(id)) {
        rowWillBeDisplayed(id);
    }
}

void TableViewController::pressEmptyNoteButton() {
    // A copy, because the action may replace the note.
    const auto action = m_table.emptyNote() ? m_table.emptyNote()->action : nullptr;
    if (action) {
        action();
    }
}

} // namespace guide
