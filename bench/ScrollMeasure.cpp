// Scrolls through 10,000 rows and measures the main thread's work for a frame, up to the point where the
// scene graph has taken over the changes; drawing itself is not counted. The floor is a list of plain texts.

#include "WindowMeasure.h"
#include "platform/queues/ThreadedQueues.h"
#include "screens/kit/TabBarController.h"
#include "screens/kit/TableViewController.h"
#include "ui/GuideWindow.h"
#include "ui/model/RowValues.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickView>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace guide::bench {
namespace {

using namespace Qt::StringLiterals;

constexpr double kAtMost = 5;
constexpr int kRows = 10'000;
constexpr int kSections = 100;
constexpr int kFrames = 1'500;
/// A fast flick: most of a row per frame.
constexpr double kStep = 45;

class Shows final : public TableViewController {
  public:
    Shows() {
        std::vector<Section> sections;
        for (int number = 0; number < kSections; ++number) {
            Section section{QString::number(number), u"Day %1"_s.arg(number)};
            for (int row = 0; row < kRows / kSections; ++row) {
                ShowRow show{.startTime = u"20:15"_s, .endTime = u"21:00"_s};
                show.title = u"Show %1"_s.arg(number * (kRows / kSections) + row);
                show.details = row % 3 == 0
                                   ? QString()
                                   : u"A film of the year %1, and what it is about"_s.arg(1900 + row);
                show.favourite = row % 7 == 0;
                show.alarmed = row % 11 == 0;
                show.accessory = Accessory::Disclosure;
                section.rows.push_back({{section.id, QString::number(row)}, std::move(show), true});
            }
            sections.push_back(std::move(section));
        }
        table().setSections(std::move(sections));
    }
};

/// The 99th percentile of the main thread's work per frame, in milliseconds.
double scroll(QQuickWindow& window, QQuickItem& list) {
    std::vector<double> work;
    double y = 0;
    for (int frame = 0; frame < kFrames; ++frame) {
        y += kStep;
        const FrameTimes times = drawFrame(window, [&] { list.setProperty("contentY", y); });
        work.push_back(static_cast<double>(times.work) / 1e6);
    }
    if (list.property("contentY").toDouble() < y - 1) {
        fail("the list did not scroll");
    }
    std::ranges::sort(work);
    return work[work.size() * 99 / 100];
}

double scrollGuide() {
    ThreadedQueues queues([] {});
    TabBarController tabs(UserInterfaceIdiom::Phone, queues.mainQueue());
    tabs.addTab({u"Shows"_s}, std::make_shared<Shows>());
    GuideWindow guide(tabs, {.motion = false});
    if (!guide.loaded()) {
        fail("the window cannot be drawn");
    }
    guide.show();
    QQuickWindow& window = openedWindow();
    QQuickItem* list = listIn(window.contentItem());
    if (!list || list->property("count").toInt() != kRows) {
        fail("not all rows are in the list");
    }
    const double time = scroll(window, *list);
    QQuickItem* top = nullptr;
    QMetaObject::invokeMethod(list, "itemAt", Q_RETURN_ARG(QQuickItem*, top), Q_ARG(double, 10.0),
                              Q_ARG(double, list->property("contentY").toDouble() + 1));
    const int index = top ? top->property("index").toInt() : -1;
    if (index < kFrames / 4 || top->property("row").value<ShowRowValue>().title != u"Show %1"_s.arg(index)) {
        fail("the wrong row is at the top");
    }
    return time;
}

double scrollTexts() {
    QQuickView view;
    QQmlComponent component(view.engine());
    component.setData(
        "import QtQuick\n"
        "ListView { model: 10000; cacheBuffer: 480; reuseItems: true; delegate: Text {\n"
        "required property int index; width: ListView.view.width; height: 64; text: 'Show ' + index } }",
        QUrl());
    auto* list = qobject_cast<QQuickItem*>(component.create());
    if (!list) {
        fail("the bare list cannot be created");
    }
    view.resize(390, 844);
    view.setContent(QUrl(), &component, list);
    list->setSize(QSizeF(390, 720));
    view.show();
    return scroll(view, *list);
}

} // namespace
} // namespace guide::bench

int main(int argc, char** argv) {
    using namespace guide::bench;
    prepareWindows();
    const QGuiApplication application(argc, argv);
    const double floor = scrollTexts();
    const double guide = scrollGuide();
    std::printf(
        "{\"row\": \"10,000 rows scrolled, frame p99\", \"unit\": \"ms\", \"guide\": %.2f, \"floor\": %.2f, "
        "\"atMost\": %g}\n",
        guide, floor, kAtMost);
    return 0;
}
