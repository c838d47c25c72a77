#include "app/SharedFolder.h"

#include "cloud/SharedPlaceActions.h"
#include "platform/linux/SharedValues.h"

#include <QDir>
#include <QFile>
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
    const QFileInfoList files = QDir(folder).entryInfoList({u"folder-*.values"_s}, QDir::Files);
    for (const QFileInfo& file : files) {
        // A file that does not say whose it is stays: it may be that of the current folder.
        const QString address = SharedValues::addressIn(file.filePath());
        if (!address.isEmpty() && address != current) {
            QFile::remove(file.filePath());
        }
    }
}

} // namespace guide
