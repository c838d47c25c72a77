#include "demo/Words.h"

namespace guide::words {

const char16_t* const kCzechWorld = uR"(
doc=
  Poslední {remeslo} @ {remeslnici}
  Tajemství {vec} @ {odborne}
  Jak se staví tunel @ {odborne}
  Sto sedmdesát tři schodů k nejmenší rozhledně střední Evropy @ {odborne}
  Mosty Evropy @ {odborne}
  Vlaky na konec světa @ {odborne}
  Umění chleba @ {odborne}
  Město v noci @ {odborne}
  Lidé z majáků @ {odborne}
  Svět pod mikroskopem @ {odborne}
  Továrny na čas @ {odborne}
  Jedna ulice a sto let @ {odborne}
remeslo=
  zvonaři
  košíkáři
  uhlíři
  skláři
  voraři
  kolaři
vec=
  starých map
  pražských věží
  orlojů
  papírových peněz
  zvonů
  dlažebních kostek
remeslnici=
  Bylo jich na sto, dnes zbyli tři a nejmladšímu táhne na sedmdesát. Film o lidech, kteří svou práci umějí poslepu.
  Kamera strávila rok v dílnách, kde se ještě všechno dělá rukama.
odborne=
  Co vypadá samozřejmě, stálo někoho celý život. Film o vytrvalosti, omylech a jednom šťastném odpoledni.
  Filmaři sledovali rok na jediném místě. Nic se nezměnilo, a přece je všechno jinak.
  Vědci, řemeslníci a pamětníci vyprávějí o tom, co se z učebnic vynechalo.
  Kolik práce se vejde do věci, kterou denně bereme do ruky? Překvapivá cesta na začátek.
nature=
  Rok s vydrami @ {divocina}
  Tajný život mechu @ {divocina}
  Návrat vlků @ {divocina}
  Ptačí dálnice @ {divocina}
  Pod hladinou rybníka @ {divocina}
  Království korálů @ {divocina}
  Les po setmění @ {divocina}
  Rysové na hranici @ {divocina}
  Hmyzí architekti @ {divocina}
  Zima medvědů @ {divocina}
  Řeka bez břehů @ {divocina}
divocina=
  Čtyři roční období v údolí, kam se nesmí jezdit autem. Kdo se umí dívat, uvidí i rysa.
  Mláďata mají šest týdnů na to, aby se naučila všechno. Voda zatím stoupá.
  Noční kamery zachytily, co ještě nikdo neviděl: největší samotář lesa má společnost.
  Na první pohled se tu neděje nic. Na druhý tu každou vteřinu někdo vyhrává a někdo prohrává.
history=
  Alchymisté císaře Rudolfa @ {dejiny}
  Poslední dny Kartága @ {dejiny}
  Solná stezka @ {dejiny}
  Stavitelé katedrál @ {dejiny}
  Ztracené loďstvo @ {dejiny}
  Císařovi zahradníci @ {dejiny}
  Hrady na obzoru @ {dejiny}
  Dámy v pozadí trůnu @ {dejiny}
  Století páry @ {dejiny}
  Špioni s diplomatickým pasem @ {dejiny}
dejiny=
  Archiv vydal listinu, kterou čtyři sta let nikdo neotevřel. Historikové se přou, kdo ji vlastně psal.
  Jedna noc rozhodla o osudu celého města. Co přesně se stalo, ví jen řeka.
  Podle nových nálezů bylo všechno jinak a zřejmě i dráž.
  Velké dějiny očima lidí, kteří v nich vařili, prali a čekali.
zeme=
  Gruzii/Gruzii
  Portugalsko/Portugalsku
  Skotsko/Skotsku
  Maroko/Maroku
  Albánii/Albánii
  Japonsko/Japonsku
  Norsko/Norsku
  Island/Islandu
  Peru/Peru
  Estonsko/Estonsku
  Slovinsko/Slovinsku
travel=
  Pěšky přes {k:zeme.1} @ {na_cestach}
  S batohem po {k:zeme.2} @ {na_cestach}
  Vlakem přes {k:zeme.1} @ {na_cestach}
  Toulky po Čechách @ {vylet} @ {na_cestach}
  Za humny @ {vylet} @ {na_cestach}
  Od pramene k ústí @ {vylet} @ {na_cestach}
vylet=
  Cesta {home:obec.3}
  Vzhůru na rozhlednu
  Podél staré trati
  Údolím mlýnů
  Po stopách formanů
  Hřebenovka
na_cestach=
  Jídlo je výborné, mapa nepřesná a domluvit se dá rukama. Další díl cesty, na které se nespěchá.
  Místo památek tentokrát lidé: převozník, pekařka a pán, který opravuje deštníky.
  Tři dny, jeden stan a počasí, které si nevybralo.
  Kam chodí místní, když chtějí mít klid? Prozradili to a hned litovali.
concert=
  {orchestr} hraje {skladatel} @ {hudba}
  Večer s hudbou: {skladatel_1} @ {hudba}
  Jazz na nádraží @ {hudba}
  Smyčce při svíčkách @ {hudba}
  Folk pod širým nebem @ {hudba}
  Varhany v klášterní kapli @ {hudba}
  Dechovka na návsi @ {hudba}
  Písničky ze zavřené hospody @ {hudba}
orchestr=
  Nádražní filharmonie
  Komorní orchestr Střekovice
  Podskalské kvarteto
  Symfonikové ze Strakova
skladatel=
  Dvořáka
  Smetanu
  Janáčka
  Mozarta
  Vivaldiho
  Beethovena
skladatel_1=
  Dvořák
  Smetana
  Martinů
  Suk
  Bach
  Haydn
hudba=
  Záznam koncertu, při kterém vypadl proud a nikdo v sále si toho nevšiml.
  Přímý přenos z vyprodaného sálu. Diriguje {man}.
  Sólistkou večera je {woman}. Přídavek si vyžádalo publikum i hasiči.
  Záznam z letního festivalu. Komáři byli z nahrávky odstraněni.
clips=
  Klipy na přání @ {hraje}
  Ranní ozvěna @ {hraje}
  Vinyl @ {hraje}
  Kazeťák @ {hraje}
  Tiché pondělky @ {hraje}
  Nová vlna a příliv @ {hraje}
hraje=
  Písničky, o které jste si napsali, a jedna, o kterou nikdo nestál.
  Hudba bez řečí. Mluví jen texty.
  Co se hrálo, když vám bylo sedmnáct, a co se hraje těm, kterým je sedmnáct dnes.
musicmag=
  Ladička @ {z_hudby}
  Za pultem zvukaře @ {z_hudby}
  Noty na okraj @ {z_hudby}
z_hudby=
  Rozhovor, zkušebna a tři nové desky. Hostem je {man}.
  Jak zní sál bez lidí a proč basisté nikdy nestojí vpředu. Ptáme se: {woman}.
klub=
  Sokol Kozí Lhota
  Slavoj Medvědice
  Jiskra Mokrá Hůrka
  Lokomotiva Strakov
  Spartak Vranín
  Tatran Lipnov
  Meteor Dolní Paseka
  Viktorie Střekovice
match=
  Fotbal: {k:klub} – {l:klub2} @ {#3-28}. kolo okresního přeboru. Na stadion dorazilo i slunce. Komentuje {man}.
  Hokej: {k:klub} – {l:klub2} @ {#4-42}. kolo krajské ligy. Led je tvrdý, hlasivky připravené. Komentuje {man}.
  Házená: {k:klub} – {l:klub2} @ Čtvrtfinále poháru žen. Komentuje {woman}.
  Volejbal: {k:klub} – {l:klub2} @ Rozhodující utkání série. Komentuje {man}.
  Florbal: {k:klub} – {l:klub2} @ Derby, na které se čekalo celou zimu. Komentuje {woman}.
klub2=
  Dynamo Borovany nad Splavem
  Čechie Horní Mlýny
  Olympia Pod Hrází
  Rudá hvězda Hliněnec
  Union Kamenná Stezka
  Baník Černá Strouha
race=
  Cyklistika: Kolem Kozí Lhoty @ {#2-7}. etapa vede přes tři kopce a jednu hospodu.
  Biatlon: stíhací závod {koho} @ Přímý přenos z areálu Stanice Horská. Fouká.
  Atletika: mítink ve Střekovicích @ Na programu je sprint, koule a překážky, které postavili včera.
  Motokros: Velká cena Mokré Hůrky @ Bláta je letos dost pro všechny.
  Vodní slalom: Dolní Paseka @ Světová špička a jeden domácí, který zná každý kámen.
  Psí spřežení: Havraní trail @ Jedenáct psů, jeden musher a teploměr, na který se nikdo nedívá.
  Orientační běh: mistrovství kraje @ Vítěz byl nalezen, dva závodníci se stále hledají.
koho=
  mužů
  žen
  štafet
classic=
  Zlatý fond: {klub} – {klub2} @ Utkání z roku {#1961-1998}, o kterém se mluví dodnes. Obraz je černobílý, hádky barevné.
  Návraty: finále {#1964-1996} @ Nastavený čas trval tři minuty. Vzpomínky na něj trvají celý život.
  Legendy: {man} @ Příběh sportovce, který nikdy nepřišel na trénink včas a nikdy neprohrál.
sportmag=
  Třetí poločas @ {o_sportu}
  Za mantinelem @ {o_sportu}
  Šatna @ {o_sportu}
  Studio {channel} @ {o_sportu}
o_sportu=
  Góly víkendu, sporná ofsajdová čára a host, který ji zakreslil: {man}.
  Rozbor kola, tabulka a otázka, proč se vždycky láme hokejka těsně před brankou.
  Kdo přestoupil, kdo zůstal a kdo si zapomněl kopačky. Hostem je {woman}.
sportnews=
  Sportovní zprávy @ {vysledky}
  Sport v kostce @ {vysledky}
vysledky=
  Výsledky dne, tabulky a jedna radost navíc.
  Přehled toho, co se hrálo, běželo i odložilo pro déšť.
)";

} // namespace guide::words
