#include "screens/detail/ShowPage.h"

#include "screens/Localized.h"
#include "screens/ShowRowText.h"
#include "screens/ShowRows.h"

#include <QDateTime>

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// Longer texts would take long to lay out.
constexpr qsizetype kLongestText = 20'000;
constexpr qsizetype kLongestFact = 80;
constexpr std::chrono::minutes kSoon{60};

QString bounded(const QString& text) {
    return text.size() <= kLongestText ? text : text.first(kLongestText) + u'…';
}

/// What a source says in passing: a few words on genre, country and year, or whole sentences.
QStringList remarks(const TVEntry& entry, bool isShort) {
    QStringList found;
    for (const auto& text : {entry.instantDetails(), entry.instantDescription()}) {
        const QString remark = text.value_or(QString()).trimmed().replace(u'║', u'·');
        if (!remark.isEmpty() && (remark.size() <= kLongestFact) == isShort) {
            found << remark;
        }
    }
    return found;
}

QString dayText(const QDate& day, const QDate& today, const QLocale& locale) {
    switch (today.daysTo(day)) {
    case -1:
        return Localized::tr("Yesterday");
    case 0:
        return Localized::tr("Today");
    case 1:
        return Localized::tr("Tomorrow");
    default:
        return locale.toString(day, u"ddd d MMM"_s);
    }
}

QString durationText(std::chrono::minutes duration) {
    const auto hours = std::chrono::floor<std::chrono::hours>(duration);
    const auto minutes = static_cast<int>((duration - hours).count());
    if (hours.count() == 0) {
        return Localized::tr("%1 min").arg(minutes);
    }
    return minutes == 0 ? Localized::tr("%1 h").arg(hours.count())
                        : Localized::tr("%1 h %2 min").arg(hours.count()).arg(minutes);
}

int minutesUntil(Moment later, Moment now) {
    return static_cast<int>(std::chrono::ceil<std::chrono::minutes>(later - now).count());
}

} // namespace

std::vector<ShowGroup> showGroups(const ShowItem& show, const Alphabet& alphabet) {
    std::vector<ShowGroup> groups;
    const auto add = [&groups](const QString& name, const std::optional<QString>& content,
                               bool isPeople = false) {
        if (const QString text = content.value_or(QString()).trimmed(); !text.isEmpty()) {
            groups.push_back({name, bounded(text), isPeople});
        }
    };
    add(Localized::tr("Subheading:"), show.entry()->subtitle());
    const TVEntrySupplementalData details =
        show.details() ? show.details()->updateAlphabet(alphabet) : TVEntrySupplementalData();
    add(Localized::tr("Details:"),
        (remarks(*show.entry(), false) << details.details.value_or(QString())).join(u'\n'));
    add(Localized::tr("Episode Description:"), details.episodeDescription);
    // A name of its own, because the plural differs from language to language.
    const bool severalDirectors = details.directedBy.value_or(QString()).trimmed().contains(u'\n');
    add(severalDirectors ? Localized::tr("Directed By:(p)") : Localized::tr("Directed By:"),
        details.directedBy, true);
    add(Localized::tr("Roles:"), details.roles, true);
    add(Localized::tr("Description:"), details.description);
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
            .text = Localized::tr("On now") + u" · "_s +
                    Localized::tr("%n min left", nullptr, minutesUntil(*end, now))};
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
    if (entry.previouslyShown()) {
        facts << Localized::tr("Replay");
    }
    return facts + remarks(entry, true);
}

QString leadTimeText(const Favorite* rule, std::optional<int> minutes) {
    const bool isRecurring = rule && rule->minutes;
    if (isRecurring) {
        minutes = rule->minutes;
    }
    if (!minutes) {
        return Localized::tr("None");
    }
    QString text = *minutes == 0        ? Localized::tr("At beginning of the show")
                   : *minutes % 60 == 0 ? Localized::tr("%1h before").arg(*minutes / 60)
                                        : Localized::tr("%1min before").arg(*minutes);
    if (!isRecurring) {
        return text;
    }
    if (!rule->previouslyShown) {
        return Localized::tr("%1 (any broadcast)").arg(text);
    }
    return (*rule->previouslyShown ? Localized::tr("%1 (every replay)")
                                   : Localized::tr("%1 (every premiere)"))
        .arg(text);
}

QStringList peopleOf(const QString& text) {
    QStringList people;
    const bool byLines = text.contains(u'\n');
    int brackets = 0;
    qsizetype begin = 0;
    for (qsizetype at = 0; at <= text.size(); ++at) {
        const QChar c = at < text.size() ? text[at] : QChar(u'\n');
        brackets += c == u'(' ? 1 : c == u')' && brackets > 0 ? -1 : 0;
        const bool isEnd = c == u'\n' || (!byLines && brackets == 0 && (c == u',' || c == u';'));
        if (isEnd) {
            if (const QString person = text.sliced(begin, at - begin).trimmed(); !person.isEmpty()) {
                people << person;
            }
            begin = at + 1;
        }
    }
    return people;
}

} // namespace guide
