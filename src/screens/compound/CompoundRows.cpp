#include "screens/compound/CompoundRows.h"

#include "screens/alarms/AlarmTexts.h"
#include "store/ShownEnds.h"
#include "text/display/Transliteration.h"

#include <utility>

namespace guide {

CompoundRows::CompoundRows(const ScreenEnvironment& environment, bool showsLeads)
    : m_rows(environment)
    , m_alarms(showsLeads ? environment.alarms.snapshot() : nullptr)
    , m_catalogue(environment.catalogue.snapshot())
    , m_icons(environment.icons)
    , m_alphabet(environment.alphabet)
    , m_locale(environment.device.locale())
    , m_zone(environment.device.timeZone()) {}

CompoundSections CompoundRows::sectionsOf(const ShowSpan& shows) const {
    return sectionsOfAll(showsWithChannelIcon(shows, *m_catalogue, m_icons));
}

CompoundSections CompoundRows::sectionsOfAll(std::span<const ShowItem> shows) const {
    CompoundSections result;
    result.days = daySections(shows, m_locale, m_zone);
    result.sections.reserve(result.days.size());
    for (const DaySection& day : result.days) {
        Section section{.id = day.id(), .header = day.title};
        section.rows.reserve(day.shows.size());
        ShowRowIds ids(section.id);
        for (const ShowItem& show : day.shows) {
            section.rows.push_back(showRow(ids.next(*show.entry()), show));
        }
        result.sections.push_back(std::move(section));
    }
    return result;
}

Row CompoundRows::showRow(RowId id, const ShowItem& show) const {
    const TVEntry& entry = *show.entry();
    const std::optional<Moment> end = shownEnd(entry);
    const bool running = entry.dateTime() <= m_rows.now() && end && *end > m_rows.now();
    ShowRow row = m_rows.condensed(show, end, running);
    row.popular = false;
    row.allDetails = true;
    if (const auto lead = m_alarms ? m_alarms->alarmedEntry(entry) : std::nullopt) {
        row.alarmLead = shortLeadText(*lead);
    }
    if (const CatalogueChannel* channel = m_catalogue->find(entry.channel())) {
        row.channelName = latin2Cyrillic(channel->title, channel->language, m_alphabet);
        if (m_icons.hasIconFile(channel->icon)) {
            row.channelIcon = {PictureKey::Kind::ChannelIcon, channel->icon};
        }
    }
    return {.id = std::move(id), .content = std::move(row), .selectable = true};
}

} // namespace guide
