#pragma once

#include <QCborValue>
#include <QJsonObject>
#include <QMap>
#include <QProcess>
#include <QString>
#include <QStringList>

namespace guide::test {

/// The shared values as text, by key. Lists have no dates.
using SharedTexts = QMap<QString, QString>;

inline const QStringList kSharedLists{QStringLiteral("Favorites"), QStringLiteral("SelectedChannels")};
inline const QStringList kSharedSettings{
    QStringLiteral("noAlarmsSchedule"), QStringLiteral("noAlarmsSchedule.0"),
    QStringLiteral("noAlarmsSchedule.1"), QStringLiteral("lastAlarmMinutes")};
/// Numbers; unlike the values above, those of two devices are merged.
inline const QString kSharedSources = QStringLiteral("OwnSources");
QString sharedText(const QString& key, const QCborValue& value);

struct GuideState {
    SharedTexts values;
    /// Of kept() only: the lists of each key that are in ReplacedLists, the newest first.
    QMap<QString, QStringList> kept;
    /// Nothing remains to be stored, and what others stored has been read.
    bool isReady = false;
    /// Whether the last command changed the value of its key.
    bool isChanged = false;
};

/// One of the user's devices: a process that can be killed at any moment, with a profile of its own.
class GuideProcess {
  public:
    /// `place` is a folder or the address of a database. The device's clock is ahead by that.
    GuideProcess(const QString& profile, const QString& place, const QString& name, int hoursAhead);

    ~GuideProcess() { kill(); }

    void start();
    /// Shuts it down as usual.
    void end();
    /// As when the power fails: nothing is finished.
    void kill();
    bool isRunning() const { return m_process.state() == QProcess::Running; }

    // What a user does; the state right afterwards.

    /// `change` is "add" or "remove" with a title or the number of a source, the numbers of channels, or one
    /// number.
    GuideState change(const QString& key, const QString& change) {
        return ask(key + QLatin1Char(' ') + change);
    }
    GuideState activate() { return ask(QStringLiteral("activate")); }
    GuideState kept() { return ask(QStringLiteral("kept")); }
    /// Keeps what was set, even if the device is killed.
    GuideState flush() { return ask(QStringLiteral("flush")); }
    /// As when a network appears.
    GuideState retry() { return ask(QStringLiteral("retry")); }
    GuideState state() { return ask(QStringLiteral("state")); }

  private:
    GuideState ask(const QString& command);

    const QStringList m_arguments;
    QProcess m_process;
};

/// Runs the device; the arguments are those that GuideProcess gives.
int runGuideProcess(const QStringList& arguments);

} // namespace guide::test
