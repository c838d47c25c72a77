#include "text/reading/DescriptionReading.h"

#include "text/cleaning/TextTidying.h"
#include "text/facts/EpisodeNotation.h"
#include "text/facts/TitleNotes.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostNotes = 8;
constexpr qsizetype kLongestMark = 50;
constexpr qsizetype kLongestName = 100;
constexpr qsizetype kLongestGenre = 20;
constexpr qsizetype kLongestHead = 40;
constexpr qsizetype kLongestOriginalTitle = 150;

/// Whether a label of an original title stands in front of a colon or a line end.
bool hasOriginalTitleLabel(QStringView text) {
    static constexpr std::array<QStringView, 26> kLabels{
        u"Originaltitel",     u"Titolo originale",  u"Titre original",      u"Eredeti cim",
        u"Eredeti cím",       u"Original title",    u"Orig. title",         u"orig. title",
        u"Originální název",  u"Originálny názov",  u"Pôvodný názov",       u"Původní název",
        u"Originalni naslov", u"Originalni naziv",  u"Orig. naslov",        u"Titlu original",
        u"Titlul original",   u"Tytuł oryginalny",  u"Orijinal adı",        u"Orijinal isim",
        u"Πρωτότυπος τίτλος", u"Оригинален наслов", u"Оригинално заглавие", u"Оригинални наслов",
        u"Título original",   u"Oriģinālnosaukums"};
    for (const QChar end : {u':', u'\n'}) {
        for (qsizetype at = text.indexOf(end); at >= 0; at = text.indexOf(end, at + 1)) {
            QStringView front = text.first(at);
            if (!front.isEmpty() && front.back().isSpace()) {
                front.chop(1);
            }
            const auto endsIn = [front](QStringView label) {
                // Most differ in their last letters.
                return front.size() >= label.size() && front.back() == label.back() && front.endsWith(label);
            };
            if (std::ranges::any_of(kLabels, endsIn)) {
                return true;
            }
        }
    }
    return false;
}

/// Where a sentence within the text ends; negative if none does.
qsizetype sentenceEnd(QStringView text) {
    qsizetype at = text.indexOf(u'.');
    while (at >= 0 && at + 1 < text.size() && text[at + 1] != u' ') {
        at = text.indexOf(u'.', at + 1);
    }
    return at + 1 < text.size() ? at : -1;
}

class DescriptionReader {
  public:
    DescriptionReader(const QString& text, const QString& language)
        : m_language(language) {
        m_read.text = text;
    }

    ReadDescription run() {
        // These are told by their lines.
        takeNames();
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
            u"^\\(([^()\\n]{1,40})\\)\\s?(\\d{4})((?: [^\\n]{0,60})?)(?:\\n|$)"_s);
        if (!text().startsWith(u'(')) {
            return;
        }
        const auto match = kLine.match(text());
        static const QRegularExpression kCodes(u"^[A-Z]{1,3}(?:\\|[A-Z]{1,3})*$"_s);
        auto note = match.hasMatch() ? productionNote(match.captured(1), true) : std::nullopt;
        if (!note && match.hasMatch() && kCodes.match(match.captured(1)).hasMatch()) {
            const QStringList codes = match.captured(1).split(u'|');
            note = ProductionNote{.year = {}, .countries = {codes.begin(), codes.end()}};
        }
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

    /// Names at the end, each on a line, perhaps with a role: "Kevin James - Doug". In front of names with
    /// roles, one without is the director.
    void takeNames() {
        static const QRegularExpression kName(
            u"^\\p{Lu}[\\p{L}'’.\\-]*(?: (?:\\p{L}[\\p{L}'’.\\-]*|[“\"][^“”\"]+[”\"])){1,4}( [-–] \\S.{0,60})?$"_s);
        const qsizetype firstLine = text().indexOf(u'\n');
        if (firstLine < 0 || text().indexOf(u'\n', firstLine + 1) < 0) {
            return;
        }
        QStringView rest = QStringView(text()).trimmed();
        QStringList names;
        int roles = 0;
        for (qsizetype at = rest.lastIndexOf(u'\n'); at >= 0 && rest.size() - at - 1 <= kLongestName;
             at = rest.lastIndexOf(u'\n')) {
            QStringView line = rest.sliced(at + 1).trimmed();
            if (names.isEmpty() && line.endsWith(u'.')) {
                line.chop(1);
            }
            const auto match =
                !line.isEmpty() && line.front().isUpper() ? std::optional(kName.match(line)) : std::nullopt;
            if (!match || !match->hasMatch()) {
                break;
            }
            roles += match->capturedLength(1) > 0 ? 1 : 0;
            names.prepend(line.toString());
            rest.truncate(at);
        }
        const QStringView before = rest.sliced(rest.lastIndexOf(u'\n') + 1).trimmed();
        if (names.size() < (roles > 0 ? 2 : 3) || before.isEmpty() || before.back().isLetterOrNumber()) {
            return;
        }
        if (roles > 0 && roles == names.size() - 1 && !names.constFirst().contains(u" - "_s)) {
            m_read.credits.directedBy = names.takeFirst();
        }
        m_read.credits.roles = names.join(u", "_s);
        text() = rest.toString();
    }

    /// Lines that repeat when the show is on.
    void takeAirTime() {
        static const QRegularExpression kAirTime(u"\\s*Ausstrahlung\\s(?:\\p{L}+|\\d{1,2}\\.\\d{1,2}\\.(?:"
                                                 u"\\d{2,4})?|\\p{L}{2},?\\s\\d{1,2}\\.\\d{1,2}\\.)\\s"
                                                 u"\\d{1,2}:\\d{2}-\\d{1,2}:\\d{2}\\s*$"_s);
        const QStringView all = QStringView(text()).trimmed();
        const bool endsInTime = !all.isEmpty() && all.back().isDigit();
        if (endsInTime && text().contains("Ausstrahlung"_L1)) {
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
        // The expression takes longer.
        if (!hasOriginalTitleLabel(text())) {
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
            static const QRegularExpression kEnd(u"(?<=[\\p{Ll}\\d!?])\\.(?:\\s(?=\\p{Lu})|$)"_s);
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
        if (const qsizetype stop = sentenceEnd(all.first(std::min(all.size(), kLongestMark))); stop > 3) {
            const Newness newness = newnessMark(all.first(stop), false);
            if (newness != Newness::Unknown) {
                m_read.facts.newness = newness;
                removeHead(stop + 1);
                return true;
            }
        }
        // Looking closer takes longer.
        const QStringView head = all.first(std::min(all.size(), kLongestHead));
        if (std::ranges::none_of(head, [](QChar unit) { return unit.isDigit(); })) {
            return false;
        }
        if (takeBehindGenre(all)) {
            return true;
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

    /// "Ντοκιμαντέρ Επεισόδιο 4 - Title": the genre stays.
    bool takeBehindGenre(QStringView all) {
        const qsizetype blank = all.indexOf(u' ');
        if (blank < 3 || blank > kLongestGenre || !isGenreNote(all.first(blank))) {
            return false;
        }
        const auto found = episodeAtStart(all.sliced(blank + 1), m_language, NotationPlace::Description);
        if (!found || found->start > 0) {
            return false;
        }
        add(found->number);
        text().remove(blank, found->end + 1);
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
        const QStringView tail = all.endsWith(u'.') ? all.chopped(1) : all;
        if (tail.isEmpty() || !tail.back().isDigit()) {
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

} // namespace

ReadDescription readDescription(const QString& text, const QString& language) {
    return DescriptionReader(text.contains(u'\r') ? QString(text).replace("\r\n"_L1, "\n"_L1) : text,
                             language)
        .run();
}

} // namespace guide
