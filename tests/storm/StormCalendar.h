#pragma once

#include "fakes/AlarmWorld.h"
#include "platform/calendar/FolderCalendar.h"
#include "platform/calendar/RemoteCalendar.h"

#include <QDir>

#include <csignal>
#include <random>
#include <sys/resource.h>

namespace guide::test {

class StormRandom {
  public:
    explicit StormRandom(unsigned seed)
        : m_engine(seed) {}
    /// From 0 to `count` - 1.
    int below(int count) { return static_cast<int>(m_engine() % static_cast<unsigned>(count)); }
    int between(int least, int most) { return least + below(most - least + 1); }
    bool chance(int percent) { return below(100) < percent; }
    template <class List>
    auto& oneOf(List& list) {
        return list[static_cast<std::size_t>(below(static_cast<int>(std::size(list))))];
    }

  private:
    std::mt19937 m_engine;
};

/// As in a calendar.
inline QByteArray utc(Moment moment) {
    return QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count(), Qt::UTC)
        .toString(u"yyyyMMdd'T'HHmmss'Z'"_s)
        .toUtf8();
}

/// A calendar with the faults of its kind.
class StormCalendar {
  public:
    virtual ~StormCalendar() = default;
    virtual CalendarUnderTest& test() = 0;
    /// Starts a fault, which may be over soon.
    virtual void fail(StormRandom& random) = 0;
    /// Ends what fail() started, and waits until all that was written has arrived. Whether the guide may
    /// leave the calendar alone for a while.
    virtual bool recover() = 0;
};

class StormFolder final : public StormCalendar {
  public:
    StormFolder() {
        // A limit that is exceeded is then an error, as on a full disk.
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_unlimited);
        m_test.calendar();
    }
    ~StormFolder() override { recover(); }

    CalendarUnderTest& test() override { return m_test; }
    void fail(StormRandom& random) override {
        recover();
        if (random.chance(60)) {
            rlimit full = m_unlimited;
            full.rlim_cur = static_cast<rlim_t>(random.below(600));
            ::setrlimit(RLIMIT_FSIZE, &full);
        } else {
            m_isAway = QDir().rename(folder(), away());
            EXPECT_TRUE(m_isAway);
        }
    }
    bool recover() override {
        ::setrlimit(RLIMIT_FSIZE, &m_unlimited);
        if (m_isAway) {
            QDir(folder()).removeRecursively();
            EXPECT_TRUE(QDir().rename(away(), folder()));
            m_isAway = false;
        }
        return false;
    }

  private:
    QString folder() const { return m_test.parent() + u"/tv"_s; }
    QString away() const { return m_test.parent() + u"/../away"_s; }

    FolderCalendar m_test{u"guide"_s};
    rlimit m_unlimited{};
    bool m_isAway = false;
};

class StormDesktop final : public StormCalendar {
  public:
    CalendarUnderTest& test() override { return m_test; }
    void fail(StormRandom&) override { m_test.killService(); }
    bool recover() override {
        m_test.other.close();
        return false;
    }

  private:
    DesktopCalendar m_test{u"system-calendar"_s, u"guide"_s};
};

class StormServer final : public StormCalendar {
  public:
    /// A server that lets nobody in makes the service wait for a password, until calls have taken too long.
    explicit StormServer(bool isLockedAtTimes)
        : m_isLockedAtTimes(isLockedAtTimes) {
        EXPECT_TRUE(writeFile(m_rights, kReadOnly));
    }

    CalendarUnderTest& test() override { return m_test; }
    void fail(StormRandom& random) override {
        m_hasFailed = true;
        switch (random.below(m_isLockedAtTimes ? 5 : 4)) {
        case 0:
            m_test.server.stop();
            break;
        case 1:
            m_test.server.stop();
            m_test.desktop.killService();
            break;
        case 2:
            restart({u"--rights-type=from_file"_s, u"--rights-file="_s + m_rights});
            m_test.desktop.killService();
            break;
        case 3:
            m_test.desktop.killService();
            break;
        default:
            restart({u"--auth-type=http_x_remote_user"_s});
            m_isLocked = true;
        }
    }
    bool recover() override {
        if (std::exchange(m_hasFailed, false)) {
            restart({});
            m_test.desktop.killService();
            m_test.desktop.other.close();
        }
        const std::unique_ptr<EventStore> store = m_test.secondStore();
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                // Nobody enters a password here: the calendar is tried again when somebody opens it.
                m_test.desktop.other.open();
                store->refreshSources();
                return isSettled(*store);
            },
            60'000))
            << "the calendar and its server still differ: " << m_difference.toStdString();
        return std::exchange(m_isLocked, false);
    }

  private:
    static constexpr auto kReadOnly = "[all]\nuser: .*\ncollection: .*\npermissions: Rr\n";

    void restart(const QStringList& options) {
        m_test.server.stop();
        m_test.server.setOptions(options);
        m_test.server.start();
    }
    /// Whether the server has the events of the cache.
    bool isSettled(EventStore& store) {
        const std::vector<EventCalendar> calendars = store.calendars().value_or(std::vector<EventCalendar>());
        const auto calendar = std::ranges::find(calendars, u"remote"_s, &EventCalendar::identifier);
        if (calendar == calendars.end() || calendar->state != CalendarState::Ready) {
            m_difference = u"not ready"_s;
            return false;
        }
        std::map<QByteArray, QByteArray> texts;
        const QDir folder(m_test.server.folder());
        for (const QString& name : folder.entryList({u"*.ics"_s}, QDir::Files)) {
            const QByteArray text = contentOf(folder.filePath(name));
            // Empty when it was removed meanwhile.
            const qsizetype uid = text.indexOf("\nUID:") + 5;
            texts[text.mid(uid, text.indexOf('\r', uid) - uid)] = text;
        }
        const EventRange range =
            store.eventsBetween(Moment{}, AlarmWorld::kMidnight + std::chrono::days(4000), *calendar);
        m_difference = range.fault.value_or(QString());
        for (const CalendarEvent& event : range.events) {
            if (!texts[uidOf(event)].contains("DTSTART:" + utc(event.startDate))) {
                m_difference += u"only on the device: %1 %2\n"_s.arg(event.identifier, event.title);
            }
            texts.erase(uidOf(event));
        }
        for (const auto& [uid, text] : texts) {
            m_difference += u"only on the server: "_s + QString::fromUtf8(uid) + u'\n';
        }
        return m_difference.isEmpty();
    }

    const QTemporaryDir m_folder;
    const QString m_rights = m_folder.filePath(u"rights"_s);
    RemoteCalendar m_test{{}, u"guide"_s};
    const bool m_isLockedAtTimes;
    bool m_hasFailed = false;
    bool m_isLocked = false;
    QString m_difference;
};

} // namespace guide::test
