#pragma once

#include <QString>

namespace guide {

/// Whether the address of a place that devices share is that of a database. Otherwise it may be the path of a
/// folder.
inline bool isDatabaseAddress(const QString& address) {
    using namespace Qt::StringLiterals;
    return address.startsWith("postgresql://"_L1, Qt::CaseInsensitive) ||
           address.startsWith("postgres://"_L1, Qt::CaseInsensitive);
}

} // namespace guide
