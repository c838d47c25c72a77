#include "sources/PictureFetcher.h"

#include "core/PictureDecoding.h"
#include "sources/WebURL.h"

#include <memory>
#include <optional>

namespace guide {

namespace {

constexpr int kMostRedirects = 2;
constexpr std::chrono::minutes kFailureAge{10};

std::optional<QUrl> redirectOf(const TransferResult& result, const QUrl& from) {
    if (!result.response || result.response->statusCode < 300 || result.response->statusCode >= 400) {
        return std::nullopt;
    }
    const auto location = result.response->header("Location");
    return location ? std::optional(from.resolved(QUrl::fromEncoded(*location))) : std::nullopt;
}

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

QByteArray PictureFetcher::transfer(QUrl url) const {
    for (int redirects = 0; redirects <= kMostRedirects && isWebURL(url); ++redirects) {
        HTTPRequest request;
        request.url = url;
        request.headers = {{"User-Agent", m_environment.userAgent.value()}};
        request.timeout = std::chrono::seconds(20);
        request.resourceTimeout = std::chrono::seconds(30);
        request.waitsForConnectivity = true;
        QByteArray file;
        bool tooLarge = false;
        m_environment.networkActivity.startNetworkActivity();
        const TransferResult result =
            m_environment.client.perform(request, [&file, &tooLarge](QByteArrayView piece) {
                tooLarge = file.size() + piece.size() > kShowPictureLimits.bytes;
                if (!tooLarge) {
                    file.append(piece);
                }
                return !tooLarge;
            });
        m_environment.networkActivity.stopNetworkActivity();
        if (result.error) {
            if (!result.error->cancelled && m_environment.noRemoteHostAlert) {
                m_environment.noRemoteHostAlert(*result.error);
            }
            return {};
        }
        const auto next = redirectOf(result, url);
        if (!next) {
            const int status = result.response ? result.response->statusCode : 0;
            return status >= 200 && status < 300 ? file : QByteArray();
        }
        url = *next;
    }
    return {};
}

void PictureFetcher::dropFiles() {
    const std::lock_guard lock(m_guard);
    m_files.clear();
}

} // namespace guide
