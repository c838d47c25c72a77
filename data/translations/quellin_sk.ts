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
        <source>Alert at the beginning of every broadcast</source>
        <translation>Upozornenie na začiatku každého vysielania</translation>
    </message>
    <message>
        <source>Alert %1 min before every broadcast</source>
        <translation>Upozornenie %1 min pred každým vysielaním</translation>
    </message>
    <message>
        <source>Alert at the beginning of every replay</source>
        <translation>Upozornenie na začiatku každej reprízy</translation>
    </message>
    <message>
        <source>Alert %1 min before every replay</source>
        <translation>Upozornenie %1 min pred každou reprízou</translation>
    </message>
    <message>
        <source>Alert at the beginning of every premiere</source>
        <translation>Upozornenie na začiatku každej premiéry</translation>
    </message>
    <message>
        <source>Alert %1 min before every premiere</source>
        <translation>Upozornenie %1 min pred každou premiérou</translation>
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
        <source>%1 favourites removed</source>
        <translation>Odobratých obľúbených: %1</translation>
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
        <source>Try again</source>
        <translation>Skúsiť znova</translation>
    </message>
    <message>
        <source>Updated </source>
        <translation>Aktualizované </translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Zatiaľ tu nič nie je</translation>
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
