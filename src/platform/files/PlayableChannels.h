#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace guide {

/// The file by which the guide tells its agent which channels have a stream: their titles, one a line.
namespace PlayableChannels {

/// In the folder of the documents.
constexpr auto kFileName = "playable-channels.txt";
constexpr qint64 kLargestText = qint64(1) << 20;

/// What would make it longer than that is left out.
QByteArray text(const QStringList& titles);
/// Whether the file has the title. Without the file it has none.
bool contains(const QString& path, const QString& title);

} // namespace PlayableChannels
} // namespace guide
