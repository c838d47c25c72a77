#include "screens/channel/ChannelViewController.h"

#include "screens/Localized.h"
#include "screens/ShowRows.h"

#include <algorithm>
#include <utility>

namespace guide {

ChannelViewController::ChannelViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                             const QString& title, const ShowSpan& entries,
                                             const QString& channelIconName, const ObjectId& channel)
    : m_environment(std::move(environment))
    , m_channelTitle(title)
    , m_channelIconName(channelIconName)
    , m_channel(channel)
    , m_streamURL(streamURLOf(*m_environment->catalogue.snapshot(), channel)) {
    const auto record = m_environment->channels.channelWithChannelId(m_channel);
    if (record && (record->loading() || dueForReload(*record))) {
        refreshActive();
    } else {
        refreshDone();
    }
    initializeContentWithEntriesArray(entries);
}

void ChannelViewController::viewDidLoad() {
    setHasRefreshControl(true);
    table().setEmptyNote(EmptyNote{
        Localized::tr("No shows to come"),
        Localized::tr("The schedule of this channel has run out. Refresh to look for a newer one.")});
    reloadTable();
}

void ChannelViewController::viewWillAppear() {
    setTitle(m_channelTitle);
    table().deselectRow();
}

void ChannelViewController::viewDidDisappear() {
    table().deselectRow();
}

std::vector<RowAction> ChannelViewController::actionsForRow(const RowId& id) {
    const auto day = std::find_if(m_days.begin(), m_days.end(),
                                  [&id](const DaySection& each) { return each.id() == id.section; });
    const ShowItem* show = day == m_days.end() ? nullptr : findShow(day->shows, *id.show());
    return show ? m_environment->swipeActions(show->entry(), shared_from_this()) : std::vector<RowAction>();
}

void ChannelViewController::notificationsSynched() {
    if (viewLoaded()) {
        reloadTable();
    }
}

void ChannelViewController::recolor() {
    m_environment->mainQueue.async([weak = weakFromThis<ChannelViewController>()] {
        if (const auto self = weak.lock(); self && self->viewLoaded()) {
            self->reloadTable();
        }
    });
}

void ChannelViewController::reloadChannelData() {
    const auto record = m_environment->channels.channelWithChannelId(m_channel);
    if (!record || record->loading() || dueForReload(*record)) {
        return;
    }
    m_environment->listings.cachedListForChannel(
        m_channel, m_list.expect(weak_from_this(), [this](const ShowSpan& entries) {
            initializeContentWithEntriesArray(entries);
            reloadTable();
            refreshDone();
        }));
}

bool ChannelViewController::dueForReload(const TVChannel& record) const {
    return record.reloadNeeded(m_environment->clock.now(), m_environment->settings.automaticUpdateInterval());
}

void ChannelViewController::initializeContentWithEntriesArray(const ShowSpan& entries) {
    m_days = daySections(entries, m_environment->device.locale(), m_environment->device.timeZone());
}

void ChannelViewController::reloadTable() {
    const ShowRows showRows(*m_environment);
    std::vector<Section> sections;
    sections.reserve(m_days.size());
    for (const DaySection& day : m_days) {
        Section section{.id = day.id(), .header = day.title};
        section.rows.reserve(day.shows.size());
        ShowRowIds ids(section.id);
        for (const ShowItem& show : day.shows) {
            const TVEntry& entry = *show.entry();
            const bool running = *entry.dateTime() <= showRows.now() && entry.endsAfter(showRows.now());
            ShowRow row = showRows.condensed(show, running);
            row.allDetails = true;
            section.rows.push_back({.id = ids.next(entry), .content = std::move(row)});
        }
        sections.push_back(std::move(section));
    }
    table().setSections(std::move(sections));
}

// ---- refreshing

void ChannelViewController::refresh() {
    refreshActive();
    if (const auto record = m_environment->channels.channelWithChannelId(m_channel)) {
        record->requireReload();
        m_environment->updates.checkAndUpdateAllChannels();
    }
}

void ChannelViewController::refreshActive() {
    setButtons({BarButton::Kind::Activity, Localized::tr("Refreshing"), nullptr});
}

void ChannelViewController::refreshDone() {
    setRefreshing(false);
    setButtons({BarButton::Kind::Refresh, Localized::tr("Refresh"), [this] { refresh(); }});
}

void ChannelViewController::setButtons(BarButton first) {
    std::vector<BarButton> buttons{std::move(first)};
    if (m_streamURL) {
        buttons.push_back({BarButton::Kind::Play, Localized::tr("Play"),
                           [this] { m_environment->navigation.playURL(*m_streamURL); }});
    }
    setRightBarButtons(std::move(buttons));
}

} // namespace guide
