#include "agent/GuideProgram.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDebug>
#include <QProcess>
#include <QVariantMap>

namespace guide {

using namespace Qt::StringLiterals;

void GuideProgram::open(const QString& url, const QString& token) {
    // Which profile the guide on the bus has is not known.
    if (!m_profile.isEmpty()) {
        start(url, token);
        return;
    }
    // The bus starts the guide where it can.
    QDBusMessage message = QDBusMessage::createMethodCall(u"net.quellin.Guide"_s, u"/net/quellin/Guide"_s,
                                                          u"org.freedesktop.Application"_s, u"Open"_s);
    QVariantMap platformData;
    if (!token.isEmpty()) {
        platformData.insert(u"activation-token"_s, token);
    }
    message << QStringList{url} << platformData;
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(message));
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer, [this, answer, url, token] {
        answer->deleteLater();
        if (answer->isError()) {
            start(url, token);
        }
    });
}

void GuideProgram::start(const QString& url, const QString& token) const {
    QProcess guide;
    guide.setProgram(QCoreApplication::applicationDirPath() + "/quellin-guide"_L1);
    guide.setArguments(m_profile.isEmpty() ? QStringList{url} : QStringList{u"--profile"_s, m_profile, url});
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (!token.isEmpty()) {
        environment.insert(u"XDG_ACTIVATION_TOKEN"_s, token);
    }
    guide.setProcessEnvironment(environment);
    if (!guide.startDetached()) {
        qWarning("the guide cannot be started: %s", qUtf8Printable(guide.errorString()));
    }
}

} // namespace guide
