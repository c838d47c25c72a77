#pragma once

#include <QByteArrayView>

namespace guide {

/// Whether one of the kernel's tables of routes has a way to everywhere, as the texts of /proc/net/route and
/// /proc/net/ipv6_route say.
bool hasDefaultRoute(QByteArrayView routes, QByteArrayView ipv6Routes);

/// The same of this machine as it is now; true where the system does not tell.
bool hasNetwork();

} // namespace guide
