#pragma once

#include "platform/Moment.h"

#include <QByteArray>
#include <QString>

namespace guide::bench {

/// The size of a generated feed.
struct FeedShape {
    int channels = 300;
    int days = 7;
    /// Start of the first programmes: a midnight (UTC) far in the future, so that no show is over.
    Moment start = std::chrono::sys_days{std::chrono::year{2040} / 1 / 2};
};

/// A national feed as plain XMLTV: programmes without gaps in Czech, Croatian, Hungarian, Italian, German and
/// English, in the proportions of real feeds (texts, credits, pictures). The same bytes for the same shape.
/// The demo's feeds have too few languages and elements for this.
QByteArray generatedFeed(const FeedShape& shape);

/// The feed's id of this channel, counted from 0.
QString generatedChannelId(int number);

} // namespace guide::bench
