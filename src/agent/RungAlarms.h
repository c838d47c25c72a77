#pragma once

#include "platform/Moment.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QSet>
#include <QString>

#include <cstdint>
#include <deque>

namespace guide {

/// What identifies an event of the guide: its identifier in the calendars, and its URL. A copy in another
/// calendar has the URL only, a moved event usually the identifier only.
struct EventNames {
    QString identifier;
    QString url;
};

/// Which alerts have rung, and of which events the start is to ring as well. Bounded: the oldest are
/// forgotten first, whatever the clock says.
class RungAlarms {
  public:
    bool hasRung(const EventNames& event, Moment at) const;
    void setRung(const EventNames& event, Moment at);
    /// For an alert that could not be shown.
    void setNotRung(const EventNames& event, Moment at);

    bool remindsAtStart(const EventNames& event) const;
    void setRemindsAtStart(const EventNames& event, bool reminds);

    /// Lines of plain text. Lines that cannot be read are skipped; a text of another version is empty.
    QByteArray text() const;
    static RungAlarms fromText(QByteArrayView text);

  private:
    /// Digests of both names.
    struct Keys {
        std::uint64_t identifier = 0;
        std::uint64_t url = 0;

        friend bool operator==(const Keys&, const Keys&) = default;
    };
    /// Without a moment for the event itself.
    static Keys keysOf(const EventNames& event, const QString& moment);
    static Keys keysOf(const EventNames& event, Moment at);
    void add(const Keys& keys);

    std::deque<Keys> m_rung;
    /// Of m_rung.
    QSet<std::uint64_t> m_known;
    std::deque<Keys> m_reminders;
};

} // namespace guide
