#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <utility>
#include <vector>
#include <zip.h>

namespace guide::test {

using ArchivedFiles = std::vector<std::pair<QByteArray, QByteArray>>;

/// Writes a zip archive of files with these names and contents. False when it cannot be written.
inline bool writeZip(const QString& path, const ArchivedFiles& files) {
    zip_t* archive = zip_open(QFile::encodeName(path).constData(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    for (const auto& [name, bytes] : files) {
        zip_source_t* source = archive ? zip_source_buffer(archive, bytes.constData(),
                                                           static_cast<zip_uint64_t>(bytes.size()), 0)
                                       : nullptr;
        if (!source || zip_file_add(archive, name.constData(), source, ZIP_FL_ENC_UTF_8) < 0) {
            return false;
        }
    }
    return archive && zip_close(archive) == 0;
}

} // namespace guide::test
