#include "screens/FactTexts.h"

#include "core/own/KnownFeeds.h"
#include "screens/Localized.h"
#include "screens/ShowTexts.h"

#include <algorithm>
#include <cmath>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kStar = u'★';
/// Lines do not break in it.
constexpr qsizetype kShortFact = 30;
/// More than that belongs to no scale of stars.
constexpr double kMostStars = 100;

bool areDigits(const QString& text) {
    return !text.isEmpty() && std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

bool isCountryCode(const QString& text) {
    return text.size() == 2 && std::ranges::all_of(text, [](QChar c) { return c >= u'A' && c <= u'Z'; });
}

QString episodeText(const EpisodeNumber& number) {
    QStringList parts;
    if (number.season) {
        parts << Localized::tr("Season %1").arg(*number.season);
    }
    if (number.episode) {
        parts << (number.episodes
                      ? Localized::tr("Episode %1 of %2").arg(*number.episode).arg(*number.episodes)
                      : Localized::tr("Episode %1").arg(*number.episode));
    }
    if (number.part) {
        parts << (number.parts ? Localized::tr("Part %1 of %2").arg(*number.part).arg(*number.parts)
                               : Localized::tr("Part %1").arg(*number.part));
    }
    return parts.join(kBetweenFacts);
}

QString countriesText(const std::vector<QString>& countries, const QLocale& locale) {
    QStringList names;
    for (const QString& country : countries) {
        const QString name = isCountryCode(country) ? countryName(country, locale) : country;
        if (!names.contains(name)) {
            names << name;
        }
    }
    return names.join(u", "_s);
}

/// An age alone is the lowest one.
QString ageText(const QString& rating) {
    return areDigits(rating) ? rating + u'+' : rating;
}

QString starsText(const std::optional<StarRating>& stars, const QLocale& locale) {
    if (!stars || stars->most <= 0 || stars->most > kMostStars) {
        return {};
    }
    const auto number = [&locale](double value) {
        return locale.toString(value, 'f', value == std::floor(value) ? 0 : 1);
    };
    return Localized::tr("%1 of %2 stars").arg(number(stars->value), number(stars->most));
}

} // namespace

QStringList factLines(const ShowFacts& facts, const QLocale& locale) {
    const auto labelled = [](const QString& label, const QString& value) {
        return value.isEmpty() ? QString() : label + u": "_s + value;
    };
    QStringList line{labelled(Localized::tr("Year"), facts.year ? QString::number(*facts.year) : QString()),
                     labelled(Localized::tr("Country"), countriesText(facts.countries, locale)),
                     labelled(Localized::tr("Age rating"), ageText(facts.ageRating.value_or(QString()))),
                     labelled(Localized::tr("Rating"), starsText(facts.starRating, locale))};
    line.removeAll(QString());
    for (QString& fact : line) {
        if (fact.size() <= kShortFact) {
            fact.replace(u' ', QChar(QChar::Nbsp));
        }
    }
    QStringList lines{labelled(Localized::tr("Original title"), facts.originalTitle.value_or(QString())),
                      episodeText(facts.episode), line.join(kBetweenFacts)};
    lines.removeAll(QString());
    return lines;
}

QString newnessText(Newness newness) {
    switch (newness) {
    case Newness::New:
        return Localized::tr("New");
    case Newness::Repeat:
        return Localized::tr("Replay");
    case Newness::Unknown:
        break;
    }
    return {};
}

QString shortEpisode(const EpisodeNumber& episode) {
    QString text;
    if (episode.season) {
        text += u'S' + QString::number(*episode.season);
    }
    if (episode.episode) {
        text += u'E' + QString::number(*episode.episode);
    }
    return text;
}

bool isFact(const QString& text, const ShowFacts& facts) {
    const auto is = [&text](const QString& fact) {
        return !fact.isEmpty() && text.compare(fact, Qt::CaseInsensitive) == 0;
    };
    EpisodeNumber without = facts.episode;
    without.season.reset();
    const QString age = facts.ageRating.value_or(QString());
    return is(facts.year ? QString::number(*facts.year) : QString()) ||
           std::ranges::any_of(facts.countries, is) || is(shortEpisode(facts.episode)) ||
           is(shortEpisode(without)) || is(age) || is(ageText(age)) ||
           is(facts.originalTitle.value_or(QString())) || (facts.starRating && text.startsWith(kStar));
}

} // namespace guide
