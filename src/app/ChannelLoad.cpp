#include "app/ChannelLoad.h"

#include <algorithm>

namespace guide {

namespace {

LoadFailureReason failureReason(const PassedOverSource& source) {
    switch (source.reason) {
    case PassedOverReason::NoPlan:
        return LoadFailureReason::NoSource;
    case PassedOverReason::NotASchedule:
        return LoadFailureReason::NotASchedule;
    case PassedOverReason::NoShows:
        return LoadFailureReason::NoShows;
    case PassedOverReason::OnlyPastShows:
        return LoadFailureReason::OnlyPastShows;
    case PassedOverReason::NoPage:
        break;
    }
    switch (source.pageReason) {
    case PageReason::Status:
        return LoadFailureReason::Status;
    case PageReason::Empty:
    case PageReason::Compression:
    case PageReason::Encoding:
        return LoadFailureReason::NotASchedule;
    case PageReason::None:
    case PageReason::Transfer:
    case PageReason::Cancelled:
        break;
    }
    return LoadFailureReason::NoAnswer;
}

} // namespace

ChannelLoad::ChannelLoad(const std::vector<PlannedSource>& sources) {
    m_sources.reserve(sources.size());
    for (const PlannedSource& planned : sources) {
        m_sources.push_back({.passedOver = {.sourceId = planned.sourceId},
                             .host = planned.urls.isEmpty() ? QString() : planned.urls.front().host(),
                             .isAsked = planned.urls.isEmpty()});
    }
}

void ChannelLoad::recordMissingPage(const QString& sourceId, const NetPage& answer) {
    passOver({.sourceId = sourceId,
              .reason = PassedOverReason::NoPage,
              .status = answer.status,
              .pageReason = answer.reason});
}

void ChannelLoad::recordPages(const LoadItem& item, std::size_t pages, const MergeResult& result, Moment at) {
    if (m_used) {
        return;
    }
    if (const auto list = result.lists.find(item.channel); list != result.lists.end()) {
        const TVEntry& last = *list->second->back().entry();
        const auto source = std::ranges::find_if(
            m_sources, [&item](const Source& each) { return each.passedOver.sourceId == item.sourceId; });
        m_used = UsedSource{.sourceId = item.sourceId,
                            .at = at,
                            .pages = static_cast<int>(pages),
                            .shows = static_cast<int>(list->second->size()),
                            .coveredUntil = last.endDateTime() ? last.endDateTime() : last.dateTime(),
                            .incomplete = result.read.incomplete,
                            .host = source == m_sources.end() ? QString() : source->host};
        return;
    }
    const auto outcome = result.outcomes.find(item.channel);
    const bool isPast = outcome != result.outcomes.end() && outcome->second == MergeOutcome::OnlyPast;
    passOver({.sourceId = item.sourceId,
              .reason = isPast                    ? PassedOverReason::OnlyPastShows
                        : !result.read.isSchedule ? PassedOverReason::NotASchedule
                                                  : PassedOverReason::NoShows});
}

void ChannelLoad::passOver(const PassedOverSource& passedOver) {
    // A channel may list a source twice.
    for (Source& each : m_sources) {
        if (!each.isAsked && each.passedOver.sourceId == passedOver.sourceId) {
            each.passedOver = passedOver;
            each.isAsked = true;
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

std::optional<LoadFailure> ChannelLoad::failure() const {
    if (m_used ||
        !std::all_of(m_sources.begin(), m_sources.end(), [](const Source& each) { return each.isAsked; })) {
        return std::nullopt;
    }
    const auto first = std::find_if(m_sources.begin(), m_sources.end(), [](const Source& each) {
        return each.passedOver.reason != PassedOverReason::NoPlan;
    });
    if (first == m_sources.end()) {
        return LoadFailure{};
    }
    return LoadFailure{
        .reason = failureReason(first->passedOver), .host = first->host, .status = first->passedOver.status};
}

} // namespace guide
