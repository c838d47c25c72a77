#include "screens/sources/SourceChannelGroups.h"

#include "screens/Localized.h"
#include "screens/sources/SourceTexts.h"
#include "text/search/FoldedText.h"

#include <QCollator>
#include <QHash>
#include <QStringMatcher>

#include <algorithm>
#include <numeric>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Shorter lists need no headings.
constexpr std::size_t kLeastForIndex = 20;

/// The first letter without its marks; "#" for what is no letter.
QString indexTitleOf(const QString& title) {
    const QString folded = foldedText(title);
    if (folded.isEmpty() || !(folded[0].isLetter() || folded[0].isHighSurrogate())) {
        return u"#"_s;
    }
    return folded.left(folded[0].isHighSurrogate() ? 2 : 1).toUpper();
}

using Group = SourceChannelGroups::Group;

/// The groups with a channel, the one of all first and those with many channels before the others.
std::vector<Group> withAll(std::size_t count, std::vector<Group> groups) {
    std::ranges::stable_sort(
        groups, [](const Group& a, const Group& b) { return a.channels.size() > b.channels.size(); });
    Group all{Localized::tr("All channels"), SourceChannelGroups::Places(count)};
    std::iota(all.channels.begin(), all.channels.end(), 0);
    groups.insert(groups.begin(), std::move(all));
    return groups;
}

/// Collects places by the names of their groups.
class GroupTable {
  public:
    void add(const QString& name, std::size_t place) {
        auto found = m_places.constFind(name);
        if (found == m_places.constEnd()) {
            found = m_places.insert(name, m_groups.size());
            m_groups.push_back({name, {}});
        }
        SourceChannelGroups::Places& places = m_groups[*found].channels;
        if (places.empty() || places.back() != place) {
            places.push_back(place);
        }
    }
    std::vector<Group> take() { return std::move(m_groups); }

  private:
    QHash<QString, std::size_t> m_places;
    std::vector<Group> m_groups;
};

} // namespace

std::shared_ptr<const SourceChannelGroups>
SourceChannelGroups::ofFeed(const std::vector<PreviewChannel>& channels, const Device& device) {
    auto made = std::make_shared<SourceChannelGroups>();
    QCollator collator(device.locale());
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<QString> titles;
    std::vector<QCollatorSortKey> keys;
    titles.reserve(channels.size());
    keys.reserve(channels.size());
    for (const PreviewChannel& channel : channels) {
        titles.push_back(channel.title());
        keys.push_back(collator.sortKey(titles.back()));
    }
    std::vector<std::size_t> order(channels.size());
    std::iota(order.begin(), order.end(), 0);
    std::ranges::stable_sort(order, [&](std::size_t a, std::size_t b) {
        const bool emptyA = channels[a].shows == 0;
        const bool emptyB = channels[b].shows == 0;
        return emptyA != emptyB ? emptyB : keys[a].compare(keys[b]) < 0;
    });
    GroupTable groups;
    for (const std::size_t place : order) {
        const PreviewChannel& channel = channels[place];
        groups.add(languageText(channel.language, device.locale()), made->m_channels.size());
        made->addSearchText(channel.names.join(u'\n') + u'\n' + channel.id);
        made->m_channels.push_back(
            {.key = channel.id,
             .title = titles[place],
             .detail =
                 channel.shows == 0 ? Localized::tr("No shows") : onNowText(channel.running, 0min, device),
             .indexTitle = channel.shows == 0 ? Localized::tr("Without shows") : indexTitleOf(titles[place]),
             .icon = {PictureKey::Kind::Initials, titles[place]},
             .hasShows = channel.shows > 0});
    }
    made->m_groups = withAll(made->m_channels.size(), groups.take());
    return made;
}

std::shared_ptr<const SourceChannelGroups> SourceChannelGroups::ofPlaylist(const MatchedPlaylist& playlist,
                                                                           const Device& device) {
    auto made = std::make_shared<SourceChannelGroups>();
    GroupTable groups;
    for (const MatchedEntry& entry : playlist.entries) {
        for (const QString& group : entry.entry.groups) {
            groups.add(group, made->m_channels.size());
        }
        const PreviewChannel* guide = entry.guide ? playlist.channel(*entry.guide) : nullptr;
        const QString onNow = guide ? onNowText(guide->running, 0min, device) : QString();
        made->addSearchText(entry.entry.name + u'\n' + entry.entry.guideName);
        made->m_channels.push_back({.key = entry.key,
                                    .title = entry.entry.name,
                                    .detail = !onNow.isEmpty() ? onNow
                                              : entry.guide || playlist.feeds.empty()
                                                  ? QString()
                                                  : Localized::tr("No schedule"),
                                    .indexTitle = {},
                                    .icon = {PictureKey::Kind::Initials, entry.entry.name},
                                    .hasShows = entry.guide.has_value()});
    }
    made->m_groups = withAll(made->m_channels.size(), groups.take());
    return made;
}

void SourceChannelGroups::addSearchText(const QString& text) {
    m_searchTexts.push_back(foldedText(text));
}

SourceChannelGroups::Places SourceChannelGroups::matching(const QString& text) const {
    Places places;
    const QString pattern = foldedText(text);
    const QStringMatcher matcher(pattern);
    for (std::size_t place = 0; place < m_searchTexts.size(); ++place) {
        if (matcher.indexIn(m_searchTexts[place]) >= 0) {
            places.push_back(place);
        }
    }
    return places;
}

std::vector<Section> SourceChannelGroups::rows(const Places& places, const QSet<QString>& chosen,
                                               const QString& list) const {
    const bool indexed = places.size() >= kLeastForIndex;
    std::vector<Section> sections;
    for (const std::size_t place : places) {
        const Channel& channel = m_channels[place];
        const QString heading = indexed || !channel.hasShows ? channel.indexTitle : QString();
        if (sections.empty() || sections.back().header != heading) {
            sections.push_back({.id = list + u'/' + heading,
                                .header = heading,
                                .indexTitle = indexed && channel.hasShows ? heading : QString()});
        }
        sections.back().rows.push_back({.id = {sections.back().id, channel.key},
                                        .content = ChannelRow{.title = channel.title,
                                                              .subtitle = channel.detail,
                                                              .icon = channel.icon,
                                                              .checked = chosen.contains(channel.key)},
                                        .selectable = true});
    }
    return sections;
}

} // namespace guide
