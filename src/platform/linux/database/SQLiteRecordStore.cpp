#include "platform/linux/database/SQLiteRecordStore.h"

#include <QDebug>
#include <QFile>

#include <algorithm>
#include <limits>
#include <sqlite3.h>

namespace guide {

namespace {

// Another process may be writing.
constexpr int kPatienceMilliseconds = 10'000;

constexpr auto kSchema = "create table if not exists counters ("
                         "title text primary key, counter integer not null, modified integer not null) "
                         "without rowid;"
                         "create index if not exists counters_modified on counters (modified desc, title);";

} // namespace

/// Requires the guard while it lives.
class SQLiteRecordStore::Statement {
  public:
    Statement(sqlite3* database, const char* text) {
        if (database != nullptr) {
            sqlite3_prepare_v2(database, text, -1, &m_statement, nullptr);
        }
    }
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    ~Statement() { sqlite3_finalize(m_statement); }

    Statement& bind(std::int64_t number) {
        sqlite3_bind_int64(m_statement, ++m_bound, number);
        return *this;
    }
    Statement& bind(const QString& text) {
        const QByteArray utf8 = text.toUtf8();
        sqlite3_bind_text64(m_statement, ++m_bound, utf8.constData(),
                            static_cast<sqlite3_uint64>(utf8.size()), SQLITE_TRANSIENT, SQLITE_UTF8);
        return *this;
    }
    /// SQLITE_ROW, SQLITE_DONE or an error.
    int step() { return sqlite3_step(m_statement); }
    /// Whether the statement, which gives no rows, was carried out; it may be bound and run again.
    bool run() {
        const bool isDone = step() == SQLITE_DONE;
        sqlite3_reset(m_statement);
        m_bound = 0;
        return isDone;
    }
    /// Of the columns title, counter, modified.
    CounterRecord record() const {
        const auto* const title = reinterpret_cast<const char*>(sqlite3_column_text(m_statement, 0));
        return {QString::fromUtf8(title, sqlite3_column_bytes(m_statement, 0)),
                sqlite3_column_int64(m_statement, 1),
                Moment(std::chrono::milliseconds(sqlite3_column_int64(m_statement, 2)))};
    }

  private:
    sqlite3_stmt* m_statement = nullptr;
    int m_bound = 0;
};

void SQLiteRecordStore::Close::operator()(sqlite3* database) const {
    sqlite3_close(database);
}

SQLiteRecordStore::SQLiteRecordStore(const QString& path, const Clock& clock)
    : m_clock(clock) {
    sqlite3* database = nullptr;
    const int opened =
        sqlite3_open_v2(QFile::encodeName(path).constData(), &database,
                        SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_FULLMUTEX, nullptr);
    m_database.reset(database);
    if (opened == SQLITE_OK) {
        sqlite3_busy_timeout(database, kPatienceMilliseconds);
        // A killed process loses nothing; a power failure may lose the last increments.
        if (execute("pragma journal_mode = wal; pragma synchronous = normal;") && execute(kSchema)) {
            return;
        }
    }
    qWarning("The counters of this device cannot be opened");
    m_database.reset();
}

SQLiteRecordStore::~SQLiteRecordStore() = default;

bool SQLiteRecordStore::execute(const char* statement) {
    return sqlite3_exec(m_database.get(), statement, nullptr, nullptr, nullptr) == SQLITE_OK;
}

bool SQLiteRecordStore::end(bool isDone) {
    if (isDone && execute("commit")) {
        return true;
    }
    execute("rollback");
    return false;
}

std::optional<CounterRecord> SQLiteRecordStore::counter(const QString& title) {
    const std::lock_guard lock(m_guard);
    Statement statement(m_database.get(), "select title, counter, modified from counters where title = ?");
    return statement.bind(title).step() == SQLITE_ROW ? std::optional(statement.record()) : std::nullopt;
}

bool SQLiteRecordStore::setCounter(const QString& title, std::int64_t counter) {
    const std::lock_guard lock(m_guard);
    return Statement(m_database.get(), "insert or replace into counters values (?, ?, ?)")
        .bind(title)
        .bind(counter)
        .bind(std::int64_t{m_clock.now().time_since_epoch().count()})
        .run();
}

bool SQLiteRecordStore::incrementCounter(const QString& title, std::int64_t amount, const CounterRule& rule) {
    const std::lock_guard lock(m_guard);
    const std::int64_t now = m_clock.now().time_since_epoch().count();
    if (!m_database || !execute("begin immediate")) {
        return false;
    }
    bool isDone = true;
    bool isRemoved = false;
    if (rule.removesBelowOne) {
        isDone = Statement(m_database.get(), "delete from counters where title = ? and counter + ? < 1")
                     .bind(title)
                     .bind(amount)
                     .run();
        isRemoved = isDone && sqlite3_changes(m_database.get()) > 0;
    }
    if (isDone && !isRemoved) {
        isDone = Statement(m_database.get(),
                           rule.makesMissing
                               ? "insert into counters values (?1, ?2, ?3) on conflict (title) do update "
                                 "set counter = counter + excluded.counter, modified = excluded.modified"
                               : "update counters set counter = counter + ?2, modified = ?3 where title = ?1")
                     .bind(title)
                     .bind(amount)
                     .bind(now)
                     .run();
    }
    return end(isDone);
}

bool SQLiteRecordStore::removeCounters(const std::vector<QString>& titles) {
    const std::lock_guard lock(m_guard);
    if (!m_database || !execute("begin immediate")) {
        return false;
    }
    Statement remove(m_database.get(), "delete from counters where title = ?");
    const bool isDone =
        std::ranges::all_of(titles, [&](const QString& title) { return remove.bind(title).run(); });
    return end(isDone);
}

std::optional<std::vector<CounterRecord>> SQLiteRecordStore::countersByModification(std::size_t limit) {
    const std::lock_guard lock(m_guard);
    Statement statement(
        m_database.get(),
        "select title, counter, modified from counters order by modified desc, title limit ?");
    const auto most = std::min<std::uint64_t>(limit, std::numeric_limits<std::int64_t>::max());
    statement.bind(static_cast<std::int64_t>(most));
    std::vector<CounterRecord> records;
    int step = statement.step();
    for (; step == SQLITE_ROW; step = statement.step()) {
        records.push_back(statement.record());
    }
    return step == SQLITE_DONE ? std::optional(std::move(records)) : std::nullopt;
}

} // namespace guide
