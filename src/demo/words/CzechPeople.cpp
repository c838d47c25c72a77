#include "demo/Words.h"

namespace guide::words {

// People have the cases nominative, genitive, dative, accusative, locative and "with"; villages a name, "in",
// "to" and "from".
const char16_t* const kCzechPeople = uR"(
first_m=
  Alois
  Antonín
  Bedřich
  Bohumil
  Čeněk
  Dalibor
  Evžen
  Ferdinand
  Hynek
  Jáchym
  Jeroným
  Kryštof
  Leoš
  Matouš
  Mojmír
  Oldřich
  Otakar
  Přemysl
  Radim
  Svatopluk
  Šimon
  Štěpán
  Tadeáš
  Vilém
  Vít
  Zbyněk
first_f=
  Alžběta
  Anežka
  Běla
  Blažena
  Dorota
  Eliška
  Františka
  Hedvika
  Johana
  Judita
  Karolína
  Květa
  Ludmila
  Magdaléna
  Matylda
  Otýlie
  Rozálie
  Růžena
  Stela
  Valerie
  Viktorie
  Žofie
last=
  Bělohrádek/Bělohrádková
  Bublan/Bublanová
  Čapoun/Čapounová
  Daněček/Daněčková
  Havraník/Havraníková
  Jahelka/Jahelková
  Jestřáb/Jestřábová
  Kaštánek/Kaštánková
  Krahulík/Krahulíková
  Křepelka/Křepelková
  Lhotský/Lhotská
  Medek/Medková
  Nezbeda/Nezbedová
  Ořechovský/Ořechovská
  Pažout/Pažoutová
  Poledňák/Poledňáková
  Rákosník/Rákosníková
  Řeřicha/Řeřichová
  Skřivánek/Skřivánková
  Sojka/Sojková
  Strnad/Strnadová
  Šípek/Šípková
  Topinka/Topinková
  Vařečka/Vařečková
  Vlaštovička/Vlaštovičková
  Zedníček/Zedníčková
  Žemlička/Žemličková
man=
  {first_m} {last.1}
woman=
  {first_f} {last.2}

muz=
  hodinář/hodináře/hodináři/hodináře/hodináři/s hodinářem
  starosta/starosty/starostovi/starostu/starostovi/se starostou
  pošťák/pošťáka/pošťákovi/pošťáka/pošťákovi/s pošťákem
  kominík/kominíka/kominíkovi/kominíka/kominíkovi/s kominíkem
  houslista/houslisty/houslistovi/houslistu/houslistovi/s houslistou
  převozník/převozníka/převozníkovi/převozníka/převozníkovi/s převozníkem
  lékárník/lékárníka/lékárníkovi/lékárníka/lékárníkovi/s lékárníkem
  výpravčí/výpravčího/výpravčímu/výpravčího/výpravčím/s výpravčím
  zahradník/zahradníka/zahradníkovi/zahradníka/zahradníkovi/se zahradníkem
  vinař/vinaře/vinaři/vinaře/vinaři/s vinařem
  knihovník/knihovníka/knihovníkovi/knihovníka/knihovníkovi/s knihovníkem
  notář/notáře/notáři/notáře/notáři/s notářem
  řezbář/řezbáře/řezbáři/řezbáře/řezbáři/s řezbářem
  ředitel cirkusu/ředitele cirkusu/řediteli cirkusu/ředitele cirkusu/řediteli cirkusu/s ředitelem cirkusu
zena=
  knihovnice/knihovnice/knihovnici/knihovnici/knihovnici/s knihovnicí
  lékárnice/lékárnice/lékárnici/lékárnici/lékárnici/s lékárnicí
  herečka/herečky/herečce/herečku/herečce/s herečkou
  starostka/starostky/starostce/starostku/starostce/se starostkou
  tlumočnice/tlumočnice/tlumočnici/tlumočnici/tlumočnici/s tlumočnicí
  švadlena/švadleny/švadleně/švadlenu/švadleně/se švadlenou
  kadeřnice/kadeřnice/kadeřnici/kadeřnici/kadeřnici/s kadeřnicí
  fotografka/fotografky/fotografce/fotografku/fotografce/s fotografkou
  pošťačka/pošťačky/pošťačce/pošťačku/pošťačce/s pošťačkou
  restaurátorka/restaurátorky/restaurátorce/restaurátorku/restaurátorce/s restaurátorkou
  houslistka/houslistky/houslistce/houslistku/houslistce/s houslistkou
obec=
  Kozí Lhota/v Kozí Lhotě/do Kozí Lhoty/z Kozí Lhoty
  Mokrá Hůrka/v Mokré Hůrce/do Mokré Hůrky/z Mokré Hůrky
  Dolní Paseka/v Dolní Pasece/do Dolní Paseky/z Dolní Paseky
  Medvědice/v Medvědicích/do Medvědic/z Medvědic
  Strakov/ve Strakově/do Strakova/ze Strakova
  Lipnov/v Lipnově/do Lipnova/z Lipnova
  Vranín/ve Vraníně/do Vranína/z Vranína
  Střekovice/ve Střekovicích/do Střekovic/ze Střekovic
  Havraní Důl/v Havraním Dole/do Havraního Dolu/z Havraního Dolu

home_country=
  Česko/cs/Československo
far_country=
  USA/en/USA
  USA/en/USA
country=
  Česko/cs/Československo
  Česko/cs/Československo
  Česko/cs/Československo
  Slovensko/sk/Československo
  Francie/fr/Francie
  Velká Británie/en/Velká Británie
  USA/en/USA
facts_film_comedy=
  Komedie ({country} {year}).
facts_film_drama=
  Drama ({country} {year}).
facts_film_crime=
  Kriminální film ({country} {year}).
facts_film_thriller=
  Thriller ({country} {year}).
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
  Pohádka ({country} {year}).
facts_doc=
  Dokument ({country} {year}).
facts_nature=
  Dokument o přírodě ({country} {year}).
facts_history=
  Historický dokument ({country} {year}).
)";

} // namespace guide::words
