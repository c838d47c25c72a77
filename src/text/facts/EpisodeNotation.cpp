#include "text/facts/EpisodeNotation.h"

#include "text/facts/EpisodeWords.h"

#include <QStringList>

#include <algorithm>
#include <vector>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLongestNotation = 60;

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

    EpisodeLabel label() const {
        if (!m_label) {
            const bool isWord = kind == Word && text.size() <= 12;
            m_label = isWord ? episodeLabel(text) : EpisodeLabel::None;
            // Latvian for an episode, elsewhere for a series.
            if (isWord && (text == u"sērija" || text == u"Sērija")) {
                m_label = EpisodeLabel::Episode;
            }
        }
        return *m_label;
    }

  private:
    mutable std::optional<EpisodeLabel> m_label;
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
        if (token->kind == Token::Word && isFollowedByNumber() && token->label() != EpisodeLabel::None &&
            token->label() != EpisodeLabel::Of && token->label() != EpisodeLabel::Ordinal && takeLabelled()) {
            return true;
        }
        if (token->kind == Token::Number) {
            return takeNumbered();
        }
        return token->kind == Token::Word && (takeRoman() || takeGreek());
    }

    void set(EpisodeLabel label, int value) {
        switch (label) {
        case EpisodeLabel::WeakSeason:
            m_hasWeak = true;
            [[fallthrough]];
        case EpisodeLabel::Season:
            m_number.season = value;
            m_hasSeason = true;
            break;
        case EpisodeLabel::Episode:
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
        const bool mayBeRoman = label.label() == EpisodeLabel::Season ||
                                (m_isSeparate && label.label() != EpisodeLabel::WeakSeason);
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
                              (next->label() == EpisodeLabel::Ordinal || next->text.size() == 1) &&
                              !(isNumber(peek(1)) && peek(1)->isJoined);
        if (isLetter) {
            ++m_at;
        }
    }

    /// "/8", "von 8".
    void takeTotal(EpisodeLabel label) {
        const Token* sign = peek();
        const bool isSlash = isSign(sign, u"/");
        const bool isWord = sign && sign->kind == Token::Word && sign->label() == EpisodeLabel::Of;
        if ((!isSlash && !isWord) || !isNumber(peek(1))) {
            return;
        }
        const int total = peek(1)->number;
        m_at += 2;
        if (label == EpisodeLabel::Episode) {
            m_number.episodes = total;
        } else if (label == EpisodeLabel::Part) {
            m_number.parts = total;
        }
    }

    /// "1ο & 2ο": the first one counts.
    void takeSiblings(EpisodeLabel label) {
        while (label != EpisodeLabel::Season && isSign(peek(), u"&+") && isNumber(peek(1))) {
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
            set(EpisodeLabel::Season, first);
            set(EpisodeLabel::Episode, second->number);
            return true;
        }
        const std::size_t before = m_at++;
        skipOrdinal();
        std::size_t dots = 0;
        while (isSign(peek(dots), u".")) {
            ++dots;
        }
        const Token* word = peek(dots);
        const bool isLabel = word && word->kind == Token::Word && word->label() != EpisodeLabel::None &&
                             word->label() != EpisodeLabel::Of && word->label() != EpisodeLabel::Ordinal &&
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
                                       label->kind == Token::Word && label->label() == EpisodeLabel::Episode;
            if (isCountedDown) {
                m_at += 4;
                m_number.episodes = first;
                set(EpisodeLabel::Episode, total);
                return true;
            }
            if (m_isSeparate && first <= total && first > 0 && total < 1000) {
                m_at += 2;
                set(EpisodeLabel::Episode, first);
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
            set(EpisodeLabel::Episode, first);
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
            set(EpisodeLabel::Season, *roman);
            set(EpisodeLabel::Episode, episode);
            const Token* label = peek();
            m_at += label && label->kind == Token::Word && label->label() == EpisodeLabel::Episode ? 1 : 0;
            return true;
        }
        const Token* word = peek(ahead);
        if (word && word->kind == Token::Word && word->text.size() > 1 &&
            (word->label() == EpisodeLabel::Season ||
             (m_isSeparate && word->label() != EpisodeLabel::None))) {
            m_at += ahead + 1;
            set(word->label() == EpisodeLabel::Of || word->label() == EpisodeLabel::Ordinal
                    ? EpisodeLabel::Season
                    : word->label(),
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
            set(EpisodeLabel::Season, *roman);
            return true;
        }
        return false;
    }

    /// "Β' κύκλος", "Α΄ μέρος".
    bool takeGreek() {
        const auto number = greekNumber(peek()->text);
        const Token* word = peek(2);
        if (!number || !isSign(peek(1), u"'’΄´ʹ`‘") || !word || word->kind != Token::Word ||
            (word->label() != EpisodeLabel::Season && word->label() != EpisodeLabel::Part &&
             word->label() != EpisodeLabel::Episode)) {
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

bool isEndSign(QStringView text) {
    return text == u"." || text == u",";
}

} // namespace

// A number in digits, Roman digits or, with an apostrophe, Greek ones.
bool mayHaveEpisode(QStringView text) {
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

std::optional<FoundEpisode> episodeAtStart(QStringView text, const QString& language, NotationPlace place) {
    const QStringView head = text.first(std::min(text.size(), kLongestNotation));
    if (!mayHaveEpisode(head)) {
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
    if (text.isEmpty() || text.size() > kLongestNotation || !mayHaveEpisode(text)) {
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
    if (!mayHaveEpisode(tail)) {
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

void completeEpisode(EpisodeNumber& number, const EpisodeNumber& other) {
    for (auto field : {&EpisodeNumber::season, &EpisodeNumber::episode, &EpisodeNumber::episodes,
                       &EpisodeNumber::part, &EpisodeNumber::parts}) {
        if (!(number.*field)) {
            number.*field = other.*field;
        }
    }
}

} // namespace guide
