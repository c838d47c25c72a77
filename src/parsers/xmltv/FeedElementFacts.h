#pragma once

#include "parsers/xmltv/FeedDetails.h"
#include "text/facts/ShowFacts.h"

#include <QString>

namespace guide {

/// What the elements of a programme say beside its texts: episode, year, countries, ratings and newness.
ShowFacts factsOfElements(const FeedDetails& details, const QString& language);

} // namespace guide
