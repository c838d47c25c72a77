#include "demo/Words.h"

namespace guide::words {

const char16_t* const kCzechFilms = uR"(
vlastnost_m=
  roztržitý
  nenápadný
  vzorný
  unavený
  náhradní
  dočasný
  neodolatelný
  nepostradatelný
vlastnost_f=
  roztržitá
  nenápadná
  vzorná
  náhradní
  neodolatelná
  nepostradatelná

film_comedy=
  {^vlastnost_m} {m:muz.1} @ {smich_m}
  {^vlastnost_f} {z:zena.1} @ {smich_f}
  {^m:muz.1} na útěku @ {smich_m}
  {^z:zena.1} na zkoušku @ {smich_f}
  Dovolená {m:muz.6} @ {smich_m}
  Kdo se bojí {m:muz.2} @ {smich_m}
  Svatba {home:obec.2} @ {smich}
  Starosti {home:obec.2} @ {smich}
  Tchyně na splátky @ {smich}
  Kapr v obýváku @ {smich}
  Podivuhodná příhoda pana přednosty na cestě z nádraží domů a zpátky @ {smich}
  Bábovka pro ministra @ {smich}
  Děda má nápad @ {smich}
  Rozvod se slevou @ {smich}
  Tři bratranci a jedna chalupa @ {smich}
  Teta z Ameriky nejede @ {smich}
  Pátek třináctého a půl @ {smich}
smich_m=
  {^m:muz.1} {home:obec.4} chtěl jen klid a nový plot. Místo toho zdědil kapelu, kozu a předsednictví zahrádkářského svazu.
  Stačil jeden špatně doručený balík a {m:muz.1} se stal nejhledanějším člověkem v okrese. Věří mu jen {z:zena.1}, a ta nevěří ani předpovědi počasí.
  {^m:muz.1} se rozhodl, že letos na dovolenou nepojede. Dovolená si tedy přijela pro něj, i s příbuznými.
  Když do města dorazí televizní štáb, je {m:muz.1} jediný, kdo si stihl vzít kravatu. Od té chvíle ho považují za odborníka na všechno.
smich_f=
  {^z:zena.1} {home:obec.4} slíbila, že už nikdy nebude lhát. Vydrželo jí to do snídaně.
  {^z:zena.1} vyhraje v tombole autobus. Netuší, že v něm celou dobu spí {m:muz.1}.
  Jednoho rána zjistí {z:zena.1}, že je podle matriky už deset let vdaná. Nejhorší je, že ženich se přišel omluvit.
smich=
  Rodina, která spolu nemluví, se po letech sejde u jednoho stolu. Kdyby aspoň fungovala trouba.
  Dva sousedé, jeden plot a mezi nimi hruška, která letos poprvé zaplodila. Smír se hledá těžko, zvlášť když má každý svého advokáta.
  Generální ředitel přijíždí inkognito na kontrolu. Jenže inkognito přijeli ten den ještě tři další lidé.
  Plán byl jednoduchý: vzít peníze z pokladny, koupit zmrzlinu a vrátit zbytek. Nikdo nečekal, že pokladnu už někdo odnesl.
  {^m:muz.1} a {z:zena.1} spolu třicet let nepromluvili. Teď musí společně upéct svatební dort pro dvě stě lidí.

film_drama=
  Poslední léto {home:obec.2} @ {tiha}
  Návrat {m:muz.2} @ {tiha_m}
  Mlčení {z:zena.2} @ {tiha_f}
  Deník {z:zena.2} @ {tiha_f}
  Dopisy {home:obec.4} @ {tiha}
  Otcův kabát @ {tiha}
  Ticho po dešti @ {tiha}
  Popel a med @ {tiha}
  Světlo v podkroví @ {tiha}
  Řeka se vrací @ {tiha}
  Zima v přístavu @ {tiha}
  Co zůstalo v zásuvce @ {tiha}
tiha_m=
  Po dvaceti letech se {m:muz.1} vrací {home:obec.3}. Dům stojí, studna nevyschla a lidé si pamatují víc, než by chtěl.
  {^m:muz.1} pečuje o umírajícího otce a poprvé v životě se ho odváží zeptat na válku.
tiha_f=
  {^z:zena.1} najde v pozůstalosti po matce dopisy, které nikdy neměly být přeloženy. Čím déle čte, tím méně rozumí vlastnímu dětství.
  Přijela na tři dny a zůstala rok. {^z:zena.1} hledá {home:obec.2} klid a nachází pravdu o své sestře.
tiha=
  Dva bratři mají rozhodnout o prodeji rodného statku. Jeden chce zapomenout, druhý nemá kam jít.
  Příběh jednoho domu a tří generací, které v něm mlčely o tomtéž.
  Vesnice má ustoupit přehradě. Poslední podzim patří těm, kdo nepodepsali.
  Lékařka na konci kariéry dostane anonymní dopis a s ním i otázku, na kterou celý život čekala.

film_crime=
  Smrt {m:muz.2} @ {zlocin}
  Případ zmizelého {m:muz.2} @ {zlocin}
  Vražda {home:obec.2} @ {zlocin}
  Kdo zabil {m:muz.4} @ {zlocin}
  Alibi pro {z:zena.4} @ {zlocin}
  Mrtvý z půlnočního vlaku @ {zlocin}
  Jed a meruňky @ {zlocin}
  Otisk v blátě @ {zlocin}
  Svědek mlčí @ {zlocin}
  Pokoj číslo devět @ {zlocin}
  Zlatá rybka nelže @ {zlocin}
zlocin=
  Zamčená pracovna, rozbitá karafa a šest příbuzných, z nichž každý má alibi na toho druhého. Inspektor začíná od kuchařky.
  {^m:muz.1} leží na dně studny a celá vesnice tvrdí, že tam nikdy žádná studna nebyla.
  Starý případ měl být dávno promlčen. Jenže do archivu si pro něj přišla {z:zena.1} a druhý den ji nikdo nemůže najít.
  Policie hledá vraha, novináři hledají titulek a {z:zena.1} jako jediná hledá oběť.
  Za jedinou noc zmizí z muzea obraz, strážný i noční tramvaj. Kapitán má na vyřešení čtyřiadvacet hodin a rýmu.

film_thriller=
  Třetí hovor @ {napeti}
  Noc bez signálu @ {napeti}
  Hlas ze sklepa @ {napeti}
  Poslední vlak {home:obec.3} @ {napeti}
  Falešný {m:muz.1} @ {napeti}
  Než přijde ráno @ {napeti}
  Muž z desátého patra @ {napeti}
  Výtah nezastavuje @ {napeti}
  Nulová viditelnost @ {napeti}
  Host na jednu noc @ {napeti}
napeti=
  Telefon zvoní vždycky ve 3.14. Napoprvé to vypadalo jako omyl, napodruhé jako žert.
  {^z:zena.1} zahlédne ve zprávách vlastní auto. Má necelou hodinu, aby zjistila, kdo v něm sedí.
  Horská chata, sněhová bouře a sedm hostů. Do rána jich má být osm, ale nikdo nepřišel.
  {^m:muz.1} se probudí ve vlaku, který podle jízdního řádu neexistuje.
  Jediný člověk, který mu uvěřil, má od včerejška jiné jméno.

film_scifi=
  Stanice Kometa @ {budoucnost}
  Planeta beze stínů @ {budoucnost}
  Měsíční nádraží @ {budoucnost}
  Robot jménem Květoslav @ {budoucnost}
  Expedice {planeta} @ {budoucnost}
  Zpráva z druhého konce @ {budoucnost}
  Vynález {m:muz.2} @ {budoucnost}
  Hodina před Sluncem @ {budoucnost}
  Kolonie sedm @ {budoucnost}
planeta=
  Neptun
  Titan
  Europa
  Merkur
budoucnost=
  Posádka se probouzí z hibernace o sto let dřív, než měla. Na palubě přitom chybí jen kuchař.
  Signál přichází z místa, kde podle všech map nic není. A je v češtině.
  Ve světě, kde paměť podléhá poplatkům, se {z:zena.1} rozhodne vzpomínat načerno.
  Lidstvo se přestěhovalo na Měsíc. {^m:muz.1} má za úkol vrátit se na Zemi a zhasnout.

film_fantasy=
  Kniha sedmi zámků @ {kouzla}
  Poslední čaroděj {home:obec.4} @ {kouzla}
  Dcera větru @ {kouzla}
  Král havranů @ {kouzla}
  Ostrov zapomenutých jmen @ {kouzla}
  Křišťálový kompas @ {kouzla}
  Hora za sedmou horou @ {kouzla}
  Strážkyně mlhy @ {kouzla}
kouzla=
  Sirotek z přístavu objeví mapu, která se každou noc překresluje. Ráno vede k jeho vlastnímu domu.
  Království přišlo o zimu. Najít ji může jen ten, kdo se jí nebojí.
  Dvě sestry, jedno kouzlo a les, který si pamatuje každé nedodržené slovo.
  Poslední drak neumí létat. Zato umí číst, a to je mnohem nebezpečnější.

film_horror=
  Ten dole @ {hruza}
  Mlýn na konci cesty @ {hruza}
  Sedmý host @ {hruza}
  Nechoď na půdu @ {hruza}
  Noc na zámku Krahulčí @ {hruza}
  Kdo šeptá za zdí @ {hruza}
  Prázdná kolébka @ {hruza}
hruza=
  Mladí manželé koupí dům pod cenou. Prodávající měl jedinou podmínku: nikdy nezamykat sklep.
  Parta přátel se vrací na chatu, kde před deseti lety jeden z nich zmizel. Na dveřích visí jeho svetr a je ještě teplý.
  Noční hlídač má jen tři pravidla. To třetí mu nikdo neřekl.

film_western=
  Poslední dostavník @ {zapad}
  Výstřel ve Slaném údolí @ {zapad}
  Šerif bez hvězdy @ {zapad}
  Zlato Suché řeky @ {zapad}
  Sedm koní do Santa Bonity @ {zapad}
  Pistole pro faráře @ {zapad}
  Údolí kojotů @ {zapad}
zapad=
  Cizinec přijíždí do města, kde se nesmí nosit zbraně. Všichni ostatní o tom zákazu nějak nevědí.
  Dva bratři, jedna železnice a kufr peněz, o kterém každý tvrdí, že je prázdný.
  Starý šerif chtěl v klidu chovat včely. Pak mu někdo ukradl koně i úly.

film_adventure=
  Poklad {home:obec.4} @ {dalky}
  Ztracená výprava @ {dalky}
  Kapitán Severák @ {dalky}
  Na konci mapy @ {dalky}
  Ostrov doktora Havraníka @ {dalky}
  Zlatá karavana @ {dalky}
  Výprava na Orlí štít @ {dalky}
  Vzducholoď Albatros @ {dalky}
  Pět dnů v sedle @ {dalky}
dalky=
  Stará mapa, polovina mince a kapitán, který se bojí vody. Výprava za pokladem může začít.
  Letadlo spadlo do džungle a všichni přežili. Teď ještě musí přežít jeden druhého.
  Profesorka botaniky hledá květinu, která kvete jednou za sto let. Konkurence ji chce natrhat.
  Chlapec uteče z internátu za dědečkem polárníkem. Na severu ale zrovna začala noc.

film_romance=
  Léto {m:muz.6} @ {laska}
  Růže pro {z:zena.4} @ {laska}
  Láska {home:obec.2} @ {laska}
  Polibek na nástupišti @ {laska}
  Dva a jedno kolo @ {laska}
  Levandulová neděle @ {laska}
  Adresát neznámý @ {laska}
  Tančírna Na Ostrově @ {laska}
  Vinobraní pro dva @ {laska}
laska=
  {^z:zena.1} přijede na víkend prodat tetin dům. {^m:muz.1} od vedle ji chce jen přesvědčit, aby si nechala aspoň hrušeň.
  Potkali se ve špatném vlaku. Oba to věděli a ani jeden nevystoupil.
  Píšou si čtyři roky a nikdy se neviděli. Teď mají společný výtah a nefunkční světlo.
  {^m:muz.1} ztratil v tanečních botu i hlavu. Botu mu vrátila {z:zena.1}.
)";

} // namespace guide::words
