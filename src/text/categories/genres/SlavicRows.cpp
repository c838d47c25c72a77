#include "text/categories/genres/GenreRow.h"

#include <array>

namespace guide::genres {

namespace {

// clang-format off
constexpr std::array kRows{
    // Czech and Slovak
    Row{kFiction, kName,
        u"rodinný|historický|mysteriózní|mysteriózny|psychologický|katastrofický|hudební film|válečný|"
        u"vojnový"},
    Row{kDocumentaries, kName, u"vzdělávání|vzdělávací pořad|cestování|cestovanie"},
    Row{kSeries, kKind,
        u"seriál|seriálu|seriály|krimiseriál|sitcom|telenovela|telenovely|minisérie|miniséria|sitkom|"
        u"mýdlová opera|séria|série|situační komedie|komediální seriál|dramatický seriál|"
        u"kriminální seriál|kriminálny seriál|krimi seriál|televizní seriál|televízny seriál|"
        u"rodinný seriál|povídkový seriál|cyklus televizních her|nekonečný seriál", u"cs sk"},
    Row{kSeries, kText,
        u"krimiseriál|kriminální seriál|kriminálny seriál|komediální seriál|komediálny seriál|"
        u"televizní seriál|televízny seriál|rodinný seriál|americký seriál|český seriál|"
        u"slovenský seriál|dramatický seriál|komediálny akčný seriál|německý seriál|nemecký seriál|"
        u"turecký seriál|francouzský seriál|francúzsky seriál|historický seriál|italský seriál|"
        u"britský seriál|detektivní seriál|detektívny seriál|krimi seriál|seriál USA|romantický seriál|"
        u"akční seriál|akčný seriál|sci-fi seriál|úspěšný seriál|lékařský seriál|lekársky seriál|"
        u"dramatická minisérie|seriál z lékařského prostředí"},
    Row{kMovies, kKind,
        u"film|celovečerní film|celovečerný film|televizní film|televízny film|filmový|snímek|filmy|"
        u"krátký film|krátkometrážní film", u"cs sk"},
    Row{kMovies, kText,
        u"americký film|český film|slovenský film|francouzský film|francúzsky film|italský film|"
        u"taliansky film|britský film|anglický film|německý film|nemecký film|film USA|akční film|"
        u"akčný film|romantický film|rodinný film|dobrodružný film|životopisný film|hraný film|"
        u"vojnový film|válečný film|sci-fi film|historický film|hudební film|televizní film|"
        u"televízny film|animák film|hororový film"},
    Row{kComedy, kKind,
        u"komedie|komédia|filmová komedie|filmová komédia|hudební komedie|hudobná komédia|tragikomedie|"
        u"tragikomédia|krimikomedie|veselohra", u"cs sk"},
    Row{kMovies | kComedy, kText,
        u"americká komedie|hudební komedie|hudobná komédia|americká komédia|česká komedie|"
        u"slovenská komédia|francouzská komedie|francúzska komédia|italská komedie|talianska komédia|"
        u"romantická komedie|romantická komédia|akční komedie|akčná komédia|hořká komedie|"
        u"kriminální komedie|kriminálna komédia|rodinná komedie|rodinná komédia|krimikomedie|"
        u"americké komédie"},
    Row{kDrama, kKind, u"drama|dráma|psychologické drama|melodrama|životopisný|válečný|vojnový", u"cs sk"},
    Row{kMovies | kDrama, kText,
        u"americké drama|české drama|psychologické drama|historické drama|válečné drama|"
        u"životopisné drama|americká dráma|vojnová dráma|romantické drama|sportovní drama"},
    Row{kThriller, kKind, u"thriller|akční thriller|psychologický thriller", u"cs sk"},
    Row{kMovies | kThriller, kText,
        u"americký thriller|akční thriller|akčný thriller|psychologický thriller|kriminální thriller|"
        u"kriminálny thriller"},
    Row{kHorror, kKind, u"horor", u"cs sk"},
    Row{kMovies | kCrime, kText,
        u"kriminální film|kriminálny film|detektivní film|detektívny film|kriminální příběh|"
        u"kriminální drama"},
    Row{kMovies | kAdventure, kText, u"dobrodružný film|dobrodružné drama"},
    Row{kWestern, kKind, u"western"},
    Row{kCrime, kKind,
        u"krimi|kriminální|kriminálny|detektivní|detektívka|detektivka|detektívny", u"cs sk"},
    Row{kComedy, kName, u"komedie|komédia|komediální|komediálny"},
    Row{kAdventure, kName, u"dobrodružný|dobrodružné|dobrodružství|dobrodružstvo"},
    Row{kFiction, kName, u"akční|akčný|romantický|akce|romantika"},
    Row{kForChildren, kKind,
        u"pro děti|pre deti|dětský|detský|dětský pořad|detský program|pohádka|rozprávka|pohádky|"
        u"rozprávky|animovaný|kreslený|večerníček|večerníčky|animovaný film|pro děti a mládež|"
        u"pre deti a mládež|děti|deti|animák|dětem|pre najmenších|kreslený film|animované|animácia|"
        u"dětské|detské|loutkový|bábková rozprávka|mládež"},
    Row{kForChildren, kText,
        u"pro děti|pre deti|pro nejmenší|pre najmenších|pre najmenšie deti|dětský pořad|detský seriál|"
        u"detský program|dětský seriál|filmová pohádka|filmová rozprávka|animovaný rodinný|"
        u"rodinný animovaný|televízna rozprávka|televizní pohádka|klasická pohádka|výpravná pohádka|"
        u"animovaná pohádka|animovaná rozprávka|detský film|dětský film|večerníček|pro předškoláky|"
        u"pohádka o|rozprávka o|pre malých|detská relácia|výpravné pohádky|filmovej rozprávky"},
    Row{kAnimation, kText,
        u"animovaný seriál|kreslený seriál|animovaný film|animovaného seriálu|animovaná komedie|"
        u"animovaná série|kresleného seriálu|animovaná komédia|animovaný príbeh"},
    Row{kDocumentaries, kName,
        u"dokument|dokumentární|dokumentárny|dokumentární film|dokumentárny film|dokumentární seriál|"
        u"dokumentárny seriál|dokumentární cyklus|dokumentárny cyklus|cestopis|reportáž|vzdělávací|"
        u"vzdelávací|přírodopisný|prírodopisný|dokumenty|publicistika|historie|história|příroda|"
        u"príroda|cestovatelský|cestopisný|dokumentární série|dokudrama|dokureality dokument|"
        u"vzdelávanie|věda|veda|naučný|náučný|kultura|kultúra|umění|umenie", u"cs sk"},
    Row{kDocumentaries, kText,
        u"dokument o|dokument|dokumentární|dokumentárny|dokumentárna|dokumentární film|"
        u"dokumentárny film|dokumentární seriál|dokumentárny seriál|dokumentární cyklus|"
        u"dokumentárny cyklus|dokumentární série|dokumentárny magazín|přírodopisný cyklus|dokumentu|"
        u"cestopisný seriál|cestopisný cyklus|dokumentárneho|dokumentárního|dokumentaristé|"
        u"dokumentární minisérie|cestopis", u"cs sk"},
    Row{kNews, kName,
        u"zprávy|správy|zpravodajství|spravodajstvo|počasí|počasie|zpravodajský|spravodajský|politika|"
        u"aktuality|diskuse|diskusia|politická diskuse|politická diskusia|diskusní pořad|události|"
        u"publicistický pořad|předpověď počasí|predpoveď počasia|publicistický", u"cs sk"},
    Row{kNews, kText,
        u"zpravodajství|spravodajstvo|zpravodajská relace|spravodajská relácia|zpravodajský pořad|"
        u"spravodajský program|předpověď počasí|predpoveď počasia|hlavní zprávy|hlavné správy|"
        u"hlavná spravodajská|aktuální zprávy|aktuálne správy|nejnovější zprávy|najnovšie správy|"
        u"politická diskuse|politická diskusia|diskusní pořad|diskusná relácia|zpravodajství z|"
        u"přehled zpráv|prehľad správ|nejdůležitější události dne|aktuálne dianie|"
        u"publicistický magazín|publicistický pořad|publicistická relácia|aktuální dění|udalosti dňa|"
        u"udalosti z domova|souhrn zpráv|súhrn správ|souhrn nejdůležitějších|správy z domova|"
        u"zprávy z domova|zprávy z regionů"},
    Row{kNews, kTitle,
        u"zprávy|správy|zpravodajství|počasí|počasie|události|televizní noviny|televízne noviny|"
        u"správičky|krimi zprávy|krimi noviny|rannie noviny|ranné noviny|noviny TV|hlavné správy|"
        u"hlavní zprávy|studio ČT24|otázky václava moravce|reportéři čt", u"cs sk"},
    Row{kNews, kTitleStart, u"noviny|regiony|spravodajstvo|aktuálne", u"cs sk"},
    Row{kEntertainment, kKind,
        u"zábava|zábavný|zábavný pořad|zábavná relácia|zábavní|soutěž|súťaž|kvíz|talk show|talkshow|"
        u"reality show|show|šou|reality|magazín|kulinářský|kuchařský|pořad o vaření|relácia o varení|"
        u"zábavná show|zábavná šou|soutěžní pořad|súťažná relácia|soutěžní|súťažný|estráda|"
        u"silvestrovský pořad|hobby|životní styl|životný štýl|kabaret|divadlo|divadelní představení|"
        u"vzťahová relácia|docusoap|doku soap|dokusoap|lifestyle|motoristický magazín|mix", u"cs sk"},
    Row{kEntertainment, kText,
        u"talk show|talkshow|reality show|zábavná show|zábavný pořad|zábavná relácia|soutěžní pořad|"
        u"súťažná šou|súťažná show|vědomostní soutěž|vedomostná súťaž|kuchařská show|kuchárska show|"
        u"kulinářská show|televizní soutěž|zábavná šou|kulinárska show|reality šou|kvízová show|"
        u"taneční show|tanečná show|talentová show|talentová šou|motoristický magazín|"
        u"lifestylový magazín|magazín o|doku-reality|reality seriál|realitný seriál|docusoap|"
        u"vzťahová show|vedomostná šou|soutěžní show|nejlepší kuchař|kuchaři soutěží|zábavného pořadu|"
        u"skryté kamery|skrytou kamerou|pořad o vaření|relácia o bývaní|pořad o bydlení|"
        u"súťažná kuchárska|zábavná súťaž", u"cs sk"},
    Row{kMusic, kKind,
        u"hudba|hudební|hudobný|koncert|hudební pořad|hudobný program|opera|balet|opereta|videoklipy|"
        u"hitparáda|dechovka|muzikál|folklór|hudobná relácia|hudobno-zábavný|písničky|pesničky|"
        u"vážná hudba|záznam koncertu", u"cs sk"},
    Row{kMusic, kText,
        u"záznam koncertu|hudební pořad|hudobný program|hudební klipy|videoklipy|hudobné klipy|"
        u"hudební videoklipy|hudobná relácia|koncert skupiny|hitparáda|hudební show|hudobná šou|"
        u"písničky na přání|pesničiek|najväčšie hity|největší hity|dechová hudba|dechovková|"
        u"slávnostný koncert|galakoncert|hity|koncertní záznam", u"cs sk"},
    Row{kSports, kName,
        u"sportovní|športový|fotbal|futbal|hokej|tenis|basketbal|házená|hádzaná|motorismus|cyklistika|"
        u"lyžování|lyžovanie|biatlon|sportovní magazín|šport|sportovní přenos|atletika|volejbal|"
        u"zimní sporty"},
    Row{kSports, kText,
        u"sportovní zpravodajství|športové spravodajstvo|sportovní magazín|športový magazín|"
        u"přímý přenos utkání|priamy prenos zápasu|fotbalová liga|futbalová liga|extraliga|zápas|"
        u"utkání|fotbalový magazín|futbalový magazín|priamy prenos z|magazín o fotbale|kvalifikace na|"
        u"záznam zápasu|priamy prenos stretnutia|záznam z pretekov|sportovní události", u"cs sk"},
    Row{kNothing, kText,
        u"teleshopping|telenákup|tento kanál momentálne nevysiela|noční tabule|program nevysiela|"
        u"konec vysílání|koniec vysielania|nevysiela"},
    Row{kNothing, kName, u"teleshopping|telenákup|reklama|náboženský"},
    Row{kNation, kLead,
        u"americk*|francouzsk*|francúzsk*|britsk*|anglick*|německ*|nemeck*|česk*|slovensk*|"
        u"československ*|italsk*|taliansk*|španělsk*|španielsk*|kanadsk*|australsk*|austrálsk*|polsk*|"
        u"poľsk*|maďarsk*|rakousk*|rakúsk*|švédsk*|dánsk*|norsk*|tureck*|rusk*|ruský|japonsk*|původní|"
        u"pôvodný|pôvodná|koprodukčn*|kultov*", u"cs sk"},
    Row{kPresented, kText,
        u"zpovídá|spovedá|pořad|pořadu|relácia|relácie|relácii|moderátor*|moderuje|moderuj*|soutěžící*|"
        u"súťažiac*|hosté|hostia|hostem|hosťom|rozhovor*|soutěž*|súťaž*|porota|kuchař*|kuchár*|recept*|"
        u"odborníci|odborník*|představí|predstaví|majitelé|renovuj*|designér*|dizajnér*|"
        u"skutečné příběhy|skutočné príbehy|skutecne pribehy|zákazní*|nevěst*|nevest*|dražb*|dražeb*|"
        u"seznamte se|magazín*|reportér*|publicist*|dokument*", u"cs sk"},
    // Polish
    Row{kFiction, kName, u"sensacyjny|akcja|wojenny|obyczajowy|familijny|sensacja"},
    Row{kDocumentaries, kName, u"przyrodniczy|historyczny|edukacyjny|popularnonaukowy|kultura|nauka"},
    Row{kEntertainment, kName, u"kulinaria|kulinarny|paradokumentalny|zdrowie|moda|styl życia"},
    Row{kSeries, kKind,
        u"serial|serial kryminalny|serial obyczajowy|serial komediowy|serial fabularny|"
        u"serial sensacyjny|telenowela|serial dramatyczny|serial animowany dla dorosłych|"
        u"serial paradokumentalny|serial fantastyczny|serial przygodowy|serial historyczny|serial sf|"
        u"serial komedia|opera mydlana|miniserial|serial turecki|serial medyczny|serial tv|sitcom|"
        u"paradokument", u"pl"},
    Row{kSeries, kText,
        u"serial kryminalny|serial obyczajowy|serial komediowy|telenowela|serial fabularny|"
        u"serial paradokumentalny"},
    Row{kMovies, kKind,
        u"film|film fabularny|film sensacyjny|film akcji|film przygodowy|film obyczajowy|film sf|"
        u"film familijny|film wojenny|film kostiumowy|film biograficzny|film krótkometrażowy|film tv|"
        u"film telewizyjny", u"pl"},
    Row{kComedy, kKind,
        u"komedia|komedia romantyczna|film komediowy|komedia obyczajowa|komedia kryminalna|"
        u"komediodramat", u"pl"},
    Row{kDrama, kKind, u"dramat|dramat obyczajowy|melodramat|film obyczajowy", u"pl"},
    Row{kThriller, kKind, u"film sensacyjny|dreszczowiec"},
    Row{kCrime, kKind, u"film kryminalny|kryminał|film gangsterski"},
    Row{kHorror, kKind, u"film grozy"},
    Row{kSF, kKind, u"film science fiction"},
    Row{kForChildren, kKind,
        u"dla dzieci|serial animowany|film animowany|bajka|program dla dzieci|serial dla dzieci|"
        u"film dla dzieci|dobranocka|bajki|dzieci|dla dzieci i młodzieży|magazyn dla dzieci|animacja|"
        u"serial dla młodzieży|dla najmłodszych|animowany", u"pl"},
    Row{kDocumentaries, kName,
        u"film dokumentalny|serial dokumentalny|dokument|reportaż|dokumentalny|program edukacyjny|"
        u"cykl dokumentalny|magazyn reporterów|program popularnonaukowy|przyroda|cykl reportaży|"
        u"program krajoznawczy|felieton|edukacja|cykl przyrodniczy|program przyrodniczy|"
        u"program historyczny|podróże|magazyn kulturalny", u"pl"},
    Row{kDocumentaries, kText, u"film dokumentalny|serial dokumentalny|cykl dokumentalny"},
    Row{kNews, kName,
        u"program informacyjny|wiadomości|informacje|prognoza pogody|pogoda|publicystyka|"
        u"program publicystyczny|magazyn informacyjny|serwis informacyjny|program ekonomiczny|"
        u"magazyn śledczy|debata|rozmowa|informacyjny", u"pl"},
    Row{kNews, kTitle,
        u"wiadomości|pogoda|prognoza pogody|fakty|teleexpress|panorama|19.30|serwis info|wydarzenia", u"pl"},
    Row{kEntertainment, kKind,
        u"rozrywka|program rozrywkowy|teleturniej|talk-show|talk show|reality show|magazyn kulinarny|"
        u"program kulinarny|kabaret|widowisko rozrywkowe|program poradnikowy|poradnik|"
        u"magazyn poradnikowy|magazyn lifestylowy|program lifestylowy|magazyn motoryzacyjny|magazyn|"
        u"widowisko|magazyn wędkarski|quiz show|program rozrywkowo-muzyczny|program poranny|"
        u"motoryzacja|docu-soap|rozrywkowy", u"pl"},
    Row{kMusic, kKind,
        u"muzyka|program muzyczny|koncert|teledyski|muzyczny|koncert życzeń|magazyn muzyczny|festiwal|"
        u"muzyka poważna|lista przebojów", u"pl"},
    Row{kSports, kName,
        u"piłka nożna|magazyn sportowy|program sportowy|sportowy|siatkówka|koszykówka|żużel|"
        u"skoki narciarskie|lekkoatletyka|kolarstwo|sporty motorowe|sporty walki|piłka ręczna|"
        u"sporty zimowe|magazyn piłkarski|wiadomości sportowe"},
    Row{kNothing, kName, u"telezakupy|reklama|program religijny|zakończenie programu|msza święta"},
    Row{kNation, kLead, u"polsk*|amerykańsk*|angielsk*|niemieck*|francusk*|turecki", u"pl"},
    // Croatian, Serbian, Bosnian, Slovene
    Row{kFiction, kName, u"povijesni|psihološki|misterija|ratna drama|mjuzikl|istorijski|misterij"},
    Row{kDocumentaries, kName,
        u"kulturni|putovanja|prirodoslovni|povijesni dokumentarni|edukativni program|lov i ribolov"},
    Row{kSports, kName, u"boks|automobilizam|moto sport|borilačke vještine|vodeni sportovi"},
    Row{kEntertainment, kName, u"kulinarika|resničnostni šov|rijaliti|moda|zdravlje|kuhanje"},
    Row{kAdventure, kName, u"pustolovski"},
    Row{kForChildren, kName, u"teen|za mlade|mladi"},
    Row{kSeries, kKind,
        u"serija|serije|seriju|TV serija|humoristična serija|dramska serija|kriminalistička serija|"
        u"igrana serija|telenovela|sapunica|nadaljevanka|nanizanka|mini serija|mini-serija|"
        u"komedija serija|humoristička serija|serijski film|turska serija|domaća serija|strana serija|"
        u"serijski program|serijal igrani|kriminalistična nadaljevanka|serijski|dramska nadaljevanka|"
        u"nadaljevanke|serijski sitcom", u"hr sr bs sl me mk"},
    Row{kSeries, kText,
        u"TV serija|turska serija|humoristička serija|humoristična serija|dramska serija|"
        u"kriminalistička serija|nanizanka|nadaljevanka|telenovela|ova serija|dramske serije|"
        u"domaća serija|igrana serija|serija prati|serija koja prati|serija o|radnja serije|"
        u"kriminalistične nanizanke|komična serija|romantična serija|popularna serija", u"hr sr bs sl me"},
    Row{kMovies, kKind,
        u"film|igrani film|filmovi|igrani|TV film|dugometražni film|kratki film|strani film|"
        u"domaći film|celovečerni film|akcijski film|film akcija|kinematografija|ratni|ratni film|"
        u"biografski", u"hr sr bs sl"},
    Row{kMovies, kText,
        u"igrani film|domaći film|akcioni film|akcijski film|film prikazuje|film prati|film o|"
        u"film govori|ovaj film|radnja filma|romantični film|američki film|film je|dramski film|"
        u"ratni film|u filmu|akcijski triler|celovečerni film", u"hr sr bs sl"},
    Row{kComedy, kKind,
        u"komedija|romantična komedija|filmska komedija|humoristički film|romantična komedija film|"
        u"dramska komedija", u"hr sr bs sl"},
    Row{kDrama, kKind,
        u"drama|romantična drama|povijesna drama|ljubavna drama|ljubavni film|romansa", u"hr sr bs sl"},
    Row{kThriller, kKind, u"triler|psihološki triler|srhljivka|kriminalistički triler", u"hr sr bs sl"},
    Row{kHorror, kKind, u"horor|grozljivka"},
    Row{kWestern, kKind, u"vestern"},
    Row{kSF, kName, u"znanstvena fantastika|naučna fantastika|znanstvenofantastični|SF film"},
    Row{kAdventure, kName, u"avantura|pustolovni|avanturistički|pustolovni film|pustolovščina"},
    Row{kCrime, kName, u"kriminalistički|krimić|krimi|kriminalistična|kriminalistični"},
    Row{kFiction, kName, u"akcija|akcijski|romantika|romantični|fantastika|akcijska avantura|obiteljski"},
    Row{kForChildren, kKind,
        u"crtani film|crtani|crtane serije|animirani film|animirana serija|dječji|dječja serija|"
        u"dječji program|dečiji program|dečji|dečiji|za djecu|za decu|animirani|za otroke|otroški|"
        u"otroški program|otroška oddaja|risanka|risani film|risana serija|dječji i mladi|djeca|deca|"
        u"crtić|crtići|dječja emisija|animirani porodični|risanke|program za djecu|mladinski|"
        u"obrazovni dječji|animirana nanizanka|lutkovna predstava|lutke|djeca i mladi|dečija emisija|"
        u"risana nanizanka"},
    Row{kForChildren, kText,
        u"crtani film|animirani film|animirana serija|animirane serije|crtane serije|crtanog filma|"
        u"animiranoj seriji|animirani|najmlađima|dječja serija|dječja emisija|dečija emisija|"
        u"za najmlađe|za djecu|za decu|dječiji program|dječija emisija|risana serija|risanka|"
        u"otroška serija|crtana serija|emisija za djecu|za otroke|za mališane"},
    Row{kDocumentaries, kName,
        u"dokumentarni|dokumentarna|dokumentarni film|dokumentarna serija|dokumentarni program|"
        u"dokumentarac|dokumentarci|putopis|reportaža|reportaže|dokumentarna oddaja|"
        u"dokumentarni serijal|obrazovni|obrazovni program|izobraževalni|povijest|istorija|priroda|"
        u"znanost|nauka|naučni program|znanstveni|kultura|putopisni|dokumentarno|dokumentarec|"
        u"dokumentarna drama|potopis|kulturni program|umetnost|umjetnost|obrazovanje|edukativni|"
        u"izobraževalna oddaja|poljudnoznanstvena|dokumentarna nanizanka|dokumentarni feljton|"
        u"kulturna emisija|zgodovina|narava", u"hr sr bs sl me"},
    Row{kDocumentaries, kName,
        u"dokumentarni|dokumentarna|dokumentarni film|dokumentarna serija|dokumentarni program|"
        u"umetnost|umjetnost|reportaža|kultura|gospodarstvo|znanost"},
    Row{kDocumentaries, kText,
        u"dokumentarni|dokumentarna|dokumentarac|dokumentarnog|dokumentarnu emisiju|dokumentarne|"
        u"dokumentarnom|dokumentarec|putopisna emisija|edukativna emisija|naučno-popularna|"
        u"edukativno-obrazovnog|edukativnog karaktera|obrazovnog karaktera|istorijskim temama|"
        u"putopisni serijal|emisija o kulturi|obrazovna emisija", u"hr sr bs sl me"},
    Row{kNews, kName,
        u"vijesti|vesti|informativni|informativni program|informativna emisija|dnevnik|"
        u"vremenska prognoza|prognoza|informativno|novice|poročila|aktualno|informativna oddaja|"
        u"politika|politički|politički magazin|informativno-politički|gospodarstvo|vremenska napoved|"
        u"intervju|aktualnosti|info|novosti|politični pogovor|debata|informativni magazin|aktuelno|"
        u"novinarski program|rasprava", u"hr sr bs sl me"},
    Row{kNews, kText,
        u"informativna emisija|informativnu emisiju|informativne emisije|informativnih emisija|"
        u"najvažnije vijesti|najnovije vijesti|kratke vijesti|pregled vijesti|aktuelnim vijestima|"
        u"aktuelnim vestima|najnovije vesti|vremenska prognoza|centralna informativna|dnevna hronika|"
        u"novosti iz saobraćaja|političkim temama|informativni program|političke teme|"
        u"najvažnijih vesti|glavne vijesti|pregled najvažnijih događaja|dnevnoinformativna|"
        u"skupštine uživo|plenarnih sjednica|vijestima|vremenskoj prognozi|vremensku prognozu|"
        u"aktuelnih vijesti|vijesti iz svijeta|vijesti iz zemlje|aktuelnim temama|aktuelnosti iz|"
        u"aktuelne teme|informativnog karaktera|udarne vijesti|servisne informacije|stanje na putevima", u"hr sr bs sl me"},
    Row{kNews, kTitle,
        u"vijesti|vesti|dnevnik|vremenska prognoza|prognoza|poročila|novice|hronika|saobraćaj|info|"
        u"pregled dana|infobiro|parlamentarni kanal", u"hr sr bs sl me mk"},
    Row{kNews, kName | kWholeTitle, u"vrijeme|vreme", u"hr sr bs sl me mk"},
    Row{kEntertainment, kKind,
        u"zabava|zabavni|zabavni program|zabavna emisija|kviz|talk show|talk-show|reality|reality show|"
        u"magazin|kulinarska emisija|kulinarski show|kulinarstvo|lifestyle|zabavno|show|kolažni|"
        u"emisija o kuhanju|razvedrilna oddaja|kuharska oddaja|kuharski|razvedrilni|razvedrilo|"
        u"pogovorna oddaja|zabavno-glazbena|satira|zabavna|igra|kvizovi|stil života|životni stil|humor|"
        u"satirični|mozaična emisija|jutarnji program|kontakt program|kontaktna oddaja", u"hr sr bs sl me"},
    Row{kEntertainment, kName, u"zabava|zabavni|zabavni program|zabavna emisija|razvedrilna oddaja"},
    Row{kEntertainment, kText,
        u"talk show|reality show|kviz|kvizu|kulinarska emisija|kulinarski show|zabavna emisija|"
        u"zabavnog programa|zabavni program|magazin o|kulinarski|emisija o modi|kuharska oddaja|"
        u"razvedrilna oddaja|rijaliti|humoristička emisija|talk-show|poljoprivredna emisija|"
        u"kolažna emisija|jutarnji program|jutarnjem programu|zabavno-muzička|kontakt program|"
        u"emisija o automobilima|automobilizma|auto magazin|lifestyle emisija|šou program|talent show|"
        u"životnim stilovima|estrade i show", u"hr sr bs sl me"},
    Row{kPresented, kText,
        u"emisij*|oddaj*|voditelj*|gost|gosti|gostima|gostu*|razgovara*|sagovorni*|reportaž*|saznajte|"
        u"učesni*|takmičar*|natjecatelj*", u"hr sr bs sl me"},
    Row{kMusic, kKind,
        u"glazba|muzika|glazbeni|muzički|glazbena emisija|muzička emisija|muzički program|koncert|"
        u"glasba|glasbena oddaja|spotovi|opera|balet|glazbeni program|glasbeni|ozbiljna glazba|"
        u"narodna muzika|muzički spotovi|folklor|klasična glazba", u"hr sr bs sl me"},
    Row{kMusic, kText,
        u"muzički program|glazbeni program|muzička emisija|glazbena emisija|muzički spotovi|"
        u"glasbena oddaja|snimka koncerta|muzičkih spotova|raznovrsne muzike|muzičkom|narodne muzike|"
        u"koncert|muzičke numere|muzički miks|glazbenih spotova|zabavne muzike", u"hr sr bs sl me"},
    Row{kSports, kName,
        u"nogomet|fudbal|košarka|rukomet|tenis|odbojka|sportski|sportski program|športni program|"
        u"sportska emisija|športna oddaja|hokej|formula 1|atletika|smučanje|skijanje|vaterpolo|"
        u"sportske vijesti|borilački sportovi|auto-moto"},
    Row{kSports, kText,
        u"sportskih dešavanja|sportska emisija|sportskih dješavanja|sportske vijesti|svijeta sporta|"
        u"sportski magazin|fudbalska utakmica|nogometna utakmica|prijenos utakmice|prenos utakmice|"
        u"sportskih događaja|sportski pregled|športna oddaja", u"hr sr bs sl me"},
    Row{kNothing, kText,
        u"tv prodaja|tv prodaju|televizijsku prodaju|oglasni blok|marketing blok|nema informacija|"
        u"nema podataka|reklamni blok|telekupovina|telekupovinu|kupovinu iz fotelje|marketing", u"hr sr bs sl me"},
    Row{kNothing, kName,
        u"tv prodaja|reklame|religijski|religija|vjerski|vjerski program|verska oddaja|oglasi|"
        u"tv-prodaja"},
    Row{kNation, kLead,
        u"američk*|hrvatsk*|srpsk*|domać*|turska|turski|britansk*|francusk*|njemačk*|nemačk*|"
        u"italijansk*|talijansk*|jugoslovensk*|španjolsk*|ruski|ruska|ameriška|ameriški|slovensk*", u"hr sr bs sl me"},
};
// clang-format on

} // namespace

std::span<const Row> slavicRows() {
    return kRows;
}

} // namespace guide::genres
