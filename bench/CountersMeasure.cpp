// What increments by 200 guides at once cost, against pgbench with the same statement, and the most watched
// titles among a million. On a PostgreSQL server that waits for the disk.
#include "platform/database/PostgresServer.h"
#include "platform/database/TestGuide.h"

#include <QProcess>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <latch>
#include <thread>

namespace guide::bench {

namespace {

using namespace Qt::StringLiterals;

constexpr int kRounds = 3;
constexpr int kGuides = 200;
constexpr int kIncrements = 50;
constexpr int kTitles = 1'000'000;
constexpr int kWanted = 1'000;
constexpr int kAmount = 2;
constexpr double kLongestQuery = 50;

void require(bool isTrue, const QString& what) {
    if (!isTrue) {
        std::fprintf(stderr, "%s\n", qPrintable(what));
        std::exit(1);
    }
}

template <typename Work>
double milliseconds(Work work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

double median(std::array<double, kRounds> times) {
    std::ranges::sort(times);
    return times[kRounds / 2];
}

/// Titles of which some are far more popular than others.
QString title(int guide, int increment) {
    const int draw = (guide * 7919 + increment * 104'729) % 1'000;
    return u"Title %1"_s.arg(draw * draw / 1'000);
}

class Measure {
  public:
    Measure() {
        m_server.query(u"alter system set fsync = on"_s);
        m_server.query(u"alter system set max_connections = 500"_s);
        m_server.query(u"alter system set shared_buffers = '256MB'"_s);
        m_server.query(u"update guide.limits set increments_per_hour = 1000000000"_s);
        m_server.stop();
        m_server.start();
        for (int i = 0; i < kGuides; ++i) {
            m_guides.push_back(
                std::make_unique<test::TestGuide>(m_loop, m_server.addUser(u"user%1"_s.arg(i)), u"Phone"_s));
        }
        for (const auto& guide : m_guides) {
            require(guide->waitForConnection(), u"a guide has no connection"_s);
        }
    }

    /// In milliseconds for each increment.
    double guides() {
        std::latch begin(kGuides + 1);
        std::vector<std::thread> threads;
        for (int i = 0; i < kGuides; ++i) {
            threads.emplace_back([&, i] {
                begin.arrive_and_wait();
                for (int j = 0; j < kIncrements; ++j) {
                    require(m_guides[std::size_t(i)]->records().incrementCounter(title(i, j), kAmount, {}),
                            u"an increment failed"_s);
                }
            });
        }
        begin.arrive_and_wait();
        const double time = milliseconds([&] { std::ranges::for_each(threads, &std::thread::join); });
        return time / (kGuides * kIncrements);
    }

    double pgbench() {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"script"_s);
        QFile script(path);
        require(script.open(QIODevice::WriteOnly), u"no script"_s);
        script.write("\\if :ready = 0\n"
                     "select set_config('session_authorization', 'user' || :client_id::text, false);\n"
                     // It logs in as the administrator and then is the user, on another device.
                     "select session from guide.hello(gen_random_uuid(), 'pgbench') \\gset\n"
                     "\\set ready 1\n"
                     "\\endif\n"
                     "\\set draw random(0, 999)\n"
                     "\\set number :draw * :draw / 1000\n"
                     "select guide.count_batch((:session)::uuid, gen_random_uuid(), array['Title ' || "
                     ":number::text], array[2], array[true], array[true]);\n");
        script.close();
        QProcess process;
        QString why;
        const QString socket = databaseAddress(m_server.address(), why)->host;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(u"/usr/lib/postgresql/15/bin/pgbench"_s, {u"-n"_s,
                                                                u"-M"_s,
                                                                u"extended"_s,
                                                                u"-h"_s,
                                                                socket,
                                                                u"-p"_s,
                                                                QString::number(m_server.port()),
                                                                u"-U"_s,
                                                                u"postgres"_s,
                                                                u"-D"_s,
                                                                u"ready=0"_s,
                                                                u"-c"_s,
                                                                QString::number(kGuides),
                                                                u"-j"_s,
                                                                u"2"_s,
                                                                u"-t"_s,
                                                                QString::number(kIncrements),
                                                                u"-f"_s,
                                                                path,
                                                                u"guide"_s});
        require(process.waitForFinished(300'000), u"pgbench does not end"_s);
        const QString output = QString::fromUtf8(process.readAll());
        const auto match = QRegularExpression(u"tps = ([0-9.]+)"_s).match(output);
        require(process.exitCode() == 0 && match.hasMatch() && output.contains(u"failed transactions: 0 "_s),
                output);
        return 1'000 / match.captured(1).toDouble();
    }

    /// Requires that no increment was lost or counted twice.
    void requireAll(int rounds) {
        m_server.query(u"select guide.fold(100000000)"_s);
        const QString total = m_server.query(u"select sum(count) from guide.counters"_s);
        require(total.toLongLong() == qint64{rounds} * 2 * kGuides * kIncrements * kAmount,
                u"counted "_s + total);
    }

    void fill() {
        m_server.query(
            u"insert into guide.counters select 'Other title ' || i, i % 9, "
            "now() - i * interval '10 seconds', i % 9 >= 3 from generate_series(1, %1) i"_s.arg(kTitles));
        m_server.query(u"vacuum analyze guide.counters"_s);
    }

    double popularByGuide() {
        require(m_guides[0]->records().incrementCounter(u"Title"_s, kAmount, {}), u"an increment failed"_s);
        std::size_t count = 0;
        const double time =
            milliseconds([&] { count = m_guides[0]->records().countersByModification(kWanted)->size(); });
        require(count == kWanted, u"some titles are missing"_s);
        return time;
    }

    double popularBySelect() {
        // With the time to connect, as little as it is through a socket.
        return milliseconds([&] {
            m_server.query(u"select title, count, modified from guide.counters where popular "
                           "order by modified desc, title limit %1"_s.arg(kWanted));
        });
    }

  private:
    test::TestLoop m_loop;
    test::PostgresServer m_server;
    std::vector<std::unique_ptr<test::TestGuide>> m_guides;
};

void print(const char* row, const std::array<double, kRounds>& guide,
           const std::array<double, kRounds>& floor, double atMost) {
    std::printf("{\"row\": \"%s\", \"unit\": \"ms\", \"guide\": %.3f, \"floor\": %.3f, \"atMost\": %g}\n",
                row, median(guide), median(floor), atMost);
}

} // namespace

int measure() {
    Measure measure;
    std::array<double, kRounds> guides{};
    std::array<double, kRounds> pgbench{};
    for (std::size_t round = 0; round < kRounds; ++round) {
        pgbench[round] = measure.pgbench();
        guides[round] = measure.guides();
    }
    measure.requireAll(kRounds);
    print("an increment by one of 200 guides", guides, pgbench, 1.3);

    measure.fill();
    std::array<double, kRounds> popular{};
    std::array<double, kRounds> select{};
    for (std::size_t round = 0; round < kRounds; ++round) {
        select[round] = measure.popularBySelect();
        popular[round] = measure.popularByGuide();
    }
    require(median(popular) < kLongestQuery, u"the most watched titles take %1 ms"_s.arg(median(popular)));
    print("1,000 most watched of a million titles", popular, select, 4);
    return 0;
}

} // namespace guide::bench

int main() {
    return guide::bench::measure();
}
