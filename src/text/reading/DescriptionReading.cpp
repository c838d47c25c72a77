#include "text/reading/DescriptionReading.h"

#include "text/cleaning/TextTidying.h"
#include "text/facts/EpisodeNotation.h"
#include "text/facts/TitleNotes.h"

#include <QRegularExpression>

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostNotes = 8;
constexpr qsizetype kLongestMark = 50;
constexpr qsizetype kLongestOriginalTitle = 150;

class DescriptionReader {
  public:
    DescriptionReader(const QString& text, const QString& language)
        : m_language(language) {
        m_read.text = text;
    }

    ReadDescription run() {
        // These are told by their lines.
        takeProductionLine();
        takeAirTime();
        takeOriginalTitle();
        text() = tidiedLines(text());
        if (text().startsWith("- "_L1)) {
            text().remove(0, 2);
        }
        for (int i = 0; i < kMostNotes && takeHead(); ++i) {
        }
        for (int i = 0; i < kMostNotes && takeTail(); ++i) {
        }
        return std::move(m_read);
    }

  private:
    QString& text() { return m_read.text; }
    void add(const EpisodeNumber& number) { completeEpisode(m_read.facts.episode, number); }
    void add(const ProductionNote& note) {
        m_read.facts.year = m_read.facts.year ? m_read.facts.year : note.year;
        if (m_read.facts.countries.empty()) {
            m_read.facts.countries = note.countries;
        }
    }

    /// "(D|F) 2025 • S1 E2 • FSK 12" on the first line.
    void takeProductionLine() {
        static const QRegularExpression kLine(
            u"^\\(([^()\\n]{1,40})\\)\\s?(\\d{4})((?:\\s[^\\n]{0,60})?)(?:\\n|$)"_s);
        if (!text().startsWith(u'(')) {
            return;
        }
        const auto match = kLine.match(text());
        const auto note = match.hasMatch() ? productionNote(match.captured(1), true) : std::nullopt;
        const auto year = match.hasMatch() ? yearOf(match.captured(2)) : std::nullopt;
        if (!note || !year) {
            return;
        }
        ShowFacts facts;
        for (const QString& part : match.captured(3).split(u'•', Qt::SkipEmptyParts)) {
            const QString each = part.trimmed();
            if (const auto number = episodeNotation(each, m_language)) {
                completeEpisode(facts.episode, *number);
            } else if (const auto age = ageNote(each)) {
                facts.ageRating = age;
            } else if (!each.isEmpty()) {
                return;
            }
        }
        add(*note);
        m_read.facts.year = year;
        add(facts.episode);
        m_read.facts.ageRating = facts.ageRating;
        text().remove(0, match.capturedLength());
    }

    /// Lines that repeat when the show is on.
    void takeAirTime() {
        static const QRegularExpression kAirTime(u"\\s*Ausstrahlung\\s(?:\\p{L}+|\\d{1,2}\\.\\d{1,2}\\.(?:"
                                                 u"\\d{2,4})?|\\p{L}{2},?\\s\\d{1,2}\\.\\d{1,2}\\.)\\s"
                                                 u"\\d{1,2}:\\d{2}-\\d{1,2}:\\d{2}\\.?\\s*$"_s);
        if (text().contains("Ausstrahlung"_L1)) {
            text().remove(kAirTime);
        }
    }

    void takeOriginalTitle() {
        static const QRegularExpression kLabels(
            u"(^|[\\n.!?…)\\]]\\s?|\\s?\\(|\\s)(?:Originaltitel|Titolo originale|Titre original|Eredeti "
            u"c[ií]m|"
            u"Original title|Orig\\. title|orig\\. title|Originální název|Originálny názov|Pôvodný názov|"
            u"Původní název|Originalni naslov|Originalni naziv|Orig\\. naslov|Titlu original|Titlul original|"
            u"Tytuł oryginalny|Orijinal adı|Orijinal isim|Πρωτότυπος τίτλος|Оригинален наслов|"
            u"Оригинално заглавие|Оригинални наслов|Título original|Oriģinālnosaukums)\\s?(:|\\n)\\s?([^\\n]{1,200})"_s);
        if (!text().contains(u':') && !text().contains("Originaltitel\n"_L1)) {
            return;
        }
        const auto match = kLabels.match(text());
        if (!match.hasMatch()) {
            return;
        }
        const bool isBracketed = match.captured(1).endsWith(u'(');
        QString title = match.captured(3);
        qsizetype end = match.capturedEnd(3);
        const auto cut = [&](qsizetype size) {
            end -= title.size() - size;
            title.truncate(size);
        };
        if (isBracketed) {
            const qsizetype close = title.indexOf(u')');
            if (close < 0) {
                return;
            }
            cut(close);
            ++end;
        } else {
            // A sentence may follow.
            static const QRegularExpression kEnd(u"(?<=[\\p{Ll}\\d!?])\\.\\s(?=\\p{Lu})|\\.$"_s);
            if (const auto stop = kEnd.match(title); stop.hasMatch()) {
                cut(stop.capturedStart());
                ++end;
            }
        }
        title = title.trimmed();
        if (title.isEmpty() || title.size() > kLongestOriginalTitle) {
            return;
        }
        m_read.facts.originalTitle = title;
        const QString opening = match.captured(1);
        const qsizetype begin = match.capturedStart() + (isBracketed || opening.trimmed().isEmpty() ? 0 : 1);
        text().remove(begin, end - begin);
        text() = text().trimmed();
    }

    bool takeNote(QStringView note) {
        note = note.trimmed();
        if (const Newness newness = newnessMark(note, true); newness != Newness::Unknown) {
            m_read.facts.newness = newness;
            return true;
        }
        if (isTechnicalNote(note)) {
            return true;
        }
        // "Κ16 - Περιέχει βία".
        if (const auto age =
                ageNote(note.first(note.indexOf(u" - ") < 0 ? note.size() : note.indexOf(u" - ")))) {
            m_read.facts.ageRating = age;
            return true;
        }
        if (const auto number = episodeNotation(note, m_language);
            number && std::ranges::any_of(note, [](QChar unit) { return unit.isLetter() || unit == u'/'; })) {
            add(*number);
            return true;
        }
        if (const auto production = productionNote(note)) {
            add(*production);
            return true;
        }
        return false;
    }

    /// A note in brackets or an episode in front of the text.
    bool takeHead() {
        const QStringView all(text());
        if (all.startsWith(u'(') || all.startsWith(u'[')) {
            const qsizetype close = all.indexOf(all.startsWith(u'(') ? u')' : u']');
            if (close > 1 && close < 60 && takeNote(all.sliced(1, close - 1))) {
                removeHead(close + 1);
                return true;
            }
            return false;
        }
        // "Α΄ τηλεοπτική προβολή." as the first sentence.
        if (const qsizetype stop = all.first(std::min<qsizetype>(all.size(), kLongestMark)).indexOf(u". ");
            stop > 3) {
            const Newness newness = newnessMark(all.first(stop), false);
            if (newness != Newness::Unknown) {
                m_read.facts.newness = newness;
                removeHead(stop + 1);
                return true;
            }
        }
        const auto found = episodeAtStart(all, m_language, NotationPlace::Description);
        if (!found || found->start > 0) {
            return false;
        }
        const QStringView rest = all.sliced(found->end);
        static const QRegularExpression kEnd(
            u"^(?:$|\\.?\\s*\\n|\\s?[-–—:|•]\\s?|[.,]\\s|\\s(?=[\\p{Lu}\"„“«»'\\d]))"_s);
        const auto end = kEnd.match(rest);
        if (!end.hasMatch()) {
            return false;
        }
        // "3. dio serije": the words go on.
        add(found->number);
        removeHead(found->end + end.capturedLength());
        return true;
    }

    void removeHead(qsizetype size) {
        text().remove(0, size);
        qsizetype begin = 0;
        while (begin < text().size() &&
               (text()[begin].isSpace() || QStringView(u"-–—:.,;").contains(text()[begin]))) {
            ++begin;
        }
        text().remove(0, begin);
    }

    /// A note in brackets, or an episode with or without a production behind the last sentence.
    bool takeTail() {
        QStringView all = QStringView(text()).trimmed();
        while (all.size() > 1 && all.back() == u'.' &&
               (all[all.size() - 2] == u')' || all[all.size() - 2] == u']')) {
            all.chop(1);
        }
        if (all.endsWith(u')') || all.endsWith(u']')) {
            const qsizetype open = all.lastIndexOf(all.endsWith(u')') ? u'(' : u'[');
            if (open >= 0 && all.size() - open < 60 &&
                takeNote(all.sliced(open + 1, all.size() - open - 2))) {
                text().truncate(open);
                text() = text().trimmed();
                return true;
            }
            return false;
        }
        const auto found = episodeAtEnd(all, m_language, NotationPlace::Description);
        const auto follows = [&all](qsizetype start) {
            const QStringView before = all.first(start).trimmed();
            return before.isEmpty() || QStringView(u".!?…\"”»)]").contains(before.back());
        };
        if (found && follows(found->start)) {
            add(found->number);
            text().truncate(found->start);
            text() = text().trimmed();
            return true;
        }
        return takeLastSentence(all);
    }

    /// "S02 E01, USA 1988".
    bool takeLastSentence(QStringView all) {
        const qsizetype at = std::max(all.lastIndexOf(u". "), all.lastIndexOf(u'\n'));
        const QStringView last = at < 0 ? QStringView() : all.sliced(at + 1).trimmed();
        const qsizetype comma = last.indexOf(u',');
        if (comma <= 0 || last.size() > 60) {
            return false;
        }
        const auto number = episodeNotation(last.first(comma), m_language, NotationPlace::Title);
        const auto note = number ? productionNote(last.sliced(comma + 1)) : std::nullopt;
        if (!note) {
            return false;
        }
        add(*number);
        add(*note);
        text().truncate(at + 1);
        text() = text().trimmed();
        return true;
    }

    const QString& m_language;
    ReadDescription m_read;
};

// Labels of credits. Some feeds write them right behind the text in front of them.
const QString kDirectorWords =
    u"Regie|Regisseur|Regisseurin|Regia|Regista|Réalisateur|Réalisatrice|Réalisation|Réal\\."
    u"|Regizor|Regizori|Regizorul|Reżyseria|Reżyser|Reż\\.|Yönetmen|Yönetmenler|Σκηνοθεσία"
    u"|Σκηνοθέτης|Σενάριο/Σκηνοθεσία|Rendezte|Rendező|Rendezők|Režie|Režisér|Réžia|Režia|Režija|Redatelj|"
    u"Redateljica|Reditelj|Режија|Редитељ|Режисьор|Режиссер|Режисёр|Director|Directed by"
    u"|Dirección|Režisors|Scenarist i redatelj|Scenarij i režija|Regisor"_s;
const QString kCastWords =
    u"Darsteller|Besetzung|Mit|Schauspieler|Cast|Interpreti|Attori|Interpretato da|Avec|Acteurs|Distribution"
    u"|Distribuția|Distribuţia|Distributia|Actori|Cu|Obsada|Występują|Grają|Oyuncular|Oyuncu Kadrosu|Παίζουν"
    u"|Πρωταγωνιστούν|Ηθοποιοί|Πρωταγωνιστές|Főszereplők|Főszereplő|Szereplők|Szereplő|Hrají|Účinkují"
    u"|V hlavních rolích|V hlavní roli|Hrajú|Účinkujú|V hlavných úlohách|V hlavnej úlohe|Uloge|Glavne uloge"
    u"|Glume|Igrajo|Улоге|Глуме|В ролите|Участват|Улоги|В ролях|Reparto|Intérpretes|Starring|Stars|Lomās"_s;
const QString kOtherWords =
    u"Drehbuch|Musik|Kamera|Sceneggiatura|Musiche|Fotografia|Scénario|Musique|Scenariu|Scenariul"
    u"|Muzica|Muzyka|Scenariusz|Zdjęcia|Senaryo|Müzik|Σενάριο|Μουσική|Παραγωγή|Διάρκεια"
    u"|Δημιουργός|Έτος|Παρουσίαση|Είδος|Guest|Író|Írta|Zene|Zenéjét "
    u"szerezte|Operatőr|Forgatókönyvíró|Scénář|Scenár|Námět"
    u"|Námet|Hudba|Kameramanka|Scenarij|Scenario|Scenarist|Glazba|Muzika|Fotografija|Сценарио|Сценарий|Музика"
    u"|Оператор|Producer|Writer|Műsorvezető|Műsorvezetők|Uvádza|Moderuje|Uvádí|Program je"
    u"|Žanr|Godina|Země|Rok|Produkcija|Produkce|Gyártó|Country|Year"_s;

/// Removes a remark that there are others.
QString withoutOthers(const QString& names) {
    static const QRegularExpression kOthers(
        u"(?:[,;]\\s*|\\s+)(?:u\\.\\s?a\\.(?:\\s?m\\.)?|e altri|ed altri|altri|et al\\.?|a další|a ďalší|a "
        u"iní|a jiní|és mások|és még sokan mások|"
        u"i inni|și alții|şi alţii|si altii|κ\\.\\s?ά\\.?|κ\\.\\s?α\\.?|ve diğerleri|i drugi|i dr\\.|i "
        u"ostali|и др\\.?|и други|and others|"
        u"etc\\.?|itd\\.?|atd\\.?|y otros|in drugi|\\.\\.\\.|…)\\s*$"_s,
        QRegularExpression::CaseInsensitiveOption);
    QString left = names;
    for (int i = 0; i < 3; ++i) {
        const qsizetype before = left.size();
        left.remove(kOthers);
        left = left.trimmed();
        while (left.endsWith(u',') || left.endsWith(u';') || left.endsWith(u'-')) {
            left.chop(1);
        }
        if (left.size() == before) {
            break;
        }
    }
    return left;
}

} // namespace

ReadDescription readDescription(const QString& text, const QString& language) {
    return DescriptionReader(text.contains(u'\r') ? QString(text).replace("\r\n"_L1, "\n"_L1) : text,
                             language)
        .run();
}

ReadCredits takeCredits(QString& text) {
    ReadCredits credits;
    if (!text.contains(u':')) {
        return credits;
    }
    static const QRegularExpression kLabel(
        u"(?:^|(?<=[\\n.!?…\\])»\"”'’;,] )|(?<=\\n)|(?<=[\\p{Ll}.!?…\\])»\"”'’]))(?:("_s + kDirectorWords +
        u")|("_s + kCastWords + u")|("_s + kOtherWords + u"))\\s?:(?:\\s|$)"_s);
    struct Found {
        qsizetype start;
        qsizetype end;
        int kind;
    };
    std::vector<Found> labels;
    for (auto matches = kLabel.globalMatch(text); matches.hasNext() && labels.size() < 20;) {
        const auto match = matches.next();
        const int kind = match.capturedLength(1) > 0 ? 1 : match.capturedLength(2) > 0 ? 2 : 3;
        labels.push_back({match.capturedStart(), match.capturedEnd(), kind});
    }
    if (std::ranges::none_of(labels, [](const Found& found) { return found.kind < 3; })) {
        return credits;
    }
    QString left;
    qsizetype copied = 0;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const Found& label = labels[i];
        const qsizetype limit = i + 1 < labels.size() ? labels[i + 1].start : text.size();
        QString value = text.sliced(label.end, limit - label.end);
        qsizetype size = value.size();
        // The names end with the line or the sentence; a full stop behind an initial ends neither.
        static const QRegularExpression kEnd(
            u"\\n|(?<=[\\p{Ll}\\p{N})])\\p{M}?\\.(?:\\s(?=\\p{Lu}|\"|„|\\()|\\s*$)"_s);
        qsizetype behind = size;
        if (const auto end = kEnd.match(value); end.hasMatch()) {
            size = end.capturedStart();
            behind = end.capturedEnd();
        }
        QString names = withoutOthers(value.first(size).trimmed());
        // Some feeds cut descriptions within the next label.
        static const QRegularExpression kCutLabel(u"(?<=\\p{Ll})Fő\\p{Ll}*$"_s);
        names.remove(kCutLabel);
        if (label.kind < 3 && names.isEmpty() && limit == text.size()) {
            left += QStringView(text).sliced(copied, label.start - copied);
            copied = text.size();
            continue;
        }
        const bool isNames =
            label.kind < 3 && !names.isEmpty() && names.size() <= 1'000 && !names.front().isLower();
        if (!isNames) {
            continue;
        }
        std::optional<QString>& field = label.kind == 1 ? credits.directedBy : credits.roles;
        field = field ? *field + u", "_s + names : names;
        left += QStringView(text).sliced(copied, label.start - copied);
        copied = label.end + behind;
    }
    left += QStringView(text).sliced(copied);
    text = tidiedLines(left);
    while (text.endsWith(u',') || text.endsWith(u';') || text.endsWith(u'-')) {
        text.chop(1);
        text = text.trimmed();
    }
    return credits;
}

} // namespace guide
