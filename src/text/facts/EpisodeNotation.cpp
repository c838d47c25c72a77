#include "text/facts/EpisodeNotation.h"

#include "text/search/FoldedText.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLongestNotation = 60;
constexpr int kMostEpisode = 9'998;
/// Greater seasons are years or placeholders.
constexpr int kMostSeason = 98;

enum class Label {
    None,
    Season,
    /// Also the word for a show, so that an episode must follow.
    WeakSeason,
    Episode,
    Part,
    Of,
    Ordinal,
};

struct LabelWord {
    const char16_t* word;
    Label label;
};

/// Folded: in lower case, without diacritics.
constexpr std::array kLabels{
    LabelWord{u"s", Label::Season},
    LabelWord{u"season", Label::Season},
    LabelWord{u"staffel", Label::Season},
    LabelWord{u"saison", Label::Season},
    LabelWord{u"stagione", Label::Season},
    LabelWord{u"stag", Label::Season},
    LabelWord{u"sezon", Label::Season},
    LabelWord{u"sezona", Label::Season},
    LabelWord{u"sezone", Label::Season},
    LabelWord{u"sezonul", Label::Season},
    LabelWord{u"sez", Label::Season},
    LabelWord{u"serie", Label::WeakSeason},
    LabelWord{u"series", Label::WeakSeason},
    LabelWord{u"seria", Label::WeakSeason},
    LabelWord{u"rada", Label::WeakSeason},
    LabelWord{u"evad", Label::Season},
    LabelWord{u"temporada", Label::Season},
    LabelWord{u"t", Label::Season},
    LabelWord{u"seizoen", Label::Season},
    LabelWord{u"κυκλοσ", Label::Season},
    LabelWord{u"σεζον", Label::Season},
    LabelWord{u"сезон", Label::Season},
    LabelWord{u"сезона", Label::Season},
    LabelWord{u"сез", Label::Season},
    LabelWord{u"e", Label::Episode},
    LabelWord{u"ep", Label::Episode},
    LabelWord{u"eps", Label::Episode},
    LabelWord{u"epis", Label::Episode},
    LabelWord{u"episode", Label::Episode},
    LabelWord{u"episodio", Label::Episode},
    LabelWord{u"episodul", Label::Episode},
    LabelWord{u"episod", Label::Episode},
    LabelWord{u"puntata", Label::Episode},
    LabelWord{u"folge", Label::Episode},
    LabelWord{u"epizoda", Label::Episode},
    LabelWord{u"epizode", Label::Episode},
    LabelWord{u"epizod", Label::Episode},
    LabelWord{u"epiz", Label::Episode},
    LabelWord{u"nastavak", Label::Episode},
    LabelWord{u"nast", Label::Episode},
    LabelWord{u"dil", Label::Episode},
    LabelWord{u"diel", Label::Episode},
    LabelWord{u"resz", Label::Episode},
    LabelWord{u"odcinek", Label::Episode},
    LabelWord{u"odc", Label::Episode},
    LabelWord{u"bolum", Label::Episode},
    LabelWord{u"capitulo", Label::Episode},
    LabelWord{u"cap", Label::Episode},
    LabelWord{u"aflevering", Label::Episode},
    LabelWord{u"afl", Label::Episode},
    LabelWord{u"avsnitt", Label::Episode},
    LabelWord{u"επεισοδιο", Label::Episode},
    LabelWord{u"επεισοδια", Label::Episode},
    LabelWord{u"επ", Label::Episode},
    LabelWord{u"епизода", Label::Episode},
    LabelWord{u"епизод", Label::Episode},
    LabelWord{u"еп", Label::Episode},
    LabelWord{u"серия", Label::Episode},
    LabelWord{u"part", Label::Part},
    LabelWord{u"pt", Label::Part},
    LabelWord{u"parte", Label::Part},
    LabelWord{u"partie", Label::Part},
    LabelWord{u"partea", Label::Part},
    LabelWord{u"teil", Label::Part},
    LabelWord{u"dio", Label::Part},
    LabelWord{u"deo", Label::Part},
    LabelWord{u"del", Label::Part},
    LabelWord{u"deel", Label::Part},
    LabelWord{u"cast", Label::Part},
    LabelWord{u"cz", Label::Part},
    LabelWord{u"czesc", Label::Part},
    LabelWord{u"kisim", Label::Part},
    LabelWord{u"μεροσ", Label::Part},
    LabelWord{u"дио", Label::Part},
    LabelWord{u"део", Label::Part},
    LabelWord{u"дел", Label::Part},
    LabelWord{u"част", Label::Part},
    LabelWord{u"of", Label::Of},
    LabelWord{u"von", Label::Of},
    LabelWord{u"di", Label::Of},
    LabelWord{u"de", Label::Of},
    LabelWord{u"z", Label::Of},
    LabelWord{u"zo", Label::Of},
    LabelWord{u"ze", Label::Of},
    LabelWord{u"od", Label::Of},
    LabelWord{u"sur", Label::Of},
    LabelWord{u"από", Label::Of},
    LabelWord{u"от", Label::Of},
    LabelWord{u"од", Label::Of},
    LabelWord{u"st", Label::Ordinal},
    LabelWord{u"nd", Label::Ordinal},
    LabelWord{u"rd", Label::Ordinal},
    LabelWord{u"th", Label::Ordinal},
    LabelWord{u"er", Label::Ordinal},
    LabelWord{u"re", Label::Ordinal},
    LabelWord{u"eme", Label::Ordinal},
    LabelWord{u"a", Label::Ordinal},
    LabelWord{u"o", Label::Ordinal},
    LabelWord{u"os", Label::Ordinal},
    LabelWord{u"oσ", Label::Ordinal},
    LabelWord{u"ª", Label::Ordinal},
    LabelWord{u"º", Label::Ordinal},
    LabelWord{u"ο", Label::Ordinal},
    LabelWord{u"οσ", Label::Ordinal},
    LabelWord{u"η", Label::Ordinal},
};

Label labelOf(const QString& folded) {
    static const QHash<QString, Label> kByWord = [] {
        QHash<QString, Label> labels;
        for (const LabelWord& each : kLabels) {
            labels.insert(foldedText(QStringView(each.word)), each.label);
        }
        return labels;
    }();
    const Label label = kByWord.value(folded, Label::None);
    if (label != Label::None ||
        !std::ranges::any_of(folded, [](QChar unit) { return unit.script() == QChar::Script_Greek; })) {
        return label;
    }
    // Feeds mix Greek letters with Latin ones that look alike.
    QString greek = folded;
    for (QChar& unit : greek) {
        constexpr std::u16string_view kLatin = u"aeiopu";
        constexpr std::u16string_view kGreek = u"αειορυ";
        const std::size_t place = kLatin.find(unit.unicode());
        unit = place == kLatin.npos ? unit : QChar(kGreek[place]);
    }
    return kByWord.value(greek, Label::None);
}

/// Feeds write Greek and Cyrillic letters that look like Roman digits as well.
char latinLookAlike(QChar letter) {
    switch (letter.unicode()) {
    case u'Ι':
    case u'І':
        return 'I';
    case u'Χ':
    case u'Х':
        return 'X';
    default:
        return letter.unicode() < 0x80 ? static_cast<char>(letter.unicode()) : '\0';
    }
}

/// In capitals only, up to 89.
std::optional<int> romanNumber(QStringView text) {
    std::string roman;
    for (const QChar letter : text) {
        roman.push_back(latinLookAlike(letter));
    }
    if (roman.empty() || roman.size() > 8 || roman.find_first_not_of("IVXL") != std::string::npos) {
        return std::nullopt;
    }
    static constexpr std::array kTens{"", "X", "XX", "XXX", "XL", "L", "LX", "LXX", "LXXX"};
    static constexpr std::array kOnes{"", "I", "II", "III", "IV", "V", "VI", "VII", "VIII", "IX"};
    for (std::size_t tens = 0; tens < kTens.size(); ++tens) {
        for (std::size_t ones = 0; ones < kOnes.size(); ++ones) {
            if (roman == std::string(kTens[tens]) + kOnes[ones]) {
                return static_cast<int>(tens * 10 + ones);
            }
        }
    }
    return std::nullopt;
}

/// "Β'" is two.
std::optional<int> greekNumber(QStringView text) {
    static constexpr std::u16string_view kDigits = u"ΑΒΓΔΕ?ΖΗΘ";
    if (text == u"ΣΤ") {
        return 6;
    }
    if (text == u"Ι") {
        return 10;
    }
    const QChar latin = text == u"A" ? u'Α' : text == u"B" ? u'Β' : text.isEmpty() ? u'?' : text.front();
    const std::size_t digit = text.size() == 1 ? kDigits.find(latin.unicode()) : kDigits.npos;
    return digit == kDigits.npos || kDigits[digit] == u'?' ? std::nullopt
                                                           : std::optional(static_cast<int>(digit) + 1);
}

bool isDigit(QChar unit) {
    return unit >= u'0' && unit <= u'9';
}

struct Token {
    enum Kind { Number, Word, Sign } kind = Sign;
    QStringView text;
    qsizetype start = 0;
    qsizetype end = 0;
    /// Whether nothing separates it from the one in front of it.
    bool isJoined = false;
    int number = 0;

    Label label() const {
        if (!m_label) {
            const bool isWord = kind == Word && text.size() <= 12;
            m_label = isWord ? labelOf(foldedText(text)) : Label::None;
            // Latvian for an episode, elsewhere for a series.
            if (isWord && (text == u"sērija" || text == u"Sērija")) {
                m_label = Label::Episode;
            }
        }
        return *m_label;
    }

  private:
    mutable std::optional<Label> m_label;
};

std::vector<Token> tokensOf(QStringView text) {
    std::vector<Token> tokens;
    for (qsizetype at = 0; at < text.size();) {
        if (text[at].isSpace()) {
            ++at;
            continue;
        }
        Token token;
        token.start = at;
        const auto run = [&](auto&& belongs) {
            while (at < text.size() && belongs(text[at])) {
                ++at;
            }
        };
        if (isDigit(text[at])) {
            token.kind = Token::Number;
            run(isDigit);
        } else if (text[at].isLetter()) {
            token.kind = Token::Word;
            run([](QChar unit) { return unit.isLetter() || unit.isMark(); });
        } else {
            ++at;
        }
        token.end = at;
        token.text = text.sliced(token.start, at - token.start);
        token.isJoined = !tokens.empty() && tokens.back().end == token.start;
        if (token.kind == Token::Number) {
            token.number = token.text.size() > 6 ? kMostEpisode + 1 : token.text.toInt();
        }
        tokens.push_back(token);
    }
    return tokens;
}

/// Reads one notation, token by token.
class NotationParser {
  public:
    NotationParser(const std::vector<Token>& tokens, std::size_t first, const QString& language,
                   NotationPlace place)
        : m_tokens(tokens)
        , m_at(first)
        , m_isHungarian(language == u"hu")
        , m_isSeparate(place == NotationPlace::Separate)
        , m_needsEpisode(place == NotationPlace::Description) {}

    /// The token behind the notation; the first one when there is none.
    std::size_t parse() {
        const std::size_t first = m_at;
        std::size_t end = first;
        while (m_at < m_tokens.size() && takeItem()) {
            end = m_at;
            skipSeparators();
        }
        const bool isEnough = m_hasStrong && (!m_needsEpisode || m_hasEpisode) &&
                              (m_isSeparate || !m_hasWeak || m_hasEpisode) &&
                              (m_isSeparate || !m_hasPartOnly || m_hasEpisode || m_hasSeason);
        return isEnough ? end : first;
    }

    EpisodeNumber number() const {
        EpisodeNumber number = m_number;
        const auto drop = [](std::optional<int>& value, int most) {
            if (value && (*value <= 0 || *value > most)) {
                value.reset();
            }
        };
        drop(number.season, kMostSeason);
        drop(number.episode, kMostEpisode);
        drop(number.episodes, kMostEpisode);
        drop(number.part, kMostSeason);
        drop(number.parts, kMostSeason);
        if (!number.episode || (number.episodes && *number.episodes < *number.episode)) {
            number.episodes.reset();
        }
        if (!number.part || (number.parts && *number.parts < *number.part)) {
            number.parts.reset();
        }
        return number;
    }

  private:
    const Token* peek(std::size_t ahead = 0) const {
        return m_at + ahead < m_tokens.size() ? &m_tokens[m_at + ahead] : nullptr;
    }
    bool isSign(const Token* token, QStringView signs) const {
        return token && token->kind == Token::Sign && signs.contains(token->text.front());
    }
    bool isNumber(const Token* token) const { return token && token->kind == Token::Number; }

    /// Looking words up takes longer.
    bool isFollowedByNumber() const {
        std::size_t ahead = 1;
        while (isSign(peek(ahead), u".:#°")) {
            ++ahead;
        }
        const Token* next = peek(ahead);
        return next && (next->kind == Token::Number || next->text.front().isUpper());
    }

    void skipSeparators() {
        while (isSign(peek(), u",-–—/.:;•|·")) {
            ++m_at;
        }
    }

    bool takeItem() {
        const Token* token = peek();
        if (token->kind == Token::Word && isFollowedByNumber() && token->label() != Label::None &&
            token->label() != Label::Of && token->label() != Label::Ordinal && takeLabelled()) {
            return true;
        }
        if (token->kind == Token::Number) {
            return takeNumbered();
        }
        return token->kind == Token::Word && (takeRoman() || takeGreek());
    }

    void set(Label label, int value) {
        switch (label) {
        case Label::WeakSeason:
            m_hasWeak = true;
            [[fallthrough]];
        case Label::Season:
            m_number.season = value;
            m_hasSeason = true;
            break;
        case Label::Episode:
            if (!m_hasEpisode) {
                m_number.episode = value;
            }
            m_hasEpisode = true;
            break;
        default:
            m_number.part = value;
            m_hasPartOnly = true;
            break;
        }
        m_hasStrong = true;
    }

    /// "Folge 3", "Ep. 3/8", "S1", "Saison:2", "Season II".
    bool takeLabelled() {
        const Token& label = *peek();
        std::size_t ahead = 1;
        while (isSign(peek(ahead), u".:#°")) {
            ++ahead;
        }
        const Token* number = peek(ahead);
        const bool isShort = label.text.size() == 1;
        if (!number || (isShort && (!number->isJoined && ahead == 1))) {
            return false;
        }
        if (isNumber(number)) {
            m_at += ahead + 1;
            set(label.label(), number->number);
            skipOrdinal();
            takeTotal(label.label());
            takeSiblings(label.label());
            return true;
        }
        const auto roman = romanNumber(number->text);
        const bool mayBeRoman =
            label.label() == Label::Season || (m_isSeparate && label.label() != Label::WeakSeason);
        if (!roman || isShort || !mayBeRoman) {
            return false;
        }
        m_at += ahead + 1;
        set(label.label(), *roman);
        return true;
    }

    /// The letter of an ordinal number, or of a part of an episode: "1ο", "2nd", "5a".
    void skipOrdinal() {
        const Token* next = peek();
        const bool isLetter = next && next->kind == Token::Word && next->isJoined &&
                              (next->label() == Label::Ordinal || next->text.size() == 1) &&
                              !(isNumber(peek(1)) && peek(1)->isJoined);
        if (isLetter) {
            ++m_at;
        }
    }

    /// "/8", "von 8".
    void takeTotal(Label label) {
        const Token* sign = peek();
        const bool isSlash = isSign(sign, u"/");
        const bool isWord = sign && sign->kind == Token::Word && sign->label() == Label::Of;
        if ((!isSlash && !isWord) || !isNumber(peek(1))) {
            return;
        }
        const int total = peek(1)->number;
        m_at += 2;
        if (label == Label::Episode) {
            m_number.episodes = total;
        } else if (label == Label::Part) {
            m_number.parts = total;
        }
    }

    /// "1ο & 2ο": the first one counts.
    void takeSiblings(Label label) {
        while (label != Label::Season && isSign(peek(), u"&+") && isNumber(peek(1))) {
            m_at += 2;
            skipOrdinal();
        }
    }

    /// "3. díl", "2. sezona", "3/8", "1x05", "2/1. rész".
    bool takeNumbered() {
        const int first = peek()->number;
        const Token* second = peek(2);
        const bool isTimes = peek(1) && peek(1)->isJoined && isNumber(second) && second->isJoined &&
                             (peek(1)->text == u"x" || peek(1)->text == u"X" || peek(1)->text == u"×");
        if (isTimes && first <= kMostSeason) {
            m_at += 3;
            set(Label::Season, first);
            set(Label::Episode, second->number);
            return true;
        }
        const std::size_t before = m_at++;
        skipOrdinal();
        std::size_t dots = 0;
        while (isSign(peek(dots), u".")) {
            ++dots;
        }
        const Token* word = peek(dots);
        const bool isLabel = word && word->kind == Token::Word && word->label() != Label::None &&
                             word->label() != Label::Of && word->label() != Label::Ordinal &&
                             word->text.size() > 1;
        // In "1. sezona 2" the label belongs to the first number, in "sezona 1 epizoda 2" to the last.
        if (isLabel) {
            m_at += dots + 1;
            set(word->label(), first);
            takeTotal(word->label());
            return true;
        }
        const bool isFraction =
            isSign(peek(), u"/") && peek()->isJoined && isNumber(peek(1)) && peek(1)->isJoined;
        if (isFraction) {
            const int total = peek(1)->number;
            const Token* label = isSign(peek(2), u".") ? peek(3) : nullptr;
            const bool isCountedDown = m_isHungarian && total <= first && label &&
                                       label->kind == Token::Word && label->label() == Label::Episode;
            if (isCountedDown) {
                m_at += 4;
                m_number.episodes = first;
                set(Label::Episode, total);
                return true;
            }
            if (m_isSeparate && first <= total && first > 0 && total < 1000) {
                m_at += 2;
                set(Label::Episode, first);
                m_number.episodes = total;
                return true;
            }
        }
        // Hungarian feeds end titles in "12.".
        const bool isDotted = dots == 1 && m_isHungarian && m_at + 1 == m_tokens.size() && first < 1900;
        const bool isYear = first >= 1900 && first < 2100;
        const bool isAlone = m_isSeparate && before == 0 && !isYear && m_at + dots == m_tokens.size();
        if (isDotted || isAlone) {
            m_at += dots;
            set(Label::Episode, first);
            return true;
        }
        m_at = before;
        return false;
    }

    /// "II./6.", "V/6", "XIV.", "II. évad", ", III".
    bool takeRoman() {
        const auto roman = romanNumber(peek()->text);
        if (!roman || *roman == 0 || m_hasStrong) {
            return false;
        }
        std::size_t ahead = 1;
        // "I-II./23."
        if (isSign(peek(1), u"-–") && peek(2) && peek(2)->kind == Token::Word && peek(2)->isJoined &&
            romanNumber(peek(2)->text)) {
            ahead += 2;
        }
        const bool hasDot = isSign(peek(ahead), u".");
        ahead += hasDot ? 1 : 0;
        if (isSign(peek(ahead), u"/") && isNumber(peek(ahead + 1)) && peek(ahead)->isJoined) {
            const int episode = peek(ahead + 1)->number;
            m_at += ahead + 2 + (isSign(peek(ahead + 2), u".") ? 1 : 0);
            set(Label::Season, *roman);
            set(Label::Episode, episode);
            const Token* label = peek();
            m_at += label && label->kind == Token::Word && label->label() == Label::Episode ? 1 : 0;
            return true;
        }
        const Token* word = peek(ahead);
        if (word && word->kind == Token::Word && word->text.size() > 1 &&
            (word->label() == Label::Season || (m_isSeparate && word->label() != Label::None))) {
            m_at += ahead + 1;
            set(word->label() == Label::Of || word->label() == Label::Ordinal ? Label::Season : word->label(),
                *roman);
            return true;
        }
        const bool isLast = m_at + ahead == m_tokens.size();
        // "(L)" is a show that is live.
        if (peek()->text == u"L") {
            return false;
        }
        if (isLast && (m_isSeparate || (hasDot && m_isHungarian))) {
            m_at += ahead;
            set(Label::Season, *roman);
            return true;
        }
        return false;
    }

    /// "Β' κύκλος", "Α΄ μέρος".
    bool takeGreek() {
        const auto number = greekNumber(peek()->text);
        const Token* word = peek(2);
        if (!number || !isSign(peek(1), u"'’΄´ʹ`‘") || !word || word->kind != Token::Word ||
            (word->label() != Label::Season && word->label() != Label::Part &&
             word->label() != Label::Episode)) {
            return false;
        }
        m_at += 3;
        set(word->label(), *number);
        return true;
    }

    const std::vector<Token>& m_tokens;
    std::size_t m_at;
    const bool m_isHungarian;
    const bool m_isSeparate;
    const bool m_needsEpisode;
    EpisodeNumber m_number;
    /// What the notation has so far.
    bool m_hasStrong = false;
    bool m_hasWeak = false;
    bool m_hasSeason = false;
    bool m_hasEpisode = false;
    bool m_hasPartOnly = false;
};

/// A number in digits, Roman digits or, with an apostrophe, Greek ones.
bool hasNumber(QStringView text) {
    bool isInWord = false;
    bool isRoman = false;
    for (const QChar unit : text) {
        const char16_t code = unit.unicode();
        if (code >= u'0' && code <= u'9') {
            return true;
        }
        if (code < u'A' || (code >= 0x80 && !unit.isLetter())) {
            if (isRoman || code == u'\'' || code == u'’' || code == u'΄' || code == u'´') {
                return true;
            }
            isInWord = false;
            isRoman = false;
            continue;
        }
        const bool isDigit = code == u'I' || code == u'V' || code == u'X' || code == u'L' ||
                             (code >= 0x80 && (unit == u'Ι' || unit == u'Χ' || unit == u'І' || unit == u'Х'));
        isRoman = isDigit && (!isInWord || isRoman);
        isInWord = true;
    }
    return isRoman;
}

bool isEndSign(QStringView text) {
    return text == u"." || text == u",";
}

/// Fields of "season.episode.part" with totals behind "/", counted from 0.
EpisodeNumber numberOfFields(const QString& text) {
    EpisodeNumber number;
    const QStringList fields = text.split(u'.');
    const auto read = [&fields](qsizetype index, std::optional<int>& value, std::optional<int>* total) {
        if (index >= fields.size()) {
            return;
        }
        const QStringList parts = fields[index].split(u'/');
        bool isNumber = false;
        const int first = parts[0].trimmed().toInt(&isNumber);
        if (isNumber && first >= 0) {
            value = first + 1;
        }
        const int most = parts.size() > 1 ? parts[1].trimmed().toInt(&isNumber) : 0;
        if (total && value && most >= *value) {
            *total = most;
        }
    };
    read(0, number.season, nullptr);
    read(1, number.episode, &number.episodes);
    // A single part is none.
    read(2, number.part, &number.parts);
    if (number.part && number.parts.value_or(0) < 2) {
        const bool isOnly = *number.part == 1;
        number.part = isOnly ? std::nullopt : number.part;
        number.parts.reset();
    }
    if (number.season && *number.season > kMostSeason) {
        number.season.reset();
    }
    if (number.episode && *number.episode > kMostEpisode) {
        number.episode.reset();
        number.episodes.reset();
    }
    return number;
}

} // namespace

std::optional<FoundEpisode> episodeAtStart(QStringView text, const QString& language, NotationPlace place) {
    const QStringView head = text.first(std::min(text.size(), kLongestNotation));
    if (!hasNumber(head)) {
        return std::nullopt;
    }
    const std::vector<Token> tokens = tokensOf(head);
    NotationParser parser(tokens, 0, language, place);
    const std::size_t end = parser.parse();
    if (end == 0) {
        return std::nullopt;
    }
    return FoundEpisode{parser.number(), tokens.front().start, tokens[end - 1].end};
}

std::optional<EpisodeNumber> episodeNotation(QStringView text, const QString& language, NotationPlace place) {
    text = text.trimmed();
    while (!text.isEmpty() && QStringView(u".,;").contains(text.back()) && text.size() > 1 &&
           !isDigit(text[text.size() - 2]) && place == NotationPlace::Separate &&
           !romanNumber(text.last(2).first(1))) {
        text.chop(1);
    }
    if (text.isEmpty() || text.size() > kLongestNotation || !hasNumber(text)) {
        return std::nullopt;
    }
    const std::vector<Token> tokens = tokensOf(text);
    NotationParser parser(tokens, 0, language, place);
    std::size_t end = parser.parse();
    while (end > 0 && end < tokens.size() && tokens[end].kind == Token::Sign && tokens[end].text == u".") {
        ++end;
    }
    return end > 0 && end == tokens.size() ? std::optional(parser.number()) : std::nullopt;
}

std::optional<FoundEpisode> episodeAtEnd(QStringView text, const QString& language, NotationPlace place) {
    const qsizetype from = std::max<qsizetype>(0, text.size() - kLongestNotation);
    const QStringView tail = text.sliced(from);
    if (!hasNumber(tail)) {
        return std::nullopt;
    }
    const std::vector<Token> tokens = tokensOf(tail);
    for (std::size_t first = 0; first < tokens.size(); ++first) {
        const Token& token = tokens[first];
        const bool begins = token.start > 0 && tail[token.start - 1].isSpace();
        if (!begins || token.kind == Token::Sign) {
            continue;
        }
        NotationParser parser(tokens, first, language, place);
        std::size_t end = parser.parse();
        while (end > first && end < tokens.size() && isEndSign(tokens[end].text)) {
            ++end;
        }
        if (end > first && end == tokens.size()) {
            return FoundEpisode{parser.number(), from + token.start, text.size()};
        }
    }
    return std::nullopt;
}

EpisodeNumber episodeOfElement(const QString& system, const QString& text, const QString& language) {
    if (system == u"xmltv_ns"_s || (system.isEmpty() && text.count(u'.') == 2)) {
        return numberOfFields(text);
    }
    const bool isKnown = system.isEmpty() || system == u"onscreen"_s || system == u"common"_s ||
                         system == u"SxxExx"_s || system == u"SxxxExxx"_s;
    if (!isKnown) {
        return {};
    }
    QStringView view = QStringView(text).trimmed();
    if (view.startsWith(u'(') && view.endsWith(u')')) {
        view = view.sliced(1, view.size() - 2);
    }
    return episodeNotation(view, language).value_or(EpisodeNumber());
}

void completeEpisode(EpisodeNumber& number, const EpisodeNumber& other) {
    for (auto field : {&EpisodeNumber::season, &EpisodeNumber::episode, &EpisodeNumber::episodes,
                       &EpisodeNumber::part, &EpisodeNumber::parts}) {
        if (!(number.*field)) {
            number.*field = other.*field;
        }
    }
}

} // namespace guide
