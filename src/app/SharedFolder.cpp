#include "app/SharedFolder.h"

#include "cloud/SharedPlaceActions.h"
#include "platform/archive/Archive.h"
#include "platform/files/FileContent.h"

#include <QCborMap>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace guide {

using namespace Qt::StringLiterals;

QString folderPath(const QString& typed) {
    const QString text = typed.trimmed();
    if (text.startsWith("file:"_L1, Qt::CaseInsensitive)) {
        const QString path = QUrl(text).toLocalFile();
        return path.startsWith(u'/') ? QDir::cleanPath(path) : QString();
    }
    if (text == "~"_L1 || text.startsWith("~/"_L1)) {
        return QDir::cleanPath(QDir::homePath() + text.sliced(1));
    }
    return text.startsWith(u'/') ? QDir::cleanPath(text) : QString();
}

QString problemOfSharedFolder(const QString& path) {
    const QFileInfo folder(path);
    if (folder.isDir()) {
        return folder.isWritable() && folder.isReadable() && folder.isExecutable()
                   ? QString()
                   : u"The folder cannot be written."_s;
    }
    if (folder.exists() || folder.isSymLink()) {
        return u"This is not a folder."_s;
    }
    const QFileInfo parent(folder.path());
    if (!parent.isDir()) {
        return u"There is no such folder, nor the one in which it would be."_s;
    }
    return parent.isWritable() && parent.isExecutable()
               ? QString::fromLatin1(kFolderIsMissing)
               : u"There is no such folder, and none can be created there."_s;
}

void removeValuesOfOtherFolders(const QString& folder, const QString& current) {
    constexpr qint64 kLargestFile = 64 << 20;
    const QFileInfoList files = QDir(folder).entryInfoList({u"folder-*.values"_s}, QDir::Files);
    for (const QFileInfo& file : files) {
        // A file that does not say whose it is stays: it may be that of the current folder.
        const std::optional<QByteArray> content = fileContent(file.filePath(), kLargestFile);
        const std::optional<QCborValue> root = content ? unarchivedRoot(*content) : std::nullopt;
        const QString address = root ? root->toMap().value("address"_L1).toString() : QString();
        if (!address.isEmpty() && address != current) {
            QFile::remove(file.filePath());
        }
    }
}

} // namespace guide
