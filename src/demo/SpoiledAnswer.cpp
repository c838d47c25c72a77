#include "demo/SpoiledAnswer.h"

#include "demo/HTTPMessage.h"
#include "demo/Packing.h"
#include "demo/Random.h"

namespace guide {

namespace {

QByteArray webPage(const QByteArray& title) {
    QByteArray page = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>" +
                      title + "</title>\n</head>\n<body>\n<h1>" + title + "</h1>\n";
    for (int i = 0; i < 50; ++i) {
        page += "<p>Whoever looked for a schedule here is kindly asked to come back later.<br>\n";
    }
    return page + "</body>\n</html>\n";
}

/// Text that is long enough for a packed stream to have a middle.
QByteArray longText() {
    QByteArray text;
    Random random(7);
    for (int i = 0; i < 4000; ++i) {
        text += QByteArray::number(qulonglong(random.next()), 36) + '\n';
    }
    return text;
}

QByteArray damaged(QByteArray packed) {
    const qsizetype middle = packed.size() / 2;
    for (qsizetype i = middle; i < middle + 64 && i < packed.size(); ++i) {
        packed[i] = char(~packed[i]);
    }
    return packed;
}

/// "Příliš žluťoučký kůň" and its like in windows-1250, which is no UTF-8.
QByteArray centralEuropeanBytes() {
    QByteArray text = "<?xml version=\"1.0\"?>\n<tv>\n";
    for (int i = 0; i < 50; ++i) {
        text += "<!-- P\xf8\xedli\x9a \x9elu\x9dou\xe8k\xfd k\xf9\xf2 \xfap\xecl \xef\xe1"
                "belsk\xe9 \xf3"
                "dy -->\n";
    }
    return text + "</tv>\n";
}

QByteArray garbage() {
    Random random(13);
    QByteArray bytes(20'000, Qt::Uninitialized);
    for (char& byte : bytes) {
        byte = char(random.next() & 0xff);
    }
    return bytes;
}

} // namespace

SpoiledAnswer spoiled(const ServedResponse& good, const Misbehaviour& how, const QByteArray& redirect) {
    using Kind = Misbehaviour::Kind;
    using Ending = SpoiledAnswer::Ending;
    SpoiledAnswer answer{.response = good, .sent = good.body.size()};
    const auto replace = [&answer](ServedResponse response) {
        answer.sent = response.body.size();
        answer.response = std::move(response);
    };
    switch (how.kind) {
    case Kind::None:
        break;
    case Kind::Status:
        replace({how.status, "text/html; charset=utf-8",
                 webPage(QByteArray::number(how.status) + ' ' + reasonPhrase(how.status))});
        break;
    case Kind::RedirectOnce:
    case Kind::RedirectForever:
        replace({301, "text/html", {}, {{"Location", redirect}}});
        break;
    case Kind::EmptyBody:
        replace({200, good.contentType, {}});
        break;
    case Kind::Drop:
        answer.mute = true;
        break;
    case Kind::Stall:
        answer.mute = true;
        answer.ending = Ending::KeepSilent;
        break;
    case Kind::StallInBody:
        answer.sent /= 2;
        answer.ending = Ending::KeepSilent;
        break;
    case Kind::CutBody:
        answer.sent /= 2;
        break;
    case Kind::SlowBody:
        answer.duration = how.duration;
        break;
    case Kind::WrongCharset:
        replace({200, "text/xml; charset=utf-8", centralEuropeanBytes()});
        break;
    case Kind::BrokenGzip:
        replace({200, "application/x-gzip", damaged(gzipped(longText()))});
        break;
    case Kind::BrokenXz:
        replace({200, "application/x-xz", damaged(xzPacked(longText()))});
        break;
    case Kind::GzipBomb:
        replace({200, "application/x-gzip", gzipBomb(how.bombSize)});
        break;
    case Kind::XzBomb:
        replace({200, "application/x-xz", xzBomb(how.bombSize)});
        break;
    case Kind::HTML:
        replace({200, "text/html; charset=utf-8", webPage("Under construction")});
        break;
    case Kind::Garbage:
        replace({200, "application/xml", garbage()});
        break;
    }
    return answer;
}

} // namespace guide
