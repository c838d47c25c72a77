#include "demo/text/DemoTexts.h"

#include "demo/DemoChannel.h"
#include "demo/Texts.h"
#include "demo/schedule/ProgrammeKind.h"
#include "demo/text/TextGenerator.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <tuple>

using namespace Qt::StringLiterals;

namespace guide {
namespace {

TEST(TextGrammar, NamesFileAndLineOfEveryError) {
    const std::tuple<const char*, QString, QString> rows[] = {
        {"valid", u"# note\na=\n  one {b.2} {x:b} {^x.2} {#5-6} {channel} @ {a}\n\nb=\n  c/cs\n"_s, {}},
        {"unknown rule", u"a=\n  one {b}\n"_s, u"f:2: {b.1} does not exist"_s},
        {"unknown form", u"a=\n  b/c\n  d\nb=\n  {a.2}\n"_s, u"f:5: {a.2} does not exist"_s},
        {"form of a variable", u"a=\n  {x:b} {x.2}\nb=\n  c\n"_s, u"f:2: {x.2} does not exist"_s},
        {"form zero", u"a=\n  {a.0}\n"_s, u"f:2: {a.0} does not exist"_s},
        {"empty range", u"a=\n  {#5-5}\n"_s, u"f:2: not a range of numbers"_s},
        {"half a range", u"a=\n  {#5}\n"_s, u"f:2: not a range of numbers"_s},
        {"open brace", u"a=\n  one {a\n  two\n"_s, u"f:2: unbalanced braces"_s},
        {"brace across fields", u"a=\n  one {a @ b}\n  two\n"_s, u"f:2: unbalanced braces"_s},
        {"alternative without a rule", u"  one\n"_s, u"f:1: alternative without a rule"_s},
        {"no equals sign", u"a\n"_s, u"f:1: neither a rule nor an alternative"_s},
        {"rule defined twice", u"a=\n  b\na=\n  c\n"_s, u"f:3: rule is defined twice"_s},
        {"rule without alternatives", u"a=\n"_s, u"rule a has no alternatives"_s},
    };
    for (const auto& [name, source, error] : rows) {
        TextGrammar grammar;
        grammar.add(u"f"_s, source);
        EXPECT_EQ(grammar.errors().value(0), error) << name;
    }
}

TEST(TextGenerator, ExpandsReferences) {
    TextGrammar grammar;
    grammar.add(u"f"_s, u"word=\n  cat/cats\n  dog/dogs\nname=\n  élan\nloop=\n  x{loop}\n"_s);
    Random random(1);
    TextGenerator generator(grammar, random);
    generator.bind(u"channel"_s, u"Nova"_s);
    const QString both = generator.expandReferences(u"{w:word.2} {w} {w:word}"_s);
    EXPECT_TRUE(both == u"cats cat cat"_s || both == u"dogs dog dog"_s) << both.toStdString();
    EXPECT_EQ(generator.expandReferences(u"{^name} {channel}{none}."_s), u"Élan Nova."_s);
    EXPECT_EQ(generator.expandReferences(u"{#7-7}"_s), u"7"_s);
    EXPECT_LT(generator.expand(u"loop"_s).size(), 100);
}

TEST(DemoTexts, AreRejectedWhenAFileIsMissingOrMalformed) {
    const QDir source(QStringLiteral(QUELLIN_SOURCE_DATA "/demo"));
    QTemporaryDir copy;
    for (const QString& name : source.entryList({u"*.txt"_s})) {
        ASSERT_TRUE(QFile::copy(source.filePath(name), copy.filePath(name)));
    }
    ASSERT_TRUE(DemoTexts::load(copy.path()));
    QFile turkish(copy.filePath(u"tr.txt"_s));
    ASSERT_TRUE(turkish.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    ASSERT_TRUE(turkish.open(QIODevice::Append) && turkish.write("bad=\n  \xff\n") > 0);
    turkish.close();
    EXPECT_FALSE(DemoTexts::load(copy.path())) << "not UTF-8";
    turkish.remove();
    EXPECT_FALSE(DemoTexts::load(copy.path())) << "missing";
}

// Every kind of programme that a channel plans has a rule in each of the channel's languages.
TEST(DemoTexts, HaveARuleForEveryPlannedKind) {
    for (const DemoChannel& channel : demoChannels()) {
        for (int weekday = 1; weekday <= 7; ++weekday) {
            for (const PlannedBlock& block : dayPlan(channel.profile, weekday)) {
                for (const PlannedItem& item : block.items) {
                    const QStringList kinds = item.kind == "film"_L1 ? channel.films : QStringList(item.kind);
                    EXPECT_FALSE(kinds.isEmpty()) << channel.key.toStdString();
                    for (const QString& kind : kinds) {
                        EXPECT_NE(programmeKind(kind), nullptr) << kind.toStdString();
                        for (const QString& language : channel.spoken) {
                            EXPECT_TRUE(sourceTexts()->grammar(language).has(kind))
                                << language.toStdString() << ' ' << kind.toStdString();
                        }
                    }
                }
            }
        }
    }
}

} // namespace
} // namespace guide
