#pragma once

#include "demo/DemoChannel.h"
#include "demo/schedule/Programme.h"
#include "demo/text/DemoTexts.h"
#include "demo/text/TextGenerator.h"

#include <QDate>

namespace guide {

struct ProgrammeKind;

/// Generates one programme of a channel's day.
class ProgrammeGenerator {
  public:
    /// The programme is the n-th (`occurrence`, from 0) of `occurrences` programmes of this item on `day`.
    /// References must outlive the generator.
    ProgrammeGenerator(const DemoTexts& texts, const DemoChannel& channel, const PlannedItem& item,
                       const QDate& day, int occurrence, int occurrences);

    /// Without start and stop.
    Programme programme() const;

  private:
    void moveToFirstShowing();
    QString kindName(Random& random) const;
    std::size_t permanentChoice() const;
    std::size_t dailyChoice(const QString& kind) const;
    int episodesBefore() const;
    QString serialField(const TextGrammar& grammar, TextGenerator& generator, const QString& field,
                        std::uint64_t seed) const;
    void addEpisode(Programme& programme, const ProgrammeKind& kind) const;
    QString addFacts(Programme& programme, const ProgrammeKind& kind, TextGenerator& generator) const;

    const DemoTexts& m_texts;
    const DemoChannel& m_channel;
    PlannedItem m_item;
    /// The day on which the programme was first shown.
    QDate m_day;
    int m_occurrence;
    int m_occurrences;
    /// For everything that stays the same from day to day.
    std::uint64_t m_permanentSeed = 0;
    std::uint64_t m_daySeed = 0;
};

} // namespace guide
