#include "screens/options/AddressTexts.h"

#include "platform/SharedPlaceAddress.h"

#include <QDir>
#include <QUrl>

#include <algorithm>
#include <optional>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// Where the user of an address begins, and the "@" behind.
struct UserPlace {
    qsizetype begin = 0;
    qsizetype end = 0;
};

std::optional<UserPlace> userPlace(const QString& address) {
    if (!isDatabaseAddress(address)) {
        return std::nullopt;
    }
    constexpr auto kSlashes = "://"_L1;
    const qsizetype begin = address.indexOf(kSlashes) + kSlashes.size();
    const auto end = std::find_if(address.begin() + begin, address.end(),
                                  [](QChar each) { return each == u'/' || each == u'?' || each == u'#'; });
    const qsizetype at = QStringView(address.begin(), end).lastIndexOf(u'@');
    return at < begin ? std::nullopt : std::optional(UserPlace{begin, at});
}

} // namespace

PlaceInput withoutPassword(const QString& typed) {
    const QString address = typed.trimmed();
    const std::optional<UserPlace> user = userPlace(address);
    const qsizetype colon = user ? address.indexOf(u':', user->begin) : -1;
    if (!user || colon < 0 || colon > user->end) {
        return {address};
    }
    const QString password = address.sliced(colon + 1, user->end - colon - 1);
    return {address.left(colon) + address.sliced(user->end), QUrl::fromPercentEncoding(password.toUtf8())};
}

QString withPassword(const PlaceInput& input) {
    const std::optional<UserPlace> user = userPlace(input.address);
    if (!user || input.password.isEmpty()) {
        return input.address;
    }
    return input.address.left(user->end) + u':' +
           QString::fromLatin1(QUrl::toPercentEncoding(input.password)) + input.address.sliced(user->end);
}

QString pathForPeople(const QString& path) {
    const QString home = QDir::homePath();
    return home.size() > 1 && path.startsWith(home + u'/') ? u'~' + path.sliced(home.size()) : path;
}

} // namespace guide
