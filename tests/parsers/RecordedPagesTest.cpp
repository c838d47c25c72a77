#include "fakes/ManualClock.h"
#include "parsers/ListDriver.h"
#include "parsers/ShowJSON.h"
#include "sources/SourceId.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <gtest/gtest.h>
#include <string>

namespace guide {

namespace {

using namespace Qt::StringLiterals;

QByteArray content(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// "CHANNEL,SOURCE_ID,LANGUAGE", as the probe takes it.
LoadItem loadItem(const QString& text) {
    const qsizetype first = text.indexOf(u',');
    const qsizetype last = text.lastIndexOf(u',');
    return {ObjectId::fromHex(text.first(first)), text.sliced(first + 1, last - first - 1),
            text.sliced(last + 1)};
}

SourceHostTable recordedHosts() {
    const auto hosts = SourceHostTable::fromFile(QStringLiteral(QUELLIN_TEST_DATA "/recorded/hosts.json"));
    EXPECT_TRUE(hosts);
    return hosts.value_or(SourceHostTable());
}

/// One call of the driver: STEM.items.json says when and for whom, and which pages of the folder it gets.
struct RecordedCall {
    explicit RecordedCall(const QString& stem)
        : folder(QFileInfo(stem).dir()) {
        const QJsonObject how = QJsonDocument::fromJson(content(stem + ".items.json"_L1)).object();
        const QDateTime time = QDateTime::fromString(how[u"now"_s].toString(), Qt::ISODate);
        now = Moment(std::chrono::milliseconds(time.toMSecsSinceEpoch()));
        zone = QTimeZone(how[u"zone"_s].toString(u"Europe/Prague"_s).toLatin1());
        for (const QJsonValue item : how[u"items"_s].toArray()) {
            items.push_back(loadItem(item.toString()));
        }
        for (const QJsonValue page : how[u"pages"_s].toArray()) {
            pageNames.push_back(page.toString());
        }
        EXPECT_TRUE(time.isValid() && zone.isValid() && !items.empty() && !pageNames.empty())
            << stem.toStdString() << ".items.json";
    }

    /// The lists, as the probe prints them.
    QJsonObject lists() const {
        std::vector<QByteArray> pages;
        for (const QString& name : pageNames) {
            pages.push_back(content(folder.filePath(name)));
        }
        const ManualClock clock(now);
        const Alphabet alphabet;
        const SourceHostTable hosts = recordedHosts();
        const ListDriver driver({.clock = clock,
                                 .alphabet = alphabet,
                                 .hosts = hosts,
                                 .merge = mergedLists,
                                 .locale = QLocale(QLocale::Czech, QLocale::CzechRepublic),
                                 .timeZone = [this] { return zone; }});
        return listsJSON(
            driver.netList(items, pages, now, listingsTypeForSourceId(items.front().sourceId, hosts)));
    }

    QDir folder;
    Moment now;
    QTimeZone zone;
    std::vector<LoadItem> items;
    std::vector<QString> pageNames;
};

TEST(RecordedPages, GiveTheListsThatWereExpected) {
    const QDir recorded(QStringLiteral(QUELLIN_TEST_DATA "/recorded"));
    const QStringList formats = recorded.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    ASSERT_FALSE(formats.isEmpty());
    for (const QString& format : formats) {
        const QDir folder(recorded.filePath(format));
        QSet<QString> unread;
        for (const QString& file : folder.entryList(QDir::Files)) {
            if (!file.endsWith(".json"_L1) || file.endsWith(".page.json"_L1)) {
                unread.insert(file);
            }
        }
        const QStringList calls = folder.entryList({u"*.items.json"_s}, QDir::Files, QDir::Name);
        EXPECT_FALSE(calls.isEmpty()) << format.toStdString();
        for (const QString& file : calls) {
            const QString stem = folder.filePath(file.chopped(QStringView(u".items.json").size()));
            const RecordedCall call(stem);
            for (const QString& page : call.pageNames) {
                unread.remove(page);
            }
            const QJsonDocument expected = QJsonDocument::fromJson(content(stem + ".expected.json"_L1));
            const QJsonDocument found(call.lists());
            EXPECT_TRUE(expected == found) << stem.toStdString() << " gives\n"
                                           << found.toJson().toStdString();
        }
        EXPECT_TRUE(unread.isEmpty()) << "no call reads " << unread.values().join(u", "_s).toStdString();
    }
}

} // namespace

} // namespace guide
