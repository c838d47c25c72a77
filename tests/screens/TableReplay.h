#pragma once

#include "screens/kit/Table.h"

#include <QStringList>

#include <functional>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace guide::test {

using namespace Qt::StringLiterals;

/// Replays the announcements of a table, and checks after each one that the table is in the announced state.
class TableReplay final : public TableObserver {
  public:
    explicit TableReplay(Table& table)
        : m_table(table) {
        for (int row = 0; row < m_table.rowCount(); ++row) {
            m_rows.push_back(m_table.rowAt(row));
            m_headers << m_table.sectionAt(row).header;
        }
        m_table.setObserver(this);
    }
    ~TableReplay() override { m_table.setObserver(nullptr); }

    void tableWillChange() override {
        EXPECT_FALSE(m_changing);
        m_changing = true;
        check();
    }
    void tableDidChange() override {
        m_changing = false;
        check();
    }
    void rowsWillBeRemoved(int first, int count) override {
        begin(u"remove %1+%2"_s.arg(first).arg(count));
        m_rows.erase(m_rows.begin() + first, m_rows.begin() + first + count);
        m_headers.remove(first, count);
    }
    void rowsRemoved() override { check(); }
    void rowWillMove(int from, int to) override {
        begin(u"move %1>%2"_s.arg(from).arg(to));
        const Row row = m_rows[static_cast<std::size_t>(from)];
        m_rows.erase(m_rows.begin() + from);
        m_rows.insert(m_rows.begin() + to, row);
        m_headers.move(from, to);
    }
    void rowMoved() override { check(); }
    void rowsWillBeInserted(int first, int count) override {
        begin(u"insert %1+%2"_s.arg(first).arg(count));
        m_firstInserted = first;
        m_insertedCount = count;
    }
    void rowsInserted() override {
        for (int row = m_firstInserted; row < m_firstInserted + m_insertedCount; ++row) {
            m_rows.insert(m_rows.begin() + row, m_table.rowAt(row));
            m_headers.insert(row, m_table.sectionAt(row).header);
        }
        check();
    }
    void rowsUpdated(int first, int count) override {
        log << u"update %1+%2"_s.arg(first).arg(count);
        for (int row = first; row < first + count; ++row) {
            Row& shown = m_rows[static_cast<std::size_t>(row)];
            EXPECT_NE(shown, m_table.rowAt(row)) << "announced although unchanged";
            EXPECT_EQ(shown.kind(), m_table.rowAt(row).kind());
            shown = m_table.rowAt(row);
        }
        check();
    }
    void sectionsUpdated(int first, int count) override {
        log << u"headings %1+%2"_s.arg(first).arg(count);
        for (int row = first; row < first + count; ++row) {
            EXPECT_NE(std::exchange(m_headers[row], m_table.sectionAt(row).header),
                      m_table.sectionAt(row).header);
        }
    }
    void rowSelectionChanged(std::optional<int> before, std::optional<int> after) override {
        log << u"select %1>%2"_s.arg(before.value_or(-1)).arg(after.value_or(-1));
    }
    void emptyNoteChanged() override { log << u"note"_s; }
    void editingChanged() override { log << u"editing"_s; }

    void expectComplete() const {
        EXPECT_FALSE(m_changing);
        QStringList headers;
        std::size_t place = 0;
        for (const Section& each : m_table.sections()) {
            for (const Row& row : each.rows) {
                headers << each.header;
                ASSERT_LT(place, m_rows.size());
                EXPECT_EQ(m_rows[place++], row);
            }
        }
        EXPECT_EQ(m_headers, headers);
        for (int row = 0; row < m_table.rowCount(); ++row) {
            EXPECT_EQ(m_table.indexOf(m_table.rowAt(row).id), row);
        }
    }

    QStringList log;
    /// Called at the first step of the next change.
    std::function<void()> atFirstStep;

  private:
    void begin(const QString& step) {
        check();
        log << step;
        if (const auto call = std::exchange(atFirstStep, nullptr)) {
            call();
        }
    }
    void check() const {
        ASSERT_EQ(static_cast<std::size_t>(m_table.rowCount()), m_rows.size());
        for (int row = 0; row < m_table.rowCount(); ++row) {
            ASSERT_EQ(m_table.rowAt(row), m_rows[static_cast<std::size_t>(row)]) << row;
        }
    }

    Table& m_table;
    bool m_changing = false;
    std::vector<Row> m_rows;
    QStringList m_headers;
    int m_firstInserted = 0;
    int m_insertedCount = 0;
};

} // namespace guide::test
