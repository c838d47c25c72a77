#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

namespace guide::test {

/// Empty for a file that cannot be read.
inline QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace guide::test
