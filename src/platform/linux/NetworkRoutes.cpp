#include "platform/linux/NetworkRoutes.h"

#include <QFile>
#include <QList>

#include <algorithm>
#include <linux/route.h>
#include <optional>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

template <class Matches>
bool anyLine(QByteArrayView table, Matches matches) {
    const QList<QByteArray> lines = table.toByteArray().split('\n');
    return std::any_of(lines.cbegin(), lines.cend(),
                       [&](const QByteArray& line) { return matches(line.simplified().split(' ')); });
}

bool isUsable(const QByteArray& flags) {
    bool read = false;
    const uint value = flags.toUInt(&read, 16);
    return read && (value & RTF_UP) != 0 && (value & RTF_REJECT) == 0;
}

bool isUnspecified(const QByteArray& address) {
    return !address.isEmpty() && address.count('0') == address.size();
}

// Columns: interface, destination, gateway, flags, three counts, mask, ...
bool isDefaultRoute(const QList<QByteArray>& fields) {
    return fields.size() > 7 && isUnspecified(fields[1]) && isUnspecified(fields[7]) && isUsable(fields[3]);
}

// Columns: destination and its length, source and its length, next hop, three counts, flags, interface.
bool isDefaultIPv6Route(const QList<QByteArray>& fields) {
    return fields.size() == 10 && isUnspecified(fields[0]) && isUnspecified(fields[1]) &&
           isUsable(fields[8]) && fields[9] != "lo";
}

std::optional<QByteArray> contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? std::optional(file.readAll()) : std::nullopt;
}

} // namespace

bool hasDefaultRoute(QByteArrayView routes, QByteArrayView ipv6Routes) {
    return anyLine(routes, isDefaultRoute) || anyLine(ipv6Routes, isDefaultIPv6Route);
}

bool hasNetwork() {
    const std::optional<QByteArray> routes = contentOf(u"/proc/net/route"_s);
    return !routes || hasDefaultRoute(*routes, contentOf(u"/proc/net/ipv6_route"_s).value_or(QByteArray()));
}

} // namespace guide
