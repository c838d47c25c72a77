#include "text/categories/genres/GenreRow.h"

#include <array>

namespace guide::genres {

namespace {

// clang-format off
constexpr std::array kRows{
    // German
    Row{kFiction, kName, u"Familie|Kriegsfilm|Liebe|Historie"},
    Row{kForChildren, kName, u"Jugend|Jugend/Familie|Kinder/Jugend"},
    Row{kDocumentaries, kName, u"Dokumentationen|Dokus|Reportagen|Länder|Umwelt"},
    Row{kEntertainment, kName, u"Theater|Comedy-Show|Gameshow|Casting|Haus und Garten|Essen & Trinken"},
    Row{kSeries, kKind,
        u"Serie|*serie|Fernsehserie|Daily Soap|Dailysoap|Soap|*soap|Sitcom|Telenovela|Miniserie|"
        u"Britcom|Familienchronik|Comedyserie|Serien|Seifenoper|Anthologieserie", u"de nl"},
    Row{kSeries, kName,
        u"*serie|Dailysoap|Comedyserie|Britcom|Familienchronik|Fernsehserie|Seifenoper|*serien|"
        u"Vorabendserie|Gerichtsserie|Anwaltserie|Animeserie|Jugendserie"},
    Row{kMovies, kKind,
        u"Spielfilm|*film|Kinofilm|Fernsehfilm|TV-Film|Märchenfilm|Kurzfilm|Roadmovie|*verfilmung|"
        u"*epos|Film noir", u"de nl"},
    Row{kMovies, kName,
        u"Spielfilm|Fernsehfilm|Familienfilm|Heimatfilm|Kurzfilm|Stummfilm|TV-Film|Roadmovie|"
        u"*verfilmung|Volkstheater|Erotikfilm|Monumentalfilm"},
    Row{kAdventure, kKind, u"Abenteuerfilm|Fantasyabenteuer|Actionabenteuer|Mantel-und-Degen-Film"},
    Row{kSF, kKind, u"Science-Fiction-Film|SciFi-Film|ScienceFiction-Film|Endzeitfilm|Katastrophenfilm"},
    Row{kHorror, kKind, u"Horrorfilm|*horrorfilm", u"de"},
    Row{kFantasy, kKind, u"Fantasyfilm|Märchenfilm"},
    Row{kCrime, kKind, u"Kriminalfilm|Krimifilm|Gangsterfilm|Mafiafilm"},
    Row{kComedy, kKind,
        u"Filmkomödie|*komödie|Komödie|Liebeskomödie|Tragikomödie|Romantikkomödie|Romantic Comedy|"
        u"Schwank", u"de"},
    Row{kDrama, kKind,
        u"*filmdrama|Melodram|Melodrama|*drama|Liebesfilm|Romanze|Historienfilm|Biografie|Biopic|"
        u"Kriegsfilm|Antikriegsfilm", u"de"},
    Row{kThriller, kKind, u"*thriller|Actionthriller|Psychothriller|Politthriller", u"de"},
    Row{kWestern, kName, u"Italowestern|Westernfilm|Westernkomödie"},
    Row{kMovies, kName, u"Actionfilm|Romanze|Melodram|Liebesfilm|Liebesdrama"},
    Row{kComedy, kName, u"Comedy|Komödien|Humor|Satire|Dramedy|Comedyfilm"},
    Row{kCrime, kKind, u"Krimi|Krimireihe|Kriminalfall|*krimi", u"de"},
    Row{kCrime, kName, u"Krimi*|Kriminal*|Detektiv*|Polizei*|Ermittler*|Gangster*|Mafia*"},
    Row{kDrama, kName, u"Drama|Dramareihe"},
    Row{kAdventure, kName, u"Abenteuer|Abenteuer*"},
    Row{kSF, kName, u"Science-Fiction|ScienceFiction|SciFi|Sci-Fi|SciFi*"},
    Row{kFantasy, kName, u"Fantasy*|Mystery|Mystery*|Märchen|*märchen"},
    Row{kHorror, kName, u"Horror*|Grusel*"},
    Row{kThriller, kName, u"Thriller|Thriller*|Agenten*"},
    Row{kWestern, kName, u"Western|Western*"},
    Row{kFiction, kName, u"Action|Romantik|Mysterium|Action*|Familienunterhaltung|Fiktion"},
    Row{kAnimation, kKind,
        u"Zeichentrickserie|Zeichentrick|Zeichentrick*|Animationsserie|Animationsfilm|Trickfilm|"
        u"Trickserie|Puppentrickserie|Trickfilmserie|*animationsserie|3D-Animationsserie|Animations*|"
        u"*zeichentrickserie", u"de"},
    Row{kAnimation | kYields, kName, u"Animation|Animiert"},
    Row{kAnimation | kAdult, kName, u"Erwachsenen-Animationsserie|Erwachsenen-Zeichentrickserie"},
    Row{kForChildren, kName,
        u"Kinder|Kinder*|Kinder und Jugend|Vorschulsendung|Gutenachtgeschichte|Jugendsendung|"
        u"Kindernachrichten|Kinder- & Jugendfilm|Kleinkinder|Vorschule|für Kinder"},
    Row{kForChildren, kText,
        u"Kindersendung|Kinderserie|Kinderfilm|Kindermagazin|für Kinder|Kindernachrichten|"
        u"Kinderprogramm|Gutenachtgeschichte|Vorschulkinder"},
    Row{kSeries | kYields, kName, u"Jugendserie|Jugendmagazin"},
    Row{kDocumentaries, kName,
        u"Dokumentation|Doku|*doku|Dokumentarfilm|Dokureihe|Dokuserie|Doku-Serie|Dokudrama|Reportage|"
        u"*reportage|Reportagereihe|*dokumentation|*porträt|Porträt|Porträtreihe|Naturreihe|Tierreihe|"
        u"Survivalreihe|Doku-Reihe|Tierdoku|Naturdoku|Dokumentarreihe|Dokumentarserie"},
    Row{kDocumentaries, kText,
        u"Doku-Reihe|Dokumentarfilm|Dokumentarserie|Dokumentarreihe|Dokumentation|Dokureihe|"
        u"Naturdokumentation|Tierdokumentation"},
    Row{kDocumentaries, kName,
        u"Tierserie|Tierarztserie|Zooserie|Wissenschaftsserie|Naturserie|Survivalserie|Wissen|"
        u"Wissenschaft|Geschichte|Natur|Tiere|Natur und Tiere|Land & Leute|Reisen|Landschaftsbilder|"
        u"Archäologie|Architektur|Bildung|Schulfernsehen|True Crime|Crime-Doku-Serie|Making Of|"
        u"Hinter den Kulissen|Pseudowissenschaft|Expedition|Edutainment|Katastrophen|"
        u"Abenteuer & Survival|Religionsmagazin|Wissensmagazin|Wissenschaftsmagazin|Reisemagazin|"
        u"Tiermagazin|Dokumagazin|Umweltmagazin|Geschichtsmagazin|Kunstmagazin|Sprachkurs*|"
        u"Städteporträt|Länderporträt|Kultur|Kunst|Bericht|Infotainment|Reportagemagazin|"
        u"Auslandsmagazin|Militär|Technik|Weltraum|Raumfahrt|Gesellschaft|Lernen|Bildungsmagazin|"
        u"Dokutainment|Eisenbahnmagazin"},
    Row{kDocumentaries | kYields, kName,
        u"Natur*|Tier*|Zoo*|Geschichts*|Wissens*|Wissenschafts*|Reise*|Militär*"},
    Row{kNews, kName,
        u"Nachrichten|Nachrichtensendung|Nachrichtenmagazin|Wetterbericht|Wettervorhersage|"
        u"Regionalnachrichten|Nachrichtenjournal|Politische Debatte"},
    Row{kNews, kName,
        u"Wetter|Börse|Börsenmagazin|Wirtschaftsmagazin|Politikmagazin|Regionalmagazin|Morgenmagazin|"
        u"Mittagsmagazin|Nachtjournal|Nachrichtenrückblick|Polittalk|Politik|Diskussion|Kommentar|"
        u"Finanzmagazin|Information|Informationen|Livebericht|Wirtschaft|Aktuelles|Zeitgeschehen|"
        u"Politiksendung|Talk Politik|Österreichmagazin|Parlament|Debatte|Verkehrsmagazin"},
    Row{kNews, kText,
        u"Nachrichtensendung|Nachrichtenmagazin|Wetterbericht|Wettervorhersage|aktuelle Nachrichten|"
        u"Nachrichten aus|politisches Magazin|Politmagazin|Regionalnachrichten|nieuwsuitzending|"
        u"het laatste nieuws|actualiteitenprogramma"},
    Row{kNews | kYields, kName, u"Nachrichten*|Regional*|Polit*|Börsen*"},
    Row{kEntertainment, kKind,
        u"Show|*show|Quiz|*quiz|Quizshow|Talkshow|Talk-Show|Spielshow|Castingshow|Kochshow|Kochsendung|"
        u"Gameshow|Late-Night-Show|Dokusoap|Doku-Soap|*dokusoap|Reality-Soap|Realityshow|Realitysoap|"
        u"Realityreihe|Realitydoku|Scripted Reality|Stand-Up-Comedy|Kabarett|Sketchcomedy|Sketche|"
        u"Reality|Reality-TV|Reality TV|Unterhaltungsshow|Kochduell|Kochserie", u"de"},
    Row{kEntertainment, kText,
        u"Talkshow|Quizshow|Castingshow|Kochshow|Dokusoap|Doku-Soap|Spielshow|Gerichtsshow"},
    Row{kEntertainment, kName,
        u"Automagazin|*magazin|Boulevardmagazin|Kulturmagazin|Gesundheitsmagazin|"
        u"Skripted-Reality-Serie|Scripted-Reality-Serie|Gerichtsserie|Justizserie|Talk|*talk|Gespräch|"
        u"Gesprächsreihe|Gesprächsrunde|Interview|Ratgeber|Ratgebermagazin|Kochen|Malkurs|Gymnastik|"
        u"Fitness|Lottoziehung|Gartenshow|Gartenserie|Dekosoap|Clipshow|Versteckte Kamera|"
        u"Nachrichtensatire|Comedyshow|Comedy-Show|Zaubershow|Gala|Bingo|Angeln|Kulinarik|Wohnen|"
        u"Heimwerken|Haus & Garten|Show*|Late-Night-Comedy|Promitalk|Stuntserie|Autoserie|Satireshow|"
        u"Satiremagazin|Reise-und Kochmagazin|Zirkus|Wettbewerb|Infoshow|Koch*"},
    Row{kEntertainment | kYields, kName,
        u"Unterhaltung|Unterhaltungssendung|Lifestyle|Freizeit|Gesundheit|Varieté|Hobby|Service|"
        u"Comedy-Quiz"},
    Row{kEntertainment | kYields | kVague, kName, u"Magazin|Sondersendung|Gespräche"},
    Row{kMusic, kKind,
        u"Konzert|*konzert|Musikvideos|Videoclips|Musikmagazin|Musikshow|Oper|Operette|Ballett|"
        u"Klassische Musik|Hitparade|Volksmusik|Konzertreihe|Schlagershow|Charts|Musikclips|"
        u"Liveauftritt|Musical", u"de"},
    Row{kMusic, kName,
        u"Musik|Rock|Pop|Hip Hop|Jazz|Schlager|Klassik|Rock und Pop|Tanz|Musikfilm|Konzertfilm|"
        u"Klassikkonzert"},
    Row{kMusic | kYields, kName, u"Musik*"},
    Row{kSports, kName,
        u"Sport|Sportmagazin|Sportnachrichten|Fußball*|Motorsport*|Motorrad*|Motorradmagazin|Formel 1|"
        u"Eishockey|Basketball|Handball|Tennis|Tischtennis|Darts|Marathon|Segeln|Leichtathletik|"
        u"Volleyball|Wassersport|Radsport|Wintersport|Skispringen|Biathlon|Boxen|Kampfsport|Snooker|"
        u"Rallye|Motocross|Dragster|Powerboat|Pferdesport|Turnen|Ski*|Sporttalk|Sport*|Funsportmagazin|"
        u"Live-Sport|Schwimmen|Rudern|Sportsendung"},
    Row{kSports | kYields, kName, u"Sportdoku*|Sportreportage|Fußballdoku"},
    Row{kDocumentaries, kName, u"Sportdoku|Fußballdoku|Musikdoku|Sportreportage"},
    Row{kNothing, kName,
        u"Infomercial|Werbesendung|Verkaufsshow|Teleshopping|Programmende|Sendeschluss|Nachtprogramm|"
        u"Vorschau|kein Charakter|Dauerwerbesendung|Werbung|Shopping|Sendepause|Fernsehgottesdienst|"
        u"Gottesdienst|Fernsehpredigt|Religion|Home Shopping"},
    Row{kNation, kLead,
        u"USA|Deutschland|Deutsch*|Österreich*|Frankreich|Französisch*|Großbritannien|Britisch*|"
        u"Amerikanisch*|US-amerikanisch*|Italienisch*|Italien|Spanien|Spanisch*|Schweiz|Kanada|"
        u"Kanadisch*|Australien|Dänemark|Schweden|Schwedisch*|Japan|Japanisch*|Tschechoslowakei|Polen|"
        u"DDR|Irland|Norwegen|Belgien"},
    Row{kPresented, kText,
        u"Moderator*|moderier*|Kandidat*|Gäste|Gast|Magazin*|Sendung|Experten|Rezept*|präsentiert", u"de"},
    // English
    Row{kEntertainment, kName,
        u"Home improvement|Standup|Stand-up comedy|Consumer|Exercise|Theater|Theatre|Beauty|Parade|DIY"},
    Row{kDocumentaries, kName, u"Art|Aviation|Archaeology|Anthropology|Geography"},
    Row{kFiction, kName, u"Family|Historical|Musical comedy|Holiday"},
    Row{kSeries, kKind | kText,
        u"Sitcom|sitcoms|soap opera|telenovela|comedy series|drama series|crime series|tv series|"
        u"miniseries|comedy drama series|crime drama series|police drama|medical drama|period drama|"
        u"legal drama|soap"},
    Row{kSeries | kYields, kName,
        u"Series|Serial|Serials|Soap|Soaps|TV Show|Drama Series|Entertainment Series|Scripted"},
    Row{kSeries, kName,
        u"Soap|Anime Series|Medical Drama|Costume Drama|Police Drama|Crime Drama|Dramas Series"},
    Row{kMovies, kKind,
        u"Movie|Movies|Film|Films|Feature Film|TV Movie|Motion Picture|Short Film|Made-for-TV movie|"
        u"Cinema"},
    Row{kComedy, kKind | kText, u"comedy film|romantic comedy film|comedy movie|comedy starring"},
    Row{kDrama, kKind | kText, u"drama film|period drama film|drama starring"},
    Row{kThriller, kKind | kText,
        u"thriller starring|thriller film|action thriller starring|crime thriller starring"},
    Row{kMovies, kText,
        u"film starring|movie starring|is a film|this film|action film|feature film|film directed by|"
        u"adventure starring|action adventure starring|in this movie"},
    Row{kWestern, kKind | kText, u"western starring"},
    Row{kHorror, kKind | kText, u"horror film|horror starring|horror movie"},
    Row{kSF, kKind | kText, u"science fiction film|sci-fi film|sci-fi adventure|sci-fi thriller"},
    Row{kComedy, kName, u"Comedy|Comedies|Romantic comedy|Late Night Comedies|Comedy Drama|Dramedy"},
    Row{kDrama, kName, u"Drama|Dramas|Biographical Drama|Historical Drama|War Drama|General Drama"},
    Row{kCrime, kName, u"Crime|Mystery & Suspense|Crime & Mystery|Detective|Detective/Thriller"},
    Row{kThriller, kKind, u"Thriller|Thrillers|Suspense"},
    Row{kAdventure, kName, u"Adventure|Action & Adventure|Adventure/War"},
    Row{kSF, kName, u"Science Fiction|Sci-Fi|Sci-Fi & Fantasy|SciFi|Science fiction/Fantasy"},
    Row{kFantasy, kName, u"Fantasy|Supernatural"},
    Row{kHorror, kKind, u"Horror|Zombies|Slasher"},
    Row{kWestern, kName, u"Western|Westerns"},
    Row{kFiction, kName, u"Action|Romance|War|Romantic|Mystery|Melodrama|Fiction|Martial arts"},
    Row{kAnimation, kKind,
        u"Cartoon|Cartoons|Animated|Animated series|Animation|Puppets|animated adventures"},
    Row{kSeries, kName, u"Anime"},
    Row{kForChildren, kKind,
        u"Childrens|Children|Children's|Kids|For Children|Pre-school|Preschool|Children's Programmes|"
        u"Children's / Youth programmes|Youth|Kids & Family|Children TV|Ages 0-2|Ages 3-5|Ages 6-7|"
        u"Ages 8-10|Ages 11-13|Family Viewing Kids"},
    Row{kForChildren, kText,
        u"for children|for kids|pre-school|preschool|preschoolers|children's series|"
        u"children's animation|animated series for children|kids' show|children's programme"},
    Row{kDocumentaries, kName,
        u"Documentary|Documentaries|Docudrama|Docuseries|Nature|Wildlife|Factual|Science|History|"
        u"Educational|Education|Docu|Biography|Travel|Special Interest Documentary|True Crime|"
        u"Science & Nature|Arts|Environment|Technology|Animals|Social|Military|Paranormal|"
        u"Nature/Animals/Environment|Education/Science/Factual topics|Arts/Culture (without music)|"
        u"Arts/Culture|Travel & Adventure|Culture|Religion"},
    Row{kDocumentaries, kText,
        u"documentary|docuseries|documentaries|documentary series|wildlife series|factual series"},
    Row{kNews, kName,
        u"News|Current affairs|News & Information|Weather|Newscast|News/Current affairs|News bulletin|"
        u"Politics|News magazine|Public affairs|Bus./financial|Business|Discussion/Interview/Debate|"
        u"Newsmagazine|Debate|News & Current Affairs|Breaking News"},
    Row{kNews, kText,
        u"the latest news|news bulletin|latest headlines|news headlines|international news|"
        u"weather forecast|news and analysis|top stories|regional news|national news|breaking news|"
        u"news summary|business news|the day's news|political debate|current affairs"},
    Row{kEntertainment, kKind,
        u"Entertainment|Reality|Food|Lifestyle|Property|Talk|Talk show|Quiz|Game Show|"
        u"Game show/Quiz/Contest|Variety|Variety show|Show/Game show|Chat show|Cooking|Food & Cooking|"
        u"Home & Garden|House/garden|How-to|Shopping Show|Competition Reality|Human Interest|"
        u"Fails & Pranks|Reality TV|Motoring|Leisure hobbies|Leisure|Fashion|Makeover|Gardening|"
        u"Auction|Health|Stand-up|Awards|Hobbies|Interests|Fitness & Health|"
        u"Advertisement/Shopping Lifestyle|Light Entertainment|Cookery|Motors|Talent|Dating|Poker|Law|"
        u"Collectibles|Self improvement|Outdoors|Hunting|Fishing"},
    Row{kEntertainment, kText,
        u"game show|quiz show|talk show|reality show|reality series|cooking show|chat show|"
        u"cookery series|panel show|talent show|dating show|hosts the quiz|stand-up comedy|"
        u"celebrity chef|variety show|late-night show|property show|makeover show|quiz hosted|"
        u"quiz presented|comedy panel"},
    Row{kMusic, kKind,
        u"Music|Concert|Music videos|Music/Ballet/Dance|Opera|Ballet|Rock/Pop|Jazz|Classical music|"
        u"Musical/Opera|Folk/Traditional music|Serious music/Classical music|Live Music|Dance|Hits|"
        u"Music Special"},
    Row{kMusic, kText, u"music videos|live concert|in concert|music channel|concert film|greatest hits"},
    Row{kMusic | kYields, kName, u"Blues|Musical|Rock"},
    Row{kSports, kName,
        u"Sport|Sports|Football|Soccer|Sports event|Sports talk|Sports magazine|Sports non-event|Golf|"
        u"Cricket|Rugby|Boxing|Baseball|Basketball|Hockey|Ice Hockey|American football|Motor sport|"
        u"Motorsport|Auto racing|Horse racing|Tennis|Athletics|Cycling|Team sports|Water sport|"
        u"Winter sports|Equestrian|Martial sports|Special events (Olympic Games, World Cup, etc.)|"
        u"Football/Soccer|Tennis/Squash|Wrestling|Mixed martial arts|Snooker|Darts|NFL|NBA|Live sport|"
        u"Football magazine|Surfing|Skiing|Sports Documentary"},
    Row{kNothing, kName,
        u"Paid programming|Teleshopping|Infomercial|No Genre Shopping|Shopping|Advertisement/Shopping|"
        u"To be announced|Off air|Consumer shopping|Home shopping|Religious"},
    Row{kNation, kLead,
        u"American|British|US|UK|French|Australian|Canadian|Spanish|Italian|Korean|Chinese|Hollywood"},
    Row{kPresented, kText,
        u"host|hosts|hosted|presenter|presented by|presents|contestants|experts|guests|recipes|viewers|"
        u"homeowners|chef|competitors|tonight's", u"en id"},
    // Dutch
    Row{kCrime, kName, u"misdaad|politieserie"},
    Row{kFiction, kName, u"actie|romantiek|oorlog"},
    Row{kDocumentaries, kName, u"reizen|kunst|cultuur|dieren"},
    Row{kEntertainment, kName, u"koken|wonen|gezondheid|mode|tuinieren|lifestyleprogramma"},
    Row{kSeries, kKind, u"serie|series|comedyserie|dramaserie|misdaadserie|soapserie|jeugdserie", u"nl"},
    Row{kMovies, kName, u"speelfilm|actiefilm|misdaadfilm|televisiefilm"},
    Row{kComedy, kName, u"komedie|komische film", u"nl"},
    Row{kForChildren, kKind,
        u"jeugd|kinderprogramma|kinderen|tekenfilm|jeugdprogramma|kinderserie|peuters|animatieserie"},
    Row{kDocumentaries, kName,
        u"documentaire|documentaireserie|informatief|natuur|natuurprogramma|wetenschap|geschiedenis|"
        u"reportage|docusoap natuur|educatief"},
    Row{kDocumentaries, kText,
        u"documentaire|documentaireserie|natuurdocumentaire|dokumentär|dokumentarserie|dokumentärserie", u"nl sv da no nb"},
    Row{kNews, kName,
        u"nieuws|actualiteiten|weerbericht|weer|journaal|nieuws/actualiteiten|actualiteit|"
        u"actualiteitenrubriek|duiding"},
    Row{kEntertainment, kKind,
        u"amusement|spelshow|spelprogramma|realityserie|praatprogramma|kookprogramma|entertainment|"
        u"vermaak|human interest|show|consumentenprogramma|realityprogramma|docusoap"},
    Row{kMusic, kKind, u"muziek|muziekprogramma|klassieke muziek"},
    Row{kSports, kName, u"voetbal|sportprogramma|wielrennen|schaatsen|sportmagazine|sportjournaal"},
    Row{kNothing, kName, u"telewinkelen|reclame|erotiek|einde uitzending"},
    // Nordic
    Row{kSeries, kKind,
        u"dramaserie|komediserie|kriminalserie|dramaserier|krimiserie|sarja|draamasarja|komediasarja|"
        u"rikossarja"},
    Row{kMovies, kKind, u"spelfilm|långfilm|spillefilm|elokuva|filmer", u"sv da no nb fi"},
    Row{kForChildren, kKind,
        u"barn|barnprogram|børn|børneprogram|barneprogram|lastenohjelma|lapset|lastenohjelmat", u"sv da no nb fi"},
    Row{kNews, kName, u"nyheter|nyheder|uutiset|sää|väder|vejr|vær|ajankohtaisohjelma"},
    Row{kDocumentaries, kName,
        u"dokumentär|dokumentar|dokumentti|dokumenttisarja|faktaprogram|dokumentärserie|"
        u"dokumentarserie"},
    Row{kEntertainment, kKind,
        u"underhållning|underholdning|viihde|viihdeohjelma|pratshow|frågesport|matlagningsprogram"},
    Row{kMusic, kKind, u"musikk|musiikki|musikprogram"},
    Row{kSports, kName, u"sportprogram|urheilu|jalkapallo|jääkiekko|fodbold|fotboll|håndbold"},
};
// clang-format on

} // namespace

std::span<const Row> germanicRows() {
    return kRows;
}

} // namespace guide::genres
