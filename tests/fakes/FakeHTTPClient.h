#pragma once

#include "platform/http/HTTPClient.h"

#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <utility>
#include <vector>

namespace guide {

/// Answers each request with the result set for its URL, else with the next result of the queue, else with a
/// refused connection. Records every request.
class FakeHTTPClient final : public HTTPClient {
  public:
    using HTTPClient::perform;
    /// Pieces are three bytes long.
    TransferResult perform(const HTTPRequest& request, const TakePiece& takePiece) override {
        std::function<void(const HTTPRequest&)> asked;
        TransferResult answer = refused();
        {
            const std::lock_guard guard(m_guard);
            m_requests.push_back(request);
            asked = m_onRequest;
            if (m_cancelled) {
                answer.error->cancelled = true;
            } else if (const auto found = m_byURL.find(request.url); found != m_byURL.end()) {
                answer = found->second;
            } else if (!m_queue.empty()) {
                answer = std::move(m_queue.front());
                m_queue.pop_front();
            }
        }
        if (asked) {
            asked(request);
        }
        if (takePiece && !answer.error && answer.response->statusCode / 100 == 2) {
            const QByteArray body = std::exchange(answer.body, {});
            for (qsizetype at = 0; at < body.size(); at += 3) {
                if (!takePiece(QByteArrayView(body.mid(at, 3)))) {
                    answer.error = TransferError{QStringLiteral("ended by the receiver"), {}, {}, true};
                    break;
                }
            }
        }
        return answer;
    }
    void removeCachedResponse(const HTTPRequest& request) override {
        const std::lock_guard guard(m_guard);
        m_forgotten.push_back(request.url);
    }
    void cancelAll() override {
        const std::lock_guard guard(m_guard);
        m_cancelled = true;
    }

    void answer(const QUrl& url, TransferResult result) {
        const std::lock_guard guard(m_guard);
        m_byURL.insert_or_assign(url, std::move(result));
    }
    void enqueue(TransferResult result) {
        const std::lock_guard guard(m_guard);
        m_queue.push_back(std::move(result));
    }
    /// Called during each request, without holding a lock.
    void onRequest(std::function<void(const HTTPRequest&)> asked) {
        const std::lock_guard guard(m_guard);
        m_onRequest = std::move(asked);
    }

    std::vector<HTTPRequest> requests() const {
        const std::lock_guard guard(m_guard);
        return m_requests;
    }
    /// URLs whose cached response was removed.
    std::vector<QUrl> forgotten() const {
        const std::lock_guard guard(m_guard);
        return m_forgotten;
    }

    static TransferResult response(int statusCode, const QByteArray& body,
                                   QList<std::pair<QByteArray, QByteArray>> headers = {}) {
        TransferResult result;
        result.response = HTTPResponse{statusCode, std::move(headers)};
        result.body = body;
        return result;
    }
    static TransferResult refused() {
        TransferResult result;
        result.error = TransferError{QStringLiteral("connection refused"), {}, {}, false};
        return result;
    }

  private:
    mutable std::mutex m_guard;
    std::map<QUrl, TransferResult> m_byURL;
    std::deque<TransferResult> m_queue;
    std::function<void(const HTTPRequest&)> m_onRequest;
    std::vector<HTTPRequest> m_requests;
    std::vector<QUrl> m_forgotten;
    bool m_cancelled = false;
};

} // namespace guide
