#pragma once

#include <QByteArray>
#include <QString>

#include <curl/curl.h>
#include <memory>
#include <optional>

namespace guide::tests {

/// What one transfer of the test's own client brought.
struct Fetched {
    CURLcode code = CURLE_OK;
    long status = 0;
    QByteArray contentType;
    QByteArray location;
    QByteArray body;
};

inline Fetched fetched(const QString& url, long timeoutMilliseconds = 20'000, bool headOnly = false) {
    Fetched result;
    const std::unique_ptr<CURL, void (*)(CURL*)> curl(curl_easy_init(), curl_easy_cleanup);
    const auto append = +[](char* bytes, std::size_t, std::size_t count, void* to) {
        static_cast<QByteArray*>(to)->append(bytes, qsizetype(count));
        return count;
    };
    curl_easy_setopt(curl.get(), CURLOPT_URL, url.toUtf8().constData());
    curl_easy_setopt(curl.get(), CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl.get(), CURLOPT_NOPROXY, "*");
    curl_easy_setopt(curl.get(), CURLOPT_NOBODY, headOnly ? 1L : 0L);
    curl_easy_setopt(curl.get(), CURLOPT_TIMEOUT_MS, timeoutMilliseconds);
    curl_easy_setopt(curl.get(), CURLOPT_USERAGENT, "test/1");
    curl_easy_setopt(curl.get(), CURLOPT_WRITEFUNCTION, append);
    curl_easy_setopt(curl.get(), CURLOPT_WRITEDATA, &result.body);
    result.code = curl_easy_perform(curl.get());
    curl_easy_getinfo(curl.get(), CURLINFO_RESPONSE_CODE, &result.status);
    char* text = nullptr;
    if (curl_easy_getinfo(curl.get(), CURLINFO_CONTENT_TYPE, &text) == CURLE_OK && text != nullptr) {
        result.contentType = text;
    }
    text = nullptr;
    if (curl_easy_getinfo(curl.get(), CURLINFO_REDIRECT_URL, &text) == CURLE_OK && text != nullptr) {
        result.location = text;
    }
    return result;
}

} // namespace guide::tests
