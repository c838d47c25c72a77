// A table of 2,000 shows, one of which has changed.

#include "screens/kit/Table.h"

#include <array>
#include <benchmark/benchmark.h>

namespace guide::bench {
namespace {

using namespace Qt::StringLiterals;

constexpr int kRows = 2000;
constexpr int kDays = 10;
constexpr int kChangedRow = 1234;

/// Shows of one channel in a section for each day. Only one row depends on `version`.
std::vector<Section> madeSections(int version) {
    const ObjectId channel = ObjectId::fromHex(u"58f4ded60befe78cb336a80b"_s);
    std::vector<Section> sections;
    for (int row = 0; row < kRows; ++row) {
        const int day = row * kDays / kRows;
        if (day == static_cast<int>(sections.size())) {
            sections.push_back({.id = u"2026-01-%1"_s.arg(day + 1, 2, 10, QLatin1Char('0')),
                                .header = u"Day %1"_s.arg(day)});
        }
        ShowRow show{
            .startTime =
                u"%1:%2"_s.arg(row % 24, 2, 10, QLatin1Char('0')).arg(row % 60, 2, 10, QLatin1Char('0')),
            .endTime = u"%1:%2"_s.arg((row + 1) % 24, 2, 10, QLatin1Char('0'))
                           .arg(row % 60, 2, 10, QLatin1Char('0')),
            .title = u"The title of show %1"_s.arg(row),
            .details = u"Details of show %1, 2026, a sentence of the usual length"_s.arg(row)};
        show.alarmed = row == kChangedRow && version == 1;
        const Moment start{std::chrono::minutes(30 * row)};
        sections.back().rows.push_back(
            {.id = {sections.back().id, ShowRowKey{channel, start, 0}}, .content = std::move(show)});
    }
    return sections;
}

class Counter final : public TableObserver {
  public:
    void tableWillChange() override {}
    void tableDidChange() override {}
    void rowsWillBeRemoved(int, int) override { ++others; }
    void rowsRemoved() override {}
    void rowWillMove(int, int) override { ++others; }
    void rowMoved() override {}
    void rowsWillBeInserted(int, int) override { ++others; }
    void rowsInserted() override {}
    void rowsUpdated(int first, int count) override {
        updated += count;
        others += first == kChangedRow ? 0 : 1;
    }
    void sectionsUpdated(int, int) override { ++others; }
    void rowSelectionChanged(std::optional<int>, std::optional<int>) override {}
    void emptyNoteChanged() override {}
    void editingChanged() override {}

    int updated = 0;
    int others = 0;
};

/// Two tables that differ in one row. The measured code takes copies, which share the texts, so that
/// allocating and freeing texts is not measured.
const std::array<std::vector<Section>, 2>& versions() {
    static const std::array<std::vector<Section>, 2> both{madeSections(0), madeSections(1)};
    return both;
}

void setSections(benchmark::State& state) {
    Table table;
    table.setSections(versions()[0]);
    Counter counter;
    table.setObserver(&counter);
    int changes = 0;
    for (auto _ : state) {
        state.PauseTiming();
        std::vector<Section> sections = versions()[static_cast<std::size_t>(++changes % 2)];
        state.ResumeTiming();
        table.setSections(std::move(sections));
    }
    table.setObserver(nullptr);
    if (counter.updated != changes || counter.others != 0) {
        state.SkipWithError("not exactly one update per change");
    }
    state.counters["atMost"] = 3;
}

void compareRows(benchmark::State& state) {
    const std::vector<Section> shown = versions()[0];
    std::vector<Section> sections;
    int different = 0;
    for (auto _ : state) {
        state.PauseTiming();
        sections = versions()[1];
        state.ResumeTiming();
        for (std::size_t section = 0; section < sections.size(); ++section) {
            for (std::size_t row = 0; row < sections[section].rows.size(); ++row) {
                different += sections[section].rows[row] == shown[section].rows[row] ? 0 : 1;
            }
        }
    }
    if (different != static_cast<int>(state.iterations())) {
        state.SkipWithError("not exactly one difference");
    }
}

BENCHMARK(setSections)->Name("one row changed among 2,000/guide")->Unit(benchmark::kMicrosecond);
BENCHMARK(compareRows)->Name("one row changed among 2,000/floor")->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace guide::bench
