#include "platform/files/FallbackSecretStore.h"
#include "platform/files/FileReplacement.h"
#include "platform/files/FileSecretStore.h"
#include "platform/linux/SecretServiceStore.h"
#include "platform/memory/MemorySecretStore.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

TEST(FileSecretStoreTest, KeepsSecretsWhereOnlyTheOwnerReadsThem) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"secrets.json"_s);
    FileSecretStore store(path);
    EXPECT_EQ(store.secret(u"a"_s), std::nullopt);
    ASSERT_TRUE(store.setSecret(u"a"_s, u"pä\"ss\n"_s));
    EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    // Such as after it was restored from a copy.
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    ASSERT_TRUE(store.setSecret(u"b"_s, u""_s));
    EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());

    FileSecretStore later(path);
    EXPECT_EQ(later.secret(u"a"_s), u"pä\"ss\n"_s);
    EXPECT_EQ(later.secret(u"b"_s), u""_s);
    later.removeSecret(u"a"_s);
    EXPECT_EQ(store.secret(u"a"_s), std::nullopt);
    EXPECT_EQ(store.secret(u"b"_s), u""_s);

    ASSERT_TRUE(replaceFile(path, "{damaged"));
    EXPECT_EQ(store.secret(u"b"_s), std::nullopt);
    ASSERT_TRUE(store.setSecret(u"c"_s, u"new"_s));
    EXPECT_EQ(store.secret(u"c"_s), u"new"_s);
    EXPECT_TRUE(QFile::exists(path + u".damaged"_s)) << "the user may still read it";
}

TEST(FallbackSecretStoreTest, TheSecondStoreTakesWhatTheFirstCannot) {
    auto first = std::make_unique<MemorySecretStore>();
    auto second = std::make_unique<MemorySecretStore>();
    MemorySecretStore& keyring = *first;
    MemorySecretStore& file = *second;
    FallbackSecretStore store(std::move(first), std::move(second));
    const QString key = u"key"_s;

    ASSERT_TRUE(store.setSecret(key, u"1"_s));
    EXPECT_EQ(keyring.secret(key), u"1"_s);
    EXPECT_EQ(file.secret(key), std::nullopt);
    keyring.fails = true;
    ASSERT_TRUE(store.setSecret(key, u"2"_s));
    keyring.fails = false;
    EXPECT_EQ(store.secret(key), u"2"_s) << "not the older one that the keyring still has";
    ASSERT_TRUE(store.setSecret(key, u"3"_s));
    EXPECT_EQ(file.secret(key), std::nullopt);
    EXPECT_EQ(store.secret(key), u"3"_s);
    store.removeSecret(key);
    EXPECT_EQ(store.secret(key), std::nullopt);
    keyring.fails = file.fails = true;
    EXPECT_FALSE(store.setSecret(key, u"4"_s));
}

TEST(SecretServiceStoreTest, FailsAtOnceWithoutABus) {
    const QByteArray bus = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/no/such/bus");
    SecretServiceStore store;
    EXPECT_FALSE(store.setSecret(u"key"_s, u"secret"_s));
    EXPECT_EQ(store.secret(u"key"_s), std::nullopt);
    bus.isNull() ? qunsetenv("DBUS_SESSION_BUS_ADDRESS") : qputenv("DBUS_SESSION_BUS_ADDRESS", bus);
}

} // namespace
} // namespace guide
