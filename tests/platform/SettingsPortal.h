#pragma once

#include <QDBusContext>
#include <QDBusVariant>
#include <QHash>
#include <QObject>
#include <QString>
#include <QVariant>

namespace guide::test {

/// The settings portal of a desktop.
class Portal : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

  public:
    QHash<QString, QVariant> values;

  public Q_SLOTS:
    // NOLINTNEXTLINE(readability-identifier-naming): the portal's own name
    QDBusVariant Read(const QString& space, const QString& key) {
        const auto found = values.constFind(space + QLatin1Char('/') + key);
        if (found == values.cend()) {
            sendErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"),
                           QStringLiteral("no such setting"));
            return {};
        }
        return QDBusVariant(QVariant::fromValue(QDBusVariant(*found)));
    }

  Q_SIGNALS:
    // NOLINTNEXTLINE(readability-identifier-naming): the portal's own name
    void SettingChanged(const QString& space, const QString& key, const QDBusVariant& value);
};

} // namespace guide::test
