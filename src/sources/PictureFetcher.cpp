#include "sources/PictureFetcher.h"

#include "core/PictureDecoding.h"
#include "sources/PictureTransfer.h"

#include <memory>
#include <optional>

namespace guide {

namespace {

constexpr std::chrono::minutes kFailureAge{10};

} // namespace

QByteArray PictureFetcher::fetch(const QUrl& url, Load load) {
    {
        const std::lock_guard lock(m_guard);
        if (const QByteArray* kept = m_files.object(url)) {
            return *kept;
        }
        const Moment* failed = m_failedAt.object(url);
        const bool hasFailed = failed && std::chrono::abs(m_environment.clock.now() - *failed) < kFailureAge;
        if (load == Load::No || (load == Load::Yes && hasFailed)) {
            return {};
        }
    }
    const QByteArray file = transfer(url);
    const std::lock_guard lock(m_guard);
    if (file.isEmpty()) {
        m_failedAt.insert(url, new Moment(m_environment.clock.now()));
    } else {
        m_failedAt.remove(url);
        m_files.insert(url, new QByteArray(file), file.size());
    }
    return file;
}

QByteArray PictureFetcher::transfer(const QUrl& url) const {
    PictureTransfer transfer =
        transferPicture(m_environment.client, m_environment.networkActivity, m_environment.userAgent, url,
                        {.bytes = kShowPictureLimits.bytes, .waitsForConnectivity = true});
    if (transfer.error && !transfer.error->cancelled && m_environment.noRemoteHostAlert) {
        m_environment.noRemoteHostAlert(*transfer.error);
    }
    return std::move(transfer.file);
}

void PictureFetcher::dropFiles() {
    const std::lock_guard lock(m_guard);
    m_files.clear();
}

} // namespace guide
