#include "sources/PictureTransfer.h"

#include "sources/Redirect.h"
#include "sources/WebURL.h"

#include <utility>

namespace guide {

PictureTransfer transferPicture(HTTPClient& client, NetworkActivity& networkActivity,
                                const HTTPUserAgent& userAgent, QUrl url,
                                const PictureTransferLimits& limits) {
    PictureTransfer transfer;
    for (int redirects = 0;
         redirects <= limits.redirects && isWebURL(url) && (!limits.mayAsk || limits.mayAsk(url));
         ++redirects) {
        HTTPRequest request;
        request.url = url;
        request.headers = {{"User-Agent", userAgent.value()}};
        request.timeout = limits.silence;
        request.resourceTimeout = limits.longest;
        request.waitsForConnectivity = limits.waitsForConnectivity;
        request.stopped = limits.stopped;
        QByteArray file;
        networkActivity.startNetworkActivity();
        TransferResult result = client.perform(request, [&](QByteArrayView piece) {
            transfer.tooLarge = file.size() + piece.size() > limits.bytes;
            if (!transfer.tooLarge) {
                file.append(piece);
            }
            return !transfer.tooLarge;
        });
        networkActivity.stopNetworkActivity();
        transfer.answered = result.response.has_value();
        if (result.error) {
            transfer.error = std::move(result.error);
            return transfer;
        }
        const std::optional<QUrl> next = redirectOf(result, url);
        if (!next) {
            const int status = result.response ? result.response->statusCode : 0;
            if (status >= 200 && status < 300) {
                transfer.file = std::move(file);
            }
            return transfer;
        }
        url = next->adjusted(QUrl::RemoveUserInfo);
    }
    return transfer;
}

} // namespace guide
