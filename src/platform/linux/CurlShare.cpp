#include "platform/linux/CurlHandles.h"

namespace guide {

CurlShare::CurlShare()
    : m_share(curl_share_init()) {
    curl_share_setopt(m_share, CURLSHOPT_USERDATA, this);
    curl_share_setopt(m_share, CURLSHOPT_LOCKFUNC, &CurlShare::lock);
    curl_share_setopt(m_share, CURLSHOPT_UNLOCKFUNC, &CurlShare::unlock);
    for (const curl_lock_data data :
         {CURL_LOCK_DATA_COOKIE, CURL_LOCK_DATA_DNS, CURL_LOCK_DATA_SSL_SESSION}) {
        curl_share_setopt(m_share, CURLSHOPT_SHARE, data);
    }
}

CurlShare::~CurlShare() {
    curl_share_cleanup(m_share);
}

void CurlShare::lock(CURL* /*easy*/, curl_lock_data data, curl_lock_access /*access*/, void* self) {
    static_cast<CurlShare*>(self)->m_locks[data].lock();
}

void CurlShare::unlock(CURL* /*easy*/, curl_lock_data data, void* self) {
    static_cast<CurlShare*>(self)->m_locks[data].unlock();
}

} // namespace guide
