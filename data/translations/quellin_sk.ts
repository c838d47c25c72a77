<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk">
<context>
    <name>Guide</name>
    <message>
        <source>No shows to come</source>
        <translation>Žiadne ďalšie relácie</translation>
    </message>
    <message>
        <source>The schedule of this channel has run out. Refresh to look for a newer one.</source>
        <translation>Program tohto kanála sa skončil. Obnovením vyhľadáte novší.</translation>
    </message>
    <message>
        <source>Refreshing</source>
        <translation>Obnovuje sa</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Obnoviť</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Prehrať</translation>
    </message>
    <message>
        <source>Currently</source>
        <translation>Práve beží</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Všetko</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Upozornenia</translation>
    </message>
    <message>
        <source>No TV shows in this category</source>
        <translation>V tejto kategórii nie sú žiadne relácie</translation>
    </message>
    <message>
        <source>Currently, there are no TV shows in this category for the TV channels you have selected or have not being loaded yet.
TV Shows are categorized heuristically.</source>
        <translation>Na vybraných kanáloch teraz v tejto kategórii žiadne relácie nie sú alebo sa ešte nenačítali.
Relácie sa do kategórií zaraďujú odhadom.</translation>
    </message>
    <message>
        <source>There is nothing to show currently.
Please wait until TV listings have loaded.</source>
        <translation>Teraz nie je čo zobraziť.
Počkajte, kým sa program načíta.</translation>
    </message>
    <message>
        <source>Past shows</source>
        <translation>Odvysielané diely</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Upraviť</translation>
    </message>
    <message>
        <source>Updating alerts</source>
        <translation>Upozornenia sa aktualizujú</translation>
    </message>
    <message>
        <source>No favourites yet</source>
        <translation>Zatiaľ žiadne obľúbené</translation>
    </message>
    <message>
        <source>The broadcasts of your favourites appear here. Swipe a show to the left, or right-click it, to make it a favourite.</source>
        <translation>Tu sa objavia vysielania vašich obľúbených relácií. Medzi obľúbené reláciu pridáte potiahnutím doľava alebo pravým tlačidlom myši.</translation>
    </message>
    <message>
        <source>Swipe a show to the left, or right-click it, to make it a favourite.</source>
        <translation>Medzi obľúbené reláciu pridáte potiahnutím doľava alebo pravým tlačidlom myši.</translation>
    </message>
    <message>
        <source>See what is on now</source>
        <translation>Čo práve beží</translation>
    </message>
    <message>
        <source>No favourite is broadcast soon</source>
        <translation>Žiadna obľúbená relácia sa čoskoro nevysiela</translation>
    </message>
    <message>
        <source>The schedules of your channels do not list any of your favourites.</source>
        <translation>V programe vašich kanálov nie je žiadna z obľúbených relácií.</translation>
    </message>
    <message>
        <source>Edit favourites</source>
        <translation>Upraviť obľúbené</translation>
    </message>
    <message>
        <source>Choose channels</source>
        <translation>Vybrať kanály</translation>
    </message>
    <message>
        <source>No broadcast to come</source>
        <translation>Žiadne ďalšie vysielanie</translation>
    </message>
    <message>
        <source>The schedules of your channels do not list “%1”.</source>
        <translation>Program vašich kanálov reláciu „%1“ neobsahuje.</translation>
    </message>
    <message>
        <source>No alerts</source>
        <translation>Žiadne upozornenia</translation>
    </message>
    <message>
        <source>The shows that you are alerted to appear here.</source>
        <translation>Tu sa objavia relácie, na ktoré vás sprievodca upozorní.</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Obľúbené</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Odobrať všetko</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odobrať</translation>
    </message>
    <message>
        <source>“%1” is no longer a favourite</source>
        <translation>„%1“ už nie je medzi obľúbenými</translation>
    </message>
    <message>
        <source>All favourites removed</source>
        <translation>Všetky obľúbené odobraté</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Vrátiť späť</translation>
    </message>
    <message>
        <source>Remove all favorite shows?</source>
        <translation>Odobrať všetky obľúbené relácie?</translation>
    </message>
    <message>
        <source>No channels yet</source>
        <translation>Zatiaľ žiadne kanály</translation>
    </message>
    <message>
        <source>What is on now appears here once you have chosen channels under Selected Channels.</source>
        <translation>Čo práve beží, uvidíte tu, keď si zvolíte kanály na karte Vybrané kanály.</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Načítava sa</translation>
    </message>
    <message>
        <source>No source for this channel</source>
        <translation>Kanál nemá žiadny zdroj</translation>
    </message>
    <message>
        <source>No answer from %1</source>
        <translation>%1 neodpovedá</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Žiadna odpoveď</translation>
    </message>
    <message>
        <source>Status %1 from %2</source>
        <translation>%2 odpovedá stavom %1</translation>
    </message>
    <message>
        <source>Not a schedule: %1</source>
        <translation>Nie je to program: %1</translation>
    </message>
    <message>
        <source>Not a schedule</source>
        <translation>Nie je to program</translation>
    </message>
    <message>
        <source>No shows of this channel from %1</source>
        <translation>%1 nemá relácie tohto kanála</translation>
    </message>
    <message>
        <source>No shows of this channel</source>
        <translation>Žiadne relácie tohto kanála</translation>
    </message>
    <message>
        <source>Only past shows from %1</source>
        <translation>%1 má len minulé relácie</translation>
    </message>
    <message>
        <source>Only past shows</source>
        <translation>Len minulé relácie</translation>
    </message>
    <message>
        <source>The source %1 could not be read</source>
        <translation>Zdroj %1 sa nepodarilo prečítať</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Skúsiť znova</translation>
    </message>
    <message>
        <source>Updated </source>
        <translation>Aktualizované </translation>
    </message>
    <message>
        <source>All Shows</source>
        <translation>Všetky relácie</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategórie</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hľadať</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Plán</translation>
    </message>
    <message>
        <source>Selected Channels</source>
        <translation>Vybrané kanály</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanály</translation>
    </message>
    <message>
        <source>On now</source>
        <translation>Práve beží</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Obľúbené</translation>
    </message>
    <message>
        <source>Alarm set</source>
        <translation>Upozornenie nastavené</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Späť</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavrieť</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vymazať</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Hodiny</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minúty</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Presunúť</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Odstrániť</translation>
    </message>
    <message>
        <source>Popular</source>
        <translation>Obľúbené u divákov</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Vybrané</translation>
    </message>
    <message>
        <source>This profile cannot be written. Changes will not be saved.</source>
        <translation>Do tohto profilu nemožno zapisovať. Zmeny sa neuložia.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Včera</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dnes</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Zajtra</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>Subheading:</source>
        <translation>Podtitul:</translation>
    </message>
    <message>
        <source>Details:</source>
        <translation>Podrobnosti:</translation>
    </message>
    <message>
        <source>Episode Description:</source>
        <translation>Popis časti:</translation>
    </message>
    <message>
        <source>Directed By:(p)</source>
        <translation>Režiséri:</translation>
    </message>
    <message>
        <source>Directed By:</source>
        <translation>Réžia:</translation>
    </message>
    <message>
        <source>Roles:</source>
        <translation>Hrajú:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Popis:</translation>
    </message>
    <message numerus="yes">
        <source>Starts in %n min</source>
        <translation>
            <numerusform>Začína o %n min</numerusform>
            <numerusform>Začína o %n min</numerusform>
            <numerusform>Začína o %n min</numerusform>
        </translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Skončilo</translation>
    </message>
    <message numerus="yes">
        <source>%n min left</source>
        <translation>
            <numerusform>zostáva %n min</numerusform>
            <numerusform>zostávajú %n min</numerusform>
            <numerusform>zostáva %n min</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>zostáva %1</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>Repríza</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Žiadne</translation>
    </message>
    <message>
        <source>At beginning of the show</source>
        <translation>Na začiatku relácie</translation>
    </message>
    <message>
        <source>%1h before</source>
        <translation>%1 h vopred</translation>
    </message>
    <message>
        <source>%1min before</source>
        <translation>%1 min vopred</translation>
    </message>
    <message>
        <source>%1 (any broadcast)</source>
        <translation>%1 (každé vysielanie)</translation>
    </message>
    <message>
        <source>%1 (every replay)</source>
        <translation>%1 (každá repríza)</translation>
    </message>
    <message>
        <source>%1 (every premiere)</source>
        <translation>%1 (každá premiéra)</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>Obľúbené</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Upozornenie</translation>
    </message>
    <message>
        <source>Trailer</source>
        <translation>Ukážka</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Obrázky</translation>
    </message>
    <message>
        <source>More broadcasts</source>
        <translation>Ďalšie vysielania</translation>
    </message>
    <message>
        <source>Past broadcasts</source>
        <translation>Minulé vysielania</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>Kopírovať odkaz</translation>
    </message>
    <message>
        <source>Link copied</source>
        <translation>Odkaz skopírovaný</translation>
    </message>
    <message numerus="yes">
        <source>Show all %n</source>
        <translation>
            <numerusform>Zobraziť všetkých (%n)</numerusform>
            <numerusform>Zobraziť všetkých (%n)</numerusform>
            <numerusform>Zobraziť všetkých (%n)</numerusform>
        </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Akcie</translation>
    </message>
    <message>
        <source>You have to allow access to your calendars to be able to use alerts. Calendar data will only be used by the application on your device, and will not be sent to any other device or service. Go to &apos;Privacy&apos; in the &apos;Settings&apos; application.</source>
        <translation>Aby ste mohli používať upozornenia, musíte povoliť prístup k svojim kalendárom. Údaje z kalendára používa aplikácia len vo vašom zariadení a neposiela ich do žiadneho iného zariadenia ani služby. Prejdite do „Súkromia“ v aplikácii „Nastavenia“.</translation>
    </message>
    <message>
        <source>Search pattern</source>
        <translation>Hľadaný text</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Informácie</translation>
    </message>
    <message numerus="yes">
        <source>Titles, descriptions and people in the shows of your %n channel(s) are searched.</source>
        <translation>
            <numerusform>Prehľadávajú sa názvy, popisy a osoby v reláciách vášho kanála.</numerusform>
            <numerusform>Prehľadávajú sa názvy, popisy a osoby v reláciách vašich %n kanálov.</numerusform>
            <numerusform>Prehľadávajú sa názvy, popisy a osoby v reláciách vašich %n kanálov.</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Čo hľadáte?</translation>
    </message>
    <message>
        <source>Recent searches</source>
        <translation>Nedávne hľadania</translation>
    </message>
    <message>
        <source>Clear recent searches</source>
        <translation>Vymazať nedávne hľadania</translation>
    </message>
    <message>
        <source>Recent searches cleared</source>
        <translation>Nedávne hľadania vymazané</translation>
    </message>
    <message numerus="yes">
        <source>No show matches “%1” on your %n channel(s)</source>
        <translation>
            <numerusform>Na vašom kanáli žiadna relácia nezodpovedá textu „%1“</numerusform>
            <numerusform>Na vašich %n kanáloch žiadna relácia nezodpovedá textu „%1“</numerusform>
            <numerusform>Na vašich %n kanáloch žiadna relácia nezodpovedá textu „%1“</numerusform>
        </translation>
    </message>
    <message>
        <source>Only the shows of selected channels are searched.</source>
        <translation>Prehľadávajú sa len relácie vybraných kanálov.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Poznámka</translation>
    </message>
    <message>
        <source>Only selected channels will be searched.</source>
        <translation>Prehľadajú sa len vybrané kanály.</translation>
    </message>
    <message>
        <source>No list yet</source>
        <translation>Zatiaľ bez zoznamu</translation>
    </message>
    <message>
        <source>Most Watched counts the alarms and favourites of everyone who shares a cloud store with you. No such list was received yet.</source>
        <translation>Najsledovanejšie sa počítajú z upozornení a obľúbených všetkých, ktorí s vami zdieľajú cloudové úložisko. Taký zoznam zatiaľ neprišiel.</translation>
    </message>
    <message>
        <source>None today</source>
        <translation>Dnes nič</translation>
    </message>
    <message numerus="yes">
        <source>%n show(s) today</source>
        <translation>
            <numerusform>Dnes %n relácia</numerusform>
            <numerusform>Dnes %n relácie</numerusform>
            <numerusform>Dnes %n relácií</numerusform>
        </translation>
    </message>
    <message>
        <source>Most Watched</source>
        <translation>Najsledovanejšie</translation>
    </message>
    <message>
        <source>Evening Shows</source>
        <translation>Večerné relácie</translation>
    </message>
    <message>
        <source>Feature Films</source>
        <translation>Celovečerné filmy</translation>
    </message>
    <message>
        <source>TV Series</source>
        <translation>Seriály</translation>
    </message>
    <message>
        <source>Documentaries</source>
        <translation>Dokumenty</translation>
    </message>
    <message>
        <source>For Children</source>
        <translation>Pre deti</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Spravodajstvo</translation>
    </message>
    <message>
        <source>Entertainment</source>
        <translation>Zábava</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Hudba</translation>
    </message>
    <message>
        <source>Sports</source>
        <translation>Šport</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Filmy</translation>
    </message>
    <message>
        <source>Comedies</source>
        <translation>Komédie</translation>
    </message>
    <message>
        <source>Adventure</source>
        <translation>Dobrodružné</translation>
    </message>
    <message>
        <source>Crime</source>
        <translation>Krimi</translation>
    </message>
    <message>
        <source>Westerns</source>
        <translation>Westerny</translation>
    </message>
    <message>
        <source>Dramas</source>
        <translation>Drámy</translation>
    </message>
    <message>
        <source>Thrillers</source>
        <translation>Trilery</translation>
    </message>
    <message>
        <source>SF</source>
        <translation>Sci-fi</translation>
    </message>
    <message>
        <source>Fantasy</source>
        <translation>Fantasy</translation>
    </message>
    <message>
        <source>Horrors</source>
        <translation>Horory</translation>
    </message>
    <message>
        <source>Go to a tab</source>
        <translation>Prejsť na kartu</translation>
    </message>
    <message>
        <source>Clear, close or go back</source>
        <translation>Vymazať, zavrieť alebo späť</translation>
    </message>
    <message>
        <source>Move through a list</source>
        <translation>Pohyb v zozname</translation>
    </message>
    <message>
        <source>Open the row</source>
        <translation>Otvoriť riadok</translation>
    </message>
    <message>
        <source>Choose the rows since the last one</source>
        <translation>Vybrať riadky od posledného vybraného</translation>
    </message>
    <message>
        <source>Actions on the row</source>
        <translation>Akcie s riadkom</translation>
    </message>
    <message>
        <source>Remove the row</source>
        <translation>Odobrať riadok</translation>
    </message>
    <message>
        <source>Move the row</source>
        <translation>Presunúť riadok</translation>
    </message>
    <message>
        <source>Show these keys</source>
        <translation>Zobraziť tieto klávesy</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Ukončiť</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Klávesy</translation>
    </message>
    <message>
        <source>This is not the address of a stream.</source>
        <translation>Toto nie je adresa vysielania.</translation>
    </message>
    <message>
        <source>Streaming of this video is currently unavailable or your Internet connection speed is not adequate.</source>
        <translation>Vysielanie tohto videa teraz nie je k dispozícii alebo rýchlosť vášho pripojenia k internetu nestačí.</translation>
    </message>
    <message>
        <source>This device cannot decode the stream. Installing %1 may help.</source>
        <translation>Toto zariadenie vysielanie nedokáže dekódovať. Môže pomôcť inštalácia %1.</translation>
    </message>
    <message>
        <source>This is not the address of a show.</source>
        <translation>Toto nie je adresa relácie.</translation>
    </message>
    <message>
        <source>This show is over, or not on your channels.</source>
        <translation>Táto relácia sa už skončila alebo nie je na vašich kanáloch.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Hlasitosť</translation>
    </message>
    <message>
        <source>Pictures cannot be drawn: the package %1 is missing.</source>
        <translation>Obraz sa nedá kresliť: chýba balíček %1.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastaviť</translation>
    </message>
    <message>
        <source>Previous channel</source>
        <translation>Predchádzajúci kanál</translation>
    </message>
    <message>
        <source>Next channel</source>
        <translation>Ďalší kanál</translation>
    </message>
    <message>
        <source>Sound on</source>
        <translation>Zapnúť zvuk</translation>
    </message>
    <message>
        <source>Sound off</source>
        <translation>Vypnúť zvuk</translation>
    </message>
    <message>
        <source>Leave full screen</source>
        <translation>Ukončiť celú obrazovku</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Celá obrazovka</translation>
    </message>
    <message>
        <source>Picture %1 of %2</source>
        <translation>Obrázok %1 z %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>Predchádzajúci obrázok</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>Ďalší obrázok</translation>
    </message>
    <message>
        <source>Add channels</source>
        <translation>Pridať kanály</translation>
    </message>
    <message>
        <source>Choose the channels whose shows you want to see.</source>
        <translation>Vyberte kanály, ktorých relácie chcete vidieť.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>Unselect all</source>
        <translation>Zrušiť výber všetkých</translation>
    </message>
    <message>
        <source>Unselect</source>
        <translation>Zrušiť výber</translation>
    </message>
    <message>
        <source>Unselect all selected channels?</source>
        <translation>Zrušiť výber všetkých vybraných kanálov?</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1: odobraté</translation>
    </message>
    <message>
        <source>Move to top</source>
        <translation>Presunúť hore</translation>
    </message>
    <message>
        <source>Search all channels</source>
        <translation>Hľadať vo všetkých kanáloch</translation>
    </message>
    <message>
        <source>All channels</source>
        <translation>Všetky kanály</translation>
    </message>
    <message>
        <source>No channels</source>
        <translation>Žiadne kanály</translation>
    </message>
    <message>
        <source>The catalogue is empty.</source>
        <translation>Katalóg je prázdny.</translation>
    </message>
    <message>
        <source>No channel matches “%1”</source>
        <translation>Hľadaniu „%1“ nezodpovedá žiadny kanál</translation>
    </message>
    <message>
        <source>The search looks at the titles and languages of all channels.</source>
        <translation>Hľadá sa v názvoch a jazykoch všetkých kanálov.</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Vybrať všetko</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Vybrať</translation>
    </message>
    <message>
        <source>No schedule yet</source>
        <translation>Zatiaľ bez programu</translation>
    </message>
    <message>
        <source>updated just now</source>
        <translation>práve aktualizované</translation>
    </message>
    <message>
        <source>The channels that you have chosen appear here.</source>
        <translation>Tu sa zobrazia vybrané kanály.</translation>
    </message>
    <message>
        <source>No live stream</source>
        <translation>Bez živého vysielania</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Varovanie</translation>
    </message>
    <message>
        <source>This is a recurring alarm. Are you sure?</source>
        <translation>Toto upozornenie sa opakuje. Naozaj ho chcete zrušiť?</translation>
    </message>
    <message>
        <source>Remove alarm</source>
        <translation>Zrušiť upozornenie</translation>
    </message>
    <message>
        <source>This will also remove all alarms set on this show. Are you sure?</source>
        <translation>Zrušia sa aj všetky upozornenia na túto reláciu. Chcete pokračovať?</translation>
    </message>
    <message>
        <source>Remove favorite</source>
        <translation>Odobrať z obľúbených</translation>
    </message>
    <message>
        <source>Set alarm</source>
        <translation>Nastaviť upozornenie</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušiť</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s) removed</source>
        <translation>
            <numerusform>%n kanál odobratý</numerusform>
            <numerusform>%n kanály odobraté</numerusform>
            <numerusform>%n kanálov odobratých</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Select %n channel(s)?</source>
        <translation>
            <numerusform>Vybrať %n kanál?</numerusform>
            <numerusform>Vybrať %n kanály?</numerusform>
            <numerusform>Vybrať %n kanálov?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>updated %n min ago</source>
        <translation>
            <numerusform>aktualizované pred %n min</numerusform>
            <numerusform>aktualizované pred %n min</numerusform>
            <numerusform>aktualizované pred %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>updated %n hour(s) ago</source>
        <translation>
            <numerusform>aktualizované pred %n hodinou</numerusform>
            <numerusform>aktualizované pred %n hodinami</numerusform>
            <numerusform>aktualizované pred %n hodinami</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>updated %n day(s) ago</source>
        <translation>
            <numerusform>aktualizované pred %n dňom</numerusform>
            <numerusform>aktualizované pred %n dňami</numerusform>
            <numerusform>aktualizované pred %n dňami</numerusform>
        </translation>
    </message>
    <message>
        <source>My sources</source>
        <translation>Moje zdroje</translation>
    </message>
    <message>
        <source>Schedules (XMLTV), packed or not, playlists (M3U), and programs that print a schedule.</source>
        <translation>Programy staníc (XMLTV), aj zbalené, zoznamy staníc (M3U) a programy, ktoré vypisujú XMLTV.</translation>
    </message>
    <message>
        <source>Address, file or program</source>
        <translation>Adresa, súbor alebo program</translation>
    </message>
    <message>
        <source>Show channels</source>
        <translation>Zobraziť kanály</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Vložiť</translation>
    </message>
    <message>
        <source>Choose a file…</source>
        <translation>Vybrať súbor…</translation>
    </message>
    <message>
        <source>From the catalogue</source>
        <translation>Z katalógu</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s)</source>
        <translation>
            <numerusform>%n kanál</numerusform>
            <numerusform>%n kanály</numerusform>
            <numerusform>%n kanálov</numerusform>
        </translation>
    </message>
    <message>
        <source>Public feeds: %1</source>
        <translation>Verejné zdroje: %1</translation>
    </message>
    <message>
        <source>Public feeds</source>
        <translation>Verejné zdroje</translation>
    </message>
    <message>
        <source>Other countries</source>
        <translation>Iné krajiny</translation>
    </message>
    <message>
        <source>All countries</source>
        <translation>Všetky krajiny</translation>
    </message>
    <message>
        <source>Programs on this device</source>
        <translation>Programy na tomto zariadení</translation>
    </message>
    <message>
        <source>Choose a schedule or playlist</source>
        <translation>Vyberte súbor XMLTV alebo M3U</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Spustiť</translation>
    </message>
    <message>
        <source>Ask %1?</source>
        <translation>Požiadať %1?</translation>
    </message>
    <message>
        <source>This server belongs to somebody else and was never asked before. It learns the network address of this device, and is asked again at each update.</source>
        <translation>Tento server patrí niekomu inému a ešte nebol opýtaný. Dozvie sa sieťovú adresu tohto zariadenia a bude opýtaný pri každej aktualizácii.</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>Požiadať</translation>
    </message>
    <message>
        <source>Run this program?</source>
        <translation>Spustiť tento program?</translation>
    </message>
    <message>
        <source>“%1” runs on this device with your rights, now and at each update.</source>
        <translation>„%1“ pobeží na tomto zariadení s vašimi právami, teraz a pri každej aktualizácii.</translation>
    </message>
    <message>
        <source>not ours</source>
        <translation>nie je náš</translation>
    </message>
    <message>
        <source>last reported alive %1</source>
        <translation>naposledy hlásený ako živý %1</translation>
    </message>
    <message>
        <source>Public feed of %1</source>
        <translation>Verejný zdroj %1</translation>
    </message>
    <message>
        <source>These are the public feeds of others, not ours: they may be wrong, late or gone. One is asked only after you choose it.</source>
        <translation>Sú to verejné zdroje iných, nie naše: môžu byť chybné, oneskorené alebo zrušené. Opýtaný je len ten, ktorý vyberiete.</translation>
    </message>
    <message>
        <source>Search countries</source>
        <translation>Hľadať krajiny</translation>
    </message>
    <message>
        <source>No feeds are known for “%1”</source>
        <translation>Pre „%1“ nie je známy žiadny zdroj</translation>
    </message>
    <message>
        <source>%1 by id · %2 by name · %3 to review · %4 without a schedule</source>
        <translation>%1 podľa id · %2 podľa názvu · %3 na kontrolu · %4 bez programu</translation>
    </message>
    <message>
        <source>Review matches</source>
        <translation>Skontrolovať priradenia</translation>
    </message>
    <message>
        <source>Search all channels of the playlist</source>
        <translation>Hľadať vo všetkých kanáloch zoznamu</translation>
    </message>
    <message>
        <source>To review</source>
        <translation>Na kontrolu</translation>
    </message>
    <message>
        <source>Choose the channel whose schedule is right.</source>
        <translation>Vyberte kanál, ktorého program je správny.</translation>
    </message>
    <message>
        <source>Without a schedule</source>
        <translation>Bez programu</translation>
    </message>
    <message>
        <source>Nothing to review</source>
        <translation>Nie je čo kontrolovať</translation>
    </message>
    <message>
        <source>Every channel has a schedule. A search shows which.</source>
        <translation>Každý kanál má program. Hľadanie ukáže ktorý.</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s) come near</source>
        <translation>
            <numerusform>Blízko je %n kanál</numerusform>
            <numerusform>Blízko sú %n kanály</numerusform>
            <numerusform>Blízko je %n kanálov</numerusform>
        </translation>
    </message>
    <message>
        <source>No schedule</source>
        <translation>Bez programu</translation>
    </message>
    <message>
        <source>Yours</source>
        <translation>Vaše</translation>
    </message>
    <message>
        <source>Search the channels of the feeds</source>
        <translation>Hľadať v kanáloch zdrojov</translation>
    </message>
    <message>
        <source>Nothing on now</source>
        <translation>Teraz nič nebeží</translation>
    </message>
    <message>
        <source>Channels that come near</source>
        <translation>Blízke kanály</translation>
    </message>
    <message>
        <source>A search finds every channel of the feeds.</source>
        <translation>Hľadanie nájde každý kanál zdrojov.</translation>
    </message>
    <message>
        <source>The language decides in which category a show is. The channel&apos;s times are moved in addition to those of the whole source.</source>
        <translation>Jazyk rozhoduje o kategórii relácie. Časy kanála sa posunú navyše k časom celého zdroja.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jazyk</translation>
    </message>
    <message>
        <source>Move its times</source>
        <translation>Posunúť jeho časy</translation>
    </message>
    <message>
        <source>Add a source</source>
        <translation>Pridať zdroj</translation>
    </message>
    <message>
        <source>No sources yet</source>
        <translation>Zatiaľ žiadne zdroje</translation>
    </message>
    <message>
        <source>Add feeds, playlists and programs, and choose from their channels.</source>
        <translation>Pridajte zdroje XMLTV, zoznamy a programy a vyberte si z ich kanálov.</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s) chosen</source>
        <translation>
            <numerusform>Vybraný %n kanál</numerusform>
            <numerusform>Vybrané %n kanály</numerusform>
            <numerusform>Vybraných %n kanálov</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>schedules for %n channel(s)</source>
        <translation>
            <numerusform>programy pre %n kanál</numerusform>
            <numerusform>programy pre %n kanály</numerusform>
            <numerusform>programy pre %n kanálov</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 with a schedule</source>
        <translation>%1 s programom</translation>
    </message>
    <message>
        <source>Icons from other hosts</source>
        <translation>Ikony z iných serverov</translation>
    </message>
    <message>
        <source>Feeds and playlists name icons on servers of others. These servers then learn the network address of this device and which channels you chose.</source>
        <translation>Zdroje a zoznamy uvádzajú ikony na cudzích serveroch. Tieto servery sa potom dozvedia sieťovú adresu tohto zariadenia a ktoré kanály ste si vybrali.</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s) of other sources lose their schedules.</source>
        <translation>
            <numerusform>%n kanál iných zdrojov príde o program.</numerusform>
            <numerusform>%n kanály iných zdrojov prídu o program.</numerusform>
            <numerusform>%n kanálov iných zdrojov príde o program.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 with shows</source>
        <translation>%1 z %2 s reláciami</translation>
    </message>
    <message>
        <source>being read</source>
        <translation>práve sa číta</translation>
    </message>
    <message>
        <source>from %1</source>
        <translation>z %1</translation>
    </message>
    <message>
        <source>next try %1</source>
        <translation>ďalší pokus %1</translation>
    </message>
    <message>
        <source>No shows</source>
        <translation>Žiadne relácie</translation>
    </message>
    <message>
        <source>Without shows</source>
        <translation>Bez relácií</translation>
    </message>
    <message>
        <source>Its channels cannot be shown</source>
        <translation>Jeho kanály nemožno zobraziť</translation>
    </message>
    <message numerus="yes">
        <source>Search %n channel(s)</source>
        <translation>
            <numerusform>Hľadať v %n kanáli</numerusform>
            <numerusform>Hľadať v %n kanáloch</numerusform>
            <numerusform>Hľadať v %n kanáloch</numerusform>
        </translation>
    </message>
    <message>
        <source>The search looks at all names of a channel.</source>
        <translation>Hľadá sa vo všetkých názvoch kanála.</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Skupina</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 a %n ďalší</numerusform>
            <numerusform>%1 a %n ďalšie</numerusform>
            <numerusform>%1 a %n ďalších</numerusform>
        </translation>
    </message>
    <message>
        <source>Last try</source>
        <translation>Posledný pokus</translation>
    </message>
    <message>
        <source>Last success</source>
        <translation>Posledný úspech</translation>
    </message>
    <message>
        <source>Next try</source>
        <translation>Ďalší pokus</translation>
    </message>
    <message>
        <source>In the source</source>
        <translation>V zdroji</translation>
    </message>
    <message>
        <source>%1 with shows</source>
        <translation>%1 s reláciami</translation>
    </message>
    <message numerus="yes">
        <source>%n show(s)</source>
        <translation>
            <numerusform>%n relácia</numerusform>
            <numerusform>%n relácie</numerusform>
            <numerusform>%n relácií</numerusform>
        </translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Vybrané</translation>
    </message>
    <message>
        <source>Last show</source>
        <translation>Posledná relácia</translation>
    </message>
    <message>
        <source>Kept from before, because the new shows were fewer</source>
        <translation>Ponechané z minula, lebo nových relácií bolo menej</translation>
    </message>
    <message>
        <source>No longer in the source</source>
        <translation>Už nie je v zdroji</translation>
    </message>
    <message>
        <source>Move all times</source>
        <translation>Posunúť všetky časy</translation>
    </message>
    <message>
        <source>Output of the program</source>
        <translation>Výpis programu</translation>
    </message>
    <message>
        <source>This source was removed</source>
        <translation>Tento zdroj bol odobraný</translation>
    </message>
    <message>
        <source>It is being read.</source>
        <translation>Práve sa číta.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Podrobnosti</translation>
    </message>
    <message>
        <source>Refresh now</source>
        <translation>Obnoviť teraz</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavenia</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Názov</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Address or file</source>
        <translation>Adresa alebo súbor</translation>
    </message>
    <message>
        <source>Save the new address</source>
        <translation>Uložiť novú adresu</translation>
    </message>
    <message>
        <source>The secret part of the address is kept apart, on this device only. Enter the whole address to change it.</source>
        <translation>Tajná časť adresy je uložená osobitne a len na tomto zariadení. Ak ju chcete zmeniť, zadajte celú adresu.</translation>
    </message>
    <message>
        <source>Copy as text</source>
        <translation>Kopírovať ako text</translation>
    </message>
    <message>
        <source>Remove this source</source>
        <translation>Odobrať tento zdroj</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Skopírované</translation>
    </message>
    <message>
        <source>Remove “%1”?</source>
        <translation>Odobrať „%1“?</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s) and their shows go with it.</source>
        <translation>
            <numerusform>Zmizne s ním %n kanál aj jeho relácie.</numerusform>
            <numerusform>Zmiznú s ním %n kanály aj ich relácie.</numerusform>
            <numerusform>Zmizne s ním %n kanálov aj ich relácie.</numerusform>
        </translation>
    </message>
    <message>
        <source>The list is longer; the rest is left out.</source>
        <translation>Zoznam je dlhší; zvyšok je vynechaný.</translation>
    </message>
    <message>
        <source>%1 on air now</source>
        <translation>%1 práve vysiela</translation>
    </message>
    <message>
        <source>%1 in the next 24 hours</source>
        <translation>%1 v najbližších 24 hodinách</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>Od %1 do %2</translation>
    </message>
    <message>
        <source>Is it on at this time? Otherwise move all times.</source>
        <translation>Vysiela sa v tomto čase? Inak posuňte všetky časy.</translation>
    </message>
    <message>
        <source>Schedules</source>
        <translation>Programy</translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation>Načítané</translation>
    </message>
    <message numerus="yes">
        <source>Show all %n feed(s)</source>
        <translation>
            <numerusform>Zobraziť %n zdroj</numerusform>
            <numerusform>Zobraziť všetky %n zdroje</numerusform>
            <numerusform>Zobraziť všetkých %n zdrojov</numerusform>
        </translation>
    </message>
    <message>
        <source>Not asked</source>
        <translation>Neopýtaný</translation>
    </message>
    <message>
        <source>Asked when you go on</source>
        <translation>Opýtaný, keď budete pokračovať</translation>
    </message>
    <message>
        <source>Load and match now</source>
        <translation>Načítať a priradiť teraz</translation>
    </message>
    <message>
        <source>No schedules</source>
        <translation>Žiadne programy</translation>
    </message>
    <message>
        <source>The playlist names no feed, and none was added. Add a feed to see what is on.</source>
        <translation>Zoznam neuvádza žiadny zdroj programu a žiadny nebol pridaný. Pridajte ho, aby ste videli, čo sa vysiela.</translation>
    </message>
    <message>
        <source>The server denies access (status %1). Check the user name, password or token in the address.</source>
        <translation>Server odmieta prístup (stav %1). Skontrolujte meno, heslo alebo kľúč v adrese.</translation>
    </message>
    <message>
        <source>There is nothing at this address (status %1). Check it, or look for a newer one.</source>
        <translation>Na tejto adrese nič nie je (stav %1). Skontrolujte ju alebo nájdite novšiu.</translation>
    </message>
    <message>
        <source>The server has a fault (status %1). Try again later.</source>
        <translation>Server má poruchu (stav %1). Skúste to neskôr.</translation>
    </message>
    <message>
        <source>The server answered with status %1 instead of a schedule. Check the address.</source>
        <translation>Server odpovedal stavom %1 namiesto programu. Skontrolujte adresu.</translation>
    </message>
    <message>
        <source>Waiting for an answer</source>
        <translation>Čaká sa na odpoveď</translation>
    </message>
    <message>
        <source>Reading: %1</source>
        <translation>Číta sa: %1</translation>
    </message>
    <message numerus="yes">
        <source>Reading: %n channel(s), %1</source>
        <translation>
            <numerusform>Číta sa: %n kanál, %1</numerusform>
            <numerusform>Číta sa: %n kanály, %1</numerusform>
            <numerusform>Číta sa: %n kanálov, %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Not asked yet.</source>
        <translation>Ešte nebol opýtaný.</translation>
    </message>
    <message>
        <source>Everything was read.</source>
        <translation>Všetko bolo prečítané.</translation>
    </message>
    <message>
        <source>Nothing has changed since it was read.</source>
        <translation>Od prečítania sa nič nezmenilo.</translation>
    </message>
    <message>
        <source>It broke off. What came before is used, and it will be tried again.</source>
        <translation>Prerušilo sa to. Použije sa, čo prišlo predtým, a skúsi sa to znova.</translation>
    </message>
    <message>
        <source>It suddenly has far fewer channels with shows. The shows from before are kept.</source>
        <translation>Zrazu má oveľa menej kanálov s reláciami. Doterajšie relácie zostávajú.</translation>
    </message>
    <message>
        <source>Its last show is over: nobody seems to update it. Look for another source.</source>
        <translation>Jeho posledná relácia sa už skončila: zrejme ho nikto neaktualizuje. Nájdite iný zdroj.</translation>
    </message>
    <message>
        <source>No answer. Check the address and the network.</source>
        <translation>Žiadna odpoveď. Skontrolujte adresu a sieť.</translation>
    </message>
    <message>
        <source>The server wants to be asked less often. It will be tried again later.</source>
        <translation>Server chce byť opytovaný menej často. Skúsi sa to neskôr.</translation>
    </message>
    <message>
        <source>The address leads from one address to the next without an end. Check it.</source>
        <translation>Adresa vedie bez konca z jednej adresy na druhú. Skontrolujte ju.</translation>
    </message>
    <message>
        <source>The address leads out of the web (%1), where the guide does not follow.</source>
        <translation>Adresa vedie mimo webu (%1), kam sprievodca nejde.</translation>
    </message>
    <message>
        <source>There is no such file, or it cannot be read. Check the path.</source>
        <translation>Taký súbor neexistuje alebo ho nemožno čítať. Skontrolujte cestu.</translation>
    </message>
    <message>
        <source>It is empty. Some servers answer so when there is nothing at an address; check it.</source>
        <translation>Je prázdny. Niektoré servery tak odpovedajú, keď na adrese nič nie je; skontrolujte ju.</translation>
    </message>
    <message>
        <source>This is a page of the web, perhaps one to log in on. Look there for the address of an XMLTV or M3U file.</source>
        <translation>Toto je webová stránka, možno prihlasovacia. Nájdite na nej adresu súboru XMLTV alebo M3U.</translation>
    </message>
    <message>
        <source>This is neither a schedule (XMLTV) nor a playlist (M3U).</source>
        <translation>Toto nie je ani program staníc (XMLTV), ani zoznam staníc (M3U).</translation>
    </message>
    <message>
        <source>It is damaged and cannot be unpacked. Fetch it again.</source>
        <translation>Je poškodený a nemožno ho rozbaliť. Stiahnite ho znova.</translation>
    </message>
    <message>
        <source>It is larger than this device can read. Look for one with fewer channels.</source>
        <translation>Je väčší, než toto zariadenie dokáže prečítať. Nájdite zdroj s menej kanálmi.</translation>
    </message>
    <message>
        <source>It cannot be stored: the disk is full or cannot be written.</source>
        <translation>Nemožno ho uložiť: disk je plný alebo naň nemožno zapisovať.</translation>
    </message>
    <message>
        <source>The program has to be configured first. Run it in a terminal with --configure.</source>
        <translation>Program treba najprv nastaviť. Spustite ho v termináli s --configure.</translation>
    </message>
    <message>
        <source>The program ended with an error. Run it in a terminal to see why.</source>
        <translation>Program sa skončil chybou. Prečo, uvidíte, keď ho spustíte v termináli.</translation>
    </message>
    <message>
        <source>The program ended with status %1. Run it in a terminal to see why.</source>
        <translation>Program sa skončil so stavom %1. Prečo, uvidíte, keď ho spustíte v termináli.</translation>
    </message>
    <message>
        <source>The program was ended because it printed nothing for a long time.</source>
        <translation>Program bol ukončený, lebo dlho nič nevypísal.</translation>
    </message>
    <message>
        <source>The program was ended because it ran for too long.</source>
        <translation>Program bol ukončený, lebo bežal príliš dlho.</translation>
    </message>
    <message>
        <source>The program was ended because it printed more than a schedule can be.</source>
        <translation>Program bol ukončený, lebo vypísal viac, než môže program staníc mať.</translation>
    </message>
    <message>
        <source>The password of this address is not on this device. Enter the address again.</source>
        <translation>Heslo tejto adresy na tomto zariadení nie je. Zadajte adresu znova.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Zrušené.</translation>
    </message>
    <message numerus="yes">
        <source>Only %1 of %n channel(s) have shows in the next 24 hours.</source>
        <translation>
            <numerusform>Len %1 z %n kanála má relácie v najbližších 24 hodinách.</numerusform>
            <numerusform>Len %1 z %n kanálov má relácie v najbližších 24 hodinách.</numerusform>
            <numerusform>Len %1 z %n kanálov má relácie v najbližších 24 hodinách.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its last show was on %1.</source>
        <translation>Jeho posledná relácia bola %1.</translation>
    </message>
    <message>
        <source>It has no shows.</source>
        <translation>Nemá žiadne relácie.</translation>
    </message>
    <message>
        <source>The evening news are not in the evening: its times may be shifted.</source>
        <translation>Večerné správy nie sú večer: časy sú možno posunuté.</translation>
    </message>
    <message>
        <source>It broke off. What came before can be used.</source>
        <translation>Prerušilo sa to. Čo prišlo predtým, možno použiť.</translation>
    </message>
    <message>
        <source>Some characters cannot be read and are missing.</source>
        <translation>Niektoré znaky nemožno prečítať a chýbajú.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Neznámy</translation>
    </message>
    <message>
        <source>Files cannot be chosen: the package %1 is missing. Type the path of the file.</source>
        <translation>Súbory nemožno vyberať: chýba balík %1. Napíšte cestu k súboru.</translation>
    </message>
    <message>
        <source>Found by their names. One runs only after you agree.</source>
        <translation>Nájdené podľa mien. Spustí sa len ten, s ktorým súhlasíte.</translation>
    </message>
    <message>
        <source>Settings of channels</source>
        <translation>Nastavenia kanálov</translation>
    </message>
    <message>
        <source>Picture…</source>
        <translation>Obrázok…</translation>
    </message>
    <message>
        <source>Remove picture</source>
        <translation>Odobrať obrázok</translation>
    </message>
    <message>
        <source>Choose a picture</source>
        <translation>Vyberte obrázok</translation>
    </message>
    <message>
        <source>Your own picture, in place of that of the source.</source>
        <translation>Váš vlastný obrázok namiesto obrázka zo zdroja.</translation>
    </message>
    <message>
        <source>“%1” is no picture that can be shown, or larger than %2.</source>
        <translation>„%1“ nie je obrázok, ktorý sa dá zobraziť, alebo je väčší ako %2.</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nové</translation>
    </message>
    <message>
        <source>Original title</source>
        <translation>Pôvodný názov</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Rok</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Krajina</translation>
    </message>
    <message>
        <source>Age rating</source>
        <translation>Veková hranica</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Hodnotenie</translation>
    </message>
    <message>
        <source>Season %1</source>
        <translation>%1. séria</translation>
    </message>
    <message>
        <source>Episode %1</source>
        <translation>%1. časť</translation>
    </message>
    <message>
        <source>Episode %1 of %2</source>
        <translation>%1. časť z %2</translation>
    </message>
    <message>
        <source>Part %1</source>
        <translation>Diel %1</translation>
    </message>
    <message>
        <source>Part %1 of %2</source>
        <translation>Diel %1 z %2</translation>
    </message>
    <message>
        <source>%1 of %2 stars</source>
        <translation>%1 z %2 hviezdičiek</translation>
    </message>
    <message numerus="yes">
        <source>Show all %n program(s)</source>
        <translation>
            <numerusform>Zobraziť %n program</numerusform>
            <numerusform>Zobraziť všetky %n programy</numerusform>
            <numerusform>Zobraziť všetkých %n programov</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add all %n channel(s)</source>
        <translation>
            <numerusform>Pridať kanál</numerusform>
            <numerusform>Pridať všetky %n kanály</numerusform>
            <numerusform>Pridať všetkých %n kanálov</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add the %n channel(s) with shows</source>
        <translation>
            <numerusform>Pridať kanál s reláciami</numerusform>
            <numerusform>Pridať %n kanály s reláciami</numerusform>
            <numerusform>Pridať %n kanálov s reláciami</numerusform>
        </translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>Denník</translation>
    </message>
    <message>
        <source>Nothing yet</source>
        <translation>Zatiaľ nič</translation>
    </message>
    <message>
        <source>What happens to your alerts is written down here for 60 days.</source>
        <translation>Čo sa deje s vašimi upozorneniami, sa sem zapisuje 60 dní.</translation>
    </message>
    <message>
        <source>You removed this alert in the calendar, and the rule set it again.</source>
        <translation>Toto upozornenie ste v kalendári odstránili a pravidlo ho nastavilo znova.</translation>
    </message>
    <message>
        <source>Not this broadcast</source>
        <translation>Toto vysielanie nie</translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s)</source>
        <translation>
            <numerusform>%n hodinu</numerusform>
            <numerusform>%n hodiny</numerusform>
            <numerusform>%n hodín</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s)</source>
        <translation>
            <numerusform>%n minútu</numerusform>
            <numerusform>%n minúty</numerusform>
            <numerusform>%n minút</numerusform>
        </translation>
    </message>
    <message>
        <source>Removed: no longer listed</source>
        <translation>Zrušené: už nie je v programe</translation>
    </message>
    <message>
        <source>Removed: it would ring in the silent hours</source>
        <translation>Zrušené: zaznelo by v tichých hodinách</translation>
    </message>
    <message>
        <source>Removed: its alert was removed in the calendar</source>
        <translation>Zrušené: upozornenie bolo odstránené v kalendári</translation>
    </message>
    <message>
        <source>Removed: it had no channel</source>
        <translation>Zrušené: nemalo kanál</translation>
    </message>
    <message>
        <source>Removed: it was there twice</source>
        <translation>Zrušené: bolo tam dvakrát</translation>
    </message>
    <message>
        <source>Removed: the recurring alert was ended</source>
        <translation>Zrušené: opakované upozornenie sa skončilo</translation>
    </message>
    <message>
        <source>Removed: the broadcast was moved</source>
        <translation>Zrušené: vysielanie bolo presunuté</translation>
    </message>
    <message>
        <source>Removed by you</source>
        <translation>Zrušené vami</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Zrušené</translation>
    </message>
    <message>
        <source>New: rule %1</source>
        <translation>Nové: pravidlo %1</translation>
    </message>
    <message>
        <source>Set again by the rule %1: it was removed in the calendar</source>
        <translation>Znovu nastavené pravidlom %1: v kalendári bolo zrušené</translation>
    </message>
    <message>
        <source>Set by you</source>
        <translation>Nastavené vami</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Presunuté</translation>
    </message>
    <message>
        <source>Changed: the broadcast has another end or channel</source>
        <translation>Zmenené: vysielanie má iný koniec alebo kanál</translation>
    </message>
    <message>
        <source>Moved from %1 to %2</source>
        <translation>Presunuté z %1 na %2</translation>
    </message>
    <message>
        <source>Set by the rule “%1”.</source>
        <translation>Nastavené pravidlom „%1“.</translation>
    </message>
    <message>
        <source>Set for this broadcast only.</source>
        <translation>Nastavené len pre toto vysielanie.</translation>
    </message>
    <message>
        <source>Its alert was removed in the calendar.</source>
        <translation>Upozornenie bolo odstránené v kalendári.</translation>
    </message>
    <message>
        <source>No alert: the guide cannot use your calendars.</source>
        <translation>Bez upozornenia: sprievodca nemôže používať vaše kalendáre.</translation>
    </message>
    <message>
        <source>No alert: there is no calendar for it.</source>
        <translation>Bez upozornenia: nie je preň kalendár.</translation>
    </message>
    <message>
        <source>No alert: the calendar is read-only.</source>
        <translation>Bez upozornenia: kalendár je len na čítanie.</translation>
    </message>
    <message>
        <source>No alert: the show has begun.</source>
        <translation>Bez upozornenia: relácia sa už začala.</translation>
    </message>
    <message>
        <source>No alert: this is a replay, and the rule is for premieres.</source>
        <translation>Bez upozornenia: toto je repríza a pravidlo platí pre premiéry.</translation>
    </message>
    <message>
        <source>No alert: this is a premiere, and the rule is for replays.</source>
        <translation>Bez upozornenia: toto je premiéra a pravidlo platí pre reprízy.</translation>
    </message>
    <message>
        <source>No alert: it would ring in the silent hours.</source>
        <translation>Bez upozornenia: zaznelo by v tichých hodinách.</translation>
    </message>
    <message>
        <source>No alert: you wanted none for this broadcast.</source>
        <translation>Bez upozornenia: na toto vysielanie ste žiadne nechceli.</translation>
    </message>
    <message>
        <source>No alert yet: the channel’s schedule is not up to date.</source>
        <translation>Zatiaľ bez upozornenia: program kanála nie je aktuálny.</translation>
    </message>
    <message>
        <source>No alert yet: the show is more than 60 days away.</source>
        <translation>Zatiaľ bez upozornenia: do relácie zostáva viac ako 60 dní.</translation>
    </message>
    <message>
        <source>It will be set with the next update.</source>
        <translation>Nastaví sa pri najbližšej aktualizácii.</translation>
    </message>
    <message>
        <source>There will be no alert.</source>
        <translation>Žiadne upozornenie nebude.</translation>
    </message>
    <message>
        <source>At the beginning of this broadcast</source>
        <translation>Na začiatku tohto vysielania</translation>
    </message>
    <message>
        <source>%1 before this broadcast</source>
        <translation>%1 pred týmto vysielaním</translation>
    </message>
    <message>
        <source>At the beginning of every broadcast on any channel</source>
        <translation>Na začiatku každého vysielania na ktoromkoľvek kanáli</translation>
    </message>
    <message>
        <source>%1 before every broadcast on any channel</source>
        <translation>%1 pred každým vysielaním na ktoromkoľvek kanáli</translation>
    </message>
    <message>
        <source>At the beginning of every premiere on any channel</source>
        <translation>Na začiatku každej premiéry na ktoromkoľvek kanáli</translation>
    </message>
    <message>
        <source>%1 before every premiere on any channel</source>
        <translation>%1 pred každou premiérou na ktoromkoľvek kanáli</translation>
    </message>
    <message>
        <source>At the beginning of every replay on any channel</source>
        <translation>Na začiatku každej reprízy na ktoromkoľvek kanáli</translation>
    </message>
    <message>
        <source>%1 before every replay on any channel</source>
        <translation>%1 pred každou reprízou na ktoromkoľvek kanáli</translation>
    </message>
    <message>
        <source>Could not be set: the calendar refused it</source>
        <translation>Nedá sa nastaviť: kalendár to odmietol</translation>
    </message>
    <message>
        <source>Could not be moved: the calendar refused it</source>
        <translation>Nedá sa presunúť: kalendár to odmietol</translation>
    </message>
    <message>
        <source>Could not be removed: the calendar refused it</source>
        <translation>Nedá sa zrušiť: kalendár to odmietol</translation>
    </message>
    <message>
        <source>Not removed: too many alerts would have been removed at once</source>
        <translation>Nezrušené: naraz by sa zrušilo priveľa upozornení</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n alert(s)?</source>
        <translation>
            <numerusform>Zrušiť %n upozornenie?</numerusform>
            <numerusform>Zrušiť %n upozornenia?</numerusform>
            <numerusform>Zrušiť %n upozornení?</numerusform>
        </translation>
    </message>
    <message>
        <source>Most of your alerts would go at once, because their shows are no longer listed or they would ring in the silent hours. That may be a mistake, so none was removed.</source>
        <translation>Väčšina upozornení by sa zrušila naraz, pretože ich relácie už v programoch nie sú alebo by zazneli v tichých hodinách. Môže to byť omyl, preto sa žiadne nezrušilo.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Ponechať</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Nastavenia</translation>
    </message>
    <message>
        <source>Allow an alert for this broadcast</source>
        <translation>Povoliť upozornenie na toto vysielanie</translation>
    </message>
    <message>
        <source>Only this broadcast</source>
        <translation>Len toto vysielanie</translation>
    </message>
    <message>
        <source>Any broadcast</source>
        <translation>Každé vysielanie</translation>
    </message>
    <message>
        <source>Every premiere</source>
        <translation>Každá premiéra</translation>
    </message>
    <message>
        <source>Every replay</source>
        <translation>Každá repríza</translation>
    </message>
    <message>
        <source>Repetition:</source>
        <translation>Opakovanie:</translation>
    </message>
    <message>
        <source>Trigger time:</source>
        <translation>Čas upozornenia:</translation>
    </message>
    <message>
        <source>TV</source>
        <translation>TV</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Len na čítanie</translation>
    </message>
    <message>
        <source>Offline; changes are sent later</source>
        <translation>Offline; zmeny sa odošlú neskôr</translation>
    </message>
    <message>
        <source>Its account needs your attention</source>
        <translation>Jeho účet vyžaduje vašu pozornosť</translation>
    </message>
    <message>
        <source>Calendars</source>
        <translation>Kalendáre</translation>
    </message>
    <message>
        <source>New calendar “%1”</source>
        <translation>Nový kalendár „%1“</translation>
    </message>
    <message>
        <source>Alerts are events in the calendar that you choose here, so that your other programs and devices show them as well.</source>
        <translation>Upozornenia sú udalosti v kalendári, ktorý tu vyberiete, takže ich ukazujú aj vaše ďalšie programy a zariadenia.</translation>
    </message>
    <message>
        <source>You have to remove all your alerts before changing calendar</source>
        <translation>Pred zmenou kalendára musíte zrušiť všetky upozornenia</translation>
    </message>
    <message>
        <source>The calendars cannot be read</source>
        <translation>Kalendáre sa nedajú prečítať</translation>
    </message>
    <message>
        <source>The calendar could not be made.</source>
        <translation>Kalendár sa nepodarilo vytvoriť.</translation>
    </message>
    <message numerus="yes">
        <source>Every %n min</source>
        <translation>
            <numerusform>Každú %n min</numerusform>
            <numerusform>Každé %n min</numerusform>
            <numerusform>Každých %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n h</source>
        <translation>
            <numerusform>Každú %n h</numerusform>
            <numerusform>Každé %n h</numerusform>
            <numerusform>Každých %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n day(s)</source>
        <translation>
            <numerusform>Každý deň</numerusform>
            <numerusform>Každé %n dni</numerusform>
            <numerusform>Každých %n dní</numerusform>
        </translation>
    </message>
    <message>
        <source>Show coloring</source>
        <translation>Farebné časy relácií</translation>
    </message>
    <message>
        <source>Scheduled no alarm time</source>
        <translation>Čas bez upozornení</translation>
    </message>
    <message>
        <source>Don&apos;t automatically create any recurring alarms in this time span</source>
        <translation>V tomto rozmedzí sa opakované upozornenia automaticky nevytvárajú</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Zobrazenie</translation>
    </message>
    <message>
        <source>Pictures of shows</source>
        <translation>Obrázky relácií</translation>
    </message>
    <message>
        <source>Large pictures on the pages of shows</source>
        <translation>Veľké obrázky na stránkach relácií</translation>
    </message>
    <message>
        <source>Large pictures without cutting</source>
        <translation>Veľké obrázky bez orezania</translation>
    </message>
    <message>
        <source>A picture of another shape is shown whole and does not fill its place.</source>
        <translation>Obrázok iného tvaru sa ukáže celý a nevyplní svoje miesto.</translation>
    </message>
    <message>
        <source>Shows per channel</source>
        <translation>Relácií na kanál</translation>
    </message>
    <message>
        <source>Look for new schedules</source>
        <translation>Hľadať nové programy</translation>
    </message>
    <message>
        <source>Silent Hours</source>
        <translation>Tiché hodiny</translation>
    </message>
    <message>
        <source>Alerts that you set on a single broadcast ring at any time.</source>
        <translation>Upozornenia nastavené na jednotlivé vysielanie zaznejú kedykoľvek.</translation>
    </message>
    <message>
        <source>Across midnight</source>
        <translation>Cez polnoc</translation>
    </message>
    <message>
        <source>Silent from %1 to midnight and from midnight to %2</source>
        <translation>Ticho od %1 do polnoci a od polnoci do %2</translation>
    </message>
    <message>
        <source>All recurring alerts are silent, all day: the time span begins and ends at the same time.</source>
        <translation>Všetky opakované upozornenia mlčia celý deň: rozmedzie sa začína a končí v rovnakom čase.</translation>
    </message>
    <message>
        <source>All recurring alerts are silent, all day: the time span crosses midnight.</source>
        <translation>Všetky opakované upozornenia mlčia celý deň: rozmedzie prechádza cez polnoc.</translation>
    </message>
    <message>
        <source>Silent all day</source>
        <translation>Ticho celý deň</translation>
    </message>
    <message>
        <source>Silent from %1 to %2</source>
        <translation>Ticho od %1 do %2</translation>
    </message>
    <message>
        <source>Folder of calendar files</source>
        <translation>Priečinok so súbormi kalendárov</translation>
    </message>
    <message>
        <source>Calendars of the desktop</source>
        <translation>Kalendáre pracovnej plochy</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>“%1”, premieres</source>
        <translation>„%1“, premiéry</translation>
    </message>
    <message>
        <source>“%1”, replays</source>
        <translation>„%1“, reprízy</translation>
    </message>
    <message>
        <source>No alert: the favourite has no recurring alert.</source>
        <translation>Bez upozornenia: obľúbená relácia nemá opakované upozornenie.</translation>
    </message>
    <message>
        <source>At start</source>
        <translation>Na začiatku</translation>
    </message>
    <message>
        <source>Alert: %1</source>
        <translation>Upozornenie: %1</translation>
    </message>
    <message>
        <source>Folder %1</source>
        <translation>Priečinok %1</translation>
    </message>
    <message>
        <source>Another device has removed all your favourites.</source>
        <translation>Iné zariadenie odstránilo všetky vaše obľúbené.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Obnoviť</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Vypnuté</translation>
    </message>
    <message>
        <source>Most Watched is off: it counts the alarms and favourites of everyone who shares a database with you. To switch it on, choose a database in the options, under “Your devices”.</source>
        <translation>Najsledovanejšie sú vypnuté: počítajú upozornenia a obľúbené všetkých, ktorí s vami zdieľajú databázu. Zapnete ich voľbou databázy v nastaveniach, v časti „Vaše zariadenia“.</translation>
    </message>
    <message numerus="yes">
        <source>%n selected channel(s)</source>
        <translation>
            <numerusform>%n vybraný kanál</numerusform>
            <numerusform>%n vybrané kanály</numerusform>
            <numerusform>%n vybraných kanálov</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n favourite(s)</source>
        <translation>
            <numerusform>%n obľúbená relácia</numerusform>
            <numerusform>%n obľúbené relácie</numerusform>
            <numerusform>%n obľúbených relácií</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n alert(s) in the calendar</source>
        <translation>
            <numerusform>%n upozornenie v kalendári</numerusform>
            <numerusform>%n upozornenia v kalendári</numerusform>
            <numerusform>%n upozornení v kalendári</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n kept list(s)</source>
        <translation>
            <numerusform>%n uchovaný zoznam</numerusform>
            <numerusform>%n uchované zoznamy</numerusform>
            <numerusform>%n uchovaných zoznamov</numerusform>
        </translation>
    </message>
    <message>
        <source>silent hours</source>
        <translation>tiché hodiny</translation>
    </message>
    <message>
        <source>the choice of the calendar</source>
        <translation>voľbu kalendára</translation>
    </message>
    <message numerus="yes">
        <source>%n alert(s) of other shows</source>
        <translation>
            <numerusform>%n upozornenie na iné relácie</numerusform>
            <numerusform>%n upozornenia na iné relácie</numerusform>
            <numerusform>%n upozornení na iné relácie</numerusform>
        </translation>
    </message>
    <message>
        <source>Delete data</source>
        <translation>Zmazať údaje</translation>
    </message>
    <message>
        <source>On this device</source>
        <translation>V tomto zariadení</translation>
    </message>
    <message>
        <source>Favourites are removed on all your devices.</source>
        <translation>Obľúbené sa odstránia vo všetkých vašich zariadeniach.</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nič</translation>
    </message>
    <message>
        <source>Also</source>
        <translation>Tiež</translation>
    </message>
    <message>
        <source>This will delete all your personal application data stored in iCloud including favorites and selected TV channels.</source>
        <translation>Tým sa zmažú všetky vaše osobné údaje aplikácie uložené v iCloude vrátane obľúbených a vybraných televíznych kanálov.</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Zmazané</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Obľúbené</translation>
    </message>
    <message>
        <source>Selected channels</source>
        <translation>Vybrané kanály</translation>
    </message>
    <message>
        <source>Lists that another device has replaced, by the time of that. At most ten of each kind are kept.</source>
        <translation>Zoznamy, ktoré nahradilo iné zariadenie, podľa času nahradenia. Z každého druhu sa ich uchováva najviac desať.</translation>
    </message>
    <message>
        <source>Nothing that you do not have now</source>
        <translation>Nič, čo by ste teraz nemali</translation>
    </message>
    <message>
        <source>Brings back %1</source>
        <translation>Vráti %1</translation>
    </message>
    <message numerus="yes">
        <source>Brings back %n</source>
        <translation>
            <numerusform>Vráti %n</numerusform>
            <numerusform>Vráti %n</numerusform>
            <numerusform>Vráti %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Brings back %1 and %n more</source>
        <translation>
            <numerusform>Vráti %1 a %n ďalší</numerusform>
            <numerusform>Vráti %1 a %n ďalšie</numerusform>
            <numerusform>Vráti %1 a %n ďalších</numerusform>
        </translation>
    </message>
    <message>
        <source>Selected on another device; this version does not know it</source>
        <translation>Vybraný na inom zariadení; táto verzia ho nepozná</translation>
    </message>
    <message>
        <source>No lists</source>
        <translation>Žiadne zoznamy</translation>
    </message>
    <message>
        <source>No other device has replaced your favourites or channels.</source>
        <translation>Žiadne iné zariadenie nenahradilo vaše obľúbené ani kanály.</translation>
    </message>
    <message>
        <source>These favourites take the place of the present ones on all your devices.</source>
        <translation>Tieto obľúbené nahradia súčasné na všetkých vašich zariadeniach.</translation>
    </message>
    <message>
        <source>These channels take the place of the present ones on all your devices.</source>
        <translation>Tieto kanály nahradia súčasné na všetkých vašich zariadeniach.</translation>
    </message>
    <message>
        <source>The list was restored.</source>
        <translation>Zoznam bol obnovený.</translation>
    </message>
    <message>
        <source>The list could not be read.</source>
        <translation>Zoznam sa nedá prečítať.</translation>
    </message>
    <message>
        <source>Your data</source>
        <translation>Vaše údaje</translation>
    </message>
    <message>
        <source>Last change by %1</source>
        <translation>Posledná zmena: %1</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportovať…</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>Obnoviť…</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Zmazať…</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Oznámenie</translation>
    </message>
    <message>
        <source>This will export all your personal application data stored in iCloud.</source>
        <translation>Tým sa vyexportujú všetky vaše osobné údaje aplikácie uložené v iCloude.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportovať</translation>
    </message>
    <message>
        <source>Your data was exported</source>
        <translation>Vaše údaje boli exportované</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>Súbor sa nedá zapísať.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otvoriť</translation>
    </message>
    <message>
        <source>Starts now</source>
        <translation>Práve sa začína</translation>
    </message>
    <message numerus="yes">
        <source>Began %n min ago</source>
        <translation>
            <numerusform>Začalo sa pred %n min</numerusform>
            <numerusform>Začalo sa pred %n min</numerusform>
            <numerusform>Začalo sa pred %n min</numerusform>
        </translation>
    </message>
    <message>
        <source>Remind me at the start</source>
        <translation>Pripomenúť na začiatku</translation>
    </message>
    <message>
        <source>Update while the guide is closed</source>
        <translation>Aktualizovať, aj keď je sprievodca zatvorený</translation>
    </message>
    <message>
        <source>Twice a day, so that alerts follow shows that move.</source>
        <translation>Dvakrát denne, aby sa upozornenia riadili presunutými reláciami.</translation>
    </message>
    <message>
        <source>Updates could not be changed: a file of your session cannot be written.</source>
        <translation>Aktualizácie sa nedajú zmeniť: súbor vašej relácie sa nedá zapísať.</translation>
    </message>
    <message>
        <source>Ring alerts on this device</source>
        <translation>Zvoniť upozornenia na tomto zariadení</translation>
    </message>
    <message>
        <source>Alerts are notifications, also while the guide is closed.</source>
        <translation>Upozornenia sú oznámenia, aj keď je sprievodca zatvorený.</translation>
    </message>
    <message>
        <source>The reminders of your desktop ring. The guide rings when they do not run.</source>
        <translation>Zvonia pripomienky vašej plochy. Sprievodca zvoní, keď nebežia.</translation>
    </message>
    <message>
        <source>The reminders of your desktop ring already.</source>
        <translation>Pripomienky vašej plochy už zvonia.</translation>
    </message>
    <message>
        <source>Ringing could not be changed: a file of your session cannot be written.</source>
        <translation>Zvonenie sa nepodarilo zmeniť: súbor vašej relácie sa nedá zapísať.</translation>
    </message>
    <message>
        <source>In a folder</source>
        <translation>V priečinku</translation>
    </message>
    <message>
        <source>In a database</source>
        <translation>V databáze</translation>
    </message>
    <message>
        <source>Changes are kept and sent later.</source>
        <translation>Zmeny sa uchovajú a odošlú neskôr.</translation>
    </message>
    <message>
        <source>The picture holds the path of the folder.</source>
        <translation>Obrázok obsahuje cestu k priečinku.</translation>
    </message>
    <message>
        <source>Stop sharing</source>
        <translation>Prestať zdieľať</translation>
    </message>
    <message>
        <source>This device shares nothing any more.</source>
        <translation>Toto zariadenie už nič nezdieľa.</translation>
    </message>
    <message>
        <source>Only on this device</source>
        <translation>Len v tomto zariadení</translation>
    </message>
    <message>
        <source>Another device was last seen: %1</source>
        <translation>Iné zariadenie bolo naposledy vidieť: %1</translation>
    </message>
    <message>
        <source>Your devices</source>
        <translation>Vaše zariadenia</translation>
    </message>
    <message>
        <source>For another device</source>
        <translation>Pre iné zariadenie</translation>
    </message>
    <message>
        <source>The picture holds this address, without the password.</source>
        <translation>Obrázok obsahuje túto adresu, bez hesla.</translation>
    </message>
    <message>
        <source>QR code of %1</source>
        <translation>Kód QR: %1</translation>
    </message>
    <message>
        <source>Share with your other devices</source>
        <translation>Zdieľať s ostatnými zariadeniami</translation>
    </message>
    <message>
        <source>Share in another place</source>
        <translation>Zdieľať na inom mieste</translation>
    </message>
    <message>
        <source>A folder that a sync tool copies between your devices, or a PostgreSQL database. Channels, favourites, your own sources, silent hours and the name of the calendar lie there; files in a folder can be read by whoever has it.</source>
        <translation>Priečinok, ktorý medzi vašimi zariadeniami kopíruje synchronizačný program, alebo databáza PostgreSQL. Sú v ňom kanály, obľúbené, vlastné zdroje, čas pokoja a názov kalendára; súbory v priečinku môže čítať každý, kto ho má.</translation>
    </message>
    <message>
        <source>Folder or address of a database</source>
        <translation>Priečinok alebo adresa databázy</translation>
    </message>
    <message>
        <source>One moment…</source>
        <translation>Okamih…</translation>
    </message>
    <message>
        <source>Share there</source>
        <translation>Zdieľať tam</translation>
    </message>
    <message>
        <source>Share there?</source>
        <translation>Zdieľať tam?</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Zdieľať</translation>
    </message>
    <message>
        <source>Lists that another device has stored there replace those of this device, which are kept under “Restore…”. What is not there yet is stored.</source>
        <translation>Zoznamy, ktoré tam uložilo iné zariadenie, nahradia zoznamy tohto zariadenia; tie zostanú pod „Obnoviť…“. Čo tam ešte nie je, sa uloží.</translation>
    </message>
    <message>
        <source>The database cannot be reached.</source>
        <translation>Databáza nie je dostupná.</translation>
    </message>
    <message>
        <source>The database does not accept the user or the password.</source>
        <translation>Databáza neprijíma používateľa alebo heslo.</translation>
    </message>
    <message>
        <source>The server of the database cannot prove its identity, so nothing is sent to it.</source>
        <translation>Server databázy nedokáže preukázať svoju totožnosť, preto sa mu nič neposiela.</translation>
    </message>
    <message>
        <source>The database is not set up for the guide.</source>
        <translation>Databáza nie je pre sprievodcu pripravená.</translation>
    </message>
    <message>
        <source>An address of a database is like postgresql://anna@tv.example.org/guide.</source>
        <translation>Adresa databázy vyzerá ako postgresql://anna@tv.example.org/guide.</translation>
    </message>
    <message>
        <source>The only sslmode of an address is verify-full.</source>
        <translation>Adresa môže mať len sslmode verify-full.</translation>
    </message>
    <message>
        <source>The address needs a user, a server and the name of a database.</source>
        <translation>Adresa potrebuje používateľa, server a názov databázy.</translation>
    </message>
    <message>
        <source>The database takes no more changes for now; they are sent later.</source>
        <translation>Databáza teraz ďalšie zmeny neprijíma; pošlú sa neskôr.</translation>
    </message>
    <message>
        <source>The database refuses a value because it is too large.</source>
        <translation>Databáza odmieta hodnotu, pretože je príliš veľká.</translation>
    </message>
    <message>
        <source>The password of the database cannot be kept.</source>
        <translation>Heslo databázy sa nedá uložiť.</translation>
    </message>
    <message>
        <source>The folder is not there, or it cannot be written.</source>
        <translation>Priečinok neexistuje alebo sa doň nedá zapisovať.</translation>
    </message>
    <message>
        <source>The place cannot take what this device has.</source>
        <translation>Na toto miesto sa nedá uložiť, čo toto zariadenie má.</translation>
    </message>
    <message>
        <source>Another place is being tried.</source>
        <translation>Práve sa skúša iné miesto.</translation>
    </message>
    <message>
        <source>There is no server with the name in the address.</source>
        <translation>Server s názvom uvedeným v adrese neexistuje.</translation>
    </message>
    <message>
        <source>This device has no network, or no way to the server of the database.</source>
        <translation>Toto zariadenie nemá sieť alebo cestu k serveru databázy.</translation>
    </message>
    <message>
        <source>The server does not run a database at the address.</source>
        <translation>Na tejto adrese servera žiadna databáza nebeží.</translation>
    </message>
    <message>
        <source>The server of the database does not answer.</source>
        <translation>Server databázy neodpovedá.</translation>
    </message>
    <message>
        <source>The server has no database with the name in the address.</source>
        <translation>Server nemá databázu s názvom uvedeným v adrese.</translation>
    </message>
    <message>
        <source>The user in the address may not use the database.</source>
        <translation>Používateľ uvedený v adrese nesmie databázu používať.</translation>
    </message>
    <message>
        <source>The address of a database begins with postgresql://.</source>
        <translation>Adresa databázy sa začína na postgresql://.</translation>
    </message>
    <message>
        <source>An address has no options but sslmode, sslrootcert and host, with full paths.</source>
        <translation>Adresa môže mať len voľby sslmode, sslrootcert a host, s úplnými cestami.</translation>
    </message>
    <message>
        <source>The path of a folder begins with “/” or “~/”.</source>
        <translation>Cesta k priečinku sa začína znakmi „/“ alebo „~/“.</translation>
    </message>
    <message>
        <source>There is no such folder yet.</source>
        <translation>Taký priečinok zatiaľ neexistuje.</translation>
    </message>
    <message>
        <source>There is no such folder, nor the one in which it would be.</source>
        <translation>Taký priečinok neexistuje, ani ten, v ktorom by bol.</translation>
    </message>
    <message>
        <source>There is no such folder, and none can be created there.</source>
        <translation>Taký priečinok neexistuje a nemožno ho tam vytvoriť.</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <translation>Toto nie je priečinok.</translation>
    </message>
    <message>
        <source>The folder cannot be written.</source>
        <translation>Do priečinka nemožno zapisovať.</translation>
    </message>
    <message>
        <source>The folder cannot be created.</source>
        <translation>Priečinok nemožno vytvoriť.</translation>
    </message>
    <message>
        <source>This folder belongs to the guide on this device: choose another one.</source>
        <translation>Tento priečinok patrí sprievodcovi na tomto zariadení: zvoľte iný.</translation>
    </message>
    <message>
        <source>The place does not answer.</source>
        <translation>Toto miesto neodpovedá.</translation>
    </message>
    <message>
        <source>This device does not have the password of the database.</source>
        <translation>Toto zariadenie nemá heslo databázy.</translation>
    </message>
    <message>
        <source>Last change by another device with the name %1</source>
        <translation>Posledná zmena z iného zariadenia s názvom %1</translation>
    </message>
    <message>
        <source>Enter another password…</source>
        <translation>Zadať iné heslo…</translation>
    </message>
    <message>
        <source>Password of the database</source>
        <translation>Heslo databázy</translation>
    </message>
    <message>
        <source>Choose a folder…</source>
        <translation>Vybrať priečinok…</translation>
    </message>
    <message>
        <source>Your other devices show this name with changes made here.</source>
        <translation>Ostatné zariadenia ukazujú toto meno pri zmenách urobených tu.</translation>
    </message>
    <message>
        <source>Name of this device</source>
        <translation>Názov tohto zariadenia</translation>
    </message>
    <message>
        <source>Choose a folder that your devices share</source>
        <translation>Vyberte priečinok, ktorý vaše zariadenia zdieľajú</translation>
    </message>
    <message>
        <source>This device shares there from now on.</source>
        <translation>Toto zariadenie tam odteraz zdieľa.</translation>
    </message>
    <message>
        <source>The password works and is kept.</source>
        <translation>Heslo platí a je uložené.</translation>
    </message>
    <message>
        <source>This device shares there already.</source>
        <translation>Toto zariadenie tam už zdieľa.</translation>
    </message>
    <message>
        <source>Create the folder?</source>
        <translation>Vytvoriť priečinok?</translation>
    </message>
    <message>
        <source>There is no folder %1 yet.</source>
        <translation>Priečinok %1 zatiaľ neexistuje.</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Vytvoriť</translation>
    </message>
    <message>
        <source>Open the folder</source>
        <translation>Otvoriť priečinok</translation>
    </message>
    <message>
        <source>Folders cannot be chosen: the package %1 is missing. Type the path of the folder.</source>
        <translation>Priečinky nemožno vyberať: chýba balík %1. Napíšte cestu k priečinku.</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Zobraziť heslo</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Skryť heslo</translation>
    </message>
    <message>
        <source>Use this password</source>
        <translation>Použiť toto heslo</translation>
    </message>
</context>
<context>
    <name>RemoteHostAlert</name>
    <message>
        <source>Unable to establish connection to remote server</source>
        <translation>Nedá sa nadviazať spojenie so vzdialeným serverom</translation>
    </message>
    <message>
        <source>Check your Internet connection.</source>
        <translation>Skontrolujte pripojenie na internet.</translation>
    </message>
</context>
</TS>
