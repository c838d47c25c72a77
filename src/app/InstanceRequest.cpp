#include "app/InstanceRequest.h"

#include <QByteArrayList>

#include <algorithm>

namespace guide {

namespace {

constexpr char kSeparator = '\t';
constexpr char kUpdate[] = "update";
constexpr qsizetype kLongest = 4096;

QByteArray printable(const QByteArray& text) {
    const bool clean = std::ranges::none_of(text, [](char each) { return each >= 0 && each < ' '; });
    return clean && text.size() <= kLongest ? text : QByteArray();
}

} // namespace

QByteArray lineOf(const InstanceRequest& request) {
    return printable(request.url.toUtf8()) + kSeparator + printable(request.activationToken) + kSeparator +
           printable(request.source.toUtf8()) + kSeparator + (request.update ? kUpdate : "");
}

InstanceRequest requestIn(const QByteArray& line) {
    QByteArrayList fields = line.split(kSeparator);
    fields.resize(4);
    return {QString::fromUtf8(printable(fields[0])), printable(fields[1]),
            QString::fromUtf8(printable(fields[2])), fields[3] == kUpdate};
}

} // namespace guide
