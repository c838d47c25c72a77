#include "demo/Words.h"

namespace guide::words {

const char16_t* const kSlovakShows = uR"(
soap=
  Dom na Lipovej @ {diel} @ {vztahy}
  Srdce na úver @ {diel} @ {vztahy}
  Dedičstvo rodu Orechovských @ {diel} @ {vztahy}
  Až naveky a piatok @ {diel} @ {vztahy}
series=
  Penzión Pod Jedľou @ {diel} @ {dedina}
  Doktorka z maringotky @ {diel} @ {rodina}
  Stanica Horská @ {diel} @ {dedina}
  Rodinné striebro @ {diel} @ {rodina}
  Vinohrady @ {diel} @ {dedina}
  Roky v tieni @ {diel} @ {rodina}
  Hotel Poludník @ {diel} @ {rodina}
  Povodie @ {diel} @ {dedina}
crime=
  Kapitánka Jastrabová @ {pripad} @ {patranie}
  Oddelenie strát @ {pripad} @ {patranie}
  Mŕtve rameno @ {pripad} @ {patranie}
  Vyšetruje Lastovička @ {pripad} @ {patranie}
  Mesto pod hrádzou @ {pripad} @ {patranie}
  Nočný rýchlik @ {pripad} @ {patranie}
sitcom=
  Štyria v paneláku @ {vtip} @ {zmatok}
  Svokor pod strechou @ {vtip} @ {zmatok}
  Bufet Na konečnej @ {vtip} @ {zmatok}
  Taxík plný príbuzných @ {vtip} @ {zmatok}
diel=
  Nečakaná návšteva
  Staré dlhy
  List bez podpisu
  Kľúč pod rohožkou
  Nedeľa u nás
  Dve pravdy
  Deň potom
  Prvý sneh
  Hosť na večeru
  Návrat {home:obec.4}
  Tajomstvo na povale
  Na vlastnú päsť
pripad=
  Stopy na ľade
  Smrť chodí po špičkách
  Mlčanie {z:zena.2}
  Prípad {m:muz.2}
  Ôsmy podozrivý
  Krátka pamäť
  Kto zavrel okno
  Posledný účet
vtip=
  Nová práčka
  Kto zjedol rezeň
  Veľké upratovanie
  Výťah zas nechodí
  Diéta od pondelka
  Víkend bez detí
vztahy=
  Alžbeta nečakane stretne muža, ktorého považovala za mŕtveho. Dušan zatiaľ podpisuje zmluvu, ktorú nečítal.
  Svadba sa odkladá. Kornel obviňuje počasie, hostia obviňujú Kornela.
  Rozália konečne otvorí obálku po otcovi. To, čo v nej nie je, je horšie ako to, čo v nej je.
dedina=
  Do dediny prichádza geodet a s ním aj otázka, čia je vlastne studňa na námestí.
  Po búrke ostane dom odrezaný od sveta. Susedia zistia, koľko toho o sebe nevedia.
  Na povale sa nájde zamurovaná truhlica. Kým ju stihnú otvoriť, prihlásia sa o ňu dvaja majitelia.
rodina=
  Babka oznámi, že sa sťahuje do Portugalska, a rodina po rokoch prvý raz drží spolu.
  Nový nájomník platí v hotovosti, slušne zdraví a nikdy neotvára okno.
  Otec privedie na obed ženu, ktorú všetci poznajú odinakiaľ.
patranie=
  Pri rieke sa nájde kabát s cudzími dokladmi. Majiteľ žije, len tvrdí, že v ňom nikdy nebol.
  {^m:muz.1} sa prizná k vražde, ktorú nemohol spáchať. Otázka znie, koho kryje.
  Starý spis, nová obeť a ten istý uzol na povraze. Vyšetrovatelia majú málo času a ešte menej kávy.
zmatok=
  Niekto objednal celému domu pizzu a nikto sa k tomu nehlási. Podozrenie padne na toho, kto má plné ústa.
  Schôdza mala trvať desať minút. Je polnoc a hlasuje sa o farbe zábradlia.
  Jediné voľné parkovacie miesto, tri autá a svokor s kužeľom.
  Zvonček zvoní, nikto tam nie je a v poštovej schránke leží čerstvý chlieb.
  Elektrikár mal prísť v stredu. Prišiel, len nikto nevie, v ktorú.
cartoon=
  Ježko Jožko a bicykel @ {prihoda} @ {rozpravka}
  Tri čmele @ {prihoda} @ {rozpravka}
  Babka Raketa @ {prihoda} @ {rozpravka}
  Traktorček Tónko @ {prihoda} @ {rozpravka}
  Ponorka v rybníku @ {prihoda} @ {rozpravka}
  Dážďovka Žofka @ {prihoda} @ {rozpravka}
  Vlk vegetarián @ {prihoda} @ {rozpravka}
  Sovička sa bojí tmy @ {prihoda} @ {rozpravka}
kidseries=
  Klub deravého vedra @ {prihoda} @ {partia}
  Záhada na konci ulice @ {prihoda} @ {partia}
  Škola za školou @ {prihoda} @ {partia}
bedtime=
  Rozprávka na vankúš @ {prihoda} @ {rozpravka}
  O škriatkovi Zemiačikovi @ {prihoda} @ {rozpravka}
prihoda=
  Stratená papuča
  Ako sa pečie oblak
  Výlet na kopec
  Kto zažal mesiac
  Veľká mláka
  Narodeniny
  Jahodová záhada
  Preteky s vánkom
  Kamarát z machu
rozpravka=
  Všetci v lese hľadajú stratenú čiapku. Má ju na hlave ten, kto hľadá najviac.
  Prší už tretí deň a kamaráti si postavia loď z toho, čo nájdu v kuchyni.
  Dnes je na rade veľké tajomstvo: kam mizne druhá ponožka.
partia=
  Partia nájde v kôlni vysielačku a na druhom konci sa niekto ozve. Hovorí však odzadu.
  V škole straší. Pán školník tvrdí, že to robí kúrenie, lenže kúrenie je od jari vypnuté.
fairytale=
  Ako {m:muz.1} čerta oklamal @ {bolo}
  Princezná a {m:muz.1} @ {bolo}
  Kráľ bez koruny @ {bolo}
  Sedem bratov z mlyna @ {bolo}
  Vodník z Čierneho plesa @ {bolo}
  Zlatá studnička @ {bolo}
bolo=
  Bolo raz jedno malé kráľovstvo a v ňom kráľ, ktorý prehral v kartách vlastnú korunu. Pomôcť mu môže len poctivá práca.
  Princezná si vezme len toho, kto ju dokáže rozosmiať. Čerti sa hlásia prví.
  Za siedmimi horami žil mládenec, ktorý poznal jediné kúzlo: dodržať slovo.

doc=
  Poslední zvonári @ {odborne}
  Tajomstvo starých máp @ {odborne}
  Ako sa stavia tunel @ {odborne}
  Vlaky na koniec sveta @ {odborne}
  Umenie chleba @ {odborne}
  Mesto v noci @ {odborne}
odborne=
  Čo vyzerá samozrejme, stálo niekoho celý život. Film o vytrvalosti, omyloch a jednom šťastnom popoludní.
  Filmári sledovali rok na jedinom mieste. Nič sa nezmenilo, a predsa je všetko inak.
nature=
  Rok s vydrami @ {divocina}
  Návrat vlkov @ {divocina}
  Tajný život machu @ {divocina}
  Les po zotmení @ {divocina}
  Zima medveďov @ {divocina}
divocina=
  Štyri ročné obdobia v doline, kam sa nesmie jazdiť autom. Kto sa vie pozerať, uvidí aj rysa.
  Mláďatá majú šesť týždňov na to, aby sa naučili všetko. Voda zatiaľ stúpa.
history=
  Soľná cesta @ {dejiny}
  Hrady na obzore @ {dejiny}
  Storočie pary @ {dejiny}
  Dámy v pozadí trónu @ {dejiny}
dejiny=
  Archív vydal listinu, ktorú štyristo rokov nikto neotvoril. Historici sa sporia, kto ju vlastne písal.
  Veľké dejiny očami ľudí, ktorí v nich varili, prali a čakali.
krajina=
  Gruzínsko
  Portugalsko
  Škótsko
  Maroko
  Nórsko
  Estónsko
travel=
  Pešo cez {krajina} @ {na_cestach}
  Vlakom cez {krajina} @ {na_cestach}
  Potulky po Slovensku @ {vylet} @ {na_cestach}
  Za humnami @ {vylet} @ {na_cestach}
vylet=
  Cesta {home:obec.3}
  Hore na rozhľadňu
  Popri starej trati
  Dolinou mlynov
na_cestach=
  Jedlo je výborné, mapa nepresná a dohovoriť sa dá rukami. Ďalší diel cesty, na ktorú sa netreba ponáhľať.
  Namiesto pamiatok tentoraz ľudia: prievozník, pekárka a pán, ktorý opravuje dáždniky.
concert=
  Sláčiky pri sviečkach @ {hudba}
  Folklór pod holým nebom @ {hudba}
  Ľudová hudba {home:obec.4} @ {hudba}
  Jazz na stanici @ {hudba}
hudba=
  Záznam koncertu, pri ktorom vypadol prúd a nikto v sále si to nevšimol.
  Priamy prenos z vypredanej sály. Diriguje {man}.
klub=
  Slávia Hruškov
  Jednota Kozia Lúka
  Lokomotíva Krkavčín
  Tatran Mokrý Jarok
klub2=
  Družba Medveďovce
  Iskra Vysoká Jedľa
  Baník Stará Bučina
  Dynamo Dolné Mlyny
match=
  Hokej: {klub} – {klub2} @ {#4-42}. kolo krajskej ligy. Ľad je tvrdý, hlasivky pripravené. Komentuje {man}.
  Hokej: {klub} – {klub2} @ {#2-6}. zápas série o postup. Brankári sa nepozdravili. Komentuje {man}.
  Hokej žien: {klub} – {klub2} @ Finále pohára. Komentuje {woman}.
  Futbal: {klub} – {klub2} @ {#3-28}. kolo oblastnej súťaže. Komentuje {man}.
race=
  Biatlon: štafeta žien @ Priamy prenos zo strelnice. Fúka.
  Zjazdové lyžovanie: {home:obec.1} @ Druhé kolo obrovského slalomu. Sneh je, len ho treba nájsť.
  Cyklistika: Okolo Kozej Lúky @ {#2-7}. etapa vedie cez tri kopce a jednu krčmu.
classic=
  Zlatý fond: {klub} – {klub2} @ Zápas z roku {#1961-1998}, o ktorom sa hovorí dodnes. Obraz je čiernobiely, hádky farebné.
  Legendy: {man} @ Príbeh brankára, ktorý nikdy neprišiel na tréning načas a nikdy neprehral.
sportmag=
  Za mantinelom @ {o_sporte}
  Tretia tretina @ {o_sporte}
  Štúdio {channel} @ {o_sporte}
o_sporte=
  Góly víkendu, sporný ofsajd a hosť, ktorý ho nakreslil: {man}.
  Rozbor kola, tabuľka a otázka, prečo sa hokejka láme vždy tesne pred bránkou.
sportnews=
  Športové správy @ Výsledky dňa, tabuľky a jedna radosť navyše.
  Šport v kocke @ Prehľad toho, čo sa hralo, bežalo aj odložilo pre dážď.

breakfast=
  Dobré ráno s kanvicou @ {rano}
  Raňajky na dohľad @ {rano}
morning=
  Prvé vydanie @ {rano}
  Ranná hodina @ {rano}
rano=
  Správy, počasie, rozhovory a káva, ktorá ešte nestihla vychladnúť. Hosťom je {man}.
  Na čo dnes nezabudnúť, čo uvariť a kam s dáždnikom. Hosťom je dnes {woman}.
news=
  Správy televízie {channel} @ {udalosti}
  Správy z domova a zo sveta @ {udalosti}
  Spravodajstvo @ {udalosti}
udalosti=
  Čo sa stalo, prečo sa to stalo a čo s tým bude ďalej.
  Prehľad najdôležitejších správ z domova aj zo sveta.
flash=
  Správy v kocke @ {udalosti}
  Krátke správy @ {udalosti}
weather=
  Počasie @ {obloha}
  Kam s dáždnikom @ {obloha}
obloha=
  Ráno hmly, popoludní polooblačno, večer sa uvidí.
  Od západu prehánky, od východu nádej. Teploty podľa kalendára.
region=
  Správy z kraja @ {v_kraji}
  Náš kraj @ {v_kraji}
v_kraji=
  Nová lávka, stará škola a spor o lipu na námestí. Správy z miest, kam inak nikto nechodí.
  Hasiči oslávili sto rokov zboru. Horelo iba na ohnisku.
  {^home:obec.2} otvorili knižnicu a prvý čitateľ si požičal rebrík.
business=
  Burza a peňaženka @ Kurzy, ceny a otázka, komu sa dnes oplatilo nič nerobiť.
  Účtenka @ Hypotéky, nafta, maslo. A graf, ktorý ide prvý raz doprava.
press=
  Prehľad tlače @ Desať titulkov, tri názory a jedna oprava.
  Čo píšu iní @ Listujeme v domácej aj zahraničnej tlači. Krížovku nechávame na vás.
interview=
  Zoči-voči @ Dvadsať minút, jeden hosť a nijaké vytáčky. Pozvanie prijal {man}.
  Otázky bez obalu @ Dvadsať minút, jeden hosť a pohár vody. Pozvanie prijala {woman}.
debate=
  Okrúhly stôl @ {hadka}
  Za a proti @ {hadka}
hadka=
  Má štát opravovať mosty skôr, ako spadnú? Hostia sa nezhodnú ani na prípitku. Diskusiu vedie {woman}.
  Dvaja ministri, jeden starosta a graf, ktorému rozumie len moderátor. Diskusiu vedie {man}.
talk=
  Kreslo pre dvoch @ {debata}
  Bez kravaty @ {debata}
debata=
  O divadle, koňoch a jednom dlhom mlčaní rozpráva {woman}.
  Prečo prestal hrať, keď ho začali spoznávať na ulici? Hosťom je {man}.
quiz=
  Kto vie viac @ {otazky}
  Otázka za tisíc @ {otazky}
  Slovo dá slovo @ {otazky}
otazky=
  Traja súťažiaci, desať otázok a nijaké odpisovanie. Súťaž uvádza {man}.
  Učiteľky proti hasičom. Kto prehrá, umýva tabuľu. Súťaž uvádza {woman}.
show=
  Talent z vedľajšej ulice @ {estrada}
  Tancuje celá obec @ {estrada}
estrada=
  Semifinále. Porota je prísna, dirigent nervózny a kúzelník tvrdí, že králika mal.
  Osem párov, jeden parket a rumba, na ktorú sa nezabúda. Moderujú {woman} a {man}.
magazine=
  Dookola @ {o_ludoch}
  Dobrý sused @ {o_ludoch}
  Zblízka @ {o_ludoch}
o_ludoch=
  Ako ušetriť na kúrení, kde opravia kanvicu a prečo sa oplatí poznať susedov.
  Príbehy ľudí, ktorí zmenili povolanie po päťdesiatke. Jeden z nich dva razy.
cooking=
  Na panvici @ {recept}
  Polievka je základ @ {recept}
  Varecha na cestách @ {recept}
recept=
  Bryndzové halušky, o ktorých sa rodiny hádajú tri generácie. Varí {woman}.
  Kapustnica, lokše a tvarohový koláč. Varí {man}.
garden=
  Zelený palec @ {zahrada}
  Slimák v šaláte @ {zahrada}
zahrada=
  Kedy rezať jabloň, ako oklamať slimáka a prečo paradajka neznáša prievan.
hobby=
  Majster v garáži @ {dielna}
  Všetko drží na drôte @ {dielna}
dielna=
  Staviame včelín, opravujeme stoličku a raz si premeriame dva razy.
kidshow=
  Dielňa uja Hoblíka @ {vyrabame}
  Abeceda vo vrecku @ {pismena}
  Prečo a preto @ {pokusy}
vyrabame=
  Dnes vyrábame šarkana z novín a zistíme, prečo lieta lepšie ako skutočný drak.
  Loďka z orechovej škrupinky, plachta zo starej vreckovky a vietor z plných pľúc.
pismena=
  Písmeno Ľ a všetci, ktorí ho vedia vysloviť mäkko.
  Písmeno O sa gúľa z kopca. Kto ho chytí, smie si vymyslieť slovo.
pokusy=
  Prečo je obloha modrá a tráva zelená? Pokusy pre zvedavých.
  Ako dostať vajíčko do fľaše a potom zasa von? Skúsime oboje.
signoff=
  Pst! {channel} spí @ Dobrú noc, deti. Vysielanie sa začína opäť o šiestej.
moviemag=
  Kino pri káve @ {o_filme}
  Titulky @ {o_filme}
o_filme=
  Premiéry týždňa, rozhovor s kameramankou a scéna, ktorá sa nakrúcala štyridsať ráz.
short=
  Pohľadnica {home:obec.4} @ Krátke zastavenie pod vežou, pri fontáne a za pecou.
  Medailón: {man} @ Päť minút o človeku, ktorého ste videli sto ráz.
  Pozvánka na večer @ Čo dnes uvidíte, ak vydržíte.
night=
  Kamery na horách @ Pohľady z hrebeňov, zvuk vetra a občas líška.
  Noc na stanici @ Prechádzajú nákladné vlaky, čas ukazujú hodiny v hale.
)";

} // namespace guide::words
