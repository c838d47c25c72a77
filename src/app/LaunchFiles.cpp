#include "app/LaunchFiles.h"

#include "app/FirstSelection.h"
#include "core/CatalogueFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

namespace guide {

using namespace Qt::StringLiterals;

std::optional<LaunchFiles> launchFiles(const LaunchOptions& options, const Folders& folders, QString& why) {
    auto hosts = options.hosts ? SourceHostTable::fromFile(*options.hosts)
                               : SourceHostTable::installed(folders.bundle, folders.configuration);
    if (!hosts) {
        why = u"the host table %1 is not a JSON object that can be read"_s.arg(*options.hosts);
        return std::nullopt;
    }
    LaunchFiles files{.catalogue = folders.bundle + "/Data.plist"_L1,
                      .catalogueArchive = catalogueArchivePath(folders.caches),
                      .icons = folders.bundle + "/icons"_L1,
                      .hosts = *std::move(hosts)};
    if (options.select) {
        files.firstSelection = selectionFromFile(*options.select, why);
        if (!files.firstSelection) {
            return std::nullopt;
        }
    }
    if (options.catalogue) {
        files.catalogue = *options.catalogue;
        files.catalogueArchive = catalogueArchivePath(folders.runtime);
        QFile::remove(files.catalogueArchive);
        const QString beside = QFileInfo(*options.catalogue).absolutePath() + "/icons"_L1;
        if (QFileInfo(beside).isDir()) {
            files.icons = beside;
        }
    }
    return files;
}

bool preparePictureFolder(const QString& folder) {
    return QDir().mkpath(folder) && QTemporaryFile(folder + "/.pictures-XXXXXX"_L1).open();
}

} // namespace guide
