#include "platform/linux/database/DatabaseSetup.h"

#include "platform/files/FileContent.h"

#include <QDir>
#include <QRandomGenerator>
#include <QSet>
#include <QUrl>

#include <array>

namespace guide {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qint64 kLargestFile = 1 << 20;
// An upgrade may have to go over all counters.
constexpr auto kTimeForFile = 3600s;
constexpr int kPasswordLength = 24;

QString newPassword() {
    constexpr auto kLetters = "abcdefghijkmnopqrstuvwxyzABCDEFGHJKLMNPQRSTUVWXYZ23456789"_L1;
    QString password;
    for (int i = 0; i < kPasswordLength; ++i) {
        password += kLetters.at(QRandomGenerator::system()->bounded(int(kLetters.size())));
    }
    return password;
}

/// The number in front of the file's name, or 0.
int numberOf(const QString& file) {
    return file.section(u'-', 0, 0).toInt();
}

} // namespace

std::optional<DatabaseSetup> DatabaseSetup::connect(const DatabaseAddress& address, bool& needsPassword,
                                                    QString& why) {
    auto stop = std::make_unique<WakeUp>();
    DatabaseError error;
    auto connection =
        PostgresConnection::open(address, address.password.value_or(QString()), {}, *stop, error);
    needsPassword = !connection && error.fault == DatabaseFault::Login && !address.password;
    if (!connection) {
        why = error.message;
        return std::nullopt;
    }
    return DatabaseSetup(address, std::move(stop), std::move(connection));
}

std::optional<QStringList> DatabaseSetup::upgrade(const QString& folder, QString& why) {
    const QStringList files = QDir(folder).entryList({u"*.sql"_s}, QDir::Files, QDir::Name);
    if (files.isEmpty()) {
        why = u"The files of the schema are missing."_s;
        return std::nullopt;
    }
    QStringList applied;
    const auto fail = [&](const QString& step, const DatabaseReply& reply) {
        why = step + u": "_s + reply.error()->message;
        m_connection->execute("rollback");
        return std::nullopt;
    };
    for (const QString& file : files) {
        const std::optional<QByteArray> content = fileContent(folder + u'/' + file, kLargestFile);
        if (!content || numberOf(file) == 0) {
            why = file + u" cannot be read."_s;
            return std::nullopt;
        }
        const QByteArray number = QByteArray::number(numberOf(file));
        // One setup at a time.
        const DatabaseReply begun =
            m_connection->execute("begin; create table if not exists public.guide_schema "
                                  "(number integer primary key, applied timestamptz not null default now()); "
                                  "lock table public.guide_schema in exclusive mode; "
                                  "select max(number), count(*) filter (where number = " +
                                  number + ") from public.guide_schema");
        if (begun.error()) {
            return fail(file, begun);
        }
        if (begun.number(0, 0) > numberOf(files.last())) {
            m_connection->execute("rollback");
            why = u"The database is newer than this program."_s;
            return std::nullopt;
        }
        if (begun.number(0, 1) > 0) {
            m_connection->execute("rollback");
            continue;
        }
        if (const DatabaseReply step = m_connection->execute(*content, {}, kTimeForFile); step.error()) {
            return fail(file, step);
        }
        const DatabaseReply ended = m_connection->execute(
            "reset role; insert into public.guide_schema (number) values (" + number + "); commit");
        if (ended.error()) {
            return fail(file, ended);
        }
        applied.append(file);
    }
    // The rights on the database itself are lost where only its contents were restored.
    const DatabaseReply rights = m_connection->execute(
        "do $$ begin "
        "execute format('revoke all on database %I from public', current_database()); "
        "execute format('grant connect on database %I to guide_member', current_database()); end $$");
    if (rights.error()) {
        return fail(u"the rights on the database"_s, rights);
    }
    return applied;
}

std::optional<QString> DatabaseSetup::setUser(const QString& name, QString& why) {
    const QString password = newPassword();
    // So that the password is in no log of the server.
    const std::unique_ptr<char, decltype(&PQfreemem)> verifier(
        PQencryptPasswordConn(m_connection->handle(), password.toUtf8().constData(),
                              name.toUtf8().constData(), "scram-sha-256"),
        &PQfreemem);
    if (!verifier) {
        why = u"The password cannot be made."_s;
        return std::nullopt;
    }
    const DatabaseReply reply = m_connection->execute(
        "select guide.set_user($1, $2)",
        {DatabaseParameter(name.toUtf8()), DatabaseParameter(QByteArray(verifier.get()))});
    if (reply.error()) {
        why = reply.error()->message;
        return std::nullopt;
    }
    DatabaseAddress address = m_address;
    address.user = name;
    if (address.isSocket()) {
        address.host = u"server"_s;
    }
    QUrl url(address.text());
    url.setPassword(password);
    return url.toString(QUrl::FullyEncoded);
}

} // namespace guide
