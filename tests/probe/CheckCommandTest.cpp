#include "fakes/Files.h"
#include "fakes/ScriptedServer.h"
#include "probe/RunProbe.h"

#include <QJsonArray>

#include <gtest/gtest.h>

namespace guide::test {
namespace {

QByteArray recordedPage(const QString& name) {
    return contentOf(QStringLiteral(QUELLIN_TEST_DATA "/recorded/nova/") + name);
}

/// A site with nine day pages.
class CheckCommand : public testing::Test {
  protected:
    void give(const QByteArray& page) {
        m_server.reply(ScriptedReply::ok(page, {"Content-Type: text/html; charset=utf-8"}));
    }

    Answer check(const QString& sourceId = u"cz.nova.Jedna"_s, int status = 0) const {
        const QString hosts =
            m_files.write(u"hosts.json"_s, "{\"NovaHost\": \"" + m_server.url(u""_s).toEncoded() + "\"}");
        Answer answer = probe({u"check"_s, sourceId, u"--language"_s, u"cs"_s, u"--hosts"_s, hosts,
                               u"--now"_s, u"2027-03-27T19:30:00Z"_s});
        EXPECT_EQ(answer.status, status) << answer.errors.toStdString();
        return answer;
    }

    QJsonArray plannedURLs() const {
        QJsonArray urls;
        for (const char* date :
             {"03-26", "03-27", "03-28", "03-29", "03-30", "03-31", "04-01", "04-02", "04-03"}) {
            urls.append(
                m_server.url(u"/program/?epg_date=2027-%1"_s.arg(QLatin1StringView(date))).toString());
        }
        return urls;
    }

    ScriptedServer m_server;

  private:
    ProbeFiles m_files;
};

TEST_F(CheckCommand, ReportsWhatASourceHas) {
    give("<html>");
    give(recordedPage(u"2027-03-27.html"_s));
    for (int day = 1; day <= 7; ++day) {
        give(recordedPage(u"2027-03-28-cut.html"_s));
    }
    const Answer answer = check();
    EXPECT_EQ(answer.json, (QJsonObject{{u"urls"_s, plannedURLs()},
                                        {u"fetched"_s, 9},
                                        {u"shows"_s, 3},
                                        {u"first"_s, u"2027-03-27T19:15:00Z"_s},
                                        {u"last"_s, u"2027-03-28T18:15:00Z"_s}}))
        << answer.output.toStdString();
}

TEST_F(CheckCommand, ReportsAMissingMarkerUnlessAllShowsAreOver) {
    const QByteArray changed =
        recordedPage(u"2027-03-27.html"_s).replace("class=\"channels-content-show\"", "class=\"show\"");
    for (const QByteArray& page : {changed, recordedPage(u"evening.html"_s)}) {
        for (int day = -1; day <= 7; ++day) {
            give(page);
        }
        const Answer answer = check();
        EXPECT_EQ(answer.json[u"fetched"_s], 9);
        EXPECT_EQ(answer.json[u"shows"_s], 0) << answer.output.toStdString();
        EXPECT_EQ(answer.json[u"lastMissed"_s].toString(),
                  page == changed ? u"<li class=\"channels-content-show\""_s : QString());
    }
}

TEST_F(CheckCommand, ReadsThePagesBeforeTheFirstFailure) {
    give("<html>");
    give(recordedPage(u"2027-03-27.html"_s));
    m_server.reply(ScriptedReply::answer(404, "gone"));
    m_server.reply(ScriptedReply::answer(404, "gone"));
    const Answer answer = check();
    EXPECT_EQ(answer.json[u"fetched"_s], 2);
    EXPECT_EQ(answer.json[u"shows"_s], 2);
    EXPECT_TRUE(answer.errors.contains("epg_date=2027-03-28: status 404")) << answer.errors.toStdString();
}

TEST_F(CheckCommand, FailsWithoutAnyPage) {
    const Answer answer = check(u"cz.nova.Jedna"_s, 1);
    EXPECT_TRUE(answer.output.isEmpty());
    EXPECT_FALSE(answer.errors.isEmpty());
}

TEST_F(CheckCommand, RequestsNothingWithoutAPlan) {
    const Answer answer = check(u"r.foo"_s);
    EXPECT_EQ(answer.json,
              object(R"({"urls": null, "fetched": 0, "shows": 0, "first": null, "last": null})"));
    EXPECT_TRUE(m_server.requests().empty());
}

} // namespace
} // namespace guide::test
