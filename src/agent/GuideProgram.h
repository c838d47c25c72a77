#pragma once

#include <QDBusConnection>
#include <QString>

namespace guide {

/// The guide with its window, as a program that may or may not run. Main thread.
class GuideProgram {
  public:
    /// `profile` is that of the guide; empty for the usual one.
    GuideProgram(const QDBusConnection& bus, QString profile)
        : m_bus(bus)
        , m_profile(std::move(profile)) {}

    /// Opens the address of a show. `token` lets the window come to the front; it may be empty.
    void open(const QString& url, const QString& token);

  private:
    void start(const QString& url, const QString& token) const;

    QDBusConnection m_bus;
    const QString m_profile;
};

} // namespace guide
