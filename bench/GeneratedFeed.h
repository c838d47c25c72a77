#pragma once

#include "platform/Moment.h"

#include <QByteArray>
#include <QString>

namespace guide::bench {

/// What a generated feed is to hold.
struct FeedShape {
    int channels = 300;
    int days = 7;
    /// Where the first programmes start: midnight, UTC, of a day far ahead, so that nothing is over.
    Moment start = std::chrono::sys_days{std::chrono::year{2040} / 1 / 2};
};

/// A national feed as plain XMLTV: back to back programmes in Czech, Croatian, Hungarian, Italian, German and
/// English, with what real feeds put around their texts. The same bytes for the same shape.
QByteArray generatedFeed(const FeedShape& shape);

/// The id that the feed gives its channel of this number, counted from 0.
QString generatedChannelId(int number);

} // namespace guide::bench
