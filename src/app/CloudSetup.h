#pragma once

#include <QString>

#include <optional>

namespace guide {

/// Sets up or upgrades the database that devices share, and makes the user if one is named; prints what was
/// done. Asks on the terminal for the administrator's password if one is needed. The exit status.
int setUpCloud(const QString& address, const std::optional<QString>& user, const QString& schemaFolder);

} // namespace guide
