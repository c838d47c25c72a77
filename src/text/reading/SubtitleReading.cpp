#include "text/reading/SubtitleReading.h"

#include "text/cleaning/TextTidying.h"
#include "text/facts/EpisodeNotation.h"
#include "text/facts/TitleNotes.h"
#include "text/reading/TitleReading.h"

#include <QRegularExpression>
#include <QStringTokenizer>

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar kBar = u'║';
constexpr qsizetype kMostParts = 20;
/// Ages are rated from six years, stars up to five.
constexpr int kMostStars = 5;

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

/// Whether the part is a number, a code or a country, which the facts then say.
bool takeFact(const QString& part, const QString& language, ShowFacts& facts) {
    if (areDigits(part) && part.size() <= 2) {
        const int number = part.toInt();
        if (number > kMostStars) {
            facts.ageRating = part;
        } else if (number > 0) {
            facts.starRating = {static_cast<double>(number), kMostStars};
        }
        return true;
    }
    static const QRegularExpression kDecimal(u"^([0-5])[.,](\\d{1,4})$"_s);
    if (const auto match = part.front().isDigit() ? kDecimal.match(part) : QRegularExpressionMatch();
        match.hasMatch()) {
        facts.starRating = {(match.captured(1) + u'.' + match.captured(2).first(1)).toDouble(), kMostStars};
        return true;
    }
    if (const auto age = ageNote(part)) {
        facts.ageRating = age;
        return true;
    }
    if (const auto year = yearOf(part)) {
        facts.year = year;
        return true;
    }
    if (const auto number = episodeNotation(part, language, NotationPlace::Title)) {
        completeEpisode(facts.episode, *number);
        return true;
    }
    static const QRegularExpression kCodes(u"^[A-Z]{2,3}(?:, [A-Z]{2,3})*$"_s);
    if (part == part.toUpper() && kCodes.match(part).hasMatch()) {
        const QStringList codes = part.split(u", "_s);
        facts.countries.assign(codes.begin(), codes.end());
        return true;
    }
    constexpr qsizetype kLongestCountry = 32;
    if (const auto note = part.size() <= kLongestCountry ? productionNote(part, true) : std::nullopt) {
        facts.year = note->year ? note->year : facts.year;
        facts.countries = note->countries;
        return true;
    }
    return false;
}

ReadSubtitle readParts(const QString& text, const QString& language) {
    ReadSubtitle read;
    QStringList words;
    qsizetype count = 0;
    for (const QStringView each : QStringTokenizer(text, kBar, Qt::SkipEmptyParts)) {
        const QString part = each.trimmed().toString();
        if (part.isEmpty() || ++count > kMostParts) {
            continue;
        }
        if (!takeFact(part, language, read.facts)) {
            words << part;
        }
    }
    const bool hasTitle = !words.isEmpty() && !isPairOfGenres(words.front()) &&
                          (words.size() > 1 || !isGenreNote(words.front()));
    if (hasTitle) {
        read.subtitle = words.takeFirst();
    }
    if (!words.isEmpty()) {
        read.genre = words.join(u", "_s);
    }
    return read;
}

} // namespace

ReadSubtitle readSubtitle(const QString& text, const QString& language) {
    const QString tidy = tidiedTitle(text);
    if (tidy.isEmpty()) {
        return {};
    }
    if (tidy.contains(kBar)) {
        return readParts(tidy, language);
    }
    ReadSubtitle read;
    const bool hasNumber = mayHaveEpisode(tidy);
    if (const auto number = hasNumber ? episodeNotation(tidy, language) : std::nullopt) {
        read.facts.episode = *number;
        return read;
    }
    if (const auto year = yearOf(tidy)) {
        read.facts.year = year;
        return read;
    }
    if (isGenreNote(tidy)) {
        read.genre = tidy;
        return read;
    }
    // A fraction counts the parts of this episode.
    static const QRegularExpression kParts(u"^(.*\\p{L}.*?)[\\s,-]+[(\\[]?(\\d{1,2})/(\\d{1,2})[)\\]]?$"_s);
    QString whole = tidy;
    EpisodeNumber parts;
    const auto match = tidy.contains(u'/') ? std::optional(kParts.match(tidy)) : std::nullopt;
    if (match && match->hasMatch()) {
        const int part = match->captured(2).toInt();
        const int count = match->captured(3).toInt();
        if (part >= 1 && part <= count && count > 1) {
            parts.part = part;
            parts.parts = count;
            whole = match->captured(1);
        }
    }
    ReadTitle title = readTitle(whole, language);
    read.facts = std::move(title.facts);
    completeEpisode(read.facts.episode, parts);
    read.genre = std::move(title.genre);
    QString rest = std::move(title.title);
    if (title.subtitle) {
        rest += u" - "_s + *title.subtitle;
    }
    const auto found = hasNumber ? episodeAtStart(rest, language, NotationPlace::Title) : std::nullopt;
    if (found && found->start == 0) {
        static const QRegularExpression kJoint(u"^\\s?[-–—:.,|]\\s*(?=[^\\s])"_s);
        if (const auto joint = kJoint.match(QStringView(rest).sliced(found->end)); joint.hasMatch()) {
            completeEpisode(read.facts.episode, found->number);
            rest.remove(0, found->end + joint.capturedLength());
        }
    }
    // As long as the whole, it was looked at above.
    const auto left = hasNumber && rest.size() < tidy.size() ? episodeNotation(rest, language) : std::nullopt;
    if (left) {
        completeEpisode(read.facts.episode, *left);
        return read;
    }
    // One pair of brackets around the whole.
    if (rest.startsWith(u'(') && rest.indexOf(u')') == rest.size() - 1 && rest.size() > 2) {
        rest = rest.sliced(1, rest.size() - 2).trimmed();
    }
    read.subtitle = rest;
    return read;
}

} // namespace guide
