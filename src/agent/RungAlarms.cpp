#include "agent/RungAlarms.h"

#include <QCryptographicHash>
#include <QtEndian>

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView kFirstLine = "quellin-guide-agent 1\n";
constexpr QByteArrayView kRung = "rung";
constexpr QByteArrayView kReminder = "remind";
constexpr std::size_t kMostRung = 4'000;
constexpr std::size_t kMostReminders = 200;

std::uint64_t digest(const QString& kind, const QString& name, const QString& moment) {
    const QByteArray text = QStringList{kind, moment, name}.join(u'\n').toUtf8();
    return qFromBigEndian<std::uint64_t>(
        QCryptographicHash::hash(text, QCryptographicHash::Sha1).constData());
}

QByteArray line(QByteArrayView kind, std::uint64_t first, std::uint64_t second) {
    return kind.toByteArray() + ' ' + QByteArray::number(qulonglong(first), 16) + ' ' +
           QByteArray::number(qulonglong(second), 16) + '\n';
}

} // namespace

RungAlarms::Keys RungAlarms::keysOf(const EventNames& event, const QString& moment) {
    return {digest(u"identifier"_s, event.identifier, moment), digest(u"url"_s, event.url, moment)};
}

RungAlarms::Keys RungAlarms::keysOf(const EventNames& event, Moment at) {
    return keysOf(event, QString::number(at.time_since_epoch().count()));
}

bool RungAlarms::hasRung(const EventNames& event, Moment at) const {
    const Keys keys = keysOf(event, at);
    return m_known.contains(keys.identifier) || m_known.contains(keys.url);
}

void RungAlarms::setRung(const EventNames& event, Moment at) {
    if (!hasRung(event, at)) {
        add(keysOf(event, at));
    }
}

void RungAlarms::setNotRung(const EventNames& event, Moment at) {
    const Keys keys = keysOf(event, at);
    std::erase(m_rung, keys);
    m_known.remove(keys.identifier);
    m_known.remove(keys.url);
}

void RungAlarms::add(const Keys& keys) {
    m_rung.push_back(keys);
    m_known.insert(keys.identifier);
    m_known.insert(keys.url);
    if (m_rung.size() > kMostRung) {
        m_known.remove(m_rung.front().identifier);
        m_known.remove(m_rung.front().url);
        m_rung.pop_front();
    }
}

bool RungAlarms::remindsAtStart(const EventNames& event) const {
    if (m_reminders.empty()) {
        return false;
    }
    const Keys keys = keysOf(event, QString());
    return std::ranges::any_of(m_reminders, [&keys](const Keys& each) {
        return each.identifier == keys.identifier || each.url == keys.url;
    });
}

void RungAlarms::setRemindsAtStart(const EventNames& event, bool reminds) {
    const Keys keys = keysOf(event, QString());
    std::erase_if(m_reminders, [&keys](const Keys& each) {
        return each.identifier == keys.identifier || each.url == keys.url;
    });
    if (reminds) {
        m_reminders.push_back(keys);
        if (m_reminders.size() > kMostReminders) {
            m_reminders.pop_front();
        }
    }
}

QByteArray RungAlarms::text() const {
    QByteArray text = kFirstLine.toByteArray();
    for (const Keys& keys : m_rung) {
        text += line(kRung, keys.identifier, keys.url);
    }
    for (const Keys& keys : m_reminders) {
        text += line(kReminder, keys.identifier, keys.url);
    }
    return text;
}

RungAlarms RungAlarms::fromText(QByteArrayView text) {
    RungAlarms alarms;
    if (!text.startsWith(kFirstLine)) {
        return alarms;
    }
    for (const QByteArray& each : text.toByteArray().split('\n')) {
        const QByteArrayList words = each.split(' ');
        if (words.size() != 3) {
            continue;
        }
        bool isFirst = false;
        bool isSecond = false;
        const Keys keys{words[1].toULongLong(&isFirst, 16), words[2].toULongLong(&isSecond, 16)};
        if (!isFirst || !isSecond) {
            continue;
        }
        if (words[0] == kRung) {
            alarms.add(keys);
        } else if (words[0] == kReminder && alarms.m_reminders.size() < kMostReminders) {
            alarms.m_reminders.push_back(keys);
        }
    }
    return alarms;
}

} // namespace guide
