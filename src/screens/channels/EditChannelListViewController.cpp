#include "screens/channels/EditChannelListViewController.h"

#include "screens/LoadFailureText.h"
#include "screens/Localized.h"
#include "screens/channels/AllChannelsViewController.h"
#include "screens/channels/ScheduleAge.h"
#include "screens/kit/NavigationController.h"
#include "screens/options/OptionsViewController.h"
#include "screens/sources/AddSourceViewController.h"
#include "screens/sources/OwnSourcesViewController.h"
#include "text/display/Transliteration.h"

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

const SectionId& section() {
    static const SectionId id = u"selected"_s;
    return id;
}

/// Whether there is more to choose from than the channels of the user's sources, which are all chosen.
bool isSupplied(const CatalogueSnapshot& catalogue) {
    return std::ranges::any_of(catalogue.channels(),
                               [](const CatalogueChannel& channel) { return !channel.id.isOwn(); });
}

} // namespace

EditChannelListViewController::EditChannelListViewController(
    std::shared_ptr<const ScreenEnvironment> environment, TabBarController& tabs)
    : m_environment(std::move(environment))
    , m_editor(std::make_shared<SelectionEditor>(m_environment, tabs))
    , m_minuteTick(m_environment->clock, m_environment->mainQueue, m_environment->applicationState) {}

void EditChannelListViewController::viewDidLoad() {
    setTitle(Localized::tr("Selected Channels"));
    table().setEmptyNote(EmptyNote{Localized::tr("No channels yet"),
                                   Localized::tr("Choose the channels whose shows you want to see."),
                                   Localized::tr("Add channels"), [this] { addChannels(); }});
    setButtons();
}

void EditChannelListViewController::viewDidAppear() {
    reloadTable();
    m_minuteTick.start(weak_from_this(), [this] { reloadTable(); });
}

void EditChannelListViewController::viewDidDisappear() {
    m_minuteTick.stop();
}

void EditChannelListViewController::applicationDidBecomeActive() {
    m_minuteTick.resume();
    reloadData();
}

void EditChannelListViewController::offerTopShows(const TopShows& top) {
    for (const auto& [channel, shows] : top) {
        reloadRow(channel);
    }
}

void EditChannelListViewController::loadsEnded(const std::unordered_set<ObjectId>& channels) {
    for (const ObjectId& channel : channels) {
        reloadRow(channel);
    }
}

void EditChannelListViewController::reloadData() {
    if (viewLoaded()) {
        reloadTable();
    }
}

void EditChannelListViewController::reloadTable() {
    const SharedCatalogueSnapshot catalogue = m_environment->catalogue.snapshot();
    Section rows{.id = section()};
    for (const ObjectId& channel : m_editor->selected()) {
        rows.rows.push_back(channelRow(channel, *catalogue));
    }
    if (rows.rows.empty()) {
        table().setEditing(false);
    }
    table().setSections({std::move(rows)});
    setButtons();
}

void EditChannelListViewController::reloadRow(const ObjectId& channel) {
    if (table().find({section(), channel})) {
        table().setRow(channelRow(channel, *m_environment->catalogue.snapshot()));
    }
}

const std::unordered_map<ObjectId, QString>& EditChannelListViewController::ownSourceNames() {
    const SharedOwnSources sources =
        m_environment->sourceActions ? m_environment->sourceActions->sources() : nullptr;
    if (sources != m_ownSources) {
        m_ownSources = sources;
        m_ownSourceNames.clear();
        for (const OwnSource& source : *sources) {
            for (const OwnChannel& channel : source.channels) {
                m_ownSourceNames.emplace(ownChannelId(source.id, channel.key), source.name);
            }
        }
    }
    return m_ownSourceNames;
}

Row EditChannelListViewController::channelRow(const ObjectId& channel, const CatalogueSnapshot& catalogue) {
    ChannelRow row{.title = u"?"_s};
    if (const CatalogueChannel* found = catalogue.find(channel)) {
        row.title = latin2Cyrillic(found->title, found->language, m_environment->alphabet);
        if (m_environment->icons.hasIconFile(found->icon)) {
            row.icon = {PictureKey::Kind::ChannelIcon, found->icon};
        }
    } else if (!channel.isOwn()) {
        row.subtitle = Localized::tr("Selected on another device; this version does not know it");
    }
    if (const auto record = m_environment->channels.channelWithChannelId(channel)) {
        const Moment now = m_environment->clock.now();
        const auto failure = record->loadFailure();
        const auto loaded = record->timeLoaded();
        const QString failed = failure ? loadFailureText(*failure) : QString();
        QStringList facts;
        if (channel.isOwn()) {
            // Looked up once: the names are made anew when a source changes.
            const std::unordered_map<ObjectId, QString>& names = ownSourceNames();
            const auto source = names.find(channel);
            if (source != names.end() && !failed.contains(source->second)) {
                facts << source->second;
            }
        }
        if (failure) {
            facts << failed;
        } else if (loaded) {
            facts << m_environment->sourceOfSchedule(channel);
        }
        if (loaded && *loaded <= now) {
            facts << scheduleAgeText(*loaded, now);
        }
        if (!failure && !loaded) {
            // An entry of a playlist may have no schedule at all.
            const bool isExpected = !channel.isOwn() || record->loading();
            row.accessory = isExpected ? Accessory::Spinner : Accessory::None;
            facts << (isExpected ? Localized::tr("No schedule yet") : Localized::tr("No schedule"));
        }
        facts.removeAll(QString());
        row.subtitle = facts.join(u" · "_s);
    }
    return {.id = {section(), channel}, .content = std::move(row), .deletable = true, .movable = true};
}

// ---- the bar

void EditChannelListViewController::setButtons() {
    std::vector<BarButton> left;
    if (table().editing()) {
        left.push_back({BarButton::Kind::Title, Localized::tr("Done"), [this] { setEditing(false); }});
        left.push_back(
            {BarButton::Kind::Title, Localized::tr("Unselect all"), [this] { m_editor->askToRemoveAll(); }});
    } else if (table().rowCount() > 0) {
        left.push_back({BarButton::Kind::Title, Localized::tr("Edit"), [this] { setEditing(true); }});
    }
    setLeftBarButtons(std::move(left));
    std::vector<BarButton> right{{BarButton::Kind::Title, Localized::tr("Add channels"), [this] {
                                      isSupplied(*m_environment->catalogue.snapshot())
                                          ? showChannelListWithChannelData()
                                          : addChannels();
                                  }}};
    if (m_environment->sourceActions) {
        right.push_back({BarButton::Kind::List, Localized::tr("My sources"), [this] { showOwnSources(); }});
    }
    right.push_back({BarButton::Kind::Options, Localized::tr("Options"), [this] { showOptions(); }});
    setRightBarButtons(std::move(right));
}

void EditChannelListViewController::addChannels() {
    NavigationController* navigation = navigationController();
    if (!m_environment->sourceActions) {
        showChannelListWithChannelData();
    } else if (navigation) {
        navigation->pushFrom(*this,
                             std::make_shared<AddSourceViewController>(
                                 m_environment, AddSourceViewController::Start{{}, catalogueOpener()}));
    }
}

void EditChannelListViewController::showOwnSources() {
    if (NavigationController* navigation = navigationController()) {
        navigation->pushFrom(*this,
                             std::make_shared<OwnSourcesViewController>(m_environment, catalogueOpener()));
    }
}

void EditChannelListViewController::showOptions() {
    if (NavigationController* navigation = navigationController()) {
        navigation->pushFrom(*this, std::make_shared<OptionsViewController>(m_environment));
    }
}

/// Returns to this screen and opens the catalogue from here.
std::function<void()> EditChannelListViewController::catalogueOpener() {
    return [weak = weakFromThis<EditChannelListViewController>()] {
        const auto self = weak.lock();
        if (self && self->navigationController()) {
            self->navigationController()->popToRoot();
            self->showChannelListWithChannelData();
        }
    };
}

void EditChannelListViewController::setEditing(bool editing) {
    table().setEditing(editing);
    setButtons();
}

void EditChannelListViewController::showChannelListWithChannelData() {
    if (NavigationController* navigation = navigationController()) {
        navigation->pushFrom(*this, std::make_shared<AllChannelsViewController>(m_environment, m_editor));
    }
}

// ---- the user's events

void EditChannelListViewController::rowEvent(const RowId& id, const RowEvent& event) {
    if (std::holds_alternative<Deleted>(event)) {
        m_editor->remove({*id.channel()});
    } else if (const auto* moved = std::get_if<MovedBefore>(&event)) {
        m_editor->move(*id.channel(), moved->next ? std::optional(*moved->next->channel()) : std::nullopt);
    }
}

std::vector<RowAction> EditChannelListViewController::actionsForRow(const RowId& id) {
    const ObjectId channel = *id.channel();
    std::vector<RowAction> actions;
    actions.push_back({Localized::tr("Remove"), {}, ColorRole::Alarm, [editor = m_editor, channel] {
                           editor->remove({channel});
                       }});
    if (table().indexOf(id) != 0) {
        actions.push_back({Localized::tr("Move to top"), {}, ColorRole::Tint, [editor = m_editor, channel] {
                               const std::vector<ObjectId> selected = editor->selected();
                               if (!selected.empty()) {
                                   editor->move(channel, selected.front());
                               }
                           }});
    }
    return actions;
}

} // namespace guide
