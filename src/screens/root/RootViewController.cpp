#include "screens/root/RootViewController.h"

#include "screens/LoadFailureText.h"
#include "screens/Localized.h"
#include "screens/channel/ChannelViewController.h"
#include "screens/channels/ChannelListViewController.h"
#include "screens/detail/DetailViewController.h"
#include "screens/kit/NavigationController.h"
#include "store/ShownEnds.h"
#include "text/display/Transliteration.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// The name of the row that loads a channel again.
constexpr auto kTryAgain = "try again"_L1;

/// So that the user sees that the pull has been noticed.
constexpr std::chrono::milliseconds kShortestRefresh{700};

/// The shows of `list`, each in the version of `others` if that has the same broadcast and `isBetter` says
/// so.
ShowItems merged(ShowItems list, const ShowItems& others,
                 bool (*isBetter)(const ShowItem& other, const ShowItem& own)) {
    std::unordered_map<const TVEntry*, const ShowItem*> byEntry;
    for (const ShowItem& other : others) {
        byEntry.emplace(other.entry().get(), &other);
    }
    for (ShowItem& show : list) {
        const auto other = byEntry.find(show.entry().get());
        if (other != byEntry.end() && isBetter(*other->second, show)) {
            show = *other->second;
        }
    }
    return list;
}

} // namespace

RootViewController::RootViewController(std::shared_ptr<const ScreenEnvironment> environment)
    : m_environment(std::move(environment))
    , m_pictures(*m_environment, *this)
    , m_minuteTick(m_environment->clock, m_environment->mainQueue, m_environment->applicationState) {}

void RootViewController::viewDidLoad() {
    setTitle(Localized::tr("Currently"));
    setRightBarButtons({{BarButton::Kind::List, Localized::tr("Channels"), [this] { list(); }}});
    setHasRefreshControl(true);
}

void RootViewController::viewWillAppear() {
    table().deselectRow();
}

void RootViewController::viewDidAppear() {
    m_minuteTick.start(weak_from_this(), [this] { minuteBegan(); });
    selectedChannelsChanged();
    if (std::exchange(m_modifiedSelectedChannels, false)) {
        m_environment->alarmSynchronisation.resynchronize();
        m_environment->updates.checkAndUpdateAllChannels();
    }
}

void RootViewController::viewDidDisappear() {
    m_minuteTick.stop();
    table().deselectRow();
}

void RootViewController::applicationDidBecomeActive() {
    m_minuteTick.resume();
    if (viewLoaded()) {
        selectedChannelsChanged();
    } else {
        m_modifiedSelectedChannels = true;
    }
}

void RootViewController::offerTopShows(const TopShows& top) {
    std::unordered_set<ObjectId> changed;
    for (const auto& [channel, entries] : top) {
        if (takeList(channel, entries)) {
            changed.insert(channel);
        }
    }
    reloadRows(changed);
}

void RootViewController::loadsEnded(const std::unordered_set<ObjectId>& channels) {
    std::erase_if(m_tryingAgain, [&channels](const ObjectId& channel) { return channels.contains(channel); });
    reloadRows(channels);
    setRefreshing(false);
}

void RootViewController::didPullToRefresh() {
    bool loading = false;
    std::vector<ObjectId> shown;
    shown.reserve(m_channels.size());
    for (const Channel& channel : m_channels) {
        shown.push_back(channel.identificator);
        const auto record = m_environment->channels.channelWithChannelId(channel.identificator);
        if (record && record->loadFailure()) {
            m_tryingAgain.insert(channel.identificator);
        }
        loading =
            loading || (record && (record->loading() || record->loadFailure() ||
                                   record->reloadNeeded(m_environment->clock.now(),
                                                        m_environment->settings.automaticUpdateInterval())));
    }
    reloadTable();
    m_environment->updates.updateByHand(shown);
    if (!loading) {
        // Everything is up to date, and no end of a load will be announced.
        m_environment->mainQueue.asyncAfter(kShortestRefresh, [weak = weakFromThis<RootViewController>()] {
            if (const auto self = weak.lock()) {
                self->setRefreshing(false);
            }
        });
    }
}

void RootViewController::notificationsSynched() {
    reloadTable();
}

void RootViewController::recolor() {
    m_environment->mainQueue.async([weak = weakFromThis<RootViewController>()] {
        if (const auto self = weak.lock()) {
            self->reloadTable();
        }
    });
}

void RootViewController::selectionCleanedUp() {
    m_environment->mainQueue.async([weak = weakFromThis<RootViewController>()] {
        if (const auto self = weak.lock()) {
            self->selectedChannelsChanged();
        }
    });
}

void RootViewController::selectedChannelsChanged() {
    if (!viewLoaded()) {
        return;
    }
    // No list is parsed while the sections are being replaced. The screen owns the token, so that the queue
    // resumes when the screen is destroyed before the answer arrives.
    m_loadQueueSuspension = m_environment->loadQueue.suspend();
    m_environment->listings.onAirShows(
        m_rebuild.expect(weak_from_this(),
                         [this](const std::vector<ObjectId>& selected, const std::vector<ShowSpan>& entries) {
                             setChannels(selected, entries);
                             m_loadQueueSuspension.release();
                         }));
}

void RootViewController::setChannels(const std::vector<ObjectId>& selected,
                                     const std::vector<ShowSpan>& entries) {
    const SharedCatalogueSnapshot catalogue = m_environment->catalogue.snapshot();
    const Moment now = m_environment->clock.now();
    m_channels.clear();
    m_channels.reserve(selected.size());
    for (std::size_t index = 0; index < selected.size() && index < entries.size(); ++index) {
        m_channels.push_back(channelNamed(selected[index], *catalogue));
        m_channels.back().entries = showsNotOver(entries[index], now);
    }
    m_upToDateAt = now;
    const bool imagesEnabled = m_environment->settings.imagesEnabled();
    if (imagesEnabled && !m_imagesEnabled) {
        // Rows that are inserted anew load their pictures.
        table().setSections({});
    }
    m_imagesEnabled = imagesEnabled;
    table().setEmptyNote(EmptyNote{
        Localized::tr("No channels yet"),
        Localized::tr("What is on now appears here once you have chosen channels under Selected Channels.")});
    reloadTable();
    loadWhatRanOut();
}

RootViewController::Channel RootViewController::channelNamed(const ObjectId& identificator,
                                                             const CatalogueSnapshot& catalogue) const {
    Channel channel{.identificator = identificator, .title = u"?"_s};
    if (const CatalogueChannel* found = catalogue.find(identificator)) {
        channel.title = latin2Cyrillic(found->title, found->language, m_environment->alphabet);
        channel.iconName = found->icon;
        if (m_environment->icons.hasIconFile(found->icon)) {
            channel.icon = {PictureKey::Kind::ChannelIcon, found->icon};
        }
        channel.stream = streamURLOf(catalogue, identificator);
    }
    return channel;
}

void RootViewController::reloadChannel(const ObjectId& channel, const ShowSpan& entries) {
    if (takeList(channel, entries)) {
        reloadRows(channel);
    }
}

bool RootViewController::takeList(const ObjectId& channel, const ShowSpan& entries) {
    Channel* shown = shownChannel(channel);
    if (!shown || entries.empty()) {
        return false;
    }
    m_environment->pictureCache.forgetChannel(channel);
    m_pictures.forgetChannel(channel);
    shown->entries = showsNotOver(entries, m_environment->clock.now());
    return true;
}

RootViewController::Channel* RootViewController::shownChannel(const ObjectId& identificator) {
    const auto found =
        std::find_if(m_channels.begin(), m_channels.end(),
                     [&identificator](const Channel& shown) { return shown.identificator == identificator; });
    return found == m_channels.end() ? nullptr : &*found;
}

// ---- time

void RootViewController::minuteBegan() {
    const Moment now = m_environment->clock.now();
    const bool setBack = now < std::exchange(m_upToDateAt, now);
    bool shorter = false;
    for (Channel& channel : m_channels) {
        ShowItems left = showsNotOver(channel.entries, now);
        shorter = shorter || left.size() < channel.entries.size();
        channel.entries = std::move(left);
    }
    // A load that has not begun by now was not due.
    m_tryingAgain.clear();
    reloadTable();
    if (shorter || setBack) {
        refill();
    }
}

void RootViewController::refill() {
    m_environment->listings.onAirShows(
        m_refill.expect(weak_from_this(), [this](const std::vector<ObjectId>& selected,
                                                 const std::vector<ShowSpan>& entries) {
            const Moment now = m_environment->clock.now();
            std::unordered_map<ObjectId, ShowSpan> fresh;
            for (std::size_t index = 0; index < selected.size(); ++index) {
                fresh.emplace(selected[index], entries[index]);
            }
            for (Channel& channel : m_channels) {
                if (const auto shows = fresh.find(channel.identificator); shows != fresh.end()) {
                    // Details that were looked up stay.
                    channel.entries = merged(showsNotOver(shows->second, now), channel.entries,
                                             [](const ShowItem& other, const ShowItem& own) {
                                                 return other.elementCount() > own.elementCount();
                                             });
                }
            }
            reloadTable();
            loadWhatRanOut();
        }));
}

void RootViewController::loadWhatRanOut() {
    const Moment now = m_environment->clock.now();
    const bool ranOut = std::ranges::any_of(m_channels, [this, now](const Channel& channel) {
        const auto record = m_environment->channels.channelWithChannelId(channel.identificator);
        return channel.entries.empty() && record && !record->loading() && !record->loadFailure() &&
               !record->reloadNeeded(now, m_environment->settings.automaticUpdateInterval());
    });
    if (ranOut) {
        m_environment->updates.checkAndUpdateAllChannels();
    }
}

// ---- rows

void RootViewController::reloadTable() {
    const ShowRows showRows(*m_environment);
    std::vector<Section> sections;
    sections.reserve(m_channels.size());
    for (const Channel& channel : m_channels) {
        sections.push_back({.id = channel.identificator.hex(), .rows = rowsOf(channel, showRows)});
    }
    table().setSections(std::move(sections));
}

void RootViewController::reloadRows(const std::unordered_set<ObjectId>& channels) {
    const ShowRows showRows(*m_environment);
    std::vector<Section> sections = table().latestSections();
    for (std::size_t place = 0; place < m_channels.size() && place < sections.size(); ++place) {
        if (channels.contains(m_channels[place].identificator)) {
            sections[place].rows = rowsOf(m_channels[place], showRows);
        }
    }
    table().setSections(std::move(sections));
}

std::vector<Row> RootViewController::rowsOf(const Channel& channel, const ShowRows& showRows) const {
    const bool imagesEnabled = m_environment->settings.imagesEnabled();
    std::vector<Row> rows;
    rows.reserve(channel.entries.size() + 1);
    rows.push_back(channelRow(channel));
    ShowRowIds ids(rows.front().id.section);
    const ShownEnds ends(channel.entries);
    for (const ShowItem& show : channel.entries) {
        const TVEntry& entry = *show.entry();
        const std::optional<Moment> end = ends.endOf(entry);
        const std::optional<double> progress = showProgress(entry.dateTime(), end, showRows.now());
        const bool running = progress && *progress >= 0 && *progress <= 1;
        ShowRow row = showRows.condensed(show, end, running);
        if (!running) {
            row.day = showRows.dayUnlessToday(entry);
        }
        if (imagesEnabled) {
            row.picture = m_environment->pictureCache.find(channel.identificator, identificatorOf(show))
                              .value_or(PictureKey());
        }
        rows.push_back({.id = ids.next(entry), .content = std::move(row), .selectable = true});
    }
    const auto record = m_environment->channels.channelWithChannelId(channel.identificator);
    if (channel.entries.empty() && record && failureOf(*record)) {
        rows.push_back({.id = {ids.section(), QString(kTryAgain)},
                        .content = ButtonRow{Localized::tr("Try again")},
                        .selectable = true});
    }
    return rows;
}

Row RootViewController::channelRow(const Channel& channel) const {
    const bool hasShows = !channel.entries.empty();
    ChannelRow row{.title = channel.title, .icon = channel.icon};
    const auto record = m_environment->channels.channelWithChannelId(channel.identificator);
    const auto failure = record ? failureOf(*record) : std::nullopt;
    row.accessory = channel.stream ? Accessory::Play
                    : hasShows     ? Accessory::Disclosure
                    : failure      ? Accessory::None
                                   : Accessory::Spinner;
    QStringList facts;
    if (const auto loaded = record ? record->timeLoaded() : std::nullopt;
        loaded && *loaded <= m_environment->clock.now()) {
        facts << Localized::tr("Updated ") +
                     m_environment->device.locale().toString(localTime(m_environment->device, *loaded),
                                                             QLocale::ShortFormat);
    }
    if (failure) {
        facts << loadFailureText(*failure);
    }
    row.subtitle = facts.join(u" · "_s);
    return {.id = {channel.identificator.hex(), channel.identificator},
            .content = std::move(row),
            .selectable = hasShows};
}

std::optional<LoadFailure> RootViewController::failureOf(const TVChannel& record) const {
    return m_tryingAgain.contains(record.identificator()) ? std::nullopt : record.loadFailure();
}

// ---- the user's events

void RootViewController::rowEvent(const RowId& id, const RowEvent& event) {
    if (id.name() && *id.name() == kTryAgain) {
        tryAgain(ObjectId::fromHex(id.section));
        return;
    }
    if (const ShowItem* show = shownShow(id)) {
        openShow(*show);
        return;
    }
    const Channel* channel = id.channel() ? shownChannel(*id.channel()) : nullptr;
    if (!channel) {
        return;
    }
    if (std::holds_alternative<Tapped>(event)) {
        selectedChannel(*channel);
    } else if (std::holds_alternative<AccessoryTapped>(event) && channel->stream) {
        m_environment->navigation.playURL(*channel->stream);
    }
}

std::vector<RowAction> RootViewController::actionsForRow(const RowId& id) {
    const ShowItem* show = shownShow(id);
    return show ? m_environment->swipeActions(show->entry(), shared_from_this()) : std::vector<RowAction>();
}

const ShowItem* RootViewController::shownShow(const RowId& id) {
    const Channel* channel = id.show() ? shownChannel(id.show()->channel) : nullptr;
    return channel ? findShow(channel->entries, *id.show()) : nullptr;
}

void RootViewController::selectedChannel(const Channel& channel) {
    m_environment->listings.cachedListForChannel(
        channel.identificator,
        m_opening.expect(weak_from_this(), [this, identificator = channel.identificator,
                                            title = channel.title,
                                            iconName = channel.iconName](const ShowSpan& entries) {
            NavigationController* navigation = navigationController();
            // The user may have opened another screen before the answer came.
            if (!navigation || !navigation->shows(*this)) {
                return;
            }
            if (entries.empty()) {
                table().deselectRow();
                return;
            }
            navigation->pushFrom(*this, std::make_shared<ChannelViewController>(m_environment, title, entries,
                                                                                iconName, identificator));
        }));
}

void RootViewController::openShow(const ShowItem& show) {
    const Channel* channel = shownChannel(show.entry()->channel());
    if (NavigationController* navigation = navigationController(); navigation && channel) {
        navigation->pushFrom(*this,
                             std::make_shared<DetailViewController>(m_environment, show, channel->iconName));
    }
}

void RootViewController::tryAgain(const ObjectId& channel) {
    table().deselectRow();
    m_tryingAgain.insert(channel);
    reloadRows(channel);
    m_environment->updates.updateByHand({channel});
}

void RootViewController::list() {
    std::vector<StreamChannel> channels;
    channels.reserve(m_channels.size());
    for (const Channel& channel : m_channels) {
        channels.push_back({channel.identificator, channel.title, channel.icon, channel.stream});
    }
    if (NavigationController* navigation = navigationController()) {
        navigation->show(
            std::make_shared<ChannelListViewController>(m_environment->navigation, std::move(channels)),
            Presentation::Popover, BarButtonAnchor{});
    }
}

// ---- pictures

QString RootViewController::identificatorOf(const ShowItem& show) {
    return show.entry()->identificator().value_or(QString());
}

void RootViewController::setShowImage(const QImage& image, const ObjectId& channel,
                                      const QString& showIdentifier) {
    if (shownChannel(channel)) {
        m_environment->pictureCache.insert(channel, showIdentifier, image);
        reloadRows(channel);
    }
}

void RootViewController::rowWillBeDisplayed(const RowId& id) {
    if (const ShowItem* show = shownShow(id)) {
        m_pictures.rowDisplayed(*show, weak_from_this());
    }
}

const ShowItems* RootViewController::showsOf(const ObjectId& channel) {
    const Channel* shown = shownChannel(channel);
    return shown ? &shown->entries : nullptr;
}

void RootViewController::detailsLoaded(const ObjectId& channel, const ShowItems& completed,
                                       const std::vector<QImage>& images) {
    Channel* shown = shownChannel(channel);
    if (!shown) {
        return;
    }
    // Of a list that arrived in the meantime, only the same broadcasts get these details.
    shown->entries =
        merged(std::move(shown->entries), completed, [](const ShowItem&, const ShowItem&) { return true; });
    for (std::size_t index = 0; index < completed.size() && index < images.size(); ++index) {
        if (!images[index].isNull()) {
            m_environment->pictureCache.insert(channel, identificatorOf(completed[index]), images[index]);
        }
    }
    reloadRows(channel);
}

} // namespace guide
