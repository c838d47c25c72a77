#include "parsers/own/EveningNews.h"

#include "store/LocalTime.h"

#include <QSet>
#include <QString>

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// In lower case. Matched where a word begins; a word of fewer than five letters must also end there.
constexpr std::array kNewsWords{u"zprávy",
                                u"události",
                                u"televizní noviny",
                                u"noviny",
                                u"správy",
                                u"televízne noviny",
                                u"krimi noviny",
                                u"híradó",
                                u"tények",
                                u"híradója",
                                u"știri",
                                u"ştiri",
                                u"stirile",
                                u"știrile",
                                u"ştirile",
                                u"telejurnal",
                                u"jurnalul",
                                u"observator",
                                u"dnevnik",
                                u"vijesti",
                                u"vesti",
                                u"poročila",
                                u"дневник",
                                u"вести",
                                u"вијести",
                                u"новини",
                                u"новините",
                                u"по света и у нас",
                                u"новости",
                                u"вісті",
                                u"telegiornale",
                                u"notiziario",
                                u"tg1",
                                u"tg2",
                                u"tg3",
                                u"tg4",
                                u"tg5",
                                u"tg la7",
                                u"tgla7",
                                u"studio aperto",
                                u"nachrichten",
                                u"tagesschau",
                                u"tagesthemen",
                                u"heute journal",
                                u"zeit im bild",
                                u"zib",
                                u"rtl aktuell",
                                u"news",
                                u"journal de 20",
                                u"journal 20h",
                                u"le 20h",
                                u"20h",
                                u"le journal",
                                u"journal",
                                u"jt",
                                u"le 19.45",
                                u"wiadomości",
                                u"fakty",
                                u"wydarzenia",
                                u"haber",
                                u"haberler",
                                u"haberleri",
                                u"ειδήσεις",
                                u"ειδησεις",
                                u"δελτίο ειδήσεων",
                                u"lajme",
                                u"telediario",
                                u"noticias",
                                u"telejornal",
                                u"nieuws",
                                u"journaal"};
constexpr qsizetype kShortWord = 5;

constexpr std::chrono::minutes kShortestMain{10};
constexpr int kMostNewsOfDay = 10;
constexpr int kHours = 24;
constexpr int kEvening = 6;
static_assert(kEveningEnds - kEveningBegins == std::chrono::hours(kEvening));
constexpr int kLeastMain = 3;

struct Day {
    int shows = 0;
    std::chrono::minutes longest{0};
};

} // namespace

bool isNewsTitle(QStringView lower) {
    return std::ranges::any_of(kNewsWords, [lower](const char16_t* text) {
        const QStringView word(text);
        for (qsizetype at = lower.indexOf(word); at >= 0; at = lower.indexOf(word, at + 1)) {
            const qsizetype end = at + word.size();
            const bool begins = at == 0 || !lower[at - 1].isLetterOrNumber();
            const bool ends =
                word.size() >= kShortWord || end == lower.size() || !lower[end].isLetterOrNumber();
            if (begins && ends) {
                return true;
            }
        }
        return false;
    });
}

bool lookShifted(const std::vector<NewsShow>& shows, const QTimeZone& zone) {
    LocalTime local(zone);
    std::map<std::pair<std::size_t, QDate>, Day> days;
    for (const NewsShow& show : shows) {
        Day& day = days[{show.channel, local.dateAt(show.start)}];
        ++day.shows;
        day.longest = std::max(day.longest, show.duration);
    }
    std::array<int, kHours> hours{};
    int main = 0;
    for (const NewsShow& show : shows) {
        const Day& day = days[{show.channel, local.dateAt(show.start)}];
        // The news at noon are often about as long as those in the evening.
        if (show.duration >= kShortestMain && show.duration * 5 >= day.longest * 4 &&
            day.shows <= kMostNewsOfDay) {
            ++hours[static_cast<std::size_t>(local.hourAt(show.start))];
            ++main;
        }
    }
    const auto within = [&hours](int from) {
        int count = 0;
        for (int hour = from; hour < from + kEvening; ++hour) {
            count += hours[static_cast<std::size_t>(hour % kHours)];
        }
        return count;
    };
    int most = 0;
    for (int from = 0; from < kHours; ++from) {
        most = std::max(most, within(from));
    }
    const int evening = within(static_cast<int>(kEveningBegins.count()));
    return main >= kLeastMain && evening * 4 < main && most * 2 >= main;
}

bool hasEuropeanEvening(const QString& language) {
    static const QSet<QString> kLanguages{u"cs"_s, u"sk"_s, u"hu"_s, u"ro"_s, u"hr"_s, u"sr"_s,
                                          u"bs"_s, u"sl"_s, u"mk"_s, u"bg"_s, u"it"_s, u"de"_s,
                                          u"pl"_s, u"el"_s, u"tr"_s, u"uk"_s, u"sq"_s};
    return kLanguages.contains(language);
}

} // namespace guide
