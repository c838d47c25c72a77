#include "platform/linux/database/DatabaseAddress.h"

#include "platform/SharedPlaceAddress.h"

#include <QUrl>
#include <QUrlQuery>

#include <arpa/inet.h>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kScheme = "postgresql"_L1;
constexpr int kPort = 5432;
constexpr auto kVerification = "verify-full"_L1;
bool isOnThisDevice(const QString& host) {
    in_addr address{};
    const bool isNumber = inet_pton(AF_INET, host.toLatin1().constData(), &address) == 1;
    return host.startsWith(u'/') || host == "localhost"_L1 || host == "::1"_L1 ||
           (isNumber && host.startsWith("127."_L1));
}

} // namespace

QString DatabaseAddress::text() const {
    QUrl url;
    url.setScheme(kScheme);
    url.setUserName(user);
    url.setHost(isSocket() ? QString() : host);
    url.setPort(port == kPort ? -1 : port);
    url.setPath(u'/' + database);
    QUrlQuery query;
    if (isSocket()) {
        query.addQueryItem(u"host"_s, host);
    }
    if (verifiesServer && isOnThisDevice(host)) {
        query.addQueryItem(u"sslmode"_s, kVerification);
    }
    if (!certificates.isEmpty()) {
        query.addQueryItem(u"sslrootcert"_s, certificates);
    }
    url.setQuery(query);
    return url.toString(QUrl::FullyEncoded);
}

std::optional<DatabaseAddress> databaseAddress(const QString& text, QString& why) {
    const QUrl url(text, QUrl::StrictMode);
    if (!isDatabaseAddress(text) || !url.isValid()) {
        why = u"An address of a database is like postgresql://anna@tv.example.org/guide."_s;
        return std::nullopt;
    }
    DatabaseAddress address;
    address.host = url.host(QUrl::FullyDecoded);
    address.port = url.port(kPort);
    address.user = url.userName(QUrl::FullyDecoded);
    address.database = url.path(QUrl::FullyDecoded).mid(1);
    if (const QString password = url.password(QUrl::FullyDecoded); !password.isEmpty()) {
        address.password = password;
    }
    bool asksForVerification = false;
    for (const auto& [name, value] : QUrlQuery(url).queryItems(QUrl::FullyDecoded)) {
        if (name == "sslmode"_L1 && value == kVerification) {
            asksForVerification = true;
        } else if (name == "sslrootcert"_L1 && value.startsWith(u'/')) {
            address.certificates = value;
        } else if (name == "host"_L1 && value.startsWith(u'/') && address.host.isEmpty()) {
            address.host = value;
        } else {
            why = name == "sslmode"_L1 ? u"The only sslmode of an address is verify-full."_s
                                       : u"An address has no options but sslmode, sslrootcert and host, "
                                         "with full paths."_s;
            return std::nullopt;
        }
    }
    if (address.host.isEmpty() || address.user.isEmpty() || address.database.isEmpty()) {
        why = u"The address needs a user, a server and the name of a database."_s;
        return std::nullopt;
    }
    address.verifiesServer = asksForVerification || !isOnThisDevice(address.host);
    return address;
}

} // namespace guide
