#include "screens/sources/MatchReviewViewController.h"

#include "screens/Localized.h"
#include "screens/kit/NavigationController.h"
#include "screens/sources/SourceTexts.h"
#include "text/search/FoldedText.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto kReview = "review"_L1;
constexpr auto kWithout = "without"_L1;
constexpr auto kFound = "found"_L1;
constexpr auto kNone = "none"_L1;
/// Nobody looks through more; the search narrows them down.
constexpr std::size_t kMostFound = 300;
/// Shorter words, such as "TV" and "HD", are in too many names.
constexpr qsizetype kShortestWord = 3;

QSet<QString> longWords(const QString& names) {
    static const QRegularExpression separators(u"[^\\p{L}\\p{N}]+"_s);
    QSet<QString> words;
    for (const QString& word : foldedText(names).split(separators, Qt::SkipEmptyParts)) {
        if (word.size() >= kShortestWord) {
            words.insert(word);
        }
    }
    return words;
}

} // namespace

QString matchCountsText(const PlaylistMatches::Counts& counts, const QLocale& locale) {
    const auto number = [&locale](int value) { return locale.toString(value); };
    return Localized::tr("%1 by id · %2 by name · %3 to review · %4 without a schedule")
        .arg(number(counts.byId), number(counts.byName), number(counts.review), number(counts.none));
}

// ---- the entries

MatchReviewViewController::MatchReviewViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                                     std::shared_ptr<PlaylistMatches> matches)
    : m_environment(std::move(environment))
    , m_matches(std::move(matches)) {}

void MatchReviewViewController::viewDidLoad() {
    setTitle(Localized::tr("Review matches"));
    setSearchField(SearchField{Localized::tr("Search all channels of the playlist")});
}

void MatchReviewViewController::viewWillAppear() {
    table().deselectRow();
    show();
}

void MatchReviewViewController::searchTextEdited(const QString& text) {
    m_searched = text.trimmed();
    show();
}

void MatchReviewViewController::show() {
    std::vector<Section> sections;
    if (m_searched.isEmpty()) {
        Section review{.id = kReview,
                       .header = Localized::tr("To review"),
                       .footer = Localized::tr("Choose the channel whose schedule is right.")};
        Section without{.id = kWithout, .header = Localized::tr("Without a schedule")};
        for (const MatchedEntry& entry : m_matches->entries()) {
            if (entry.match == MatchKind::Review) {
                review.rows.push_back(entryRow(review.id, entry));
            } else if (entry.match == MatchKind::None) {
                without.rows.push_back(entryRow(without.id, entry));
            }
        }
        sections = {std::move(review), std::move(without)};
        table().setEmptyNote(EmptyNote{Localized::tr("Nothing to review"),
                                       Localized::tr("Every channel has a schedule. A search shows which.")});
    } else {
        Section all{.id = kFound};
        const QString pattern = foldedText(m_searched);
        for (const MatchedEntry& entry : m_matches->entries()) {
            if (all.rows.size() < kMostFound && foldedText(entry.entry.name).contains(pattern)) {
                all.rows.push_back(entryRow(all.id, entry));
            }
        }
        sections.push_back(std::move(all));
        table().setEmptyNote(EmptyNote{Localized::tr("No channel matches “%1”").arg(m_searched), {}});
    }
    table().setSections(std::move(sections));
}

Row MatchReviewViewController::entryRow(const SectionId& section, const MatchedEntry& entry) const {
    QString guide;
    if (entry.guide) {
        const PreviewChannel* channel = m_matches->matched().channel(*entry.guide);
        QStringList parts{channel ? channel->title() : entry.guide->channel};
        if (channel) {
            parts << onNowText(channel->running, 0min, m_environment->device);
        }
        parts.removeAll(QString());
        guide = parts.join(u" · "_s);
    } else if (entry.match == MatchKind::Review) {
        guide = Localized::tr("%n channel(s) come near", nullptr, static_cast<int>(entry.candidates.size()));
    } else {
        guide = Localized::tr("No schedule");
    }
    return {.id = {section, entry.key},
            .content = TextRow{.title = entry.entry.name,
                               .subtitle = guide,
                               .detail = entry.corrected ? Localized::tr("Yours") : QString(),
                               .accessory = Accessory::Disclosure},
            .selectable = true};
}

void MatchReviewViewController::rowEvent(const RowId& id, const RowEvent& event) {
    NavigationController* navigation = navigationController();
    if (navigation && std::holds_alternative<Tapped>(event)) {
        navigation->pushFrom(
            *this, std::make_shared<MatchChoiceViewController>(m_environment, m_matches, *id.name()));
    }
}

// ---- the channels for one of them

MatchChoiceViewController::MatchChoiceViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                                     std::shared_ptr<PlaylistMatches> matches, QString entry)
    : m_environment(std::move(environment))
    , m_matches(std::move(matches))
    , m_entry(std::move(entry)) {}

void MatchChoiceViewController::viewDidLoad() {
    setSearchField(SearchField{Localized::tr("Search the channels of the feeds")});
    show();
}

void MatchChoiceViewController::searchTextEdited(const QString& text) {
    m_searched = text.trimmed();
    show();
}

void MatchChoiceViewController::show() {
    const MatchedEntry* entry = m_matches->find(m_entry);
    if (!entry) {
        return;
    }
    setTitle(entry->entry.name);
    m_shown.clear();
    table().setEmptyNote(EmptyNote{Localized::tr("No channel matches “%1”").arg(m_searched), {}});
    table().setSections(m_searched.isEmpty() ? candidates(*entry) : found(foldedText(m_searched)));
}

Row MatchChoiceViewController::channelRow(const SectionId& section, const OwnSourceId& source,
                                          const FeedChannels& feed, const PreviewChannel& channel) const {
    const MatchedEntry* entry = m_matches->find(m_entry);
    const GuideChannel guide{source, channel.id};
    QStringList facts{onNowText(channel.running, 0min, m_environment->device)};
    if (facts[0].isEmpty()) {
        facts[0] = Localized::tr("Nothing on now");
    }
    if (m_matches->matched().feeds.size() > 1) {
        facts << feed.name();
    }
    m_shown.push_back(guide);
    return {.id = {section, QString::number(m_shown.size() - 1)},
            .content = TextRow{.title = channel.title(),
                               .subtitle = facts.join(u" · "_s),
                               .checked = entry && entry->guide == guide},
            .selectable = true};
}

/// What to offer where nothing comes near.
std::vector<GuideChannel> MatchChoiceViewController::withAWordOf(const QString& name) const {
    const QSet<QString> wanted = longWords(name);
    std::vector<GuideChannel> channels;
    for (const auto& [source, feed] : m_matches->matched().feeds) {
        for (const PreviewChannel& channel : feed->channels()) {
            if (channels.size() < kMostFound && longWords(channel.names.join(u' ')).intersects(wanted)) {
                channels.push_back({source, channel.id});
            }
        }
    }
    return channels;
}

std::vector<Section> MatchChoiceViewController::candidates(const MatchedEntry& entry) const {
    Section near{.id = kReview, .header = Localized::tr("Channels that come near")};
    std::vector<GuideChannel> offered =
        entry.candidates.empty() && !entry.guide ? withAWordOf(entry.entry.name) : entry.candidates;
    if (entry.guide && std::ranges::find(offered, *entry.guide) == offered.end()) {
        offered.insert(offered.begin(), *entry.guide);
    }
    const auto& feeds = m_matches->matched().feeds;
    for (const GuideChannel& guide : offered) {
        const auto feed = feeds.find(guide.source);
        if (const PreviewChannel* channel = m_matches->matched().channel(guide)) {
            near.rows.push_back(channelRow(near.id, guide.source, *feed->second, *channel));
        }
    }
    Section none{.id = kNone, .footer = Localized::tr("A search finds every channel of the feeds.")};
    none.rows.push_back({.id = {none.id, QString(kNone)},
                         .content = TextRow{.title = Localized::tr("No schedule"),
                                            .checked = !entry.guide && entry.match == MatchKind::None},
                         .selectable = true});
    return {std::move(near), std::move(none)};
}

std::vector<Section> MatchChoiceViewController::found(const QString& pattern) const {
    Section section{.id = kFound};
    for (const auto& [source, feed] : m_matches->matched().feeds) {
        for (const PreviewChannel& channel : feed->channels()) {
            if (section.rows.size() < kMostFound &&
                foldedText(channel.names.join(u'\n') + u'\n' + channel.id).contains(pattern)) {
                section.rows.push_back(channelRow(section.id, source, *feed, channel));
            }
        }
    }
    return {std::move(section)};
}

void MatchChoiceViewController::rowEvent(const RowId& id, const RowEvent& event) {
    if (!std::holds_alternative<Tapped>(event)) {
        return;
    }
    // The stack lets go of the screen.
    const auto self = shared_from_this();
    const auto place = static_cast<std::size_t>(id.name()->toUInt());
    m_matches->correct(m_entry, id.section == kNone ? std::nullopt : std::optional(m_shown[place]));
    if (NavigationController* navigation = navigationController()) {
        navigation->pop();
    }
}

} // namespace guide
