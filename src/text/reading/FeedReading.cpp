#include "text/reading/FeedReading.h"

namespace guide {

FeedReading catalogueReading() {
    return {};
}

FeedReading ownReading() {
    return {.startsEntriesFresh = true, .keepsTitlesWhole = true, .readsFacts = true, .believesGenres = true};
}

} // namespace guide
