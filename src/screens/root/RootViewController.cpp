#include "screens/root/RootViewController.h"

#include "screens/Localized.h"
#include "screens/ShowRow.h"
#include "screens/channel/ChannelViewController.h"
#include "screens/kit/NavigationController.h"
#include "text/display/Transliteration.h"

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

RootViewController::RootViewController(std::shared_ptr<const ScreenEnvironment> environment)
    : m_environment(std::move(environment)) {}

void RootViewController::viewDidLoad() {
    setTitle(Localized::tr("Currently"));
}

void RootViewController::viewWillAppear() {
    table().deselectRow();
}

void RootViewController::viewDidAppear() {
    selectedChannelsChanged();
    if (std::exchange(m_modifiedSelectedChannels, false)) {
        m_environment->app.resynchronizeAlarms();
        m_environment->app.checkAndUpdateAllChannels();
    }
}

void RootViewController::viewDidDisappear() {
    table().deselectRow();
}

void RootViewController::applicationDidBecomeActive() {
    if (viewLoaded()) {
        selectedChannelsChanged();
    } else {
        m_modifiedSelectedChannels = true;
    }
}

void RootViewController::offerTopShows(const TopShows& top) {
    for (const auto& [channel, entries] : top) {
        reloadChannel(channel, entries);
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
    // No list is read in until the sections stand, so that none can meet half of them. The token is the
    // screen's: an answer that is still under way when the screen goes must not hold the queue.
    const std::uint64_t asked = ++m_asked;
    m_suspensions.emplace(asked, m_environment->loadQueue.suspend());
    m_environment->listings.onAirShows(
        {weak_from_this(),
         [this, asked](const std::vector<ObjectId>& selected, const std::vector<ShowSpan>& entries) {
             if (asked > m_shown) {
                 m_shown = asked;
                 setChannels(selected, entries);
             }
             m_suspensions.erase(asked);
         }});
}

void RootViewController::setChannels(const std::vector<ObjectId>& selected,
                                     const std::vector<ShowSpan>& entries) {
    m_channels.clear();
    m_channels.reserve(selected.size());
    for (std::size_t index = 0; index < selected.size() && index < entries.size(); ++index) {
        m_channels.push_back(channelNamed(selected[index]));
        m_channels.back().entries = entries[index].items();
    }
    table().setEmptyNote(EmptyNote{
        Localized::tr("No channels yet"),
        Localized::tr("What is on now appears here once you have chosen channels under Selected Channels.")});
    reloadTable();
}

RootViewController::Channel RootViewController::channelNamed(const ObjectId& identificator) const {
    Channel channel{identificator, u"?"_s, {}, {}, {}};
    const SharedCatalogueSnapshot catalogue = m_environment->catalogue.snapshot();
    if (const CatalogueChannel* found = catalogue->find(identificator)) {
        channel.title = latin2Cyrillic(found->title, found->language, m_environment->alphabet);
        channel.iconName = found->icon;
        channel.icon = m_environment->icons.iconNamed(found->icon);
    }
    return channel;
}

void RootViewController::reloadChannel(const ObjectId& channel, const ShowSpan& entries) {
    const std::optional<int> section = sectionOfChannel(channel);
    if (!section || entries.empty()) {
        return;
    }
    m_pictures.erase(channel);
    Channel& shown = m_channels[static_cast<std::size_t>(*section)];
    shown.entries = entries.items();
    table().updateSection(*section, rowsOf(shown));
}

void RootViewController::setShowImage(const QImage& image, const ObjectId& channel,
                                      const QString& showIdentifier) {
    const std::optional<int> section = sectionOfChannel(channel);
    if (!section) {
        return;
    }
    m_pictures[channel].images.insert(showIdentifier, image);
    // Only the rows of that show say something else now.
    table().updateSection(*section, rowsOf(m_channels[static_cast<std::size_t>(*section)]));
}

std::optional<int> RootViewController::sectionOfChannel(const ObjectId& channel) const {
    const auto found = std::find_if(m_channels.begin(), m_channels.end(), [&channel](const Channel& shown) {
        return shown.identificator == channel;
    });
    if (found == m_channels.end()) {
        return std::nullopt;
    }
    return static_cast<int>(found - m_channels.begin());
}

// ---- rows

void RootViewController::reloadTable() {
    std::vector<Section> sections;
    sections.reserve(m_channels.size());
    for (const Channel& channel : m_channels) {
        sections.push_back({QString(), rowsOf(channel)});
    }
    table().reload(std::move(sections));
}

std::vector<Row> RootViewController::rowsOf(const Channel& channel) const {
    const ShowRowText text(m_environment->device.locale(), m_environment->device.timeZone());
    const Moment now = m_environment->clock.now();
    const bool imagesEnabled = m_environment->app.imagesEnabled();
    std::vector<Row> rows;
    rows.reserve(channel.entries.size() + 1);
    rows.push_back(channelRow(channel));
    for (const ShowItem& show : channel.entries) {
        const std::optional<double> progress = showProgress(*show.entry(), now);
        rows.push_back(
            showRow(*m_environment, text, show, progress && *progress >= 0 && *progress <= 1, now));
        if (imagesEnabled) {
            rows.back().picture = showImage(channel.identificator, identificatorOf(show)).value_or(QImage());
        }
    }
    return rows;
}

Row RootViewController::channelRow(const Channel& channel) const {
    Row row;
    row.kind = RowKind::Channel;
    row.text.append(channel.title, TextStyle::ChannelTitle, ColorRole::Tint);
    row.icon = channel.icon;
    row.selectable = !channel.entries.empty();
    row.accessory = streamURLOf(*m_environment->catalogue.snapshot(), channel.identificator) ? Accessory::Play
                    : row.selectable ? Accessory::Disclosure
                                     : Accessory::Spinner;
    if (row.accessory == Accessory::Spinner) {
        row.spokenState = Localized::tr("Loading");
    }
    const auto record = m_environment->channels.channelWithChannelId(channel.identificator);
    if (const auto loaded = record ? record->timeLoaded() : std::nullopt) {
        const QString time = m_environment->device.locale().toString(
            localTime(m_environment->device, *loaded), QLocale::ShortFormat);
        row.details.append(Localized::tr("Updated ") + time, TextStyle::Details, ColorRole::SecondaryLabel);
    }
    return row;
}

// ---- what the person does

void RootViewController::didSelectRow(IndexPath path) {
    if (path.row == 0) {
        selectedChannel(m_channels[static_cast<std::size_t>(path.section)]);
    }
}

void RootViewController::didTapAccessory(IndexPath path) {
    if (path.row != 0) {
        return;
    }
    const ObjectId& channel = m_channels[static_cast<std::size_t>(path.section)].identificator;
    if (const std::optional<QUrl> stream = streamURLOf(*m_environment->catalogue.snapshot(), channel)) {
        m_environment->app.playURL(*stream);
    }
}

std::vector<SwipeAction> RootViewController::swipeActionsForRow(IndexPath path) {
    if (path.row == 0) {
        return {};
    }
    const ShowItems& shows = m_channels[static_cast<std::size_t>(path.section)].entries;
    return m_environment->app.swipeActionsConfigurationForEntry(
        shows[static_cast<std::size_t>(path.row - 1)].entry(), shared_from_this());
}

void RootViewController::selectedChannel(const Channel& channel) {
    m_environment->listings.cachedListForChannel(
        channel.identificator, QueuePriority::UserInitiated,
        {weak_from_this(), [this, identificator = channel.identificator, title = channel.title,
                            iconName = channel.iconName](const ShowSpan& entries) {
             NavigationController* navigation = navigationController();
             // A second tap, or the way to another screen, may have come before the answer.
             if (!navigation || navigation->topViewController().get() != this) {
                 return;
             }
             if (entries.empty()) {
                 table().deselectRow();
                 return;
             }
             navigation->push(std::make_shared<ChannelViewController>(m_environment, title, entries, iconName,
                                                                      identificator));
         }});
}

// ---- pictures

QString RootViewController::identificatorOf(const ShowItem& show) {
    return show.entry()->identificator().value_or(QString());
}

std::optional<QImage> RootViewController::showImage(const ObjectId& channel,
                                                    const QString& showIdentifier) const {
    const auto pictures = m_pictures.find(channel);
    if (pictures == m_pictures.end()) {
        return std::nullopt;
    }
    const auto image = pictures->second.images.constFind(showIdentifier);
    return image == pictures->second.images.cend() ? std::nullopt : std::optional(*image);
}

void RootViewController::rowWillBeDisplayed(IndexPath path) {
    if (path.row == 0) {
        return;
    }
    const Channel& channel = m_channels[static_cast<std::size_t>(path.section)];
    const ShowItem& show = channel.entries[static_cast<std::size_t>(path.row - 1)];
    const bool imagesEnabled = m_environment->app.imagesEnabled();
    if (imagesEnabled && showImage(channel.identificator, identificatorOf(show))) {
        return;
    }
    if (imagesEnabled && !show.pictures().isEmpty()) {
        loadPicture(*show.pictures().constBegin(), channel.identificator, identificatorOf(show));
    }
    if (m_channelsWithLoadedShowDetails.contains(channel.identificator)) {
        return;
    }
    const auto record = m_environment->channels.channelWithChannelId(channel.identificator);
    if (record &&
        record->reloadNeeded(m_environment->clock.now(), m_environment->app.automaticUpdateInterval())) {
        return;
    }
    m_channelsWithLoadedShowDetails.insert(channel.identificator);
    if (imagesEnabled && applicationActive()) {
        m_environment->mainQueue.asyncAfter(kPictureDelay, [weak = weakFromThis<RootViewController>(),
                                                            identificator = channel.identificator] {
            if (const auto self = weak.lock(); self && self->applicationActive()) {
                self->startDetailPass(identificator);
            }
        });
    }
}

void RootViewController::loadPicture(const QUrl& url, const ObjectId& channel,
                                     const QString& showIdentifier) {
    QSet<QString>& asked = m_pictures[channel].asked;
    if (asked.contains(showIdentifier)) {
        return;
    }
    asked.insert(showIdentifier);
    m_environment->mainQueue.asyncAfter(
        kPictureDelay, [weak = weakFromThis<RootViewController>(), url, channel, showIdentifier] {
            const auto self = weak.lock();
            if (!self) {
                return;
            }
            self->m_environment->pictures.asyncLoadOfShowImageAtURL(
                url, {weak, [raw = self.get(), channel, showIdentifier](const QImage& image) {
                          raw->setShowImage(image, channel, showIdentifier);
                      }});
        });
}

void RootViewController::startDetailPass(const ObjectId& channel) {
    const std::optional<int> section = sectionOfChannel(channel);
    if (!section) {
        return;
    }
    const ShowItems& shows = m_channels[static_cast<std::size_t>(*section)].entries;
    m_environment->pictures.loadDetailsOfShows(
        shows, {weak_from_this(), [this, channel, asked = shows](const ShowItems& completed,
                                                                 const std::vector<QImage>& images) {
                    if (applicationActive()) {
                        detailsLoaded(channel, asked, completed, images);
                    }
                }});
}

void RootViewController::detailsLoaded(const ObjectId& channel, const ShowItems& asked,
                                       const ShowItems& completed, const std::vector<QImage>& images) {
    const std::optional<int> section = sectionOfChannel(channel);
    if (!section) {
        return;
    }
    Channel& shown = m_channels[static_cast<std::size_t>(*section)];
    // A list that came in the meantime is newer than these details.
    if (shown.entries == asked && completed.size() == asked.size()) {
        shown.entries = completed;
    }
    Images& known = m_pictures[channel].images;
    for (std::size_t index = 0; index < completed.size() && index < images.size(); ++index) {
        if (!images[index].isNull()) {
            known.insert(identificatorOf(completed[index]), images[index]);
        }
    }
    table().updateSection(*section, rowsOf(shown));
}

bool RootViewController::applicationActive() const {
    return m_environment->applicationState.applicationState() == ApplicationState::Active;
}

} // namespace guide
