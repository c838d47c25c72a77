#include "app/UpdatePlan.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace guide {
namespace {

ObjectId channel(unsigned char number) {
    ObjectId::Bytes bytes{};
    bytes.back() = number;
    return ObjectId(bytes);
}

TEST(UpdatePlanTest, DecidesWhatIsDue) {
    struct Row {
        const char* name;
        ChannelCondition condition;
        bool requireReload;
        bool plan;
    };
    const Row rows[] = {
        {"fresh and enough", {4, false, false}, false, false},
        {"fresh and more than enough", {40, false, false}, false, false},
        {"old", {4, false, true}, false, true},
        {"fresh but short", {3, false, false}, true, true},
        {"loaded a minute ago and empty", {0, false, false}, true, true},
        {"old and being loaded", {4, true, true}, false, false},
        {"short and being loaded", {0, true, false}, true, false},
        {"not counted", {std::nullopt, false, false}, true, true},
        {"not counted and being loaded", {std::nullopt, true, false}, true, true},
    };
    for (const Row& row : rows) {
        const ChannelDecision decision = decideChannel(row.condition, 4);
        EXPECT_EQ(decision.requireReload, row.requireReload) << row.name;
        EXPECT_EQ(decision.plan, row.plan) << row.name;
    }
}

TEST(UpdatePlanTest, PlansEverySource) {
    const CatalogueChannel row{channel(1),  u"One"_s, u"sk"_s,
                               u"Slovak"_s, {},       {u"a"_s, u"none"_s, u"c"_s, u""_s}};
    QStringList asked;
    const auto sources = planSources(row, [&](const QString& sourceId) {
        asked << sourceId;
        return sourceId == u"none" || sourceId.isEmpty()
                   ? SourcePlan()
                   : SourcePlan{ListingsType::Nova, QList{QUrl(u"http://"_s + sourceId)}};
    });
    EXPECT_EQ(asked, row.sourceIds);
    ASSERT_EQ(sources.size(), 4U);
    EXPECT_TRUE(sources[1].urls.isEmpty());
    EXPECT_EQ(sources[2].number, 3U);
    EXPECT_EQ(sources[2].sourceId, u"c"_s);
    EXPECT_EQ(sources[2].urls, QList{QUrl(u"http://c"_s)});
}

/// "feed:1a 2a | page:1b": a feed that serves channels 1 and 2 as their source a, then a page.
std::string described(const std::vector<UpdateStep>& steps) {
    std::string text;
    for (const UpdateStep& step : steps) {
        QStringList hosts;
        for (const QUrl& url : step.urls) {
            hosts << url.host();
        }
        text += (text.empty() ? "" : " | ") + hosts.join(u'+').toStdString() + ":";
        for (const UpdateStep::Served& served : step.served) {
            text += (text.back() == ':' ? "" : " ") + std::to_string(served.channel.bytes().back()) +
                    served.sourceId.toStdString();
        }
    }
    return text;
}

TEST(UpdatePlanTest, OrdersListsBySourceNumberAndMergesEqualOnes) {
    const auto source = [](unsigned number, const char* id, std::initializer_list<const char*> hosts) {
        PlannedSource planned{number, QString::fromLatin1(id), ListingsType::XMLTV, {}};
        for (const char* host : hosts) {
            planned.urls << QUrl(u"http://"_s + QString::fromLatin1(host));
        }
        return planned;
    };
    using Channels = std::vector<std::pair<ObjectId, std::vector<PlannedSource>>>;
    struct Row {
        const char* name;
        Channels channels;
        const char* expected;
    };
    const Row rows[] = {
        {"nothing due", {}, ""},
        {"first sources before second ones",
         Channels{{channel(1), {source(1, "a", {"x"}), source(2, "b", {"y"})}},
                  {channel(2), {source(1, "c", {"z"})}}},
         "x:1a | z:2c | y:1b"},
        {"one fetch for all that share a list",
         Channels{{channel(1), {source(1, "a", {"x", "y"})}}, {channel(2), {source(1, "b", {"x", "y"})}}},
         "x+y:1a 2b"},
        {"another order is another list",
         Channels{{channel(1), {source(1, "a", {"x", "y"})}}, {channel(2), {source(1, "b", {"y", "x"})}}},
         "x+y:1a | y+x:2b"},
        {"a list is placed by its lowest number",
         Channels{{channel(1), {source(1, "a", {"x"}), source(2, "b", {"y"})}},
                  {channel(2), {source(1, "c", {"z"})}},
                  {channel(3), {source(1, "d", {"y"})}}},
         "x:1a | z:2c | y:1b 3d"},
        {"a source that a channel lists twice counts once",
         Channels{{channel(1), {source(1, "a", {"x"}), source(2, "a", {"x"}), source(3, "b", {"x"})}},
                  {channel(2), {source(1, "a", {"x"})}}},
         "x:1a 1b 2a"},
        {"numbers may have gaps",
         Channels{{channel(1), {source(5, "a", {"x"})}}, {channel(2), {source(3, "b", {"y"})}}},
         "y:2b | x:1a"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(described(planSteps(row.channels)), row.expected) << row.name;
    }
}

TEST(UpdatePlanTest, KeepsOnlyChannelsThatAreStillDue) {
    const UpdateStep step{{},
                          {{channel(1), u"a"_s, ListingsType::XMLTV},
                           {channel(2), u"b"_s, ListingsType::Nova},
                           {channel(3), u"c"_s, ListingsType::HBO}}};
    const auto [items, type] = dueItems(
        step, [](const ObjectId& id) { return id == channel(1) ? std::nullopt : std::optional(u"cs"_s); });
    EXPECT_EQ(type, ListingsType::Nova) << "of the first channel that is still due";
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items[0].channel, channel(2));
    EXPECT_EQ(items[1].channel, channel(3));
    EXPECT_EQ(items[1].sourceId, u"c"_s);
    EXPECT_EQ(items[1].language, u"cs"_s);
}

} // namespace
} // namespace guide
