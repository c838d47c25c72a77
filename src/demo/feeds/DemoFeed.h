#pragma once

#include "demo/feeds/XMLTVWriter.h"
#include "demo/schedule/ScheduleGenerator.h"
#include "demo/server/ServerMessage.h"
#include "platform/Moment.h"

#include <QDate>

#include <mutex>
#include <optional>

namespace guide {

inline constexpr int kDemoDays = 8;

/// One feed of the demo, generated on the first request and kept. Thread-safe.
class DemoFeed {
  public:
    enum class Packing { Plain, Gzip, Xz };

    struct Content {
        std::vector<const DemoChannel*> channels;
        FeedStyle style;
        Packing packing = Packing::Plain;
        /// Only programmes that start on this date in the channel's zone.
        std::optional<QDate> onlyOn = {};
    };

    DemoFeed(Content content, const ScheduleGenerator& generator, Moment now)
        : m_content(std::move(content))
        , m_generator(generator)
        , m_now(now) {}

    ServerReply reply();

  private:
    QByteArray document() const;

    const Content m_content;
    const ScheduleGenerator m_generator;
    const Moment m_now;
    std::once_flag m_made;
    ServerReply m_reply;
};

/// A feed and the targets at which the guide requests it.
struct PlacedFeed {
    std::vector<QByteArray> targets;
    std::shared_ptr<DemoFeed> feed;
};

/// The feeds of all source ids of the demo's channels, except those that DemoSites serves. `authority` is
/// the server's host and port.
std::vector<PlacedFeed> demoFeeds(const ScheduleGenerator& generator, Moment now, const QString& authority);

/// The host table's value for the domain in the names of day files.
inline constexpr const char* kDayFileDomain = "demo";

} // namespace guide
