#pragma once

#include "platform/Moment.h"
#include "store/ShowDigest.h"
#include "store/TVEntry.h"

#include <QString>

#include <optional>

namespace guide {

/// A broadcast as alarms know it.
struct AlarmBroadcast {
    ShowDigest show{};
    QString title;
    Moment start;
    Moment end;
};

/// Nothing without a start or a title.
inline std::optional<AlarmBroadcast> alarmBroadcastOf(const TVEntry& entry) {
    const std::optional<ShowDigest> digest = entry.digest();
    if (!digest || !entry.dateTime()) {
        return std::nullopt;
    }
    return AlarmBroadcast{*digest, entry.title().value_or(QString()), *entry.dateTime(),
                          entry.endDateTime().value_or(*entry.dateTime())};
}

} // namespace guide
