#include "core/ChannelFilter.h"

#include <QStringList>

#include <gtest/gtest.h>
#include <tuple>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

const QString kA = u"58f4ded60befe78cb336a80a"_s;
const QString kB = u"58f4ded60befe78cb336a80b"_s;
const QString kC = u"58f4ded60befe78cb336a80c"_s;

SupportedChannelTypes installedTypes() {
    return SupportedChannelTypes::fromFile(
        QStringLiteral(QUELLIN_SOURCE_DATA "/supported-channel-types.json"));
}

CatalogueRow channel(const QString& location, const QString& title, const QString& language,
                     const QString& icon) {
    return *catalogueRow(
        {{u"Location"_s, location}, {u"Title"_s, title}, {u"Language"_s, language}, {u"Icon"_s, icon}});
}

QString titlesOf(const std::vector<CatalogueRow>& rows) {
    QStringList titles;
    for (const CatalogueRow& row : rows) {
        titles.append(row.channel.title);
    }
    return titles.join(u' ');
}

TEST(ChannelFilterTest, KeepsSupportedPairsWithAnIcon) {
    const struct {
        const char* name;
        CatalogueRow channel;
        bool kept;
    } rows[] = {
        {"home pair", channel(kA, u"x"_s, u"cs"_s, u"Czech/a"_s), true},
        {"last pair", channel(kA, u"x"_s, u"sk"_s, u"Slovak/a"_s), true},
        {"two languages", channel(kA, u"x"_s, u"cs/sk"_s, u"Other/a"_s), true},
        {"language of another pair", channel(kA, u"x"_s, u"en"_s, u"Czech/a"_s), false},
        {"region in another case", channel(kA, u"x"_s, u"cs"_s, u"czech/a"_s), false},
        {"icon name with a slash", channel(kA, u"x"_s, u"cs"_s, u"Czech/sub/a"_s), true},
        {"no icon image", channel(kA, u"x"_s, u"cs"_s, u"Czech/absent"_s), false},
    };
    const auto hasIcon = [](const QString& name) { return name == u"a"_s || name == u"sub/a"_s; };
    for (const auto& row : rows) {
        EXPECT_EQ(filteredChannels({row.channel}, installedTypes(), hasIcon).size(), row.kept ? 1u : 0u)
            << row.name;
    }
    EXPECT_TRUE(filteredChannels({rows[0].channel}, SupportedChannelTypes(), hasIcon).empty());
}

TEST(ChannelFilterTest, KeepsTheBetterVersionOfAChannel) {
    const auto czech = [](const QString& id, const QString& title) {
        return channel(id, title, u"cs"_s, u"Czech/a"_s);
    };
    const auto other = [](const QString& id, const QString& title, const QString& language = u"cs"_s) {
        return channel(id, title, language, u"Other/a"_s);
    };
    using Channels = std::vector<CatalogueRow>;
    const std::tuple<const char*, Channels, QString> rows[] = {
        {"home first", {czech(kA, u"home"_s), other(kA, u"other"_s)}, u"home"_s},
        {"home last moves to the end",
         Channels{other(kA, u"other"_s), czech(kB, u"b"_s), czech(kA, u"home"_s), czech(kC, u"c"_s)},
         u"b home c"_s},
        {"equal versions", {other(kA, u"first"_s), other(kA, u"second"_s)}, u"first"_s},
        {"score 0 never replaces", Channels{other(kA, u"first"_s, u"en"_s), other(kA, u"second"_s, u"fr"_s)},
         u"first"_s},
        {"improved twice",
         Channels{other(kA, u"en"_s, u"en"_s), other(kA, u"cs"_s), czech(kA, u"home"_s),
                  czech(kA, u"again"_s)},
         u"home"_s},
        {"the same identity in another case",
         Channels{czech(kA, u"first"_s), czech(kA.toUpper(), u"second"_s)}, u"first"_s},
    };
    for (const auto& [name, channels, titles] : rows) {
        SCOPED_TRACE(name);
        const auto result = filteredChannels(channels, installedTypes(), [](const QString&) { return true; });
        EXPECT_EQ(titlesOf(result), titles);
    }
}

TEST(ChannelFilterTest, AVersionWithoutAnIconReplacesNothing) {
    const auto result = filteredChannels(
        {channel(kA, u"kept"_s, u"cs"_s, u"Other/a"_s), channel(kA, u"bare"_s, u"cs"_s, u"Czech/b"_s)},
        installedTypes(), [](const QString& name) { return name == u"a"_s; });
    EXPECT_EQ(titlesOf(result), u"kept"_s);
}

} // namespace
} // namespace guide
