#include "store/TVEntry.h"

#include "TestShows.h"
#include "store/ShowDigest.h"
#include "store/TVEntrySupplementalData.h"

#include <QCryptographicHash>

#include <thread>
#include <tuple>

namespace guide::test {
namespace {

TEST(TVEntryTest, DigestCoversChannelStartAndTitle) {
    const struct {
        const char* name;
        std::optional<Moment> start;
        QByteArray seconds; // what the start becomes in the buffer
    } rows[] = {
        {"the reference date", moment("2001-01-01T00:00:00Z"), QByteArray::fromHex("00000000")},
        {"no start", std::nullopt, QByteArray::fromHex("00000000")},
        {"just below a half", moment("2001-01-01T00:00:01.499Z"), QByteArray::fromHex("00000001")},
        {"a half goes up", moment("2001-01-01T00:00:01.500Z"), QByteArray::fromHex("00000002")},
        {"a half before the date goes down", moment("2000-12-31T23:59:58.500Z"),
         QByteArray::fromHex("fffffffe")},
        {"big-endian", moment("2025-12-31T18:30:00Z"), QByteArray::fromHex("2f05a328")},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const QByteArray buffer = channel(0xabc).data() + row.seconds + "Pošta"_ba;
        const QByteArray digest = QCryptographicHash::hash(buffer, QCryptographicHash::Md5).toHex();
        const QByteArray host = (digest[0] >= 'a' ? "" : "c") + digest;
        EXPECT_EQ(urlDigestFromChannel(channel(0xabc), row.start, u"Pošta"_s, u"guide"_s),
                  QUrl(u"guide://"_s + QLatin1StringView(host)));
    }
    EXPECT_EQ(urlDigestFromChannel(channel(1), Moment{}, std::nullopt, u"guide"_s), std::nullopt);
    EXPECT_EQ(showDigest(channel(1), Moment{}, u"A"_s + QChar(0xd800)),
              showDigest(channel(1), Moment{}, u"A\ufffd"_s))
        << "how a listing file encodes a lone surrogate";
}

TEST(TVEntryTest, DigestIsReadBackFromItsURL) {
    bool prefixed = false;
    bool bare = false;
    for (int i = 0; i < 32; ++i) {
        const QString title = QString::number(i);
        const QUrl url = *urlDigestFromChannel(channel(i), Moment{}, title, u"guide"_s);
        EXPECT_EQ(digestOfUrl(url), showDigest(channel(i), Moment{}, title));
        (url.host().size() == 33 ? prefixed : bare) = true;
    }
    EXPECT_TRUE(prefixed && bare);
    for (const char* other :
         {"guide://", "guide://12345678901234567890123456789012", "guide://ca2345678901234567890123456789012",
          "guide://c1234567890123456789012345678901z", "guide://xyz"}) {
        EXPECT_EQ(digestOfUrl(QUrl(QString::fromLatin1(other))), std::nullopt) << other;
    }
}

TEST(TVEntryTest, CachesTheFirstURLUntilAChange) {
    TVEntry entry(latinAlphabet());
    EXPECT_EQ(entry.urlDigestWithScheme(u"guide"_s), std::nullopt);
    entry.setIdentificator(u"News"_s);
    const QUrl first = *entry.urlDigestWithScheme(u"guide"_s);
    EXPECT_EQ(entry.urlDigestWithScheme(u"other"_s), first);
    EXPECT_EQ(TVEntry(entry).urlDigestWithScheme(u"other"_s)->host(), first.host());
    entry.setIdentificator(u"Weather"_s);
    EXPECT_NE(entry.urlDigestWithScheme(u"guide"_s), first);
}

TEST(TVEntryTest, TitleDropsBackslashN) {
    TVEntry entry(latinAlphabet());
    entry.setIdentificator(u"\\nA\\n\\nB\\N\\\\nC"_s);
    EXPECT_EQ(entry.identificator(), u"AB\\N\\C"_s);
    EXPECT_EQ(entry.lowercasedIdentificator(), u"ab\\n\\c"_s);
}

TEST(TVEntryTest, DisplayFormsFollowLanguageAndAlphabet) {
    TVEntry entry(latinAlphabet());
    entry.setIdentificator(u"Vesti"_s);
    entry.setSubtitle1(u"Vesti"_s);
    entry.setLanguage(u"sr"_s);
    EXPECT_EQ(entry.title(), u"Vesti"_s);
    entry.setLanguage(u"mk"_s);
    EXPECT_EQ(entry.title()->front(), QChar(0x0412));
    EXPECT_EQ(entry.subtitle(), entry.title());
    EXPECT_EQ(entry.instantDetails(), std::nullopt);
    entry.setInstantDetails1(u"Vesti"_s);
    EXPECT_EQ(entry.instantDetails(), entry.title());
    EXPECT_EQ(entry.instantDetails1(), u"Vesti"_s);
    const TVEntry copy(entry);
    EXPECT_EQ(copy.title(), entry.title());
    entry.setLanguage(u"cs"_s);
    EXPECT_EQ(entry.title(), u"Vesti"_s);
    EXPECT_NE(copy.title(), entry.title());

    const Alphabet cyrillic(true);
    TVEntry serbian(cyrillic);
    serbian.setLanguage(u"sr"_s);
    serbian.setIdentificator(u"Vesti"_s);
    EXPECT_EQ(serbian.title(), copy.title());

    TVEntrySupplementalData details;
    details.description = details.roles = u"Vesti"_s;
    EXPECT_EQ(details.updateAlphabet(cyrillic), details);
    details.language = u"mk"_s;
    EXPECT_FALSE(details.empty());
    EXPECT_EQ(details.updateAlphabet(latinAlphabet()).description, copy.title());
    EXPECT_EQ(details.updateAlphabet(latinAlphabet()).roles, copy.title());
}

TEST(TVEntryTest, OneChannelUsesItsSubtitlesAsTitles) {
    TVEntry entry(latinAlphabet());
    entry.setIdentificator(u"Programme"_s);
    entry.setChannel(ObjectId::fromHex(u"58f4ded60befe78cb336a80b"_s));
    EXPECT_EQ(entry.title(), std::nullopt);
    entry.setSubtitle1(u"The film"_s);
    EXPECT_EQ(entry.title(), u"The film"_s);
    entry.setChannel(channel(1));
    EXPECT_EQ(entry.title(), u"Programme"_s);
}

TEST(TVEntryTest, FullInstantDetailsJoinsTheSetParts) {
    using Text = std::optional<QString>;
    const std::tuple<const char*, Text, Text, Text, Text> rows[] = {
        {"nothing", {}, {}, {}, {}},
        {"details alone", u"Drama"_s, {}, {}, u"Drama"_s},
        {"details empty", u""_s, {}, {}, u""_s},
        {"no details", {}, u"Part 1"_s, u"He comes."_s, u"Part 1, He comes."_s},
        {"empty details", u""_s, u"Part 1"_s, {}, u"Part 1"_s},
        {"all", u"Drama"_s, u"Part 1"_s, u"He comes."_s, u"Drama, Part 1, He comes."_s},
        {"empty subtitle", u"Drama"_s, u""_s, u"He comes."_s, u"Drama, He comes."_s},
        {"description alone", {}, u""_s, u"He comes."_s, u"He comes."_s},
    };
    for (const auto& [name, details, subtitle, description, expected] : rows) {
        SCOPED_TRACE(name);
        TVEntry entry(latinAlphabet());
        entry.setInstantDetails1(details);
        entry.setSubtitle1(subtitle);
        entry.setInstantDescription1(description);
        EXPECT_EQ(entry.fullInstantDetails(), expected);
        EXPECT_EQ(entry.fullInstantDetails(), expected);
        entry.setSubtitle1(u"Other"_s);
        EXPECT_TRUE(entry.fullInstantDetails()->contains(u"Other"_s));
    }
}

TEST(TVEntryTest, AllThreadsSeeTheSameCachedValues) {
    for (int round = 0; round < 50; ++round) {
        const auto entry = extended({Moment{}, Moment{}, u"News"_s}).basic;
        entry->setSubtitle1(u"Part 1"_s);
        entry->setInstantDetails1(u"Drama"_s);
        const TVEntry& shared = *entry;
        std::vector<QUrl> urls(4);
        std::vector<std::jthread> threads;
        threads.reserve(urls.size());
        for (std::size_t i = 0; i < urls.size(); ++i) {
            threads.emplace_back([&shared, &url = urls[i], i] {
                url = *shared.urlDigestWithScheme(QString(QChar(u'a' + static_cast<char16_t>(i))));
                EXPECT_EQ(shared.fullInstantDetails(), u"Drama, Part 1"_s);
            });
        }
        threads.clear();
        EXPECT_EQ(std::count(urls.begin(), urls.end(), urls.front()), 4);
    }
}

} // namespace
} // namespace guide::test
