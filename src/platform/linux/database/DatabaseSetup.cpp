#include "platform/linux/database/DatabaseSetup.h"

#include "platform/files/FileContent.h"
#include "platform/linux/database/ServerReach.h"

#include <QDir>
#include <QRandomGenerator>
#include <QRegularExpression>
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
constexpr int kVersionUnit = 10'000;
constexpr int kOldestVersion = 13 * kVersionUnit;

QString newPassword() {
    constexpr auto kLetters = "abcdefghijkmnopqrstuvwxyzABCDEFGHJKLMNPQRSTUVWXYZ23456789"_L1;
    QString password;
    for (int i = 0; i < kPasswordLength; ++i) {
        password += kLetters.at(QRandomGenerator::system()->bounded(int(kLetters.size())));
    }
    return password;
}

QString withDetails(const QString& sentence, const DatabaseError& error) {
    return error.message.isEmpty() ? sentence : sentence + u"\nDetails: "_s + error.message;
}

/// Why an administrator could not connect.
QString connectionSentence(const DatabaseError& error, const DatabaseAddress& address) {
    const QString port = QString::number(address.port);
    switch (error.fault) {
    case DatabaseFault::UnknownHost:
        return u"There is no server with the name %1."_s.arg(address.host);
    case DatabaseFault::NoServer:
        return address.isSocket()
                   ? u"No PostgreSQL server has its socket in %1, with the port %2."_s.arg(address.host, port)
                   : u"No PostgreSQL server runs at %1, port %2."_s.arg(address.host, port);
    case DatabaseFault::NoNetwork:
        return u"There is no network, or no way to %1."_s.arg(address.host);
    case DatabaseFault::NoAnswer:
        return u"The server %1 does not answer."_s.arg(address.host);
    case DatabaseFault::NoPassword:
        return u"The server asks for the password of %1: give it in PGPASSWORD, in ~/.pgpass or on the terminal."_s
            .arg(address.user);
    case DatabaseFault::NoDatabase:
        return u"The server has no database %1. \"createdb %1\" makes one."_s.arg(address.database);
    case DatabaseFault::Identity:
        return withDetails(
            u"The server %1 cannot prove its identity, so nothing is sent to it."_s.arg(address.host), error);
    case DatabaseFault::Login:
        if (error.state == "28P01") {
            return u"The server does not accept the password of %1."_s.arg(address.user);
        }
        return withDetails(
            address.isSocket()
                ? u"The server does not let %1 in. Through a socket, it usually wants the system's user of "
                  u"that "
                  "name, as in \"sudo -u %1 quellin-guide --cloud-setup …\"."_s.arg(address.user)
                : u"The server does not let %1 in."_s.arg(address.user),
            error);
    case DatabaseFault::Rights:
        return u"%1 may not use the database %2."_s.arg(address.user, address.database);
    case DatabaseFault::Lost:
    case DatabaseFault::Schema:
    case DatabaseFault::Later:
    case DatabaseFault::Statement:
        break;
    }
    return withDetails(u"The server cannot be used."_s, error);
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
    const QList<QByteArray> numbers = numbersOf(address, error);
    std::unique_ptr<PostgresConnection> connection;
    if (!numbers.isEmpty() || address.isSocket()) {
        connection =
            PostgresConnection::open(address, address.password.value_or(QString()), numbers, *stop, error);
    }
    needsPassword = !connection && error.fault == DatabaseFault::NoPassword && !address.password;
    if (!connection) {
        why = connectionSentence(error, address);
        return std::nullopt;
    }
    return DatabaseSetup(address, std::move(stop), std::move(connection));
}

bool DatabaseSetup::canSetUp(QString& why) {
    if (const int version = PQserverVersion(m_connection->handle()); version < kOldestVersion) {
        why = u"The server is PostgreSQL %1; the guide needs %2 or newer."_s.arg(version / kVersionUnit)
                  .arg(kOldestVersion / kVersionUnit);
        return false;
    }
    const DatabaseReply reply = m_connection->execute(
        "select r.rolsuper or r.rolcreaterole, r.rolsuper or pg_has_role(d.datdba, 'usage') "
        "from pg_roles r, pg_database d where r.rolname = current_user and d.datname = current_database()");
    if (reply.error() || reply.rows() != 1) {
        why = withDetails(u"The database cannot be read."_s, reply.error().value_or(DatabaseError{}));
        return false;
    }
    if (reply.text(0, 0) != "t") {
        why = u"%1 may not create roles. Set the database up as a superuser, such as postgres."_s.arg(
            m_address.user);
        return false;
    }
    if (reply.text(0, 1) != "t") {
        why = u"%1 does not own the database %2. Set it up as its owner or as a superuser."_s.arg(
            m_address.user, m_address.database);
        return false;
    }
    return true;
}

std::optional<QStringList> DatabaseSetup::upgrade(const QString& folder, QString& why) {
    if (!canSetUp(why)) {
        return std::nullopt;
    }
    const QStringList files = QDir(folder).entryList({u"*.sql"_s}, QDir::Files, QDir::Name);
    if (files.isEmpty()) {
        why = u"The files of the schema are missing."_s;
        return std::nullopt;
    }
    QStringList applied;
    const auto fail = [&](const QString& step, const DatabaseReply& reply) {
        why = reply.error()->fault == DatabaseFault::Rights
                  ? withDetails(u"%1 may not set the database up."_s.arg(m_address.user), *reply.error())
                  : withDetails(
                        u"The database was not set up: %1 failed, and nothing of it remains."_s.arg(step),
                        *reply.error());
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
            why = u"The database is newer than this program: install a newer guide."_s;
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

bool DatabaseSetup::acceptsName(const QString& name, QString& why) {
    static const QRegularExpression kName(u"\\A[a-z][a-z0-9_]{0,40}\\z"_s);
    if (name.startsWith("pg_"_L1) || name.startsWith("guide_"_L1)) {
        why = u"The name of a user does not begin with \"pg_\" or \"guide_\"."_s;
        return false;
    }
    if (!kName.match(name).hasMatch()) {
        why = u"The name of a user begins with a small letter and has at most 41 small letters from a to z, "
              "digits and \"_\"."_s;
        return false;
    }
    return true;
}

std::optional<DatabaseSetup::User> DatabaseSetup::setUser(const QString& name, QString& why) {
    if (!acceptsName(name, why)) {
        return std::nullopt;
    }
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
    const DatabaseReply known =
        m_connection->execute("select from pg_roles where rolname = $1", {DatabaseParameter(name.toUtf8())});
    const DatabaseReply reply = known.error()
                                    ? DatabaseReply(*known.error())
                                    : m_connection->execute("select guide.set_user($1, $2)",
                                                            {DatabaseParameter(name.toUtf8()),
                                                             DatabaseParameter(QByteArray(verifier.get()))});
    if (reply.error()) {
        const DatabaseError& error = *reply.error();
        if (error.state == "22023") {
            why =
                u"The server has a role %1 already, which is not a user of the guide. Choose another name."_s
                    .arg(name);
        } else if (error.fault == DatabaseFault::Rights) {
            why = u"%1 may not make users of the guide. Do it as a superuser, such as postgres."_s.arg(
                m_address.user);
        } else {
            why = withDetails(u"The user was not made."_s, error);
        }
        return std::nullopt;
    }
    DatabaseAddress address = m_address;
    address.user = name;
    if (address.isSocket()) {
        address.host = u"server"_s;
    }
    QUrl url(address.text());
    url.setPassword(password);
    return User{.address = url.toString(QUrl::FullyEncoded), .isNew = known.rows() == 0};
}

} // namespace guide
