#include "demo/Words.h"

namespace guide::words {

const char16_t* const kCzechCompany = uR"(
breakfast=
  Dobré ráno s konvicí @ {rano}
  Ráno u okna @ {rano}
  Snídaně na dohled @ {rano}
rano=
  Zprávy, počasí, rozhovory a káva, která ještě nestihla vystydnout. Hostem je {man}.
  Co dnes nezapomenout, co uvařit a kam s deštníkem. Hostem je {woman}.
morning=
  První vydání @ {rano}
  Ranní minuta @ {rano}
news=
  Zprávy televize {channel} @ {udalosti}
  Zprávy z domova a ze světa @ {udalosti}
  Zpravodajství @ {udalosti}
  Zprávy @ {udalosti}
udalosti=
  Co se stalo, proč se to stalo a co s tím bude dál.
  Přehled nejdůležitějších zpráv z domova i ze světa.
  Zprávy, reportáže a živé vstupy. U nás dřív než u sousedů.
flash=
  Zprávy v kostce @ {udalosti}
  Krátké zprávy @ {udalosti}
  Zprávy za minutu @ {udalosti}
weather=
  Počasí @ {obloha}
  Kam s deštníkem @ {obloha}
  Předpověď počasí @ {obloha}
obloha=
  Ráno mlhy, odpoledne polojasno, večer se uvidí.
  Od západu přeháňky, od východu naděje. Teploty podle kalendáře.
  Jasno až polojasno, v údolích inverze. Vítr slabý, proměnlivý jako předpovědi.
region=
  Zprávy z kraje @ {v_kraji}
  Okresní noviny @ {v_kraji}
  Náš kraj @ {v_kraji}
v_kraji=
  Nová lávka, stará škola a spor o lípu na návsi. Zprávy z míst, kam jinak nikdo nejezdí.
  {^home:obec.2} otevřeli knihovnu a první čtenář si půjčil žebřík.
  Proč stojí objížďka, kdo opravil kašnu a kde se letos nekonají hody.
  Zastupitelé se přou o lavičku. Jedni ji chtějí na slunci, druzí ve stínu a třetí na ní už sedí.
  Hasiči oslavili sto let sboru. Hořelo jen na ohništi.
business=
  Burza a peněženka @ {penize}
  Ekonomika srozumitelně @ {penize}
  Účtenka @ {penize}
penize=
  Kurzy, ceny a otázka, komu se dnes vyplatilo nic nedělat.
  Hypotéky, nafta, máslo. A graf, který jde poprvé doprava.
press=
  Přehled tisku @ {noviny}
  Co píšou jiní @ {noviny}
noviny=
  Deset titulků, tři názory a jedna oprava.
  Listujeme domácím i zahraničním tiskem. Křížovku necháváme na vás.
interview=
  Tváří v tvář @ {rozhovor}
  Otázky bez obalu @ {rozhovor}
  Host hodiny @ {rozhovor}
rozhovor=
  Dvacet minut, jeden host a žádné vytáčky. Pozvání přijal {man}.
  Dvacet minut, jeden host a sklenice vody. Pozvání přijala {woman}.
debate=
  Kulatý stůl @ {hadka}
  Pro a proti @ {hadka}
  Poslední slovo @ {hadka}
hadka=
  Má stát opravovat mosty dřív, než spadnou? Hosté se neshodnou už na přípitku.
  Kolik škol potřebuje malé město a kolik měst zvládne velká škola. Debatu řídí {woman}.
  Dva ministři, jeden starosta a graf, kterému rozumí jen moderátor. Debatu řídí {man}.
talk=
  Křeslo pro dva @ {povidani}
  Bez kravaty @ {povidani}
  Na kávě s hostem @ {povidani}
  Hovory po setmění @ {povidani}
povidani=
  O divadle, koních a jednom dlouhém mlčení vypráví {woman}.
  Proč přestal hrát, když ho začali poznávat na ulici? Hostem je {man}.
  Herečka {woman} a chirurg {man} zjistí, že spolu chodili do školky.
quiz=
  Kdo ví víc @ {otazky}
  Otázka za tisíc @ {otazky}
  Třetí nápověda @ {otazky}
  Slovo dá slovo @ {otazky}
  Rodina proti rodině od vedle @ {otazky}
otazky=
  Tři soutěžící, deset otázek a žádné opisování. Soutěží provází {man}.
  Dnes se hraje o zájezd {home:obec.3} a zpátky. Soutěží provází {woman}.
  Učitelky proti hasičům. Kdo prohraje, myje tabuli.
show=
  Talent z vedlejší ulice @ {estrada}
  Velká sobotní sázka @ {estrada}
  Tančí celá obec @ {estrada}
  Písnička pro sousedku @ {estrada}
estrada=
  Semifinále. Porota je přísná, dirigent nervózní a kouzelník tvrdí, že králíka měl.
  Velký zábavný pořad ze sálu, kde letos konečně topí. Moderují {woman} a {man}.
  Osm párů, jeden parket a rumba, na kterou se nezapomíná.
magazine=
  Kolem dokola @ {o_lidech}
  Dobrý soused @ {o_lidech}
  Zblízka @ {o_lidech}
  Auta a jiné lásky @ {o_lidech}
  Rady nad zlato @ {o_lidech}
o_lidech=
  Jak ušetřit za teplo, kde opraví varnou konvici a proč se vyplatí znát sousedy.
  Příběhy lidí, kteří změnili obor po padesátce. Jeden z nich dvakrát.
  Test deseti zavařovacích sklenic a výlet za mužem, který je sbírá.
cooking=
  Na pánvi @ {recept}
  Polévka je grunt @ {polevka}
  Knedlík a jeho svět @ {recept}
  Vařečkou kolem světa @ {recept}
  Babiččin zápisník @ {recept}
recept=
  Svíčková, o které se rodiny hádají tři generace. Dnes bez rozinek.
  Kulajda, houbový kuba a tvarohový koláč. Vaří {woman}.
  Co s přezrálými hruškami? Čtyři nápady a jeden likér. Vaří {man}.
polevka=
  Bramboračka podle šéfkuchaře {home:obec.4}. Majoránky nikdy není dost.
  Kulajda, jak ji vařila prababička, a kopr, kterého se bojí děti.
  Silný vývar je základ. Zbytek jsou nudle. Vaří {woman}.
garden=
  Zelený palec @ {zahrada}
  Kompost @ {zahrada}
  Slimák v salátu @ {zahrada}
  Záhon číslo pět @ {zahrada}
zahrada=
  Kdy řezat jabloň, jak oblafnout slimáka a proč rajče nesnáší průvan.
  Kam s cibulovinami a návštěva zahrady, kterou založil pradědeček.
  Kompost bez zápachu existuje. Ukážeme vám ho, jen si přivoňte.
hobby=
  Kutil v garáži @ {dilna}
  Všechno drží na drátě @ {dilna}
  Houbařova ročenka @ {houby}
  Modeláři @ {modely}
dilna=
  Stavíme včelín, opravujeme židli a jednou si přeměřujeme dvakrát.
  Police, která drží. Vodováha prozradí i to, co jste vědět nechtěli.
  Kam se ztrácejí šroubky a proč po opravě vždycky jeden zbude.
houby=
  Hřib, který není hřib, a jak to poznat dřív než v nemocnici.
  Kulajda, smaženice a místa, která vám nikdo neprozradí. My také ne.
modely=
  Vláčky, které jezdí načas. Aspoň doma ve sklepě.
  Letadlo z balzy, trpělivost z oceli. Návštěva u mistra republiky, který nikdy neletěl.
kidshow=
  Dílna strýčka Hoblíka @ {vyrabime}
  Abeceda v kapse @ {pismena}
  Proč a proto @ {pokusy}
  Rozcvička se žížalou @ {cviceni}
vyrabime=
  Dnes vyrábíme draka z novin a zjistíme, proč létá lépe než opravdový.
  Loďka z ořechové skořápky, plachta ze starého kapesníku a vítr z plných plic.
  Co všechno se dá postavit z krabice od bot. Skoro všechno, jen ne bota.
pismena=
  Písmeno Ř a všichni, kdo ho umějí zavrčet.
  Písmeno Š se dnes schovalo. Šup do šuplíku, ať ho najdeme první.
  Písmeno O se kutálí z kopce. Kdo ho chytí, smí si vymyslet slovo.
pokusy=
  Proč je obloha modrá, tráva zelená a teta v neděli bledá? Pokusy pro zvídavé.
  Jak dostat vajíčko do láhve a pak zase ven? Zkusíme obojí.
  Proč mydlina neplave a lžička nelétá. A co se stane, když je prohodíme.
cviceni=
  Natáhnout, stočit a zase natáhnout. Žížala cvičí s námi a nikam nespěchá.
  Pět cviků pro ty, kdo ještě spí, a jeden pro ty, kdo už zase.
signoff=
  Pst! {channel} spí @ Dobrou noc, děti. Vysílání začíná zase v šest.
moviemag=
  Kino u kávy @ {o_filmu}
  Titulky @ {o_filmu}
o_filmu=
  Premiéry týdne, rozhovor s kameramankou a scéna, která se točila čtyřicetkrát.
  Kdo stříhá, ten mluví: návštěva ve střižně, kde vznikl film roku.
short=
  Pohlednice {home:obec.4} @ Krátké zastavení pod věží, u kašny a za pecí.
  Medailonek: {man} @ Pět minut o člověku, kterého jste viděli stokrát.
  Pozvánka na večer @ Co dnes uvidíte, když vydržíte.
  Hudební přestávka @ Hraje Podskalské kvarteto.
  Zlatá ručička @ Jedna rada, jeden šroubek.
shop=
  Nákup z křesla @ Hrnce, matrace a nůž, který krájí i samotnou reklamu.
  Teleobchod @ Dnes dva za cenu tří.
night=
  Kamery na horách @ Pohledy z hřebenů, zvuk větru a občas liška.
  Akvárium @ Ryby. Celou noc.
  Noc na nádraží @ Projíždějí nákladní vlaky, čas ukazují hodiny v hale.
)";

} // namespace guide::words
