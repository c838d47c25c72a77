#include "demo/HTTPMessage.h"

namespace guide {

std::optional<ServedRequest> parsedRequestHead(const QByteArray& head) {
    QList<QByteArray> lines = head.split('\n');
    const QList<QByteArray> words = lines.takeFirst().trimmed().split(' ');
    if (words.size() != 3 || words[0].isEmpty() || !words[1].startsWith('/') ||
        !words[2].startsWith("HTTP/1.")) {
        return std::nullopt;
    }
    ServedRequest request{words[0], words[1], {}};
    for (const QByteArray& line : lines) {
        const qsizetype colon = line.indexOf(':');
        if (colon <= 0) {
            return std::nullopt;
        }
        request.headers.append({line.first(colon).trimmed(), line.sliced(colon + 1).trimmed()});
    }
    return request;
}

QByteArray responseHead(const ServedResponse& response, qsizetype contentLength) {
    QByteArray head = "HTTP/1.1 " + QByteArray::number(response.status) + ' ' +
                      reasonPhrase(response.status) + "\r\nServer: guide-demo\r\n";
    if (!response.contentType.isEmpty()) {
        head += "Content-Type: " + response.contentType + "\r\n";
    }
    for (const auto& [name, value] : response.headers) {
        head += name + ": " + value + "\r\n";
    }
    head += "Content-Length: " + QByteArray::number(contentLength) + "\r\nConnection: close\r\n\r\n";
    return head;
}

QByteArray reasonPhrase(int status) {
    switch (status) {
    case 200:
        return "OK";
    case 301:
        return "Moved Permanently";
    case 400:
        return "Bad Request";
    case 403:
        return "Forbidden";
    case 404:
        return "Not Found";
    case 405:
        return "Method Not Allowed";
    case 500:
        return "Internal Server Error";
    case 503:
        return "Service Unavailable";
    default:
        return "Status";
    }
}

} // namespace guide
