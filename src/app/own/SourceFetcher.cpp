#include "app/own/SourceFetcher.h"

#include "core/own/SourceAddress.h"
#include "sources/own/Grabber.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// The newest file of a folder, or the file itself.
QFileInfo fileAt(const QString& path) {
    const QFileInfo info(path);
    if (!info.isDir()) {
        return info;
    }
    const QFileInfoList files = QDir(path).entryInfoList(QDir::Files | QDir::Readable, QDir::Time);
    return files.isEmpty() ? QFileInfo() : files.first();
}

} // namespace

bool isOwnFile(const OwnSource& source) {
    return source.kind != OwnSourceKind::Grabber && !isWebAddress(source.address);
}

QString contentOf(const OwnSource& source, const QString& caches) {
    return isOwnFile(source) ? fileAt(source.address).absoluteFilePath()
                             : SourceFolder(caches, source.id).content();
}

QString secretKey(const OwnSourceId& id) {
    return "source-"_L1 + id.hex();
}

SourceFetcher::SourceFetcher(SourceFetcherEnvironment environment)
    : m_environment(std::move(environment)) {}

FetchedSource SourceFetcher::fetch(const SourceFetch& fetch) const {
    if (fetch.kind == OwnSourceKind::Grabber) {
        return runGrabber(fetch);
    }
    return isWebAddress(fetch.address) ? download(fetch) : fetchFile(fetch);
}

FetchedSource SourceFetcher::fetchFile(const SourceFetch& fetch) const {
    const QFileInfo file = fileAt(fetch.address);
    FetchedSource fetched{.path = file.absoluteFilePath()};
    if (!file.isFile() || !file.isReadable()) {
        fetched.result = SourceResult::NoFile;
        fetched.path.clear();
        return fetched;
    }
    fetched.etag = QByteArray::number(file.size()) + '-' +
                   QByteArray::number(file.lastModified().toMSecsSinceEpoch()) + '-' +
                   file.fileName().toUtf8().toBase64();
    fetched.result = fetched.etag == fetch.etag ? SourceResult::Unchanged : SourceResult::Read;
    return fetched;
}

FetchedSource SourceFetcher::runGrabber(const SourceFetch& fetch) const {
    const Grab grabbed =
        grab(m_environment.programs, {.program = fetch.address,
                                      .configurationFolder = m_environment.configurationFolder,
                                      .path = fetch.incoming,
                                      .stopped = fetch.stopped});
    return {.result = grabbed.result,
            .detail = grabbed.detail,
            .path = grabbed.file,
            .etag = {},
            .lastModified = {},
            .charset = {},
            .notBefore = {},
            .output = grabbed.output};
}

FetchedSource SourceFetcher::download(const SourceFetch& fetch) const {
    SourceDownload download =
        downloadSource(m_environment.download, {.url = QUrl(fetch.address, QUrl::TolerantMode),
                                                .etag = fetch.etag,
                                                .lastModified = fetch.lastModified,
                                                .path = fetch.incoming,
                                                .stopped = fetch.stopped,
                                                .progress = fetch.progress});
    return {.result = download.result,
            .detail = std::move(download.detail),
            .path = std::move(download.file),
            .etag = std::move(download.etag),
            .lastModified = std::move(download.lastModified),
            .charset = std::move(download.charset),
            .notBefore = download.notBefore,
            .output = {}};
}

std::optional<QString> SourceFetcher::wholeAddress(const OwnSource& source) const {
    return source.hasSecret ? m_environment.secrets.secret(secretKey(source.id))
                            : std::optional(source.address);
}

} // namespace guide
