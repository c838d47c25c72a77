#include "text/facts/TitleNotes.h"

#include "text/search/FoldTable.h"
#include "text/search/FoldedText.h"
#include "text/search/WordSet.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLongestNote = 80;
constexpr int kFirstYear = 1890;
constexpr int kLastYear = 2049;

/// Folded words without signs: "Α' ΤΗΛΕΟΠΤΙΚΗ" and "1^TV" become "α τηλεοπτικη" and "1 tv".
QString keyOf(QStringView text) {
    QString key = foldedText(text);
    for (QChar& unit : key) {
        unit = unit.isLetterOrNumber() ? unit : u' ';
    }
    return std::move(key).simplified();
}

/// The key of a text without blanks. Most are one word of letters that fold to one each: they are folded on
/// the stack.
class WordKey {
  public:
    explicit WordKey(QStringView text) {
        const FoldTable& table = FoldTable::of(FoldMode::Lookalikes);
        for (const QChar unit : text) {
            const char16_t folded = table[unit.unicode()];
            if (m_size == kMost || folded == FoldTable::kSeveral ||
                (folded != FoldTable::kDropped && !QChar(folded).isLetterOrNumber())) {
                m_text = keyOf(text);
                m_size = -1;
                return;
            }
            if (folded != FoldTable::kDropped) {
                m_units[static_cast<std::size_t>(m_size++)] = folded;
            }
        }
    }
    QStringView view() const {
        return m_size < 0 ? QStringView(m_text) : QStringView(m_units.data(), m_size);
    }

  private:
    static constexpr qsizetype kMost = 40;

    std::array<char16_t, kMost> m_units;
    qsizetype m_size = 0;
    QString m_text;
};

/// Whether the first word of the text's key is one of these.
bool beginsWithOne(const WordSet& words, QStringView text) {
    for (const QStringView part : text.tokenize(u' ', Qt::SkipEmptyParts)) {
        const WordKey key(part);
        const QStringView word = key.view();
        // Signs alone have no key.
        if (!word.isEmpty()) {
            return words.contains(word.first(word.indexOf(u' ') < 0 ? word.size() : word.indexOf(u' ')));
        }
    }
    return false;
}

/// The keys of words that are divided by bars.
WordSet keys(QStringView words) {
    WordSet set;
    for (const QStringView word : words.split(u'|')) {
        set.insert(keyOf(word));
    }
    return set;
}

const WordSet& repeatMarks() {
    static const WordSet kMarks =
        keys(u"r|rep|repeat|rpt|rerun|e|ε|επ|επαν|επανάληψη|σε επανάληψη|reluare|rel|repetare|opak|"
             u"opakování|opakovanie|repríza|repriza|repr|reprise|repris|rediff|rediffusion|redif|wh|"
             u"wdh|wiederholung|ism|ismétlés|replica|in replica|repl|powt|powtórka|powtórzenie|tekrar|"
             u"tekrarı|ponavljanje|pon|ponovitev|ponovljeno|ponovno|reprizno|повторение|повт|повтор|"
             u"реприза|репр|п|р|herh|herhaling|repetición|repetição|atk|atkārtojums|atkārt|повторно|"
             u"повторення|r iz arhive");
    return kMarks;
}

const WordSet& newMarks() {
    static const WordSet kMarks =
        keys(u"new|nuovo|nuova|nuova puntata|nuovo episodio|nuovi episodi|nuove puntate|prima visione|"
             u"1 visione tv|1 visione|1atv|in premieră|premieră tv|премиера по бтв|prima tv|1 tv|1a tv|"
             u"prima assoluta|nou|noua|episod nou|premieră|premiera|premijera|premiéra|premiere|"
             u"première|tv premijera|tv premiera|tv premiere|nova epizoda|nova sezona|novo|nový díl|"
             u"nový diel|novinka|új|új epizód|új rész|premier|neu|neue folge|erstausstrahlung|"
             u"deutsche erstausstrahlung|inédit|nouveau|νεο επεισοδιο|νεα επεισοδια|νεο|νεος κυκλος|"
             u"α τηλεοπτικη μεταδοση|α μεταδοση|α προβολη|α τηλεοπτικη προβολη|πρωτη προβολη|πρεμιερα|"
             u"yeni|yeni bölüm|nowość|nowy odcinek|nowe odcinki|премиера|премијера|нов епизод|"
             u"нова епизода|estreno|estreia|nieuw|jaunums|pirmizrāde");
    return kMarks;
}

/// Letters that are also other words are marks only in capitals and with others of them.
const WordSet& technicalWords() {
    static const WordSet kWords =
        keys(u"st|ad|hd|uhd|4k|vs|sl|ts|hdtv|dts|omu|ov|ttx|cc|skryte|skryté|titulky|titulkami|so|s|t|"
             u"stereo|mono|τπ|μεταγλ|dolby|feliratos|változat|untertitel|dubbing|bo|simulcast");
    return kWords;
}

const WordSet& countryNames() {
    static const WordSet kNames =
        keys(u"usa|us|u s a|uk|gb|gbr|sad|eua|сащ|сад|ηπα|abd|vereinigte staaten|etats unis|états unis|"
             u"stati uniti|stati uniti d'america|statele unite|sjedinjene američke države|"
             u"spojené státy|spojené štáty|velká británie|veľká británia|velika britanija|"
             u"grande bretagne|royaume uni|gran bretagna|regno unito|marea britanie|großbritannien|"
             u"grossbritannien|nagy britannia|egyesült királyság|μεγαλη βρετανια|ηνωμενο βασιλειο|"
             u"великобритания|велика британија|wielka brytania|ingiltere|birleşik krallık|anglie|"
             u"anglia|engleska|england|united kingdom|united states|great britain|amerikai|angol|"
             u"francia|német|olasz|magyar|kanadai|spanyol|francie|francúzsko|francuska|frankreich|"
             u"france|franța|franta|γαλλια|франция|француска|francja|fransa|franciaország|fra|fr|f|"
             u"německo|nemecko|njemačka|nemačka|deutschland|germania|allemagne|γερμανια|германия|"
             u"немачка|niemcy|almanya|németország|germany|ger|d|de|brd|ddr|itálie|taliansko|italija|"
             u"italien|italia|italie|italy|ita|it|i|ιταλια|италия|италија|włochy|italya|olaszország|"
             u"španělsko|španielsko|španjolska|španija|spanien|spagna|spania|espagne|ισπανια|испания|"
             u"шпанија|hiszpania|ispanya|spanyolország|spain|esp|e|españa|rakousko|rakúsko|austrija|"
             u"österreich|austria|autriche|αυστρια|австрия|аустрија|avusturya|ausztria|aut|a|at|"
             u"švýcarsko|švajčiarsko|švicarska|švajcarska|schweiz|svizzera|elveția|suisse|ελβετια|"
             u"швейцария|швајцарска|szwajcaria|isviçre|svájc|sui|ch|česko|česká republika|češka|"
             u"tschechien|repubblica ceca|cehia|cz|čr|čssr|čsr|československo|čsfr|csehország|czechy|"
             u"slovensko|slovačka|slowakei|slovacchia|slovacia|sk|sr|szlovákia|maďarsko|mađarska|"
             u"ungarn|ungheria|ungaria|hongrie|węgry|magyarország|h|hu|hun|polsko|poľsko|poljska|polen|"
             u"polonia|pologne|polska|lengyelország|pl|pol|hrvatska|croatia|kroatien|croazia|croația|"
             u"chorvatsko|horvátország|hr|srbija|србија|serbia|serbien|srb|jugoslavija|югославия|"
             u"jugoslavia|jugoslawien|sfrj|bosna i hercegovina|bih|crna gora|slovenija|slowenien|"
             u"slovenia|slo|makedonija|македонија|rumunsko|rumunjska|rumunija|rumänien|romania|românia|"
             u"romanie|ro|rou|bulharsko|bugarska|българия|bulgaria|bulgarien|bg|bul|grčka|řecko|grécko|"
             u"griechenland|grecia|ελλαδα|гърция|grecja|görögország|gr|turecko|turska|türkei|turchia|"
             u"turcia|turquie|türkiye|τουρκια|турция|турска|turcja|törökország|tur|tr|kanada|canada|"
             u"καναδας|канада|can|austrálie|austrália|australija|australien|australia|australie|"
             u"αυστραλια|австралия|ausztrália|aus|nový zéland|novi zeland|neuseeland|nuova zelanda|"
             u"new zealand|japonsko|japan|giappone|japonia|japon|ιαπωνια|япония|јапан|japonya|japán|"
             u"jpn|čína|kina|china|cina|chine|κινα|китай|chiny|çin|kína|chn|indie|india|indija|indien|"
             u"inde|ινδια|индия|ind|rusko|rusija|russland|russia|rusia|russie|ρωσια|русия|русија|"
             u"россия|ссср|sssr|udssr|rosja|rusya|oroszország|rus|ukrajina|ukraine|ucraina|україна|"
             u"украйна|belgie|belgicko|belgija|belgien|belgio|belgia|belgique|βελγιο|белгия|belçika|"
             u"belgium|bel|b|nizozemsko|holandsko|nizozemska|holandija|niederlande|paesi bassi|olanda|"
             u"pays bas|ολλανδια|нидерландия|холандия|hollanda|hollandia|ned|nl|dánsko|danska|dänemark|"
             u"danimarca|danemarca|danemark|δανια|дания|dania|danimarka|dánia|dk|dnk|švédsko|švedska|"
             u"schweden|svezia|suedia|suède|σουηδια|швеция|szwecja|isveç|svédország|s|swe|norsko|"
             u"nórsko|norveška|norwegen|norvegia|norvège|νορβηγια|норвегия|norveç|n|nor|finsko|fínsko|"
             u"finska|finnland|finlandia|finlande|φινλανδια|fin|irsko|írsko|irska|irland|irlanda|"
             u"irlande|ιρλανδια|irl|ireland|island|portugalsko|portugal|portogallo|portugalia|brazílie|"
             u"brazília|brazil|brasilien|brasile|brazilia|brésil|bra|mexiko|meksiko|messico|mexic|"
             u"mexique|mexico|mex|argentina|argentinien|argentine|arg|kolumbie|kolumbia|kolumbija|"
             u"columbia|colombia|jižní korea|južná kórea|južna koreja|südkorea|corea del sud|"
             u"coreea de sud|corée du sud|korea|kor|hongkong|hong kong|hkg|izrael|israel|israele|isr|"
             u"jihoafrická republika|južna afrika|südafrika|sudafrica|rsa|lucembursko|luxemburg|"
             u"luxembourg|lussemburgo|lux|lotyšsko|latvija|lettland|litva|lietuva|estonsko|eesti|"
             u"thajsko|thailand|venezuela|kuba|cuba|cub|chile|peru|egypt|egipat|irán|iran|maroko|"
             u"marokko|tunis|albánie|albanija|shqipëri|kosovo|koproduktion|co");
    return kNames;
}

/// The first words of all marks: few texts begin with one.
const WordSet& firstWordsOfMarks() {
    static const WordSet kWords = [] {
        WordSet words;
        for (const WordSet* marks : {&repeatMarks(), &newMarks()}) {
            for (const QString& mark : marks->words()) {
                words.insert(mark.left(mark.indexOf(u' ')));
            }
        }
        return words;
    }();
    return kWords;
}

struct GenreWords {
    WordSet nouns;
    WordSet others;
};

const GenreWords& genreWords() {
    static const GenreWords kWords{
        keys(u"film|filma|filmova|serija|serije|serijal|miniserija|telenovela|sapunica|sitcom|sitkom|"
             u"drama|dráma|komedija|komedie|komédia|komedia|commedia|comédie|comedie|komödie|triler|"
             u"thriller|horor|horror|vestern|western|kviz|kvíz|quiz|talk|dokumentarac|dokument|"
             u"dokumentarni|dok|doku|dokumentarfilm|dokumentation|documentar|documentario|documentaire|"
             u"reportaža|reportáž|reportage|emisija|emisije|magazin|crtić|crtani|animirani|serial|"
             u"seriál|serie|série|sorozat|filmsorozat|tévésorozat|tévéfilm|sorozata|vígjáték|filmdráma|"
             u"kalandfilm|akciófilm|mesefilm|rajzfilm|rajzfilmsorozat|ismeretterjesztő|krimi|"
             u"krimisorozat|kisfilm|pohádka|rozprávka|telefilm|miniserie|fiction|cartoni|spielfilm|"
             u"fernsehfilm|tv film|krimiserie|fernsehserie|ταινια|παιδικο|παιδικη σειρα|σειρα|"
             u"ντοκιμαντερ|κωμωδια|филм|серија|серии|сериал|комедија|комедия|драма|трилер|документарни|"
             u"документален|dizi|belgesel|sinema|film polski|teleserial|dokumentalny|telenowela|"
             u"téléfilm|docu|humoreska|romantika"),
        keys(u"i|a|and|und|et|e|és|in|o|s|za|tv|igrani|igrana|dramska|dramski|kriminalistička|"
             u"kriminalistički|krim|humoristična|humoristički|humoristička|komična|ljubavna|ljubavni|"
             u"romantična|romantični|akcijski|akcioni|akciona|akcija|avanturistički|pustolovni|"
             u"pustolovna|ratni|povijesni|povijesna|istorijski|istorijska|biografski|dječja|dječji|"
             u"dječiji|dečja|dečji|djecu|decu|zabavna|zabavni|informativna|informativni|glazbena|"
             u"glazbeni|muzička|muzički|sportska|sportski|obrazovna|obrazovni|dokumentarna|"
             u"dokumentarni|znanstvena|naučni|naučnofantastični|sf|crtana|animirana|animirani|kratki|"
             u"kulturna|mozaična|strana|domaća|domaći|američki|američka|hrvatski|hrvatska|srpski|"
             u"srpska|turska|turski|njemačka|njemački|nemačka|nemački|francuski|francuska|talijanski|"
             u"talijanska|italijanski|italijanska|britanski|britanska|engleska|engleski|španjolska|"
             u"španska|meksička|indijska|ruski|ruska|cjelovečernji|dugometražni|televizijska|"
             u"televizijski|české|český|česká|americký|americká|britský|německý|francouzský|italský|"
             u"animovaný|dokumentárny|dokumentární|kriminální|kriminálny|komediální|romantický|"
             u"romantická|akční|akčný|magyar|amerikai|angol|német|francia|olasz|kanadai|spanyol|török|"
             u"családi|romantikus|animációs|dokumentum|bűnügyi|film|vígjáték|ελληνικη|ξενη|κοινωνικη|"
             u"δραματικη|κωμικη|αισθηματικη|αστυνομικη|παιδικη|игран|игрални|турска|турски|американски|"
             u"домаћа|документарен|tv2|yerli|yabancı|serial|animat|artistic|românesc|d|azione|"
             u"animazione|tedesca|drammatico|sentimentale|policier|policière")};
    return kWords;
}

/// Whether the text has words and all of them are known; most texts end with their first.
template <class IsKnown>
bool isEveryWord(QStringView text, IsKnown&& isKnown) {
    bool hasWords = false;
    for (const QStringView part : QStringTokenizer(text, u' ', Qt::SkipEmptyParts)) {
        const WordKey key(part);
        for (const QStringView word : key.view().tokenize(u' ', Qt::SkipEmptyParts)) {
            if (!isKnown(word)) {
                return false;
            }
            hasWords = true;
        }
    }
    return hasWords;
}

bool hasFourDigits(QStringView text) {
    int digits = 0;
    return std::ranges::any_of(text, [&digits](QChar unit) {
        digits = unit >= u'0' && unit <= u'9' ? digits + 1 : 0;
        return digits == 4;
    });
}

} // namespace

std::optional<int> yearOf(QStringView text) {
    if (text.size() != 4) {
        return std::nullopt;
    }
    int year = 0;
    for (const QChar unit : text) {
        if (unit < u'0' || unit > u'9') {
            return std::nullopt;
        }
        year = year * 10 + unit.unicode() - u'0';
    }
    return year >= kFirstYear && year <= kLastYear ? std::optional(year) : std::nullopt;
}

Newness newnessMark(QStringView text, bool isBracketed) {
    if (text.size() > kLongestNote) {
        return Newness::Unknown;
    }
    if (!beginsWithOne(firstWordsOfMarks(), text)) {
        return Newness::Unknown;
    }
    const QString key = keyOf(text);
    if (key.size() <= 2 && !isBracketed && key != u"új") {
        return Newness::Unknown;
    }
    // "(Wh. vom Vortag)", "(repriza od subote)".
    const QStringView first = QStringView(key).first(std::max<qsizetype>(key.indexOf(u' '), 0));
    const bool isLong = isBracketed && (first.size() >= 6 || first == u"wh" || first == u"wdh");
    if (repeatMarks().contains(key) || (isLong && repeatMarks().contains(first))) {
        return Newness::Repeat;
    }
    return newMarks().contains(key) ? Newness::New : Newness::Unknown;
}

bool isTechnicalNote(QStringView text) {
    return text.size() <= kLongestNote &&
           isEveryWord(text, [](QStringView word) { return technicalWords().contains(word); });
}

std::optional<ProductionNote> productionNote(QStringView text, bool mayLackYear) {
    if (text.size() > kLongestNote || (!mayLackYear && !hasFourDigits(text))) {
        return std::nullopt;
    }
    ProductionNote note;
    static const QRegularExpression kSeparators(u"[,/|;()•]+|\\s[-–]\\s"_s);
    for (const QString& part : text.toString().split(kSeparators, Qt::SkipEmptyParts)) {
        QStringList words = part.simplified().split(u' ', Qt::SkipEmptyParts);
        const auto isYearWord = [](const QString& word) {
            static const WordSet kWords = keys(u"r|rok|god|godina|g|év|an|год");
            return kWords.contains(keyOf(word));
        };
        if (words.size() > 1 && isYearWord(words.constLast())) {
            words.removeLast();
        }
        if (words.size() > 1 && isYearWord(words.constFirst())) {
            words.removeFirst();
        }
        while (!words.isEmpty()) {
            QString word = words.constLast();
            while (word.endsWith(u'.')) {
                word.chop(1);
            }
            const auto year = yearOf(word);
            if (!year) {
                break;
            }
            if (note.year) {
                return std::nullopt;
            }
            note.year = year;
            words.removeLast();
        }
        if (words.isEmpty()) {
            continue;
        }
        // Codes are in capitals.
        const QString country = words.join(u' ');
        const bool isCode = country.size() <= 3;
        if (!countryNames().contains(keyOf(country)) || (isCode && country != country.toUpper())) {
            // Several codes may be joined by dashes.
            static const QRegularExpression kCodes(u"^[A-Z]{1,3}(-[A-Z]{1,3})+$"_s);
            if (!kCodes.match(country).hasMatch()) {
                return std::nullopt;
            }
        }
        note.countries.push_back(country);
    }
    const bool isNote = note.year || (mayLackYear && !note.countries.empty());
    return isNote ? std::optional(note) : std::nullopt;
}

bool isGenreNote(QStringView text) {
    if (text.size() > kLongestNote) {
        return false;
    }
    const GenreWords& known = genreWords();
    bool hasNoun = false;
    const bool isKnown = isEveryWord(text, [&](QStringView word) {
        const bool isNoun = known.nouns.contains(word);
        hasNoun = hasNoun || isNoun;
        return isNoun || known.others.contains(word);
    });
    return isKnown && hasNoun;
}

std::optional<QString> ageNote(QStringView text) {
    static const QRegularExpression kAge(
        u"^(?:FSK\\s?(\\d{1,2})|([ΚK]\\d{0,2})|\\+(\\d{1,2})|(\\d{1,2})\\+|"
        u"(?:od|ab|ad|за над|над)\\s(\\d{1,2})(?:\\.|\\slet|\\srokov|\\sgodina|\\sJahren)?)$"_s);
    text = text.trimmed();
    const bool isLikely =
        !text.isEmpty() && text.size() <= 24 &&
        (text.front() == u'K' || text.front() == u'Κ' ||
         std::ranges::any_of(text, [](QChar unit) { return unit >= u'0' && unit <= u'9'; }));
    if (!isLikely) {
        return std::nullopt;
    }
    const auto match = kAge.match(text.toString());
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    for (int group = 1; group <= match.lastCapturedIndex(); ++group) {
        if (match.capturedLength(group) > 0) {
            return match.captured(group);
        }
    }
    return std::nullopt;
}

} // namespace guide
