#include "platform/linux/calendar/EDSChanges.h"

#include "platform/linux/calendar/EventWriting.h"

#include <algorithm>
#include <chrono>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// Keeps a batch to a slow server below the time after which a call fails.
constexpr std::size_t kBatch = 25;
/// After a batch that took less than this, the next one is larger.
constexpr std::chrono::milliseconds kFastBatch{500};
constexpr std::size_t kLargestBatch = 400;
constexpr int kMostAttempts = 20;
constexpr qsizetype kLargestEvent = 1 << 20;

} // namespace

std::optional<EDSEvent> edsEvent(const QString& answer, EventReading& reading) {
    if (answer.size() > kLargestEvent) {
        return std::nullopt;
    }
    std::optional<ICalendarText> text = ICalendarText::parse(answer.toUtf8());
    while (text) {
        const std::vector<StoredEvent> events = reading.events(*text);
        const StoredEvent* found = findEvent(events);
        if (found == nullptr) {
            break;
        }
        const QByteArray component = text->textOf(text->components()[found->component]).toByteArray();
        if (component.size() == text->text().size()) {
            return EDSEvent{std::move(*text), *found, contentRevision(component)};
        }
        // It came with its occurrences.
        text = ICalendarText::parse(component);
    }
    return std::nullopt;
}

void EDSChanges::make(Kind kind, const std::vector<EDSChange>& changes) {
    std::size_t size = kBatch;
    for (std::span<const EDSChange> left = changes; !left.empty();) {
        const auto begin = std::chrono::steady_clock::now();
        const std::size_t taken = std::min(size, left.size());
        makeBatch(kind, left.first(taken));
        left = left.subspan(taken);
        const bool isFast = std::chrono::steady_clock::now() - begin < kFastBatch;
        size = isFast ? std::min(4 * size, kLargestBatch) : kBatch;
    }
}

void EDSChanges::makeBatch(Kind kind, std::span<const EDSChange> changes) {
    QList<EDSReply> stored;
    if (kind != Kind::Create) {
        QList<QByteArray> uids;
        for (const EDSChange& change : changes) {
            uids << change.uid;
        }
        stored = m_calendar.get(uids);
    }
    QList<Ready> batch;
    for (std::size_t i = 0; i < changes.size(); ++i) {
        auto ready = kind == Kind::Create ? prepareNew(changes[i])
                                          : prepare(kind, changes[i], stored[qsizetype(i)], false);
        if (ready) {
            batch.append(std::move(*ready));
        }
    }
    if (batch.isEmpty()) {
        return;
    }
    const EDSReply reply = send(kind, batch);
    for (const Ready& ready : batch) {
        if (reply.isOk()) {
            finish(ready);
        } else if (reply.error->fault == EventFault::Unavailable) {
            refuse(*ready.change, *reply.error);
        } else {
            makeAlone(kind, *ready.change);
        }
    }
}

std::optional<EDSChanges::Ready> EDSChanges::prepareNew(const EDSChange& change) {
    if (!m_reading.isOwn(change.event)) {
        refuse(change, {.message = u"it has no URL of the guide"_s});
        return std::nullopt;
    }
    const QByteArray uid = uidFor(*change.event.url, 1);
    return Ready{&change, uid, newEventComponent(change.event, uid, m_now)};
}

std::optional<EDSChanges::Ready> EDSChanges::prepare(Kind kind, const EDSChange& change,
                                                     const EDSReply& reply, bool isRepeated) {
    if (kind == Kind::Save && !m_reading.isOwn(change.event)) {
        refuse(change, {.message = u"it has no URL of the guide"_s});
        return std::nullopt;
    }
    if (!reply.isOk()) {
        if (isRepeated && kind == Kind::Remove && reply.error->fault == EventFault::NotFound) {
            finish({&change, change.uid, {}});
        } else {
            refuse(change, *reply.error);
        }
        return std::nullopt;
    }
    const std::optional<EDSEvent> stored = edsEvent(reply.text(), m_reading);
    if (!stored) {
        refuse(change, {.fault = EventFault::NotFound, .message = u"it is no event"_s});
        return std::nullopt;
    }
    return prepareChange(kind, change, *stored);
}

std::optional<EDSChanges::Ready> EDSChanges::prepareChange(Kind kind, const EDSChange& change,
                                                           const EDSEvent& stored) {
    if (!m_reading.isOwn(stored.stored.event)) {
        refuse(change, {.message = u"it belongs to another program"_s});
        return std::nullopt;
    }
    Ready ready{&change, stored.stored.uid, {}};
    if (kind == Kind::Save) {
        std::optional<QByteArray> changed = withChangedEvent(stored.text, stored.stored, change.event, m_now);
        if (!changed) {
            change.outcome->fault.reset();
            return std::nullopt;
        }
        ready.component = std::move(*changed);
    }
    if (!change.event.revision.isEmpty() && change.event.revision != stored.revision) {
        refuse(change, {.fault = EventFault::Conflict, .message = u"it was changed elsewhere"_s});
        return std::nullopt;
    }
    return ready;
}

EDSReply EDSChanges::send(Kind kind, const QList<Ready>& batch) {
    QList<QByteArray> list;
    for (const Ready& ready : batch) {
        list << (kind == Kind::Remove ? ready.uid : ready.component);
    }
    switch (kind) {
    case Kind::Create:
        return m_calendar.create(list);
    case Kind::Save:
        return m_calendar.modify(list);
    case Kind::Remove:
        return m_calendar.remove(list);
    }
    return {};
}

void EDSChanges::makeAlone(Kind kind, const EDSChange& change) {
    if (kind == Kind::Create) {
        createAlone(change);
        return;
    }
    if (const std::optional<Ready> ready = prepare(kind, change, m_calendar.get(change.uid), true)) {
        const EDSReply reply = send(kind, {*ready});
        if (reply.isOk()) {
            finish(*ready);
        } else {
            refuse(change, *reply.error);
        }
    }
}

void EDSChanges::createAlone(const EDSChange& change) {
    for (int attempt = 1; attempt < kMostAttempts; ++attempt) {
        const QByteArray uid = uidFor(*change.event.url, attempt);
        const Ready ready{&change, uid, newEventComponent(change.event, uid, m_now)};
        const EDSReply reply = send(Kind::Create, {ready});
        if (reply.isOk()) {
            finish(ready);
            return;
        }
        if (!reply.error->isTaken) {
            refuse(change, *reply.error);
            return;
        }
        const EDSReply taken = m_calendar.get(uid);
        const auto stored = taken.isOk() ? edsEvent(taken.text(), m_reading) : std::nullopt;
        // An event with the same URL is the same event, made before.
        if (stored && stored->stored.event.url == change.event.url) {
            change.outcome->identifier = m_identifier + u'/' + QString::fromUtf8(uid);
            EDSChange same = change;
            same.uid = uid;
            same.event.revision.clear();
            makeAlone(Kind::Save, same);
            return;
        }
    }
    refuse(change, {.message = u"too many events with this UID"_s});
}

void EDSChanges::finish(const Ready& ready) {
    EventOutcome& outcome = *ready.change->outcome;
    outcome.fault.reset();
    outcome.message.clear();
    outcome.identifier = m_identifier + u'/' + QString::fromUtf8(ready.uid);
    if (ready.component.isEmpty()) {
        m_writes.removed(m_identifier, ready.uid);
    } else if (const auto sent = edsEvent(QString::fromUtf8(ready.component), m_reading)) {
        m_writes.saved(m_identifier, sent->stored);
    }
}

void EDSChanges::refuse(const EDSChange& change, const EDSError& error) {
    change.outcome->fault = error.fault;
    change.outcome->message = error.message;
    if (error.isOutOfSync) {
        m_calendar.refresh();
    }
}

} // namespace guide
