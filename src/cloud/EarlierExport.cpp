#include "cloud/EarlierExport.h"

#include "platform/files/FileContent.h"

#include <QFile>
#include <QFileInfo>

namespace guide {

using namespace Qt::StringLiterals;

bool keepEarlierExport(const QString& path, QByteArrayView content) {
    if (!QFileInfo(path).isFile() || fileContent(path, content.size()) == content) {
        return true;
    }
    constexpr int kMost = 10'000;
    const QFileInfo file(path);
    for (int number = 1; number <= kMost; ++number) {
        const QString free = u"%1/%2-%3.%4"_s.arg(file.path(), file.completeBaseName(),
                                                  QString::number(number), file.suffix());
        if (!QFileInfo::exists(free)) {
            return QFile::rename(path, free);
        }
    }
    return false;
}

} // namespace guide
