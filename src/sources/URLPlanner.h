#pragma once

#include "platform/Moment.h"
#include "sources/RandomIndex.h"
#include "sources/SourceHostTable.h"

#include <QList>
#include <QString>
#include <QTimeZone>
#include <QUrl>

#include <array>
#include <optional>

namespace guide {

/// Turns a source id into the URLs whose pages, read together, are its schedule. May be used from any thread
/// as far as its random source may.
class URLPlanner {
  public:
    URLPlanner(SourceHostTable hosts, RandomIndex random);

    const SourceHostTable& hosts() const { return m_hosts; }

    /// The URLs in the order of fetching, each once: the place of a day's page is its day. Equal lists mean
    /// one fetch for all their channels. Nothing when the id is none or its host is not in the table. Days
    /// are counted in steps of 86,400 seconds from `now`. The device's zone dates what belongs to a server
    /// without a zone.
    std::optional<QList<QUrl>> urlsForSourceId(const QString& sourceId, Moment now,
                                               const QTimeZone& deviceZone) const;

  private:
    /// The families whose list depends on the table alone.
    enum FixedFamily {
        NFeed,
        SFeed,
        TVPCFeed,
        Mediaset,
        MediasetPay,
        DigiSport,
        ComedyCentral,
        FixedFamilyCount
    };

    std::optional<QList<QUrl>> fixedList(FixedFamily family) const;

    SourceHostTable m_hosts;
    RandomIndex m_random;
    /// Made once, so that the channels of a family share one list.
    std::array<std::optional<QList<QUrl>>, FixedFamilyCount> m_fixed;
};

} // namespace guide
