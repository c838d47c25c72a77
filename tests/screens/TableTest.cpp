#include "RandomTables.h"
#include "TableReplay.h"
#include "screens/kit/TableChanges.h"

#include <gtest/gtest.h>

namespace guide::test {
namespace {

/// A section with a row for each letter.
Section section(const QString& id, const QString& names, const QString& header = {}) {
    Section section{.id = id, .header = header};
    for (const QChar name : names) {
        section.rows.push_back(textRow(id, name));
    }
    return section;
}

TEST(TableTest, AnnouncesOnlyTheDifference) {
    struct Case {
        const char* name;
        Sections before;
        Sections after;
        QStringList log;
    };
    const QString ten = u"abcdefghij"_s;
    Sections changed{section(u"1"_s, u"abc"_s)};
    changed[0].rows[1] = textRow(u"1"_s, u"b"_s, u"new"_s);
    Sections otherKind{section(u"1"_s, u"abc"_s)};
    otherKind[0].rows[1].content = SwitchRow{};
    Sections otherFlag{section(u"1"_s, u"abc"_s)};
    otherFlag[0].rows[2].deletable = true;
    const Sections three{section(u"1"_s, u"abc"_s)};
    const std::vector<Case> cases{
        {"the same", three, three, {}},
        {"the first of ten removed", Sections{section(u"1"_s, ten)}, Sections{section(u"1"_s, ten.mid(1))},
         QStringList{u"remove 0+1"_s}},
        {"one of three updated", three, changed, {u"update 1+1"_s}},
        {"a flag counts as content", three, otherFlag, {u"update 2+1"_s}},
        {"a row of another kind is another row", three, otherKind, {u"remove 1+1"_s, u"insert 1+1"_s}},
        {"a row moved to the end", three, {section(u"1"_s, u"bca"_s)}, {u"move 0>2"_s}},
        {"runs", Sections{section(u"1"_s, u"abcde"_s)}, Sections{section(u"1"_s, u"xycz"_s)},
         QStringList{u"remove 3+2"_s, u"remove 0+2"_s, u"insert 0+2"_s, u"insert 3+1"_s}},
        {"a header concerns the rows of its section",
         Sections{section(u"1"_s, u"a"_s), section(u"2"_s, u"bc"_s, u"old"_s)},
         Sections{section(u"1"_s, u"a"_s), section(u"2"_s, u"bc"_s, u"new"_s)},
         QStringList{u"headings 1+2"_s}},
        {"sections swap places", Sections{section(u"1"_s, u"ab"_s), section(u"2"_s, u"c"_s)},
         Sections{section(u"2"_s, u"c"_s), section(u"1"_s, u"ab"_s)}, QStringList{u"move 2>0"_s}},
        {"only the first of two rows with one id", three, Sections{section(u"1"_s, u"abac"_s)},
         QStringList()},
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
    table.setSections({section(u"1"_s, u"abc"_s)});
    table.selectRow({u"1"_s, u"c"_s});
    table.selectRow({u"1"_s, u"unknown"_s});
    table.setSections({section(u"1"_s, u"cb"_s)});
    EXPECT_EQ(table.selectedRow(), RowId(u"1"_s, u"c"_s));
    replay.log.clear();
    table.selectRow({u"1"_s, u"b"_s});
    table.setSections({section(u"1"_s, u"c"_s)});
    EXPECT_EQ(replay.log, QStringList({u"select 0>1"_s, u"remove 1+1"_s, u"select -1>-1"_s}));
    EXPECT_FALSE(table.selectedRow());
}

TEST(TableTest, SingleSectionsAndRowsAreReplaced) {
    Table table;
    TableReplay replay(table);
    table.setSections({section(u"1"_s, u"a"_s), section(u"2"_s, u"bc"_s)});
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

TEST(TableTest, OnlyContentChangesWhileTheRowsAreHeld) {
    Table table;
    TableReplay replay(table);
    table.setHeld(true);
    table.setSections({section(u"1"_s, u"abc"_s)});
    EXPECT_EQ(std::exchange(replay.log, {}), QStringList{u"insert 0+3"_s})
        << "nothing was there to be touched";

    Section next{.id = u"1"_s};
    for (const auto& [name, text] : {std::pair(u"c"_s, u"c"_s), {u"b"_s, u"new"_s}, {u"d"_s, u"d"_s}}) {
        next.rows.push_back(textRow(u"1"_s, name, text));
    }
    table.setSections({next});
    EXPECT_EQ(std::exchange(replay.log, {}), QStringList{u"update 1+2"_s});
    EXPECT_EQ(table.latestSections()[0].rows, next.rows);
    table.setRow(textRow(u"1"_s, u"c"_s, u"newer"_s));
    table.setRow(textRow(u"1"_s, u"d"_s, u"newer"_s));
    EXPECT_EQ(std::exchange(replay.log, {}), QStringList{u"update 2+1"_s});
    replay.expectComplete();

    next = table.latestSections()[0];
    table.setHeld(false);
    EXPECT_EQ(table.sections()[0].rows, next.rows);
    EXPECT_EQ(std::get<TextRow>(table.rowAt(2).content).title, u"newer"_s);
    EXPECT_TRUE(replay.log.filter(u"update"_s).empty()) << "the contents were up to date";
    replay.expectComplete();
    table.setHeld(true);
    table.setSections({});
    table.setSections({next});
    replay.log.clear();
    table.setHeld(false);
    EXPECT_EQ(replay.log, QStringList()) << "a change that was taken back";
}

TEST(TableTest, ChangesMadeByAnObserverFollowTheCurrentOne) {
    Table table;
    TableReplay replay(table);
    table.setSections({section(u"1"_s, u"ab"_s)});
    replay.log.clear();
    // For example, an input commits its text when it loses the focus because its row is removed.
    replay.atFirstStep = [&table] { table.setRow(textRow(u"1"_s, u"b"_s, u"committed"_s)); };
    table.setSections({section(u"1"_s, u"bc"_s)});
    EXPECT_EQ(replay.log, QStringList({u"remove 0+1"_s, u"insert 1+1"_s, u"update 0+1"_s}));
    replay.expectComplete();
}

} // namespace
} // namespace guide::test
