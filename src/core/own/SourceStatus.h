#pragma once

#include "platform/Moment.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace guide {

/// How the last attempt to read a source ended.
enum class SourceResult {
    /// Not tried yet.
    None,
    Read,
    /// The server says that nothing has changed.
    Unchanged,
    /// It broke off; what came before was kept.
    Incomplete,
    /// Far fewer channels with shows than before; the old lists were kept.
    Poor,
    /// The last show is over.
    Over,
    NoAnswer,
    /// An HTTP status that is no success; `detail` is the number.
    Status,
    /// Asked to come back later (429, 503 or Retry-After).
    Busy,
    TooManyRedirects,
    /// Redirected to something other than http and https; `detail` is the scheme.
    ForbiddenRedirect,
    NoFile,
    Empty,
    /// A page of the web, such as one to log in on.
    Page,
    /// Nothing that a guide can use.
    Unknown,
    Damaged,
    TooLarge,
    /// The disk is full or cannot be written.
    NoRoom,
    /// The grabber wants to be configured first.
    GrabberNotConfigured,
    /// Ended by itself; `detail` is its status.
    GrabberFailed,
    GrabberSilent,
    GrabberTooLong,
    GrabberFlooded,
    /// The secret part of the address is not on this device.
    SecretMissing,
    Cancelled,
};

/// What is known about the loads of one source. Not secret.
struct SourceStatus {
    SourceResult result = SourceResult::None;
    /// A number or name that belongs to the result; may be empty.
    QString detail;
    std::optional<Moment> lastTry;
    /// The last attempt that gave shows or said that nothing had changed.
    std::optional<Moment> lastSuccess;
    std::optional<Moment> nextTry;
    /// Of the last document that was read.
    int channels = 0;
    int channelsWithShows = 0;
    int shows = 0;
    std::optional<Moment> newestShow;
    qint64 unpackedBytes = 0;
    /// The titles of chosen channels whose old lists were kept because the new ones were poorer.
    QStringList keptBack;
    /// Chosen channels that the document does not have.
    QStringList missing;
    /// The end of what a grabber wrote to its standard error, without secrets.
    QString output;
    /// Being read right now.
    bool running = false;
};

} // namespace guide
