#pragma once

#include "text/facts/ShowFacts.h"

#include <QLocale>
#include <QString>
#include <QStringList>

namespace guide {

/// What is known beside the texts, a few words a fact: the original title, the episode, and in one line year,
/// countries, age rating and stars.
QStringList factLines(const ShowFacts& facts, const QLocale& locale);

/// Whether the broadcast is new or a replay; empty when the source does not say.
QString newnessText(Newness newness);

/// "S2E5", "S2" or "E5", as feeds write it; empty when neither is known.
QString shortEpisode(const EpisodeNumber& episode);

/// Whether a text of few words says nothing but one of the facts.
bool isFact(const QString& text, const ShowFacts& facts);

} // namespace guide
