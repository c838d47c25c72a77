#pragma once

#include <QByteArrayView>

namespace guide {

/// Whether one of the routing tables has a default route. The arguments are the texts of /proc/net/route and
/// /proc/net/ipv6_route.
bool hasDefaultRoute(QByteArrayView routes, QByteArrayView ipv6Routes);

/// The same for this machine now; true when it cannot be determined.
bool hasNetwork();

} // namespace guide
