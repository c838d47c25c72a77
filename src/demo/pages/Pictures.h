#pragma once

#include <QByteArray>
#include <QString>

namespace guide {

/// Where the demo's server has the picture of a show: the same title always gets the same one.
QByteArray showPicturePath(const QString& title);

/// The picture at a path: a drawing of hills under a sky, 640 by 360.
QByteArray showPicture(const QByteArray& path);

} // namespace guide
