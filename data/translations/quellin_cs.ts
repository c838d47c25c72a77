<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs">
<context>
    <name>Guide</name>
    <message>
        <source>No shows to come</source>
        <translation>Žádné další pořady</translation>
    </message>
    <message>
        <source>The schedule of this channel has run out. Refresh to look for a newer one.</source>
        <translation>Program tohoto kanálu skončil. Obnovením vyhledáte novější.</translation>
    </message>
    <message>
        <source>Refreshing</source>
        <translation>Obnovuje se</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Obnovit</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Přehrát</translation>
    </message>
    <message>
        <source>Currently</source>
        <translation>Právě běží</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Vše</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Upozornění</translation>
    </message>
    <message>
        <source>No TV shows in this category</source>
        <translation>V této kategorii nejsou žádné pořady</translation>
    </message>
    <message>
        <source>Currently, there are no TV shows in this category for the TV channels you have selected or have not being loaded yet.
TV Shows are categorized heuristically.</source>
        <translation>Na vybraných kanálech teď v této kategorii žádné pořady nejsou nebo se ještě nenačetly.
Pořady se do kategorií řadí odhadem.</translation>
    </message>
    <message>
        <source>There is nothing to show currently.
Please wait until TV listings have loaded.</source>
        <translation>Teď není co zobrazit.
Počkejte, až se program načte.</translation>
    </message>
    <message>
        <source>Past shows</source>
        <translation>Odvysílané díly</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Upravit</translation>
    </message>
    <message>
        <source>Updating alerts</source>
        <translation>Upozornění se aktualizují</translation>
    </message>
    <message>
        <source>No favourites yet</source>
        <translation>Zatím žádné oblíbené</translation>
    </message>
    <message>
        <source>The broadcasts of your favourites appear here. Swipe a show to the left, or right-click it, to make it a favourite.</source>
        <translation>Zde se objeví vysílání vašich oblíbených pořadů. Mezi oblíbené pořad přidáte přejetím doleva nebo pravým tlačítkem myši.</translation>
    </message>
    <message>
        <source>Swipe a show to the left, or right-click it, to make it a favourite.</source>
        <translation>Mezi oblíbené pořad přidáte přejetím doleva nebo pravým tlačítkem myši.</translation>
    </message>
    <message>
        <source>See what is on now</source>
        <translation>Co právě běží</translation>
    </message>
    <message>
        <source>No favourite is broadcast soon</source>
        <translation>Žádný oblíbený pořad se brzy nevysílá</translation>
    </message>
    <message>
        <source>The schedules of your channels do not list any of your favourites.</source>
        <translation>V programu vašich kanálů není žádný z oblíbených pořadů.</translation>
    </message>
    <message>
        <source>Edit favourites</source>
        <translation>Upravit oblíbené</translation>
    </message>
    <message>
        <source>Choose channels</source>
        <translation>Vybrat kanály</translation>
    </message>
    <message>
        <source>No broadcast to come</source>
        <translation>Žádné další vysílání</translation>
    </message>
    <message>
        <source>The schedules of your channels do not list “%1”.</source>
        <translation>Program vašich kanálů pořad „%1“ neobsahuje.</translation>
    </message>
    <message>
        <source>No alerts</source>
        <translation>Žádná upozornění</translation>
    </message>
    <message>
        <source>The shows that you are alerted to appear here.</source>
        <translation>Zde se objeví pořady, na které vás průvodce upozorní.</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Oblíbené</translation>
    </message>
    <message>
        <source>Alert at the beginning of every broadcast</source>
        <translation>Upozornění na začátku každého vysílání</translation>
    </message>
    <message>
        <source>Alert %1 min before every broadcast</source>
        <translation>Upozornění %1 min před každým vysíláním</translation>
    </message>
    <message>
        <source>Alert at the beginning of every replay</source>
        <translation>Upozornění na začátku každé reprízy</translation>
    </message>
    <message>
        <source>Alert %1 min before every replay</source>
        <translation>Upozornění %1 min před každou reprízou</translation>
    </message>
    <message>
        <source>Alert at the beginning of every premiere</source>
        <translation>Upozornění na začátku každé premiéry</translation>
    </message>
    <message>
        <source>Alert %1 min before every premiere</source>
        <translation>Upozornění %1 min před každou premiérou</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Odebrat vše</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odebrat</translation>
    </message>
    <message>
        <source>“%1” is no longer a favourite</source>
        <translation>„%1“ už není mezi oblíbenými</translation>
    </message>
    <message>
        <source>All favourites removed</source>
        <translation>Všechny oblíbené odebrány</translation>
    </message>
    <message>
        <source>%1 favourites removed</source>
        <translation>Odebráno oblíbených: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Vrátit zpět</translation>
    </message>
    <message>
        <source>Remove all favorite shows?</source>
        <translation>Odebrat všechny oblíbené pořady?</translation>
    </message>
    <message>
        <source>No channels yet</source>
        <translation>Zatím žádné kanály</translation>
    </message>
    <message>
        <source>What is on now appears here once you have chosen channels under Selected Channels.</source>
        <translation>Co právě běží, uvidíte zde, jakmile si zvolíte kanály na kartě Vybrané kanály.</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Načítá se</translation>
    </message>
    <message>
        <source>No source for this channel</source>
        <translation>Kanál nemá žádný zdroj</translation>
    </message>
    <message>
        <source>No answer from %1</source>
        <translation>%1 neodpovídá</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Žádná odpověď</translation>
    </message>
    <message>
        <source>Status %1 from %2</source>
        <translation>%2 odpovídá stavem %1</translation>
    </message>
    <message>
        <source>Not a schedule: %1</source>
        <translation>Není to program: %1</translation>
    </message>
    <message>
        <source>Not a schedule</source>
        <translation>Není to program</translation>
    </message>
    <message>
        <source>No shows of this channel from %1</source>
        <translation>%1 nemá pořady tohoto kanálu</translation>
    </message>
    <message>
        <source>No shows of this channel</source>
        <translation>Žádné pořady tohoto kanálu</translation>
    </message>
    <message>
        <source>Only past shows from %1</source>
        <translation>%1 má jen minulé pořady</translation>
    </message>
    <message>
        <source>Only past shows</source>
        <translation>Jen minulé pořady</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Zkusit znovu</translation>
    </message>
    <message>
        <source>Updated </source>
        <translation>Aktualizováno </translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Zatím tu nic není</translation>
    </message>
    <message>
        <source>All Shows</source>
        <translation>Všechny pořady</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
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
        <translation>Právě běží</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Oblíbené</translation>
    </message>
    <message>
        <source>Alarm set</source>
        <translation>Upozornění nastaveno</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vymazat</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Hodiny</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuty</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Přesunout</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>Popular</source>
        <translation>Oblíbené u diváků</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Vybráno</translation>
    </message>
    <message>
        <source>This profile cannot be written. Changes will not be saved.</source>
        <translation>Do tohoto profilu nelze zapisovat. Změny se neuloží.</translation>
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
        <translation>Zítra</translation>
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
        <translation>Popis dílu:</translation>
    </message>
    <message>
        <source>Directed By:(p)</source>
        <translation>Režiséři:</translation>
    </message>
    <message>
        <source>Directed By:</source>
        <translation>Režie:</translation>
    </message>
    <message>
        <source>Roles:</source>
        <translation>Hrají:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Popis:</translation>
    </message>
    <message numerus="yes">
        <source>Starts in %n min</source>
        <translation>
            <numerusform>Začíná za %n min</numerusform>
            <numerusform>Začíná za %n min</numerusform>
            <numerusform>Začíná za %n min</numerusform>
        </translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Skončilo</translation>
    </message>
    <message numerus="yes">
        <source>%n min left</source>
        <translation>
            <numerusform>zbývá %n min</numerusform>
            <numerusform>zbývají %n min</numerusform>
            <numerusform>zbývá %n min</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>zbývá %1</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>Repríza</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Žádné</translation>
    </message>
    <message>
        <source>At beginning of the show</source>
        <translation>Na začátku pořadu</translation>
    </message>
    <message>
        <source>%1h before</source>
        <translation>%1 h předem</translation>
    </message>
    <message>
        <source>%1min before</source>
        <translation>%1 min předem</translation>
    </message>
    <message>
        <source>%1 (any broadcast)</source>
        <translation>%1 (každé vysílání)</translation>
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
        <translation>Oblíbené</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Upozornění</translation>
    </message>
    <message>
        <source>Trailer</source>
        <translation>Ukázka</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Obrázky</translation>
    </message>
    <message>
        <source>More broadcasts</source>
        <translation>Další vysílání</translation>
    </message>
    <message>
        <source>Past broadcasts</source>
        <translation>Minulá vysílání</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>Kopírovat odkaz</translation>
    </message>
    <message>
        <source>Link copied</source>
        <translation>Odkaz zkopírován</translation>
    </message>
    <message numerus="yes">
        <source>Show all %n</source>
        <translation>
            <numerusform>Zobrazit všechny (%n)</numerusform>
            <numerusform>Zobrazit všechny (%n)</numerusform>
            <numerusform>Zobrazit všechny (%n)</numerusform>
        </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Akce</translation>
    </message>
    <message>
        <source>You have to allow access to your calendars to be able to use alerts. Calendar data will only be used by the application on your device, and will not be sent to any other device or service. Go to &apos;Privacy&apos; in the &apos;Settings&apos; application.</source>
        <translation>Abyste mohli používat upozornění, musíte povolit přístup ke svým kalendářům. Údaje z kalendáře používá aplikace jen ve vašem zařízení a neposílá je do žádného jiného zařízení ani služby. Přejděte do „Soukromí“ v aplikaci „Nastavení“.</translation>
    </message>
    <message>
        <source>Search pattern</source>
        <translation>Hledaný text</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Informace</translation>
    </message>
    <message numerus="yes">
        <source>Titles, descriptions and people in the shows of your %n channel(s) are searched.</source>
        <translation>
            <numerusform>Prohledávají se názvy, popisy a osoby v pořadech vašeho kanálu.</numerusform>
            <numerusform>Prohledávají se názvy, popisy a osoby v pořadech vašich %n kanálů.</numerusform>
            <numerusform>Prohledávají se názvy, popisy a osoby v pořadech vašich %n kanálů.</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Co hledáte?</translation>
    </message>
    <message>
        <source>Recent searches</source>
        <translation>Nedávná hledání</translation>
    </message>
    <message>
        <source>Clear recent searches</source>
        <translation>Vymazat nedávná hledání</translation>
    </message>
    <message>
        <source>Recent searches cleared</source>
        <translation>Nedávná hledání vymazána</translation>
    </message>
    <message numerus="yes">
        <source>No show matches “%1” on your %n channel(s)</source>
        <translation>
            <numerusform>Na vašem kanálu žádný pořad neodpovídá textu „%1“</numerusform>
            <numerusform>Na vašich %n kanálech žádný pořad neodpovídá textu „%1“</numerusform>
            <numerusform>Na vašich %n kanálech žádný pořad neodpovídá textu „%1“</numerusform>
        </translation>
    </message>
    <message>
        <source>Only the shows of selected channels are searched.</source>
        <translation>Prohledávají se jen pořady vybraných kanálů.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Poznámka</translation>
    </message>
    <message>
        <source>Only selected channels will be searched.</source>
        <translation>Budou prohledány jen vybrané kanály.</translation>
    </message>
    <message>
        <source>No list yet</source>
        <translation>Zatím bez seznamu</translation>
    </message>
    <message>
        <source>Most Watched counts the alarms and favourites of everyone who shares a cloud store with you. No such list was received yet.</source>
        <translation>Nejsledovanější se počítají z upozornění a oblíbených všech, kdo s vámi sdílejí cloudové úložiště. Takový seznam zatím nepřišel.</translation>
    </message>
    <message>
        <source>None today</source>
        <translation>Dnes nic</translation>
    </message>
    <message numerus="yes">
        <source>%n show(s) today</source>
        <translation>
            <numerusform>Dnes %n pořad</numerusform>
            <numerusform>Dnes %n pořady</numerusform>
            <numerusform>Dnes %n pořadů</numerusform>
        </translation>
    </message>
    <message>
        <source>Most Watched</source>
        <translation>Nejsledovanější</translation>
    </message>
    <message>
        <source>Evening Shows</source>
        <translation>Večerní pořady</translation>
    </message>
    <message>
        <source>Feature Films</source>
        <translation>Celovečerní filmy</translation>
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
        <translation>Pro děti</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Zpravodajství</translation>
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
        <translation>Sport</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Filmy</translation>
    </message>
    <message>
        <source>Comedies</source>
        <translation>Komedie</translation>
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
        <translation>Dramata</translation>
    </message>
    <message>
        <source>Thrillers</source>
        <translation>Thrillery</translation>
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
        <translation>Přejít na kartu</translation>
    </message>
    <message>
        <source>Clear, close or go back</source>
        <translation>Vymazat, zavřít nebo zpět</translation>
    </message>
    <message>
        <source>Move through a list</source>
        <translation>Pohyb v seznamu</translation>
    </message>
    <message>
        <source>Open the row</source>
        <translation>Otevřít řádek</translation>
    </message>
    <message>
        <source>Choose the rows since the last one</source>
        <translation>Vybrat řádky od posledního vybraného</translation>
    </message>
    <message>
        <source>Actions on the row</source>
        <translation>Akce s řádkem</translation>
    </message>
    <message>
        <source>Remove the row</source>
        <translation>Odebrat řádek</translation>
    </message>
    <message>
        <source>Move the row</source>
        <translation>Přesunout řádek</translation>
    </message>
    <message>
        <source>Show these keys</source>
        <translation>Zobrazit tyto klávesy</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Klávesy</translation>
    </message>
    <message>
        <source>This is not the address of a stream.</source>
        <translation>Toto není adresa vysílání.</translation>
    </message>
    <message>
        <source>Streaming of this video is currently unavailable or your Internet connection speed is not adequate.</source>
        <translation>Vysílání tohoto videa nyní není k dispozici nebo rychlost vašeho připojení k internetu nestačí.</translation>
    </message>
    <message>
        <source>This device cannot decode the stream. Installing %1 may help.</source>
        <translation>Toto zařízení vysílání nedokáže dekódovat. Může pomoci instalace %1.</translation>
    </message>
    <message>
        <source>This is not the address of a show.</source>
        <translation>Toto není adresa pořadu.</translation>
    </message>
    <message>
        <source>This show is over, or not on your channels.</source>
        <translation>Tento pořad už skončil nebo není na vašich kanálech.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Hlasitost</translation>
    </message>
    <message>
        <source>Pictures cannot be drawn: the package %1 is missing.</source>
        <translation>Obraz nelze kreslit: chybí balíček %1.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>Previous channel</source>
        <translation>Předchozí kanál</translation>
    </message>
    <message>
        <source>Next channel</source>
        <translation>Další kanál</translation>
    </message>
    <message>
        <source>Sound on</source>
        <translation>Zapnout zvuk</translation>
    </message>
    <message>
        <source>Sound off</source>
        <translation>Vypnout zvuk</translation>
    </message>
    <message>
        <source>Leave full screen</source>
        <translation>Ukončit celou obrazovku</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Celá obrazovka</translation>
    </message>
    <message>
        <source>Picture %1 of %2</source>
        <translation>Obrázek %1 z %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>Předchozí obrázek</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>Další obrázek</translation>
    </message>
    <message>
        <source>Add channels</source>
        <translation>Přidat kanály</translation>
    </message>
    <message>
        <source>Choose the channels whose shows you want to see.</source>
        <translation>Vyberte kanály, jejichž pořady chcete vidět.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>Unselect all</source>
        <translation>Zrušit výběr všech</translation>
    </message>
    <message>
        <source>Unselect</source>
        <translation>Zrušit výběr</translation>
    </message>
    <message>
        <source>Unselect all selected channels?</source>
        <translation>Zrušit výběr všech vybraných kanálů?</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1: odebráno</translation>
    </message>
    <message>
        <source>Move to top</source>
        <translation>Přesunout nahoru</translation>
    </message>
    <message>
        <source>Search all channels</source>
        <translation>Hledat ve všech kanálech</translation>
    </message>
    <message>
        <source>All channels</source>
        <translation>Všechny kanály</translation>
    </message>
    <message>
        <source>No channels</source>
        <translation>Žádné kanály</translation>
    </message>
    <message>
        <source>The catalogue is empty.</source>
        <translation>Katalog je prázdný.</translation>
    </message>
    <message>
        <source>No channel matches “%1”</source>
        <translation>Hledání „%1“ neodpovídá žádný kanál</translation>
    </message>
    <message>
        <source>The search looks at the titles and languages of all channels.</source>
        <translation>Hledá se v názvech a jazycích všech kanálů.</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Vybrat vše</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Vybrat</translation>
    </message>
    <message>
        <source>No schedule yet</source>
        <translation>Zatím bez programu</translation>
    </message>
    <message>
        <source>updated just now</source>
        <translation>právě aktualizováno</translation>
    </message>
    <message>
        <source>The channels that you have chosen appear here.</source>
        <translation>Zde se zobrazí vybrané kanály.</translation>
    </message>
    <message>
        <source>No live stream</source>
        <translation>Bez živého vysílání</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Varování</translation>
    </message>
    <message>
        <source>This is a recurring alarm. Are you sure?</source>
        <translation>Toto upozornění se opakuje. Opravdu je chcete zrušit?</translation>
    </message>
    <message>
        <source>Remove alarm</source>
        <translation>Zrušit upozornění</translation>
    </message>
    <message>
        <source>This will also remove all alarms set on this show. Are you sure?</source>
        <translation>Zruší se i všechna upozornění na tento pořad. Chcete pokračovat?</translation>
    </message>
    <message>
        <source>Remove favorite</source>
        <translation>Odebrat z oblíbených</translation>
    </message>
    <message>
        <source>Set alarm</source>
        <translation>Nastavit upozornění</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s) removed</source>
        <translation>
            <numerusform>%n kanál odebrán</numerusform>
            <numerusform>%n kanály odebrány</numerusform>
            <numerusform>%n kanálů odebráno</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Select %n channel(s)?</source>
        <translation>
            <numerusform>Vybrat %n kanál?</numerusform>
            <numerusform>Vybrat %n kanály?</numerusform>
            <numerusform>Vybrat %n kanálů?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>updated %n min ago</source>
        <translation>
            <numerusform>aktualizováno před %n min</numerusform>
            <numerusform>aktualizováno před %n min</numerusform>
            <numerusform>aktualizováno před %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>updated %n hour(s) ago</source>
        <translation>
            <numerusform>aktualizováno před %n hodinou</numerusform>
            <numerusform>aktualizováno před %n hodinami</numerusform>
            <numerusform>aktualizováno před %n hodinami</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>updated %n day(s) ago</source>
        <translation>
            <numerusform>aktualizováno před %n dnem</numerusform>
            <numerusform>aktualizováno před %n dny</numerusform>
            <numerusform>aktualizováno před %n dny</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RemoteHostAlert</name>
    <message>
        <source>Unable to establish connection to remote server</source>
        <translation>Nelze navázat spojení se vzdáleným serverem</translation>
    </message>
    <message>
        <source>Check your Internet connection.</source>
        <translation>Zkontrolujte připojení k internetu.</translation>
    </message>
</context>
</TS>
