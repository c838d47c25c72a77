#include "demo/Words.h"

namespace guide::words {

const char16_t* const kCzechSeries = uR"(
soap=
  Náměstí pod kaštany @ {dil} @ {vztahy}
  Srdce na úvěr @ {dil} @ {vztahy}
  Dědictví rodu Lhotských @ {dil} @ {vztahy}
  Vůně levandule @ {dil} @ {vztahy}
  Přísahy a lži @ {dil} @ {vztahy}
  Až na věky a pátek @ {dil} @ {vztahy}
series=
  Penzion U Tří lip @ {dil} @ {vesnice}
  Doktorka z maringotky @ {dil} @ {klinika}
  Železniční ulice @ {dil} @ {rodina}
  Vinaři z Podskalí @ {dil} @ {vesnice}
  Rodinné stříbro @ {dil} @ {rodina}
  Hotel Meridián @ {dil} @ {rodina}
  Klinika Na Výsluní @ {dil} @ {klinika}
  Ti z pavlače @ {dil} @ {rodina}
  Povodí @ {dil} @ {vesnice}
  Stanice Horská @ {dil} @ {klinika}
  Léta ve stínu @ {dil} @ {doba}
  Dvorní dodavatelé @ {dil} @ {doba}
  Přístav Střekovice @ {dil} @ {vesnice}
  Domov na dohled @ {dil} @ {rodina}
  Továrna na sny @ {dil} @ {doba}
  Druhá směna @ {dil} @ {klinika}
crime=
  Komisařka Strnadová @ {pripad} @ {patrani}
  Oddělení ztrát @ {pripad} @ {patrani}
  Případy inspektora Vařečky @ {pripad} @ {patrani}
  Mrtvé rameno @ {pripad} @ {patrani}
  Tichá linka @ {pripad} @ {patrani}
  Vyšetřuje Křepelka @ {pripad} @ {patrani}
  Vražedné předměstí @ {pripad} @ {patrani}
  Čtvrtý senát @ {pripad} @ {patrani}
  Město pod hrází @ {pripad} @ {patrani}
  Detektiv na odpočinku @ {pripad} @ {patrani}
  Pátračka Medková @ {pripad} @ {patrani}
  Noční rychlík @ {pripad} @ {patrani}
  Soudní znalec @ {pripad} @ {patrani}
  Bez svědků @ {pripad} @ {patrani}
  Revír Povodí @ {pripad} @ {patrani}
  Pravda na druhý pokus @ {pripad} @ {patrani}
sitcom=
  Čtyři v paneláku @ {vtip} @ {zmatek}
  Tchán pod střechou @ {vtip} @ {zmatek}
  Bufet Na Konečné @ {vtip} @ {zmatek}
  Rodina na příděl @ {vtip} @ {zmatek}
  Kancelář číslo sedm @ {vtip} @ {zmatek}
  Taxík plný příbuzných @ {vtip} @ {zmatek}
  Domovní schůze @ {vtip} @ {zmatek}
  Ráj s výhledem na parkoviště @ {vtip} @ {zmatek}
dil=
  Nečekaná návštěva
  Staré dluhy
  Dopis bez podpisu
  Klíč pod rohožkou
  Neděle u nás
  Dvě pravdy
  Den poté
  První sníh
  Host k večeři
  Návrat {home:obec.4}
  {^m:muz.1} z vedlejšího domu
  Co řekla {z:zena.1}
  Mezi dveřmi
  Sázka na jistotu
  Tajemství na půdě
  Na vlastní pěst
  Poslední kapka
  Všechno nejlepší
  Studená večeře
  Pod jednou střechou
pripad=
  Stopy na ledu
  {^m:muz.1} bez tváře
  Smrt chodí po špičkách
  Prázdné pouzdro
  Mlčení {z:zena.2}
  Případ {m:muz.2}
  Noční směna
  Anonym
  Vlak {home:obec.4}
  Osmý podezřelý
  Krátká paměť
  Zlaté hodinky
  Kdo zavřel okno
  Poslední účet
  Tiché místo
vtip=
  Nová pračka
  Kdo snědl řízek
  Velký úklid
  Návštěva z ministerstva
  Výtah opět nejezdí
  Ponožka
  Dieta od pondělí
  Kytka v rohu
  Narozeniny pro jednoho
  Klíče zevnitř
  Tajný ctitel
  Víkend bez dětí
vztahy=
  Eliška nečekaně potká muže, kterého považovala za mrtvého. Dalibor zatím podepisuje smlouvu, kterou nečetl.
  Matylda odmítne vysvětlit, kde byla ve středu večer. Evžen to ví, ale má důvod mlčet.
  Svatba se odkládá. Hynek obviňuje počasí, hosté obviňují Hynka.
  Rozálie konečně otevře obálku po otci. To, co v ní není, je horší než to, co v ní je.
  Kryštof se vrací z nemocnice a nepoznává vlastní sestru. Ta si oddechne.
  Žofie dá výpověď, Vilém dá košem a Hedvika dá na radu, které bude litovat.
klinika=
  Na příjmu se sejdou dva pacienti stejného jména a jen jeden z nich ví proč. Doktorka Medková musí riskovat.
  Noční služba začíná klidně. Pak přivezou řidiče, který odmítá říct, kdo s ním jel.
  Sestra Běla dostane nabídku, která se neodmítá, a záchranka výjezd na adresu, kde nikdo nebydlí.
  Mladý chirurg poprvé operuje sám a primář poprvé přizná, že se bojí.
vesnice=
  Do vsi přijíždí geodet a s ním i otázka, čí je vlastně studna na návsi. Starostka svolává schůzi.
  Po bouřce zůstane dům odříznutý od světa. Sousedé zjistí, kolik toho o sobě nevědí.
  Sklizeň je letos o týden dřív a brigádníci o týden později. {^m:muz.1} má nápad, který se bude dlouho připomínat.
  Na půdě se najde zazděná truhla. Než ji stihnou otevřít, přihlásí se o ni dva majitelé.
rodina=
  Babička oznámí, že se stěhuje do Portugalska, a rodina poprvé po letech drží pohromadě.
  Nový nájemník platí hotově, zdraví slušně a nikdy neotevírá okno.
  Tři sourozenci mají den na to, aby se dohodli. Zatím se neshodli ani na tom, kde se sejdou.
  Otec přivede k obědu ženu, kterou všichni znají odjinud.
doba=
  Píše se rok 1938 a rodina poprvé slaví Vánoce v neúplném počtu.
  Fabrika hlásí rekord, ale v účetních knihách chybí jedna stránka a jeden účetní.
  Noviny přestanou vycházet a v domě se začne mluvit šeptem.
  Z emigrace přichází pohled bez textu. Adresu poznala celá ulice.
patrani=
  U řeky se najde kabát s cizími doklady. Majitel žije, jen tvrdí, že v něm nikdy nebyl.
  {^m:muz.1} se přizná k vraždě, kterou nemohl spáchat. Otázka zní, koho kryje.
  Svědkyně si pamatuje každou poznávací značku v ulici. Jen tu jednu ne.
  Starý spis, nová oběť a tentýž uzel na provaze. Vyšetřovatelé mají málo času a ještě méně kávy.
  Vykradená zlatnice, v níž nic nechybí. Pachatel tam naopak něco nechal.
  {^z:zena.1} ohlásí vlastní únos. Než policie přijede, je opravdu pryč.
zmatek=
  Někdo celému domu objednal pizzu a nikdo se k tomu nehlásí. Podezření padne na toho, kdo má plnou pusu.
  Táta se rozhodne šetřit a začne lednicí. Večer už šetří celý vchod.
  Schůze měla trvat deset minut. Je půlnoc a hlasuje se o barvě zábradlí.
  Ukáže se, že papoušek od vedle umí napodobit šéfův hlas.
  Jediné volné parkovací místo, tři auta a tchán s kuželem.
  Zvonek zvoní, nikdo tam není a v poštovní schránce leží čerstvý chleba.
  Rodinná fotografie se neobejde bez strýce, kterého nikdo nezval a který stojí uprostřed.
  Elektrikář měl přijít ve středu. Přišel, jen nikdo neví, ve kterou.
  Na balkoně se usadil holub a odmítá podepsat nájemní smlouvu.
cartoon=
  Ježek Pepík a kolo @ {dobrodruzstvi} @ {pohadka}
  Tři čmeláci @ {dobrodruzstvi} @ {pohadka}
  Babička Raketa @ {dobrodruzstvi} @ {pohadka}
  Traktůrek Tonda @ {dobrodruzstvi} @ {pohadka}
  Ponorka v rybníku @ {dobrodruzstvi} @ {pohadka}
  Žížala Žofie @ {dobrodruzstvi} @ {pohadka}
  Vlk vegetarián @ {dobrodruzstvi} @ {pohadka}
  Kocour inženýr @ {dobrodruzstvi} @ {pohadka}
  Sovička se bojí tmy @ {dobrodruzstvi} @ {pohadka}
  Konvice Ema @ {dobrodruzstvi} @ {pohadka}
kidseries=
  Klub děravého vědra @ {dil_deti} @ {parta}
  Záhada na konci ulice @ {dil_deti} @ {parta}
  Tajný kapesník @ {dil_deti} @ {parta}
  Škola za školou @ {dil_deti} @ {parta}
  Holky z jedenáctky @ {dil_deti} @ {parta}
bedtime=
  Pohádka na polštář @ {dobrodruzstvi} @ {pohadka}
  O skřítku Bramboráčkovi @ {dobrodruzstvi} @ {pohadka}
  Z knoflíkové krabice @ {dobrodruzstvi} @ {pohadka}
dobrodruzstvi=
  Ztracená bačkora
  Jak se peče mrak
  Výlet na kopec
  Kdo rozsvítil měsíc
  Velká louže
  Narozeniny
  Rýma
  Jahodová záhada
  Závod s vánkem
  Kamarád z mechu
  Pirátský čaj
  Sněhulák v létě
pohadka=
  Všichni v lese hledají ztracenou čepici. Má ji na hlavě ten, kdo hledá nejvíc.
  Prší už třetí den a kamarádi si postaví loď z toho, co najdou v kuchyni.
  Kdo se bojí bouřky, ať zvedne tlapku. Zvedli ji všichni, i ti největší.
  Dnes je na řadě velké tajemství: kam mizí druhá ponožka.
  Nejmenší z kamarádů si půjčí největší boty a dojde v nich až na kraj louky.
  Z kopce se kutálí kolo sýra a za ním celá vesnice.
  Ozvěna má dnes rýmu, a tak odpovídá každému trochu jinak.
dil_deti=
  Vzkaz v láhvi
  Tajná chodba
  Nový spolužák
  Noc ve škole
  Mapa z půdy
  Kdo rozbil vázu
  Výprava za mlýn
parta=
  Parta najde v kůlně vysílačku a na druhém konci se někdo ozve. Mluví ale pozpátku.
  Ve škole straší. Pan školník tvrdí, že to dělá topení, jenže topení je od jara vypnuté.
  Nový spolužák nosí každý den jiný klíč. Děti chtějí vědět, co všechno odemyká.
fairytale=
  Jak {m:muz.1} napálil čerta @ {bylo}
  Princezna a {m:muz.1} @ {bylo}
  Čert {home:obec.2} @ {bylo}
  Král bez koruny @ {bylo}
  Sedm bratrů z mlýna @ {bylo}
  Hloupý Matouš a chytrá koza @ {bylo}
  Vodník z Černé tůně @ {bylo}
  Líná princezna a pilný švec @ {bylo}
  Kouzelný hrnec babky Šípkové @ {bylo}
  Zlatá studánka @ {bylo}
bylo=
  Bylo jednou jedno malé království a v něm král, který prohrál v kartách vlastní korunu. Pomoci mu může jen poctivá práce.
  Princezna si vezme jen toho, kdo ji dokáže rozesmát. Čerti se hlásí první.
  Vodník pustí do světa jednu dušičku a s ní všechny trampoty. Naštěstí je tu mlynářova dcera, která se nebojí vody ani práce.
  Za devatero horami žil chasník, který uměl jen jediné kouzlo: dodržet slovo.
)";

} // namespace guide::words
