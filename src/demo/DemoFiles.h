#pragma once

#include <QByteArray>
#include <QString>

namespace guide {

/// The three files that lead the guide to the demo's feeds on a server with this base URL.
QByteArray demoCatalogue(const QString& base);
QByteArray demoHosts(const QString& base);
QByteArray demoSelectionFile();

} // namespace guide
