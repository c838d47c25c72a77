#pragma once

#include "screens/sources/SourceActions.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

namespace guide {

/// The channels of the source that are chosen by their keys, in the order of what it offers. Those that it
/// had keep their settings, also when it does not offer them today.
std::vector<OwnChannel> chosenChannels(const OwnSource& source, const SourceProposal& proposal,
                                       const QStringList& chosen, const std::vector<MatchedEntry>& matches);

/// The keys of a playlist's chosen channels that have no schedule, unless the user said so.
QSet<QString> channelsToMatch(const OwnSource& source);

std::vector<ObjectId> idsOf(const OwnSource& source);
/// Those of the first that are not among the others.
std::vector<ObjectId> without(const std::vector<ObjectId>& ids, const std::vector<ObjectId>& others);

/// The channels whose lists have to be read again when the record changes.
std::vector<ObjectId> toReadAgain(const OwnSource& before, const OwnSource& after);

} // namespace guide
