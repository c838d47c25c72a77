#include "ui/TableModel.h"

#include <QAbstractItemModelTester>
#include <QStringList>

#include <gtest/gtest.h>
#include <random>

namespace guide::test {

using namespace Qt::StringLiterals;

namespace {

std::vector<Row> someRows(std::mt19937& random, int most) {
    std::vector<Row> rows(random() % static_cast<unsigned>(most + 1));
    for (Row& row : rows) {
        row.text.append(QString::number(random() % 5), TextStyle::Title, ColorRole::Label);
    }
    return rows;
}

QStringList titlesOf(const Table& table) {
    QStringList titles;
    for (const Section& section : table.sections()) {
        for (const Row& row : section.rows) {
            titles << section.title + u'/' + row.text.plain();
        }
    }
    return titles;
}

QStringList titlesOf(const QAbstractItemModel& model) {
    QStringList titles;
    for (int row = 0; row < model.rowCount(); ++row) {
        titles << model.index(row, 0).data(TableModel::SectionTitleRole).toString() + u'/' +
                      model.index(row, 0).data(TableModel::TitleRole).toString();
    }
    return titles;
}

// Shows what a list on a screen would: it only looks again at rows that it is told of.
struct View {
    explicit View(const TableModel& model) {
        QObject::connect(&model, &QAbstractItemModel::rowsInserted, &context,
                         [this, &model](const QModelIndex&, int first, int last) {
                             for (int row = first; row <= last; ++row) {
                                 shown.insert(row, QString());
                             }
                             look(model, first, last);
                         });
        QObject::connect(
            &model, &QAbstractItemModel::rowsRemoved, &context,
            [this](const QModelIndex&, int first, int last) { shown.remove(first, last - first + 1); });
        QObject::connect(&model, &QAbstractItemModel::dataChanged, &context,
                         [this, &model](const QModelIndex& first, const QModelIndex& last) {
                             look(model, first.row(), last.row());
                         });
        QObject::connect(&model, &QAbstractItemModel::modelReset, &context,
                         [] { ADD_FAILURE() << "a reset loses the place in the list"; });
    }
    void look(const TableModel& model, int first, int last) {
        const QStringList now = titlesOf(model);
        for (int row = first; row <= last; ++row) {
            shown[row] = now.value(row);
        }
    }
    QObject context;
    QStringList shown;
};

TEST(TableModelTest, TheListFollowsTheTableThroughAnyChanges) {
    std::mt19937 random(7);
    const auto screen = std::make_shared<ViewController>();
    TableModel model(screen, nullptr);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    View view(model);
    for (int step = 0; step < 500; ++step) {
        Table& table = screen->table();
        if (table.sections().empty() || random() % 4 == 0) {
            std::vector<Section> sections(random() % 5);
            for (Section& section : sections) {
                section.title = QString::number(random() % 3);
                section.rows = someRows(random, 4);
            }
            table.reload(std::move(sections));
        } else {
            const auto section = static_cast<int>(random() % table.sections().size());
            table.updateSection(section, someRows(random, 6));
        }
        ASSERT_EQ(titlesOf(model), titlesOf(table)) << "step " << step;
        ASSERT_EQ(view.shown, titlesOf(table)) << "step " << step;
    }
}

TEST(TableModelTest, SpeaksWhatTheColoursTell) {
    const auto screen = std::make_shared<ViewController>();
    TableModel model(screen, nullptr);
    Row row;
    row.text.append(u"20:15"_s, TextStyle::Time, ColorRole::Running);
    row.text.append(u" Title"_s, TextStyle::Title, ColorRole::Label);
    row.endTime.append(u"21:00"_s, TextStyle::RaisedTime, ColorRole::SecondaryLabel);
    row.spokenState = u"On now"_s;
    screen->table().reload({{QString(), {row}}});
    EXPECT_EQ(model.index(0).data(TableModel::SpokenRole).toString(), u"20:15–21:00, Title, On now"_s);
    EXPECT_EQ(model.index(0).data(TableModel::StartTimeColorRole).toInt(),
              static_cast<int>(ColorRole::Running));
}

} // namespace

} // namespace guide::test
