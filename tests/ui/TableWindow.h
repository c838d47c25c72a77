#pragma once

#include "WindowTest.h"
#include "fakes/ManualQueues.h"
#include "gallery/GalleryRows.h"
#include "platform/memory/ManualClock.h"
#include "screens/kit/TabBarController.h"
#include "ui/model/RowValues.h"

namespace guide::test {
struct Sent {
    QString row;
    RowEvent event;
};

class Screen final : public TableViewController {
  public:
    explicit Screen(std::vector<Section> sections = {}) { table().setSections(std::move(sections)); }

    bool selectAll() override { return ++allSelected > 0; }

    using ViewController::setLeftBarButtons;
    using ViewController::setRightBarButtons;
    using ViewController::setSearchField;

    void setText(int row, const RowContent& content) {
        Row changed = table().rowAt(row);
        changed.content = content;
        table().setRow(std::move(changed));
    }
    template <class Event>
    std::vector<Event> of() const {
        std::vector<Event> found;
        for (const Sent& each : sent) {
            if (const auto* event = std::get_if<Event>(&each.event)) {
                found.push_back(*event);
            }
        }
        return found;
    }

    /// What a tap opens.
    std::shared_ptr<ViewController> next;
    std::vector<Sent> sent;
    QStringList searched;
    int allSelected = 0;

  protected:
    void rowEvent(const RowId& id, const RowEvent& event) override {
        sent.push_back({*id.name(), event});
        if (next) {
            navigationController()->pushFrom(*this, std::move(next));
        }
    }
    std::vector<RowAction> actionsForRow(const RowId&) override {
        return {{u"Remove"_s, {}, ColorRole::Alarm, [] {}}};
    }
    void searchTextEdited(const QString& text) override { searched << text; }
};

inline std::vector<Section> lines(int count) {
    std::vector<RowContent> rows;
    rows.reserve(static_cast<std::size_t>(count));
    for (int row = 0; row < count; ++row) {
        rows.emplace_back(TextRow{u"Row %1"_s.arg(row), row % 3 == 0 ? u"Two lines"_s : QString()});
    }
    return {section(u"lines"_s, u"Lines"_s, std::move(rows))};
}

/// A window with one tab whose screen has a table and records the events of its rows.
class TableWindowTest : public WindowTest {
  protected:
    void open(std::vector<Section> sections, const QSize& size = {390, 844},
              UserInterfaceIdiom idiom = UserInterfaceIdiom::Phone) {
        screen = std::make_shared<Screen>(std::move(sections));
        tabs = std::make_unique<TabBarController>(idiom, queues.mainQueue());
        tabs->addTab({u"One"_s}, screen);
        openWindow(*tabs, {.form = idiom, .size = size, .motion = false, .pictures = provider});
    }
    void TearDown() override {
        WindowTest::TearDown();
        tabs.reset();
    }
    void replaceRows(const std::vector<Section>& sections) {
        screen->table().setSections(sections);
        settle();
    }
    double offsetOf(int index) const { return row(index)->y() - rows()->property("contentY").toDouble(); }

    ManualClock clock;
    ManualQueues queues{clock};
    GalleryPictures pictures;
    PictureProvider* provider = &pictures;
    std::shared_ptr<Screen> screen;
    std::unique_ptr<TabBarController> tabs;
};

} // namespace guide::test
