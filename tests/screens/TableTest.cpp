#include "TableReplay.h"
#include "screens/kit/TableChanges.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace guide::test {

using namespace Qt::StringLiterals;

namespace {

Row textRow(const QString& section, const QString& name, const QString& title = {}) {
    return {.id = {section, name}, .content = TextRow{.title = title}, .selectable = true};
}

Section section(const QString& id, const QStringList& names, const QString& header = {}) {
    Section section{.id = id, .header = header};
    for (const QString& name : names) {
        section.rows.push_back(textRow(id, name));
    }
    return section;
}

TEST(TableTest, AnnouncesOnlyTheDifference) {
    struct Case {
        const char* name;
        std::vector<Section> before;
        std::vector<Section> after;
        QStringList log;
    };
    const QStringList ten = u"a b c d e f g h i j"_s.split(u' ');
    std::vector<Section> changed{section(u"1"_s, {u"a"_s, u"b"_s, u"c"_s})};
    changed[0].rows[1] = textRow(u"1"_s, u"b"_s, u"new"_s);
    std::vector<Section> otherKind{section(u"1"_s, {u"a"_s, u"b"_s, u"c"_s})};
    otherKind[0].rows[1].content = SwitchRow{};
    std::vector<Section> otherFlag{section(u"1"_s, {u"a"_s, u"b"_s, u"c"_s})};
    otherFlag[0].rows[2].deletable = true;
    const std::vector<Section> three{section(u"1"_s, {u"a"_s, u"b"_s, u"c"_s})};
    const std::vector<Case> cases{
        {"the same", three, three, {}},
        {"the first of ten removed",
         {section(u"1"_s, ten)},
         {section(u"1"_s, ten.mid(1))},
         {u"remove 0+1"_s}},
        {"one of three updated", three, changed, {u"update 1+1"_s}},
        {"a flag counts as content", three, otherFlag, {u"update 2+1"_s}},
        {"a row of another kind is another row", three, otherKind, {u"remove 1+1"_s, u"insert 1+1"_s}},
        {"a row moved to the end", three, {section(u"1"_s, {u"b"_s, u"c"_s, u"a"_s})}, {u"move 0>2"_s}},
        {"runs",
         {section(u"1"_s, {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s})},
         {section(u"1"_s, {u"x"_s, u"y"_s, u"c"_s, u"z"_s})},
         {u"remove 3+2"_s, u"remove 0+2"_s, u"insert 0+2"_s, u"insert 3+1"_s}},
        {"a header concerns the rows of its section",
         {section(u"1"_s, {u"a"_s}), section(u"2"_s, {u"b"_s, u"c"_s}, u"old"_s)},
         {section(u"1"_s, {u"a"_s}), section(u"2"_s, {u"b"_s, u"c"_s}, u"new"_s)},
         {u"headings 1+2"_s}},
        {"sections swap places",
         {section(u"1"_s, {u"a"_s, u"b"_s}), section(u"2"_s, {u"c"_s})},
         {section(u"2"_s, {u"c"_s}), section(u"1"_s, {u"a"_s, u"b"_s})},
         {u"move 2>0"_s}},
        {"only the first of two rows with one id",
         three,
         {section(u"1"_s, {u"a"_s, u"b"_s, u"a"_s, u"c"_s})},
         {}},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        Table table;
        TableReplay replay(table);
        table.setSections(each.before);
        replay.log.clear();
        table.setSections(each.after);
        EXPECT_EQ(replay.log, each.log);
        replay.expectComplete();
    }
}

// A table of some of the sections and rows, in some order, some of them of other kinds and contents.
std::vector<Section> randomSections(std::mt19937& random) {
    const auto below = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    std::vector<Section> sections;
    QStringList ids = u"A B C D"_s.split(u' ');
    std::shuffle(ids.begin(), below(4) == 0 ? ids.end() : ids.begin(), random);
    for (const QString& id : ids.first(below(5))) {
        Section each{.id = id, .header = QString::number(below(2))};
        QStringList names = u"a b c d e f g h i"_s.split(u' ');
        std::shuffle(names.begin(), below(2) == 0 ? names.end() : names.begin(), random);
        for (const QString& name : names) {
            if (below(4) != 0) {
                each.rows.push_back(textRow(id, name, QString::number(below(2))));
                if (below(8) == 0) {
                    each.rows.back().content = SwitchRow{.title = QString::number(below(2))};
                }
            }
        }
        sections.push_back(std::move(each));
    }
    return sections;
}

TEST(TableTest, ReplayedAnnouncementsGiveTheNewTable) {
    std::mt19937 random(20'261'121);
    Table table;
    TableReplay replay(table);
    for (int pair = 0; pair < 4000; ++pair) {
        SCOPED_TRACE(pair);
        table.setSections(randomSections(random));
        replay.expectComplete();
        if (HasFailure()) {
            return;
        }
    }
    EXPECT_FALSE(replay.log.filter(u"move"_s).isEmpty());
}

TEST(TableTest, ManyMovesBecomeRemovalsAndInsertions) {
    std::vector<int> reversed(kMaxMoves + 2);
    for (std::size_t row = 0; row < reversed.size(); ++row) {
        reversed[row] = static_cast<int>(reversed.size() - 1 - row);
    }
    const TableChanges inserted = tableChanges(static_cast<int>(reversed.size()), reversed);
    EXPECT_TRUE(inserted.moves.empty());
    ASSERT_EQ(inserted.insertions.size(), 1U) << "one row stays";
    EXPECT_EQ(inserted.insertions[0].count, kMaxMoves + 1);
    reversed.erase(reversed.begin());
    const TableChanges moved = tableChanges(static_cast<int>(reversed.size()), reversed);
    EXPECT_EQ(moved.moves.size(), static_cast<std::size_t>(kMaxMoves));
    EXPECT_TRUE(moved.insertions.empty() && moved.removals.empty());
}

TEST(TableTest, SelectionFollowsItsRow) {
    Table table;
    TableReplay replay(table);
    table.setSections({section(u"1"_s, {u"a"_s, u"b"_s, u"c"_s})});
    table.selectRow({u"1"_s, u"c"_s});
    table.selectRow({u"1"_s, u"unknown"_s});
    table.setSections({section(u"1"_s, {u"c"_s, u"b"_s})});
    EXPECT_EQ(table.selectedRow(), RowId(u"1"_s, u"c"_s));
    replay.log.clear();
    table.selectRow({u"1"_s, u"b"_s});
    table.setSections({section(u"1"_s, {u"c"_s})});
    EXPECT_EQ(replay.log, QStringList({u"select 0>1"_s, u"remove 1+1"_s, u"select -1>-1"_s}));
    EXPECT_FALSE(table.selectedRow());
}

TEST(TableTest, SingleSectionsAndRowsAreReplaced) {
    Table table;
    TableReplay replay(table);
    table.setSections({section(u"1"_s, {u"a"_s}), section(u"2"_s, {u"b"_s, u"c"_s})});
    replay.log.clear();
    table.setRow(textRow(u"2"_s, u"c"_s, u"new"_s));
    table.setRow(textRow(u"2"_s, u"c"_s, u"new"_s));
    table.setRow(textRow(u"2"_s, u"unknown"_s));
    table.setRow({.id = {u"1"_s, u"a"_s}, .content = ButtonRow{}});
    table.setRows(u"2"_s, {textRow(u"2"_s, u"c"_s, u"new"_s)});
    table.setRows(u"3"_s, {textRow(u"3"_s, u"d"_s)});
    EXPECT_EQ(replay.log, QStringList({u"update 2+1"_s, u"remove 0+1"_s, u"insert 0+1"_s, u"remove 1+1"_s}));
    replay.expectComplete();
}

TEST(TableTest, ChangesMadeByAnObserverFollowTheCurrentOne) {
    Table table;
    TableReplay replay(table);
    table.setSections({section(u"1"_s, {u"a"_s, u"b"_s})});
    replay.log.clear();
    // For example, an input commits its text when it loses the focus because its row is removed.
    replay.atFirstStep = [&table] { table.setRow(textRow(u"1"_s, u"b"_s, u"committed"_s)); };
    table.setSections({section(u"1"_s, {u"b"_s, u"c"_s})});
    EXPECT_EQ(replay.log, QStringList({u"remove 0+1"_s, u"insert 1+1"_s, u"update 0+1"_s}));
    replay.expectComplete();
}

} // namespace

} // namespace guide::test
