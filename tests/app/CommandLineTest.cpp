#include "app/CommandLine.h"

#include <QDir>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

LaunchOptions accepted(const QStringList& words) {
    auto parsed = parseCommandLine(words);
    if (const auto* text = std::get_if<CommandLineText>(&parsed)) {
        ADD_FAILURE() << qPrintable(text->text);
        return {};
    }
    return std::get<LaunchOptions>(parsed);
}

TEST(CommandLine, AcceptsBothFormsOfAValue) {
    const auto options = accepted({u"--catalogue=a.plist"_s, u"--hosts"_s, u"/etc/h.json"_s, u"--form"_s,
                                   u"tablet"_s, u"--now"_s, u"2025-12-31T20:30:00+01:00"_s,
                                   u"--appearance=dark"_s, u"--text-scale"_s, u"150"_s, u"guide://c0ffee"_s});
    EXPECT_EQ(options.catalogue, QDir::current().absoluteFilePath(u"a.plist"_s));
    EXPECT_EQ(options.hosts, u"/etc/h.json"_s);
    EXPECT_EQ(options.form, UserInterfaceIdiom::Tablet);
    EXPECT_EQ(options.appearance, ColorScheme::Dark);
    EXPECT_EQ(options.textScale, 1.5);
    EXPECT_EQ(options.now, Moment(std::chrono::seconds(1767209400)));
    EXPECT_EQ(options.url, u"guide://c0ffee"_s);
    EXPECT_TRUE(options.usesSeparateProfile());
}

TEST(CommandLine, OptionsThatTrySomethingImplyATemporaryProfile) {
    EXPECT_FALSE(accepted({}).usesSeparateProfile());
    EXPECT_FALSE(accepted({u"--form"_s, u"phone"_s, u"--text-scale"_s, u"200"_s, u"--screenshots"_s, u"p"_s})
                     .usesSeparateProfile());
    EXPECT_TRUE(accepted({u"--demo"_s}).usesSeparateProfile());
    const LaunchOptions setup = accepted({u"--cloud-setup=postgresql://a@b/c"_s, u"--user"_s, u"anna"_s});
    EXPECT_EQ(setup.cloudSetup, u"postgresql://a@b/c"_s) << "not a path";
    EXPECT_EQ(setup.user, u"anna"_s);
    const LaunchOptions update = accepted({u"--update"_s});
    EXPECT_TRUE(update.update);
    EXPECT_FALSE(update.usesSeparateProfile());
}

TEST(CommandLine, RefusesUnusableArguments) {
    const std::pair<const char*, QStringList> cases[] = {
        {"unknown option", {u"--demos"_s}},
        {"value missing at the end", {u"--hosts"_s}},
        {"value empty", {u"--hosts="_s}},
        {"not a time", {u"--now"_s, u"tonight"_s}},
        {"not a form", {u"--form"_s, u"watch"_s}},
        {"not an appearance", {u"--appearance"_s, u"sepia"_s}},
        {"text too small", {u"--text-scale"_s, u"99"_s}},
        {"text too large", {u"--text-scale"_s, u"201"_s}},
        {"no number", {u"--text-scale"_s, u"150%"_s}},
        {"two URLs", {u"guide://a"_s, u"guide://b"_s}},
        {"a user without a database", {u"--user"_s, u"anna"_s}},
        {"an update that is to show something", {u"--update"_s, u"guide://a"_s}},
        {"a demo with a catalogue", {u"--demo"_s, u"--catalogue"_s, u"c"_s}},
    };
    for (const auto& [name, words] : cases) {
        const auto parsed = parseCommandLine(words);
        const auto* text = std::get_if<CommandLineText>(&parsed);
        ASSERT_TRUE(text) << name;
        EXPECT_EQ(text->exitStatus, 2) << name;
    }
    const auto help = parseCommandLine({u"--demo"_s, u"--help"_s});
    EXPECT_EQ(std::get<CommandLineText>(help).exitStatus, 0);
}

} // namespace
} // namespace guide
