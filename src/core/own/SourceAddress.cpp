#include "core/own/SourceAddress.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// A part of a path that is at least so long and mixes letters and digits is a token.
constexpr qsizetype kToken = 16;
constexpr QStringView kHidden = u"…";

bool isToken(const QString& part) {
    // Personal feeds are numbered: "epg-1a2b3c4d.xml".
    static const QRegularExpression personal(u"^epg-(?=[a-z]*\\d)[a-z\\d]{8,}\\b"_s,
                                             QRegularExpression::CaseInsensitiveOption);
    if (personal.match(part).hasMatch()) {
        return true;
    }
    const QString stem = part.section(u'.', 0, 0);
    const auto isDigit = [](QChar c) { return c.isDigit(); };
    const auto isLetter = [](QChar c) { return c.isLetter(); };
    return stem.size() >= kToken && std::ranges::any_of(stem, isDigit) &&
           std::ranges::any_of(stem, isLetter) &&
           std::ranges::all_of(stem, [](QChar c) { return c.isLetterOrNumber(); });
}

QStringList pathParts(const QUrl& url) {
    return url.path(QUrl::FullyEncoded).split(u'/');
}

std::optional<SourceAddress> webAddress(const QUrl& url) {
    if (!url.isValid() || url.host().isEmpty()) {
        return std::nullopt;
    }
    QString path;
    bool isSecret = !url.userInfo().isEmpty() || url.hasQuery();
    for (const QString& part : pathParts(url).mid(1)) {
        isSecret = isSecret || isToken(part);
        path += u'/' + (isToken(part) ? kHidden.toString() : part);
    }
    QString open = url.scheme() + "://"_L1 + url.host();
    if (url.port() >= 0) {
        open += u':' + QString::number(url.port());
    }
    open += path;
    if (url.hasQuery()) {
        open += u'?' + kHidden.toString();
    }
    return SourceAddress{open, isSecret ? url.toString(QUrl::FullyEncoded) : QString()};
}

} // namespace

bool isWebAddress(const QString& address) {
    return address.startsWith("http://"_L1, Qt::CaseInsensitive) ||
           address.startsWith("https://"_L1, Qt::CaseInsensitive);
}

std::optional<SourceAddress> sourceAddress(const QString& typed) {
    const QString text = typed.trimmed();
    if (text.isEmpty() || text.contains(u'\n') || text.contains(QChar::Null)) {
        return std::nullopt;
    }
    if (isWebAddress(text)) {
        return webAddress(QUrl(text, QUrl::TolerantMode));
    }
    if (text.startsWith("file:"_L1, Qt::CaseInsensitive)) {
        const QString path = QUrl(text).toLocalFile();
        return path.isEmpty() ? std::nullopt : std::optional(SourceAddress{QDir::cleanPath(path), {}});
    }
    if (text.startsWith("~/"_L1)) {
        return SourceAddress{QDir::cleanPath(QDir::homePath() + text.sliced(1)), {}};
    }
    const QFileInfo file(text);
    if (file.isAbsolute() || file.exists()) {
        return SourceAddress{QDir::cleanPath(file.absoluteFilePath()), {}};
    }
    // A host with a dot and a path is an address without its scheme.
    static const QRegularExpression host(u"^[a-z\\d-]+(\\.[a-z\\d-]+)+(:\\d+)?/"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    return host.match(text).hasMatch() ? webAddress(QUrl("https://"_L1 + text, QUrl::TolerantMode))
                                       : std::nullopt;
}

QString hostOfAddress(const QString& address) {
    return isWebAddress(address) ? QUrl(address).host() : QString();
}

QString nameOfAddress(const QString& openAddress) {
    QString file = openAddress.section(u'/', -1).section(u'?', 0, 0);
    const QString stem = file.section(u'.', 0, 0);
    if (!isWebAddress(openAddress)) {
        return stem.isEmpty() ? file : stem;
    }
    const QString host = hostOfAddress(openAddress);
    return stem.isEmpty() || stem.contains(kHidden) ? host : host + u' ' + stem;
}

} // namespace guide
