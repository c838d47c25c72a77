#include "app/LaunchFiles.h"

#include "core/CatalogueFiles.h"

#include <QFile>
#include <QFileInfo>

namespace guide {

using namespace Qt::StringLiterals;

std::optional<LaunchFiles> launchFiles(const LaunchOptions& options, const Folders& folders) {
    auto hosts = options.hosts ? SourceHostTable::fromFile(*options.hosts)
                               : SourceHostTable::installed(folders.bundle, folders.configuration);
    if (!hosts) {
        return std::nullopt;
    }
    LaunchFiles files{.catalogue = folders.bundle + "/Data.plist"_L1,
                      .catalogueArchive = catalogueArchivePath(folders.caches),
                      .icons = folders.bundle + "/icons"_L1,
                      .hosts = *std::move(hosts),
                      .firstSelection = options.select};
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

} // namespace guide
