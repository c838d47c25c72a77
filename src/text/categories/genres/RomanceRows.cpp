#include "text/categories/genres/GenreRow.h"

#include <array>

namespace guide::genres {

namespace {

// clang-format off
constexpr std::array kRows{
    // Italian
    Row{kSeries, kName, u"Telefilm", u"it tr ro"},
    Row{kSeries, kKind,
        u"Serie Tv|Telefilm|Fiction|Sit Com|Sit-com|Sitcom|Soap Opera|Miniserie|Mini Serie|"
        u"Miniserie TV|Telenovela|Serie Drammatica|Serie D'avventura|Serie comica|Serie poliziesca|"
        u"Sketch Com|Serie Televisiva|Serial|Telenovelas|Fiction Tv|Dramma Soap|Serie di fantascienza|"
        u"Serie commedia", u"it"},
    Row{kSeries, kName,
        u"Serie Tv|Sit Com|Sit-com|Soap Opera|Mini Serie|Miniserie TV|Serie Drammatica|"
        u"Serie D'avventura|Sketch Com|Teleromanzo|Serie"},
    Row{kSeries, kText,
        u"serie tv|soap opera|fiction italiana|serie televisiva|telefilm|miniserie|serie poliziesca|"
        u"la serie racconta|la serie segue|la serie è ambientata|situation comedy|sit-com", u"it"},
    Row{kMovies, kName,
        u"Film|Film Drammatico|Film TV|Film per la TV|Cinema|Lungometraggio|Commedia Sentimentale|"
        u"Commedia Drammatica|Film d'animazione"},
    Row{kMovies, kText,
        u"è un film|e' un film|film del|film di genere|film diretto da|film per la tv|film tv|film con|"
        u"il film racconta|lungometraggio", u"it"},
    Row{kMovies | kVague, kName, u"Cortometraggio|Film, Intrattenimento|Cortometraggio, Intrattenimento"},
    Row{kMusic, kName, u"Ragazzi e Musica, Musica"},
    Row{kForChildren, kName,
        u"Ragazzi e Musica, Educational|Ragazzi e Musica, Telefilm|Ragazzi e Musica, Magazine"},
    Row{kComedy, kName, u"Comico|Parodia|Commedia Brillante|Commedia Nera|Commedia Sexy|Commedia Italiana"},
    Row{kComedy, kName, u"Commedia|Commedie|Umoristico|Comicità"},
    Row{kComedy, kLead, u"commedia|film comico", u"it"},
    Row{kDrama, kName, u"Drammatico|Dramma|Biografico|Sentimentale|Guerra|Storico|Melodramma|Drammi"},
    Row{kDrama, kLead, u"film drammatico|drammatico|film di guerra|film storico", u"it"},
    Row{kCrime, kName,
        u"Poliziesco|Giallo|Giallo And Crime|Crime Dramma|Noir|Gangster|Criminale|Poliziesca"},
    Row{kThriller, kName, u"Suspense"},
    Row{kThriller, kLead, u"thriller|film thriller|poliziesco|noir", u"it"},
    Row{kAdventure, kName, u"Avventura|Azione Avventura"},
    Row{kAdventure, kLead, u"avventura|film d'avventura|film d'azione|film di azione", u"it"},
    Row{kSF, kName, u"Fantascienza|Fantascientifico"},
    Row{kSF, kLead, u"fantascienza|film di fantascienza", u"it"},
    Row{kFantasy, kName, u"Fantastico|Favola"},
    Row{kWestern, kName, u"Western all'italiana"},
    Row{kWestern, kLead, u"western", u"it"},
    Row{kFiction, kName,
        u"Azione|Romantico|Erotico|Mistero|Musical|Action Adventure|Mitologico|Spionaggio|Live Action"},
    Row{kAnimation, kName,
        u"Cartoni Animati|Cartoni|Animazione|Cartone Animato|Animazione Kids|Kids Animazione|"
        u"Animazione Famiglia|Anime|Animazione Commedia"},
    Row{kAnimation, kText,
        u"cartone animato|cartoni animati|serie animata|serie d'animazione|serie di animazione"},
    Row{kForChildren, kName,
        u"Ragazzi|Bambini|Ragazzi e Musica|Serie Per Bambini|Per Bambini|Programmi per bambini|"
        u"Programma per ragazzi|Bambini e Ragazzi|Bambini/Ragazzi|Animazione Bambini|Prescolare"},
    Row{kForChildren, kText,
        u"programma per bambini|per i più piccoli|per i bambini|per bambini|in età prescolare|"
        u"dedicato ai bambini"},
    Row{kDocumentaries, kName,
        u"Documentario|Documentari|Docu-serie|Docuserie|Docufilm|Natura|Scienza|Storia|Storia & Arte|"
        u"Scienza & Natura|Viaggi|Viaggi & Avventure|Viaggi e Avventure|Natura + Ambiente|"
        u"Mondi e culture|Scienza e Tecnologia|Documentario naturalistico|Storia Miti E Religioni|"
        u"Meraviglie Della Natura|Inchiesta|Cultura|Arte|Reportage|Educativo|Uomini & Società|Ambiente|"
        u"Animali|Storico-culturale|Società", u"it"},
    Row{kDocumentaries, kName,
        u"Documentario|Documentari|Docufilm|Docu-serie|Docuserie|Natura + Ambiente|Storia & Arte|"
        u"Scienza & Natura|Viaggi & Avventure|Mondi e culture|Societa"},
    Row{kDocumentaries, kText,
        u"documentario|docu-serie|docuserie|docufilm|serie documentaria|documentari|documentaristica", u"it"},
    Row{kNews, kName,
        u"Notiziario|Telegiornale|Informazione|News|Meteo|Attualità|Notizie|Magazine D'informazione|"
        u"Previsioni Del Tempo|Economia|Politica|Informativo|Rassegna stampa|Giornale Radio|"
        u"Approfondimento|Economia + Consumo|Cronaca|Talk Politico|Dibattito|informativna oddaja|"
        u"Informativni program", u"it"},
    Row{kNews, kName,
        u"Notiziario|Telegiornale|Meteo|Attualita|Notizie|Magazine D'informazione|Informativo|"
        u"informativna oddaja|Informativni program|Rapport tat-Temp"},
    Row{kNews | kYields, kName, u"Informazione"},
    Row{kNews, kText,
        u"telegiornale|previsioni del tempo|notiziario|rassegna stampa|le notizie del giorno|"
        u"informazione e approfondimento|previsioni meteo|approfondimento politico|"
        u"notizie e approfondimenti|edizione del tg", u"it"},
    Row{kEntertainment, kKind,
        u"Gioco|Varietà|Reality Show|Quiz|Talk Show|Game Show|Cucina|Lifestyle|Lotteria|Show|Reality|"
        u"Satira|Mangiare + Bere|Factual|Docu-reality|Talent Show|Cabaret|Caccia|Pesca|Moda|Casa|"
        u"Benessere|Magazino Per Il Consumatore|Tempo libero", u"it"},
    Row{kEntertainment, kName,
        u"Gioco|Varieta|Talk Show|Cucina|Mangiare + Bere|Caccia|Pesca|Magazino Per Il Consumatore|"
        u"Reality, Auktion|Costume e società|Game Show"},
    Row{kEntertainment, kText,
        u"talk show|game show|talent show|reality show|docu-reality|cooking show|programma di cucina|"
        u"show culinario|programma di intrattenimento|varietà|quiz show|gioco a premi|quiz condotto|"
        u"show condotto|people show|dating show", u"it"},
    Row{kEntertainment, kLead, u"intrattenimento|varietà", u"it"},
    Row{kDocumentaries, kName,
        u"Mondo e Tendenze, Avventura|Mondo e Tendenze, Viaggi|Mondo e Tendenze, Sport"},
    Row{kNews, kTitleStart, u"notizie", u"it"},
    Row{kNews, kWholeTitle, u"traffico|viabilità|gr|giornale radio|gr regione", u"it"},
    Row{kSports, kTitle, u"nazionale di calcio|amichevole|calcio a 5", u"it"},
    Row{kEntertainment | kYields, kName,
        u"Intrattenimento|Tempo Libero|Spettacolo|Divertimento|Rubrica Intrattenimento"},
    Row{kEntertainment | kYields | kVague, kName, u"Mondo e Tendenze|Rubrica|Magazine|Programma TV"},
    Row{kMusic, kKind,
        u"Musica|Concerto|Musicale|Immagini E Musica|Videoclip|Opera lirica|Lirica|Musica classica|"
        u"Balletto|Danza|Programma musicale", u"it"},
    Row{kMusic, kName, u"Musica|Concerto|Musicale|Immagini E Musica|Videoclip|Lirica|Videoclips"},
    Row{kMusic, kText,
        u"videoclip|concerto di|concerto live|musica classica|programma musicale|rotazione musicale|"
        u"interamente dedicato alla musica", u"it"},
    Row{kSports, kName,
        u"Calcio|Motori|Basket|Equestri|Sport Invernali|Ciclismo|Pallavolo|Sci alpino|Salto con sci|"
        u"Sci di fondo|Formula 1|MotoGP|Nuoto|Atletica|Vela|Pallacanestro|Tennis|Rubrica sportiva|"
        u"Evento sportivo|Notiziario sportivo|Ippica"},
    Row{kNothing, kName,
        u"Programma Pubblicitaria|Televendita|Televendite|Pubblicità|Altro Televendita|Telebejgħ|Promo|"
        u"Fine trasmissioni|Programmi notturni|Teleshop|Religione|Santa Messa"},
    Row{kNation, kLead,
        u"italian*|american*|frances*|ingles*|britannic*|tedesc*|spagnol*|Italia|Stati Uniti|Francia|"
        u"Gran Bretagna|Germania|Spagna", u"it"},
    Row{kPresented, kText,
        u"programma|trasmissione|conduttore|conduttrice|conduce|condotto|concorrenti|concorrente|"
        u"ospiti|ospite|interviste|chef|ricette|puntata del|rubrica|esperti|approfondimento|giuria|"
        u"casa d'aste|proprietari|appuntamento", u"it"},
    // French
    Row{kMovies, kName, u"téléfilm|film policier|film d'action|court métrage|cinéma|long métrage"},
    Row{kSeries, kKind,
        u"série|série télévisée|série policière|série dramatique|série comique|série Suspense|"
        u"série Passion|série Rires|série Action|feuilleton|série de comédie|mini-série|"
        u"série hospitalière|série fantastique|série historique|websérie|sitcom|série sentimentale|"
        u"série humoristique|soap|saga", u"fr"},
    Row{kSeries, kName,
        u"feuilleton|série policière|série dramatique|Série Suspense|Série Passion|Série Rires|"
        u"mini-série"},
    Row{kMovies, kKind,
        u"téléfilm|long métrage|court métrage|film|film Suspense|film Passion|film Action|"
        u"film policier|film d'action|téléfilm dramatique|téléfilm policier|cinéma|court-métrage|"
        u"film de guerre|film d'animation", u"fr"},
    Row{kComedy, kKind,
        u"comédie|film comique|comédie dramatique|comédie sentimentale|comédie policière|"
        u"comédie romantique"},
    Row{kDrama, kKind, u"drame|film dramatique|mélodrame|biopic", u"fr"},
    Row{kAdventure, kKind, u"film d'aventures"},
    Row{kSF, kKind, u"film de science-fiction"},
    Row{kHorror, kKind, u"film d'horreur|épouvante|film d'épouvante"},
    Row{kCrime, kName, u"policier|policière"},
    Row{kAdventure, kName, u"aventure|aventures"},
    Row{kFantasy, kName, u"fantastique"},
    Row{kForChildren, kKind,
        u"jeunesse|émission jeunesse|emission-jeunesse|dessin animé|dessin-anime|jeunesse mag|"
        u"programmes jeunesse|émission pour la jeunesse|enfants|série jeunesse|programme jeunesse|"
        u"pour enfants|Jeunesse : dessin animé|dessins animés", u"fr"},
    Row{kForChildren, kName,
        u"jeunesse|emission-jeunesse|dessin-anime|jeunesse mag|dessin animé|dessins animés|enfants"},
    Row{kAnimation, kKind, u"série d'animation|film d'animation|animé|manga"},
    Row{kDocumentaries, kName,
        u"documentaire|série documentaire|téléréalité documentaire|docu-fiction|docufiction|"
        u"documentaire-sportif|découverte|découvertes|magazine de découverte|nature|histoire|"
        u"magazine de reportages|magazine animalier|documentaire animalier|documentaire histoire|"
        u"reportage|magazine historique|magazine de l'environnement|magazine scientifique|"
        u"magazine culturel|culture|sciences"},
    Row{kDocumentaries, kText, u"magazine culturel|magazine cinéma|magazine culture", u"fr"},
    Row{kDocumentaries, kText, u"documentaire|série documentaire|magazine de reportages"},
    Row{kNews, kName,
        u"journal|journal télévisé|info-météo|information|informations|météo|meteo|débat|debat|"
        u"émission politique|emission-politique|magazine d'information|magazine d'actualité|actualité|"
        u"infos|flash info|magazine politique|bulletin météo|info|journal de l'économie|"
        u"magazine de l'économie|Mag. Info|politique|interview politique|revue de presse|"
        u"les actualités", u"fr"},
    Row{kNews, kName, u"journal|info-meteo|debat|emission-politique|journal televise"},
    Row{kNews, kText,
        u"journal télévisé|magazine d'information|magazine d'actualité|l'actualité du jour|"
        u"l'information en continu|toute l'actualité|bulletin météo|l'actualité internationale|"
        u"les prévisions météo", u"fr"},
    Row{kEntertainment, kKind,
        u"divertissement|jeu|jeux|télé-réalité|téléréalité|telerealite|talk-show|talk show|"
        u"divertissement-humour|spectacle|variétés|varietes|humour|magazine culinaire|cuisine|"
        u"magazine de société|Mag. Société|Mag. Service|magazine-mode|loterie|théâtre|cirque|voyance|"
        u"fitness|magazine du show-biz|Art de vivre|bêtisier|magazine people|magazine de la santé|"
        u"magazine de services|magazine de la décoration|magazine gastronomique|"
        u"magazine de l'automobile|émission de téléréalité|one man show|Mag. People|interview|sketches|"
        u"emission-speciale", u"fr"},
    Row{kEntertainment, kName,
        u"divertissement|telerealite|divertissement-humour|varietes|loterie|mag. société|mag. service|"
        u"voyance|spectacle|jeu"},
    Row{kEntertainment, kText,
        u"talk-show|jeu télévisé|télé-réalité|émission culinaire|télécrochet", u"fr"},
    Row{kEntertainment | kYields | kVague, kName, u"magazine|émission|autre magazine|société"},
    Row{kMusic, kKind,
        u"musique|clips|émission musicale|emission-musicale|concert|clip|opéra|musique classique|"
        u"variété musicale|danse|magazine musical|musiques", u"fr"},
    Row{kMusic, kName, u"clips|emission-musicale|émission musicale"},
    Row{kSports, kName,
        u"magazine-sportif|magazine sportif|Mag. Sport|cyclisme|football|formule-1|formule 1|"
        u"émission sportive|emission-sportive|jt-sport|volley-ball|hockey-sur-glace|hockey sur glace|"
        u"hippisme|vtt|rugby|basket|basket-ball|automobile|moto|athlétisme|natation|judo|ski|handball|"
        u"tennis|golf|multisports|équitation|voile|gymnastique|patinage artistique|biathlon|"
        u"cyclo-cross|boxe|escrime|sport de combat|sports|sport mécanique|triathlon|surf|badminton"},
    Row{kNothing, kName,
        u"fin|fin des programmes|programme-indetermine|programme indéterminé|Mag. TV Achat|téléachat|"
        u"télé-achat|télé achat|emission-religieuse|émission religieuse|programmes de la nuit|"
        u"magazine religieux|messe|publicité"},
    Row{kNation, kLead, u"frança*|américain*|britannique*|allemand*|italien*|canadien*", u"fr"},
    // Spanish and Portuguese
    Row{kEntertainment, kName,
        u"magacín|magazine de actualidad|tertulia|toros|tauromaquia|programa|talk-show de humor"},
    Row{kDocumentaries, kName, u"viajes|viagens|ciencia|ciência|historia|história|cultura"},
    Row{kSeries, kKind,
        u"serie de televisión|teleserie|serie dramática|comedia de situación|serie de acción|"
        u"serie de comedia|telecomedia|novela|telenovela|seriado|série de drama|sitcom|serie española|"
        u"serie policial|miniserie", u"es pt"},
    Row{kMovies, kKind,
        u"película|películas|largometraje|filme|filmes|longa-metragem|cine|cortometraje|telefilme|"
        u"tv movie"},
    Row{kComedy, kKind, u"película de comedia|cine cómico"},
    Row{kComedy, kName, u"comedia|comédia|humor"},
    Row{kDrama, kName, u"dramático|romántica|romance"},
    Row{kAdventure, kName, u"aventuras|aventura"},
    Row{kFiction, kName, u"acción|ação|suspenso|romántico|bélico"},
    Row{kSF, kName, u"ciencia ficción|ficção científica"},
    Row{kHorror, kName, u"terror"},
    Row{kForChildren, kKind,
        u"infantil|infantiles|infantis|niños|dibujos animados|desenhos animados|desenho animado|"
        u"programa infantil|juvenil|infantil-juvenil|crianças|infanto-juvenil"},
    Row{kAnimation, kName, u"animación|animação|serie de animación"},
    Row{kDocumentaries, kName,
        u"documental|documentales|documentário|documentários|serie documental|naturaleza|reportajes|"
        u"divulgativo|docuserie|programa cultural|naturaleza y ciencia|culturales|cultura y sociedad"},
    Row{kDocumentaries, kText,
        u"documental|serie documental|docuserie|documentário|série documental|documentales", u"es pt"},
    Row{kNews, kName,
        u"noticias|informativo|informativos|noticiario|notícias|informação|telediario|telejornal|"
        u"jornalismo|actualidad|el tiempo|meteorología|previsión del tiempo|debate político|noticiário|"
        u"boletín informativo|magazine informativo"},
    Row{kNews, kText, u"telediario|servicios informativos|espacio informativo|noticiero|telejornal"},
    Row{kEntertainment, kKind,
        u"entretenimiento|entretenimento|concurso|concursos|variedades|variedade|cocina|culinária|"
        u"gastronomía|programa de entretenimiento|reality-show|talk-show|humorístico|magazín|corazón|"
        u"estilo de vida|auditório|telerrealidad|programa de humor"},
    Row{kMusic, kKind, u"música|musicales|concierto|conciertos|musical|videoclips|programa musical"},
    Row{kSports, kName,
        u"deportes|deporte|deportivo|fútbol|futebol|baloncesto|ciclismo|motociclismo|automovilismo|"
        u"toros deporte|desporto|esportes|esporte|basquetebol|programa deportivo"},
    Row{kNothing, kName,
        u"televenta|teletienda|televendas|programación para adultos|sin información|cierre"},
    // Romanian
    Row{kDocumentaries, kName, u"educativ|călătorii|științific|natură și animale"},
    Row{kFiction, kName, u"familie|biografic|istoric|mister|crimă"},
    Row{kSeries, kKind,
        u"serial|seriale|telenovelă|serial polițist|serial de comedie|serial dramatic|serial TV|"
        u"serial american|serial românesc|serial turcesc|miniserial", u"ro"},
    Row{kSeries, kName, u"telenovelă|serial de comedie|serial dramatic"},
    Row{kMovies, kKind, u"film artistic|film românesc|lungmetraj|film de acțiune|filme|scurtmetraj", u"ro"},
    Row{kComedy, kKind, u"film de comedie|comedie", u"ro"},
    Row{kDrama, kKind, u"dramă|film dramatic", u"ro"},
    Row{kAdventure, kName, u"aventuri|film de aventuri"},
    Row{kFiction, kName, u"acțiune|dragoste|război|polițist"},
    Row{kHorror, kName, u"groază"},
    Row{kForChildren, kKind,
        u"desene animate|copii|pentru copii|emisiune pentru copii|program pentru copii|"
        u"film pentru copii|animație|animaţie"},
    Row{kDocumentaries, kName,
        u"documentar|documentare|serial documentar|film documentar|știință|natură|reportaj|"
        u"emisiune culturală|magazin cultural|istorie", u"ro"},
    Row{kDocumentaries, kText, u"serial documentar|film documentar|documentar", u"ro"},
    Row{kNews, kName,
        u"știri|stiri|buletin de știri|jurnal|informații|meteo|actualitate|actualități|"
        u"emisiune informativă|dezbatere|dezbateri|prognoza meteo|informativ|emisiune de știri|"
        u"talk-show politic", u"ro"},
    Row{kNews, kTitle,
        u"știri|știrile|stirile|telejurnal|jurnalul|vremea|buletin de știri|observator", u"ro"},
    Row{kEntertainment, kKind,
        u"divertisment|emisiune de divertisment|talk-show|talk show|concurs|emisiune culinară|emisiune|"
        u"umor|pamflet|magazin|reality-show|emisiune concurs|gastronomie|lifestyle|show", u"ro"},
    Row{kEntertainment, kName, u"divertisment|emisiune de divertisment|emisiune culinară"},
    Row{kMusic, kKind,
        u"muzică|muzical|emisiune muzicală|muzică populară|concert|folclor|videoclipuri|muzică ușoară", u"ro"},
    Row{kSports, kName,
        u"fotbal|emisiune sportivă|sporturi|tenis de câmp|handbal|magazin sportiv|baschet|gimnastică"},
    Row{kNothing, kName, u"teleshopping|publicitate|calup publicitar|emisiune religioasă"},
};
// clang-format on

} // namespace

std::span<const Row> romanceRows() {
    return kRows;
}

} // namespace guide::genres
