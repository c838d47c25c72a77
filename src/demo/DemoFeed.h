#pragma once

#include "demo/DemoChannel.h"
#include "demo/DemoServer.h"
#include "demo/XMLTVWriter.h"
#include "platform/Moment.h"

#include <QDate>

#include <mutex>
#include <optional>

namespace guide {

inline constexpr int kDemoDays = 8;

/// One feed of the demo, made when it is first asked for and the same from then on. May be used from any
/// thread.
class DemoFeed {
  public:
    enum class Packing { Plain, Gzip, Xz };

    DemoFeed(std::vector<const DemoChannel*> channels, FeedStyle style, Packing packing, Moment now);

    /// Only what begins on this date in the channel's zone.
    void keepOnly(const QDate& date) { m_only = date; }

    ServedResponse response();

  private:
    QByteArray document() const;

    const std::vector<const DemoChannel*> m_channels;
    const FeedStyle m_style;
    const Packing m_packing;
    const Moment m_now;
    std::optional<QDate> m_only;
    std::once_flag m_made;
    ServedResponse m_response;
};

/// A feed and the paths at which the guide looks for it.
struct PlacedFeed {
    std::vector<QByteArray> paths;
    std::shared_ptr<DemoFeed> feed;
};

/// Every feed that a source id of the demo's channels leads to; the town's sites are not among them.
/// `authority` is the server's host and port.
std::vector<PlacedFeed> demoFeeds(Moment now, const QByteArray& authority);

/// What the host table says behind the name of a day file, in the place of a domain.
inline constexpr const char* kDayFileDomain = "demo";

} // namespace guide
