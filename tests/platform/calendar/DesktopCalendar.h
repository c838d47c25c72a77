#pragma once

#include "CalendarUnderTest.h"
#include "DesktopSession.h"
#include "platform/linux/calendar/EDSCalendar.h"
#include "platform/linux/calendar/EDSEventStore.h"

#include <csignal>

namespace guide::test {

/// A calendar of evolution-data-server. The other program is another client of the service.
class DesktopCalendar final : public CalendarUnderTest {
  public:
    /// The UID of a source.
    explicit DesktopCalendar(const QString& source = QStringLiteral("system-calendar"),
                             const QString& scheme = kScheme)
        : m_source(source)
        , m_scheme(scheme) {}

    EventStore& store() override { return m_store; }
    EventCalendar calendar() override {
        for (const auto all = m_store.calendars().value_or(std::vector<EventCalendar>());
             const EventCalendar& calendar : all) {
            if (calendar.identifier == m_source) {
                return calendar;
            }
        }
        ADD_FAILURE() << "evolution-data-server, which must be installed for this test, has no calendar "
                      << m_source.toStdString();
        return {};
    }
    std::unique_ptr<EventStore> secondStore() override {
        return std::make_unique<EDSEventStore>(session.busAddress(), m_scheme, clock);
    }
    QByteArray get(const QByteArray& uid) override {
        // The cache of a server's calendar answers with a VCALENDAR.
        const QByteArray text = other.get(uid).text().toUtf8();
        return text.mid(std::max<qsizetype>(text.indexOf("BEGIN:VEVENT"), 0))
            .replace("END:VCALENDAR\r\n", "");
    }
    void put(const QByteArray& uid, const QByteArray& component) override {
        const bool exists = other.get(uid).isOk();
        const EDSReply reply = exists ? other.modify({component}) : other.create({component});
        EXPECT_TRUE(reply.isOk()) << reply.error->message.toStdString();
    }
    void erase(const QByteArray& uid) override { EXPECT_TRUE(other.remove({uid}).isOk()); }

    /// The process that has this name on the bus.
    void signalService(int signal, const QString& service) {
        const EDSReply process =
            connection.call({QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                             QStringLiteral("org.freedesktop.DBus")},
                            QStringLiteral("GetConnectionUnixProcessID"), {service});
        ASSERT_TRUE(process.isOk());
        ASSERT_EQ(::kill(process.values.first().toInt(), signal), 0);
    }
    void killService() { signalService(SIGKILL, kEDSCalendarService); }
    /// The process that keeps the calendar.
    QString backend() {
        EXPECT_EQ(other.open(), std::nullopt);
        return other.object().service;
    }

    DesktopSession session;
    EDSConnection connection{session.busAddress()};

  private:
    const QString m_source;
    const QString m_scheme;

  public:
    EDSCalendar other{connection, m_source};

  private:
    EDSEventStore m_store{session.busAddress(), m_scheme, clock};
};

} // namespace guide::test
