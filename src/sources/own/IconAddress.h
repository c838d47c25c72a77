#pragma once

#include <QList>
#include <QString>
#include <QUrl>

namespace guide {

/// The web addresses that an icon's address in a feed or playlist may mean, the likeliest first: takes
/// doubled addresses apart, adds a missing scheme, asks Wikimedia for a width that it serves. Empty for a
/// relative one and for any other scheme.
QList<QUrl> iconAddresses(const QString& written);

} // namespace guide
