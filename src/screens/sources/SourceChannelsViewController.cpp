#include "screens/sources/SourceChannelsViewController.h"

#include "screens/Localized.h"
#include "screens/kit/NavigationController.h"
#include "screens/sources/SourceTexts.h"

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// Of the row that chooses the group.
const SectionId& choiceSection() {
    static const SectionId id = u"group"_s;
    return id;
}
/// Of the sections of channels.
constexpr auto kList = "list "_L1;
/// With more changed rows it is faster to make all of them again.
constexpr std::size_t kMostSingleUpdates = 200;

bool isChannelRow(const RowId& id) {
    return id.section.startsWith(kList);
}

} // namespace

SourceChannelsViewController::SourceChannelsViewController(
    std::shared_ptr<const ScreenEnvironment> environment, const OwnSourceId& source)
    : m_environment(std::move(environment))
    , m_source(source) {
    if (const auto found = actions().sourceWithId(source)) {
        for (const OwnChannel& channel : found->channels) {
            m_chosen.insert(channel.key);
        }
    }
}

SourceChannelsViewController::SourceChannelsViewController(
    std::shared_ptr<const ScreenEnvironment> environment)
    : m_environment(std::move(environment)) {}

void SourceChannelsViewController::viewDidLoad() {
    setButtons();
    if (m_source) {
        readAgain();
    }
}

void SourceChannelsViewController::viewWillAppear() {
    table().deselectRow();
}

// ---- what the source offers

void SourceChannelsViewController::readAgain() {
    setProgress(Progress{});
    const auto weak = weakFromThis<SourceChannelsViewController>();
    m_reading = actions().proposeAgain(*m_source, {}, [weak](SourceProposal proposal) {
        if (const auto self = weak.lock()) {
            const SourceResult result = proposal.preview.result;
            self->setProgress(std::nullopt);
            if (result == SourceResult::Read || result == SourceResult::Incomplete) {
                self->propose(std::move(proposal));
                self->start();
            } else {
                self->readFailed(sourceResultText(result, proposal.detail));
            }
        }
    });
}

void SourceChannelsViewController::readFailed(const QString& sentence) {
    table().setEmptyNote(EmptyNote{Localized::tr("Its channels cannot be shown"), sentence,
                                   Localized::tr("Try again"), [this] {
                                       actions().refresh(*m_source);
                                       readAgain();
                                   }});
}

void SourceChannelsViewController::start() {
    if (m_proposal->preview.kind != SourceKind::Playlist) {
        makeGroups();
        return;
    }
    const auto added = m_source ? actions().sourceWithId(*m_source) : std::nullopt;
    m_matches = std::make_shared<PlaylistMatches>(
        actions(), m_proposal->preview.playlist, added ? added->corrections : std::vector<GuideCorrection>());
    m_matches->setObserver([weak = weakFromThis<SourceChannelsViewController>()] {
        if (const auto self = weak.lock()) {
            self->makeGroups();
        }
    });
    m_matches->match();
}

std::vector<MatchedEntry> SourceChannelsViewController::matchedEntries() const {
    return m_matches ? m_matches->entries() : std::vector<MatchedEntry>();
}

void SourceChannelsViewController::makeGroups() {
    MainBlock<std::shared_ptr<const SourceChannelGroups>> answer =
        m_groupsAnswer.expect(weak_from_this(), [this](const auto& groups) {
            m_groups = groups;
            m_group = std::min(m_group, groups->groups().size() - 1);
            setSearchField(SearchField{
                Localized::tr("Search %n channel(s)", nullptr, static_cast<int>(groups->channels().size())),
                m_searched});
            show();
        });
    std::function<std::shared_ptr<const SourceChannelGroups>()> make;
    if (m_matches) {
        make = [playlist = m_matches->matched(), &device = m_environment->device] {
            return SourceChannelGroups::ofPlaylist(playlist, device);
        };
    } else {
        make = [channels = m_proposal->preview.channels, &device = m_environment->device] {
            return SourceChannelGroups::ofFeed(channels, device);
        };
    }
    m_environment->queues.globalQueue(QueuePriority::UserInitiated)
        .async([&mainQueue = m_environment->mainQueue, make = std::move(make),
                answer = std::move(answer)]() mutable { answer.post(mainQueue, make()); });
}

// ---- rows

void SourceChannelsViewController::searchTextEdited(const QString& text) {
    m_searched = text.trimmed();
    m_lastTap.reset();
    show();
}

SourceChannelGroups::Places SourceChannelsViewController::shownPlaces() const {
    return m_searched.isEmpty() ? m_groups->groups()[m_group].channels : m_groups->matching(m_searched);
}

void SourceChannelsViewController::show() {
    if (!m_groups) {
        return;
    }
    using Made = std::shared_ptr<const std::vector<Section>>;
    MainBlock<Made> answer = m_rowsAnswer.expect(weak_from_this(), [this,
                                                                    chosen = m_chosen](const Made& made) {
        std::vector<Section> sections;
        if (m_searched.isEmpty()) {
            sections = headSections();
            sections.push_back(groupSection());
        }
        sections.insert(sections.end(), made->begin(), made->end());
        table().setEmptyNote(EmptyNote{
            m_searched.isEmpty() ? Localized::tr("No channels")
                                 : Localized::tr("No channel matches “%1”").arg(m_searched),
            m_searched.isEmpty() ? QString() : Localized::tr("The search looks at all names of a channel.")});
        table().setSections(std::move(sections));
        if (chosen != m_chosen) {
            updateChecks();
        }
        setButtons();
    });
    const QString list =
        QString(kList) + (m_searched.isEmpty() ? QString::number(m_group) : u"search "_s + m_searched);
    m_environment->queues.globalQueue(QueuePriority::UserInitiated)
        .async([&mainQueue = m_environment->mainQueue, groups = m_groups, searched = m_searched,
                group = m_group, chosen = m_chosen, list, answer = std::move(answer)]() mutable {
            answer.post(mainQueue, std::make_shared<const std::vector<Section>>(
                                       groups->rows(searched.isEmpty() ? groups->groups()[group].channels
                                                                       : groups->matching(searched),
                                                    chosen, list)));
        });
}

Section SourceChannelsViewController::groupSection() const {
    Section section{.id = choiceSection()};
    if (m_groups->groups().size() > 2) {
        const QLocale locale = m_environment->device.locale();
        ChoiceRow row{.title = Localized::tr("Group"), .chosen = static_cast<int>(m_group)};
        for (const SourceChannelGroups::Group& group : m_groups->groups()) {
            row.choices.push_back(
                u"%1 (%2)"_s.arg(group.title, locale.toString(qulonglong(group.channels.size()))));
        }
        section.rows.push_back({.id = {section.id, u"group"_s}, .content = std::move(row)});
    }
    return section;
}

void SourceChannelsViewController::updateHead() {
    if (!m_groups || !m_searched.isEmpty()) {
        return;
    }
    for (Section& section : headSections()) {
        table().setRows(section.id, std::move(section.rows));
    }
}

void SourceChannelsViewController::updateChecks() {
    std::vector<Row> changed;
    for (const Section& section : table().latestSections()) {
        for (const Row& row : section.rows) {
            if (isChannelRow(row.id) &&
                std::get<ChannelRow>(row.content).checked != m_chosen.contains(*row.id.name())) {
                changed.push_back(row);
            }
        }
    }
    if (changed.size() > kMostSingleUpdates) {
        show();
        return;
    }
    for (Row& row : changed) {
        auto& content = std::get<ChannelRow>(row.content);
        content.checked = !content.checked;
        table().setRow(std::move(row));
    }
}

QString SourceChannelsViewController::doneTitle() const {
    return Localized::tr("Done");
}

void SourceChannelsViewController::setButtons() {
    setTitle(m_chosen.isEmpty()
                 ? Localized::tr("Choose channels")
                 : Localized::tr("%n channel(s) chosen", nullptr, static_cast<int>(m_chosen.size())));
    std::vector<BarButton> buttons{{BarButton::Kind::Title, doneTitle(), [this] { done(); }, canBeDone()}};
    if (m_groups) {
        const bool all = allShownChosen();
        buttons.push_back(
            {BarButton::Kind::Title, all ? Localized::tr("Unselect all") : Localized::tr("Select all"),
             [this, all] { all ? setChosen(shownKeys(), false) : selectShown(); }, table().rowCount() > 0});
    }
    setRightBarButtons(std::move(buttons));
}

// ---- choosing

void SourceChannelsViewController::rowEvent(const RowId& id, const RowEvent& event) {
    if (id.section == choiceSection()) {
        if (const auto* chosen = std::get_if<Chosen>(&event)) {
            m_group = static_cast<std::size_t>(chosen->choice);
            m_lastTap.reset();
            show();
        }
    } else if (!isChannelRow(id)) {
        headEvent(id, event);
    } else if (const auto* tap = std::get_if<Tapped>(&event)) {
        tapped(id, tap->extending);
        table().deselectRow();
    }
}

void SourceChannelsViewController::tapped(const RowId& row, bool extending) {
    std::vector<QString> keys;
    bool checked = !m_chosen.contains(*row.name());
    const std::optional<int> from = m_lastTap ? table().indexOf(m_lastTap->row) : std::nullopt;
    if (extending && from) {
        checked = m_lastTap->checked;
        const auto [first, last] = std::minmax(*from, *table().indexOf(row));
        for (int index = first; index <= last; ++index) {
            if (const RowId& each = table().rowAt(index).id; isChannelRow(each)) {
                keys.push_back(*each.name());
            }
        }
    } else {
        keys.push_back(*row.name());
    }
    m_lastTap = LastTap{row, checked};
    setChosen(keys, checked);
}

void SourceChannelsViewController::setChosen(const std::vector<QString>& keys, bool chosen) {
    for (const QString& key : keys) {
        if (chosen) {
            m_chosen.insert(key);
        } else {
            m_chosen.remove(key);
        }
    }
    updateChecks();
    setButtons();
}

std::vector<QString> SourceChannelsViewController::shownKeys() const {
    std::vector<QString> keys;
    for (const std::size_t place : shownPlaces()) {
        keys.push_back(m_groups->channels()[place].key);
    }
    return keys;
}

bool SourceChannelsViewController::allShownChosen() const {
    return std::ranges::all_of(shownPlaces(), [this](std::size_t place) {
        return m_chosen.contains(m_groups->channels()[place].key);
    });
}

bool SourceChannelsViewController::selectAll() {
    if (!m_groups) {
        return false;
    }
    if (!allShownChosen()) {
        selectShown();
    }
    return true;
}

void SourceChannelsViewController::selectShown() {
    const std::vector<QString> keys = shownKeys();
    if (std::ssize(keys) <= kMostWithoutAsking) {
        setChosen(keys, true);
        return;
    }
    m_environment->navigation.presentAlert(
        {Localized::tr("Select all"),
         Localized::tr("Select %n channel(s)?", nullptr, static_cast<int>(keys.size())),
         {{Localized::tr("Cancel"), AlertAction::Style::Cancel},
          {Localized::tr("Select"), AlertAction::Style::Default,
           [weak = weakFromThis<SourceChannelsViewController>(), keys] {
               if (const auto self = weak.lock()) {
                   self->setChosen(keys, true);
               }
           }}}});
}

QStringList SourceChannelsViewController::chosenKeys() const {
    QStringList keys;
    if (m_groups) {
        QSet<QString> left = m_chosen;
        for (const SourceChannelGroups::Channel& channel : m_groups->channels()) {
            if (left.remove(channel.key)) {
                keys << channel.key;
            }
        }
        // Those that the source does not have now were chosen all the same.
        for (const QString& key : left) {
            keys << key;
        }
    }
    return keys;
}

void SourceChannelsViewController::done() {
    actions().choose(*m_source, *m_proposal, chosenKeys(), matchedEntries());
    if (NavigationController* navigation = navigationController()) {
        navigation->pop();
    }
}

} // namespace guide
