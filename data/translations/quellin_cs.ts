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
        <source>The source %1 could not be read</source>
        <translation>Zdroj %1 se nepodařilo přečíst</translation>
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
    <message>
        <source>My sources</source>
        <translation>Moje zdroje</translation>
    </message>
    <message>
        <source>Schedules (XMLTV), packed or not, playlists (M3U), and programs that print a schedule.</source>
        <translation>Programy stanic (XMLTV), i zabalené, seznamy stanic (M3U) a programy, které vypisují XMLTV.</translation>
    </message>
    <message>
        <source>Address, file or program</source>
        <translation>Adresa, soubor nebo program</translation>
    </message>
    <message>
        <source>Show channels</source>
        <translation>Zobrazit kanály</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Vložit</translation>
    </message>
    <message>
        <source>Choose a file…</source>
        <translation>Vybrat soubor…</translation>
    </message>
    <message>
        <source>From the catalogue</source>
        <translation>Z katalogu</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s)</source>
        <translation>
            <numerusform>%n kanál</numerusform>
            <numerusform>%n kanály</numerusform>
            <numerusform>%n kanálů</numerusform>
        </translation>
    </message>
    <message>
        <source>Public feeds: %1</source>
        <translation>Veřejné zdroje: %1</translation>
    </message>
    <message>
        <source>Public feeds</source>
        <translation>Veřejné zdroje</translation>
    </message>
    <message>
        <source>Other countries</source>
        <translation>Jiné země</translation>
    </message>
    <message>
        <source>All countries</source>
        <translation>Všechny země</translation>
    </message>
    <message>
        <source>Programs on this device</source>
        <translation>Programy na tomto zařízení</translation>
    </message>
    <message>
        <source>Choose a schedule or playlist</source>
        <translation>Vyberte soubor XMLTV nebo M3U</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Spustit</translation>
    </message>
    <message>
        <source>Ask %1?</source>
        <translation>Požádat %1?</translation>
    </message>
    <message>
        <source>This server belongs to somebody else and was never asked before. It learns the network address of this device, and is asked again at each update.</source>
        <translation>Tento server patří někomu jinému a ještě nebyl dotázán. Dozví se síťovou adresu tohoto zařízení a bude dotázán při každé aktualizaci.</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>Požádat</translation>
    </message>
    <message>
        <source>Run this program?</source>
        <translation>Spustit tento program?</translation>
    </message>
    <message>
        <source>“%1” runs on this device with your rights, now and at each update.</source>
        <translation>„%1“ poběží na tomto zařízení s vašimi právy, teď a při každé aktualizaci.</translation>
    </message>
    <message>
        <source>not ours</source>
        <translation>není náš</translation>
    </message>
    <message>
        <source>last reported alive %1</source>
        <translation>naposledy hlášen jako živý %1</translation>
    </message>
    <message>
        <source>Public feed of %1</source>
        <translation>Veřejný zdroj %1</translation>
    </message>
    <message>
        <source>These are the public feeds of others, not ours: they may be wrong, late or gone. One is asked only after you choose it.</source>
        <translation>Jsou to veřejné zdroje jiných, ne naše: mohou být chybné, opožděné nebo zrušené. Dotázán je jen ten, který vyberete.</translation>
    </message>
    <message>
        <source>Search countries</source>
        <translation>Hledat země</translation>
    </message>
    <message>
        <source>No feeds are known for “%1”</source>
        <translation>Pro „%1“ není znám žádný zdroj</translation>
    </message>
    <message>
        <source>%1 by id · %2 by name · %3 to review · %4 without a schedule</source>
        <translation>%1 podle id · %2 podle názvu · %3 ke kontrole · %4 bez programu</translation>
    </message>
    <message>
        <source>Review matches</source>
        <translation>Zkontrolovat přiřazení</translation>
    </message>
    <message>
        <source>Search all channels of the playlist</source>
        <translation>Hledat ve všech kanálech seznamu</translation>
    </message>
    <message>
        <source>To review</source>
        <translation>Ke kontrole</translation>
    </message>
    <message>
        <source>Choose the channel whose schedule is right.</source>
        <translation>Vyberte kanál, jehož program je správný.</translation>
    </message>
    <message>
        <source>Without a schedule</source>
        <translation>Bez programu</translation>
    </message>
    <message>
        <source>Nothing to review</source>
        <translation>Není co kontrolovat</translation>
    </message>
    <message>
        <source>Every channel has a schedule. A search shows which.</source>
        <translation>Každý kanál má program. Hledání ukáže který.</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s) come near</source>
        <translation>
            <numerusform>Blízko je %n kanál</numerusform>
            <numerusform>Blízko jsou %n kanály</numerusform>
            <numerusform>Blízko je %n kanálů</numerusform>
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
        <translation>Hledat v kanálech zdrojů</translation>
    </message>
    <message>
        <source>Nothing on now</source>
        <translation>Teď nic neběží</translation>
    </message>
    <message>
        <source>Channels that come near</source>
        <translation>Blízké kanály</translation>
    </message>
    <message>
        <source>A search finds every channel of the feeds.</source>
        <translation>Hledání najde každý kanál zdrojů.</translation>
    </message>
    <message>
        <source>The language decides in which category a show is. The channel&apos;s times are moved in addition to those of the whole source.</source>
        <translation>Jazyk rozhoduje o kategorii pořadu. Časy kanálu se posunou navíc k časům celého zdroje.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jazyk</translation>
    </message>
    <message>
        <source>Move its times</source>
        <translation>Posunout jeho časy</translation>
    </message>
    <message>
        <source>Add a source</source>
        <translation>Přidat zdroj</translation>
    </message>
    <message>
        <source>No sources yet</source>
        <translation>Zatím žádné zdroje</translation>
    </message>
    <message>
        <source>Add feeds, playlists and programs, and choose from their channels.</source>
        <translation>Přidejte zdroje XMLTV, seznamy a programy a vyberte si z jejich kanálů.</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s) chosen</source>
        <translation>
            <numerusform>Vybrán %n kanál</numerusform>
            <numerusform>Vybrány %n kanály</numerusform>
            <numerusform>Vybráno %n kanálů</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>schedules for %n channel(s)</source>
        <translation>
            <numerusform>programy pro %n kanál</numerusform>
            <numerusform>programy pro %n kanály</numerusform>
            <numerusform>programy pro %n kanálů</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 with a schedule</source>
        <translation>%1 s programem</translation>
    </message>
    <message>
        <source>Icons from other hosts</source>
        <translation>Ikony z jiných serverů</translation>
    </message>
    <message>
        <source>Feeds and playlists name icons on servers of others. These servers then learn the network address of this device and which channels you chose.</source>
        <translation>Zdroje a seznamy uvádějí ikony na cizích serverech. Tyto servery se pak dozvědí síťovou adresu tohoto zařízení a které kanály jste si vybrali.</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s) of other sources lose their schedules.</source>
        <translation>
            <numerusform>%n kanál jiných zdrojů přijde o program.</numerusform>
            <numerusform>%n kanály jiných zdrojů přijdou o program.</numerusform>
            <numerusform>%n kanálů jiných zdrojů přijde o program.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 with shows</source>
        <translation>%1 z %2 s pořady</translation>
    </message>
    <message>
        <source>being read</source>
        <translation>právě se čte</translation>
    </message>
    <message>
        <source>from %1</source>
        <translation>z %1</translation>
    </message>
    <message>
        <source>next try %1</source>
        <translation>další pokus %1</translation>
    </message>
    <message>
        <source>No shows</source>
        <translation>Žádné pořady</translation>
    </message>
    <message>
        <source>Without shows</source>
        <translation>Bez pořadů</translation>
    </message>
    <message>
        <source>Its channels cannot be shown</source>
        <translation>Jeho kanály nelze zobrazit</translation>
    </message>
    <message numerus="yes">
        <source>Search %n channel(s)</source>
        <translation>
            <numerusform>Hledat v %n kanálu</numerusform>
            <numerusform>Hledat ve %n kanálech</numerusform>
            <numerusform>Hledat v %n kanálech</numerusform>
        </translation>
    </message>
    <message>
        <source>The search looks at all names of a channel.</source>
        <translation>Hledá se ve všech názvech kanálu.</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Skupina</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 a %n další</numerusform>
            <numerusform>%1 a %n další</numerusform>
            <numerusform>%1 a %n dalších</numerusform>
        </translation>
    </message>
    <message>
        <source>Last try</source>
        <translation>Poslední pokus</translation>
    </message>
    <message>
        <source>Last success</source>
        <translation>Poslední úspěch</translation>
    </message>
    <message>
        <source>Next try</source>
        <translation>Další pokus</translation>
    </message>
    <message>
        <source>In the source</source>
        <translation>Ve zdroji</translation>
    </message>
    <message>
        <source>%1 with shows</source>
        <translation>%1 s pořady</translation>
    </message>
    <message numerus="yes">
        <source>%n show(s)</source>
        <translation>
            <numerusform>%n pořad</numerusform>
            <numerusform>%n pořady</numerusform>
            <numerusform>%n pořadů</numerusform>
        </translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Vybráno</translation>
    </message>
    <message>
        <source>Last show</source>
        <translation>Poslední pořad</translation>
    </message>
    <message>
        <source>Kept from before, because the new shows were fewer</source>
        <translation>Ponecháno z dřívějška, protože nových pořadů bylo méně</translation>
    </message>
    <message>
        <source>No longer in the source</source>
        <translation>Už není ve zdroji</translation>
    </message>
    <message>
        <source>Move all times</source>
        <translation>Posunout všechny časy</translation>
    </message>
    <message>
        <source>Output of the program</source>
        <translation>Výpis programu</translation>
    </message>
    <message>
        <source>This source was removed</source>
        <translation>Tento zdroj byl odebrán</translation>
    </message>
    <message>
        <source>It is being read.</source>
        <translation>Právě se čte.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Podrobnosti</translation>
    </message>
    <message>
        <source>Refresh now</source>
        <translation>Obnovit teď</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Address or file</source>
        <translation>Adresa nebo soubor</translation>
    </message>
    <message>
        <source>Save the new address</source>
        <translation>Uložit novou adresu</translation>
    </message>
    <message>
        <source>The secret part of the address is kept apart, on this device only. Enter the whole address to change it.</source>
        <translation>Tajná část adresy je uložena zvlášť a jen na tomto zařízení. Chcete-li ji změnit, zadejte celou adresu.</translation>
    </message>
    <message>
        <source>Copy as text</source>
        <translation>Kopírovat jako text</translation>
    </message>
    <message>
        <source>Remove this source</source>
        <translation>Odebrat tento zdroj</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Zkopírováno</translation>
    </message>
    <message>
        <source>Remove “%1”?</source>
        <translation>Odebrat „%1“?</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s) and their shows go with it.</source>
        <translation>
            <numerusform>Zmizí s ním %n kanál i jeho pořady.</numerusform>
            <numerusform>Zmizí s ním %n kanály i jejich pořady.</numerusform>
            <numerusform>Zmizí s ním %n kanálů i jejich pořady.</numerusform>
        </translation>
    </message>
    <message>
        <source>The list is longer; the rest is left out.</source>
        <translation>Seznam je delší; zbytek je vynechán.</translation>
    </message>
    <message>
        <source>%1 on air now</source>
        <translation>%1 právě vysílá</translation>
    </message>
    <message>
        <source>%1 in the next 24 hours</source>
        <translation>%1 v příštích 24 hodinách</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>Od %1 do %2</translation>
    </message>
    <message>
        <source>Is it on at this time? Otherwise move all times.</source>
        <translation>Vysílá se v tuto dobu? Jinak posuňte všechny časy.</translation>
    </message>
    <message>
        <source>Schedules</source>
        <translation>Programy</translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation>Načteno</translation>
    </message>
    <message numerus="yes">
        <source>Show all %n feed(s)</source>
        <translation>
            <numerusform>Zobrazit %n zdroj</numerusform>
            <numerusform>Zobrazit všechny %n zdroje</numerusform>
            <numerusform>Zobrazit všech %n zdrojů</numerusform>
        </translation>
    </message>
    <message>
        <source>Not asked</source>
        <translation>Nedotázán</translation>
    </message>
    <message>
        <source>Asked when you go on</source>
        <translation>Dotázán, až budete pokračovat</translation>
    </message>
    <message>
        <source>Load and match now</source>
        <translation>Načíst a přiřadit teď</translation>
    </message>
    <message>
        <source>No schedules</source>
        <translation>Žádné programy</translation>
    </message>
    <message>
        <source>The playlist names no feed, and none was added. Add a feed to see what is on.</source>
        <translation>Seznam neuvádí žádný zdroj programu a žádný nebyl přidán. Přidejte ho, abyste viděli, co se vysílá.</translation>
    </message>
    <message>
        <source>The server denies access (status %1). Check the user name, password or token in the address.</source>
        <translation>Server odmítá přístup (stav %1). Zkontrolujte jméno, heslo nebo klíč v adrese.</translation>
    </message>
    <message>
        <source>There is nothing at this address (status %1). Check it, or look for a newer one.</source>
        <translation>Na této adrese nic není (stav %1). Zkontrolujte ji nebo najděte novější.</translation>
    </message>
    <message>
        <source>The server has a fault (status %1). Try again later.</source>
        <translation>Server má poruchu (stav %1). Zkuste to později.</translation>
    </message>
    <message>
        <source>The server answered with status %1 instead of a schedule. Check the address.</source>
        <translation>Server odpověděl stavem %1 místo programu. Zkontrolujte adresu.</translation>
    </message>
    <message>
        <source>Waiting for an answer</source>
        <translation>Čeká se na odpověď</translation>
    </message>
    <message>
        <source>Reading: %1</source>
        <translation>Čte se: %1</translation>
    </message>
    <message numerus="yes">
        <source>Reading: %n channel(s), %1</source>
        <translation>
            <numerusform>Čte se: %n kanál, %1</numerusform>
            <numerusform>Čte se: %n kanály, %1</numerusform>
            <numerusform>Čte se: %n kanálů, %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Not asked yet.</source>
        <translation>Ještě nebyl dotázán.</translation>
    </message>
    <message>
        <source>Everything was read.</source>
        <translation>Vše bylo přečteno.</translation>
    </message>
    <message>
        <source>Nothing has changed since it was read.</source>
        <translation>Od přečtení se nic nezměnilo.</translation>
    </message>
    <message>
        <source>It broke off. What came before is used, and it will be tried again.</source>
        <translation>Přerušilo se to. Použije se, co přišlo předtím, a zkusí se to znovu.</translation>
    </message>
    <message>
        <source>It suddenly has far fewer channels with shows. The shows from before are kept.</source>
        <translation>Najednou má mnohem méně kanálů s pořady. Dřívější pořady zůstávají.</translation>
    </message>
    <message>
        <source>Its last show is over: nobody seems to update it. Look for another source.</source>
        <translation>Jeho poslední pořad už skončil: zřejmě ho nikdo neaktualizuje. Najděte jiný zdroj.</translation>
    </message>
    <message>
        <source>No answer. Check the address and the network.</source>
        <translation>Žádná odpověď. Zkontrolujte adresu a síť.</translation>
    </message>
    <message>
        <source>The server wants to be asked less often. It will be tried again later.</source>
        <translation>Server chce být dotazován méně často. Zkusí se to později.</translation>
    </message>
    <message>
        <source>The address leads from one address to the next without an end. Check it.</source>
        <translation>Adresa vede bez konce z jedné adresy na druhou. Zkontrolujte ji.</translation>
    </message>
    <message>
        <source>The address leads out of the web (%1), where the guide does not follow.</source>
        <translation>Adresa vede mimo web (%1), kam průvodce nejde.</translation>
    </message>
    <message>
        <source>There is no such file, or it cannot be read. Check the path.</source>
        <translation>Takový soubor není nebo ho nelze číst. Zkontrolujte cestu.</translation>
    </message>
    <message>
        <source>It is empty. Some servers answer so when there is nothing at an address; check it.</source>
        <translation>Je prázdný. Některé servery tak odpovídají, když na adrese nic není; zkontrolujte ji.</translation>
    </message>
    <message>
        <source>This is a page of the web, perhaps one to log in on. Look there for the address of an XMLTV or M3U file.</source>
        <translation>To je webová stránka, možná přihlašovací. Najděte na ní adresu souboru XMLTV nebo M3U.</translation>
    </message>
    <message>
        <source>This is neither a schedule (XMLTV) nor a playlist (M3U).</source>
        <translation>To není ani program stanic (XMLTV), ani seznam stanic (M3U).</translation>
    </message>
    <message>
        <source>It is damaged and cannot be unpacked. Fetch it again.</source>
        <translation>Je poškozený a nelze ho rozbalit. Stáhněte ho znovu.</translation>
    </message>
    <message>
        <source>It is larger than this device can read. Look for one with fewer channels.</source>
        <translation>Je větší, než toto zařízení dokáže přečíst. Najděte zdroj s méně kanály.</translation>
    </message>
    <message>
        <source>It cannot be stored: the disk is full or cannot be written.</source>
        <translation>Nelze ho uložit: disk je plný nebo na něj nelze zapisovat.</translation>
    </message>
    <message>
        <source>The program has to be configured first. Run it in a terminal with --configure.</source>
        <translation>Program je třeba nejdřív nastavit. Spusťte ho v terminálu s --configure.</translation>
    </message>
    <message>
        <source>The program ended with an error. Run it in a terminal to see why.</source>
        <translation>Program skončil chybou. Proč, uvidíte, když ho spustíte v terminálu.</translation>
    </message>
    <message>
        <source>The program ended with status %1. Run it in a terminal to see why.</source>
        <translation>Program skončil se stavem %1. Proč, uvidíte, když ho spustíte v terminálu.</translation>
    </message>
    <message>
        <source>The program was ended because it printed nothing for a long time.</source>
        <translation>Program byl ukončen, protože dlouho nic nevypsal.</translation>
    </message>
    <message>
        <source>The program was ended because it ran for too long.</source>
        <translation>Program byl ukončen, protože běžel příliš dlouho.</translation>
    </message>
    <message>
        <source>The program was ended because it printed more than a schedule can be.</source>
        <translation>Program byl ukončen, protože vypsal víc, než může program stanic mít.</translation>
    </message>
    <message>
        <source>The password of this address is not on this device. Enter the address again.</source>
        <translation>Heslo této adresy na tomto zařízení není. Zadejte adresu znovu.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Zrušeno.</translation>
    </message>
    <message numerus="yes">
        <source>Only %1 of %n channel(s) have shows in the next 24 hours.</source>
        <translation>
            <numerusform>Jen %1 z %n kanálu má pořady v příštích 24 hodinách.</numerusform>
            <numerusform>Jen %1 ze %n kanálů má pořady v příštích 24 hodinách.</numerusform>
            <numerusform>Jen %1 z %n kanálů má pořady v příštích 24 hodinách.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its last show was on %1.</source>
        <translation>Jeho poslední pořad byl %1.</translation>
    </message>
    <message>
        <source>It has no shows.</source>
        <translation>Nemá žádné pořady.</translation>
    </message>
    <message>
        <source>The evening news are not in the evening: its times may be shifted.</source>
        <translation>Večerní zprávy nejsou večer: časy jsou možná posunuté.</translation>
    </message>
    <message>
        <source>It broke off. What came before can be used.</source>
        <translation>Přerušilo se to. Co přišlo předtím, lze použít.</translation>
    </message>
    <message>
        <source>Some characters cannot be read and are missing.</source>
        <translation>Některé znaky nelze přečíst a chybějí.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Neznámý</translation>
    </message>
    <message>
        <source>Files cannot be chosen: the package %1 is missing. Type the path of the file.</source>
        <translation>Soubory nelze vybírat: chybí balíček %1. Napište cestu k souboru.</translation>
    </message>
    <message>
        <source>Found by their names. One runs only after you agree.</source>
        <translation>Nalezeny podle jmen. Spustí se jen ten, s nímž souhlasíte.</translation>
    </message>
    <message>
        <source>Settings of channels</source>
        <translation>Nastavení kanálů</translation>
    </message>
    <message>
        <source>Picture…</source>
        <translation>Obrázek…</translation>
    </message>
    <message>
        <source>Remove picture</source>
        <translation>Odebrat obrázek</translation>
    </message>
    <message>
        <source>Choose a picture</source>
        <translation>Vyberte obrázek</translation>
    </message>
    <message>
        <source>Your own picture, in place of that of the source.</source>
        <translation>Váš vlastní obrázek místo obrázku ze zdroje.</translation>
    </message>
    <message>
        <source>“%1” is no picture that can be shown, or larger than %2.</source>
        <translation>„%1“ není obrázek, který lze zobrazit, nebo je větší než %2.</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nové</translation>
    </message>
    <message>
        <source>Original title</source>
        <translation>Původní název</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Rok</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Země</translation>
    </message>
    <message>
        <source>Age rating</source>
        <translation>Věková hranice</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Hodnocení</translation>
    </message>
    <message>
        <source>Season %1</source>
        <translation>%1. řada</translation>
    </message>
    <message>
        <source>Episode %1</source>
        <translation>%1. díl</translation>
    </message>
    <message>
        <source>Episode %1 of %2</source>
        <translation>%1. díl z %2</translation>
    </message>
    <message>
        <source>Part %1</source>
        <translation>Část %1</translation>
    </message>
    <message>
        <source>Part %1 of %2</source>
        <translation>Část %1 z %2</translation>
    </message>
    <message>
        <source>%1 of %2 stars</source>
        <translation>%1 z %2 hvězdiček</translation>
    </message>
    <message numerus="yes">
        <source>Show all %n program(s)</source>
        <translation>
            <numerusform>Zobrazit %n program</numerusform>
            <numerusform>Zobrazit všechny %n programy</numerusform>
            <numerusform>Zobrazit všech %n programů</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add all %n channel(s)</source>
        <translation>
            <numerusform>Přidat kanál</numerusform>
            <numerusform>Přidat všechny %n kanály</numerusform>
            <numerusform>Přidat všech %n kanálů</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add the %n channel(s) with shows</source>
        <translation>
            <numerusform>Přidat kanál s pořady</numerusform>
            <numerusform>Přidat %n kanály s pořady</numerusform>
            <numerusform>Přidat %n kanálů s pořady</numerusform>
        </translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>Deník</translation>
    </message>
    <message>
        <source>Nothing yet</source>
        <translation>Zatím nic</translation>
    </message>
    <message>
        <source>What happens to your alerts is written down here for 60 days.</source>
        <translation>Co se děje s vašimi upozorněními, se zde zapisuje po dobu 60 dnů.</translation>
    </message>
    <message>
        <source>You removed this alert in the calendar, and the rule set it again.</source>
        <translation>Toto upozornění jste v kalendáři odstranili a pravidlo je nastavilo znovu.</translation>
    </message>
    <message>
        <source>Not this broadcast</source>
        <translation>Toto vysílání ne</translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s)</source>
        <translation>
            <numerusform>%n hodinu</numerusform>
            <numerusform>%n hodiny</numerusform>
            <numerusform>%n hodin</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s)</source>
        <translation>
            <numerusform>%n minutu</numerusform>
            <numerusform>%n minuty</numerusform>
            <numerusform>%n minut</numerusform>
        </translation>
    </message>
    <message>
        <source>Removed: no longer listed</source>
        <translation>Zrušeno: už není v programu</translation>
    </message>
    <message>
        <source>Removed: it would ring in the silent hours</source>
        <translation>Zrušeno: zaznělo by v tichých hodinách</translation>
    </message>
    <message>
        <source>Removed: its alert was removed in the calendar</source>
        <translation>Zrušeno: upozornění bylo odstraněno v kalendáři</translation>
    </message>
    <message>
        <source>Removed: it had no channel</source>
        <translation>Zrušeno: nemělo kanál</translation>
    </message>
    <message>
        <source>Removed: it was there twice</source>
        <translation>Zrušeno: bylo tam dvakrát</translation>
    </message>
    <message>
        <source>Removed: the recurring alert was ended</source>
        <translation>Zrušeno: opakované upozornění skončilo</translation>
    </message>
    <message>
        <source>Removed: the broadcast was moved</source>
        <translation>Zrušeno: vysílání bylo přesunuto</translation>
    </message>
    <message>
        <source>Removed by you</source>
        <translation>Zrušeno vámi</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Zrušeno</translation>
    </message>
    <message>
        <source>New: rule %1</source>
        <translation>Nové: pravidlo %1</translation>
    </message>
    <message>
        <source>Set again by the rule %1: it was removed in the calendar</source>
        <translation>Znovu nastaveno pravidlem %1: v kalendáři bylo zrušeno</translation>
    </message>
    <message>
        <source>Set by you</source>
        <translation>Nastaveno vámi</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Přesunuto</translation>
    </message>
    <message>
        <source>Changed: the broadcast has another end or channel</source>
        <translation>Změněno: vysílání má jiný konec nebo kanál</translation>
    </message>
    <message>
        <source>Moved from %1 to %2</source>
        <translation>Přesunuto z %1 na %2</translation>
    </message>
    <message>
        <source>Set by the rule “%1”.</source>
        <translation>Nastaveno pravidlem „%1“.</translation>
    </message>
    <message>
        <source>Set for this broadcast only.</source>
        <translation>Nastaveno jen pro toto vysílání.</translation>
    </message>
    <message>
        <source>Its alert was removed in the calendar.</source>
        <translation>Upozornění bylo odstraněno v kalendáři.</translation>
    </message>
    <message>
        <source>No alert: the guide cannot use your calendars.</source>
        <translation>Bez upozornění: průvodce nemůže používat vaše kalendáře.</translation>
    </message>
    <message>
        <source>No alert: there is no calendar for it.</source>
        <translation>Bez upozornění: není pro ně kalendář.</translation>
    </message>
    <message>
        <source>No alert: the calendar is read-only.</source>
        <translation>Bez upozornění: kalendář je jen pro čtení.</translation>
    </message>
    <message>
        <source>No alert: the show has begun.</source>
        <translation>Bez upozornění: pořad už začal.</translation>
    </message>
    <message>
        <source>No alert: this is a replay, and the rule is for premieres.</source>
        <translation>Bez upozornění: toto je repríza a pravidlo platí pro premiéry.</translation>
    </message>
    <message>
        <source>No alert: this is a premiere, and the rule is for replays.</source>
        <translation>Bez upozornění: toto je premiéra a pravidlo platí pro reprízy.</translation>
    </message>
    <message>
        <source>No alert: it would ring in the silent hours.</source>
        <translation>Bez upozornění: zaznělo by v tichých hodinách.</translation>
    </message>
    <message>
        <source>No alert: you wanted none for this broadcast.</source>
        <translation>Bez upozornění: na toto vysílání jste žádné nechtěli.</translation>
    </message>
    <message>
        <source>No alert yet: the channel’s schedule is not up to date.</source>
        <translation>Zatím bez upozornění: program kanálu není aktuální.</translation>
    </message>
    <message>
        <source>No alert yet: the show is more than 60 days away.</source>
        <translation>Zatím bez upozornění: do pořadu zbývá víc než 60 dnů.</translation>
    </message>
    <message>
        <source>It will be set with the next update.</source>
        <translation>Nastaví se při příští aktualizaci.</translation>
    </message>
    <message>
        <source>There will be no alert.</source>
        <translation>Žádné upozornění nebude.</translation>
    </message>
    <message>
        <source>At the beginning of this broadcast</source>
        <translation>Na začátku tohoto vysílání</translation>
    </message>
    <message>
        <source>%1 before this broadcast</source>
        <translation>%1 před tímto vysíláním</translation>
    </message>
    <message>
        <source>At the beginning of every broadcast on any channel</source>
        <translation>Na začátku každého vysílání na kterémkoli kanálu</translation>
    </message>
    <message>
        <source>%1 before every broadcast on any channel</source>
        <translation>%1 před každým vysíláním na kterémkoli kanálu</translation>
    </message>
    <message>
        <source>At the beginning of every premiere on any channel</source>
        <translation>Na začátku každé premiéry na kterémkoli kanálu</translation>
    </message>
    <message>
        <source>%1 before every premiere on any channel</source>
        <translation>%1 před každou premiérou na kterémkoli kanálu</translation>
    </message>
    <message>
        <source>At the beginning of every replay on any channel</source>
        <translation>Na začátku každé reprízy na kterémkoli kanálu</translation>
    </message>
    <message>
        <source>%1 before every replay on any channel</source>
        <translation>%1 před každou reprízou na kterémkoli kanálu</translation>
    </message>
    <message>
        <source>Could not be set: the calendar refused it</source>
        <translation>Nelze nastavit: kalendář to odmítl</translation>
    </message>
    <message>
        <source>Could not be moved: the calendar refused it</source>
        <translation>Nelze přesunout: kalendář to odmítl</translation>
    </message>
    <message>
        <source>Could not be removed: the calendar refused it</source>
        <translation>Nelze zrušit: kalendář to odmítl</translation>
    </message>
    <message>
        <source>Not removed: too many alerts would have been removed at once</source>
        <translation>Nezrušeno: najednou by se zrušilo příliš mnoho upozornění</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n alert(s)?</source>
        <translation>
            <numerusform>Zrušit %n upozornění?</numerusform>
            <numerusform>Zrušit %n upozornění?</numerusform>
            <numerusform>Zrušit %n upozornění?</numerusform>
        </translation>
    </message>
    <message>
        <source>Most of your alerts would go at once, because their shows are no longer listed or they would ring in the silent hours. That may be a mistake, so none was removed.</source>
        <translation>Většina upozornění by se zrušila najednou, protože jejich pořady už v programech nejsou nebo by zazněla v tichých hodinách. Může to být omyl, proto se žádné nezrušilo.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Ponechat</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Allow an alert for this broadcast</source>
        <translation>Povolit upozornění na toto vysílání</translation>
    </message>
    <message>
        <source>Only this broadcast</source>
        <translation>Jen toto vysílání</translation>
    </message>
    <message>
        <source>Any broadcast</source>
        <translation>Každé vysílání</translation>
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
        <translation>Opakování:</translation>
    </message>
    <message>
        <source>Trigger time:</source>
        <translation>Čas upozornění:</translation>
    </message>
    <message>
        <source>TV</source>
        <translation>TV</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Jen pro čtení</translation>
    </message>
    <message>
        <source>Offline; changes are sent later</source>
        <translation>Offline; změny se odešlou později</translation>
    </message>
    <message>
        <source>Its account needs your attention</source>
        <translation>Jeho účet vyžaduje vaši pozornost</translation>
    </message>
    <message>
        <source>Calendars</source>
        <translation>Kalendáře</translation>
    </message>
    <message>
        <source>New calendar “%1”</source>
        <translation>Nový kalendář „%1“</translation>
    </message>
    <message>
        <source>Alerts are events in the calendar that you choose here, so that your other programs and devices show them as well.</source>
        <translation>Upozornění jsou události v kalendáři, který zde vyberete, takže je ukazují i vaše další programy a zařízení.</translation>
    </message>
    <message>
        <source>You have to remove all your alerts before changing calendar</source>
        <translation>Před změnou kalendáře musíte zrušit všechna upozornění</translation>
    </message>
    <message>
        <source>The calendars cannot be read</source>
        <translation>Kalendáře nelze přečíst</translation>
    </message>
    <message>
        <source>The calendar could not be made.</source>
        <translation>Kalendář se nepodařilo vytvořit.</translation>
    </message>
    <message numerus="yes">
        <source>Every %n min</source>
        <translation>
            <numerusform>Každou %n min</numerusform>
            <numerusform>Každé %n min</numerusform>
            <numerusform>Každých %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n h</source>
        <translation>
            <numerusform>Každou %n h</numerusform>
            <numerusform>Každé %n h</numerusform>
            <numerusform>Každých %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n day(s)</source>
        <translation>
            <numerusform>Každý den</numerusform>
            <numerusform>Každé %n dny</numerusform>
            <numerusform>Každých %n dnů</numerusform>
        </translation>
    </message>
    <message>
        <source>Show coloring</source>
        <translation>Barevné časy pořadů</translation>
    </message>
    <message>
        <source>Scheduled no alarm time</source>
        <translation>Doba bez upozornění</translation>
    </message>
    <message>
        <source>Don&apos;t automatically create any recurring alarms in this time span</source>
        <translation>V tomto rozmezí se opakovaná upozornění automaticky nevytvářejí</translation>
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
        <translation>Zobrazení</translation>
    </message>
    <message>
        <source>Pictures of shows</source>
        <translation>Obrázky pořadů</translation>
    </message>
    <message>
        <source>Large pictures on the pages of shows</source>
        <translation>Velké obrázky na stránkách pořadů</translation>
    </message>
    <message>
        <source>Large pictures without cutting</source>
        <translation>Velké obrázky bez ořezu</translation>
    </message>
    <message>
        <source>A picture of another shape is shown whole and does not fill its place.</source>
        <translation>Obrázek jiného tvaru se ukáže celý a nevyplní své místo.</translation>
    </message>
    <message>
        <source>Shows per channel</source>
        <translation>Pořadů na kanál</translation>
    </message>
    <message>
        <source>Look for new schedules</source>
        <translation>Hledat nové programy</translation>
    </message>
    <message>
        <source>Silent Hours</source>
        <translation>Tiché hodiny</translation>
    </message>
    <message>
        <source>Alerts that you set on a single broadcast ring at any time.</source>
        <translation>Upozornění nastavená na jednotlivé vysílání zaznějí kdykoli.</translation>
    </message>
    <message>
        <source>Across midnight</source>
        <translation>Přes půlnoc</translation>
    </message>
    <message>
        <source>Silent from %1 to midnight and from midnight to %2</source>
        <translation>Ticho od %1 do půlnoci a od půlnoci do %2</translation>
    </message>
    <message>
        <source>All recurring alerts are silent, all day: the time span begins and ends at the same time.</source>
        <translation>Všechna opakovaná upozornění mlčí po celý den: rozmezí začíná a končí ve stejný čas.</translation>
    </message>
    <message>
        <source>All recurring alerts are silent, all day: the time span crosses midnight.</source>
        <translation>Všechna opakovaná upozornění mlčí po celý den: rozmezí přechází přes půlnoc.</translation>
    </message>
    <message>
        <source>Silent all day</source>
        <translation>Ticho po celý den</translation>
    </message>
    <message>
        <source>Silent from %1 to %2</source>
        <translation>Ticho od %1 do %2</translation>
    </message>
    <message>
        <source>Folder of calendar files</source>
        <translation>Složka se soubory kalendářů</translation>
    </message>
    <message>
        <source>Calendars of the desktop</source>
        <translation>Kalendáře pracovní plochy</translation>
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
        <translation>Bez upozornění: oblíbený pořad nemá opakované upozornění.</translation>
    </message>
    <message>
        <source>At start</source>
        <translation>Na začátku</translation>
    </message>
    <message>
        <source>Alert: %1</source>
        <translation>Upozornění: %1</translation>
    </message>
    <message>
        <source>Folder %1</source>
        <translation>Složka %1</translation>
    </message>
    <message>
        <source>Another device has removed all your favourites.</source>
        <translation>Jiné zařízení odstranilo všechny vaše oblíbené.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Obnovit</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Vypnuto</translation>
    </message>
    <message>
        <source>Most Watched is off: it counts the alarms and favourites of everyone who shares a database with you. To switch it on, choose a database in the options, under “Your devices”.</source>
        <translation>Nejsledovanější jsou vypnuté: počítají upozornění a oblíbené všech, kdo s vámi sdílejí databázi. Zapnete je volbou databáze v nastavení, v části „Vaše zařízení“.</translation>
    </message>
    <message numerus="yes">
        <source>%n selected channel(s)</source>
        <translation>
            <numerusform>%n vybraný kanál</numerusform>
            <numerusform>%n vybrané kanály</numerusform>
            <numerusform>%n vybraných kanálů</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n favourite(s)</source>
        <translation>
            <numerusform>%n oblíbený pořad</numerusform>
            <numerusform>%n oblíbené pořady</numerusform>
            <numerusform>%n oblíbených pořadů</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n alert(s) in the calendar</source>
        <translation>
            <numerusform>%n upozornění v kalendáři</numerusform>
            <numerusform>%n upozornění v kalendáři</numerusform>
            <numerusform>%n upozornění v kalendáři</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n kept list(s)</source>
        <translation>
            <numerusform>%n uchovaný seznam</numerusform>
            <numerusform>%n uchované seznamy</numerusform>
            <numerusform>%n uchovaných seznamů</numerusform>
        </translation>
    </message>
    <message>
        <source>silent hours</source>
        <translation>tiché hodiny</translation>
    </message>
    <message>
        <source>the choice of the calendar</source>
        <translation>volbu kalendáře</translation>
    </message>
    <message numerus="yes">
        <source>%n alert(s) of other shows</source>
        <translation>
            <numerusform>%n upozornění na jiné pořady</numerusform>
            <numerusform>%n upozornění na jiné pořady</numerusform>
            <numerusform>%n upozornění na jiné pořady</numerusform>
        </translation>
    </message>
    <message>
        <source>Delete data</source>
        <translation>Smazat údaje</translation>
    </message>
    <message>
        <source>On this device</source>
        <translation>V tomto zařízení</translation>
    </message>
    <message>
        <source>Favourites are removed on all your devices.</source>
        <translation>Oblíbené se odstraní ve všech vašich zařízeních.</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nic</translation>
    </message>
    <message>
        <source>Also</source>
        <translation>Také</translation>
    </message>
    <message>
        <source>This will delete all your personal application data stored in iCloud including favorites and selected TV channels.</source>
        <translation>Tím se smažou všechny vaše osobní údaje aplikace uložené v iCloudu včetně oblíbených a vybraných televizních kanálů.</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Smazáno</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Oblíbené</translation>
    </message>
    <message>
        <source>Selected channels</source>
        <translation>Vybrané kanály</translation>
    </message>
    <message>
        <source>Lists that another device has replaced, by the time of that. At most ten of each kind are kept.</source>
        <translation>Seznamy, které nahradilo jiné zařízení, podle doby nahrazení. Od každého druhu se jich uchovává nejvýše deset.</translation>
    </message>
    <message>
        <source>Nothing that you do not have now</source>
        <translation>Nic, co byste teď neměli</translation>
    </message>
    <message>
        <source>Brings back %1</source>
        <translation>Vrátí %1</translation>
    </message>
    <message numerus="yes">
        <source>Brings back %n</source>
        <translation>
            <numerusform>Vrátí %n</numerusform>
            <numerusform>Vrátí %n</numerusform>
            <numerusform>Vrátí %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Brings back %1 and %n more</source>
        <translation>
            <numerusform>Vrátí %1 a %n další</numerusform>
            <numerusform>Vrátí %1 a %n další</numerusform>
            <numerusform>Vrátí %1 a %n dalších</numerusform>
        </translation>
    </message>
    <message>
        <source>Selected on another device; this version does not know it</source>
        <translation>Vybrán na jiném zařízení; tato verze ho nezná</translation>
    </message>
    <message>
        <source>No lists</source>
        <translation>Žádné seznamy</translation>
    </message>
    <message>
        <source>No other device has replaced your favourites or channels.</source>
        <translation>Žádné jiné zařízení nenahradilo vaše oblíbené ani kanály.</translation>
    </message>
    <message>
        <source>These favourites take the place of the present ones on all your devices.</source>
        <translation>Tyto oblíbené nahradí současné na všech vašich zařízeních.</translation>
    </message>
    <message>
        <source>These channels take the place of the present ones on all your devices.</source>
        <translation>Tyto kanály nahradí současné na všech vašich zařízeních.</translation>
    </message>
    <message>
        <source>The list was restored.</source>
        <translation>Seznam byl obnoven.</translation>
    </message>
    <message>
        <source>The list could not be read.</source>
        <translation>Seznam nelze přečíst.</translation>
    </message>
    <message>
        <source>Your data</source>
        <translation>Vaše údaje</translation>
    </message>
    <message>
        <source>Last change by %1</source>
        <translation>Poslední změna: %1</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportovat…</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>Obnovit…</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Smazat…</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Oznámení</translation>
    </message>
    <message>
        <source>This will export all your personal application data stored in iCloud.</source>
        <translation>Tím se vyexportují všechny vaše osobní údaje aplikace uložené v iCloudu.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportovat</translation>
    </message>
    <message>
        <source>Your data was exported</source>
        <translation>Vaše údaje byly exportovány</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>Soubor nelze zapsat.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otevřít</translation>
    </message>
    <message>
        <source>Starts now</source>
        <translation>Právě začíná</translation>
    </message>
    <message numerus="yes">
        <source>Began %n min ago</source>
        <translation>
            <numerusform>Začalo před %n min</numerusform>
            <numerusform>Začalo před %n min</numerusform>
            <numerusform>Začalo před %n min</numerusform>
        </translation>
    </message>
    <message>
        <source>Remind me at the start</source>
        <translation>Připomenout při začátku</translation>
    </message>
    <message>
        <source>Update while the guide is closed</source>
        <translation>Aktualizovat, i když je průvodce zavřený</translation>
    </message>
    <message>
        <source>Twice a day, so that alerts follow shows that move.</source>
        <translation>Dvakrát denně, aby se upozornění řídila přesunutými pořady.</translation>
    </message>
    <message>
        <source>Updates could not be changed: a file of your session cannot be written.</source>
        <translation>Aktualizace nelze změnit: soubor vaší relace nelze zapsat.</translation>
    </message>
    <message>
        <source>Ring alerts on this device</source>
        <translation>Zvonit upozornění na tomto zařízení</translation>
    </message>
    <message>
        <source>Alerts are notifications, also while the guide is closed.</source>
        <translation>Upozornění jsou oznámení, i když je průvodce zavřený.</translation>
    </message>
    <message>
        <source>The reminders of your desktop ring. The guide rings when they do not run.</source>
        <translation>Zvoní připomínky vaší plochy. Průvodce zvoní, když neběží.</translation>
    </message>
    <message>
        <source>The reminders of your desktop ring already.</source>
        <translation>Připomínky vaší plochy už zvoní.</translation>
    </message>
    <message>
        <source>Ringing could not be changed: a file of your session cannot be written.</source>
        <translation>Zvonění se nepodařilo změnit: soubor vaší relace nelze zapsat.</translation>
    </message>
    <message>
        <source>In a folder</source>
        <translation>Ve složce</translation>
    </message>
    <message>
        <source>In a database</source>
        <translation>V databázi</translation>
    </message>
    <message>
        <source>Changes are kept and sent later.</source>
        <translation>Změny se uchovají a odešlou později.</translation>
    </message>
    <message>
        <source>The picture holds the path of the folder.</source>
        <translation>Obrázek obsahuje cestu ke složce.</translation>
    </message>
    <message>
        <source>Stop sharing</source>
        <translation>Přestat sdílet</translation>
    </message>
    <message>
        <source>This device shares nothing any more.</source>
        <translation>Toto zařízení už nic nesdílí.</translation>
    </message>
    <message>
        <source>Only on this device</source>
        <translation>Jen v tomto zařízení</translation>
    </message>
    <message>
        <source>Another device was last seen: %1</source>
        <translation>Jiné zařízení bylo naposledy vidět: %1</translation>
    </message>
    <message>
        <source>Your devices</source>
        <translation>Vaše zařízení</translation>
    </message>
    <message>
        <source>For another device</source>
        <translation>Pro jiné zařízení</translation>
    </message>
    <message>
        <source>The picture holds this address, without the password.</source>
        <translation>Obrázek obsahuje tuto adresu, bez hesla.</translation>
    </message>
    <message>
        <source>QR code of %1</source>
        <translation>Kód QR: %1</translation>
    </message>
    <message>
        <source>Share with your other devices</source>
        <translation>Sdílet s ostatními zařízeními</translation>
    </message>
    <message>
        <source>Share in another place</source>
        <translation>Sdílet na jiném místě</translation>
    </message>
    <message>
        <source>A folder that a sync tool copies between your devices, or a PostgreSQL database. Channels, favourites, your own sources, silent hours and the name of the calendar lie there; files in a folder can be read by whoever has it.</source>
        <translation>Složka, kterou mezi vašimi zařízeními kopíruje synchronizační program, nebo databáze PostgreSQL. Jsou v ní kanály, oblíbené, vlastní zdroje, tiché hodiny a název kalendáře; soubory ve složce může číst každý, kdo ji má.</translation>
    </message>
    <message>
        <source>Folder or address of a database</source>
        <translation>Složka nebo adresa databáze</translation>
    </message>
    <message>
        <source>One moment…</source>
        <translation>Okamžik…</translation>
    </message>
    <message>
        <source>Share there</source>
        <translation>Sdílet tam</translation>
    </message>
    <message>
        <source>Share there?</source>
        <translation>Sdílet tam?</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Sdílet</translation>
    </message>
    <message>
        <source>Lists that another device has stored there replace those of this device, which are kept under “Restore…”. What is not there yet is stored.</source>
        <translation>Seznamy, které tam uložilo jiné zařízení, nahradí seznamy tohoto zařízení; ty zůstanou pod „Obnovit…“. Co tam ještě není, se uloží.</translation>
    </message>
    <message>
        <source>The database cannot be reached.</source>
        <translation>Databáze není dostupná.</translation>
    </message>
    <message>
        <source>The database does not accept the user or the password.</source>
        <translation>Databáze nepřijímá uživatele nebo heslo.</translation>
    </message>
    <message>
        <source>The server of the database cannot prove its identity, so nothing is sent to it.</source>
        <translation>Server databáze nedokáže prokázat svou totožnost, proto se mu nic neposílá.</translation>
    </message>
    <message>
        <source>The database is not set up for the guide.</source>
        <translation>Databáze není pro průvodce připravena.</translation>
    </message>
    <message>
        <source>An address of a database is like postgresql://anna@tv.example.org/guide.</source>
        <translation>Adresa databáze vypadá jako postgresql://anna@tv.example.org/guide.</translation>
    </message>
    <message>
        <source>The only sslmode of an address is verify-full.</source>
        <translation>Adresa může mít jen sslmode verify-full.</translation>
    </message>
    <message>
        <source>The address needs a user, a server and the name of a database.</source>
        <translation>Adresa potřebuje uživatele, server a název databáze.</translation>
    </message>
    <message>
        <source>The database takes no more changes for now; they are sent later.</source>
        <translation>Databáze teď další změny nepřijímá; pošlou se později.</translation>
    </message>
    <message>
        <source>The database refuses a value because it is too large.</source>
        <translation>Databáze odmítá hodnotu, protože je příliš velká.</translation>
    </message>
    <message>
        <source>The password of the database cannot be kept.</source>
        <translation>Heslo databáze nelze uložit.</translation>
    </message>
    <message>
        <source>The folder is not there, or it cannot be written.</source>
        <translation>Složka neexistuje nebo do ní nelze zapisovat.</translation>
    </message>
    <message>
        <source>The place cannot take what this device has.</source>
        <translation>Na toto místo nelze uložit, co toto zařízení má.</translation>
    </message>
    <message>
        <source>Another place is being tried.</source>
        <translation>Právě se zkouší jiné místo.</translation>
    </message>
    <message>
        <source>There is no server with the name in the address.</source>
        <translation>Server s názvem uvedeným v adrese neexistuje.</translation>
    </message>
    <message>
        <source>This device has no network, or no way to the server of the database.</source>
        <translation>Toto zařízení nemá síť nebo cestu k serveru databáze.</translation>
    </message>
    <message>
        <source>The server does not run a database at the address.</source>
        <translation>Na této adrese serveru žádná databáze neběží.</translation>
    </message>
    <message>
        <source>The server of the database does not answer.</source>
        <translation>Server databáze neodpovídá.</translation>
    </message>
    <message>
        <source>The server has no database with the name in the address.</source>
        <translation>Server nemá databázi s názvem uvedeným v adrese.</translation>
    </message>
    <message>
        <source>The user in the address may not use the database.</source>
        <translation>Uživatel uvedený v adrese nesmí databázi používat.</translation>
    </message>
    <message>
        <source>The address of a database begins with postgresql://.</source>
        <translation>Adresa databáze začíná na postgresql://.</translation>
    </message>
    <message>
        <source>An address has no options but sslmode, sslrootcert and host, with full paths.</source>
        <translation>Adresa může mít jen volby sslmode, sslrootcert a host, s úplnými cestami.</translation>
    </message>
    <message>
        <source>The path of a folder begins with “/” or “~/”.</source>
        <translation>Cesta ke složce začíná znaky „/“ nebo „~/“.</translation>
    </message>
    <message>
        <source>There is no such folder yet.</source>
        <translation>Taková složka zatím neexistuje.</translation>
    </message>
    <message>
        <source>There is no such folder, nor the one in which it would be.</source>
        <translation>Taková složka neexistuje, ani ta, ve které by byla.</translation>
    </message>
    <message>
        <source>There is no such folder, and none can be created there.</source>
        <translation>Taková složka neexistuje a nelze ji tam vytvořit.</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <translation>Toto není složka.</translation>
    </message>
    <message>
        <source>The folder cannot be written.</source>
        <translation>Do složky nelze zapisovat.</translation>
    </message>
    <message>
        <source>The folder cannot be created.</source>
        <translation>Složku nelze vytvořit.</translation>
    </message>
    <message>
        <source>This folder belongs to the guide on this device: choose another one.</source>
        <translation>Tato složka patří průvodci na tomto zařízení: zvolte jinou.</translation>
    </message>
    <message>
        <source>The place does not answer.</source>
        <translation>Toto místo neodpovídá.</translation>
    </message>
    <message>
        <source>This device does not have the password of the database.</source>
        <translation>Toto zařízení nemá heslo databáze.</translation>
    </message>
    <message>
        <source>Last change by another device with the name %1</source>
        <translation>Poslední změna z jiného zařízení s názvem %1</translation>
    </message>
    <message>
        <source>Enter another password…</source>
        <translation>Zadat jiné heslo…</translation>
    </message>
    <message>
        <source>Password of the database</source>
        <translation>Heslo databáze</translation>
    </message>
    <message>
        <source>Choose a folder…</source>
        <translation>Vybrat složku…</translation>
    </message>
    <message>
        <source>Your other devices show this name with changes made here.</source>
        <translation>Ostatní zařízení ukazují toto jméno u změn provedených zde.</translation>
    </message>
    <message>
        <source>Name of this device</source>
        <translation>Název tohoto zařízení</translation>
    </message>
    <message>
        <source>Choose a folder that your devices share</source>
        <translation>Vyberte složku, kterou vaše zařízení sdílejí</translation>
    </message>
    <message>
        <source>This device shares there from now on.</source>
        <translation>Toto zařízení tam odteď sdílí.</translation>
    </message>
    <message>
        <source>The password works and is kept.</source>
        <translation>Heslo platí a je uložené.</translation>
    </message>
    <message>
        <source>This device shares there already.</source>
        <translation>Toto zařízení tam už sdílí.</translation>
    </message>
    <message>
        <source>Create the folder?</source>
        <translation>Vytvořit složku?</translation>
    </message>
    <message>
        <source>There is no folder %1 yet.</source>
        <translation>Složka %1 zatím neexistuje.</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Vytvořit</translation>
    </message>
    <message>
        <source>Open the folder</source>
        <translation>Otevřít složku</translation>
    </message>
    <message>
        <source>Folders cannot be chosen: the package %1 is missing. Type the path of the folder.</source>
        <translation>Složky nelze vybírat: chybí balíček %1. Napište cestu ke složce.</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Zobrazit heslo</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Skrýt heslo</translation>
    </message>
    <message>
        <source>Use this password</source>
        <translation>Použít toto heslo</translation>
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
