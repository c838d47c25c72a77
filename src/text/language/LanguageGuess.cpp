#include "text/language/LanguageGuess.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

struct Language {
    const char* code;
    /// The commonest words that a schedule has, separated by blanks.
    const char16_t* words;
    /// Letters that no other language here has, or hardly any.
    const char16_t* letters;
};

constexpr std::array kLatin{
    Language{"cs",
             u"a se na je že v do ve pro jako ale za jeho její které který která jsou když před také po ze "
             u"již jen "
             u"však podle bude jak kde s z si i od ho při jejich tím co díl pořad není",
             u"řěů"},
    Language{
        "sk",
        u"a sa na je že v do vo pre ako ale za jeho jej ktoré ktorý ktorá sú keď pred aj po zo už len však "
        u"podľa bude kde s z si i od ho pri ich tým čo časť nie ktorí cez",
        u"ľĺŕôä"},
    Language{
        "pl",
        u"się na jest że w do we dla jak ale za jego jej które który która są kiedy przed także po ze już "
        u"tylko oraz przez nie co od z i o a jednak odcinek program którzy",
        u"łąęśźż"},
    Language{
        "hu",
        u"a az és hogy nem egy is meg de csak már van volt mint még ki el akik aki ami után vagy lesz majd "
        u"szerint ezért azonban be ez ha mert fel műsor rész között",
        u"őű"},
    Language{
        "ro",
        u"și în de la cu pe un o nu care este din pentru mai sunt lui ei sau prin după fi se că să al ale a "
        u"cei unei unui însă dintre când pe cel fost emisiune",
        u"țșăţşî"},
    Language{
        "it",
        u"il di che la e un per una con del non della si i da le nel gli dei alla sono ma anche lo dal a in "
        u"è suo sua come tra puntata degli delle nella ha più",
        u"ìò"},
    Language{
        "de",
        u"der die und das ein in den von mit zu ist eine im auf für des sich nicht dem auch als aus sie er "
        u"bei wird einer nach an hat es werden zum zur seine um",
        u"ß"},
    Language{
        "fr",
        u"le la les de des et un une à en du pour dans est qui que sur avec au par son il se ne pas plus sa "
        u"ses ce cette aux mais leur épisode magazine l d",
        u"œêèç"},
    Language{
        "en",
        u"the of and to in a is with for on his her by from who as that an at are their he after this be has "
        u"but when it they she new out up about into",
        u""},
    Language{"es",
             u"el la de que y en un una los las del con por para su es se al como más no lo sus entre desde",
             u"ñ¿¡"},
    Language{"pt", u"o a de que e do da em um uma os as com para por não no na se dos ao mais seu sua são",
             u"ãõ"},
    Language{"nl",
             u"de het een en van in is op met dat zijn voor die niet aan te door worden over naar wordt",
             u""},
    Language{
        "tr",
        u"ve bir bu için ile da de olan olarak çok daha gibi ne en sonra kadar her onun değil ama o bölüm "
        u"tüm yeni ise",
        u"ğı"},
    Language{
        "sl",
        u"in je na se za v ki da s z so pa kot po od ne bo tudi ter iz pri bi ni še že do med kako oddaja "
        u"njegov vse",
        u""},
    Language{
        "hr",
        u"i u je na se za da od su s koji koja koje o iz ne kao ali te njegov svoj kako što nije biti po do "
        u"sa će kojoj ili samo bi emisija jedan ga",
        u"đć"},
    Language{"sq", u"e të në një dhe për me që i nga se është ka do i tij si më kur ose emision", u"ë"},
};

/// Croatian stands for the languages that cannot be told apart from it.
constexpr std::size_t kCroatian = 14;
static_assert(std::string_view(kLatin[kCroatian].code) == "hr");

bool isOfCroatianGroup(const QString& code) {
    return code == "hr"_L1 || code == "sr"_L1 || code == "bs"_L1;
}

struct Hint {
    std::size_t language;
    double weight;
};

struct Tables {
    QHash<QString, std::vector<Hint>> words;
    QHash<char16_t, std::size_t> letters;

    Tables() {
        for (std::size_t language = 0; language < kLatin.size(); ++language) {
            QStringList known = QString::fromUtf16(kLatin[language].words).split(u' ', Qt::SkipEmptyParts);
            known.removeDuplicates();
            for (const QString& word : known) {
                words[word].push_back({language, 1});
            }
            for (const char16_t* letter = kLatin[language].letters; *letter != 0; ++letter) {
                letters.insert(*letter, language);
            }
        }
        // A word that many languages have says less.
        for (std::vector<Hint>& hints : words) {
            for (Hint& hint : hints) {
                hint.weight = 1.0 / static_cast<double>(hints.size());
            }
        }
    }
};

/// How often the letters of a script that tell its languages apart occur.
struct Scripts {
    int latin = 0;
    int greek = 0;
    int cyrillic = 0;
    int ukrainian = 0;
    int russian = 0;
    int bulgarian = 0;
    int serbian = 0;
    int macedonian = 0;

    void count(QChar c) {
        const char16_t unit = c.unicode();
        if (unit < 0x250) {
            ++latin;
        } else if (unit < 0x400) {
            greek += unit >= 0x370 ? 1 : 0;
        } else if (unit < 0x500) {
            ++cyrillic;
            ukrainian += QStringView(u"іїєґ").contains(c) ? 1 : 0;
            russian += QStringView(u"ыэё").contains(c) ? 1 : 0;
            bulgarian += c == u'ъ' ? 1 : 0;
            serbian += QStringView(u"ђћџ").contains(c) ? 2 : QStringView(u"јљњ").contains(c) ? 1 : 0;
            macedonian += QStringView(u"ѓќѕ").contains(c) ? 4 : QStringView(u"јљњ").contains(c) ? 1 : 0;
        }
    }

    QString cyrillicLanguage(const QString& expected) const {
        const std::array<std::pair<int, const char*>, 5> counts{
            {{ukrainian, "uk"}, {russian, "ru"}, {bulgarian, "bg"}, {serbian, "sr"}, {macedonian, "mk"}}};
        const auto most = std::ranges::max_element(counts, {}, &std::pair<int, const char*>::first);
        if (most->first == 0) {
            return expected;
        }
        return isOfCroatianGroup(expected) && most->second == std::string_view("sr")
                   ? expected
                   : QString::fromLatin1(most->second);
    }
};

/// A letter counts less than a word, because a word has several.
constexpr double kLetterWeight = 0.5;
/// What the best language must have: enough evidence, and more than the next one.
constexpr double kLeastScore = 3;
constexpr double kMargin = 1.15;
/// The expected language wins unless another one is this much better.
constexpr double kMarginOverExpected = 1.3;

class Scores {
  public:
    void addWord(const QString& word) {
        const auto found = tables().words.constFind(word);
        if (found != tables().words.cend()) {
            for (const Hint& hint : *found) {
                m_scores[hint.language] += hint.weight;
            }
        }
    }
    void addLetter(QChar c) {
        const auto found = tables().letters.constFind(c.unicode());
        if (found != tables().letters.cend()) {
            m_scores[*found] += kLetterWeight;
        }
    }

    QString language(const QString& expected) const {
        const auto best = std::ranges::max_element(m_scores);
        const auto place = static_cast<std::size_t>(best - m_scores.begin());
        double next = 0;
        for (std::size_t other = 0; other < m_scores.size(); ++other) {
            next = other == place ? next : std::max(next, m_scores[other]);
        }
        const QString winner = QString::fromLatin1(kLatin[place].code);
        if (*best < kLeastScore || (place == kCroatian && isOfCroatianGroup(expected))) {
            return expected;
        }
        const double ofExpected = scoreOf(expected);
        if (ofExpected > 0 && *best < ofExpected * kMarginOverExpected) {
            return expected;
        }
        return *best >= next * kMargin ? winner : expected;
    }

  private:
    static const Tables& tables() {
        static const Tables kTables;
        return kTables;
    }
    double scoreOf(const QString& code) const {
        const QString known = isOfCroatianGroup(code) ? u"hr"_s : code;
        for (std::size_t language = 0; language < kLatin.size(); ++language) {
            if (known == QLatin1StringView(kLatin[language].code)) {
                return m_scores[language];
            }
        }
        return 0;
    }

    std::array<double, kLatin.size()> m_scores{};
};

} // namespace

QString guessedLanguage(QStringView text, const QString& expected) {
    const QString lower = text.toString().normalized(QString::NormalizationForm_C).toLower();
    Scripts scripts;
    Scores scores;
    QString word;
    for (const QChar c : lower) {
        if (c.isLetter()) {
            scripts.count(c);
            scores.addLetter(c);
            word += c;
        } else if (!word.isEmpty()) {
            scores.addWord(word);
            word.clear();
        }
    }
    scores.addWord(word);
    if (scripts.greek > scripts.latin && scripts.greek > scripts.cyrillic) {
        return u"el"_s;
    }
    if (scripts.cyrillic > scripts.latin) {
        return scripts.cyrillicLanguage(expected);
    }
    return scores.language(expected);
}

} // namespace guide
