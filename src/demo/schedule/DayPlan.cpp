#include "demo/schedule/DayPlan.h"

#include <QStringList>

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

// A line has a fixed time (hours count on to 29), the weekdays it applies to unless it applies to all, and
// the programmes from that time on: a kind, "#" and its ordinal ("#w": the weekday), "~" for a repeat from
// the day before, "*" for repeated until the next fixed time.

constexpr QLatin1StringView kGeneral(R"(
0600 12345 breakfast
0830 12345 soap~ cooking magazine
1000 12345 crime~ doc
1200 12345 news weather sitcom* short
1315 12345 series#w~ short
1415 12345 film#5
1600 12345 soap#1 region short
1710 12345 quiz sitcom#1
1820 12345 soap
1900 12345 news#1 sportnews weather
1945 12345 magazine#1 short
2010 14 series#w talk
2010 2 crime#w doc
2010 35 film#1
2210 12345 news#2 weather
2235 12345 film#2
2430 12345 crime#3 quiz~ film#1~ night*
0600 67 cartoon#1* cartoon#2* cartoon#3* kidseries
0730 67 fairytale#2
0900 6 cooking#1 garden travel sitcom#2*
0900 7 nature magazine#2 travel sitcom#2*
1200 67 news weather film#6
1410 6 film_western history
1410 7 film_comedy#7 concert
1700 67 quiz#2 hobby sitcom#3*
1900 67 news#1 sportnews weather
1945 67 bedtime short
2010 6 show
2010 7 film#1
2215 67 film#2
2430 67 talk#1~ film#1~ night*
)");

constexpr QLatin1StringView kGeneralWest(R"(
0600 12345 breakfast
0900 12345 magazine soap~ cooking
1100 12345 quiz travel short*
1200 12345 news weather sitcom*
1330 12345 series#w~ film#5
1600 12345 cartoon* cartoon#3* kidseries
1700 12345 quiz#1 soap
1830 12345 region weather sitcom#1
1930 12345 news#1 sportnews short
2030 13 crime#w crime#w
2030 24 film#1
2030 5 show
2245 12345 talk news#2
2400 12345 film#2 doc night*
0600 67 cartoon#1* cartoon#2* cartoon* kidseries#1
0830 67 breakfast#1
1000 67 cooking#1 garden magazine#1 short*
1200 67 news weather film#6
1430 6 sportmag match
1430 7 nature film_adventure history
1700 67 travel quiz#2 sitcom#2*
1930 67 news#1 sportnews short
2030 6 quiz#3 film#1
2030 7 crime#w film#1
2345 67 concert film#2 night*
)");

constexpr QLatin1StringView kGeneralEast(R"(
0600 12345 breakfast
0900 12345 news soap~ cooking
1030 12345 magazine soap#1~ travel
1300 12345 news weather film#5
1530 12345 soap#1 quiz
1700 12345 cartoon* cartoon#2* region
1800 12345 soap
1900 12345 news#1 sportnews weather
2000 134 series#w series#w
2000 2 film#1
2000 5 show
2215 12345 talk
2315 12345 film#2 doc sitcom~*
2630 12345 soap~ night*
0600 67 cartoon#1* cartoon#3* fairytale
0900 67 news cooking#1 magazine#1 travel
1100 67 sitcom#1* film#6
1400 6 match history
1400 7 film_adventure nature
1700 67 quiz#2 concert
1900 67 news#1 weather
1945 67 short
2000 67 film#1
2200 67 show#1
2400 67 film#2 film#1~ night*
)");

constexpr QLatin1StringView kNews(R"(
0600 12345 morning
0900 12345 news weather business press
1000 news region interview
1100 news debate
1200 news weather business
1230 flash interview region
1300 news doc
1400 news press weather region
1500 news interview#1
1600 news business weather
1630 flash sportnews
1700 news region press
1800 news#1 weather
1900 news#2 sportnews
2000 debate#1
2100 news interview#2
2200 news#3 business weather
2300 press#1 doc#1
2400 news debate#1~
2530 flash interview#2~ doc#1~ press#1~ debate~ doc~
2900 news region~ press#1~
0600 67 flash doc#2~ region*
0700 67 news weather travel*
0800 67 news interview~*
0900 67 news press history
)");

constexpr QLatin1StringView kFilm(R"(
0600 moviemag~ film#3~ film#4 film#8
1130 film#5 moviemag
1400 film#6 film#7
1800 film#4~ moviemag
2000 film#1
2200 film#2
2400 film#3 film#1~ film#2~ moviemag~
)");

constexpr QLatin1StringView kOldFilm(R"(
0600 film#4~ short
0800 film_comedy#1~ short
1000 film#5 travel
1230 film_romance short
1430 film_comedy#2 concert short
1730 film#6 moviemag
2000 film_comedy#1
2145 short film#3
2400 film_comedy#1~ film#6~ film#4 concert~
)");

constexpr QLatin1StringView kSeries(R"(
0600 sitcom~* soap~
0900 series#w~ crime#w~
1100 sitcom#1~* soap#1
1300 soap#2 series#1
1500 crime#1 soap#3
1700 sitcom*
1800 soap series#2
2000 series#w
2105 crime#w sitcom#1*
2300 crime#2 series#w~
2500 crime#w~ series#1~ sitcom*
)");

constexpr QLatin1StringView kCrime(R"(
0600 crime~ crime#1~
0800 crime#2 film#4~
1100 crime#3 crime#4
1300 film#5 crime#5
1600 crime#6 crime
1800 crime#1 crime#7
2000 film#1
2200 crime#w doc
2400 film#2 crime#w~ film#1~ crime#7~*
)");

constexpr QLatin1StringView kSport(R"(
0600 sportnews classic sportmag~*
0900 match#1~ race~
1230 sportnews sportmag#1 classic
1430 race match#2
1830 sportnews#1 sportmag
1930 match#1
2200 sportnews#1 sportmag#2
2300 race#1 match#2~
2700 classic#1* sportnews
)");

constexpr QLatin1StringView kChildren(R"(
0600 cartoon* cartoon#1* cartoon#2*
0800 kidshow cartoon#3* cartoon#4* kidseries~
1000 fairytale#1~ cartoon#5* cartoon#6*
1230 kidseries#1 cartoon#7* cartoon#8* cartoon~*
1430 kidshow#1 cartoon#2~* cartoon#1~*
1600 kidseries kidseries#2 cartoon#6~* cartoon#3~*
1730 kidshow#2 cartoon#4~* cartoon#5~*
1840 bedtime
1855 fairytale#1
2030 film_fantasy
2230 signoff
)");

constexpr QLatin1StringView kMusic(R"(
0600 clips*
0900 musicmag clips#1*
1200 concert musicmag#1
1430 clips#2*
1700 concert#1~ clips#3*
1900 musicmag#2 doc
2000 concert#1 concert#2
2300 musicmag#1~ clips#4*
2600 clips*
)");

constexpr QLatin1StringView kDocumentary(R"(
0600 nature~ travel history~
0830 doc~ travel#1 nature#2
1100 history#2 doc#2 travel
1400 nature#3 history#3 travel#2
1700 doc nature#1 short
1900 travel#3 history
2000 nature doc#1
2200 history#1 doc#3
2400 nature~ history~ doc#1~ doc#3~ travel#3~ night*
)");

constexpr QLatin1StringView kHobby(R"(
0600 garden~ cooking~ hobby~*
0800 cooking garden hobby nature
1000 travel cooking#1 garden#1*
1200 cooking#2 hobby#1 magazine
1400 garden#2 travel#1 cooking#3
1600 hobby#2 nature#1 garden#3
1800 cooking#4 hobby#3 magazine#1
2000 garden travel#2 cooking
2200 film_comedy garden~ short
2430 hobby#2~ nature~ travel#2~ shop*
)");

QLatin1StringView planOf(ChannelProfile profile) {
    switch (profile) {
    case ChannelProfile::General:
        return kGeneral;
    case ChannelProfile::GeneralWest:
        return kGeneralWest;
    case ChannelProfile::GeneralEast:
        return kGeneralEast;
    case ChannelProfile::News:
        return kNews;
    case ChannelProfile::Film:
        return kFilm;
    case ChannelProfile::OldFilm:
        return kOldFilm;
    case ChannelProfile::Series:
        return kSeries;
    case ChannelProfile::Crime:
        return kCrime;
    case ChannelProfile::Sport:
        return kSport;
    case ChannelProfile::Children:
        return kChildren;
    case ChannelProfile::Music:
        return kMusic;
    case ChannelProfile::Documentary:
        return kDocumentary;
    case ChannelProfile::Hobby:
        return kHobby;
    }
    return {};
}

PlannedItem plannedItem(QString text, int weekday) {
    PlannedItem item;
    item.filling = text.endsWith(u'*');
    text.chop(int(item.filling));
    item.repeat = text.endsWith(u'~');
    text.chop(int(item.repeat));
    const qsizetype mark = text.indexOf(u'#');
    if (mark >= 0) {
        const QString ordinal = text.sliced(mark + 1);
        item.ordinal = ordinal == "w"_L1 ? kWeeklyOrdinals + weekday : ordinal.toInt();
        text.truncate(mark);
    }
    item.kind = text;
    return item;
}

bool isNumber(const QString& text) {
    return !text.isEmpty() && text.front().isDigit();
}

} // namespace

std::vector<PlannedBlock> dayPlan(ChannelProfile profile, int weekday) {
    std::vector<PlannedBlock> plan;
    const QStringList lines = QString(planOf(profile)).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        QStringList words = line.split(u' ', Qt::SkipEmptyParts);
        const int time = words.takeFirst().toInt();
        if (isNumber(words.front()) && !words.takeFirst().contains(QChar(u'0' + weekday))) {
            continue;
        }
        PlannedBlock block{time / 100 * 60 + time % 100, {}};
        for (const QString& word : words) {
            block.items.push_back(plannedItem(word, weekday));
        }
        plan.push_back(std::move(block));
    }
    std::sort(plan.begin(), plan.end(),
              [](const PlannedBlock& a, const PlannedBlock& b) { return a.from < b.from; });
    return plan;
}

} // namespace guide
