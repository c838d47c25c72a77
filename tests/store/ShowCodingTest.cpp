#include "store/ShowCoding.h"

#include "TestShows.h"
#include "platform/archive/KeyedArchiver.h"

#include <tuple>

namespace guide::test {
namespace {

constexpr Moment kStart{std::chrono::milliseconds(1'767'205'800'123)};

ShowItems everyForm() {
    auto full = std::make_shared<TVEntry>(latinAlphabet());
    full->setChannel(channel(7));
    full->setSourceId(u"CT1.cz"_s);
    full->setLanguage(u"mk"_s);
    full->setDateTime(kStart);
    full->setEndDateTime(kStart + std::chrono::hours(1));
    full->setIdentificator(u"Vesti \U0001F600"_s);
    full->setInstantDetails1(u""_s);
    full->setSubtitle1(u"Část 1"_s);
    full->setInstantDescription1(u"He comes."_s);
    full->setUrl(QUrl(u"http://example.org/š?q=a b"_s));
    full->setPreviouslyShown(true);
    auto details = std::make_shared<TVEntrySupplementalData>();
    details->description = u"d"_s;
    details->episodeDescription = u"e"_s;
    details->details = u"f"_s;
    details->directedBy = u"g"_s;
    details->roles = u"h"_s;
    details->imdbURL = QUrl(u"https://i/1"_s);
    details->trailerURL = QUrl(u"https://i/2"_s);
    details->language = u"sk"_s;
    ShowFacts facts;
    facts.originalTitle = u"News"_s;
    facts.episode = {2, 5, 10, 1, 2};
    facts.year = 2016;
    facts.countries = {u"CZ"_s, u"Česko"_s};
    facts.ageRating = u"ab 12"_s;
    facts.starRating = StarRating{7.3, 10};
    facts.newness = Newness::Repeat;
    full->setFacts(std::make_shared<const ShowFacts>(facts));
    auto isNew = std::make_shared<TVEntry>(*full);
    isNew->setDateTime(kStart + std::chrono::hours(1));
    facts = {};
    facts.newness = Newness::New;
    isNew->setFacts(std::make_shared<const ShowFacts>(facts));
    const auto bare = [](int at) { return extended({kStart + std::chrono::hours(at), {}, u""_s}).basic; };
    return {ShowItem(bare(-3)), ShowItem(bare(-2), 0xffffffff),
            ShowItem(bare(-1), 0, std::make_shared<const TVEntrySupplementalData>()),
            ShowItem(full, 0x11, details, {QUrl(u"http://p/1"_s), QUrl(u"http://p/2?a=ž"_s)}),
            ShowItem(isNew)};
}

auto fieldsOf(const TVEntry& entry) {
    return std::tuple(entry.channel(), entry.sourceId(), entry.language(), entry.dateTime(),
                      entry.endDateTime(), entry.identificator(), entry.title(), entry.instantDetails1(),
                      entry.subtitle1(), entry.instantDescription1(), entry.url(), entry.previouslyShown(),
                      entry.facts() ? *entry.facts() : ShowFacts());
}

void expectEqual(const ShowItem& a, const ShowItem& b) {
    EXPECT_EQ(a.elementCount(), b.elementCount());
    EXPECT_EQ(a.categories(), b.categories());
    EXPECT_EQ(a.pictures(), b.pictures());
    ASSERT_EQ(a.details() != nullptr, b.details() != nullptr);
    EXPECT_TRUE(!a.details() || *a.details() == *b.details());
    EXPECT_TRUE(fieldsOf(*a.entry()) == fieldsOf(*b.entry()));
}

TEST(ShowCodingTest, EveryFormOfShowIsReadBack) {
    const ShowItems shows = everyForm();
    const auto read = unarchivedShows(archivedShows(shows), latinAlphabet());
    ASSERT_TRUE(read);
    ASSERT_EQ(read->size(), shows.size());
    for (std::size_t i = 0; i < shows.size(); ++i) {
        SCOPED_TRACE(i);
        expectEqual((*read)[i], shows[i]);
    }
    EXPECT_TRUE(unarchivedShows(archivedShows({}), latinAlphabet())->empty());
}

TEST(ShowCodingTest, FactsAreSharedAndCostNothingWhereThereAreNone) {
    const auto entryWith = [](const ShowFacts& facts, int hours) {
        const TestShow show{kStart + std::chrono::hours(hours), {}, u"x"_s};
        auto entry = std::make_shared<TVEntry>(*extended(show).basic);
        entry->setFacts(std::make_shared<const ShowFacts>(facts));
        return ShowItem(entry);
    };
    ShowFacts czech;
    czech.countries = {u"CZ"_s};
    ShowFacts slovak;
    slovak.countries = {u"SK"_s};
    const ShowItems shows{entryWith(czech, 0), entryWith({}, 1), entryWith(slovak, 2), entryWith(czech, 3)};
    const auto read = unarchivedShows(archivedShows(shows), latinAlphabet());
    ASSERT_TRUE(read);
    EXPECT_EQ((*read)[0].entry()->facts(), (*read)[3].entry()->facts());
    EXPECT_EQ((*read)[1].entry()->facts(), nullptr);
    auto without = std::make_shared<TVEntry>(*shows[1].entry());
    without->setFacts(nullptr);
    EXPECT_EQ(archivedShows(std::span(shows).subspan(1, 1)), archivedShows(ShowItems{ShowItem(without)}));
}

TEST(ShowCodingTest, OldAndIncompleteShowsAreRead) {
    KeyedArchiver archiver;
    const auto show = [&](auto&& fields) {
        archiver.beginArray(1);
        archiver.beginRecord();
        fields();
        archiver.endRecord();
    };
    archiver.beginArray(5);
    show([&] {
        archiver.encode("title", u"later"_s);
        archiver.encode("channel", channel(0xabc).hex());
        archiver.encode("dateTime", kStart);
    });
    show([&] { archiver.encode("dateTime", kStart); });
    show([&] { archiver.encode("title", u"no start"_s); });
    show([&] {
        archiver.encode("title", u"earlier"_s);
        archiver.encode("lang", u"cs"_s);
        archiver.encode("unknown", u"?"_s);
        archiver.encode("dateTime", kStart - std::chrono::hours(1));
    });
    archiver.beginArray(6);
    archiver.beginRecord();
    archiver.encode("title", u"of tomorrow"_s);
    archiver.encode("dateTime", kStart + std::chrono::hours(1));
    archiver.endRecord();
    archiver.append(3);
    archiver.beginRecord();
    archiver.encode("roles", u"X"_s);
    archiver.endRecord();
    archiver.beginArray(3);
    for (const char* picture : {"http://P/š", "http://p/%C5%A1", "http://p/2"}) {
        archiver.append(QString::fromUtf8(picture));
    }
    archiver.append(u"more"_s);
    archiver.append(9);
    const auto read = unarchivedShows(std::move(archiver).finish(), latinAlphabet());
    ASSERT_TRUE(read);
    EXPECT_EQ(titles(*read), (Titles{"earlier", "later", "of tomorrow"}));
    EXPECT_EQ((*read)[1].entry()->channel(), channel(0xabc));
    EXPECT_EQ((*read)[1].entry()->language(), std::nullopt) << "taken from the previous show";
    EXPECT_EQ((*read)[2].pictures().encoded(), (QByteArrayList{"http://p/%C5%A1", "http://p/2"}));
    EXPECT_EQ((*read)[2].categories(), 3u);
}

} // namespace
} // namespace guide::test
