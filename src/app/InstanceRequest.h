#pragma once

#include <QByteArray>
#include <QString>

namespace guide {

/// What a second start of the program asks of the one that runs.
struct InstanceRequest {
    /// An address of the application's scheme; empty to show the window only.
    QString url;
    /// Lets the window come to the front; may be empty.
    QByteArray activationToken;
    /// An address or file to be added as a source; may be empty.
    QString source = {};
    /// To update schedules and alarms, in place of the window.
    bool update = false;

    friend bool operator==(const InstanceRequest&, const InstanceRequest&) = default;
};

/// One line; what has a control character is left out.
QByteArray lineOf(const InstanceRequest& request);
InstanceRequest requestIn(const QByteArray& line);

} // namespace guide
