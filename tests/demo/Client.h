#pragma once

#include <QByteArray>
#include <QString>

#include <curl/curl.h>
#include <memory>

namespace guide {

struct Fetched {
    CURLcode code = CURLE_OK;
    long status = 0;
    QByteArray contentType;
    QByteArray body;
};

inline Fetched fetch(const QString& url) {
    Fetched result;
    const std::unique_ptr<CURL, void (*)(CURL*)> curl(curl_easy_init(), curl_easy_cleanup);
    const auto append = +[](char* bytes, std::size_t, std::size_t count, void* to) {
        static_cast<QByteArray*>(to)->append(bytes, qsizetype(count));
        return count;
    };
    curl_easy_setopt(curl.get(), CURLOPT_URL, url.toUtf8().constData());
    curl_easy_setopt(curl.get(), CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl.get(), CURLOPT_NOPROXY, "*");
    curl_easy_setopt(curl.get(), CURLOPT_WRITEFUNCTION, append);
    curl_easy_setopt(curl.get(), CURLOPT_WRITEDATA, &result.body);
    result.code = curl_easy_perform(curl.get());
    curl_easy_getinfo(curl.get(), CURLINFO_RESPONSE_CODE, &result.status);
    const char* type = nullptr;
    curl_easy_getinfo(curl.get(), CURLINFO_CONTENT_TYPE, &type);
    result.contentType = type;
    return result;
}

} // namespace guide
