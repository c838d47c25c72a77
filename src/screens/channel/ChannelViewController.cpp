#include "screens/channel/ChannelViewController.h"

#include "screens/Localized.h"
#include "screens/ShowRow.h"

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

std::vector<SwipeAction> ChannelViewController::swipeActionsForRow(IndexPath path) {
    const ShowItems& shows = m_groups[static_cast<std::size_t>(path.section)].shows;
    return m_environment->swipeActions(shows[static_cast<std::size_t>(path.row)].entry(), shared_from_this());
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
    m_environment->listings.cachedListForChannel(m_channel, QueuePriority::Default,
                                                 {weak_from_this(), [this](const ShowSpan& entries) {
                                                      initializeContentWithEntriesArray(entries);
                                                      reloadTable();
                                                      refreshDone();
                                                  }});
}

bool ChannelViewController::dueForReload(const TVChannel& record) const {
    return record.reloadNeeded(m_environment->clock.now(), m_environment->settings.automaticUpdateInterval());
}

void ChannelViewController::initializeContentWithEntriesArray(const ShowSpan& entries) {
    m_groups = daySections(entries, m_environment->device.locale(), m_environment->device.timeZone());
}

void ChannelViewController::reloadTable() {
    const ShowRowText text(m_environment->device.locale(), m_environment->device.timeZone());
    const ShowMarks marks(*m_environment);
    const Moment now = m_environment->clock.now();
    std::vector<Section> sections;
    sections.reserve(m_groups.size());
    for (const DaySection& group : m_groups) {
        Section section{group.title, {}};
        section.rows.reserve(group.shows.size());
        for (const ShowItem& show : group.shows) {
            const TVEntry& entry = *show.entry();
            const bool running = *entry.dateTime() <= now && entry.endsAfter(now);
            section.rows.push_back(showRow(*m_environment, marks, text, show, running, now));
            section.rows.back().allDetails = true;
        }
        sections.push_back(std::move(section));
    }
    table().reload(std::move(sections));
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
