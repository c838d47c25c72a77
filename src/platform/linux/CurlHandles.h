#pragma once

#include <array>
#include <curl/curl.h>
#include <memory>
#include <mutex>

namespace guide {

struct CurlEasyDeleter {
    void operator()(CURL* easy) const { curl_easy_cleanup(easy); }
};
using CurlEasy = std::unique_ptr<CURL, CurlEasyDeleter>;

struct CurlMultiDeleter {
    void operator()(CURLM* multi) const { curl_multi_cleanup(multi); }
};
using CurlMulti = std::unique_ptr<CURLM, CurlMultiDeleter>;

struct CurlListDeleter {
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};
using CurlList = std::unique_ptr<curl_slist, CurlListDeleter>;

/// State that transfers on all threads share: cookies, resolved names and TLS sessions, all in memory.
/// Connections are not included: libcurl cannot share them between threads.
class CurlShare {
  public:
    CurlShare();
    CurlShare(const CurlShare&) = delete;
    CurlShare& operator=(const CurlShare&) = delete;
    ~CurlShare();

    CURLSH* handle() const { return m_share; }

  private:
    static void lock(CURL* easy, curl_lock_data data, curl_lock_access access, void* self);
    static void unlock(CURL* easy, curl_lock_data data, void* self);

    std::array<std::mutex, CURL_LOCK_DATA_LAST> m_locks;
    CURLSH* m_share;
};

} // namespace guide
