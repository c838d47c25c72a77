#pragma once

#include "platform/http/HTTPClient.h"
#include "platform/linux/CurlHandles.h"

#include <QByteArray>

#include <atomic>
#include <chrono>
#include <optional>
#include <vector>

namespace guide {

/// Settings of all transfers of a client.
struct CurlTransferSettings {
    CURLSH* share = nullptr;
    qint64 maximumBodySize = 0;
    /// In bytes a second; a transfer that is slower for that time fails.
    long leastSpeed = 0;
    std::chrono::seconds leastSpeedTime{0};
    std::vector<QByteArray> connectTo;
};

/// The error of a transfer whose receiver refused a piece.
TransferError refusedPiece();

bool isSuccess(int statusCode);

/// A transfer on the calling thread. Waking up the multi handle with the cancelled flag set ends it.
class CurlTransfer {
  public:
    /// Without a `takePiece` the body is collected in the result. The arguments must outlive the transfer.
    CurlTransfer(const HTTPRequest& request, const TakePiece& takePiece,
                 const CurlTransferSettings& settings);
    CurlTransfer(const CurlTransfer&) = delete;
    CurlTransfer& operator=(const CurlTransfer&) = delete;

    TransferResult run(CURLM* multi, const std::atomic<bool>& cancelled);

    /// Whether the finished transfer failed to resolve or connect to the server.
    bool couldNotConnect() const;

  private:
    using SteadyTime = std::chrono::steady_clock::time_point;
    enum class Outcome { Done, Cancelled, Inactive, OutOfTime, Broken };

    bool prepare();
    bool prepareHeaders();
    void prepareMethod();
    Outcome drive(CURLM* multi, const std::atomic<bool>& cancelled);
    Outcome awaitEnd(CURLM* multi, const std::atomic<bool>& cancelled);
    bool isDone(CURLM* multi);
    TransferResult result(Outcome outcome);
    QString describe(Outcome outcome) const;

    static std::size_t onHeader(char* data, std::size_t size, std::size_t count, void* self);
    static std::size_t onBody(char* data, std::size_t size, std::size_t count, void* self);
    static int onProgress(void* self, curl_off_t downloadTotal, curl_off_t downloaded, curl_off_t uploadTotal,
                          curl_off_t uploaded);
    void takeHeader(const QByteArray& line);
    bool takeBody(QByteArrayView bytes);
    int statusCode() const;

    const HTTPRequest& m_request;
    const TakePiece& m_takePiece;
    const CurlTransferSettings& m_settings;
    CurlEasy m_easy;
    CurlList m_headers;
    CurlList m_connectTo;
    char m_errorText[CURL_ERROR_SIZE] = {};
    CURLcode m_code = CURLE_OK;

    HTTPResponse m_response;
    QByteArray m_body;
    /// Bytes of the body so far, collected or delivered.
    qint64 m_bodySize = 0;
    /// Limit for m_bodySize.
    const qint64 m_mostBytes;
    bool m_tooLarge = false;
    bool m_refused = false;
    SteadyTime m_lastActivity;
    curl_off_t m_moved = 0;
};

} // namespace guide
