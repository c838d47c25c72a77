#include "demo/DemoChannel.h"

#include <algorithm>
#include <array>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

struct Row {
    QStringView key;
    QStringView title;
    QStringView language;
    QStringView region;
    ChannelProfile profile;
    /// Separated by spaces, like films and sources.
    QStringView spoken;
    const char* zone;
    QStringView films;
    QStringView sources;
};

constexpr QStringView kAllFilms = u"comedy drama crime adventure romance thriller comedy";
constexpr QStringView kEveryFilm =
    u"comedy drama crime adventure romance thriller scifi fantasy horror western drama comedy";
constexpr QStringView kOldFilms = u"comedy romance crime adventure western drama";

// The source ids decide which feed or site a channel is in; its id there is its key plus ".demo".
// Placeholders are those of sourceOnServer.
constexpr std::array kRows = {
    Row{u"vyhled", u"Výhled", u"cs", u"Czech", ChannelProfile::General, u"cs", "Europe/Prague", kAllFilms,
        u"r.domov.vyhled.demo n.vyhled.demo"},
    Row{u"minuta", u"Minuta", u"cs", u"Czech", ChannelProfile::News, u"cs", "Europe/Prague", u"",
        u"r.domov.minuta.demo %1/feeds/minuta.xml"},
    Row{u"platno", u"Plátno", u"cs", u"Czech", ChannelProfile::Film, u"cs", "Europe/Prague", kEveryFilm,
        u"n.platno.demo"},
    Row{u"pametnik", u"Pamětník", u"cs", u"Czech", ChannelProfile::OldFilm, u"cs", "Europe/Prague", kOldFilms,
        u"n.pametnik.demo"},
    Row{u"polocas", u"Poločas", u"cs", u"Czech", ChannelProfile::Sport, u"cs", "Europe/Prague", u"",
        u"polocas"},
    Row{u"knoflik", u"Knoflík", u"cs", u"Czech", ChannelProfile::Children, u"cs", "Europe/Prague", u"",
        u"r.domov.knoflik.demo"},
    Row{u"ozvena", u"Ozvěna", u"cs", u"Czech", ChannelProfile::Music, u"cs", "Europe/Prague", u"",
        u"ozvena.tv"},
    Row{u"polednik", u"Poledník", u"cs", u"Czech", ChannelProfile::Documentary, u"cs", "Europe/Prague", u"",
        u"polednik.tv"},
    Row{u"pokracovani", u"Pokračování", u"cs", u"Czech", ChannelProfile::Series, u"cs", "Europe/Prague", u"",
        u"r.domov.pokracovani.demo"},
    Row{u"stopa", u"Stopa", u"cs", u"Other", ChannelProfile::Crime, u"cs", "Europe/Prague",
        u"crime thriller crime", u"n.stopa.demo"},
    Row{u"zahradka", u"Zahrádka", u"cs", u"Other", ChannelProfile::Hobby, u"cs", "Europe/Prague", u"",
        u"n.zahradka.demo"},
    Row{u"dvojhlas", u"Dvojhlas", u"cs/sk", u"Other", ChannelProfile::General, u"cs sk", "Europe/Bratislava",
        kAllFilms, u"s.dvojhlas.demo"},
    Row{u"hokejka", u"Hokejka", u"cs/sk", u"Other", ChannelProfile::Sport, u"sk cs", "Europe/Bratislava", u"",
        u"s.hokejka.demo"},
    Row{u"vatra", u"Vatra", u"sk", u"Slovak", ChannelProfile::General, u"sk", "Europe/Bratislava", kAllFilms,
        u"s.vatra.demo"},
    Row{u"hodina", u"Hodina", u"sk", u"Slovak", ChannelProfile::News, u"sk", "Europe/Bratislava", u"",
        u"s.hodina.demo"},
    Row{u"premietaren", u"Premietáreň", u"sk", u"Slovak", ChannelProfile::Film, u"sk", "Europe/Bratislava",
        kEveryFilm, u"s.premietaren.demo"},
    Row{u"haluzka", u"Halúzka", u"sk", u"Slovak", ChannelProfile::Children, u"sk", "Europe/Bratislava", u"",
        u"s.haluzka.demo"},
    Row{u"harbour", u"Harbour", u"en", u"Other", ChannelProfile::GeneralWest, u"en", "Europe/London",
        kAllFilms, u"r.islands.harbour.demo"},
    Row{u"lantern", u"Lantern", u"en", u"Other", ChannelProfile::Film, u"en", "Europe/London", kEveryFilm,
        u"r.islands.lantern.demo"},
    Row{u"wayfarer", u"Wayfarer", u"en", u"Other", ChannelProfile::Documentary, u"en", "Europe/London", u"",
        u"r.islands.wayfarer.demo"},
    Row{u"belvedere", u"Belvédère", u"fr", u"Other", ChannelProfile::GeneralWest, u"fr", "Europe/Paris",
        kAllFilms, u"tvpc.belvedere.demo"},
    Row{u"projecteur", u"Projecteur", u"fr", u"Other", ChannelProfile::Film, u"fr", "Europe/Paris",
        kEveryFilm, u"tvpc.projecteur.demo"},
    Row{u"erguvan", u"Erguvan", u"tr", u"Other", ChannelProfile::GeneralEast, u"tr", "Europe/Istanbul",
        kAllFilms, u"tvpc.erguvan.demo"},
    Row{u"perde", u"Perde", u"tr", u"Other", ChannelProfile::Film, u"tr", "Europe/Istanbul", kEveryFilm,
        u"tvpc.perde.demo"},
    Row{u"okolitsa", u"Околица", u"ru", u"Other", ChannelProfile::GeneralEast, u"ru", "Europe/Moscow",
        kAllFilms, u"%1/feeds/okolitsa.xml.gz"},
    Row{u"kinovar", u"Киноварь", u"ru", u"Other", ChannelProfile::Film, u"ru", "Europe/Moscow", kEveryFilm,
        u"%1/feeds/kinovar.xml"},
    Row{u"brana", u"Brána", u"cs", u"Czech", ChannelProfile::Series, u"cs", "Europe/Prague", u"",
        u"barrandov.Brána"},
    Row{u"zarivka", u"Zářivka", u"cs", u"Czech", ChannelProfile::General, u"cs", "Europe/Prague", kAllFilms,
        u"cz.nova.Zářivka"},
    Row{u"hvezdarna", u"Hvězdárna", u"cs", u"Czech", ChannelProfile::Documentary, u"cs", "Europe/Prague", u"",
        u"cz.nova.Hvězdárna"},
    Row{u"premiera", u"Premiéra", u"cs", u"Other", ChannelProfile::Film, u"cs", "Europe/Prague", kEveryFilm,
        u"%2/max"},
    Row{u"tribuna", u"Tribuna", u"cs", u"Other", ChannelProfile::Sport, u"cs", "Europe/Bucharest", u"",
        u"dolce-sport.tribuna"},
    Row{u"usmev", u"Úsměv", u"cs", u"Other", ChannelProfile::Series, u"cs", "Europe/Bucharest", u"",
        u"cc.romania"},
    Row{u"trojskok", u"Trojskok", u"sk", u"Slovak", ChannelProfile::Sport, u"sk", "Europe/Bratislava", u"",
        u"dsk.Trojskok"},
    Row{u"kinosal", u"Kinosál", u"cs/sk", u"Other", ChannelProfile::Film, u"cs sk", "Europe/Bratislava",
        kEveryFilm, u"joj.kinosal"},
    Row{u"polnoc", u"Polnoc", u"sk", u"Slovak", ChannelProfile::Film, u"sk", "Europe/Bratislava", kEveryFilm,
        u"-hbo.sk.1"},
    Row{u"pobrezie", u"Pobrežie", u"sk", u"Slovak", ChannelProfile::Documentary, u"sk", "Europe/Budapest",
        u"", u"10021"},
    Row{u"anchor", u"Anchor", u"en", u"Other", ChannelProfile::Film, u"en", "Europe/Zagreb", kEveryFilm,
        u"cinestar.hr.12"},
    Row{u"terrace", u"Terrace", u"en", u"Other", ChannelProfile::Documentary, u"en", "Europe/Rome", u"",
        u"_R4"},
    Row{u"passerelle", u"Passerelle", u"fr", u"Other", ChannelProfile::GeneralWest, u"fr", "Europe/Rome",
        kAllFilms, u"_PA"},
};

constexpr std::array<QStringView, 12> kSelected = {u"vyhled",  u"minuta",    u"platno",   u"knoflik",
                                                   u"polocas", u"vatra",     u"dvojhlas", u"pobrezie",
                                                   u"harbour", u"belvedere", u"erguvan",  u"okolitsa"};

QStringList words(QStringView text) {
    return text.toString().split(u' ', Qt::SkipEmptyParts);
}

DemoChannel channelOf(const Row& row, int number) {
    DemoChannel channel{.key = row.key.toString(),
                        .title = row.title.toString(),
                        .location = u"9b1d3f5a7c2e4608%1"_s.arg(number, 8, 16, QChar(u'0')),
                        .language = row.language.toString(),
                        .region = row.region.toString(),
                        .profile = row.profile,
                        .spoken = words(row.spoken),
                        .zone = row.zone,
                        .films = {},
                        .sources = words(row.sources),
                        .feedId = row.key.toString() + u".demo"_s,
                        .hasStream = number % 2 == 1,
                        .number = number};
    for (const QString& film : words(row.films)) {
        channel.films.append(u"film_"_s + film);
    }
    return channel;
}

} // namespace

const std::vector<DemoChannel>& demoChannels() {
    static const std::vector<DemoChannel> channels = [] {
        std::vector<DemoChannel> made;
        made.reserve(kRows.size());
        for (const Row& row : kRows) {
            made.push_back(channelOf(row, int(made.size()) + 1));
        }
        return made;
    }();
    return channels;
}

QString sourceOnServer(const QString& source, const QString& base) {
    return QString(source).replace("%1"_L1, base).replace("%2"_L1, base.section(u"//"_s, 1));
}

QStringList demoSelection() {
    QStringList selection;
    for (const QStringView key : kSelected) {
        const auto it = std::find_if(demoChannels().begin(), demoChannels().end(),
                                     [key](const DemoChannel& channel) { return channel.key == key; });
        selection.append(it->location);
    }
    return selection;
}

} // namespace guide
