#include "demo/DemoEnvironment.h"

#include "core/CatalogueFiles.h"
#include "core/TVStationIcons.h"
#include "demo/Client.h"
#include "demo/DemoChannel.h"
#include "demo/DemoSites.h"
#include "demo/Texts.h"
#include "demo/schedule/ScheduleGenerator.h"
#include "fakes/Files.h"
#include "parsers/URLPlanner.h"
#include "parsers/details/DetailScraper.h"
#include "parsers/xmltv/XMLTVToEntries.h"
#include "sources/PageText.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>
#include <QTemporaryDir>
#include <QTimeZone>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace guide {
namespace {

const QString kTexts = QStringLiteral(QUELLIN_SOURCE_DATA "/demo");

// Six in the evening in Prague, two hours later in Moscow.
constexpr Moment kNow{std::chrono::sys_days(std::chrono::year(2026) / 11 / 21) + std::chrono::hours(17)};

struct StoppedClock final : Clock {
    Moment now() const override { return kNow; }
};

/// The number of the channel's shows in the page, as the guide reads it.
int showCount(const Fetched& got, const QString& feedId) {
    const HTTPResponse response{200, {{"Content-Type", got.contentType}}};
    const PageText page = pageText(got.body, response, std::uint64_t(1) << 30);
    const Alphabet alphabet;
    XMLTVToEntries reader(page.text.value_or(""), {feedId}, {.shows = {.alphabet = alphabet}, .now = {}});
    return reader.entries().empty() ? 0 : int(reader.entries().front().entries.size());
}

class DemoEnvironmentTest : public testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(environment); }

    const StoppedClock clock;
    QTemporaryDir folder;
    std::unique_ptr<DemoEnvironment> environment =
        DemoEnvironment::create(folder.path() + u"/new/demo"_s, kTexts, clock);
};

// The guide's catalogue reader and planner find every channel's feeds and sites, and each feed has the
// channel's whole schedule.
TEST_F(DemoEnvironmentTest, ServesEverySourceOfEveryChannel) {
    const auto rows = rowsOfPropertyList(environment->cataloguePath());
    ASSERT_TRUE(rows);
    ASSERT_EQ(rows->size(), demoChannels().size());
    const auto hosts = SourceHostTable::fromFile(environment->hostsPath());
    ASSERT_TRUE(hosts);
    unsigned mirror = 0;
    const URLPlanner planner(*hosts, [&mirror](unsigned bound) { return mirror++ % bound; });

    for (std::size_t i = 0; i < rows->size(); ++i) {
        const DemoChannel& channel = demoChannels()[i];
        const QDate firstDay = broadcastDay(kNow, channel.zone).addDays(-1);
        const auto all = ScheduleGenerator(sourceTexts()).schedule(channel, firstDay, 8);
        EXPECT_FALSE((*rows)[i].channel.sourceIds.isEmpty());
        for (const QString& source : (*rows)[i].channel.sourceIds) {
            const auto urls = planner.urlsForSourceId(source, kNow, QTimeZone::utc());
            ASSERT_TRUE(urls) << qUtf8Printable(source);
            int count = 0;
            for (const QUrl& url : *urls) {
                const Fetched got = fetch(url.toString(QUrl::FullyEncoded));
                EXPECT_EQ(got.status, 200) << qUtf8Printable(url.toString());
                if (DemoSites::serves(source)) {
                    EXPECT_GT(got.body.size(), 2000) << qUtf8Printable(url.toString());
                } else {
                    count += showCount(got, channel.feedId);
                }
            }
            // Day files are planned for seven calendar days of the eight from six to six.
            if (DemoSites::serves(source)) {
                EXPECT_EQ(count, 0);
            } else if (urls->size() == 1) {
                EXPECT_EQ(count, int(all.size())) << qUtf8Printable(source);
            } else {
                EXPECT_EQ(urls->size(), 7);
                EXPECT_GT(count, int(all.size()) * 3 / 4);
                EXPECT_LT(count, int(all.size()));
            }
        }
    }
}

TEST_F(DemoEnvironmentTest, ServesStreamsAndAnArchive) {
    const auto rows = rowsOfPropertyList(environment->cataloguePath());
    ASSERT_TRUE(rows);
    int streams = 0;
    for (const CatalogueRow& row : *rows) {
        if (row.channel.stream) {
            ++streams;
            EXPECT_TRUE(fetch(*row.channel.stream).body.startsWith("OggS"));
        }
    }
    EXPECT_GT(streams, 10);
    EXPECT_LT(streams, int(rows->size())) << "some channels have none";

    const QString archive = environment->serverBase() + u"/archive/enz/"_s;
    const QString index = QString::fromUtf8(fetch(archive).body);
    const QString show = index.section(u"<a class=\"title\" href=\""_s, 1, 1).section(u'"', 0, 0);
    EXPECT_TRUE(fetch(archive + show).body.contains("<option value=\"../watch/"));
    EXPECT_EQ(fetch(archive + u"show/unknown"_s).status, 404);
}

TEST_F(DemoEnvironmentTest, AFilmHasAPageWithPictureAndTrailer) {
    const auto hosts = SourceHostTable::fromFile(environment->hostsPath());
    ASSERT_TRUE(hosts);
    const QString source = u"10021"_s;
    const auto urls =
        URLPlanner(*hosts, [](unsigned) { return 0U; }).urlsForSourceId(source, kNow, QTimeZone::utc());
    ASSERT_TRUE(urls);
    const QString schedule = QString::fromUtf8(fetch(urls->front().toString(QUrl::FullyEncoded)).body);
    const PageSource pages = [](const QUrl& url) -> std::optional<QByteArray> {
        const Fetched got = fetch(url.toString(QUrl::FullyEncoded));
        return got.status == 200 ? std::optional(got.body) : std::nullopt;
    };
    const QString path = schedule.section(u"\"film_url\":\"/"_s, 1, 1).section(u'"', 0, 0);
    const Alphabet alphabet;
    auto entry = std::make_shared<TVEntry>(alphabet);
    entry->setSourceId(source);
    entry->setUrl(QUrl(*hosts->base(u"PortHost"_s) + u'/' + path));
    const auto show = DetailScraper({pages, *hosts, {}}).netDescriptionFor(entry);
    ASSERT_TRUE(show && show->details());
    EXPECT_TRUE(show->details()->description && show->details()->directedBy && show->details()->details);
    ASSERT_TRUE(show->details()->trailerURL);
    EXPECT_TRUE(fetch(show->details()->trailerURL->toString()).body.startsWith("OggS"));
    ASSERT_EQ(show->pictures().size(), 1);
    EXPECT_TRUE(fetch(QString::fromLatin1(show->pictures().encoded().first())).body.contains("<svg"));
}

TEST_F(DemoEnvironmentTest, SelectsTwelveOfItsChannelsEachWithAnIcon) {
    const auto rows = rowsOfPropertyList(environment->cataloguePath());
    ASSERT_TRUE(rows);
    const auto types =
        SupportedChannelTypes::fromFile(QStringLiteral(QUELLIN_SOURCE_DATA "/supported-channel-types.json"));
    TVStationIcons icons(QStringLiteral(QUELLIN_SOURCE_DATA "/icons"), 2);
    const auto kept = filteredChannels(
        *rows, types, [&icons](const QString& name) { return !icons.iconNamed(name).isNull(); });
    ASSERT_EQ(kept.size(), rows->size());
    QSet<QString> known;
    QSet<QString> languages;
    for (const CatalogueRow& row : kept) {
        known.insert(row.channel.id.hex());
        languages.insert(row.channel.language);
    }
    EXPECT_GE(known.size(), 24);
    EXPECT_EQ(languages, QSet<QString>({u"cs"_s, u"cs/sk"_s, u"sk"_s, u"en"_s, u"fr"_s, u"tr"_s, u"ru"_s}));

    QSet<QString> selected;
    for (const QJsonValue id :
         QJsonDocument::fromJson(test::contentOf(environment->selectionPath())).array()) {
        EXPECT_TRUE(known.contains(id.toString()));
        selected.insert(id.toString());
    }
    EXPECT_EQ(selected.size(), 12);
}

TEST(ShippedCatalogue, IsValidAndEmpty) {
    const auto rows = rowsOfPropertyList(QStringLiteral(QUELLIN_SOURCE_DATA "/Data.plist"));
    ASSERT_TRUE(rows);
    EXPECT_TRUE(rows->empty());
}

TEST_F(DemoEnvironmentTest, DatesItsCatalogueLaterThanAnyArchive) {
    const QDateTime modified = QFileInfo(environment->cataloguePath()).lastModified();
    EXPECT_GT(modified.addDays(-30).toMSecsSinceEpoch(), kNow.time_since_epoch().count());
    EXPECT_GT(modified.addDays(-30), QDateTime::currentDateTime());
}

TEST(DemoEnvironment, IsNullWhenFilesCannotBeWrittenOrTextsRead) {
    EXPECT_FALSE(DemoEnvironment::create(u"/proc/nowhere"_s, kTexts, StoppedClock()));
    const QTemporaryDir folder;
    EXPECT_FALSE(DemoEnvironment::create(folder.path(), folder.path(), StoppedClock())) << "no texts";
}

} // namespace
} // namespace guide
