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

/// Where the demo's playlist is on the server, and the feed that it names.
inline constexpr QLatin1StringView kDemoPlaylist("/channels.m3u");
inline constexpr QLatin1StringView kDemoPlaylistFeed("/epg.xml");
/// A playlist of channels of the feed and others, whose names are decorated as those of real lists are.
QByteArray demoPlaylist(const QString& base);

} // namespace guide
