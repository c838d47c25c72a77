#include "screens/channel/ChannelViewController.h"

#include "screens/LoadFailureText.h"
#include "screens/Localized.h"
#include "screens/detail/DetailViewController.h"
#include "screens/kit/NavigationController.h"

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

ChannelViewController::ChannelViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                             const QString& title, const ShowSpan& entries,
                                             const QString& channelIconName, const ObjectId& channel)
    : m_environment(std::move(environment))
    , m_channelTitle(title)
    , m_channelIconName(channelIconName)
    , m_channel(channel)
    , m_streamURL(streamURLOf(*m_environment->catalogue.snapshot(), channel))
    , m_minuteTick(m_environment->clock, m_environment->mainQueue, m_environment->applicationState) {
    const auto record = m_environment->channels.channelWithChannelId(m_channel);
    if (record && (record->loading() || (dueForReload(*record) && !record->loadFailure()))) {
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

void ChannelViewController::viewDidAppear() {
    m_minuteTick.start(weak_from_this(), [this] { minuteBegan(); });
}

void ChannelViewController::viewDidDisappear() {
    m_minuteTick.stop();
    table().deselectRow();
}

const ShowItem* ChannelViewController::shownShow(const RowId& id) const {
    const auto day = std::find_if(m_days.begin(), m_days.end(),
                                  [&id](const DaySection& each) { return each.id() == id.section; });
    return day == m_days.end() || !id.show() ? nullptr : findShow(day->shows, *id.show());
}

void ChannelViewController::rowEvent(const RowId& id, const RowEvent& event) {
    const ShowItem* show = shownShow(id);
    if (NavigationController* navigation = navigationController();
        show && navigation && std::holds_alternative<Tapped>(event)) {
        navigation->pushFrom(*this,
                             std::make_shared<DetailViewController>(m_environment, *show, m_channelIconName));
    }
}

std::vector<RowAction> ChannelViewController::actionsForRow(const RowId& id) {
    const ShowItem* show = shownShow(id);
    return show ? m_environment->swipeActions(show->entry(), shared_from_this()) : std::vector<RowAction>();
}

void ChannelViewController::applicationDidBecomeActive() {
    m_minuteTick.resume();
    reloadChannelData();
}

void ChannelViewController::loadsEnded(const std::unordered_set<ObjectId>& channels) {
    if (!channels.contains(m_channel)) {
        return;
    }
    const auto record = m_environment->channels.channelWithChannelId(m_channel);
    if (!failure().isEmpty() || (record && !record->loading() && !dueForReload(*record))) {
        refreshDone();
    }
    if (viewLoaded()) {
        reloadTable();
    }
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

QString ChannelViewController::failure() const {
    const auto record = m_environment->channels.channelWithChannelId(m_channel);
    const auto failure = record ? record->loadFailure() : std::nullopt;
    return failure ? loadFailureText(*failure) : QString();
}

bool ChannelViewController::dueForReload(const TVChannel& record) const {
    return record.reloadNeeded(m_environment->clock.now(), m_environment->settings.automaticUpdateInterval());
}

void ChannelViewController::initializeContentWithEntriesArray(const ShowSpan& entries) {
    m_days = daySections(entries, m_environment->device.locale(), m_environment->device.timeZone());
    m_ends = ShownEnds(entries);
}

void ChannelViewController::reloadTable() {
    const ShowRows showRows(*m_environment);
    std::vector<Section> sections;
    sections.reserve(m_days.size() + 1);
    if (const QString text = failure(); !text.isEmpty()) {
        const SectionId id = u"failure"_s;
        sections.push_back(
            {.id = id,
             .rows = {{.id = {id, id},
                       .content = TextRow{.title = text, .titleColor = ColorRole::SecondaryLabel}}}});
    }
    for (const DaySection& day : m_days) {
        Section section{.id = day.id(), .header = day.title};
        section.rows.reserve(day.shows.size());
        ShowRowIds ids(section.id);
        for (const ShowItem& show : day.shows) {
            section.rows.push_back(showRow(ids.next(*show.entry()), show, showRows));
        }
        sections.push_back(std::move(section));
    }
    table().setSections(std::move(sections));
}

Row ChannelViewController::showRow(RowId id, const ShowItem& show, const ShowRows& showRows) const {
    const TVEntry& entry = *show.entry();
    ShowRow row = showRows.condensed(show, m_ends.endOf(entry), isRunning(entry, showRows.now()));
    row.allDetails = true;
    return {.id = std::move(id), .content = std::move(row), .selectable = true};
}

bool ChannelViewController::isRunning(const TVEntry& entry, Moment now) const {
    return entry.dateTime() <= now && m_ends.endOf(entry) > now;
}

// Shows that have ended stay until the next list. Only the rows of running shows, and of those that were, are
// made again: the schedule may be long.
void ChannelViewController::minuteBegan() {
    const ShowRows showRows(*m_environment);
    for (const DaySection& day : m_days) {
        ShowRowIds ids(day.id());
        for (const ShowItem& show : day.shows) {
            const RowId id = ids.next(*show.entry());
            const Row* shown = table().find(id);
            if (shown &&
                (std::get<ShowRow>(shown->content).running || isRunning(*show.entry(), showRows.now()))) {
                table().setRow(showRow(id, show, showRows));
            }
        }
    }
}

// ---- refreshing

void ChannelViewController::refresh() {
    refreshActive();
    if (const auto record = m_environment->channels.channelWithChannelId(m_channel)) {
        record->requireReload();
        m_environment->updates.updateByHand({m_channel});
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
