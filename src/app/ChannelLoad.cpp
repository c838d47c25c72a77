#include "app/ChannelLoad.h"

namespace guide {

ChannelLoad::ChannelLoad(const std::vector<PlannedSource>& sources) {
    m_sources.reserve(sources.size());
    for (const PlannedSource& planned : sources) {
        m_sources.push_back(
            {.passedOver = {.sourceId = planned.sourceId}, .isAsked = planned.urls.isEmpty()});
    }
}

void ChannelLoad::recordMissingPage(const QString& sourceId, const NetPage& answer) {
    passOver({.sourceId = sourceId,
              .reason = PassedOverReason::NoPage,
              .status = answer.status,
              .pageReason = answer.reason});
}

void ChannelLoad::recordPages(const QString& sourceId, std::size_t pages, MergeOutcome outcome,
                              const ShowList& list, Moment at) {
    if (m_used) {
        return;
    }
    if (outcome == MergeOutcome::Stored && list && !list->empty()) {
        const TVEntry& last = *list->back().entry();
        m_used = UsedSource{.sourceId = sourceId,
                            .at = at,
                            .pages = static_cast<int>(pages),
                            .shows = static_cast<int>(list->size()),
                            .coveredUntil = last.endDateTime() ? last.endDateTime() : last.dateTime()};
        return;
    }
    passOver({.sourceId = sourceId,
              .reason = outcome == MergeOutcome::OnlyPast ? PassedOverReason::OnlyPastShows
                                                          : PassedOverReason::NoShows});
}

void ChannelLoad::passOver(const PassedOverSource& passedOver) {
    // A channel may list a source twice.
    for (Source& each : m_sources) {
        if (!each.isAsked && each.passedOver.sourceId == passedOver.sourceId) {
            each = {.passedOver = passedOver, .isAsked = true};
        }
    }
}

std::optional<SourceHealth> ChannelLoad::health(Moment now) const {
    if (m_sources.empty()) {
        return std::nullopt;
    }
    SourceHealth health{.at = m_used ? m_used->at : now, .used = m_used, .passedOver = {}};
    for (const Source& each : m_sources) {
        if (m_used && each.passedOver.sourceId == m_used->sourceId) {
            break;
        }
        if (each.isAsked) {
            health.passedOver.push_back(each.passedOver);
        } else if (!m_used) {
            return std::nullopt;
        }
    }
    return health;
}

} // namespace guide
