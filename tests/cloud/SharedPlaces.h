#pragma once

#include "../platform/database/PostgresServer.h"
#include "../platform/database/Proxy.h"
#include "GuideProcess.h"

#include <QDir>
#include <QTemporaryDir>

#include <array>
#include <optional>
#include <random>

namespace guide::test {

class Random {
  public:
    explicit Random(unsigned seed)
        : m_engine(seed) {}
    /// From 0 to `count` - 1.
    int below(int count) { return static_cast<int>(m_engine() % static_cast<unsigned>(count)); }

  private:
    std::mt19937 m_engine;
};

/// What two devices share, with the faults of its kind.
class PlaceUnderTest {
  public:
    virtual ~PlaceUnderTest() = default;
    virtual QString addressFor(int device) const = 0;
    /// Something happens to the place; returns what.
    virtual QString disturb(Random& random) = 0;
    /// The device cannot reach the place.
    virtual void lose(int device) = 0;
    /// Ends the faults.
    virtual void recover() = 0;
    /// Brings what one device stored to the other, if the place does not do that itself.
    virtual void replicate() {}
    virtual bool isReplicatedByTool() const { return false; }
    /// The values, once both devices have the same ones.
    virtual std::optional<SharedTexts> values() = 0;
    /// Changes with each write, even of an equal value.
    virtual QString writes() = 0;
};

/// Two folders and a tool that keeps them equal.
class FolderPlace final : public PlaceUnderTest {
  public:
    FolderPlace();
    QString addressFor(int device) const override {
        return m_folder.filePath(QStringLiteral("shared-%1").arg(device));
    }
    QString disturb(Random& random) override;
    void lose(int device) override;
    void recover() override;
    void replicate() override;
    bool isReplicatedByTool() const override { return true; }
    std::optional<SharedTexts> values() override;
    QString writes() override;

  private:
    using Content = std::optional<QByteArray>;

    QString pathOf(int device, const QString& name) const { return addressFor(device) + u'/' + name; }
    QString awayPathOf(int device) const { return addressFor(device) + QStringLiteral(".away"); }
    Content content(int device, const QString& name) const;
    QStringList names(int device) const;
    void replicate(const QString& name);
    void write(int device, const QString& name, const Content& content);

    const QTemporaryDir m_folder;
    /// Of each file, what both folders had.
    QMap<QString, Content> m_common;
    Random m_random{1};
    int m_conflicts = 0;
};

/// A database, to which each device has a connection that can be cut.
class DatabasePlace final : public PlaceUnderTest {
  public:
    QString addressFor(int device) const override {
        return addressWith(m_address, m_proxies[static_cast<std::size_t>(device)].port());
    }
    QString disturb(Random& random) override;
    void lose(int) override {
        m_server.stop();
        m_isStopped = true;
    }
    void recover() override;
    std::optional<SharedTexts> values() override;
    QString writes() override;

  private:
    PostgresServer m_server;
    const QString m_address{m_server.addUser(QStringLiteral("anna"))};
    std::array<Proxy, 2> m_proxies{Proxy(m_server.port()), Proxy(m_server.port())};
    bool m_isStopped = false;
};

} // namespace guide::test
