#include "parsers/ListDriver.h"

#include "parsers/SourceFormats.h"
#include "parsers/xmltv/XMLTVListReader.h"
#include "platform/memory/ManualClock.h"

#include <gtest/gtest.h>
#include <string>
#include <tuple>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

const Moment kNow = std::chrono::sys_days{std::chrono::year{2026} / 11 / 21};

ObjectId channel(int number) {
    return ObjectId::fromHex(u"58f4ded60befe78cb336a80"_s + QString::number(number, 16));
}

std::vector<LoadItem> items(const std::vector<QString>& sourceIds) {
    std::vector<LoadItem> list;
    list.reserve(sourceIds.size());
    for (const QString& sourceId : sourceIds) {
        list.push_back({channel(static_cast<int>(list.size())), sourceId, u"hr"_s});
    }
    return list;
}

std::string show(const char* feedChannel, const char* title, const char* content = "") {
    return std::string(R"(<programme start="20261121140000 Z" stop="20261121150000 Z" channel=")") +
           feedChannel + "\"><title>" + title + "</title>" + content + "</programme>";
}

QByteArray feed(const std::string& programmes) {
    return QByteArray::fromStdString("<tv>" + programmes + "</tv>");
}

class ListDriverTest : public ::testing::Test {
  protected:
    /// "0: title title; 1: …", by the number of the channel.
    std::string titles(const std::vector<QString>& sourceIds, const std::vector<QByteArray>& pages,
                       ListingsType type = ListingsType::XMLTV) {
        const ParsedLists lists = m_driver.read(items(sourceIds), pages, kNow, type);
        std::string text;
        for (int number = 0; number < static_cast<int>(sourceIds.size()); ++number) {
            const auto list = lists.find(channel(number));
            if (list == lists.end()) {
                continue;
            }
            text += (text.empty() ? "" : "; ") + std::to_string(number) + ":";
            for (const ExtendedTVEntry& entry : list->second) {
                EXPECT_EQ(entry.basic->channel(), channel(number));
                text += " " + entry.basic->identificator()->toStdString() + "@" +
                        entry.basic->sourceId()->toStdString();
                for (const QByteArray& picture : entry.pictures.encoded()) {
                    text += "+" + picture.toStdString();
                }
            }
        }
        return text;
    }

    ManualClock m_clock{kNow};
    Alphabet m_alphabet;
    SourceHostTable m_hosts =
        *SourceHostTable::fromJson(R"({"FeedImageBase": "img.example", "FeedSiteHost": "site.example"})");
    std::size_t m_mergedChannels = 0;
    std::size_t m_mergedShows = 0;
    int m_merges = 0;
    ReadOutcome m_outcome;
    ListDriverEnvironment m_environment{
        .clock = m_clock,
        .alphabet = m_alphabet,
        .hosts = m_hosts,
        .merge = [this](const std::vector<LoadItem>&, const ParsedLists& parsed, Moment, ListingsType,
                        const ReadOutcome& outcome) {
            m_outcome = outcome;
            m_mergedChannels = parsed.size();
            m_mergedShows = parsed.empty() ? 0 : parsed.begin()->second.size();
            ++m_merges;
            return MergeResult{};
        }};
    ListDriver m_driver{m_environment};
};

TEST_F(ListDriverTest, DerivesFeedIdsFromSourceIds) {
    const std::pair<QString, std::vector<QString>> rows[] = {
        {u"r.ba.Sarajevo.ba"_s, {u"Sarajevo.ba"_s}},
        {u"r..x"_s, {u"x"_s}},
        {u"r.x"_s, {u""_s}},
        {u"tvpc.12.a"_s, {u"12.a"_s}},
        {u"s.a.b"_s, {u"a.b"_s}},
        {u"n.c"_s, {u"c"_s}},
        {u"hbo.tv"_s, {}},
        {u"=12"_s, {}},
        {u"https://h/a.xml"_s, {}},
        {u"tvp.x"_s, {}},
    };
    for (const auto& [sourceId, wanted] : rows) {
        EXPECT_EQ(wantedFeedChannels(items({sourceId})), wanted) << sourceId.toStdString();
    }
}

TEST_F(ListDriverTest, GivesEachChannelItsShows) {
    const std::vector<QByteArray> pages{feed(show("a", "A") + show("b", "B") + show("c", "C"))};
    EXPECT_EQ(titles({u"r.x.a"_s, u"r.x.c"_s}, pages), "0: A@a; 1: C@c");
    EXPECT_EQ(titles({u"n.b"_s}, pages), "0: B@b");
    EXPECT_EQ(titles({u"s.a"_s, u"s.a"_s}, pages), "1: A@a") << "the last item of a channel gets it";
    EXPECT_EQ(titles({u"x.tv"_s, u"y.tv"_s}, pages), "0: A@a B@b C@c")
        << "a file of one channel is not filtered";
    EXPECT_EQ(titles({u"r.x.d"_s}, pages), "");
    EXPECT_EQ(titles({u"r.x"_s}, pages), "");
    EXPECT_EQ(titles({}, pages), "");
}

TEST_F(ListDriverTest, ExtendsOneListOverSeveralPages) {
    EXPECT_EQ(titles({u"x.tv"_s},
                     {feed(show("a", "A")), QByteArray(), QByteArray("<html>no feed"),
                      feed(show("a", "B")) + '\0' + "no more", feed(show("a", "C")).replace("</tv>", "")}),
              "0: A@a B@a C@a");
}

TEST_F(ListDriverTest, ReadsImagesOnlyForTheirFamily) {
    const std::vector<QByteArray> pages{feed(show("a", "A", "<image>1.png</image>"))};
    EXPECT_EQ(titles({u"x.tv"_s}, pages), "0: A@a+https://img.example/images/1.png");
    EXPECT_EQ(titles({u"s.a"_s}, pages), "0: A@a");
    EXPECT_EQ(titles({u"s.a"_s, u"x.tv"_s}, pages), "0: A@a+https://img.example/images/1.png");
}

TEST_F(ListDriverTest, DropsEndedShows) {
    m_clock.set(kNow + std::chrono::hours{15});
    EXPECT_EQ(titles({u"x.tv"_s}, {feed(show("a", "A"))}), "");
}

TEST_F(ListDriverTest, MergesEvenWhenNothingWasRead) {
    const std::vector<QByteArray> feedPages{feed(show("a", "A"))};
    // The last number is not a type.
    for (unsigned number = 0; number <= unsigned(ListingsType::ComedyCentral) + 1; ++number) {
        const auto type = static_cast<ListingsType>(number);
        for (const std::vector<QByteArray>& pages : {feedPages, std::vector<QByteArray>()}) {
            m_merges = 0;
            m_driver.netList(items({u"s.a"_s}), pages, kNow, type);
            EXPECT_EQ(m_merges, 1) << number;
            if (type == ListingsType::XMLTV) {
                EXPECT_EQ(m_mergedChannels, pages.size());
            }
        }
    }
}

TEST_F(ListDriverTest, TellsHowCompleteTheFeedWas) {
    const QByteArray whole = feed(show("u", "U") + show("a", "A") + show("a", "B"));
    const std::tuple<const char*, QByteArray, bool, bool> rows[] = {
        {"whole", whole, false, true},
        {"no programmes", "<tv></tv>", false, true},
        {"broken in a wanted programme", QByteArray(whole).replace(">B<", ">B&nbsp;<"), true, true},
        {"broken in another one", QByteArray(whole).replace(">U<", ">U&nbsp;<"), false, true},
        {"cut off", whole.chopped(20), true, true},
        {"a web page", "<!DOCTYPE html><html><p>Log in<br></html>", true, false},
        {"an XHTML page", "<html><p>Log in</p></html>", false, false},
        {"an empty page", "", false, false},
    };
    for (const auto& [name, page, incomplete, isSchedule] : rows) {
        SCOPED_TRACE(name);
        m_driver.netList(items({u"s.a"_s}), {page}, kNow, ListingsType::XMLTV);
        EXPECT_EQ(m_outcome.incomplete, incomplete);
        EXPECT_EQ(m_outcome.isSchedule, isSchedule);
    }
    m_driver.netList(items({u"s.a"_s}), {whole}, kNow, ListingsType::XMLTV, true);
    EXPECT_TRUE(m_outcome.incomplete) << "cut off before it was unpacked";
}

TEST_F(ListDriverTest, LimitsTheShowsOfAChannel) {
    const std::string one = show("a", "A");
    std::string many;
    many.reserve((kMostShowsOfChannel + 2) * one.size());
    for (std::size_t i = 0; i <= kMostShowsOfChannel; ++i) {
        many += one;
    }
    ReadOutcome outcome;
    const ParsedLists lists = m_driver.read(items({u"s.a"_s, u"s.b"_s}), {feed(many + show("b", "B"))}, kNow,
                                            ListingsType::XMLTV, nullptr, &outcome);
    EXPECT_EQ(lists.at(channel(0)).size(), kMostShowsOfChannel);
    EXPECT_EQ(lists.at(channel(1)).size(), 1U) << "other channels are read on";
    EXPECT_TRUE(outcome.incomplete);
}

TEST_F(ListDriverTest, LimitsTheMemoryOfALoadAndStops) {
    std::string many;
    for (int i = 0; i < 2'000; ++i) {
        many += show("a", "A");
    }
    bool stops = false;
    ListDriverEnvironment environment = m_environment;
    environment.physicalMemory = std::uint64_t{4} << 20;
    environment.stopped = [&] { return stops; };
    const ListDriver driver(environment);
    driver.netList(items({u"x.tv"_s}), {feed(many)}, kNow, ListingsType::XMLTV);
    EXPECT_GT(m_mergedShows, 500U);
    EXPECT_LT(m_mergedShows, 1'024U) << "a quarter of the memory";
    EXPECT_TRUE(m_outcome.incomplete);

    m_merges = 0;
    stops = true;
    driver.netList(items({u"x.tv"_s}), {feed(many)}, kNow, ListingsType::XMLTV);
    EXPECT_EQ(m_merges, 0) << "a list that was not read to its end is not stored";
}

TEST_F(ListDriverTest, OffsetsOfThePortNetworkIncludeMinutes) {
    const QByteArray page = R"({"1": {"channels": [{"programs": [
        {"title": "A", "start_datetime": "2026-11-21T20:00:00+05:30"},
        {"title": "B", "start_datetime": "2026-11-21T20:00:00-0330"}]}]}})";
    const ParsedLists lists = m_driver.read(items({u"1"_s}), {page}, kNow, ListingsType::PortNetwork);
    ASSERT_EQ(lists.at(channel(0)).size(), 2u);
    EXPECT_EQ(lists.at(channel(0))[0].basic->dateTime(), kNow + std::chrono::minutes(14 * 60 + 30));
    EXPECT_EQ(lists.at(channel(0))[1].basic->dateTime(), kNow + std::chrono::minutes(23 * 60 + 30));
}

} // namespace
} // namespace guide
