#pragma once

#include <QByteArray>

#include <chrono>
#include <cstdint>

namespace guide {

/// How the server serves a path wrongly, and how often.
struct Misbehaviour {
    enum class Kind {
        /// Serves it well.
        None,
        /// Answers `status` with a long page that says so.
        Status,
        /// Answers 301 with an empty body and the absolute URL of a place that has the path's own answer.
        RedirectOnce,
        /// Answers every request, also those that follow, with one more redirect.
        RedirectForever,
        /// 200 and nothing.
        EmptyBody,
        /// Closes the connection before the first byte.
        Drop,
        /// Announces the whole body, sends half of it and closes.
        CutBody,
        /// Sends the whole body in pieces, over `duration`.
        SlowBody,
        /// Takes the request and says nothing until the client leaves or the server stops.
        Stall,
        /// As Stall, after the head and half of the body.
        StallInBody,
        /// Says UTF-8 and sends bytes that are none.
        WrongCharset,
        /// A packed page whose stream is damaged in its middle.
        BrokenGzip,
        BrokenXz,
        /// A small packed page that unpacks to `bombSize` bytes of blanks.
        GzipBomb,
        XzBomb,
        /// A web page where a feed was expected, with status 200.
        HTML,
        /// Bytes without any meaning, as application/xml.
        Garbage,
    };

    Kind kind = Kind::None;
    /// Of Status.
    int status = 500;
    /// Of SlowBody.
    std::chrono::milliseconds duration{1000};
    /// Of the bombs.
    std::uint64_t bombSize = std::uint64_t(4) << 30;
    /// After so many requests of the path it is served well again; 0: never.
    int times = 0;
};

} // namespace guide
