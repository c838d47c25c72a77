#pragma once

#include <QByteArrayView>
#include <QString>

namespace guide {

/// Makes way for a file with the content: a file with another content gets a name with a number, as in
/// NAME-1.txt. False when that fails.
bool keepEarlierExport(const QString& path, QByteArrayView content);

} // namespace guide
