#include "parsers/ShowJSON.h"
#include "parsers/formats/RecordedCall.h"

#include <QSet>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

TEST(RecordedPages, GiveTheExpectedLists) {
    const QStringList formats =
        test::recordedFolder().entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    ASSERT_FALSE(formats.isEmpty());
    for (const QString& format : formats) {
        const QDir folder(test::recordedFolder().filePath(format));
        QSet<QString> unread;
        for (const QString& file : folder.entryList(QDir::Files)) {
            if (!file.endsWith(".json"_L1) || file.endsWith(".page.json"_L1)) {
                unread.insert(file);
            }
        }
        const std::vector<QString> stems = test::recordedStems(format);
        EXPECT_FALSE(stems.empty()) << format.toStdString();
        for (const QString& stem : stems) {
            const test::RecordedCall call(stem);
            for (const QString& page : call.pageNames()) {
                unread.remove(page);
            }
            const QJsonDocument expected =
                QJsonDocument::fromJson(test::recordedContent(stem + ".expected.json"_L1));
            const QJsonDocument found(listsJSON(call.lists(call.pages())));
            EXPECT_TRUE(expected == found) << stem.toStdString() << " gives\n"
                                           << found.toJson().toStdString();
        }
        EXPECT_TRUE(unread.isEmpty()) << "no call reads " << unread.values().join(u", "_s).toStdString();
    }
}

TEST(MissedMarkers, NameTheRenamedMarker) {
    const struct {
        QString stem;
        /// The markers that are renamed in the pages.
        QByteArrayList renamed;
        /// The marker that the reader searches for, when it is longer.
        QByteArray missed = {};
    } cases[] = {
        {u"barrandov/two-days"_s, QByteArrayList{"program-channel__title program-channel__title--krimi"},
         "<h3 class=\"program-channel__title program-channel__title--krimi\">Barrandov Krimi</h3>"},
        {u"barrandov/two-days"_s,
         QByteArrayList{"<a href=\"#modal", "<div class=\"remodal\" data-remodal-id=\"modal",
                        "<li><strong>Datum vysílání:</strong> ", "<h2 class=\"show-detail__title\">"}},
        {u"cinestar/clock-set-back"_s, {"\"date"}},
        {u"cinestar/clock-set-back"_s, {"kanal-C12'", "fit-text'> ", " class=\"hour"}},
        {u"comedy-central/list"_s, {"data-time=\"", "<h3>"}},
        {u"digi-sport/tabs"_s, {"id=\"tabs-"}, "id=\"tabs-0\""},
        {u"digi-sport/tabs"_s, {"alt=\"Šport 1\"", "<span><strong>", "<br />"}},
        {u"dolce-sport/week"_s, QByteArrayList{"data-ls-for=\"", "<li class=\"list-group-item\">",
                                               " class=\"time\">", " class=\"name\">"}},
        {u"hbo/clock-set-forward"_s, QByteArrayList{"<html", "<div class=\"channel\">", "logo_index_3",
                                                    "<a href=\"", "class=\"time\">", "class=\"title\">"}},
        {u"joj-cinema/clock-set-forward"_s, {"\" class=\"active\""}, "day=26-3-2027\" class=\"active\""},
        {u"joj-cinema/clock-set-forward"_s,
         QByteArrayList{" class=\"item\"", "class=\"time\">", "<a href=\"", "\" title=\""}},
        {u"nova/clock-set-forward"_s,
         QByteArrayList{"class=\"channels-logo\">", "<li class=\"channels-content-show\"", "data-begin=\"",
                        "<span class=\"title\">"}},
        {u"nova/clock-set-forward"_s, {">Jedna<"}, "class=\"channels-logo\">Jedna<"},
        {u"palinsesto/nested"_s, {" id=\"C5\""}},
        {u"palinsesto/flat"_s, {"idref=\"BOING\""}},
        {u"port-network/days"_s, {"\"channels\"", "\"programs\"", "\"title\"", "\"start_datetime\""}},
        {u"port-network/error"_s, {"<html"}, "{"},
        {u"prima-max/clock-set-forward"_s,
         QByteArrayList{"class=\"tab tab-active\"", "<div class=\"row\">", "<time>",
                        "<h3 class=\"broadcast-title broadcast-title-xs\">",
                        "<p class=\"m-top broadcast-description\">"}},
        {u"xmltv/file-of-one-channel"_s, {"<programme"}},
    };
    for (const auto& each : cases) {
        const test::RecordedCall call(test::recordedFolder().filePath(each.stem));
        const ObjectId channel = call.items().front().channel;
        for (const QByteArray& marker : each.renamed) {
            std::vector<QByteArray> pages = call.pages();
            for (QByteArray& page : pages) {
                page.replace(marker, QByteArray(marker).insert(1, 'x'));
            }
            MarkerTrace trace;
            const MergeResult result = call.lists(pages, &trace);
            EXPECT_FALSE(result.lists.contains(channel))
                << each.stem.toStdString() << " does not need " << marker.toStdString();
            EXPECT_EQ(QByteArray::fromStdString(trace.changed(pages)),
                      each.missed.isEmpty() ? marker : each.missed)
                << each.stem.toStdString();
        }
    }
}

} // namespace
} // namespace guide
