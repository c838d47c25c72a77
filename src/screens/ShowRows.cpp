#include "screens/ShowRows.h"

#include "screens/ShowTexts.h"

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

std::optional<double> showProgress(const std::optional<Moment>& start, const std::optional<Moment>& end,
                                   Moment now) {
    if (!start || !end || *end <= *start) {
        return std::nullopt;
    }
    return static_cast<double>((now - *start).count()) / static_cast<double>((*end - *start).count());
}

RowId ShowRowIds::next(const TVEntry& entry) {
    if (entry.dateTime() != m_start) {
        m_start = entry.dateTime();
        m_counts.clear();
    }
    return {m_section, ShowRowKey{entry.channel(), m_start, m_counts[entry.channel()]++}};
}

const ShowItem* findShow(std::span<const ShowItem> shows, const ShowRowKey& key) {
    int before = 0;
    for (const ShowItem& show : shows) {
        const TVEntry& entry = *show.entry();
        if (entry.dateTime() == key.start && entry.channel() == key.channel && before++ == key.ordinal) {
            return &show;
        }
    }
    return nullptr;
}

ShowRows::ShowRows(const ScreenEnvironment& environment)
    : m_popularShows(environment.popularShows)
    , m_colorizedShows(environment.settings.colorizedShows())
    , m_now(environment.clock.now())
    , m_zone(environment.device.timeZone())
    , m_today(localTime(environment.device, m_now).date())
    , m_marks(environment)
    , m_text(environment.device.locale(), environment.device.timeZone()) {}

ShowRow ShowRows::condensed(const ShowItem& show, const std::optional<Moment>& end, bool running) const {
    const TVEntry& entry = *show.entry();
    const bool alarmed = m_marks.isAlarmed(entry);
    const bool favourite = m_marks.isFavourite(entry);

    ColorRole color = ColorRole::SecondaryLabel;
    if (alarmed) {
        color = ColorRole::Alarm;
    } else if (m_colorizedShows && (running || favourite)) {
        color = running ? ColorRole::Running : ColorRole::Favourite;
    }

    ShowRow row = m_text.humanCondensedWithColor(entry, color, m_popularShows.contains(show));
    row.endTime = m_text.shortTime(end);
    row.details = rowDetails(entry);
    row.alarmed = alarmed;
    row.favourite = favourite;
    row.running = running;
    if (running) {
        row.progress = std::clamp(showProgress(entry.dateTime(), end, m_now).value_or(0), 0.0, 1.0);
    }
    return row;
}

QString ShowRows::dayUnlessToday(const TVEntry& entry) const {
    return entry.dateTime() ? m_text.dayUnlessToday(QDateTime::fromMSecsSinceEpoch(
                                                        entry.dateTime()->time_since_epoch().count(), m_zone)
                                                        .date(),
                                                    m_today)
                            : QString();
}

QDateTime localTime(const Device& device, Moment moment) {
    return QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count(), device.timeZone());
}

std::optional<QUrl> streamURLOf(const CatalogueSnapshot& channels, const ObjectId& channel) {
    const CatalogueChannel* found = channels.find(channel);
    if (!found || !found->stream || found->stream->isEmpty()) {
        return std::nullopt;
    }
    return QUrl(*found->stream);
}

} // namespace guide
