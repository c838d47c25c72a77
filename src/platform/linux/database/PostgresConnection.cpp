#include "platform/linux/database/PostgresConnection.h"

#include "platform/linux/database/ServerReach.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <cstdint>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>
#include <vector>

namespace guide {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using SteadyClock = std::chrono::steady_clock;

namespace {

constexpr auto kTimeToConnect = 15s;
// Where Debian and its relatives, Fedora and its relatives, and others keep the system's certificates.
constexpr const char* kSystemCertificates[] = {"/etc/ssl/certs/ca-certificates.crt",
                                               "/etc/pki/tls/certs/ca-bundle.crt", "/etc/ssl/cert.pem"};

QByteArray systemCertificates() {
    const auto* const found = std::ranges::find_if(
        kSystemCertificates, [](const char* path) { return QFileInfo::exists(QString::fromLatin1(path)); });
    return found != std::end(kSystemCertificates) ? *found : kSystemCertificates[0];
}

DatabaseFault faultOf(QByteArrayView state) {
    // Classes: 08 connection, 28 authorization, 53 resources, 54 limits, 57 intervention of an operator, 40
    // rollback.
    const QByteArrayView group = state.first(std::min<qsizetype>(2, state.size()));
    if (group == "28") {
        return DatabaseFault::Login;
    }
    if (state == "42501") {
        return DatabaseFault::Rights;
    }
    if (state == "3D000") {
        return DatabaseFault::NoDatabase;
    }
    if (state == "3F000" || state == "42883" || state == "42P01" || state == "42703") {
        return DatabaseFault::Schema;
    }
    if (state == "53400") {
        return DatabaseFault::Later;
    }
    // A device that the database has forgotten registers when it connects again.
    if (group == "08" || group == "53" || group == "57" || group == "40" || state == "P0002" ||
        group == "25" || group == "XX") {
        return DatabaseFault::Lost;
    }
    return DatabaseFault::Statement;
}

/// Why the attempt to connect failed; `phase` is the last one that it reached.
DatabaseError connectionError(PGconn* connection, ConnStatusType phase, const DatabaseAddress& address,
                              const QList<QByteArray>& numbers, const WakeUp& stop) {
    // Five letters and digits; the severity before them has no digits.
    static const QRegularExpression kState(u": +(?=[A-Z]*[0-9])([0-9A-Z]{5}): "_s);
    DatabaseError error{.message = QString::fromUtf8(PQerrorMessage(connection)).section(u'\n', 0, 0)};
    if (const auto match = kState.match(error.message); match.hasMatch()) {
        error.state = match.captured(1).toLatin1();
        error.fault = faultOf(error.state);
    } else if (PQconnectionNeedsPassword(connection) != 0) {
        error.fault = DatabaseFault::NoPassword;
    } else if (phase == CONNECTION_SSL_STARTUP) {
        error.fault = DatabaseFault::Identity;
    } else if (phase == CONNECTION_STARTED || phase == CONNECTION_BAD) {
        error.fault = whyNotReached(address, numbers, stop);
    }
    return error;
}

} // namespace

WakeUp::WakeUp()
    : m_event(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

void WakeUp::wake() const {
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = ::write(m_event.get(), &one, sizeof one);
}

void WakeUp::clear() const {
    std::uint64_t count = 0;
    [[maybe_unused]] const ssize_t size = ::read(m_event.get(), &count, sizeof count);
}

bool waitFor(int descriptor, short events, const WakeUp& stop, SteadyClock::time_point until) {
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(until - SteadyClock::now());
        if (left.count() <= 0) {
            return false;
        }
        pollfd polled[] = {{descriptor, events, 0}, {stop.descriptor(), POLLIN, 0}};
        const int ready = ::poll(polled, std::size(polled), static_cast<int>(left.count()));
        if (ready > 0) {
            return polled[1].revents == 0;
        }
        if (ready < 0 && errno != EINTR) {
            return false;
        }
    }
}

DatabaseParameter DatabaseParameter::array(const QList<QByteArray>& texts) {
    QByteArray all("{");
    for (QByteArray text : texts) {
        text.replace('\\', "\\\\").replace('"', "\\\"");
        all += (all.size() > 1 ? ",\"" : "\"") + text + '"';
    }
    return DatabaseParameter(all + '}');
}

std::unique_ptr<PostgresConnection> PostgresConnection::open(const DatabaseAddress& address,
                                                             const QString& password,
                                                             const QList<QByteArray>& numbers,
                                                             const WakeUp& stop, DatabaseError& error) {
    const QByteArray host = address.host.toUtf8();
    std::vector<std::pair<const char*, QByteArray>> values{
        {"port", QByteArray::number(address.port)},
        {"user", address.user.toUtf8()},
        {"dbname", address.database.toUtf8()},
        {"client_encoding", "UTF8"},
        {"application_name", "quellin-guide"},
        {"gssencmode", "disable"},
        {"sslmode", address.verifiesServer ? "verify-full" : "prefer"},
        // Otherwise a connection whose network has vanished is found dead only after two hours.
        {"keepalives_idle", "60"},
        {"tcp_user_timeout", "60000"},
    };
    if (!password.isEmpty()) {
        values.emplace_back("password", password.toUtf8());
    }
    if (address.verifiesServer) {
        values.emplace_back("sslrootcert", address.certificates.isEmpty() ? systemCertificates()
                                                                          : address.certificates.toUtf8());
    }
    if (numbers.isEmpty()) {
        values.emplace_back("host", host);
    } else {
        // One name for each number.
        values.emplace_back("host", QList<QByteArray>(numbers.size(), host).join(','));
        values.emplace_back("hostaddr", numbers.join(','));
    }
    std::vector<const char*> names;
    std::vector<const char*> texts;
    for (const auto& [name, value] : values) {
        names.push_back(name);
        texts.push_back(value.constData());
    }
    names.push_back(nullptr);
    texts.push_back(nullptr);
    constexpr int kWithoutServiceFiles = 0;
    std::unique_ptr<PostgresConnection> opened(
        new PostgresConnection(PQconnectStartParams(names.data(), texts.data(), kWithoutServiceFiles), stop));
    PGconn* connection = opened->handle();
    // Has error codes, which do not depend on the language.
    PQsetErrorVerbosity(connection, PQERRORS_VERBOSE);
    PQsetNoticeReceiver(
        connection,
        [](void* self, const PGresult* notice) {
            // What functions raise; not what the server remarks on its own.
            const char* state = PQresultErrorField(notice, PG_DIAG_SQLSTATE);
            if (state != nullptr && QByteArrayView(state) == "01000") {
                static_cast<PostgresConnection*>(self)->m_warnings.append(
                    QString::fromUtf8(PQresultErrorField(notice, PG_DIAG_MESSAGE_PRIMARY)));
            }
        },
        opened.get());
    const auto until = SteadyClock::now() + kTimeToConnect;
    ConnStatusType phase = PQstatus(connection);
    PostgresPollingStatusType next = phase == CONNECTION_BAD ? PGRES_POLLING_FAILED : PGRES_POLLING_WRITING;
    while (next != PGRES_POLLING_OK) {
        if (next == PGRES_POLLING_FAILED) {
            error = connectionError(connection, phase, address, numbers, stop);
            return nullptr;
        }
        const short events = next == PGRES_POLLING_READING ? POLLIN : POLLOUT;
        if (!waitFor(PQsocket(connection), events, stop, until)) {
            error = {.fault = DatabaseFault::NoAnswer, .message = u"the server does not answer"_s};
            return nullptr;
        }
        phase = PQstatus(connection);
        next = PQconnectPoll(connection);
    }
    PQsetErrorVerbosity(connection, PQERRORS_DEFAULT);
    PQsetnonblocking(connection, 1);
    return opened;
}

DatabaseReply PostgresConnection::lost() {
    m_isLost = true;
    return DatabaseReply(DatabaseError{.fault = DatabaseFault::Lost,
                                       .message = QString::fromUtf8(PQerrorMessage(handle())).trimmed()});
}

DatabaseReply PostgresConnection::execute(const QByteArray& statement,
                                          const QList<DatabaseParameter>& parameters,
                                          std::chrono::seconds longest) {
    std::vector<const char*> values;
    std::vector<int> lengths;
    std::vector<int> formats;
    for (const DatabaseParameter& parameter : parameters) {
        values.push_back(parameter.bytes ? parameter.bytes->constData() : nullptr);
        lengths.push_back(parameter.bytes ? static_cast<int>(parameter.bytes->size()) : 0);
        formats.push_back(parameter.binary ? 1 : 0);
    }
    PGconn* connection = handle();
    constexpr int kTextResults = 0;
    const int isSent =
        parameters.isEmpty()
            ? PQsendQuery(connection, statement.constData())
            : PQsendQueryParams(connection, statement.constData(), static_cast<int>(parameters.size()),
                                nullptr, values.data(), lengths.data(), formats.data(), kTextResults);
    if (isLost() || isSent == 0) {
        return lost();
    }
    const auto until = SteadyClock::now() + longest;
    for (int left = PQflush(connection); left != 0; left = PQflush(connection)) {
        // The server may want its answer to be read first.
        if (left < 0 || !waitFor(descriptor(), POLLIN | POLLOUT, m_stop, until) || !receive()) {
            return lost();
        }
    }
    std::optional<DatabaseReply> reply;
    for (;;) {
        while (PQisBusy(connection) != 0) {
            if (!waitFor(descriptor(), POLLIN, m_stop, until) || !receive()) {
                return lost();
            }
        }
        PGresult* result = PQgetResult(connection);
        if (result == nullptr) {
            break;
        }
        if (reply && reply->error()) {
            PQclear(result);
            continue;
        }
        reply.emplace(result);
        const ExecStatusType status = PQresultStatus(result);
        if (status != PGRES_TUPLES_OK && status != PGRES_COMMAND_OK) {
            const char* state = PQresultErrorField(result, PG_DIAG_SQLSTATE);
            reply.emplace(DatabaseError{
                .fault = state ? faultOf(state) : DatabaseFault::Lost,
                .message = QString::fromUtf8(PQresultErrorField(result, PG_DIAG_MESSAGE_PRIMARY)).trimmed(),
                .state = QByteArray(state)});
        }
    }
    if (!reply || (reply->error() && reply->error()->fault == DatabaseFault::Lost)) {
        m_isLost = true;
    }
    return reply ? std::move(*reply) : lost();
}

bool PostgresConnection::takeNotifications() {
    bool had = false;
    while (PGnotify* notification = PQnotifies(handle())) {
        PQfreemem(notification);
        had = true;
    }
    return had;
}

} // namespace guide
