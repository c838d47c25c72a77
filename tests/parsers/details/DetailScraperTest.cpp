#include "parsers/details/DetailScraper.h"

#include "parsers/ShowJSON.h"
#include "parsers/formats/RecordedCall.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

QByteArray recorded(const QString& name) {
    return test::recordedContent(QStringLiteral(QUELLIN_TEST_DATA "/recorded-details/") + name);
}

/// The details scraped from the pages, which are served in this order: only fields that are set; "asked"
/// lists the addresses requested after the first.
QJsonObject scraped(const QString& sourceId, const QString& url, const QByteArrayList& pages) {
    const Alphabet alphabet;
    const auto entry = std::make_shared<TVEntry>(alphabet);
    entry->setSourceId(sourceId);
    entry->setUrl(QUrl(url));
    entry->setLanguage(u"hu"_s);
    QStringList asked;
    std::shared_ptr<const TVEntrySupplementalData> stored;
    const SourceHostTable hosts;
    const DetailScraper scraper({.pages = [&](const QUrl& page) -> std::optional<QByteArray> {
                                     asked.append(page.toString());
                                     return asked.size() <= pages.size()
                                                ? std::optional(pages[asked.size() - 1])
                                                : std::nullopt;
                                 },
                                 .hosts = hosts,
                                 .update = [&](auto, auto details, const auto&) { stored = details; },
                                 .locale = QLocale(QLocale::Italian)});
    const auto show = scraper.netDescriptionFor(entry);
    if (!show) {
        EXPECT_FALSE(stored);
        return {};
    }
    EXPECT_EQ(stored, show->details());
    EXPECT_EQ(show->details()->language, u"hu"_s);
    const QJsonObject json = showDetailsJSON(*show);
    const QJsonObject details = json[u"details"_s].toObject();
    QJsonObject set{{u"categories"_s, json[u"categories"_s]}, {u"pictures"_s, json[u"pictures"_s]}};
    for (const QString& key : details.keys()) {
        if (!details[key].isNull()) {
            set.insert(key, details[key]);
        }
    }
    if (asked.size() > 1) {
        set.insert(u"asked"_s, QJsonArray::fromStringList(asked.mid(1)));
    }
    return set;
}

TEST(DetailScraper, ReadsThePagesOfEachFamily) {
    const QJsonArray cases = QJsonDocument::fromJson(recorded(u"cases.json"_s)).array();
    ASSERT_FALSE(cases.isEmpty());
    for (const QJsonValue each : cases) {
        QByteArrayList pages;
        for (const QJsonValue name : each[u"pages"_s].toArray()) {
            pages.append(recorded(name.toString()));
        }
        const QJsonObject found = scraped(each[u"sourceId"_s].toString(), each[u"url"_s].toString(), pages);
        EXPECT_EQ(found, each[u"expected"_s].toObject())
            << each[u"name"_s].toString().toStdString() << " gives "
            << QJsonDocument(found).toJson().toStdString();
    }
    EXPECT_EQ(scraped(u"42"_s, u"https://port.example/f"_s, {""}), QJsonObject()) << "an empty page";
    EXPECT_EQ(scraped(u"42"_s, {}, {"<html>"}), QJsonObject()) << "no address";
}

} // namespace
} // namespace guide
