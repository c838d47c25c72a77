#include "parsers/URLPlanner.h"

namespace guide {

URLPlanner::URLPlanner(SourceHostTable hosts, RandomIndex random)
    : m_hosts(std::move(hosts))
    , m_random(std::move(random)) {}

SourcePlan URLPlanner::plan(const QString& sourceId, Moment now, const QTimeZone& deviceZone) const {
    const ClassifiedSource source = classifiedSource(sourceId, m_hosts);
    const SourceFormat& format = sourceFormat(source.family);
    const PlanRequest request{sourceId, now, deviceZone, m_hosts, m_random};
    if (!format.fixedURLs) {
        return {source.type, format.plan(request)};
    }
    const std::lock_guard lock(m_guard);
    PlannedURLs& urls = m_fixed[static_cast<std::size_t>(format.family)];
    if (!urls) {
        urls = format.plan(request);
    }
    return {source.type, urls};
}

PlannedURLs URLPlanner::urlsForSourceId(const QString& sourceId, Moment now,
                                        const QTimeZone& deviceZone) const {
    return plan(sourceId, now, deviceZone).urls;
}

} // namespace guide
