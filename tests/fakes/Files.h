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

/// False when the file cannot be written.
inline bool writeFile(const QString& path, const QByteArray& content) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

} // namespace guide::test
