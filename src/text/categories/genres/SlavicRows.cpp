#include "text/categories/genres/GenreRow.h"

#include <array>

namespace guide::genres {

namespace {

// clang-format off
constexpr std::array kRows{
    // Czech and Slovak
    Row{kSeries, kKind, u"seriál|seriálu|seriály|krimiseriál|sitcom|telenovela|telenovely|minisérie|minisérie|miniséria|sitkom|mýdlová opera|séria|série|situační komedie|komediální seriál|dramatický seriál|kriminální seriál|kriminálny seriál|krimi seriál|televizní seriál|televízny seriál|rodinný seriál|povídkový seriál|cyklus televizních her|nekonečný seriál", u"cs sk"},
    Row{kSeries, kText, u"krimiseriál|kriminální seriál|kriminálny seriál|komediální seriál|komediálny seriál|televizní seriál|televízny seriál|rodinný seriál|americký seriál|český seriál|slovenský seriál|dramatický seriál|komediálny akčný seriál|německý seriál|nemecký seriál|turecký seriál|francouzský seriál|francúzsky seriál|historický seriál|italský seriál|britský seriál|detektivní seriál|detektívny seriál|krimi seriál|seriál USA|romantický seriál|akční seriál|akčný seriál|sci-fi seriál|úspěšný seriál|lékařský seriál|lekársky seriál|dramatická minisérie|seriál z lékařského prostředí"},
    Row{kMovies, kKind, u"film|celovečerní film|celovečerný film|televizní film|televízny film|filmový|snímek|filmy|krátký film|krátkometrážní film", u"cs sk"},
    Row{kMovies, kText, u"americký film|český film|slovenský film|francouzský film|francúzsky film|italský film|taliansky film|britský film|anglický film|německý film|nemecký film|film USA|akční film|akčný film|romantický film|rodinný film|dobrodružný film|životopisný film|hraný film|vojnový film|válečný film|sci-fi film|historický film|hudební film|televizní film|televízny film|animák film|hororový film"},
    Row{kComedy, kKind, u"komedie|komédia|filmová komedie|filmová komédia|hudební komedie|hudobná komédia|tragikomedie|tragikomédia|krimikomedie|veselohra", u"cs sk"},
    Row{kMovies | kComedy, kText, u"americká komedie|hudební komedie|hudobná komédia|americká komédia|česká komedie|slovenská komédia|francouzská komedie|francúzska komédia|italská komedie|talianska komédia|romantická komedie|romantická komédia|akční komedie|akčná komédia|hořká komedie|kriminální komedie|kriminálna komédia|rodinná komedie|rodinná komédia|krimikomedie|americké komédie"},
    Row{kDrama, kKind, u"drama|dráma|psychologické drama|melodrama|životopisný|válečný|vojnový", u"cs sk"},
    Row{kMovies | kDrama, kText, u"americké drama|české drama|psychologické drama|historické drama|válečné drama|životopisné drama|americká dráma|vojnová dráma|romantické drama|sportovní drama"},
    Row{kThriller, kKind, u"thriller|akční thriller|psychologický thriller", u"cs sk"},
    Row{kMovies | kThriller, kText, u"americký thriller|akční thriller|akčný thriller|psychologický thriller|kriminální thriller|kriminálny thriller"},
    Row{kHorror, kKind, u"horor", u"cs sk"},
    Row{kMovies | kCrime, kText, u"kriminální film|kriminálny film|detektivní film|detektívny film|kriminální příběh|kriminální drama"},
    Row{kMovies | kAdventure, kText, u"dobrodružný film|dobrodružné drama"},
    Row{kWestern, kKind, u"western"},
    Row{kCrime, kKind, u"krimi|kriminální|kriminálny|detektivní|detektívka|detektivka|detektívny", u"cs sk"},
    Row{kComedy, kName, u"komedie|komédia|komediální|komediálny"},
    Row{kAdventure, kName, u"dobrodružný|dobrodružné|dobrodružství|dobrodružstvo"},
    Row{kFiction, kName, u"akční|akčný|romantický|akce|romantika"},
    Row{kForChildren, kKind, u"pro děti|pre deti|dětský|detský|dětský pořad|detský program|pohádka|rozprávka|pohádky|rozprávky|animovaný|kreslený|večerníček|večerníčky|animovaný film|pro děti a mládež|pre deti a mládež|děti|deti|animák|dětem|pre najmenších|kreslený film|animované|animácia|dětské|detské|loutkový|bábková rozprávka|mládež"},
    Row{kForChildren, kText, u"pro děti|pre deti|pro nejmenší|pre najmenších|pre najmenšie deti|dětský pořad|detský seriál|detský program|dětský seriál|filmová pohádka|filmová rozprávka|animovaný rodinný|rodinný animovaný|televízna rozprávka|televizní pohádka|klasická pohádka|výpravná pohádka|animovaná pohádka|animovaná rozprávka|detský film|dětský film|večerníček|pro předškoláky|pohádka o|rozprávka o|pre malých|detská relácia|výpravné pohádky|filmovej rozprávky"},
    Row{kAnimation, kText, u"animovaný seriál|kreslený seriál|animovaný film|animovaného seriálu|animovaná komedie|animovaná série|kresleného seriálu|animovaná komédia|animovaný príbeh"},
    Row{kDocumentaries, kName, u"dokument|dokumentární|dokumentárny|dokumentární film|dokumentárny film|dokumentární seriál|dokumentárny seriál|dokumentární cyklus|dokumentárny cyklus|cestopis|reportáž|vzdělávací|vzdelávací|přírodopisný|prírodopisný|dokumenty|publicistika|historie|história|příroda|príroda|cestovatelský|cestopisný|dokumentární série|dokudrama|dokureality dokument|vzdelávanie|věda|veda|naučný|náučný|kultura|kultúra|umění|umenie", u"cs sk"},
    Row{kDocumentaries, kText, u"dokument o|dokument|dokumentární|dokumentárny|dokumentárna|dokumentární film|dokumentárny film|dokumentární seriál|dokumentárny seriál|dokumentární cyklus|dokumentárny cyklus|dokumentární série|dokumentárny magazín|přírodopisný cyklus|dokumentu|cestopisný seriál|cestopisný cyklus|dokumentárneho|dokumentárního|dokumentaristé|dokumentární minisérie|cestopis", u"cs sk"},
    Row{kNews, kName, u"zprávy|správy|zpravodajství|spravodajstvo|počasí|počasie|zpravodajský|spravodajský|politika|aktuality|diskuse|diskusia|politická diskuse|politická diskusia|diskusní pořad|události|publicistický pořad|předpověď počasí|predpoveď počasia|publicistický", u"cs sk"},
    Row{kNews, kText, u"zpravodajství|spravodajstvo|zpravodajská relace|spravodajská relácia|zpravodajský pořad|spravodajský program|předpověď počasí|predpoveď počasia|hlavní zprávy|hlavné správy|hlavná spravodajská|aktuální zprávy|aktuálne správy|nejnovější zprávy|najnovšie správy|politická diskuse|politická diskusia|diskusní pořad|diskusná relácia|zpravodajství z|přehled zpráv|prehľad správ|nejdůležitější události dne|aktuálne dianie|publicistický magazín|publicistický pořad|publicistická relácia|aktuální dění|udalosti dňa|udalosti z domova|souhrn zpráv|súhrn správ|souhrn nejdůležitějších|správy z domova|zprávy z domova|zprávy z regionů"},
    Row{kNews, kTitle, u"zprávy|správy|zpravodajství|počasí|počasie|události|televizní noviny|televízne noviny|správičky|krimi zprávy|krimi noviny|rannie noviny|ranné noviny|noviny TV|hlavné správy|hlavní zprávy|studio ČT24|otázky václava moravce|reportéři čt", u"cs sk"},
    Row{kNews, kTitleStart, u"noviny|regiony|spravodajstvo|aktuálne", u"cs sk"},
    Row{kEntertainment, kKind, u"zábava|zábavný|zábavný pořad|zábavná relácia|zábavní|soutěž|súťaž|kvíz|talk show|talkshow|reality show|show|šou|reality|magazín|kulinářský|kuchařský|pořad o vaření|relácia o varení|zábavná show|zábavná šou|soutěžní pořad|súťažná relácia|soutěžní|súťažný|estráda|silvestrovský pořad|hobby|životní styl|životný štýl|kabaret|divadlo|divadelní představení|vzťahová relácia|docusoap|doku soap|dokusoap|lifestyle|motoristický magazín|mix", u"cs sk"},
    Row{kEntertainment, kText, u"talk show|talkshow|reality show|zábavná show|zábavný pořad|zábavná relácia|soutěžní pořad|súťažná šou|súťažná show|vědomostní soutěž|vedomostná súťaž|kuchařská show|kuchárska show|kulinářská show|televizní soutěž|zábavná šou|kulinárska show|reality šou|kvízová show|taneční show|tanečná show|talentová show|talentová šou|motoristický magazín|lifestylový magazín|magazín o|doku-reality|reality seriál|realitný seriál|docusoap|vzťahová show|vedomostná šou|soutěžní show|nejlepší kuchař|kuchaři soutěží|zábavného pořadu|skryté kamery|skrytou kamerou|pořad o vaření|relácia o bývaní|pořad o bydlení|súťažná kuchárska|zábavná súťaž", u"cs sk"},
    Row{kMusic, kKind, u"hudba|hudební|hudobný|koncert|hudební pořad|hudobný program|opera|balet|opereta|videoklipy|hitparáda|dechovka|muzikál|folklór|hudobná relácia|hudobno-zábavný|písničky|pesničky|vážná hudba|záznam koncertu", u"cs sk"},
    Row{kMusic, kText, u"záznam koncertu|hudební pořad|hudobný program|hudební klipy|videoklipy|hudobné klipy|hudební videoklipy|hudobná relácia|koncert skupiny|hitparáda|hudební show|hudobná šou|písničky na přání|pesničiek|najväčšie hity|největší hity|dechová hudba|dechovková|slávnostný koncert|galakoncert|hity|koncertní záznam", u"cs sk"},
    Row{kSports, kName, u"sportovní|športový|fotbal|futbal|hokej|tenis|basketbal|házená|hádzaná|motorismus|cyklistika|lyžování|lyžovanie|biatlon|sportovní magazín|šport|sportovní přenos|atletika|volejbal|zimní sporty"},
    Row{kSports, kText, u"sportovní zpravodajství|športové spravodajstvo|sportovní magazín|športový magazín|přímý přenos utkání|priamy prenos zápasu|fotbalová liga|futbalová liga|extraliga|zápas|utkání|fotbalový magazín|futbalový magazín|priamy prenos z|magazín o fotbale|kvalifikace na|záznam zápasu|priamy prenos stretnutia|záznam z pretekov|sportovní události", u"cs sk"},
    Row{kNothing, kText, u"teleshopping|telenákup|tento kanál momentálne nevysiela|noční tabule|program nevysiela|konec vysílání|koniec vysielania|nevysiela"},
    Row{kNothing, kName, u"teleshopping|telenákup|reklama|náboženský"},
    Row{kNation, kLead, u"americk*|francouzsk*|francúzsk*|britsk*|anglick*|německ*|nemeck*|česk*|slovensk*|československ*|italsk*|taliansk*|španělsk*|španielsk*|kanadsk*|australsk*|austrálsk*|polsk*|poľsk*|maďarsk*|rakousk*|rakúsk*|švédsk*|dánsk*|norsk*|tureck*|rusk*|ruský|japonsk*|původní|pôvodný|pôvodná|koprodukčn*|kultov*", u"cs sk"},
    Row{kPresented, kText, u"pořad|pořadu|relácia|relácie|relácii|moderátor*|moderuje|moderuj*|soutěžící*|súťažiac*|hosté|hostia|hostem|hosťom|rozhovor*|soutěž*|súťaž*|porota|kuchař*|kuchár*|recept*|odborníci|odborník*|představí|predstaví|majitelé|renovuj*|designér*|dizajnér*|skutečné příběhy|skutočné príbehy|skutecne pribehy|zákazní*|nevěst*|nevest*|dražb*|dražeb*|seznamte se|magazín*|reportér*|publicist*|dokument*", u"cs sk"},
    // Polish
    Row{kSeries, kKind, u"serial|serial kryminalny|serial obyczajowy|serial komediowy|serial fabularny|serial sensacyjny|telenowela|serial dramatyczny|serial animowany dla dorosłych|serial paradokumentalny|serial fantastyczny|serial przygodowy|serial historyczny|serial sf|serial komedia|opera mydlana|miniserial|serial turecki|serial medyczny|serial tv|sitcom|paradokument", u"pl"},
    Row{kSeries, kText, u"serial kryminalny|serial obyczajowy|serial komediowy|telenowela|serial fabularny|serial paradokumentalny"},
    Row{kMovies, kKind, u"film|film fabularny|film sensacyjny|film akcji|film przygodowy|film obyczajowy|film sf|film familijny|film wojenny|film kostiumowy|film biograficzny|film krótkometrażowy|film tv|film telewizyjny", u"pl"},
    Row{kComedy, kKind, u"komedia|komedia romantyczna|film komediowy|komedia obyczajowa|komedia kryminalna|komediodramat", u"pl"},
    Row{kDrama, kKind, u"dramat|dramat obyczajowy|melodramat|film obyczajowy", u"pl"},
    Row{kThriller, kKind, u"film sensacyjny|dreszczowiec"},
    Row{kCrime, kKind, u"film kryminalny|kryminał|film gangsterski"},
    Row{kHorror, kKind, u"film grozy"},
    Row{kSF, kKind, u"film science fiction"},
    Row{kForChildren, kKind, u"dla dzieci|serial animowany|film animowany|bajka|program dla dzieci|serial dla dzieci|film dla dzieci|dobranocka|bajki|dzieci|dla dzieci i młodzieży|magazyn dla dzieci|animacja|serial dla młodzieży|dla najmłodszych|animowany", u"pl"},
    Row{kDocumentaries, kName, u"film dokumentalny|serial dokumentalny|dokument|reportaż|dokumentalny|program edukacyjny|cykl dokumentalny|magazyn reporterów|program popularnonaukowy|przyroda|cykl reportaży|program krajoznawczy|felieton|edukacja|cykl przyrodniczy|program przyrodniczy|program historyczny|podróże|magazyn kulturalny", u"pl"},
    Row{kDocumentaries, kText, u"film dokumentalny|serial dokumentalny|cykl dokumentalny"},
    Row{kNews, kName, u"program informacyjny|wiadomości|informacje|prognoza pogody|pogoda|publicystyka|program publicystyczny|magazyn informacyjny|serwis informacyjny|program ekonomiczny|magazyn śledczy|debata|rozmowa|informacyjny", u"pl"},
    Row{kNews, kTitle, u"wiadomości|pogoda|prognoza pogody|fakty|teleexpress|panorama|19.30|serwis info|wydarzenia", u"pl"},
    Row{kEntertainment, kKind, u"rozrywka|program rozrywkowy|teleturniej|talk-show|talk show|reality show|magazyn kulinarny|program kulinarny|kabaret|widowisko rozrywkowe|program poradnikowy|poradnik|magazyn poradnikowy|magazyn lifestylowy|program lifestylowy|magazyn motoryzacyjny|magazyn|widowisko|magazyn wędkarski|quiz show|program rozrywkowo-muzyczny|program poranny|motoryzacja|docu-soap|rozrywkowy", u"pl"},
    Row{kMusic, kKind, u"muzyka|program muzyczny|koncert|teledyski|muzyczny|koncert życzeń|magazyn muzyczny|festiwal|muzyka poważna|lista przebojów", u"pl"},
    Row{kSports, kName, u"piłka nożna|magazyn sportowy|program sportowy|sportowy|siatkówka|koszykówka|żużel|skoki narciarskie|lekkoatletyka|kolarstwo|sporty motorowe|sporty walki|piłka ręczna|sporty zimowe|magazyn piłkarski|wiadomości sportowe"},
    Row{kNothing, kName, u"telezakupy|reklama|program religijny|zakończenie programu|msza święta"},
    Row{kNation, kLead, u"polsk*|amerykańsk*|angielsk*|niemieck*|francusk*|turecki", u"pl"},
    // Croatian, Serbian, Bosnian, Slovene
    Row{kSeries, kKind, u"serija|serije|seriju|TV serija|humoristična serija|dramska serija|kriminalistička serija|igrana serija|telenovela|sapunica|nadaljevanka|nanizanka|mini serija|mini-serija|komedija serija|humoristička serija|serijski film|turska serija|domaća serija|strana serija|serijski program|serijal igrani|kriminalistična nadaljevanka|serijski|dramska nadaljevanka|nadaljevanke|serijski sitcom", u"hr sr bs sl me mk"},
    Row{kSeries, kText, u"TV serija|turska serija|humoristička serija|humoristična serija|dramska serija|kriminalistička serija|nanizanka|nadaljevanka|telenovela|ova serija|dramske serije|domaća serija|igrana serija|serija prati|serija koja prati|serija o|radnja serije|kriminalistične nanizanke|komična serija|romantična serija|popularna serija", u"hr sr bs sl me"},
    Row{kMovies, kKind, u"film|igrani film|filmovi|igrani|TV film|dugometražni film|kratki film|strani film|domaći film|celovečerni film|akcijski film|film akcija|kinematografija|ratni|ratni film|biografski", u"hr sr bs sl"},
    Row{kMovies, kText, u"igrani film|domaći film|akcioni film|akcijski film|film prikazuje|film prati|film o|film govori|ovaj film|radnja filma|romantični film|američki film|film je|dramski film|ratni film|u filmu|akcijski triler|celovečerni film", u"hr sr bs sl"},
    Row{kComedy, kKind, u"komedija|romantična komedija|filmska komedija|humoristički film|romantična komedija film|dramska komedija", u"hr sr bs sl"},
    Row{kDrama, kKind, u"drama|romantična drama|povijesna drama|ljubavna drama|ljubavni film|romansa", u"hr sr bs sl"},
    Row{kThriller, kKind, u"triler|psihološki triler|srhljivka|kriminalistički triler", u"hr sr bs sl"},
    Row{kHorror, kKind, u"horor|grozljivka"},
    Row{kWestern, kKind, u"vestern"},
    Row{kSF, kName, u"znanstvena fantastika|naučna fantastika|znanstvenofantastični|SF film"},
    Row{kAdventure, kName, u"avantura|pustolovni|avanturistički|pustolovni film|pustolovščina"},
    Row{kCrime, kName, u"kriminalistički|krimić|krimi|kriminalistična|kriminalistični"},
    Row{kFiction, kName, u"akcija|akcijski|romantika|romantični|fantastika|akcijska avantura|obiteljski"},
    Row{kForChildren, kKind, u"crtani film|crtani|crtane serije|animirani film|animirana serija|dječji|dječja serija|dječji program|dečiji program|dečji|dečiji|za djecu|za decu|animirani|za otroke|otroški|otroški program|otroška oddaja|risanka|risani film|risana serija|dječji i mladi|djeca|deca|crtić|crtići|dječja emisija|animirani porodični|risanke|program za djecu|mladinski|obrazovni dječji|animirana nanizanka|lutkovna predstava|lutke|djeca i mladi|dečija emisija|risana nanizanka"},
    Row{kForChildren, kText, u"crtani film|animirani film|animirana serija|animirane serije|crtane serije|crtanog filma|animiranoj seriji|animirani|najmlađima|dječja serija|dječja emisija|dečija emisija|za najmlađe|za djecu|za decu|dječiji program|dječija emisija|risana serija|risanka|otroška serija|crtana serija|emisija za djecu|za otroke|za mališane"},
    Row{kDocumentaries, kName, u"dokumentarni|dokumentarna|dokumentarni film|dokumentarna serija|dokumentarni program|dokumentarac|dokumentarci|putopis|reportaža|reportaže|dokumentarna oddaja|dokumentarni serijal|obrazovni|obrazovni program|izobraževalni|povijest|istorija|priroda|znanost|nauka|naučni program|znanstveni|kultura|putopisni|dokumentarno|dokumentarec|dokumentarna drama|potopis|kulturni program|umetnost|umjetnost|obrazovanje|edukativni|izobraževalna oddaja|poljudnoznanstvena|dokumentarna nanizanka|dokumentarni feljton|kulturna emisija|zgodovina|narava", u"hr sr bs sl me"},
    Row{kDocumentaries, kName, u"dokumentarni|dokumentarna|dokumentarni film|dokumentarna serija|dokumentarni program|umetnost|umjetnost|reportaža|kultura|gospodarstvo|znanost"},
    Row{kDocumentaries, kText, u"dokumentarni|dokumentarna|dokumentarac|dokumentarnog|dokumentarnu emisiju|dokumentarne|dokumentarnom|dokumentarec|putopisna emisija|edukativna emisija|naučno-popularna|edukativno-obrazovnog|edukativnog karaktera|obrazovnog karaktera|istorijskim temama|putopisni serijal|emisija o kulturi|obrazovna emisija", u"hr sr bs sl me"},
    Row{kNews, kName, u"vijesti|vesti|informativni|informativni program|informativna emisija|dnevnik|vremenska prognoza|prognoza|informativno|novice|poročila|aktualno|informativna oddaja|politika|politički|politički magazin|informativno-politički|gospodarstvo|vremenska napoved|intervju|aktualnosti|info|novosti|politični pogovor|debata|informativni magazin|aktuelno|novinarski program|rasprava", u"hr sr bs sl me"},
    Row{kNews, kText, u"informativna emisija|informativnu emisiju|informativne emisije|informativnih emisija|najvažnije vijesti|najnovije vijesti|kratke vijesti|pregled vijesti|aktuelnim vijestima|aktuelnim vestima|najnovije vesti|vremenska prognoza|centralna informativna|dnevna hronika|novosti iz saobraćaja|političkim temama|informativni program|političke teme|najvažnijih vesti|glavne vijesti|pregled najvažnijih događaja|dnevnoinformativna|skupštine uživo|plenarnih sjednica|vijestima|vremenskoj prognozi|vremensku prognozu|aktuelnih vijesti|vijesti iz svijeta|vijesti iz zemlje|aktuelnim temama|aktuelnosti iz|aktuelne teme|informativnog karaktera|udarne vijesti|servisne informacije|stanje na putevima", u"hr sr bs sl me"},
    Row{kNews, kTitle, u"vijesti|vesti|dnevnik|vremenska prognoza|prognoza|poročila|novice|hronika|saobraćaj|info|pregled dana|infobiro|parlamentarni kanal", u"hr sr bs sl me mk"},
    Row{kNews, kName | kWholeTitle, u"vrijeme|vreme", u"hr sr bs sl me mk"},
    Row{kEntertainment, kKind, u"zabava|zabavni|zabavni program|zabavna emisija|kviz|talk show|talk-show|reality|reality show|magazin|kulinarska emisija|kulinarski show|kulinarstvo|lifestyle|zabavno|show|kolažni|emisija o kuhanju|razvedrilna oddaja|kuharska oddaja|kuharski|razvedrilni|razvedrilo|pogovorna oddaja|zabavno-glazbena|satira|zabavna|igra|kvizovi|stil života|životni stil|humor|satirični|mozaična emisija|jutarnji program|kontakt program|kontaktna oddaja", u"hr sr bs sl me"},
    Row{kEntertainment, kName, u"zabava|zabavni|zabavni program|zabavna emisija|razvedrilna oddaja"},
    Row{kEntertainment, kText, u"talk show|reality show|kviz|kvizu|kulinarska emisija|kulinarski show|zabavna emisija|zabavnog programa|zabavni program|magazin o|kulinarski|emisija o modi|kuharska oddaja|razvedrilna oddaja|rijaliti|humoristička emisija|talk-show|poljoprivredna emisija|kolažna emisija|jutarnji program|jutarnjem programu|zabavno-muzička|kontakt program|emisija o automobilima|automobilizma|auto magazin|lifestyle emisija|šou program|talent show|životnim stilovima|estrade i show", u"hr sr bs sl me"},
    Row{kPresented, kText, u"emisij*|oddaj*|voditelj*|gost|gosti|gostima|gostu*|razgovara*|sagovorni*|reportaž*|saznajte|učesni*|takmičar*|natjecatelj*", u"hr sr bs sl me"},
    Row{kMusic, kKind, u"glazba|muzika|glazbeni|muzički|glazbena emisija|muzička emisija|muzički program|koncert|glasba|glasbena oddaja|spotovi|opera|balet|glazbeni program|glasbeni|ozbiljna glazba|narodna muzika|muzički spotovi|folklor|klasična glazba", u"hr sr bs sl me"},
    Row{kMusic, kText, u"muzički program|glazbeni program|muzička emisija|glazbena emisija|muzički spotovi|glasbena oddaja|snimka koncerta|muzičkih spotova|raznovrsne muzike|muzičkom|narodne muzike|koncert|muzičke numere|muzički miks|glazbenih spotova|zabavne muzike", u"hr sr bs sl me"},
    Row{kSports, kName, u"nogomet|fudbal|košarka|rukomet|tenis|odbojka|sportski|sportski program|športni program|sportska emisija|športna oddaja|hokej|formula 1|atletika|smučanje|skijanje|vaterpolo|sportske vijesti|borilački sportovi|auto-moto"},
    Row{kSports, kText, u"sportskih dešavanja|sportska emisija|sportskih dješavanja|sportske vijesti|svijeta sporta|sportski magazin|fudbalska utakmica|nogometna utakmica|prijenos utakmice|prenos utakmice|sportskih događaja|sportski pregled|športna oddaja", u"hr sr bs sl me"},
    Row{kNothing, kText, u"tv prodaja|tv prodaju|televizijsku prodaju|oglasni blok|marketing blok|nema informacija|nema podataka|reklamni blok|telekupovina|telekupovinu|kupovinu iz fotelje|marketing", u"hr sr bs sl me"},
    Row{kNothing, kName, u"tv prodaja|reklame|religijski|religija|vjerski|vjerski program|verska oddaja|oglasi|tv-prodaja"},
    Row{kNation, kLead, u"američk*|hrvatsk*|srpsk*|domać*|turska|turski|britansk*|francusk*|njemačk*|nemačk*|italijansk*|talijansk*|jugoslovensk*|španjolsk*|ruski|ruska|ameriška|ameriški|slovensk*", u"hr sr bs sl me"},
};
// clang-format on

} // namespace

std::span<const Row> slavicRows() {
    return kRows;
}

} // namespace guide::genres
