#include "demo/schedule/ProgrammeGenerator.h"

#include "demo/schedule/ProgrammeKind.h"

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kDaysOfWeek = 7;
constexpr int kNewestFilm = 2024;
/// From this year on countries have their present names.
constexpr int kNewCountries = 1993;

std::uint64_t seedOf(const QString& text) {
    return namedSeed(text.toUtf8());
}

bool showsSeriesOnWeekdaysOnly(const DemoChannel& channel) {
    switch (channel.profile) {
    case ChannelProfile::General:
    case ChannelProfile::GeneralWest:
    case ChannelProfile::GeneralEast:
    case ChannelProfile::News:
        return true;
    default:
        return false;
    }
}

/// The number of days since the first Julian day on which this item was in the channel's plan.
int daysShown(const DemoChannel& channel, const PlannedItem& item, const QDate& day) {
    const int week = int(day.toJulianDay() / kDaysOfWeek);
    if (item.ordinal > kWeeklyOrdinals) {
        return week;
    }
    if (!showsSeriesOnWeekdaysOnly(channel)) {
        return int(day.toJulianDay());
    }
    const int weekday = day.dayOfWeek();
    return weekday <= 5 ? week * 5 + weekday - 1 : week * 2 + weekday - 6;
}

/// The same title has the same credits wherever it is shown.
void addCredits(Programme& programme, const ProgrammeKind& kind, const TextGrammar& grammar) {
    if (kind.credits == ProgrammeKind::Credits::None) {
        return;
    }
    Random random(mixedSeed(seedOf(programme.title), 2));
    TextGenerator generator(grammar, random);
    programme.director = generator.expand(random.percent(65) ? u"man"_s : u"woman"_s);
    const int cast = kind.credits == ProgrammeKind::Credits::Cast ? random.between(3, 6) : 0;
    for (int i = 0; i < cast; ++i) {
        programme.actors.append(
            generator.expand((i + int(random.below(3))) % 2 == 0 ? u"man"_s : u"woman"_s));
    }
    programme.actors.removeDuplicates();
}

} // namespace

ProgrammeGenerator::ProgrammeGenerator(const DemoTexts& texts, const DemoChannel& channel,
                                       const PlannedItem& item, const QDate& day, int occurrence,
                                       int occurrences)
    : m_texts(texts)
    , m_channel(channel)
    , m_item(item)
    , m_day(day)
    , m_occurrence(occurrence)
    , m_occurrences(occurrences) {
    if (m_item.repeat) {
        moveToFirstShowing();
    }
    m_permanentSeed = mixedSeed(seedOf(m_channel.key + u'/' + m_item.kind), std::uint64_t(m_item.ordinal));
    m_daySeed = mixedSeed(mixedSeed(m_permanentSeed, std::uint64_t(m_day.toJulianDay())),
                          std::uint64_t(m_occurrence));
}

void ProgrammeGenerator::moveToFirstShowing() {
    const bool weekly = m_item.ordinal > kWeeklyOrdinals;
    const ProgrammeKind* const kind = programmeKind(m_item.kind);
    const bool serial = kind != nullptr && kind->title == ProgrammeKind::Title::Serial;
    do {
        m_day = m_day.addDays(-1);
    } while (serial && showsSeriesOnWeekdaysOnly(m_channel) && m_day.dayOfWeek() > 5);
    if (weekly) {
        m_item.ordinal = kWeeklyOrdinals + m_day.dayOfWeek();
    }
}

QString ProgrammeGenerator::kindName(Random& random) const {
    return m_item.kind == "film"_L1
               ? m_channel.films[qsizetype(random.below(std::size_t(m_channel.films.size())))]
               : m_item.kind;
}

/// Differs between ordinals and between neighbouring channels.
std::size_t ProgrammeGenerator::permanentChoice() const {
    return std::size_t(m_channel.number) * 5 + std::size_t(m_item.ordinal);
}

/// Advances from day to day, so that no film is shown on two evenings or twice in one.
std::size_t ProgrammeGenerator::dailyChoice(const QString& kind) const {
    return std::size_t(m_day.toJulianDay()) + std::size_t(m_item.ordinal) * 4 +
           std::size_t(m_occurrence) * 3 + std::size_t(seedOf(m_channel.key + kind) % 1000);
}

int ProgrammeGenerator::episodesBefore() const {
    return daysShown(m_channel, m_item, m_day) * m_occurrences + m_occurrence;
}

/// A field that is a single rule takes its alternatives in turn, so that successive episodes differ.
QString ProgrammeGenerator::serialField(const TextGrammar& grammar, TextGenerator& generator,
                                        const QString& field, std::uint64_t seed) const {
    const auto& alternatives = grammar.alternatives(field.mid(1, field.size() - 2));
    return generator.expandReferences(
        alternatives.empty()
            ? field
            : alternatives[(std::size_t(episodesBefore()) + seed) % alternatives.size()].forms.front());
}

void ProgrammeGenerator::addEpisode(Programme& programme, const ProgrammeKind& kind) const {
    const int number = episodesBefore() + int(seedOf(programme.title) % 5000);
    if (kind.seasonLength == 0) {
        programme.episode = number % 1900 + 1;
        return;
    }
    programme.episode = number % kind.seasonLength + 1;
    programme.season = number / kind.seasonLength % 6 + 1;
}

/// Adds year and country and returns the language of the film makers' names. A film whose title names a place
/// of its language ("home") was made there.
QString ProgrammeGenerator::addFacts(Programme& programme, const ProgrammeKind& kind,
                                     TextGenerator& generator) const {
    if (!kind.dated) {
        return programme.language;
    }
    Random random(mixedSeed(seedOf(programme.title), 3));
    const bool old = m_channel.profile == ChannelProfile::OldFilm;
    programme.year =
        old ? random.between(1933, 1971) : kNewestFilm - random.between(0, random.between(4, 45));
    generator.setRandom(random);
    const bool atHome = generator.isBound(u"home"_s) || kind.topic == Topic::Children;
    const QString countries = kind.topic == Topic::Western ? u"far_country"_s
                              : atHome                     ? u"home_country"_s
                                                           : u"country"_s;
    const int nameForm = programme.year < kNewCountries ? 3 : 1;
    programme.country = generator.expandReferences(u"{land:%1.%2}"_s.arg(countries).arg(nameForm));
    generator.bind(u"country"_s, programme.country);
    generator.bind(u"year"_s, QString::number(programme.year));
    const QString facts = generator.expand(u"facts_"_s + QLatin1StringView(kind.name));
    programme.description = (facts + u' ' + programme.description).trimmed();
    return generator.expandReferences(u"{land.2}"_s);
}

Programme ProgrammeGenerator::programme() const {
    Random permanent(m_permanentSeed);
    Random daily(m_daySeed);
    Programme programme;
    programme.language = m_channel.spoken[qsizetype(permanent.below(std::size_t(m_channel.spoken.size())))];
    programme.repeat = m_item.repeat;
    const QString name = kindName(daily);
    const ProgrammeKind* const kind = programmeKind(name);
    const TextGrammar& grammar = m_texts.grammar(programme.language);
    const auto& alternatives = grammar.alternatives(name);
    if (kind == nullptr || alternatives.empty()) {
        programme.title = m_channel.title;
        return programme;
    }
    programme.topic = kind->topic;

    const bool perBroadcast = kind->title == ProgrammeKind::Title::PerBroadcast;
    TextGenerator generator(grammar, perBroadcast ? daily : permanent);
    generator.bind(u"channel"_s, m_channel.title);
    const std::size_t choice = perBroadcast ? dailyChoice(name) : permanentChoice();
    const QStringList& fields = alternatives[choice % alternatives.size()].fields;
    programme.title = generator.expandReferences(fields.front());
    const std::uint64_t titleSeed = seedOf(programme.title);
    Random byTitle(mixedSeed(titleSeed, 4));
    generator.setRandom(kind->dated ? byTitle : daily);
    const bool serial = kind->title == ProgrammeKind::Title::Serial;
    const auto expanded = [&](const QString& field) {
        return serial ? serialField(grammar, generator, field, titleSeed) : generator.expandReferences(field);
    };
    if (fields.size() > 2) {
        programme.subtitle = expanded(fields[1]);
    }
    if (fields.size() > 1) {
        programme.description = expanded(fields.back());
    }
    if (serial) {
        addEpisode(programme, *kind);
    }
    const QString nameLanguage = addFacts(programme, *kind, generator);
    addCredits(programme, *kind, m_texts.grammar(nameLanguage));
    return programme;
}

} // namespace guide
