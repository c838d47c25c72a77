#include "ui/model/TableModel.h"

#include "screens/RandomTables.h"
#include "ui/model/AccessibleName.h"
#include "ui/model/Kit.h"
#include "ui/model/RowValues.h"

#include <QAbstractItemModelTester>
#include <QStringList>

#include <gtest/gtest.h>

namespace guide::test {
namespace {

using namespace Qt::StringLiterals;

const QLocale kLocale(QLocale::English, QLocale::UnitedStates);

class Screen final : public TableViewController {
  public:
    QStringList events;

  protected:
    void rowEvent(const RowId& id, const RowEvent& event) override {
        const QString name = *id.name();
        if (const auto* move = std::get_if<MovedBefore>(&event)) {
            events << name + " before "_L1 + (move->next ? *move->next->name() : u"the end"_s);
        } else {
            events << name + u' ' + QString::number(event.index());
        }
    }
};

QString line(const QString& header, qsizetype place, bool last, const QString& title) {
    return u"%1 %2%3 %4"_s.arg(header).arg(place).arg(last ? u"*"_s : QString(), title);
}

QString lineOf(const QAbstractItemModel& model, int row) {
    const auto section = model.index(row, 0).data(TableModel::SectionRole).value<SectionValue>();
    const QVariant value = model.index(row, 0).data(TableModel::RowRole);
    const QString title = model.index(row, 0).data(TableModel::KindRole) == static_cast<int>(RowKind::Text)
                              ? value.value<TextRowValue>().title
                              : value.value<SwitchRowValue>().title;
    return line(section.header, section.place, section.last, title);
}

QStringList linesOf(const QAbstractItemModel& model) {
    QStringList lines;
    for (int row = 0; row < model.rowCount(); ++row) {
        lines << lineOf(model, row);
    }
    return lines;
}

QStringList linesOf(const Table& table) {
    QStringList lines;
    for (const Section& section : table.sections()) {
        for (std::size_t place = 0; place < section.rows.size(); ++place) {
            const RowContent& content = section.rows[place].content;
            const auto* text = std::get_if<TextRow>(&content);
            lines << line(section.header, qsizetype(place), place + 1 == section.rows.size(),
                          text ? text->title : std::get<SwitchRow>(content).title);
        }
    }
    return lines;
}

// What a list on a screen would show: it reads only the rows that the model announces.
struct View {
    explicit View(const TableModel& model) {
        const auto read = [this, &model](int first, int last) {
            for (int row = first; row <= last; ++row) {
                shown[row] = lineOf(model, row);
            }
        };
        QObject::connect(&model, &QAbstractItemModel::rowsInserted, &context,
                         [this, read](const QModelIndex&, int first, int last) {
                             shown.insert(first, last - first + 1, QString());
                             read(first, last);
                         });
        QObject::connect(
            &model, &QAbstractItemModel::rowsRemoved, &context,
            [this](const QModelIndex&, int first, int last) { shown.remove(first, last - first + 1); });
        QObject::connect(&model, &QAbstractItemModel::rowsMoved, &context,
                         [this](const QModelIndex&, int from, int, const QModelIndex&, int to) {
                             shown.move(from, to > from ? to - 1 : to);
                         });
        QObject::connect(
            &model, &QAbstractItemModel::dataChanged, &context,
            [read](const QModelIndex& first, const QModelIndex& last) { read(first.row(), last.row()); });
        QObject::connect(&model, &QAbstractItemModel::modelReset, &context,
                         [] { ADD_FAILURE() << "a reset loses the place in the list"; });
    }
    QObject context;
    QStringList shown;
};

TEST(TableModelTest, FollowsTheTableThroughAnyChanges) {
    std::mt19937 random(7);
    const auto screen = std::make_shared<Screen>();
    TableModel model(screen, kLocale, nullptr);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    View view(model);
    for (int step = 0; step < 500; ++step) {
        screen->table().setSections(randomSections(random));
        ASSERT_EQ(linesOf(model), linesOf(screen->table())) << "step " << step;
        ASSERT_EQ(view.shown, linesOf(screen->table())) << "step " << step;
    }
}

TEST(TableModelTest, ChangesOfOneRowAreAnnouncedForThatRow) {
    const auto screen = std::make_shared<Screen>();
    Section section{u"s"_s};
    for (int row = 0; row < 10; ++row) {
        section.rows.push_back(textRow(u"s"_s, QString::number(row)));
    }
    screen->table().setSections({section});
    TableModel model(screen, kLocale, nullptr);
    QStringList changes;
    QObject::connect(&model, &QAbstractItemModel::dataChanged, &model,
                     [&](const QModelIndex& first, const QModelIndex& last, const QList<int>& roles) {
                         if (roles.contains(TableModel::RowRole)) {
                             changes << u"%1-%2"_s.arg(first.row()).arg(last.row());
                         }
                     });
    screen->table().setRow(textRow(u"s"_s, u"4"_s, u"other"_s));
    EXPECT_EQ(changes, QStringList{u"4-4"_s});
    changes.clear();
    model.tap(2);
    model.tap(3);
    EXPECT_EQ(changes, QStringList({u"2-2"_s, u"2-2"_s, u"3-3"_s})) << "selected, deselected";
}

TEST(TableModelTest, RowsMoveWithinTheirSectionOnly) {
    const auto screen = std::make_shared<Screen>();
    std::vector<Section> sections;
    for (const QString& id : {u"a"_s, u"b"_s}) {
        sections.push_back({id});
        for (int row = 0; row < 3; ++row) {
            sections.back().rows.push_back(textRow(id, id + QString::number(row)));
            sections.back().rows.back().movable = true;
        }
    }
    screen->table().setSections(sections);
    screen->table().setEditing(true);
    TableModel model(screen, kLocale, nullptr);
    const struct {
        int row;
        int next;
        QStringList events;
    } cases[] = {
        {0, 2, {u"a0 before a2"_s}},
        {2, 0, {u"a2 before a0"_s}},
        {0, 3, {u"a0 before the end"_s}},
        {4, 3, {u"b1 before b0"_s}},
        {3, 6, {u"b0 before the end"_s}},
        {0, 0, {}},
        {0, 1, {}},
        {0, 4, {}},
        {3, 2, {}},
        {5, 7, {}},
        {-1, 0, {}},
    };
    for (const auto& each : cases) {
        screen->events.clear();
        model.moveBefore(each.row, each.next);
        EXPECT_EQ(screen->events, each.events) << each.row << " before " << each.next;
    }
}

TEST(AccessibleNameTest, SaysWhatTheColoursAndSymbolsShow) {
    const std::pair<RowContent, QString> cases[] = {
        {ShowRow{.startTime = u"20:15"_s,
                 .endTime = u"21:00"_s,
                 .title = u"Title"_s,
                 .details = u"Details"_s,
                 .running = true,
                 .favourite = true,
                 .alarmed = true,
                 .popular = true},
         u"20:15–21:00, Title, On now, Favourite, Alarm set, Popular, Details"_s},
        {ShowRow{.startTime = u"20:15"_s, .title = u"Title"_s}, u"20:15, Title"_s},
        {ShowRow{.startTime = u"20:15"_s, .title = u"Title"_s, .alarmed = true, .alarmLead = u"10 min"_s},
         u"20:15, Title, Alarm set, 10 min"_s},
        {ChannelRow{.title = u"One"_s, .checked = true, .accessory = Accessory::Spinner},
         u"One, Selected, Loading"_s},
        {ChoiceRow{.title = u"Order"_s, .choices = {u"A"_s, u"B"_s}, .chosen = 1}, u"Order, B"_s},
        {ChoiceRow{.title = u"Order"_s, .choices = {u"A"_s}}, u"Order"_s},
        {InputRow{.title = {}, .placeholder = u"Address"_s, .error = u"No host"_s}, u"Address, No host"_s},
        {TimeRow{u"From"_s, QTime(6, 0)}, u"From, 06:00am"_s},
        {ProgressRow{u"Loading"_s, 0.25}, u"Loading, 25%"_s},
        {DayBarRow{{{0, 60}}, {u"0"_s, u"24"_s}, u"Silent until 1"_s}, u"Silent until 1"_s},
    };
    for (const auto& [content, name] : cases) {
        EXPECT_EQ(accessibleName(content, kLocale), name);
    }
}

} // namespace
} // namespace guide::test
