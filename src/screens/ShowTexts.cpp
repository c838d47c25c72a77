#include "screens/ShowTexts.h"

#include "screens/FactTexts.h"
#include "screens/TextTidying.h"

#include <QRegularExpression>

#include <algorithm>
#include <optional>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar kBar = u'║';
constexpr qsizetype kLongestFact = 80;
constexpr qsizetype kMostParts = 20;
/// Where a text names its episode.
constexpr qsizetype kBeginning = 30;
/// Ages are rated from six years, stars up to five.
constexpr int kMostStars = 5;

bool isTitle(const QString& text, const TVEntry& entry) {
    return entry.title() && text.compare(*entry.title(), Qt::CaseInsensitive) == 0;
}

/// Whether the title has all words of the text.
bool isInTitle(const QString& text, const TVEntry& entry) {
    const QString title = entry.title().value_or(QString());
    const qsizetype at = text.isEmpty() ? -1 : title.indexOf(text, 0, Qt::CaseInsensitive);
    const qsizetype end = at + text.size();
    return at >= 0 && (at == 0 || !title[at - 1].isLetterOrNumber()) &&
           (end == title.size() || !title[end].isLetterOrNumber());
}

bool areDigits(QStringView text) {
    return !text.isEmpty() &&
           std::ranges::all_of(text, [](QChar unit) { return unit >= u'0' && unit <= u'9'; });
}

/// "Serie Tv, Dramma Soap": two genres, and no title.
bool isPairOfGenres(QStringView part) {
    const auto isGenre = [](QStringView words) {
        return !words.isEmpty() && words.front().isUpper() && std::ranges::all_of(words, [](QChar unit) {
            return unit.isLetter() || unit == u' ' || unit == u'+';
        });
    };
    const qsizetype comma = part.indexOf(u", ");
    return comma > 0 && isGenre(part.first(comma)) && isGenre(part.sliced(comma + 2));
}

/// The number behind the letter, which both are taken from the text; nothing when they do not begin it.
std::optional<QStringView> takeNumber(QStringView& text, QChar letter) {
    if (!text.startsWith(letter)) {
        return std::nullopt;
    }
    qsizetype end = 1;
    while (end < text.size() && areDigits(text.sliced(end, 1))) {
        ++end;
    }
    const QStringView number = text.sliced(1, end - 1);
    text = text.sliced(end);
    return number.isEmpty() ? std::nullopt : std::optional(number);
}

/// "S15E11", "S15" or "E11", as a fact: empty when it says nothing. Nothing for another text.
std::optional<QString> episodeFact(const QString& part) {
    QStringView rest = part;
    const std::optional<QStringView> season = takeNumber(rest, u'S');
    const std::optional<QStringView> episode = takeNumber(rest, u'E');
    if (!rest.isEmpty() || (!season && !episode)) {
        return std::nullopt;
    }
    const bool isSeason = season && season->toInt() > 0;
    const bool isEpisode = episode && episode->toInt() > 0;
    if (isEpisode) {
        return isSeason ? part : u'E' + episode->toString();
    }
    // A year in place of the season is among the parts once more.
    return isSeason && season->size() < 4 ? u'S' + season->toString() : QString();
}

/// A part that is a code or a number, as a fact: empty when it says nothing. Nothing for words.
std::optional<QString> codeFact(const QString& part) {
    const auto stars = [](QStringView number) { return u"★\u00a0"_s + number.toString(); };
    if (areDigits(part) && part.size() <= 2) {
        return part.toInt() <= kMostStars ? stars(part) : part + u'+';
    }
    const bool isDecimal = part.size() >= 3 && (part[1] == u',' || part[1] == u'.') &&
                           areDigits(QStringView(part).first(1)) && part.first(1).toInt() <= kMostStars &&
                           areDigits(QStringView(part).sliced(2));
    if (isDecimal) {
        return stars(QStringView(part).first(3));
    }
    const bool isAge = part.size() <= 3 && part.endsWith(u'+') && areDigits(QStringView(part).chopped(1));
    const bool isYear = part.size() == 4 && part.front().isDigit();
    return isAge || isYear ? std::optional(part) : episodeFact(part);
}

/// Sorts the parts of a text that has some. The first words are the subheading if others follow and they are
/// not genres.
void addParts(ShowTexts& texts, const QString& text, const TVEntry& entry) {
    QStringList words;
    QStringList facts;
    for (const QStringView each : QStringTokenizer(text, kBar, Qt::SkipEmptyParts)) {
        const QString part = each.toString().simplified();
        if (facts.size() == kMostParts) {
            break;
        }
        if (part.isEmpty()) {
            continue;
        }
        if (const std::optional<QString> fact = codeFact(part)) {
            facts << *fact;
        } else {
            words << part;
            facts << part;
        }
    }
    if (words.size() > 1 && texts.subheading.isEmpty() && !isPairOfGenres(words.front())) {
        texts.subheading = words.front();
        facts.removeOne(words.front());
    }
    for (const QString& fact : facts) {
        if (fact.size() > kLongestFact) {
            texts.details << fact;
        } else if (!fact.isEmpty() && !texts.facts.contains(fact) && !isTitle(fact, entry)) {
            texts.facts << fact;
        }
    }
}

} // namespace

ShowTexts showTexts(const TVEntry& entry) {
    ShowTexts texts;
    if (const QString subtitle = entry.subtitle().value_or(QString()); subtitle.contains(kBar)) {
        addParts(texts, subtitle, entry);
    } else if (const std::optional<QString> fact = episodeFact(tidied(subtitle))) {
        texts.facts << *fact;
        texts.facts.removeAll(QString());
    } else {
        texts.subheading = tidied(subtitle);
    }
    for (const auto& text : {entry.instantDetails(), entry.instantDescription()}) {
        const QString remark = tidied(text.value_or(QString()));
        if (remark.contains(kBar)) {
            addParts(texts, remark, entry);
        } else if (!remark.isEmpty()) {
            (remark.size() <= kLongestFact ? texts.facts : texts.details) << remark;
        }
    }
    if (const QString ending = u'-' + entry.title().value_or(QString());
        texts.subheading.endsWith(ending, Qt::CaseInsensitive)) {
        texts.subheading.chop(ending.size());
    }
    if (isInTitle(texts.subheading, entry)) {
        texts.subheading.clear();
    }
    if (const ShowFacts* facts = entry.facts().get()) {
        texts.facts.removeIf([facts](const QString& text) { return isFact(text, *facts); });
    }
    return texts;
}

namespace {

QString textsInOneLine(const TVEntry& entry) {
    const QString details = entry.fullInstantDetails().value_or(QString());
    if (!details.contains(kBar)) {
        return isInTitle(details, entry) ? QString() : details;
    }
    const ShowTexts texts = showTexts(entry);
    QStringList parts = texts.facts + texts.details;
    if (!texts.subheading.isEmpty()) {
        parts.prepend(texts.subheading);
    }
    return parts.join(kBetweenFacts);
}

/// Empty if the text begins with the number of the episode in its own words.
QString episodeUnlessIn(const QString& text, const EpisodeNumber& episode) {
    static const QRegularExpression number(u"\\d+"_s);
    const QString start = text.first(std::min(text.size(), kBeginning));
    for (auto match = number.globalMatch(start); episode.episode && match.hasNext();) {
        if (match.next().capturedView().toInt() == *episode.episode) {
            return {};
        }
    }
    return shortEpisode(episode);
}

} // namespace

QString rowDetails(const TVEntry& entry) {
    QString texts = textsInOneLine(entry);
    const ShowFacts* facts = entry.facts().get();
    if (!facts) {
        return texts;
    }
    QStringList parts{newnessText(facts->newness), episodeUnlessIn(texts, facts->episode), texts};
    parts.removeAll(QString());
    return parts.join(kBetweenFacts);
}

} // namespace guide
