#include "text/reading/TitleReading.h"

#include "text/cleaning/TextTidying.h"
#include "text/facts/DateNotes.h"
#include "text/facts/EpisodeNotation.h"
#include "text/facts/TitleNotes.h"
#include "text/search/FoldedText.h"

#include <QSet>

#include <algorithm>
#include <array>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// More than any real title has; limits the work for hostile input.
constexpr int kMostTails = 12;
constexpr qsizetype kLongestTitle = 500;

/// Removes signs that join a tail with the title.
QStringView withoutJoint(QStringView text) {
    while (!text.isEmpty() && (text.back().isSpace() || QStringView(u",;:-–—|/").contains(text.back()))) {
        text.chop(1);
    }
    return text;
}

bool hasLatin(QStringView text) {
    return std::ranges::any_of(text, [](QChar unit) { return unit.script() == QChar::Script_Latin; });
}

bool hasOtherScript(QStringView text) {
    return std::ranges::any_of(text, [](QChar unit) {
        return unit.script() == QChar::Script_Greek || unit.script() == QChar::Script_Cyrillic;
    });
}

/// What may divide a title from a tail, in the order in which it is tried. Each has a sign and a blank behind
/// it; some have a blank in front of it too.
struct Joint {
    QChar sign;
    bool hasBlankBefore;
    /// Sentences and headings say more than a comma and a dash.
    bool isLoose;

    qsizetype size() const { return hasBlankBefore ? 3 : 2; }
};
constexpr std::array kJoints{Joint{u',', false, false}, Joint{u'-', true, false}, Joint{u'–', true, false},
                             Joint{u'|', true, false},  Joint{u':', false, true}, Joint{u'.', false, true}};

/// Where the last of each joint begins; -1 where there is none.
std::array<qsizetype, kJoints.size()> lastJoints(QStringView title) {
    std::array<qsizetype, kJoints.size()> places;
    places.fill(-1);
    for (qsizetype at = 1; at + 1 < title.size(); ++at) {
        if (title[at + 1] != u' ') {
            continue;
        }
        for (std::size_t i = 0; i < kJoints.size(); ++i) {
            if (title[at] == kJoints[i].sign && (!kJoints[i].hasBlankBefore || title[at - 1] == u' ')) {
                places[i] = kJoints[i].hasBlankBefore ? at - 1 : at;
            }
        }
    }
    return places;
}

class TitleReader {
  public:
    TitleReader(const QString& title, const QString& language, int broadcastIn)
        : m_language(language)
        , m_broadcastIn(broadcastIn)
        , m_mayHaveEpisode(mayHaveEpisode(title)) {
        m_read.title = title;
    }

    ReadTitle run() {
        for (int i = 0;
             i < kMostTails && (takeBracket() || takeSlashes() || takeDate() || takeEnd() || takeSegment());
             ++i) {
        }
        takeMiddle();
        return std::move(m_read);
    }

  private:
    /// Shortens the title; false when nothing would be left.
    bool shorten(qsizetype size) {
        const QStringView left = withoutJoint(QStringView(m_read.title).first(size));
        if (left.isEmpty() ||
            !std::ranges::any_of(left, [](QChar unit) { return unit.isLetterOrNumber(); })) {
            return false;
        }
        m_read.title.truncate(left.size());
        return true;
    }

    void add(const EpisodeNumber& number) { completeEpisode(m_read.facts.episode, number); }

    /// Whether a notation that is not in brackets may well belong to the name: ", 3", " - I", "- Teil 2".
    bool mayBeName(QStringView note, const EpisodeNumber& number, qsizetype left) const {
        const bool hasLetter = std::ranges::any_of(note, [](QChar unit) { return unit.isLetter(); });
        if (!hasLetter) {
            return true;
        }
        const bool isComma = QStringView(m_read.title).sliced(left).startsWith(u',');
        const bool isPart = number.part && !number.season && !number.episode;
        const bool isRoman = number.season && !number.episode && std::ranges::none_of(note, [](QChar unit) {
                                 return unit.isLower() || unit.isDigit();
                             });
        return (isPart && !isComma) || (isRoman && (!isComma || note == u"I"));
    }

    /// "(сериал, еп. 5)": every part is a note.
    bool takeNotes(QStringView notes, qsizetype left) {
        const QList<QStringView> parts = notes.split(u',');
        const ReadTitle before = m_read;
        const QString title = m_read.title;
        bool isKnown = parts.size() > 1;
        for (qsizetype i = 0; isKnown && i < parts.size(); ++i) {
            m_read.title = title;
            isKnown = takeNote(parts[i], true, left);
        }
        if (!isKnown) {
            m_read = before;
        }
        return isKnown;
    }

    /// Takes what the note says into the facts.
    bool takeNote(QStringView note, bool isBracketed, qsizetype left) {
        note = note.trimmed();
        if (note.isEmpty()) {
            return isBracketed && shorten(left);
        }
        if (const Newness newness = newnessMark(note, isBracketed); newness != Newness::Unknown) {
            return shorten(left) && set(m_read.facts.newness, newness);
        }
        if (isBracketed && (isTechnicalNote(note) || isDateNote(note, m_broadcastIn))) {
            return shorten(left);
        }
        const auto production = productionNote(note);
        const bool isBareYear = production && production->countries.empty();
        if (production && (isBracketed || !isBareYear)) {
            return shorten(left) && set(*production);
        }
        if (const auto number = episodeNotation(note, m_language);
            number && (isBracketed || !mayBeName(note, *number, left))) {
            if (!shorten(left)) {
                return false;
            }
            add(*number);
            return true;
        }
        if (isGenreNote(note)) {
            const QString genre = note.toString();
            if (!shorten(left)) {
                return false;
            }
            m_read.genre = m_read.genre ? genre + u", "_s + *m_read.genre : genre;
            return true;
        }
        if (const auto age = isBracketed ? ageNote(note) : std::nullopt) {
            const QString rating = *age;
            return shorten(left) && set(m_read.facts.ageRating, rating);
        }
        if (!isBracketed && takeKind(note, left)) {
            return true;
        }
        if (isBracketed && isOriginalTitle(note, QStringView(m_read.title).first(left))) {
            const QString original = note.toString();
            return shorten(left) && set(m_read.facts.originalTitle, original);
        }
        return false;
    }

    /// The words of a genre in front of country and year: "Spielfilm Italien/USA 1956". 0 when it is another
    /// text.
    static qsizetype kindSize(QStringView note) {
        constexpr int kMostWords = 3;
        qsizetype blank = note.indexOf(u' ');
        for (int words = 1; words <= kMostWords && blank > 0; ++words) {
            if (isGenreNote(note.first(blank)) && productionNote(note.sliced(blank + 1))) {
                return blank;
            }
            blank = note.indexOf(u' ', blank + 1);
        }
        return 0;
    }

    bool takeKind(QStringView note, qsizetype left) {
        const qsizetype size = kindSize(note);
        if (size == 0) {
            return false;
        }
        const auto production = productionNote(note.sliced(size + 1));
        const QString genre = note.first(size).toString();
        if (!shorten(left)) {
            return false;
        }
        m_read.genre = genre;
        return set(*production);
    }

    /// Feeds in another script add the title as it is known elsewhere; others add it behind the kind.
    static bool isOriginalTitle(QStringView note, QStringView front) {
        if (note.size() <= 2 || !hasLatin(note) || hasOtherScript(note)) {
            return false;
        }
        constexpr QStringView kJoint = u" - ";
        const qsizetype joint = front.lastIndexOf(kJoint);
        return hasOtherScript(front) ||
               (joint > 0 && kindSize(front.sliced(joint + kJoint.size()).trimmed()) > 0);
    }

    template <class Value>
    bool set(Value& fact, const auto& value) {
        fact = value;
        return true;
    }
    bool set(const ProductionNote& note) {
        m_read.facts.year = note.year ? note.year : m_read.facts.year;
        if (!note.countries.empty()) {
            m_read.facts.countries = note.countries;
        }
        return true;
    }

    bool takeBracket() {
        const QStringView title = withoutTrailing(m_read.title);
        const bool isRound = title.endsWith(u')');
        if (!isRound && !title.endsWith(u']')) {
            return false;
        }
        const qsizetype open = title.lastIndexOf(isRound ? u'(' : u'[');
        if (open <= 0) {
            return false;
        }
        const QString note = title.sliced(open + 1, title.size() - open - 2).toString();
        return takeNote(note, true, open) || takeNotes(note, open);
    }

    /// "/п/", "/R/".
    bool takeSlashes() {
        const QStringView title(m_read.title);
        const qsizetype open = title.endsWith(u'/') ? title.chopped(1).lastIndexOf(u'/') : -1;
        return open > 0 && title[open - 1].isSpace() &&
               takeNote(title.sliced(open + 1, title.size() - open - 2), true, open);
    }

    static QStringView withoutTrailing(QStringView text) {
        while (text.size() > 1 && (text.back() == u'.' || text.back().isSpace()) &&
               (text[text.size() - 2] == u')' || text[text.size() - 2] == u']')) {
            text.chop(1);
        }
        return text;
    }

    /// The date of the broadcast.
    bool takeDate() {
        const QStringView title(m_read.title);
        if (m_broadcastIn == 0 || std::ranges::none_of(title, [](QChar unit) { return unit.isDigit(); })) {
            return false;
        }
        for (const QStringView joint :
             {QStringView(u" - "), QStringView(u" – "), QStringView(u", "), QStringView(u": ")}) {
            const qsizetype at = title.lastIndexOf(joint);
            if (at > 0 && isDateNote(title.sliced(at + joint.size()), m_broadcastIn)) {
                return shorten(at);
            }
        }
        const qsizetype date = dateAtEnd(title, m_broadcastIn);
        return date > 0 && shorten(date);
    }

    /// What follows the last comma or dash.
    bool takeSegment() {
        const QStringView title(m_read.title);
        const auto places = lastJoints(title);
        for (std::size_t i = 0; i < kJoints.size(); ++i) {
            const Joint& joint = kJoints[i];
            const qsizetype at = places[i];
            if (at <= 0) {
                continue;
            }
            const QStringView note = title.sliced(at + joint.size());
            const bool isAbbreviation = joint.sign == u'.' && endsWithAbbreviation(title.first(at));
            const qsizetype left = isAbbreviation ? at + 1 : at;
            if (joint.isLoose ? takeEpisode(note, left) : takeNote(note, false, left)) {
                return true;
            }
        }
        return false;
    }

    /// "stb", "usw": their full stop does not end a sentence.
    static bool endsWithAbbreviation(QStringView text) {
        constexpr qsizetype kLongest = 4;
        const QStringView word = text.sliced(text.lastIndexOf(u' ') + 1);
        return word.size() <= kLongest &&
               std::ranges::all_of(word, [](QChar unit) { return unit.isLower(); });
    }

    bool takeEpisode(QStringView note, qsizetype left) {
        const auto number =
            m_mayHaveEpisode ? episodeNotation(note, m_language, NotationPlace::Title) : std::nullopt;
        if (!number || !shorten(left)) {
            return false;
        }
        add(*number);
        return true;
    }

    /// "S1 E2", "Folge 10", "II./6." behind a blank.
    bool takeEnd() {
        const auto found =
            m_mayHaveEpisode ? episodeAtEnd(m_read.title, m_language, NotationPlace::Title) : std::nullopt;
        if (found && shorten(found->start)) {
            add(found->number);
            return true;
        }
        return false;
    }

    /// "Title - Stag. 26 Ep. 26 - Subtitle".
    void takeMiddle() {
        if (!m_mayHaveEpisode) {
            return;
        }
        for (const QStringView joint : {QStringView(u" - "), QStringView(u" – ")}) {
            const QString title = m_read.title;
            const qsizetype first = title.indexOf(joint);
            const qsizetype second = first < 0 ? -1 : title.indexOf(joint, first + joint.size());
            if (first <= 0 || second < 0) {
                continue;
            }
            const QStringView between =
                QStringView(title).sliced(first + joint.size(), second - first - joint.size());
            const auto number = episodeNotation(between, m_language, NotationPlace::Title);
            if (number && shorten(first)) {
                add(*number);
                m_read.subtitle = title.sliced(second + joint.size()).trimmed();
                return;
            }
        }
    }

    const QString& m_language;
    const int m_broadcastIn;
    const bool m_mayHaveEpisode;
    ReadTitle m_read;
};

QString placeholderKey(QStringView title) {
    QString key = foldedText(title);
    for (QChar& unit : key) {
        unit = unit.isLetterOrNumber() ? unit : u' ';
    }
    return key.simplified();
}

} // namespace

ReadTitle readTitle(const QString& text, const QString& language, int broadcastIn) {
    const QString title = tidiedTitle(text);
    if (title.isEmpty() || title.size() > kLongestTitle) {
        return {.title = title, .subtitle = {}, .facts = {}, .genre = {}};
    }
    return TitleReader(title, language, broadcastIn).run();
}

std::optional<SeasonedTitle> seasonedTitle(const QString& title) {
    const qsizetype blank = title.lastIndexOf(u' ');
    const QStringView last = QStringView(title).sliced(blank + 1);
    const QStringView left = withoutJoint(QStringView(title).first(std::max<qsizetype>(blank, 0)));
    if (blank <= 0 || last.isEmpty() || last.size() > 6 || left.isEmpty()) {
        return std::nullopt;
    }
    if (std::ranges::all_of(last, [](QChar unit) { return QStringView(u"IVX").contains(unit); })) {
        const auto number = episodeNotation(last, QString());
        return number && number->season ? std::optional(SeasonedTitle{left.toString(), *number->season})
                                        : std::nullopt;
    }
    bool isNumber = false;
    const int season = last.size() <= 2 && last[0].isDigit() ? last.toInt(&isNumber) : 0;
    // "Studio 1" is a name.
    return isNumber && season > 1 ? std::optional(SeasonedTitle{left.toString(), season, true})
                                  : std::nullopt;
}

bool isFeedPlaceholder(const QString& title) {
    static const QSet<QString> kKeys = [] {
        QSet<QString> placeholders;
        constexpr QStringView kTexts =
            u"Nema informacija|Nema informacije|Nema informacija o programu|"
            u"Nema informacija o emisiji|Nema podataka|Nema podataka o programu|Nema sadržaja|"
            u"Nema opisa|Нема информација|Нема информација о програму|Нема информации|"
            u"Нема податоци|Няма информация|Няма информация за програмата|No information|"
            u"No information available|No info|No info available|No data|No data available|No EPG|"
            u"No EPG data|No EPG available|No programme information|No program information|"
            u"No programme data|No program data|No program information available|"
            u"No programme information available|No scheduled programming|To be announced|TBA|"
            u"Not available|Keine Information|Keine Informationen|Keine Informationen verfügbar|"
            u"Keine Information verfügbar|Keine Sendungsinformationen|Keine Programminformationen|"
            u"Keine Programminformation|Keine Daten|Keine EPG Daten|Δεν υπάρχουν πληροφορίες|"
            u"Δεν υπάρχουν πληροφορίες προγράμματος|Δεν υπάρχουν διαθέσιμες πληροφορίες|"
            u"Χωρίς πληροφορίες|Vysílání neposkytnuto|Program neposkytnut|Není informace|"
            u"Informace není k dispozici|Informace nejsou k dispozici|Program není k dispozici|"
            u"Program neuveden|Bez informací|Nie je informácia|Nie sú informácie|Bez informácií|"
            u"Informácie nie sú k dispozícii|Informácia nie je k dispozícii|"
            u"Program nie je k dispozícii|Vysielanie neposkytnuté|Nincs információ|"
            u"Nincs műsorinformáció|Nincs műsor információ|Nincs adat|Nincs elérhető információ|"
            u"Nessuna informazione|Nessuna informazione disponibile|Informazioni non disponibili|"
            u"Informazione non disponibile|Programmazione non disponibile|Dati non disponibili|"
            u"Nu există informații|Nu exista informatii disponibile|Fără informații|"
            u"Informații indisponibile|Lipsă informații|Nu sunt informatii|"
            u"Nu sunt informatii disponibile|Brak informacji|Brak informacji o programie|"
            u"Brak danych|Bilgi yok|Bilgi bulunmuyor|Yayın bilgisi yok|Program bilgisi yok|"
            u"Program bilgisi bulunamadı|Pas d'information|Pas d'informations|Aucune information|"
            u"Aucune information disponible|Programme non disponible|Programme non communiqué|"
            u"Sin información|Información no disponible|Sem informação|Geen informatie|"
            u"Geen informatie beschikbaar|Ni podatkov|Ni informacij|Ni podatka|"
            u"Podatki niso na voljo|Nav informācijas|Нет информации|Нет данных|Немає інформації|"
            u"Ska informacion|Nuk ka informacion";
        for (const QStringView each : kTexts.split(u'|')) {
            placeholders.insert(placeholderKey(each));
        }
        return placeholders;
    }();
    return title.size() <= 60 && kKeys.contains(placeholderKey(title));
}

} // namespace guide
