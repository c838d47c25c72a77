#include "app/InstanceRequest.h"

#include <algorithm>

namespace guide {

namespace {

constexpr char kSeparator = '\t';
constexpr qsizetype kLongest = 4096;

QByteArray printable(const QByteArray& text) {
    const bool clean = std::ranges::none_of(text, [](char each) { return each >= 0 && each < ' '; });
    return clean && text.size() <= kLongest ? text : QByteArray();
}

} // namespace

QByteArray lineOf(const InstanceRequest& request) {
    return printable(request.url.toUtf8()) + kSeparator + printable(request.activationToken);
}

InstanceRequest requestIn(const QByteArray& line) {
    const qsizetype separator = line.indexOf(kSeparator);
    return {QString::fromUtf8(printable(line.first(separator < 0 ? line.size() : separator))),
            separator < 0 ? QByteArray() : printable(line.sliced(separator + 1))};
}

} // namespace guide
