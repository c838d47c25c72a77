#include "screens/channels/AllChannelsViewController.h"

#include "screens/Localized.h"
#include "screens/kit/NavigationController.h"

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// The list of groups has one section.
const SectionId& groupSection() {
    static const SectionId id = u"groups"_s;
    return id;
}

/// Shorter lists need no index strip.
constexpr std::size_t kLeastForIndex = 20;
/// Selecting more channels at once has to be confirmed, because each of them is loaded.
constexpr std::size_t kMostWithoutAsking = 50;
/// Longer lists cannot be selected as a whole.
constexpr std::size_t kMostSelectable = 500;

} // namespace

AllChannelsViewController::AllChannelsViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                                     std::shared_ptr<SelectionEditor> editor)
    : m_environment(std::move(environment))
    , m_editor(std::move(editor))
    , m_selectedSubmenu(false) {}

AllChannelsViewController::AllChannelsViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                                     std::shared_ptr<SelectionEditor> editor,
                                                     std::shared_ptr<const ChannelGroups> groups,
                                                     const QString& group)
    : m_environment(std::move(environment))
    , m_editor(std::move(editor))
    , m_groups(std::move(groups))
    , m_selectedSubmenu(true)
    , m_group(group) {}

void AllChannelsViewController::viewDidLoad() {
    setSearchField(SearchField{Localized::tr("Search all channels")});
}

void AllChannelsViewController::viewWillAppear() {
    table().deselectRow();
    reloadData();
}

void AllChannelsViewController::searchTextEdited(const QString& text) {
    const QString searched = text.trimmed();
    // An emptied field brings back the first group, whichever was open.
    if (m_selectedSubmenu && searched.isEmpty() && !m_searched.isEmpty()) {
        m_group = m_groups->groups().front().id;
    }
    m_searched = searched;
    show();
}

void AllChannelsViewController::reloadData() {
    if (!viewLoaded()) {
        return;
    }
    const SharedCatalogueSnapshot catalogue = m_environment->catalogue.snapshot();
    const bool isNew = !m_groups || m_groups->catalogue() != catalogue;
    if (isNew) {
        m_groups = std::make_shared<const ChannelGroups>(catalogue, m_environment->alphabet,
                                                         m_environment->device.locale());
    }
    if (isNew || showsGroups()) {
        show();
    } else {
        updateChecks();
    }
}

void AllChannelsViewController::show() {
    if (!m_searched.isEmpty()) {
        m_list = m_groups->matching(m_searched);
    } else if (m_selectedSubmenu) {
        m_list = m_groups->group(m_group).channels;
    } else {
        m_list.reset();
    }
    if (showsGroups()) {
        showGroups();
    } else {
        showChannels();
    }
    setButtons();
}

// ---- rows

void AllChannelsViewController::showGroups() {
    setTitle(Localized::tr("Channels"));
    table().setEmptyNote(EmptyNote{Localized::tr("No channels"), Localized::tr("The catalogue is empty.")});
    const std::unordered_set<ObjectId> selected = m_editor->selectedSet();
    Section rows{.id = groupSection()};
    for (const ChannelGroups::Group& group : m_groups->groups()) {
        rows.rows.push_back(groupRow(group, selected));
    }
    table().setSections({std::move(rows)});
}

Row AllChannelsViewController::groupRow(const ChannelGroups::Group& group,
                                        const std::unordered_set<ObjectId>& selected) const {
    const QLocale locale = m_environment->device.locale();
    const auto number = [&locale](std::size_t count) {
        return locale.toString(static_cast<qulonglong>(count));
    };
    return {.id = {groupSection(), group.id},
            .content = TextRow{.title = group.title,
                               .detail = Localized::tr("%1 of %2")
                                             .arg(number(selectedCount(*m_groups, group, selected)),
                                                  number(group.channels.size())),
                               .accessory = Accessory::Disclosure},
            .selectable = true};
}

void AllChannelsViewController::showChannels() {
    setTitle(m_groups->group(m_searched.isEmpty() ? m_group : QString()).title);
    table().setEmptyNote(
        m_searched.isEmpty()
            ? EmptyNote{Localized::tr("No channels"), Localized::tr("The catalogue is empty.")}
            : EmptyNote{Localized::tr("No channel matches “%1”").arg(m_searched),
                        Localized::tr("The search looks at the titles and languages of all channels.")});
    const std::unordered_set<ObjectId> selected = m_editor->selectedSet();
    // Rows of another list are other rows: a new list begins at its top, and replacing all rows at once is
    // faster than removing some everywhere.
    const QString list = m_searched.isEmpty() ? u"group "_s + m_group : u"search "_s + m_searched;
    const bool indexed = m_list->size() >= kLeastForIndex;
    std::vector<Section> sections;
    for (const std::size_t place : *m_list) {
        const ChannelGroups::Channel& channel = m_groups->channels()[place];
        if (sections.empty() || sections.back().header != channel.indexTitle) {
            sections.push_back({.id = list + u'/' + channel.indexTitle,
                                .header = channel.indexTitle,
                                .indexTitle = indexed ? channel.indexTitle : QString()});
        }
        ChannelRow row{.title = channel.title, .checked = selected.contains(channel.id)};
        if (m_environment->icons.hasIconFile(channel.iconName)) {
            row.icon = {PictureKey::Kind::ChannelIcon, channel.iconName};
        }
        sections.back().rows.push_back(
            {.id = {sections.back().id, channel.id}, .content = std::move(row), .selectable = true});
    }
    table().setSections(std::move(sections));
}

void AllChannelsViewController::updateChecks() {
    const std::unordered_set<ObjectId> selected = m_editor->selectedSet();
    std::vector<Row> changed;
    for (const Section& section : table().latestSections()) {
        for (const Row& row : section.rows) {
            if (std::get<ChannelRow>(row.content).checked != selected.contains(*row.id.channel())) {
                changed.push_back(row);
            }
        }
    }
    for (Row& row : changed) {
        auto& content = std::get<ChannelRow>(row.content);
        content.checked = !content.checked;
        table().setRow(std::move(row));
    }
    setButtons();
}

void AllChannelsViewController::setButtons() {
    std::vector<BarButton> buttons;
    if (!showsGroups() && m_list->size() > 1 && m_list->size() <= kMostSelectable) {
        if (allSelected()) {
            buttons.push_back({BarButton::Kind::Title, Localized::tr("Unselect all"),
                               [this] { m_editor->remove(shownChannels()); }});
        } else {
            buttons.push_back(
                {BarButton::Kind::Title, Localized::tr("Select all"), [this] { selectShown(); }});
        }
    }
    setRightBarButtons(std::move(buttons));
}

// ---- the user's events

void AllChannelsViewController::rowEvent(const RowId& id, const RowEvent& event) {
    const auto* tap = std::get_if<Tapped>(&event);
    if (!tap) {
        return;
    }
    if (const ObjectId* channel = id.channel()) {
        tapped(*channel, tap->extending);
        table().deselectRow();
    } else {
        openGroup(id, *id.name());
    }
}

void AllChannelsViewController::openGroup(const RowId& row, const QString& group) {
    NavigationController* navigation = navigationController();
    if (!navigation) {
        return;
    }
    auto submenu = std::make_shared<AllChannelsViewController>(m_environment, m_editor, m_groups, group);
    if (m_environment->device.userInterfaceIdiom() == UserInterfaceIdiom::Phone) {
        navigation->pushFrom(*this, std::move(submenu));
    } else {
        table().deselectRow();
        navigation->show(std::move(submenu), Presentation::Popover, row);
    }
}

void AllChannelsViewController::tapped(const ObjectId& channel, bool extending) {
    std::vector<ObjectId> channels;
    bool checked = false;
    if (extending && m_lastTap) {
        channels = range(m_lastTap->channel, channel);
        checked = m_lastTap->checked;
    }
    if (channels.empty()) {
        channels = {channel};
        checked = !m_editor->selectedSet().contains(channel);
    }
    m_lastTap = LastTap{channel, checked};
    if (checked) {
        m_editor->add(channels);
    } else {
        m_editor->remove(channels);
    }
}

std::vector<ObjectId> AllChannelsViewController::range(const ObjectId& from, const ObjectId& to) const {
    const std::vector<ObjectId> shown = shownChannels();
    auto first = std::ranges::find(shown, from);
    auto last = std::ranges::find(shown, to);
    if (first == shown.end() || last == shown.end()) {
        return {};
    }
    if (last < first) {
        std::swap(first, last);
    }
    return {first, last + 1};
}

std::vector<ObjectId> AllChannelsViewController::shownChannels() const {
    std::vector<ObjectId> channels;
    channels.reserve(m_list->size());
    for (const std::size_t place : *m_list) {
        channels.push_back(m_groups->channels()[place].id);
    }
    return channels;
}

bool AllChannelsViewController::allSelected() const {
    const std::unordered_set<ObjectId> selected = m_editor->selectedSet();
    return std::ranges::all_of(
        *m_list, [&](std::size_t place) { return selected.contains(m_groups->channels()[place].id); });
}

bool AllChannelsViewController::selectAll() {
    if (showsGroups() || m_list->size() > kMostSelectable) {
        return false;
    }
    if (!allSelected()) {
        selectShown();
    }
    return true;
}

void AllChannelsViewController::selectShown() {
    std::vector<ObjectId> channels = shownChannels();
    if (channels.size() <= kMostWithoutAsking) {
        m_editor->add(channels);
        return;
    }
    const QString question =
        Localized::tr("Select %n channel(s)?", nullptr, static_cast<int>(channels.size()));
    m_editor->ask({Localized::tr("Select all"),
                   question,
                   {{Localized::tr("Cancel"), AlertAction::Style::Cancel},
                    {Localized::tr("Select"), AlertAction::Style::Default,
                     [editor = m_editor, channels = std::move(channels)] { editor->add(channels); }}}});
}

} // namespace guide
