#include "screens/detail/ShowPage.h"

#include "screens/FactTexts.h"
#include "screens/Localized.h"
#include "screens/ShowRowText.h"
#include "screens/ShowRows.h"
#include "screens/ShowTexts.h"
#include "screens/TextTidying.h"
#include "screens/TimeTexts.h"
#include "text/display/DayFormat.h"

#include <QDateTime>
#include <QSet>

#include <algorithm>
#include <array>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// Longer texts would take long to lay out.
constexpr qsizetype kLongestText = 20'000;
constexpr std::chrono::minutes kSoon{60};
/// From here on time is given in hours.
constexpr int kLongInMinutes = 120;

QString bounded(const QString& text) {
    return text.size() <= kLongestText ? text : text.first(kLongestText) + u'…';
}

QString dayText(const QDate& day, const QDate& today, const QLocale& locale) {
    const QString near = nearDayText(day, today);
    return near.isEmpty() ? locale.toString(day, dayFormat(locale)) : near;
}

/// Belong to the name before the comma.
constexpr std::array kNameEndings{"Jr."_L1, "Jr"_L1, "Sr."_L1, "Sr"_L1};

/// Without the dots by which some sources say that there are more; empty when there is no name.
QString personIn(QStringView text) {
    QString person = text.toString().simplified();
    while (person.endsWith("..."_L1) || person.endsWith(u'…')) {
        person.chop(person.endsWith(u'…') ? 1 : 3);
    }
    const bool isName = std::ranges::any_of(person, [](QChar unit) { return unit.isLetter(); });
    return isName ? person.trimmed() : QString();
}

int minutesUntil(Moment later, Moment now) {
    return static_cast<int>(std::chrono::ceil<std::chrono::minutes>(later - now).count());
}

QString timeLeft(int minutes) {
    return minutes < kLongInMinutes
               ? Localized::tr("%n min left", nullptr, minutes)
               : Localized::tr("%1 left").arg(durationText(std::chrono::minutes(minutes)));
}

} // namespace

std::vector<ShowGroup> showGroups(const ShowItem& show, const Alphabet& alphabet) {
    std::vector<ShowGroup> groups;
    const auto add = [&groups](const QString& name, const std::optional<QString>& content,
                               bool isPeople = false) {
        if (const QString text = tidied(bounded(content.value_or(QString()))); !text.isEmpty()) {
            groups.push_back({name, text, isPeople});
        }
    };
    const ShowTexts texts = showTexts(*show.entry());
    add(Localized::tr("Subheading:"), texts.subheading);
    const TVEntrySupplementalData details =
        show.details() ? show.details()->updateAlphabet(alphabet) : TVEntrySupplementalData();
    add(Localized::tr("Details:"),
        (texts.details + QStringList(details.details.value_or(QString()))).join(u'\n'));
    add(Localized::tr("Episode Description:"), details.episodeDescription);
    // A name of its own, because the plural differs from language to language.
    const bool severalDirectors = details.directedBy.value_or(QString()).trimmed().contains(u'\n');
    add(severalDirectors ? Localized::tr("Directed By:(p)") : Localized::tr("Directed By:"),
        details.directedBy, true);
    add(Localized::tr("Roles:"), details.roles, true);
    add(Localized::tr("Description:"),
        tidiedDescription(bounded(details.description.value_or(QString())),
                          {show.entry()->title().value_or(QString()), texts.subheading}));
    return groups;
}

ShowState showState(const std::optional<Moment>& start, const std::optional<Moment>& end, Moment now) {
    if (!start) {
        return {};
    }
    if (now < *start) {
        const bool soon = *start - now <= kSoon;
        return {.text =
                    soon ? Localized::tr("Starts in %n min", nullptr, minutesUntil(*start, now)) : QString()};
    }
    if (!end) {
        return {};
    }
    if (now > *end) {
        return {.over = true, .text = Localized::tr("Ended")};
    }
    return {.running = true,
            .progress = std::clamp(showProgress(start, end, now).value_or(0), 0.0, 1.0),
            .text = Localized::tr("On now") + u" · "_s + timeLeft(minutesUntil(*end, now))};
}

QStringList showFacts(const TVEntry& entry, const std::optional<Moment>& end, Moment now,
                      const Device& device) {
    QStringList facts;
    if (const auto& start = entry.dateTime()) {
        const QLocale locale = device.locale();
        const ShowRowText text(locale, device.timeZone());
        facts << dayText(localTime(device, *start).date(), localTime(device, now).date(), locale);
        facts << (end ? text.shortTime(start) + u'–' + text.shortTime(end) : text.shortTime(start));
        if (end && *end > *start) {
            facts << durationText(std::chrono::round<std::chrono::minutes>(*end - *start))
                         .replace(u' ', QChar(QChar::Nbsp));
        }
    }
    const Newness newness = entry.facts() ? entry.facts()->newness : Newness::Unknown;
    facts << newnessText(entry.previouslyShown() ? Newness::Repeat : newness);
    facts.removeAll(QString());
    return facts + showTexts(entry).facts;
}

QStringList peopleOf(const QString& text) {
    QStringList people;
    QSet<QString> known;
    const bool byLines = text.contains(u'\n');
    int brackets = 0;
    qsizetype begin = 0;
    for (qsizetype at = 0; at <= text.size(); ++at) {
        const QChar c = at < text.size() ? text[at] : QChar(u'\n');
        brackets += c == u'(' ? 1 : c == u')' && brackets > 0 ? -1 : 0;
        const bool isEnd = c == u'\n' || (!byLines && brackets == 0 && (c == u',' || c == u';'));
        if (!isEnd) {
            continue;
        }
        const QString person = personIn(QStringView(text).sliced(begin, at - begin));
        begin = at + 1;
        if (std::ranges::find(kNameEndings, person) != kNameEndings.end() && !people.isEmpty()) {
            people.back() += u", "_s + person;
        } else if (!person.isEmpty() && !known.contains(person)) {
            known.insert(person);
            people << person;
        }
    }
    return people;
}

} // namespace guide
