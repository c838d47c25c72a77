#include "platform/linux/CurlTransfer.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr long kBufferSize = 256 * 1024;
constexpr std::chrono::milliseconds kLongestWait{1000};
constexpr std::chrono::milliseconds kLookForStopEvery{200};

// A line end in a value would inject further headers.
bool isClean(const QByteArray& text) {
    return std::none_of(text.cbegin(), text.cend(),
                        [](char c) { return c == '\r' || c == '\n' || c == '\0'; });
}

bool append(CurlList& list, const QByteArray& line) {
    curl_slist* longer = curl_slist_append(list.get(), line.constData());
    if (longer == nullptr) {
        return false;
    }
    static_cast<void>(list.release());
    list.reset(longer);
    return true;
}

// Whether libcurl can decode all of them.
bool areKnownEncodings(const QByteArray& encodings) {
    static const QSet<QByteArray> kKnown{"identity", "none", "gzip", "x-gzip", "deflate", "br", "zstd"};
    const QList<QByteArray> names = encodings.toLower().split(',');
    return std::all_of(names.cbegin(), names.cend(),
                       [](const QByteArray& name) { return kKnown.contains(name.trimmed()); });
}

} // namespace

TransferError refusedPiece() {
    return {u"the receiver of the body ended the transfer"_s, {}, {}, true};
}

bool isSuccess(int statusCode) {
    return statusCode >= 200 && statusCode < 300;
}

CurlTransfer::CurlTransfer(const HTTPRequest& request, const TakePiece& takePiece,
                           const CurlTransferSettings& settings)
    : m_request(request)
    , m_takePiece(takePiece)
    , m_settings(settings)
    , m_easy(curl_easy_init())
    , m_mostBytes(request.maximumBodySize.value_or(settings.maximumBodySize)) {}

TransferResult CurlTransfer::run(CURLM* multi, const std::atomic<bool>& cancelled) {
    if (!m_easy || multi == nullptr || !prepare()) {
        return result(Outcome::Broken);
    }
    Outcome outcome = drive(multi, cancelled);
    if (outcome == Outcome::Done && m_code == CURLE_BAD_CONTENT_ENCODING && m_bodySize == 0 &&
        m_request.method == "GET" &&
        !areKnownEncodings(m_response.header("Content-Encoding").value_or("none"))) {
        // libcurl fails on an unknown encoding. The header often only describes the file, such as "xz", so
        // the transfer is repeated without decoding.
        curl_easy_setopt(m_easy.get(), CURLOPT_HTTP_CONTENT_DECODING, 0L);
        outcome = drive(multi, cancelled);
    }
    return result(outcome);
}

bool CurlTransfer::couldNotConnect() const {
    return m_code == CURLE_COULDNT_RESOLVE_HOST || m_code == CURLE_COULDNT_RESOLVE_PROXY ||
           m_code == CURLE_COULDNT_CONNECT;
}

bool CurlTransfer::prepare() {
    CURL* easy = m_easy.get();
    const QByteArray url = m_request.url.toEncoded(QUrl::RemoveFragment);
    bool ready = curl_easy_setopt(easy, CURLOPT_URL, url.constData()) == CURLE_OK &&
                 curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "http,https") == CURLE_OK && prepareHeaders();
    curl_easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
    // A pending name lookup must not delay the end of a transfer.
    curl_easy_setopt(easy, CURLOPT_QUICK_EXIT, 1L);
    curl_easy_setopt(easy, CURLOPT_SHARE, m_settings.share);
    curl_easy_setopt(easy, CURLOPT_COOKIEFILE, "");
    curl_easy_setopt(easy, CURLOPT_FOLLOWLOCATION, 0L);
    curl_easy_setopt(easy, CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L);
    curl_easy_setopt(easy, CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(m_mostBytes));
    curl_easy_setopt(easy, CURLOPT_BUFFERSIZE, kBufferSize);
    curl_easy_setopt(easy, CURLOPT_LOW_SPEED_LIMIT, m_settings.leastSpeed);
    const std::chrono::seconds leastSpeedTime = m_request.leastSpeedTime.value_or(m_settings.leastSpeedTime);
    curl_easy_setopt(easy, CURLOPT_LOW_SPEED_TIME, static_cast<long>(leastSpeedTime.count()));
    curl_easy_setopt(easy, CURLOPT_ERRORBUFFER, m_errorText);
    curl_easy_setopt(easy, CURLOPT_HEADERFUNCTION, &CurlTransfer::onHeader);
    curl_easy_setopt(easy, CURLOPT_HEADERDATA, this);
    curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, &CurlTransfer::onBody);
    curl_easy_setopt(easy, CURLOPT_WRITEDATA, this);
    curl_easy_setopt(easy, CURLOPT_XFERINFOFUNCTION, &CurlTransfer::onProgress);
    curl_easy_setopt(easy, CURLOPT_XFERINFODATA, this);
    curl_easy_setopt(easy, CURLOPT_NOPROGRESS, 0L);
    for (const QByteArray& rule : m_settings.connectTo) {
        ready = ready && append(m_connectTo, rule);
    }
    curl_easy_setopt(easy, CURLOPT_CONNECT_TO, m_connectTo.get());
    prepareMethod();
    return ready;
}

bool CurlTransfer::prepareHeaders() {
    bool hasContentType = false;
    for (const auto& [name, value] : m_request.headers) {
        if (name.isEmpty() || name.contains(':') || !isClean(name) || !isClean(value)) {
            qstrncpy(m_errorText, "a header of the request is malformed", sizeof m_errorText);
            return false;
        }
        if (name.compare("Accept-Encoding", Qt::CaseInsensitive) == 0) {
            // With this option libcurl also decodes the body.
            curl_easy_setopt(m_easy.get(), CURLOPT_ACCEPT_ENCODING, value.constData());
            continue;
        }
        hasContentType = hasContentType || name.compare("Content-Type", Qt::CaseInsensitive) == 0;
        if (!append(m_headers, value.isEmpty() ? name + ';' : name + ": " + value)) {
            return false;
        }
    }
    // Otherwise libcurl adds a content type and waits for "100 Continue" before it sends a body.
    if (!m_request.body.isEmpty() &&
        (!append(m_headers, "Expect:") || (!hasContentType && !append(m_headers, "Content-Type:")))) {
        return false;
    }
    return curl_easy_setopt(m_easy.get(), CURLOPT_HTTPHEADER, m_headers.get()) == CURLE_OK;
}

void CurlTransfer::prepareMethod() {
    CURL* easy = m_easy.get();
    if (m_request.method == "HEAD") {
        curl_easy_setopt(easy, CURLOPT_NOBODY, 1L);
        return;
    }
    if (!m_request.body.isEmpty() || m_request.method == "POST") {
        curl_easy_setopt(easy, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(m_request.body.size()));
        curl_easy_setopt(easy, CURLOPT_POSTFIELDS, m_request.body.constData());
    } else {
        curl_easy_setopt(easy, CURLOPT_HTTPGET, 1L);
    }
    curl_easy_setopt(easy, CURLOPT_CUSTOMREQUEST, m_request.method.constData());
}

CurlTransfer::Outcome CurlTransfer::drive(CURLM* multi, const std::atomic<bool>& cancelled) {
    if (curl_multi_add_handle(multi, m_easy.get()) != CURLM_OK) {
        return Outcome::Broken;
    }
    const Outcome outcome = awaitEnd(multi, cancelled);
    curl_multi_remove_handle(multi, m_easy.get());
    return outcome;
}

CurlTransfer::Outcome CurlTransfer::awaitEnd(CURLM* multi, const std::atomic<bool>& cancelled) {
    const SteadyTime start = std::chrono::steady_clock::now();
    m_lastActivity = start;
    for (;;) {
        int running = 0;
        if (curl_multi_perform(multi, &running) != CURLM_OK) {
            return Outcome::Broken;
        }
        if (isDone(multi)) {
            return Outcome::Done;
        }
        if (cancelled.load() || (m_request.stopped && m_request.stopped())) {
            return Outcome::Cancelled;
        }
        const SteadyTime now = std::chrono::steady_clock::now();
        const SteadyTime inactiveAt = m_lastActivity + m_request.timeout;
        const SteadyTime endAt = start + m_request.resourceTimeout;
        if (now >= endAt) {
            return Outcome::OutOfTime;
        }
        if (now >= inactiveAt) {
            return Outcome::Inactive;
        }
        const auto wait = std::chrono::ceil<std::chrono::milliseconds>(std::min(inactiveAt, endAt) - now);
        const int milliseconds =
            static_cast<int>(std::min(wait, m_request.stopped ? kLookForStopEvery : kLongestWait).count());
        if (curl_multi_poll(multi, nullptr, 0, milliseconds, nullptr) != CURLM_OK) {
            return Outcome::Broken;
        }
    }
}

bool CurlTransfer::isDone(CURLM* multi) {
    int queued = 0;
    while (const CURLMsg* message = curl_multi_info_read(multi, &queued)) {
        if (message->msg == CURLMSG_DONE) {
            m_code = message->data.result;
            return true;
        }
    }
    return false;
}

TransferResult CurlTransfer::result(Outcome outcome) {
    TransferResult result;
    if (const int status = statusCode(); status != 0) {
        m_response.statusCode = status;
        result.response = std::move(m_response);
    }
    if (outcome == Outcome::Done && m_code == CURLE_OK) {
        result.body = std::move(m_body);
        return result;
    }
    if (m_refused) {
        result.error = refusedPiece();
        return result;
    }
    result.error = TransferError{describe(outcome), {}, {}, outcome == Outcome::Cancelled};
    return result;
}

QString CurlTransfer::describe(Outcome outcome) const {
    switch (outcome) {
    case Outcome::Cancelled:
        return u"the transfer was cancelled"_s;
    case Outcome::Inactive:
        return u"no data for %1 ms"_s.arg(m_request.timeout.count());
    case Outcome::OutOfTime:
        return u"the transfer took longer than %1 ms"_s.arg(m_request.resourceTimeout.count());
    case Outcome::Done:
    case Outcome::Broken:
        break;
    }
    if (m_tooLarge || m_code == CURLE_FILESIZE_EXCEEDED) {
        return u"the body is larger than %1 bytes"_s.arg(m_mostBytes);
    }
    if (m_errorText[0] != '\0') {
        return QString::fromUtf8(m_errorText);
    }
    return m_code != CURLE_OK ? QString::fromUtf8(curl_easy_strerror(m_code))
                              : u"the transfer could not be set up"_s;
}

std::size_t CurlTransfer::onHeader(char* data, std::size_t size, std::size_t count, void* self) {
    static_cast<CurlTransfer*>(self)->takeHeader(QByteArray(data, static_cast<qsizetype>(size * count)));
    return size * count;
}

std::size_t CurlTransfer::onBody(char* data, std::size_t size, std::size_t count, void* self) {
    const std::size_t bytes = size * count;
    const QByteArrayView view(data, static_cast<qsizetype>(bytes));
    return static_cast<CurlTransfer*>(self)->takeBody(view) ? bytes : CURL_WRITEFUNC_ERROR;
}

int CurlTransfer::onProgress(void* self, curl_off_t /*downloadTotal*/, curl_off_t downloaded,
                             curl_off_t /*uploadTotal*/, curl_off_t uploaded) {
    auto* transfer = static_cast<CurlTransfer*>(self);
    if (downloaded + uploaded != transfer->m_moved) {
        transfer->m_moved = downloaded + uploaded;
        transfer->m_lastActivity = std::chrono::steady_clock::now();
    }
    return 0;
}

void CurlTransfer::takeHeader(const QByteArray& line) {
    m_lastActivity = std::chrono::steady_clock::now();
    // A new status line begins the next response; the previous one was an interim one.
    if (line.startsWith("HTTP/")) {
        m_response.headers.clear();
        return;
    }
    const qsizetype colon = line.indexOf(':');
    if (colon > 0) {
        m_response.headers.append({line.left(colon).trimmed(), line.mid(colon + 1).trimmed()});
    }
}

bool CurlTransfer::takeBody(QByteArrayView bytes) {
    if (bytes.size() > m_mostBytes - m_bodySize) {
        m_tooLarge = true;
        return false;
    }
    m_bodySize += bytes.size();
    if (m_takePiece && isSuccess(statusCode())) {
        m_refused = !m_takePiece(bytes);
    } else {
        if (m_body.isNull()) {
            curl_off_t announced = 0;
            curl_easy_getinfo(m_easy.get(), CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &announced);
            m_body.reserve(std::clamp<qint64>(announced, bytes.size(), m_mostBytes));
        }
        m_body.append(bytes);
    }
    // The receiver's time does not count as inactivity of the server.
    m_lastActivity = std::chrono::steady_clock::now();
    return !m_refused;
}

int CurlTransfer::statusCode() const {
    long status = 0;
    if (m_easy) {
        curl_easy_getinfo(m_easy.get(), CURLINFO_RESPONSE_CODE, &status);
    }
    return static_cast<int>(status);
}

} // namespace guide
