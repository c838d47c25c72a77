#pragma once

#include <QString>
#include <QStringView>
#include <QTimeZone>

#include <optional>

namespace guide {

/// Whether the id is a number of the Port network: decimal digits, written as a signed 32-bit number is
/// printed.
bool sourceIdUsedByPortNetwork(QStringView sourceId);

/// The zone of the country whose two letters end the server name; a bare country code also works. Nothing for
/// other names.
std::optional<QTimeZone> timeZoneForServer(QStringView serverName);
/// The zone of the country of a language (an ISO 639-1 code): where a feed of that language writes times
/// without an offset. UTC for a language that is not known or spoken in several zones.
QTimeZone timeZoneForLanguage(const QString& language);

} // namespace guide
