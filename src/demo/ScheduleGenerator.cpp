#include "demo/ScheduleGenerator.h"

#include "demo/ProgrammeKind.h"
#include "demo/Random.h"
#include "demo/StretchFitting.h"
#include "demo/Words.h"

#include <QDateTime>
#include <QHash>
#include <QTimeZone>

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::hours kMorning{6};
constexpr int kDaysOfWeek = 7;
constexpr int kNewestFilm = 2024;
/// From this year on countries have the names of today.
constexpr int kNewCountries = 1993;

std::uint64_t seedOf(const QString& text) {
    return namedSeed(text.toUtf8());
}

Moment morningOf(const QDate& day, const QByteArray& zone) {
    const QDateTime morning(day, QTime(int(kMorning.count()), 0), QTimeZone(zone));
    return Moment(std::chrono::milliseconds(morning.toMSecsSinceEpoch()));
}

/// Whether the channel shows its series on weekdays alone.
bool restsAtWeekends(const DemoChannel& channel) {
    switch (channel.character) {
    case Character::General:
    case Character::GeneralWest:
    case Character::GeneralEast:
    case Character::News:
        return true;
    default:
        return false;
    }
}

/// How many times, since long ago, the channel's day had its place for this item.
int timesShown(const DemoChannel& channel, const PlannedItem& item, const QDate& day) {
    const int week = int(day.toJulianDay() / kDaysOfWeek);
    if (item.ordinal > kWeeklyOrdinals) {
        return week;
    }
    const int weekday = day.dayOfWeek();
    if (!restsAtWeekends(channel)) {
        return int(day.toJulianDay());
    }
    return weekday <= 5 ? week * 5 + weekday - 1 : week * 2 + weekday - 6;
}

/// One item of one day, with all that decides what it is.
class Casting {
  public:
    Casting(const DemoChannel& channel, PlannedItem item, const QDate& shownOn, int occurrence,
            int occurrences)
        : m_channel(channel)
        , m_item(std::move(item))
        , m_day(shownOn)
        , m_occurrence(occurrence)
        , m_occurrences(occurrences) {
        if (m_item.repeat) {
            moveToFirstShowing();
        }
        const auto place =
            mixedSeed(seedOf(m_channel.key + u'/' + m_item.kind), std::uint64_t(m_item.ordinal));
        m_standingSeed = place;
        m_daySeed =
            mixedSeed(mixedSeed(place, std::uint64_t(m_day.toJulianDay())), std::uint64_t(m_occurrence));
    }

    Programme programme() const;

  private:
    void moveToFirstShowing();
    QString kindName(Random& random) const;
    std::size_t standingTurn() const;
    std::size_t dailyTurn(const QString& name) const;
    int episodesBefore() const;
    QString serialField(const Grammar& grammar, Telling& telling, const QString& field,
                        std::uint64_t seed) const;
    void addEpisode(Programme& programme, const ProgrammeKind& kind) const;
    QString addFacts(Programme& programme, const ProgrammeKind& kind, Telling& telling) const;

    const DemoChannel& m_channel;
    PlannedItem m_item;
    /// The day on which it was new.
    QDate m_day;
    int m_occurrence;
    int m_occurrences;
    std::uint64_t m_standingSeed = 0;
    std::uint64_t m_daySeed = 0;
};

void Casting::moveToFirstShowing() {
    const bool weekly = m_item.ordinal > kWeeklyOrdinals;
    const ProgrammeKind* const kind = programmeKind(m_item.kind);
    const bool serial = kind != nullptr && kind->title == ProgrammeKind::Title::Serial;
    do {
        m_day = m_day.addDays(-1);
    } while (serial && restsAtWeekends(m_channel) && m_day.dayOfWeek() > 5);
    if (weekly) {
        m_item.ordinal = kWeeklyOrdinals + m_day.dayOfWeek();
    }
}

QString Casting::kindName(Random& random) const {
    return m_item.kind == "film"_L1
               ? m_channel.films[qsizetype(random.below(std::size_t(m_channel.films.size())))]
               : m_item.kind;
}

/// The channel's choice among alternatives: what it has twice differs, and so do neighbouring channels.
std::size_t Casting::standingTurn() const {
    return std::size_t(m_channel.number) * 5 + std::size_t(m_item.ordinal);
}

/// A choice that goes on from day to day, so that no film comes on two evenings or twice an evening.
std::size_t Casting::dailyTurn(const QString& name) const {
    return std::size_t(m_day.toJulianDay()) + std::size_t(m_item.ordinal) * 4 +
           std::size_t(m_occurrence) * 3 + std::size_t(seedOf(m_channel.key + name) % 1000);
}

int Casting::episodesBefore() const {
    return timesShown(m_channel, m_item, m_day) * m_occurrences + m_occurrence;
}

/// A field that is one rule takes its alternatives in turn, so that neighbouring episodes differ.
QString Casting::serialField(const Grammar& grammar, Telling& telling, const QString& field,
                             std::uint64_t seed) const {
    const auto& alternatives = grammar.alternatives(field.mid(1, field.size() - 2));
    return telling.filled(
        alternatives.empty()
            ? field
            : alternatives[(std::size_t(episodesBefore()) + seed) % alternatives.size()].forms.front());
}

void Casting::addEpisode(Programme& programme, const ProgrammeKind& kind) const {
    const auto from = int(seedOf(programme.title) % 5000);
    const int number = episodesBefore() + from;
    const int length = kind.seasonLength;
    if (length == 0) {
        programme.episode = number % 1900 + 1;
        return;
    }
    programme.episode = number % length + 1;
    programme.season = number / length % 6 + 1;
}

/// Adds year and country, and gives back the language of the country's names. What has a place of ours in it
/// was made at home.
QString Casting::addFacts(Programme& programme, const ProgrammeKind& kind, Telling& telling) const {
    if (!kind.dated) {
        return programme.language;
    }
    Random random(mixedSeed(seedOf(programme.title), 3));
    const bool old = m_channel.character == Character::OldFilm;
    programme.year =
        old ? random.between(1933, 1971) : kNewestFilm - random.between(0, random.between(4, 45));
    telling.setRandom(random);
    const QString home = kind.topic == Topic::Western                                ? u"far_country"_s
                         : telling.knows(u"home"_s) || kind.topic == Topic::Children ? u"home_country"_s
                                                                                     : u"country"_s;
    programme.country =
        telling.filled((programme.year < kNewCountries ? u"{land:%1.3}"_s : u"{land:%1.1}"_s).arg(home));
    const QString language = telling.filled(u"{land.2}"_s);
    telling.name(u"country"_s, programme.country);
    telling.name(u"year"_s, QString::number(programme.year));
    const QString facts = telling.told(u"facts_"_s + QLatin1StringView(kind.name));
    programme.description = programme.description.isEmpty() ? facts : facts + u' ' + programme.description;
    return language;
}

/// A title has the same makers wherever it is shown.
void addMakers(Programme& programme, const ProgrammeKind& kind, const Grammar& grammar) {
    if (kind.makers == ProgrammeKind::Makers::None) {
        return;
    }
    Random random(mixedSeed(seedOf(programme.title), 2));
    Telling telling(grammar, random);
    programme.director = telling.told(random.percent(65) ? u"man"_s : u"woman"_s);
    const int cast = kind.makers == ProgrammeKind::Makers::Cast ? random.between(3, 6) : 0;
    for (int i = 0; i < cast; ++i) {
        programme.actors.append(telling.told((i + int(random.below(3))) % 2 == 0 ? u"man"_s : u"woman"_s));
    }
    programme.actors.removeDuplicates();
}

Programme Casting::programme() const {
    Random standing(m_standingSeed);
    Random daily(m_daySeed);
    Programme programme;
    programme.language = m_channel.spoken[qsizetype(standing.below(std::size_t(m_channel.spoken.size())))];
    programme.repeat = m_item.repeat;
    const QString name = kindName(daily);
    const ProgrammeKind* const kind = programmeKind(name);
    const Grammar& grammar = grammarOf(programme.language);
    const auto& alternatives = grammar.alternatives(name);
    if (kind == nullptr || alternatives.empty()) {
        programme.title = m_channel.title;
        return programme;
    }
    programme.topic = kind->topic;

    const bool anew = kind->title == ProgrammeKind::Title::Anew;
    Telling telling(grammar, anew ? daily : standing);
    telling.name(u"channel"_s, m_channel.title);
    const std::size_t turn = anew ? dailyTurn(name) : standingTurn();
    const QStringList& fields = alternatives[turn % alternatives.size()].fields;
    programme.title = telling.filled(fields.front());
    const std::uint64_t titleSeed = seedOf(programme.title);
    Random byTitle(mixedSeed(titleSeed, 4));
    telling.setRandom(kind->dated ? byTitle : daily);
    const bool serial = kind->title == ProgrammeKind::Title::Serial;
    const auto told = [&](const QString& field) {
        return serial ? serialField(grammar, telling, field, titleSeed) : telling.filled(field);
    };
    if (fields.size() > 2) {
        programme.subtitle = told(fields[1]);
    }
    if (fields.size() > 1) {
        programme.description = told(fields.back());
    }
    if (serial) {
        addEpisode(programme, *kind);
    }
    const QString names = addFacts(programme, *kind, telling);
    addMakers(programme, *kind, grammarOf(names));
    return programme;
}

/// Programmes of one day, appended.
void appendDay(const DemoChannel& channel, const QDate& day, std::vector<Programme>& programmes) {
    const std::vector<PlannedStretch> plan = dayPlan(channel.character, day.dayOfWeek());
    const Moment morning = morningOf(day, channel.zone);
    const auto length =
        std::chrono::duration_cast<std::chrono::minutes>(morningOf(day.addDays(1), channel.zone) - morning);
    Random lengths(mixedSeed(seedOf(channel.key), std::uint64_t(day.toJulianDay())));

    std::vector<FittedItem> items;
    for (std::size_t i = 0; i < plan.size(); ++i) {
        const int end = i + 1 < plan.size() ? plan[i + 1].from : kDayBegins + int(length.count());
        const std::vector<FittedItem> fitted = fittedStretch(plan[i].items, end - plan[i].from, lengths);
        items.insert(items.end(), fitted.begin(), fitted.end());
    }

    const auto place = [](const PlannedItem& item) {
        return item.kind + QChar(u'0' + item.ordinal) + QChar(item.repeat ? u'~' : u' ');
    };
    QHash<QString, int> totals;
    for (const FittedItem& item : items) {
        ++totals[place(item.item)];
    }
    QHash<QString, int> counts;
    Moment start = morning;
    for (const FittedItem& item : items) {
        const QString key = place(item.item);
        // A repeat counts its episodes as the first showing did.
        const int total = totals.value(key.chopped(1) + u' ', totals.value(key));
        Programme programme = Casting(channel, item.item, day, counts[key]++, total).programme();
        programme.start = start;
        programme.stop = start + std::chrono::minutes(item.minutes);
        start = programme.stop;
        programmes.push_back(std::move(programme));
    }
}

} // namespace

std::vector<Programme> schedule(const DemoChannel& channel, const QDate& firstDay, int days) {
    std::vector<Programme> programmes;
    for (int i = 0; i < days; ++i) {
        appendDay(channel, firstDay.addDays(i), programmes);
    }
    return programmes;
}

QDate broadcastDay(Moment now, const QByteArray& zone) {
    const auto shifted = now - kMorning;
    return QDateTime::fromMSecsSinceEpoch(shifted.time_since_epoch().count(), QTimeZone(zone)).date();
}

} // namespace guide
