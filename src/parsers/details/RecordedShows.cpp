#include "parsers/details/RecordedShows.h"

#include "parsers/ParsersLog.h"
#include "parsers/details/DetailPage.h"
#include "parsers/formats/ReaderPages.h"

namespace guide {

using namespace Qt::StringLiterals;

namespace {

std::nullopt_t notFound(const char* what) {
    qCInfo(parsersLog, "recordedShowsWithTitle: %s not found", what);
    return std::nullopt;
}

/// The link that contains the title in the archive's index.
std::optional<QUrl> showPage(const QString& title, const QByteArray& index, const QUrl& site) {
    MarkerTrace unused;
    MarkerWalk walk(pageText(index), unused);
    const QByteArray utf8 = title.toUtf8();
    const auto name = walk.find(">" + utf8.toStdString() + "</a>");
    if (!name) {
        return notFound(utf8.constData());
    }
    const std::string_view kLink = "href=\"";
    const auto link = walk.part(0, *name).findLast(kLink);
    if (!link) {
        return notFound("href=\"");
    }
    return decodedLink(walk.part(*link + kLink.size()).takeUpTo("\""), site);
}

std::optional<QMap<QString, QString>> options(const QByteArray& page) {
    MarkerTrace unused;
    MarkerWalk walk(pageText(page), unused);
    if (!walk.moveTo("<select ")) {
        return notFound("<select");
    }
    const auto end = walk.find("</select>");
    if (!end) {
        return notFound("</select>");
    }
    // Includes the "<" of the end, which closes a last option without an end tag.
    walk = walk.part(walk.position(), *end + 1);
    QMap<QString, QString> recorded;
    while (walk.contains("value=\"")) {
        const auto value = walk.take("value=\"", "\">");
        if (!value || !walk.pass("\">")) {
            return notFound("\">");
        }
        const auto label = walk.takeUpTo("<");
        if (!label) {
            return notFound("<");
        }
        const QString name = pageString(*label);
        const QString known = pageString(*value);
        qCDebug(parsersLog, "pastShow: [%s] = %s", qUtf8Printable(name), qUtf8Printable(known));
        recorded.insert(name, known);
    }
    return recorded;
}

} // namespace

std::optional<ArchivedShow> recordedShowsWithTitle(const QString& title, const SourceHostTable& hosts,
                                                   const PageSource& pages) {
    const auto base = hosts.base(u"HRTHost"_s);
    if (!base) {
        return std::nullopt;
    }
    const QUrl index(*base + "/enz/"_L1);
    qCInfo(parsersLog, "URL=%s", qUtf8Printable(index.toString()));
    const auto indexPage = pages(index);
    const auto show = indexPage ? showPage(title, *indexPage, index) : std::nullopt;
    if (!show) {
        return std::nullopt;
    }
    qCInfo(parsersLog, "URL2=%s", qUtf8Printable(show->toString()));
    const auto page = pages(*show);
    auto broadcasts = page ? options(*page) : std::nullopt;
    return broadcasts ? std::optional(ArchivedShow{*show, *std::move(broadcasts)}) : std::nullopt;
}

} // namespace guide
