#include "demo/server/ServerMessage.h"

namespace guide {

QByteArray ServerRequest::header(const QByteArray& name) const {
    for (const QByteArray& line : head.split('\n')) {
        const qsizetype colon = line.indexOf(':');
        if (colon > 0 && line.first(colon).compare(name, Qt::CaseInsensitive) == 0) {
            return line.sliced(colon + 1).trimmed();
        }
    }
    return {};
}

ServerReply ServerReply::answer(int status, const QByteArray& body, const QList<QByteArray>& headers) {
    ServerReply reply =
        raw(head(status, headers + QList<QByteArray>{"Content-Length: " + QByteArray::number(body.size())}));
    return reply.then(body);
}

ServerReply ServerReply::ok(const QByteArray& body, const QList<QByteArray>& headers) {
    return answer(200, body, headers);
}

ServerReply ServerReply::redirect(const QByteArray& location) {
    return answer(301, {}, {"Location: " + location});
}

ServerReply ServerReply::raw(const QByteArray& bytes, End end) {
    return {{{{}, bytes}}, end};
}

QByteArray ServerReply::head(int status, const QList<QByteArray>& headers) {
    QByteArray bytes = "HTTP/1.1 " + QByteArray::number(status) + " Status\r\nConnection: close\r\n";
    for (const QByteArray& header : headers) {
        bytes += header + "\r\n";
    }
    return bytes + "\r\n";
}

ServerReply& ServerReply::then(const QByteArray& bytes, std::chrono::milliseconds wait) {
    pieces.push_back({wait, bytes});
    return *this;
}

} // namespace guide
