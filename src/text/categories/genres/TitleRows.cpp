#include "text/categories/genres/GenreRow.h"

#include <array>

namespace guide::genres {

namespace {

// clang-format off
constexpr std::array kRows{
    // News
    Row{kNews, kTitle,
        u"news|tagesschau|tagesthemen|heute journal|heute-journal|zeit im bild|rtl aktuell|nachrichten|"
        u"sat.1 nachrichten|newstime|newsflash|tagesschau24|abendschau|landesschau|wetter vor acht|"
        u"telebörse|euromaxx news|euronews|bbc news|world news|newsnight|newsround|wetterschau|meteo|"
        u"météo|panorama meteo|telegiornale|tg1|tg2|tg3|tg4|tg5|tg la7|tgr|tgcom24|tg regione|rai news|"
        u"rainews|rainews24|tg leonardo|tg24|tgs|tg|previsioni sulla viabilità|rassegna stampa|"
        u"notiziario|gr1|gr2|gr3|gr 1|gr 2|gr 3|telejournal|le journal|journal télévisé|19h30|"
        u"ici 12/13|ici 19/20|informe semanal|telediario|noticias 24h|informativos|telejornal|"
        u"jornal da noite|rtlz|nos journaal|nos studio|hart van nederland|dnevnik|večernji dnevnik|"
        u"teleexpress|liputan|kabar|kabar petang|berita|buletin|headline news|breaking news|"
        u"top stories|newsroom|newshour|newsline|bloomberg|business today|business news|squawk box|"
        u"nyhederne|uutiset|tv avisen|dagsrevyen"},
    Row{kNews, kShowName,
        u"rapport|jt|19/20|12/13|fakty|redaksi|seputar|aktuellt|nyheter|noticias|wiadomości|weather|"
        u"wetter|zib"},
    Row{kNews, kShowName,
        u"journal|info|newsmax|hardtalk|porta a porta|presa diretta|presadiretta|report|"
        u"mezz'ora in più|half hour more|otto e mezzo|l'aria che tira|omnibus|tagadà|piazzapulita|"
        u"dritto e rovescio|quarta repubblica|di martedì|dimartedì|fuori dal coro|agorà|coffee break|"
        u"zona bianca|in onda|diario del giorno|studio aperto|ore 14|maischberger|maybrit illner|"
        u"caren miosga|hart aber fair|anne will|markus lanz|monitor|report münchen|report mainz|"
        u"presseclub|politbarometer|phoenix runde|phoenix der tag|phoenix vor ort|unter den linden|"
        u"pinar atalay|wdr aktuell|aktuelle stunde|talk im hangar|im zentrum|runder tisch|pressestunde|"
        u"berlin direkt|bericht aus berlin|weltspiegel|europamagazin|auslandsjournal|frontal|plusminus|"
        u"kontraste|morgenmagazin|ard-morgenmagazin|zdf-morgenmagazin|mittagsmagazin|"
        u"ard-mittagsmagazin|zdf-mittagsmagazin|c dans l'air|télématin|telematin|good morning britain|"
        u"question time|politics live|prime minister's questions|sunday politics|newsday|inside africa|"
        u"quest means business|anderson cooper|gmb|the context|the papers|panorama"},
    Row{kNews, kWholeTitle,
        u"heute|aktuell|das wetter|rundschau|lokalzeit|hessenschau|nordmagazin|"
        u"schleswig-holstein magazin|hallo niedersachsen|hamburg journal|buten un binnen|"
        u"sachsenspiegel|mdr aktuell|mdr um 2|ndr info|brandenburg aktuell|schweiz aktuell|10vor10|"
        u"südtirol heute|bundesland heute|guten morgen österreich|mornings|newshour|l'info en continu|"
        u"punto notte|1mattina|unomattina|tgcom|meteo.it|che tempo fa|meteo 2|meteo 3|notiziario|"
        u"rai parlamento|tg parlamento|the day|dw news|the world today|ora exactă|"
        u"weather for the week ahead|regionalni dnevnik|24 hours"},
    // Sports
    Row{kSports, kTitle,
        u"bundesliga|2. bundesliga|3. liga|dfb-pokal|premier league|champions league|europa league|"
        u"conference league|serie a|serie b|laliga|la liga|ligue 1|ligue 2|eredivisie|ekstraklasa|"
        u"formula 1|formel 1|forma-1|formule 1|formuła 1|motogp|moto2|moto3|superbike|world superbike|"
        u"worldsbk|nascar|indycar|dtm|wrc|formula e|formel e|nba|nbl|nfl|nhl|mlb|mls|ncaa|ufc|wwe|"
        u"bellator|euroleague|eurocup|eurobasket|atp|wta|wimbledon|roland garros|roland-garros|us open|"
        u"australian open|davis cup|billie jean king cup|tour de france|giro d'italia|vuelta|la vuelta|"
        u"paris-roubaix|uefa|fifa|copa libertadores|coppa italia|coppa del mondo|fa cup|efl cup|"
        u"europa ligi|liga mistrů|liga majstrov|bajnokok ligája|lig prvaka|liga prvaka|super league|"
        u"chance liga|niké liga|otp bank liga|nb i|abl|extraliga|tipsport|fortuna liga|superliga|"
        u"super liga|eliteserien|allsvenskan|saudi pro league|eurogoals|six nations|rugby union|"
        u"pga tour|dp world tour|ryder cup|liv golf|diamond league|world cup|weltcup|weltmeisterschaft|"
        u"europameisterschaft|world championship|world championships|european championship|euro 2024|"
        u"euro 2028|em 2024|wm 2026|olympische spiele|olympic games|olympia live|paralympics|ski alpin|"
        u"skispringen|biathlon|rodeln|dakar|rally|rallye|snooker|darts|wrestling|kickboxing|"
        u"boxing night|lega pro|serie c|mondiali di|europei di|sportschau|sportstudio|"
        u"das aktuelle sportstudio|ran football|ran racing|sport clips|doppelpass|match of the day|"
        u"sportscenter|sport mediaset|tg sport|rai sport|dribbling|90° minuto|la domenica sportiva|"
        u"téléfoot|stade 2|tutto il calcio|sport news|world sport|sky sport|sports news|gp qatar|"
        u"goal arena|studio sport|le mans|fia|fim|wec|f1|gran premio|grand prix|velká cena|veľká cena|"
        u"nagydíj|padel|euroliga|aba liga|premijer liga|prva liga|hnl|supersport hnl|kup hrvatske|"
        u"copa america|copa del rey|africa cup of nations|afcon|concacaf|premiership|highland league|"
        u"championship football|k-1|ksw|oktagon|iihf|vuelta a españa|strade bianche|il lombardia|uci|"
        u"wingfoil|windsurf|surfing league|sailgp|top 14"},
    Row{kSports, kTitleStart,
        u"sport|sports|fußball|football|soccer|calcio|tennis|tenis|basket|basketball|basketbal|"
        u"handball|volleyball|pallavolo|eishockey|ice hockey|hockey|rugby|cyclisme|ciclismo|radsport|"
        u"cycling|motorsport|boxen|boxing|boxe|golf|athletics|leichtathletik|atletica|athlétisme|"
        u"atletika|gymnastics|badminton|tischtennis|swimming|nuoto|judo|triathlon|bowls|curling|fotbal|"
        u"futbal|futsal|hokej|ľadový hokej|lední hokej|cyklistika|lyžování|lyžovanie|skoky na lyžích|"
        u"skoky na lyžiach|běh na lyžích|sjezdové lyžování|zjazdové lyžovanie|alpské lyžování|biatlon|"
        u"biatlón|volejbal|stolní tenis|házená|hádzaná|florbal|krasobruslení|krasokorčuľovanie|plavání|"
        u"severská kombinace|nogomet|košarka|rukomet|odbojka|sci alpino|sci di fondo|salto con sci|"
        u"ginnastica|pattinaggio|ippica|combinata nordica|fútbol|baloncesto|futebol|voetbal|wielrennen|"
        u"schaatsen|piłka nożna|siatkówka|żużel|skoki narciarskie|kolarstwo|lekkoatletyka|futbols|"
        u"hokejs|basketbols|horse racing|motor racing|squash|equestrian|reiten|wintersport|speedway|"
        u"snowboard|langlauf|nordische kombination|live football|live cricket|live rugby|live tennis|"
        u"qualifiche|prove libere"},
    Row{0, kTitle,
        u"boxing day|box office|sport bild test|golf club murder|hockey mom|music box|rally round|"
        u"sport of kings"},
    // Music
    Row{kMusic, kTitle,
        u"in concert|live in concert|concerto per|sinfonia n|symphony no|symphonie nr|top of the pops|"
        u"jukebox|music videos|music video|videoclip|videoclips|musikvideos|klipmix|music non stop|"
        u"greatest hits|mtv music|mtv in the mix|hitparade|zdf-fernsehgarten musik|100% music|hits|"
        u"top 10 hits|playlist|unplugged|eurovision song contest|konzert|concert|koncert|"
        u"wiener philharmoniker|berliner philharmoniker|musikantenstadl|double shots|dj set|"
        u"nonstop music|chillout zone|rotazione musicale|musica no stop|"
        u"live at the apple music festival|live at montreux|zlatý slávik|new year's concert|"
        u"neujahrskonzert|top hits|zene|slágerek|mulatós|nóta|kívánságkosár|muzika|muzički spotovi|"
        u"muzički program|glazbeni program|narodna muzika|hudba|písničky|pesničky|hitparáda|"
        u"hudobný výber|opera|oper|operetta|sanremo|festival di sanremo|boiler room|music club|"
        u"music mix|music top|love songs|rock classics"},
    Row{0, kTitle, u"soap opera|space opera|phantom der oper mord|operation|concert tour murder"},
    // Children
    Row{kForChildren, kShowName,
        u"la squadra dei cuccioli|bluey|spongebob schwammkopf|dora|paddington|masha|máša a medvěd|"
        u"mascha und der bär|thomas & friends|trenino thomas|thomas und seine freunde|bob the builder|"
        u"bob, a mester|bořek stavitel|fireman sam|sam il pompiere|feuerwehrmann sam|tűzoltó sam|"
        u"požárník sam|winnie the pooh|mickey mouse|mickey egér|pizsihősök|ladybug|baby shark|"
        u"teletubbies|sesamstraße|sesame street|die sendung mit der maus|sandmännchen|sandman|"
        u"kikaninchen|löwenzahn|logo!|wissen macht ah|pumuckl|biene maja|maja|heidi|wickie|pippi|"
        u"vaiana|frozen|minions|pat a mat|krteček|krtek|bob a bobek|včelka maja|včielka maja|šmoulové|"
        u"šmolkovia|hupikék törpikék|smurfs|the smurfs|schlümpfe|i puffi|puffi|les schtroumpfs|"
        u"mimi-mimiverzum|44 cats|44 gatti|44 macska|44 γάτες|bing|hey duggee|ben and holly|"
        u"ben & holly|blaze|blaze and the monster machines|bubble guppies|the loud house|"
        u"a casa dei loud|gumball|gumball csodálatos világa|cartoon|cartoons|zig & sharko|"
        u"zig és sharko|zig und sharko|grizzy|grizzy e i lemming|oggy|gormiti|winx|geronimo stilton|"
        u"pimpa|barbapapà|barbapapa|alvin|alvinnn|noddy|nils holgersson|maya the bee|shaun the sheep|"
        u"shaun das schaf|shaun, a bárány|ovečka shaun|postman pat|crtani|mese|mesék|pohádka|rozprávka|"
        u"bajka|bajke|newsround|blue peter|okoo|ludo|zouzous|tfou|zwerg|muppets|muppet babies|sonic|"
        u"transformers|hurá do školky|studio kamarád|kouzelná školka|fidlibum|daj si čas|dobranocka|"
        u"wieczorynka|domisie|spokojnoj nochi|спокойной ночи, малыши|маша и медведь|смешарики|фиксики|"
        u"ну, погоди|три кота|лунтик|лека нощ, деца|nijntje|sinterklaasjournaal|bumba|samson|"
        u"kabouter plop"},
    Row{kForChildren, kTitle,
        u"peppa pig|paw patrol|mancs őrjárat|tlapková patrola|labková patrola|spongebob|spongyabob|"
        u"tom and jerry|tom & jerry|tom und jerry|tom a jerry|tom és jerry|scooby-doo|looney tunes|"
        u"barbie|monster high|masha e orso|disney junior|pj masks|miraculous|pokémon|pokemon|beyblade|"
        u"ninjago|lego|večerníček|teen titans go|tini titánok|winx club|dětské|detské|risanka|risanke|"
        u"crtani film|esti mese|rajzfilm|rajzfilmek|otroški program|disney channel|cbeebies|"
        u"my little pony"},
    Row{kForChildren, kTitle,
        u"népmesék|népmese|mesék|meséi|mesetár|esti mesék|kuckó|bajky|rozprávky|pohádky|pohádka|"
        u"rozprávka|pro děti|pre deti|gyerekeknek|für kinder|for kids|for children|per bambini|za decu|"
        u"za djecu|για παιδιά|детям|для детей|bērniem"},
    // Entertainment: formats that are sold to many countries and words of their names
    Row{kEntertainment, kTitle,
        u"masterchef|master chef|lego masters|awards|partička|verissimo|uomini e donne|hell's kitchen|"
        u"kitchen nightmares|come dine with me|das perfekte dinner|bake off|sütimester|sutimester|"
        u"gordon ramsay|jamie oliver|big brother|x factor|x-factor|got talent|next topmodel|"
        u"next top model|topmodell|topmodel|project runway|dancing with the stars|let's dance|"
        u"strictly come dancing|ballando con le stelle|stardance|take me out|love island|"
        u"temptation island|ex on the beach|the bachelor|bachelorette|der bachelor|90 day fiancé|"
        u"90 nap jegyesség|real housewives|feleségek luxuskivitelben|keeping up with the kardashians|"
        u"kardashian|say yes to the dress|farmer wants a wife|bauer sucht frau|gazda hledá|"
        u"shopping queen|pawn stars|zálogcsillagok|storage wars|storage hunters|hardcore pawn|"
        u"antiques roadshow|bares für rares|kitsch oder kunst|flog it|bargain hunt|cash in the attic|"
        u"who wants to be a millionaire|wer wird millionär|legyen ön is milliomos|"
        u"chi vuol essere milionario|milionář|milionár|milijunaš|tko želi biti milijunaš|família feud|"
        u"family feud|familien-duell|wheel of fortune|glücksrad|la ruota della fortuna|kolo štěstí|"
        u"koleso šťastia|szerencsekerék|deal or no deal|affari tuoi|áll az alku|gefragt - gejagt|"
        u"university challenge|questions pour un champion|des chiffres et des lettres|fort boyard|"
        u"n'oubliez pas les paroles|l'eredità|avanti un altro|reazione a catena|caduta libera|"
        u"ninja warrior|wipeout|takeshi's castle|fear factor|gogglebox|undercover boss|wife swap|"
        u"frauentausch|výměna manželek|secret millionaire|grand designs|escape to the country|"
        u"a place in the sun|homes under the hammer|location, location|property brothers|fixer upper|"
        u"love it or list it|house hunters|casa a prima vista|top gear|the grand tour|wheeler dealers|"
        u"fifth gear|talk show|talkshow|talk-show|late night|late show|tonight show|graham norton|"
        u"riverboat|kölner treff|ndr talk show|3 nach 9|inas nacht|heute-show|die anstalt|extra 3|"
        u"tv total|schlag den|wetten, dass|verstehen sie spaß|amici di maria|grande fratello|"
        u"l'isola dei famosi|c'è posta per te|striscia la notizia|tú sí que vales|tu si que vales|"
        u"tale e quale show|domenica in|la vita in diretta|pomeriggio cinque|mattino cinque|"
        u"i fatti vostri|è sempre mezzogiorno|la prova del cuoco|quattro ristoranti|4 ristoranti|"
        u"4 hotel|cucine da incubo|bake off italia|cortesie per gli ospiti|nudi e crudi|"
        u"naked and afraid|primo appuntamento|matrimonio a prima vista|married at first sight|"
        u"hochzeit auf den ersten blick|svatba na první pohled|házasság első látásra|price is right|"
        u"family fortunes|catchphrase|blankety blank|have i got news for you|mock the week|"
        u"8 out of 10 cats|would i lie to you|loose women|this morning|jeremy kyle|judge judy|"
        u"judge rinder|strafgericht|familiengericht|richter alexander hold|barbara salesch|"
        u"ulrich wetzel|soudce alexandr|súdna sieň|ellen degeneres|jerry springer|ridiculousness|"
        u"geordie shore|jersey shore|teen mom|are you the one|pimp my ride|just tattoo of us|"
        u"man v. food|diners, drive-ins|győzd le bobby flayt|beat bobby flay|cake boss|iron chef|"
        u"barefoot contessa|the pioneer woman|bitte lächeln|pleiten, pech|ups! die pannenshow|"
        u"funniest home videos|just for laughs|candid camera|camera café|átverés|kész átverés|"
        u"ázsia expressz|konyhafőnök|a konyhafőnök|vacsoracsata|hal a tortán|a nagy duett|"
        u"sztárban sztár|tvoje tvár má známý hlas|tvoje tvár znie povedome|tvoje lice zvuči poznato|"
        u"tvoj obraz znan zveni|zvezde granda|kolo sreće|kviz|quiz|kvíz|quizduell|totalni obrt|"
        u"milujem slovensko|čo ja viem|pošta pre teba|pošta pro tebe|všechnopárty|prostřeno|prestřeno|"
        u"bez servítky|na chalupě|pečie celé slovensko|peče celá země|jak se staví sen|nová záhrada|"
        u"nové bývanie|ruby ring|7 pádů honzy dědka|show jana krause|teleráno|telerano|snídaně s novou|"
        u"frühstücksfernsehen|sat.1-frühstücksfernsehen|good morning america|teleshop magazin|"
        u"gasztroangyal|kuchyně|kuchyňa|cooking|cucina|cuisine|kochen|szakács|konyha|konyhája|"
        u"konyhában|kuhar|kuhinja|kuvar|kuchař|kuchár|séf|ramsay|γη της ελιάς ψυχαγωγία|"
        u"τροχός της τύχης|ντιλ|survivor greece|μουρμούρα show|wedding|dream home|makeover|makeovers|"
        u"lotto|lottó|eurojackpot|keno|euromillions|sportka|bingo|oroscopo|l'oroscopo|horoskop|"
        u"horoscope"},
    Row{kEntertainment, kShowName,
        u"dobré ráno|survivor|the voice|superstar|idol|first dates|four weddings|farma|the chase|"
        u"potjera|the floor|1% club|countdown|pointless|mastermind|mama mení|amici 25|forum|taskmaster|"
        u"qi|lorraine|dr. phil|oprah|catfish|jackass|chopped|farm|a farm|dobd fel|zadruga|slagalica|"
        u"lovac|inkognito|fókusz|fókusz plusz|mokka|reggeli|aktív|propaganda|bake|chef|loto|astro"},
    Row{kVague | kEntertainment, kTitle, u"show|talk|magazin|kitchen"},
    // Drawn for adults
    Row{kAnimation | kAdult, kShowName,
        u"the simpsons|simpsons|die simpsons|i simpson|les simpson|simpsonovi|simpsonovci|"
        u"a simpson család|simpson család|simpsonowie|family guy|futurama|south park|american dad|"
        u"american dad!|amerikai fater|americký táta|američan táta|bob's burgers|bobovy burgery|"
        u"bob burgerfalodája|rick and morty|rick és morty|rick a morty|rick e morty|archer|"
        u"king of the hill|the cleveland show|beavis and butt-head|beavis und butt-head|big mouth|"
        u"disenchantment|robot chicken|drawn together|bojack horseman|griffin|i griffin|les griffin|"
        u"duncanville|solar opposites|the great north|harley quinn|smiling friends|"
        u"aqua teen hunger force|one piece|dragon ball|naruto|detektiv conan|hellsing|attack on titan|"
        u"death note"},
    // Series that are on everywhere
    Row{kSeries, kShowName,
        u"the big bang theory|agymenők|teorie velkého třesku|teória veľkého tresku|friends|jóbarátok|"
        u"přátelé|priatelia|two and a half men|két pasi|dva a půl chlapa|dva a pol chlapa|"
        u"how i met your mother|így jártam anyátokkal|jak jsem poznal vaši matku|young sheldon|"
        u"az ifjú sheldon|modern family|seinfeld|the king of queens|king of queens|"
        u"everybody loves raymond|ncis: los angeles|csi: miami|csi: ny|csi: vegas|la ley y el orden|"
        u"law and order|criminal minds|gyilkos elmék|myšlenky zločince|chicago p.d.|chicago fire|"
        u"chicago med|fbi|s.w.a.t|grey's anatomy|a grace klinika|dr. house|house m.d|doktor house|"
        u"columbo|monk|mentalist|the mentalist|castle|bones|dr. csont|elementary|hawaii five-0|magnum|"
        u"magnum p.i|walker, texas ranger|walker|a-team|baywatch|knight rider|macgyver|"
        u"inspector barnaby|kisvárosi gyilkosságok|l'ispettore barnaby|poirot|hercule poirot|"
        u"agatha christie's poirot|murdoch mysteries|murdoch rejtélyei|father brown|death in paradise|"
        u"meurtres au paradis|alarm für cobra 11|tatort|polizeiruf|die rosenheim-cops|rosenheim-cops|"
        u"kommissar rex|rex felügyelő|rex|komisař rex|komisár rex|der bergdoktor|in aller freundschaft|"
        u"gute zeiten, schlechte zeiten|sturm der liebe|rote rosen|unter uns|alles was zählt|"
        u"dahoam is dahoam|lindenstraße|emmerdale|coronation street|eastenders|hollyoaks|neighbours|"
        u"home and away|casualty|holby city|doctors|doctor who|the x-files|akte x|the walking dead|"
        u"game of thrones|trónok harca|breaking bad|better call saul|the blacklist|"
        u"the bold and the beautiful|beautiful|un posto al sole|don matteo|il commissario montalbano|"
        u"che dio ci aiuti|la promessa|il paradiso delle signore|terra amara|tempesta d'amore|"
        u"demain nous appartient|un si grand soleil|plus belle la vie|ici tout commence|"
        u"joséphine, ange gardien|ulice|ordinace v růžové zahradě|barátok közt|jóban rosszban|"
        u"drága örökösök|mintaapák|oteckovia|sestričky|búrlivé víno|gilmore girls|desperate housewives|"
        u"sex and the city|the office|scrubs|malcolm in the middle|alf|the nanny|die nanny|"
        u"married with children|rém rendes család|egy rém rendes család|ženatý se závazky|the middle|"
        u"mike & molly|2 broke girls|mom|the goldbergs|home improvement|az öreg hajó|heartland|"
        u"mcleod's daughters|dr. quinn|little house on the prairie|unsere kleine farm|"
        u"la casa nella prateria|bonanza|gunsmoke|charmed|bűbájos boszorkák|čarodějky|supernatural|"
        u"odaát|smallville|arrow|the flash|supergirl|vampire diaries|downton abbey|bridgerton|"
        u"the crown|call the midwife|all creatures great and small|line of duty|vera|endeavour|morse|"
        u"lewis|luther|sherlock|cagney & lacey|kojak|murder, she wrote|mord ist ihr hobby|"
        u"la signora in giallo|gyilkos sorok"},
    Row{kSeries, kTitle,
        u"big bang theory|ncis|csi|law & order|midsomer murders|cobra 11|soko|star trek|stargate"},
    // Documentaries
    Row{kDocumentaries, kTitle,
        u"documentary|dokumentation|doku|documentario|documentari|documentaire|dokument|dokumentarni|"
        u"dokumentární|dokumentárny|terra x|universum|planet erde|planet earth|blue planet|mayday|"
        u"air crash investigation|légikatasztrófák|ancient aliens|ősi idegenek|forensic files|"
        u"how it's made|hogyan készült|jak se to dělá|megastructures|mythbusters|állítólag|"
        u"deadliest catch|gold rush|aranyláz|goldrausch|airport security|border security|quark|"
        u"superquark|ulisse|overland|kilimangiaro|alle falde del kilimangiaro|linea verde|linea blu|"
        u"sereno variabile|passaggio a nord ovest|il tempo e la storia|passato e presente|"
        u"la grande storia|échappées belles|des racines et des ailes|faut pas rêver|thalassa|"
        u"envoyé spécial|zone interdite|enquête exclusive|reportage|reportages|cestománie|cestománia|"
        u"cestou necestou|putopis"},
    Row{kDocumentaries | kVague, kTitle,
        u"wildlife|safari|secrets of|tajemství|auschwitz|hitler|hitlers|holocaust|world war|"
        u"second world war|nazi|nazis|nazisté|nácik|shark week|big cats|expedice|expedition|expedíció"},
    // Blocks of a programme
    Row{kMovies, kWholeTitle,
        u"film|igrani film|domaći film|strani film|spielfilm|película|ταινία|ελληνική ταινία|"
        u"ξένη ταινία|кино|фильм|филм|игрален филм|játékfilm|film tv|cine|elokuva|spēlfilma|"
        u"film fabularny|yerli sinema|yabancı sinema|filmový program|film artistic"},
    Row{kSeries, kWholeTitle,
        u"serija|serijski program|seriál|telenovela|sorozat|σειρά|сериал|dizi|yerli dizi|telefilm|"
        u"série|serial|tv serija|serije"},
    Row{kMusic, kWholeTitle,
        u"muzika|glazba|musik|musica|hudba|zene|music|koncert|muzyka|μουσική|музыка|музика|müzik|"
        u"glasba|muzica|musique|muzički program|glazbeni program|narodna muzika|clips|clip"},
    Row{kDocumentaries, kWholeTitle,
        u"dokumentarni program|dokumentarni film|dokumentární film|dokumentárny film|dokumentumfilm|"
        u"ντοκιμαντέρ|документален филм|документарни програм|belgesel|film dokumentalny|documentar|"
        u"documental"},
    // Neither
    Row{kNothing, kTitle,
        u"klenot tv|teleshopping|teleshopping block|teleshop|infomercial|paid programming|"
        u"dauerwerbesendung|mediashop|qvc|hse|televendita|televendite|télé-achat|téléachat|"
        u"téléshopping|telezakupy|telenákup|telenakup|top shop|teleprodaja|tv prodaja|tv-prodaja|"
        u"tele prodaja|telekupovina|oglasni blok|epp|sendeschluss|sendepause|programmende|close down|"
        u"closedown|fin des programmes|fine trasmissioni|programmes de la nuit|konec vysílání|"
        u"koniec vysielania|přestávka ve vysílání|prestávka vo vysielaní|závěr vysílání|"
        u"záver vysielania|kraj programa|najava programa|reklamni blok|konec programu|τηλεπώλησης|"
        u"τηλεπώληση|ende der übertragung|studio aperto promo|műsorszünet|adásszünet|"
        u"this channel is now closed|no information|no programme|sign off|off air|to be announced|tba|"
        u"nema informacija|nema informacija o programu|keine sendungsinformationen|keine informationen|"
        u"nevysiela|noční tabule|monoscopio|test card|announcement|schlusstag|"
        u"εκπομπές τηλεοπτικών αγορών|τηλεαγορές|τηλεπωλήσεις|τηλεμάρκετινγκ|gottesdienst|"
        u"heilige messe|santa messa|svatá mše|svätá omša|szentmise|istentisztelet|holy mass|la messe|"
        u"teleshopping programme|messaggio promozionale|promo|marketing|reklama|werbung|publicité|"
        u"anuncios|propagační blok|program end|закрытие эфира|телемагазин|телешопинг|shopping|"
        u"commercials|tentative|rosario|angelus|rožaj|ruženec|růženec|rózsafüzér"},
};
// clang-format on

} // namespace

std::span<const Row> titleRows() {
    return kRows;
}

} // namespace guide::genres
