#pragma once

#include "CalendarUnderTest.h"
#include "fakes/Files.h"
#include "platform/linux/calendar/EventWriting.h"
#include "platform/linux/calendar/FolderEventStore.h"

#include <QTemporaryDir>

namespace guide::test {

/// A temporary folder of calendar files. The other program writes files.
class FolderCalendar final : public CalendarUnderTest {
  public:
    explicit FolderCalendar(QString scheme = kScheme)
        : m_scheme(std::move(scheme)) {}

    EventStore& store() override { return m_store; }
    EventCalendar calendar() override { return *m_store.defaultCalendarForNewEvents(); }
    std::unique_ptr<EventStore> secondStore() override {
        return std::make_unique<FolderEventStore>(m_parent, m_scheme, clock);
    }
    QByteArray get(const QByteArray& uid) override { return contentOf(file(uid)); }
    void put(const QByteArray& uid, const QByteArray& component) override {
        const bool isWhole = component.startsWith("BEGIN:VCALENDAR");
        ASSERT_TRUE(writeFile(file(uid), isWhole ? component : calendarWith(component)));
    }
    void erase(const QByteArray& uid) override { ASSERT_TRUE(QFile::remove(file(uid))); }

    QString file(const QByteArray& uid) const {
        return m_parent + QStringLiteral("/tv/") + QString::fromUtf8(uid) + QStringLiteral(".ics");
    }
    const QString& parent() const { return m_parent; }

  private:
    const QString m_scheme;
    const QTemporaryDir m_home;
    const QString m_parent = m_home.filePath(QStringLiteral("data/calendars"));
    FolderEventStore m_store{m_parent, m_scheme, clock};
};

} // namespace guide::test
