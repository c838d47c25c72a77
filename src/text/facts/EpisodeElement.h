#pragma once

#include "text/facts/ShowFacts.h"

#include <QString>

namespace guide {

/// What a feed's element for the number of an episode says. Known systems are "xmltv_ns" (counted from 0),
/// "onscreen", "common", "SxxExx" and "SxxxExxx"; without a system two points make it "xmltv_ns". Empty for
/// another system or text.
EpisodeNumber episodeOfElement(const QString& system, const QString& text, const QString& language);

} // namespace guide
