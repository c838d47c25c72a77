#include "sources/own/IconAddress.h"

#include "sources/WebURL.h"

#include <QRegularExpression>
#include <QUrlQuery>

#include <array>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLongest = 2'048;
constexpr std::array kWikimediaWidths{20, 40, 60, 120, 250, 330, 500, 960, 1280, 1920, 3840};

/// The width that is served and at least as large.
int servedWidth(int width) {
    for (const int each : kWikimediaWidths) {
        if (each >= width) {
            return each;
        }
    }
    return kWikimediaWidths.back();
}

QUrl withServedWidth(QUrl url) {
    const QString host = url.host();
    if (host != "wikimedia.org"_L1 && !host.endsWith(".wikimedia.org"_L1) &&
        !host.endsWith(".wikipedia.org"_L1)) {
        return url;
    }
    static const QRegularExpression thumbnail(u"^(.*/thumb/.*/(?:[a-z0-9]+-)?)(\\d{1,5})(px-[^/]*)$"_s);
    if (const auto match = thumbnail.match(url.path(QUrl::FullyEncoded)); match.hasMatch()) {
        url.setPath(match.captured(1) + QString::number(servedWidth(match.captured(2).toInt())) +
                        match.captured(3),
                    QUrl::TolerantMode);
    }
    QUrlQuery query(url);
    if (const int width = query.queryItemValue(u"width"_s).toInt(); width > 0) {
        query.removeQueryItem(u"width"_s);
        query.addQueryItem(u"width"_s, QString::number(servedWidth(width)));
        url.setQuery(query);
    }
    return url;
}

void append(QList<QUrl>& addresses, const QString& text) {
    QUrl url(text, QUrl::TolerantMode);
    url = url.adjusted(QUrl::RemoveUserInfo | QUrl::RemoveFragment);
    if (isWebURL(url)) {
        url = withServedWidth(url);
        if (!addresses.contains(url)) {
            addresses.append(url);
        }
    }
}

} // namespace

QList<QUrl> iconAddresses(const QString& written) {
    QList<QUrl> addresses;
    const QString text = written.trimmed();
    if (text.size() > kLongest) {
        return addresses;
    }
    if (text.startsWith("//"_L1)) {
        append(addresses, u"https:"_s + text);
        append(addresses, u"http:"_s + text);
        return addresses;
    }
    static const QRegularExpression scheme(u"https?://"_s, QRegularExpression::CaseInsensitiveOption);
    const qsizetype second = text.lastIndexOf(scheme);
    if (second <= 0) {
        append(addresses, text);
        return addresses;
    }
    // "https://a.examplehttps://b.example/x" is a mistake, but an address may be an argument of another one.
    const bool isArgument = text[second - 1] == u'=';
    const bool isPart = isArgument || text[second - 1] == u'/';
    if (isArgument) {
        append(addresses, text);
    }
    append(addresses, text.mid(second));
    if (isPart) {
        append(addresses, text);
    }
    return addresses;
}

} // namespace guide
