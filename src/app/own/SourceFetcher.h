#pragma once

#include "app/own/SourceRecords.h"
#include "core/own/OwnSource.h"
#include "core/own/SourceStatus.h"
#include "platform/ProgramRunner.h"
#include "platform/SecretStore.h"
#include "sources/own/SourceDownload.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

namespace guide {

struct SourceFetcherEnvironment {
    SourceDownloadEnvironment download;
    ProgramRunner& programs;
    SecretStore& secrets;
    /// Of grabbers.
    QString configurationFolder;
};

/// Where a source's content is to come from.
struct SourceFetch {
    OwnSourceKind kind = OwnSourceKind::Feed;
    /// Whole, with its secrets: a web address, or the path of a file, folder or program.
    QString address;
    /// Where a download or the output of a program goes.
    QString incoming;
    /// Of the content that is kept; empty to get it whatever it was.
    QByteArray etag = {};
    QByteArray lastModified = {};
    std::function<bool()> stopped = {};
    std::function<void(std::int64_t bytes)> progress = {};
};

struct FetchedSource {
    /// Read or Incomplete when there is something at `path`, Unchanged, or why there is nothing.
    SourceResult result = SourceResult::None;
    QString detail = {};
    /// Below the folder of `incoming`, or the user's own file.
    QString path = {};
    QByteArray etag = {};
    QByteArray lastModified = {};
    QString charset = {};
    std::optional<Moment> notBefore = {};
    /// Of a grabber.
    QString output = {};
};

/// Whether the source is a file or folder of the user.
bool isOwnFile(const OwnSource& source);
/// The content of a source as it is there: the user's own file, of a folder the newest one, or what was kept
/// in the caches folder.
QString contentOf(const OwnSource& source, const QString& caches);

/// The identity under which the secret of a source is kept.
QString secretKey(const OwnSourceId& id);

/// Gets what a source offers onto this device: a download, the output of a grabber, or the user's own file. A
/// file's entity tag is made of its size and time. Blocks; any thread but the main one.
class SourceFetcher {
  public:
    explicit SourceFetcher(SourceFetcherEnvironment environment);

    FetchedSource fetch(const SourceFetch& fetch) const;
    /// The source's address with its secret part; nothing when that is not on this device.
    std::optional<QString> wholeAddress(const OwnSource& source) const;
    SecretStore& secrets() const { return m_environment.secrets; }

  private:
    FetchedSource fetchFile(const SourceFetch& fetch) const;
    FetchedSource runGrabber(const SourceFetch& fetch) const;
    FetchedSource download(const SourceFetch& fetch) const;

    const SourceFetcherEnvironment m_environment;
};

} // namespace guide
