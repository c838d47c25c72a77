#include "demo/Words.h"

namespace guide::words {

// Forms as in Czech.
const char16_t* const kSlovakFilms = uR"(
first_m=
  Alojz
  Andrej
  Bohuslav
  Dušan
  Eduard
  Ervín
  Gejza
  Imrich
  Izidor
  Jozef
  Kornel
  Ladislav
  Matúš
  Metod
  Ondrej
  Rastislav
  Svätopluk
  Šimon
  Vavrinec
  Vendelín
first_f=
  Agáta
  Alžbeta
  Božena
  Brigita
  Cecília
  Dorota
  Emília
  Gizela
  Hedviga
  Katarína
  Ľudmila
  Magdaléna
  Otília
  Rozália
  Soňa
  Terézia
  Viera
  Žofia
last=
  Bučko/Bučková
  Čerešňa/Čerešňová
  Drozdík/Drozdíková
  Hruška/Hrušková
  Jahoda/Jahodová
  Jastrab/Jastrabová
  Javorčík/Javorčíková
  Kapusta/Kapustová
  Lastovička/Lastovičková
  Mrkvička/Mrkvičková
  Orechovský/Orechovská
  Púpava/Púpavová
  Rybárik/Rybáriková
  Senica/Senicová
  Slávik/Sláviková
  Smreček/Smrečková
  Šípka/Šípková
  Tráva/Trávová
  Vrabček/Vrabčeková
  Žiarsky/Žiarska
man=
  {first_m} {last.1}
woman=
  {first_f} {last.2}
muz=
  hodinár/hodinára/hodinárovi/hodinára/hodinárovi/s hodinárom
  starosta/starostu/starostovi/starostu/starostovi/so starostom
  poštár/poštára/poštárovi/poštára/poštárovi/s poštárom
  kominár/kominára/kominárovi/kominára/kominárovi/s kominárom
  huslista/huslistu/huslistovi/huslistu/huslistovi/s huslistom
  prievozník/prievozníka/prievozníkovi/prievozníka/prievozníkovi/s prievozníkom
  lekárnik/lekárnika/lekárnikovi/lekárnika/lekárnikovi/s lekárnikom
  výpravca/výpravcu/výpravcovi/výpravcu/výpravcovi/s výpravcom
  záhradník/záhradníka/záhradníkovi/záhradníka/záhradníkovi/so záhradníkom
  vinár/vinára/vinárovi/vinára/vinárovi/s vinárom
  bača/baču/bačovi/baču/bačovi/s bačom
  notár/notára/notárovi/notára/notárovi/s notárom
zena=
  knihovníčka/knihovníčky/knihovníčke/knihovníčku/knihovníčke/s knihovníčkou
  lekárnička/lekárničky/lekárničke/lekárničku/lekárničke/s lekárničkou
  herečka/herečky/herečke/herečku/herečke/s herečkou
  starostka/starostky/starostke/starostku/starostke/so starostkou
  tlmočníčka/tlmočníčky/tlmočníčke/tlmočníčku/tlmočníčke/s tlmočníčkou
  krajčírka/krajčírky/krajčírke/krajčírku/krajčírke/s krajčírkou
  fotografka/fotografky/fotografke/fotografku/fotografke/s fotografkou
  poštárka/poštárky/poštárke/poštárku/poštárke/s poštárkou
obec=
  Kozia Lúka/v Kozej Lúke/do Kozej Lúky/z Kozej Lúky
  Mokrý Jarok/v Mokrom Jarku/do Mokrého Jarku/z Mokrého Jarku
  Vysoká Jedľa/vo Vysokej Jedli/do Vysokej Jedle/z Vysokej Jedle
  Medveďovce/v Medveďovciach/do Medveďoviec/z Medveďoviec
  Hruškov/v Hruškove/do Hruškova/z Hruškova
  Krkavčín/v Krkavčíne/do Krkavčína/z Krkavčína
  Stará Bučina/v Starej Bučine/do Starej Bučiny/zo Starej Bučiny
home_country=
  Slovensko/sk/Československo
far_country=
  USA/en/USA
country=
  Slovensko/sk/Československo
  Slovensko/sk/Československo
  Česko/cs/Československo
  Francúzsko/fr/Francúzsko
  Veľká Británia/en/Veľká Británia
  USA/en/USA
facts_film_comedy=
  Komédia ({country} {year}).
facts_film_drama=
  Drama ({country} {year}).
facts_film_crime=
  Kriminálny film ({country} {year}).
facts_film_thriller=
  Triler ({country} {year}).
facts_film_scifi=
  Sci-Fi ({country} {year}).
facts_film_fantasy=
  Fantasy ({country} {year}).
facts_film_horror=
  Horor ({country} {year}).
facts_film_western=
  Western ({country} {year}).
facts_film_adventure=
  Dobrodružný film ({country} {year}).
facts_film_romance=
  Romantický film ({country} {year}).
facts_fairytale=
  Rozprávka ({country} {year}).
facts_doc=
  Dokument ({country} {year}).
facts_nature=
  Dokument o prírode ({country} {year}).
facts_history=
  Historický dokument ({country} {year}).

film_comedy=
  Roztržitý {m:muz.1} @ {smiech_m}
  Náhradný {m:muz.1} @ {smiech_m}
  {^m:muz.1} na úteku @ {smiech_m}
  {^z:zena.1} na skúšku @ {smiech_f}
  Dovolenka {m:muz.6} @ {smiech_m}
  Svadba {home:obec.2} @ {smiech}
  Svokra na splátky @ {smiech}
  Kapor v obývačke @ {smiech}
  Podivuhodná príhoda pána prednostu na ceste zo stanice domov a späť @ {smiech}
  Dedko má nápad @ {smiech}
  Traja bratranci a jedna chalupa @ {smiech}
  Halušky pre ministra @ {smiech}
smiech_m=
  {^m:muz.1} {home:obec.4} chcel len pokoj a nový plot. Namiesto toho zdedil dychovku, kozu a miesto predsedu záhradkárov.
  {^m:muz.1} si povedal, že tento rok na dovolenku nepôjde. Dovolenka si teda prišla po neho, aj s príbuznými.
  Stačil jeden zle doručený balík a {m:muz.1} sa stal najhľadanejším mužom v okrese.
smiech_f=
  {^z:zena.1} {home:obec.4} sľúbila, že už nikdy nebude klamať. Vydržalo jej to do raňajok.
  {^z:zena.1} vyhrá v tombole autobus. Netuší, že v ňom celý čas spí {m:muz.1}.
smiech=
  Rodina, ktorá spolu nehovorí, sa po rokoch zíde pri jednom stole. Keby aspoň fungovala rúra.
  Dvaja susedia, jeden plot a medzi nimi hruška, ktorá tento rok prvý raz zarodila.
  Generálny riaditeľ prichádza na kontrolu inkognito. Inkognito však v ten deň prišli ešte traja ďalší.
film_drama=
  Posledné leto {home:obec.2} @ {tiaz}
  Návrat {m:muz.2} @ {tiaz_m}
  Mlčanie {z:zena.2} @ {tiaz}
  Otcov kabát @ {tiaz}
  Ticho po daždi @ {tiaz}
  Popol a med @ {tiaz}
  Rieka sa vracia @ {tiaz}
  Svetlo v podkroví @ {tiaz}
tiaz_m=
  Po dvadsiatich rokoch sa {m:muz.1} vracia {home:obec.3}. Dom stojí, studňa nevyschla a ľudia si pamätajú viac, než by chcel.
tiaz=
  Dvaja bratia majú rozhodnúť o predaji rodného domu. Jeden chce zabudnúť, druhý nemá kam ísť.
  Dedina má ustúpiť priehrade. Posledná jeseň patrí tým, ktorí nepodpísali.
  Príbeh jedného domu a troch generácií, ktoré v ňom mlčali o tom istom.
film_crime=
  Smrť {m:muz.2} @ {zlocin}
  Prípad strateného {m:muz.2} @ {zlocin}
  Vražda {home:obec.2} @ {zlocin}
  Kto zabil {m:muz.4} @ {zlocin}
  Mŕtvy z polnočného vlaku @ {zlocin}
  Odtlačok v blate @ {zlocin}
  Jed a marhule @ {zlocin}
zlocin=
  Zamknutá pracovňa, rozbitá karafa a šesť príbuzných, z ktorých má každý alibi na toho druhého.
  {^m:muz.1} leží na dne studne a celá dedina tvrdí, že tam nikdy nijaká studňa nebola.
  Za jedinú noc zmizne z múzea obraz, strážnik aj nočná električka. Kapitán má na vyriešenie dvadsaťštyri hodín a nádchu.
film_thriller=
  Tretí hovor @ {napatie}
  Noc bez signálu @ {napatie}
  Posledný vlak {home:obec.3} @ {napatie}
  Falošný {m:muz.1} @ {napatie}
  Kým príde ráno @ {napatie}
napatie=
  Horská chata, snehová búrka a sedem hostí. Do rána ich má byť osem, ale nikto neprišiel.
  {^m:muz.1} sa prebudí vo vlaku, ktorý podľa cestovného poriadku neexistuje.
film_scifi=
  Stanica Kométa @ {buducnost}
  Planéta bez tieňov @ {buducnost}
  Mesačné nádražie @ {buducnost}
  Robot menom Ľudovít @ {buducnost}
  Vynález {m:muz.2} @ {buducnost}
buducnost=
  Posádka sa prebúdza z hibernácie o sto rokov skôr, ako mala. Na palube pritom chýba iba kuchár.
  Ľudstvo sa presťahovalo na Mesiac. {^m:muz.1} sa má vrátiť na Zem a zhasnúť.
film_fantasy=
  Kniha siedmich zámkov @ {kuzla}
  Dcéra vetra @ {kuzla}
  Kráľ krkavcov @ {kuzla}
  Ostrov zabudnutých mien @ {kuzla}
  Hora za siedmou horou @ {kuzla}
kuzla=
  Kráľovstvo prišlo o zimu. Nájsť ju môže len ten, kto sa jej nebojí.
  Dve sestry, jedno kúzlo a les, ktorý si pamätá každé nedodržané slovo.
film_horror=
  Ten dole @ {hroza}
  Mlyn na konci cesty @ {hroza}
  Siedmy hosť @ {hroza}
  Nechoď na povalu @ {hroza}
hroza=
  Mladí manželia kúpia dom pod cenu. Predávajúci mal jedinú podmienku: nikdy nezamykať pivnicu.
  Nočný strážnik má len tri pravidlá. To tretie mu nikto nepovedal.
film_western=
  Posledný dostavník @ {zapad}
  Šerif bez hviezdy @ {zapad}
  Výstrel v Slanom údolí @ {zapad}
  Zlato Suchej rieky @ {zapad}
zapad=
  Cudzinec prichádza do mesta, kde sa nesmú nosiť zbrane. Všetci ostatní o tom zákaze akosi nevedia.
  Starý šerif chcel v pokoji chovať včely. Potom mu niekto ukradol kone aj úle.
film_adventure=
  Poklad {home:obec.4} @ {dialky}
  Stratená výprava @ {dialky}
  Na konci mapy @ {dialky}
  Zlatá karavána @ {dialky}
  Päť dní v sedle @ {dialky}
dialky=
  Stará mapa, polovica mince a kapitán, ktorý sa bojí vody. Výprava za pokladom sa môže začať.
  Lietadlo spadlo do džungle a všetci prežili. Teraz ešte musia prežiť jeden druhého.
film_romance=
  Leto {m:muz.6} @ {laska}
  Ruža pre {z:zena.4} @ {laska}
  Láska {home:obec.2} @ {laska}
  Bozk na nástupišti @ {laska}
  Vinobranie pre dvoch @ {laska}
laska=
  Stretli sa v nesprávnom vlaku. Obaja to vedeli a ani jeden nevystúpil.
  {^m:muz.1} stratil v tanečných topánku aj hlavu. Topánku mu vrátila {z:zena.1}.
  Píšu si štyri roky a nikdy sa nevideli. Teraz majú spoločný výťah a nefunkčné svetlo.
)";

} // namespace guide::words
