#pragma once

#include <QByteArray>
#include <QList>

#include <chrono>
#include <vector>

namespace guide {

struct ServerRequest {
    QByteArray method;
    /// Path and query as sent, percent escapes included.
    QByteArray target;
    /// The request line and the header lines as sent.
    QByteArray head;
    QByteArray body;

    /// The value of the first header of this name, compared case-insensitively; null when it is missing.
    QByteArray header(const QByteArray& name) const;
};

/// The bytes sent on a connection, status line and headers included, and how the connection ends.
struct ServerReply {
    enum class End {
        Close,
        Reset,
        /// Sends nothing more; the connection stays open until the client disconnects or the server stops.
        Stall,
    };
    struct Piece {
        /// Time to wait before sending.
        std::chrono::milliseconds wait{0};
        QByteArray bytes;
    };

    std::vector<Piece> pieces;
    End end = End::Close;

    /// A complete response with its Content-Length. Header lines have no line ends: "Content-Type:
    /// text/html".
    static ServerReply answer(int status, const QByteArray& body, const QList<QByteArray>& headers = {});
    static ServerReply ok(const QByteArray& body, const QList<QByteArray>& headers = {});
    static ServerReply redirect(const QByteArray& location);
    /// These bytes and nothing else.
    static ServerReply raw(const QByteArray& bytes, End end = End::Close);
    /// A status line, the headers and the empty line.
    static QByteArray head(int status, const QList<QByteArray>& headers = {});

    ServerReply& then(const QByteArray& bytes, std::chrono::milliseconds wait = {});
};

} // namespace guide
