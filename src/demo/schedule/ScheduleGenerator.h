#pragma once

#include "demo/DemoChannel.h"
#include "demo/schedule/Programme.h"
#include "demo/text/DemoTexts.h"

#include <QDate>

#include <memory>
#include <vector>

namespace guide {

/// Generates the schedules of demo channels. Thread-safe.
class ScheduleGenerator {
  public:
    explicit ScheduleGenerator(std::shared_ptr<const DemoTexts> texts)
        : m_texts(std::move(texts)) {}

    /// The channel's programmes of `days` days, each from six in the morning to six in the channel's zone:
    /// in order, without gaps or overlaps. A day does not depend on the requested range.
    std::vector<Programme> schedule(const DemoChannel& channel, const QDate& firstDay, int days) const;

  private:
    void appendDay(const DemoChannel& channel, const QDate& day, std::vector<Programme>& programmes) const;

    std::shared_ptr<const DemoTexts> m_texts;
};

/// The day, from six to six, to which the moment belongs in the zone.
QDate broadcastDay(Moment now, const QByteArray& zone);

} // namespace guide
