// Two devices of one user, each a process, follow each other over real stores that fail in every way.
#include "GuideProcess.h"
#include "SharedPlaces.h"
#include "TestEnvironment.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>

#include <algorithm>
#include <gtest/gtest.h>
#include <iostream>

namespace guide::test {
namespace {

using namespace Qt::StringLiterals;

/// From the environment, or the fixed one.
int setting(const char* name, int usual) {
    bool isNumber = false;
    const int value = qEnvironmentVariable(name).toInt(&isNumber);
    return isNumber ? value : usual;
}

std::string text(const SharedTexts& values) {
    QStringList lines;
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        lines << u"  %1: %2\n"_s.arg(value.key(), *value);
    }
    return lines.join(QString()).toStdString();
}

class TwoGuides {
  public:
    TwoGuides(PlaceUnderTest& place, unsigned seed)
        : m_place(place)
        , m_random(seed) {
        for (GuideProcess* guide : {&m_guides[0], &m_guides[1]}) {
            guide->start();
        }
    }

    /// Random steps, after which everything must settle.
    void round() {
        m_steps.clear();
        m_sets.clear();
        m_sure.clear();
        m_sources.clear();
        m_killed = {};
        m_own = {m_settled, m_settled};
        for (int left = 3 + m_random.below(6); left > 0; --left) {
            step();
        }
        settle();
        expectRight();
    }

    /// Waits until both devices have what the place has.
    void settle() {
        m_place.recover();
        for (std::size_t i = 0; i < m_guides.size(); ++i) {
            if (!m_guides[i].isRunning()) {
                m_guides[i].start();
            }
        }
        QElapsedTimer timer;
        timer.start();
        for (qint64 retries = 0; !isSettled();) {
            if (timer.elapsed() >= 200 * retries) {
                ++retries;
                m_guides[0].retry();
                m_guides[1].retry();
            }
            if (timer.elapsed() > kPatience || testing::Test::HasFailure()) {
                const auto stored = m_place.values();
                ADD_FAILURE() << "not settled:\n"
                              << text(m_states[0].values) << "other:\n"
                              << text(m_states[1].values) << "stored:\n"
                              << (stored ? text(*stored) : "  differs\n") << m_states[0].isReady
                              << m_states[1].isReady << steps();
                return;
            }
            m_place.replicate();
            QThread::msleep(5);
        }
        m_settled = m_states[0].values;
        // The last of several changes may still be on its way.
        m_guides[0].flush();
        m_guides[1].flush();
    }

    /// Neither writes anything although nothing has changed.
    void expectSilence(unsigned long milliseconds) {
        const QString writes = m_place.writes();
        for (GuideProcess& guide : m_guides) {
            guide.activate();
        }
        QThread::msleep(milliseconds);
        m_place.replicate();
        EXPECT_EQ(m_place.writes(), writes) << steps();
        for (GuideProcess& guide : m_guides) {
            EXPECT_EQ(text(guide.state().values), text(m_settled)) << steps();
        }
    }

    /// Settings that a device makes without the place outlive its end and reach the other one.
    void setWithoutPlace(bool isKilled) {
        m_place.lose(0);
        SharedTexts expected;
        for (const QString& key : kSharedSettings) {
            expected[key] = m_guides[0].change(key, randomChange(key)).values.value(key);
        }
        if (isKilled) {
            m_guides[0].flush();
            m_guides[0].kill();
        } else {
            m_guides[0].end();
        }
        m_guides[0].start();
        const SharedTexts known = m_guides[0].state().values;
        settle();
        for (const QString& key : kSharedSettings) {
            EXPECT_EQ(known.value(key), expected.value(key)) << key.toStdString();
            EXPECT_EQ(m_settled.value(key), expected.value(key)) << key.toStdString();
        }
    }

    /// The longest time until the other device had a change, counted from its arrival, in milliseconds.
    qint64 longestDelay(int changes) {
        qint64 longest = 0;
        for (int i = 0; i < changes; ++i) {
            const std::size_t from = i % 2;
            const QString key = (kSharedLists + kSharedSettings)[i % 6];
            const QString expected = m_guides[from].change(key, randomChange(key)).values.value(key);
            const auto isStored = [&] {
                const auto stored = m_place.values();
                return stored && stored->value(key) == expected;
            };
            QElapsedTimer timer;
            timer.start();
            if (m_place.isReplicatedByTool()) {
                // The list is stored in the background.
                while (!isStored() && timer.elapsed() < kPatience) {
                    m_place.replicate();
                }
                timer.start();
            }
            while (m_guides[1 - from].state().values.value(key) != expected && timer.elapsed() < kPatience) {
                QThread::msleep(1);
            }
            longest = std::max(longest, timer.elapsed());
        }
        return longest;
    }

  private:
    static constexpr int kPatience = 60'000;
    static constexpr int kKeeping = 10'000;

    void step() {
        const int i = m_random.below(2);
        GuideProcess& guide = m_guides[static_cast<std::size_t>(i)];
        const int kind = m_random.below(20);
        if (kind < 10) {
            if (!guide.isRunning()) {
                note(u"%1 starts"_s.arg(i));
                guide.start();
            }
            change(i);
        } else if (kind < 13) {
            if (guide.isRunning()) {
                note(u"%1 is killed"_s.arg(i));
                guide.kill();
                m_killed[static_cast<std::size_t>(i)] = true;
                for (int& devices : m_sure) {
                    devices &= ~(1 << i);
                }
                for (SourceChange& each : m_sources) {
                    each.isSure = each.isSure && each.device != i;
                }
            }
            if (m_random.below(2) == 0) {
                note(u"%1 starts"_s.arg(i));
                guide.start();
            }
        } else if (kind < 14) {
            if (guide.isRunning()) {
                note(u"%1 ends and starts"_s.arg(i));
                guide.end();
            }
            guide.start();
        } else if (kind < 18) {
            note(m_place.disturb(m_random));
        } else {
            QThread::msleep(static_cast<unsigned long>(m_random.below(40)));
        }
    }

    void change(int device) {
        const QStringList keys = kSharedLists + kSharedLists + kSharedSettings + QStringList(kSharedSources);
        const QString key = keys[m_random.below(static_cast<int>(keys.size()))];
        const QString what = randomChange(key);
        const GuideState state = m_guides[static_cast<std::size_t>(device)].change(key, what);
        note(u"%1 changes %2: %3%4"_s.arg(device).arg(key, what, state.isChanged ? QString() : u" (same)"_s));
        if (state.isChanged && key == kSharedSources) {
            m_sources.push_back({what.section(u' ', 1), what.startsWith(u"add"_s), device, true});
        } else if (state.isChanged) {
            m_sets[key] << state.values.value(key);
            m_sure[key] |= 1 << device;
            m_own[static_cast<std::size_t>(device)][key] = state.values.value(key);
        }
    }

    QString randomChange(const QString& key) {
        if (key == kSharedLists[0]) {
            return (m_random.below(3) > 0 ? u"add Title%1"_s : u"remove Title%1"_s).arg(m_random.below(6));
        }
        if (key == kSharedLists[1]) {
            QStringList numbers;
            for (int number = 1; number < 6; ++number) {
                numbers.insert(m_random.below(static_cast<int>(numbers.size()) + 1), QString::number(number));
            }
            // An empty selection is not shared.
            return numbers.mid(m_random.below(5)).join(u' ');
        }
        if (key == kSharedSources) {
            // What was removed does not come back.
            return m_random.below(2) == 0 ? u"add %1"_s.arg(++m_lastSource)
                                          : u"remove %1"_s.arg(m_lastSource - m_random.below(3));
        }
        return QString::number(m_random.below(1440));
    }

    bool isSettled() {
        for (std::size_t i = 0; i < m_guides.size(); ++i) {
            m_states[i] = m_guides[i].state();
        }
        if (!m_states[0].isReady || !m_states[1].isReady || m_states[0].values != m_states[1].values) {
            return false;
        }
        auto stored = m_place.values();
        for (const QString& key : kSharedLists + kSharedSettings + QStringList(kSharedSources)) {
            if (!stored || stored->value(key) != m_states[0].values.value(key)) {
                return false;
            }
        }
        return true;
    }

    void expectRight() {
        for (std::size_t i = 0; i < m_guides.size(); ++i) {
            m_states[i] = m_guides[i].kept();
        }
        for (const QString& key : kSharedLists + kSharedSettings) {
            const QString value = m_settled.value(key);
            QStringList possible = m_sets.value(key);
            if (m_sure.value(key) == 0) {
                possible << m_before.value(key);
            }
            EXPECT_TRUE(possible.contains(value))
                << key.toStdString() << " is " << value.toStdString() << ", none of\n  "
                << possible.join(u"\n  "_s).toStdString() << steps();
        }
        for (const QString& key : kSharedLists) {
            const QString value = m_settled.value(key);
            EXPECT_EQ(QStringList(value.split(u' ')).removeDuplicates(), 0) << value.toStdString();
            for (std::size_t i = 0; i < m_guides.size(); ++i) {
                const QString own = m_own[i].value(key);
                // What it set before it was killed may be lost.
                if (!own.isEmpty() && !holds(value, own) && !(m_killed[i] && own != m_before.value(key))) {
                    expectKept(i, key, own);
                }
                EXPECT_LE(m_states[i].kept.value(key).size(), 10);
            }
        }
        expectRightSources();
        m_before = m_settled;
    }

    /// Whether all elements of the part are in the list.
    static bool holds(const QString& list, const QString& part) {
        const QStringList elements = list.split(u' ');
        return std::ranges::all_of(part.split(u' '),
                                   [&elements](const QString& each) { return elements.contains(each); });
    }

    void expectRightSources() {
        const QStringList now = m_settled.value(kSharedSources).split(u' ', Qt::SkipEmptyParts);
        QStringList possible = m_before.value(kSharedSources).split(u' ', Qt::SkipEmptyParts);
        QStringList sure = possible;
        for (const SourceChange& each : m_sources) {
            QStringList& added = each.isSure ? sure : possible;
            if (each.isAdded) {
                possible << each.number;
                added << each.number;
            }
        }
        for (const SourceChange& each : m_sources) {
            if (!each.isAdded) {
                sure.removeAll(each.number);
                if (each.isSure) {
                    possible.removeAll(each.number);
                }
            }
        }
        for (const QString& number : now) {
            EXPECT_TRUE(possible.contains(number)) << "source " << number.toStdString() << steps();
        }
        for (const QString& number : std::as_const(sure)) {
            EXPECT_TRUE(now.contains(number)) << "no source " << number.toStdString() << steps();
        }
    }

    /// Lists are kept in the background.
    void expectKept(std::size_t device, const QString& key, const QString& list) {
        const auto isKept = [&] {
            return std::ranges::any_of(m_states[device].kept.value(key),
                                       [&list](const QString& kept) { return holds(kept, list); });
        };
        QElapsedTimer timer;
        timer.start();
        while (!isKept() && timer.elapsed() < kKeeping) {
            QThread::msleep(5);
            m_states[device] = m_guides[device].kept();
        }
        const QStringList kept = m_states[device].kept.value(key);
        EXPECT_TRUE(isKept()) << device << " lost " << key.toStdString() << " = " << list.toStdString()
                              << ", it kept\n  " << kept.join(u"\n  "_s).toStdString() << steps();
    }

    void note(const QString& step) { m_steps << step; }
    std::string steps() const { return "\nafter:\n  " + m_steps.join(u"\n  "_s).toStdString(); }

    PlaceUnderTest& m_place;
    Random m_random;
    const QTemporaryDir m_profiles;
    // Their clocks disagree by an hour.
    std::array<GuideProcess, 2> m_guides{
        GuideProcess(m_profiles.filePath(u"phone"_s), m_place.addressFor(0), u"phone"_s, 1),
        GuideProcess(m_profiles.filePath(u"desk"_s), m_place.addressFor(1), u"desk"_s, 0)};
    std::array<GuideState, 2> m_states;

    SharedTexts m_settled;
    // Of the current round.
    SharedTexts m_before;
    QStringList m_steps;
    /// What the devices set, by key.
    QMap<QString, QStringList> m_sets;
    /// The devices whose change of the key cannot be lost, as bits.
    QMap<QString, int> m_sure;
    std::array<bool, 2> m_killed{};
    struct SourceChange {
        QString number;
        bool isAdded;
        int device;
        /// It cannot be lost.
        bool isSure;
    };
    std::vector<SourceChange> m_sources;
    int m_lastSource = 0;
    /// What each device had of its own.
    std::array<SharedTexts, 2> m_own;
};

struct PlaceKind {
    const char* name;
    std::unique_ptr<PlaceUnderTest> (*make)();
    int rounds;
};

class TwoGuidesTest : public testing::TestWithParam<PlaceKind> {
  protected:
    const std::unique_ptr<PlaceUnderTest> place{GetParam().make()};
};

TEST_P(TwoGuidesTest, FollowEachOtherAtOnce) {
    TwoGuides guides(*place, 1);
    guides.settle();
    const qint64 longest = guides.longestDelay(setting("QUELLIN_GUIDES_CHANGES", 12));
    std::cout << "longest delay: " << longest << " ms\n";
    // Two seconds on a machine that has nothing else to do.
    EXPECT_LT(longest, 10'000);
}

TEST_P(TwoGuidesTest, WhatIsSetWithoutThePlaceArrives) {
    TwoGuides guides(*place, 1);
    guides.settle();
    guides.setWithoutPlace(false);
    guides.setWithoutPlace(true);
}

TEST_P(TwoGuidesTest, AgreeAfterFaults) {
    const int seed = setting("QUELLIN_GUIDES_SEED", 20'261'123);
    const int rounds = setting("QUELLIN_GUIDES_ROUNDS", GetParam().rounds);
    TwoGuides guides(*place, static_cast<unsigned>(seed));
    for (int round = 0; round < rounds && !HasFailure(); ++round) {
        SCOPED_TRACE(testing::Message() << "QUELLIN_GUIDES_SEED=" << seed << ", round " << round);
        guides.round();
    }
    guides.expectSilence(static_cast<unsigned long>(setting("QUELLIN_GUIDES_SILENCE", 600)));
}

INSTANTIATE_TEST_SUITE_P(
    Places, TwoGuidesTest,
    testing::Values(
        PlaceKind{"Folder",
                  []() -> std::unique_ptr<PlaceUnderTest> { return std::make_unique<FolderPlace>(); }, 8},
        PlaceKind{"Database",
                  []() -> std::unique_ptr<PlaceUnderTest> { return std::make_unique<DatabasePlace>(); }, 10}),
    [](const auto& kind) { return std::string(kind.param.name); });

} // namespace
} // namespace guide::test

int main(int argc, char** argv) {
    guide::test::useTestEnvironment();
    if (QFileInfo(QStringLiteral("/dev/shm")).isWritable()) {
        // Waiting for a disk would take most of the time.
        qputenv("TMPDIR", "/dev/shm");
    }
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1StringView("--device")) {
        return guide::test::runGuideProcess(arguments.mid(2));
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
