#pragma once

#include <QByteArray>
#include <QString>

namespace guide {

/// Where the streams of the channels are on the server.
inline constexpr QLatin1StringView kStreams("/streams/");

/// The catalogue and the host table for the demo's feeds on a server with this base URL, and its selection.
QByteArray demoCatalogue(const QString& base);
QByteArray demoHosts(const QString& base);
QByteArray demoSelectionFile();

} // namespace guide
