#include "screens/sources/SourcePreviewViewController.h"

#include "screens/Localized.h"
#include "screens/kit/NavigationController.h"
#include "screens/sources/MatchReviewViewController.h"
#include "screens/sources/SourceTexts.h"

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kSource = "source"_L1;
constexpr auto kWarnings = "warnings"_L1;
constexpr auto kAddAll = "add all"_L1;
constexpr auto kTime = "time"_L1;
constexpr auto kSchedule = "schedule"_L1;

constexpr auto kName = "name"_L1;
constexpr auto kShift = "shift"_L1;
constexpr auto kFeed = "feed "_L1;
/// Of the feeds that a playlist names, before the user asks for all.
constexpr std::size_t kMostFeeds = 5;
constexpr auto kAllFeeds = "all feeds"_L1;
constexpr auto kMatch = "match"_L1;
constexpr auto kReview = "review"_L1;
constexpr auto kCancel = "cancel"_L1;

Row textRow(const SectionId& section, const QString& name, TextRow content, bool selectable = false) {
    return {.id = {section, name}, .content = std::move(content), .selectable = selectable};
}

/// The languages with most channels first: "Czech 120, Slovak 70".
QString languagesText(const QMap<QString, int>& languages, const QLocale& locale) {
    std::vector<std::pair<QString, int>> sorted(languages.constKeyValueBegin(), languages.constKeyValueEnd());
    std::ranges::stable_sort(sorted, [](const auto& a, const auto& b) { return a.second > b.second; });
    QStringList texts;
    for (const auto& [language, count] : sorted) {
        texts << languageText(language, locale) + QChar(QChar::Nbsp) + locale.toString(count);
    }
    return texts.join(u", "_s);
}

} // namespace

SourcePreviewViewController::SourcePreviewViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                                         SourceProposal proposal)
    : SourceChannelsViewController(std::move(environment))
    , m_name(proposal.name) {
    if (proposal.preview.kind == SourceKind::Playlist) {
        m_feeds = std::make_shared<PlaylistFeeds>(actions(), proposal.preview.playlist);
    }
    propose(std::move(proposal));
}

void SourcePreviewViewController::viewDidLoad() {
    SourceChannelsViewController::viewDidLoad();
    start();
}

// ---- rows

std::vector<Section> SourcePreviewViewController::headSections() const {
    return {sourceSection(), warningSection(), addAllSection(), timeSection(), scheduleSection()};
}

Section SourcePreviewViewController::sourceSection() const {
    const SourcePreview& preview = proposal().preview;
    const QLocale locale = environment().device.locale();
    Section section{.id = kSource};
    section.rows.push_back({.id = {section.id, QString(kName)},
                            .content = InputRow{.title = Localized::tr("Name"), .text = m_name}});
    if (isPlaylist()) {
        section.rows.push_back(
            textRow(section.id, u"counts"_s,
                    {.title = Localized::tr("%n channel(s)", nullptr, int(preview.playlist.entries.size())),
                     .subtitle = preview.playlist.truncated
                                     ? Localized::tr("The list is longer; the rest is left out.")
                                     : QString()}));
        return section;
    }
    const auto number = [&locale](int value) { return locale.toString(value); };
    QStringList facts{Localized::tr("%1 with shows").arg(number(preview.channelsWithShows)),
                      Localized::tr("%1 on air now").arg(number(preview.channelsOnAir)),
                      Localized::tr("%1 in the next 24 hours").arg(number(preview.channelsLive))};
    section.rows.push_back(
        textRow(section.id, u"counts"_s,
                {.title = Localized::tr("%n channel(s)", nullptr, int(preview.channels.size())),
                 .subtitle = facts.join(u" · "_s)}));
    if (preview.first && preview.last) {
        facts = {Localized::tr("%n show(s)", nullptr, preview.shows),
                 locale.formattedDataSize(preview.unpackedBytes, 1, QLocale::DataSizeSIFormat)};
        // Over more days, the same weekday would come twice.
        const bool isShort = *preview.last - *preview.first < std::chrono::days(6);
        const auto time = [this, isShort](Moment moment) {
            return isShort ? nearDayAndTime(moment + m_shift, environment().clock.now(), environment().device)
                           : dayAndTime(moment + m_shift, environment().device);
        };
        const QString languages = languagesText(preview.languages, locale);
        section.rows.push_back(textRow(
            section.id, u"shows"_s,
            {.title = Localized::tr("From %1 to %2").arg(time(*preview.first), time(*preview.last)),
             .subtitle = facts.join(u" · "_s) + (languages.isEmpty() ? QString() : u'\n' + languages)}));
    }
    return section;
}

Section SourcePreviewViewController::warningSection() const {
    Section section{.id = kWarnings};
    for (const SourceWarning warning : proposal().preview.warnings) {
        section.rows.push_back(
            textRow(section.id, QString::number(static_cast<int>(warning)),
                    {.title = sourceWarningText(warning, proposal().preview, environment().device),
                     .titleColor = ColorRole::Alarm,
                     .symbol = Symbol::Warning}));
    }
    return section;
}

/// All channels by one tap, where they are few enough to need no question.
Section SourcePreviewViewController::addAllSection() const {
    Section section{.id = kAddAll};
    const SourcePreview& preview = proposal().preview;
    const int count =
        isPlaylist() ? static_cast<int>(matches()->entries().size()) : preview.channelsWithShows;
    if (count == 0 || count > kMostWithoutAsking) {
        return section;
    }
    const bool areAll = isPlaylist() || std::ssize(preview.channels) == count;
    section.rows.push_back(
        {.id = {section.id, QString(kAddAll)},
         .content =
             ButtonRow{.title = areAll ? Localized::tr("Add all %n channel(s)", nullptr, count)
                                       : Localized::tr("Add the %n channel(s) with shows", nullptr, count),
                       .style = ButtonRow::Style::Primary,
                       .enabled = !(m_feeds && m_feeds->loading())},
         .selectable = true});
    return section;
}

std::vector<QString> SourcePreviewViewController::keysOfAll() const {
    std::vector<QString> keys;
    if (isPlaylist()) {
        for (const MatchedEntry& entry : matches()->entries()) {
            keys.push_back(entry.key);
        }
        return keys;
    }
    for (const PreviewChannel& channel : proposal().preview.channels) {
        if (channel.shows > 0) {
            keys.push_back(channel.id);
        }
    }
    return keys;
}

/// The evening news by which a wrong zone is seen, with what moves the times.
Section SourcePreviewViewController::timeSection() const {
    Section section{.id = kTime};
    if (isPlaylist()) {
        return section;
    }
    const QLocale locale = environment().device.locale();
    if (const auto& news = proposal().preview.news) {
        section.rows.push_back(textRow(
            section.id, u"news"_s,
            {.title = u"%1, %2, %3"_s.arg(news->show.title, news->channel,
                                          timeOfDay(news->show.start + m_shift, environment().device)),
             .subtitle = Localized::tr("Is it on at this time? Otherwise move all times."),
             .symbol = Symbol::News}));
    }
    const auto shifts = shiftChoices(m_shift);
    ChoiceRow choice{.title = Localized::tr("Move all times")};
    for (const std::chrono::minutes shift : shifts) {
        choice.choices.push_back(shiftText(shift, locale));
    }
    choice.chosen = static_cast<int>(std::ranges::find(shifts, m_shift) - shifts.begin());
    section.rows.push_back({.id = {section.id, QString(kShift)}, .content = std::move(choice)});
    return section;
}

/// Where a playlist's channels take their schedules from.
Section SourcePreviewViewController::scheduleSection() const {
    Section section{.id = kSchedule};
    if (!isPlaylist()) {
        return section;
    }
    section.header = Localized::tr("Schedules");
    const bool loading = m_feeds->loading();
    const bool isFolded = !m_showsAllFeeds && m_feeds->feeds().size() > kMostFeeds + 1;
    for (std::size_t place = 0; place < m_feeds->feeds().size(); ++place) {
        const PlaylistFeeds::Feed& feed = m_feeds->feeds()[place];
        if (isFolded && place >= kMostFeeds && !feed.ticked) {
            continue;
        }
        const QString file = feed.address.section(u'?', 0, 0).section(u'/', -1);
        const QString state = !feed.problem.isEmpty() ? feed.problem
                              : feed.loaded           ? Localized::tr("Loaded")
                              : feed.ticked           ? Localized::tr("Asked when you go on")
                                                      : Localized::tr("Not asked");
        section.rows.push_back(
            textRow(section.id, kFeed + QString::number(place),
                    {.title = shortAddress(feed.address),
                     .subtitle = file.isEmpty() ? state : file + u" · "_s + state,
                     .titleColor = feed.problem.isEmpty() ? ColorRole::Label : ColorRole::Alarm,
                     .checked = feed.ticked,
                     .symbol = feed.problem.isEmpty() ? std::nullopt : std::optional(Symbol::Warning)},
                    !feed.loaded && !loading));
    }
    if (isFolded) {
        section.rows.push_back({.id = {section.id, QString(kAllFeeds)},
                                .content = ButtonRow{Localized::tr("Show all %n feed(s)", nullptr,
                                                                   int(m_feeds->feeds().size()))},
                                .selectable = true});
    }
    if (loading) {
        const QLocale locale = environment().device.locale();
        section.rows.push_back({.id = {section.id, u"progress"_s},
                                .content = ProgressRow{.title = readingText(m_feeds->channelsRead(),
                                                                            m_feeds->bytesRead(), locale)}});
        section.rows.push_back({.id = {section.id, QString(kCancel)},
                                .content = ButtonRow{Localized::tr("Cancel")},
                                .selectable = true});
    } else if (m_feeds->anyToLoad()) {
        section.rows.push_back({.id = {section.id, QString(kMatch)},
                                .content = ButtonRow{Localized::tr("Load and match now")},
                                .selectable = true});
    }
    addMatchRows(section);
    return section;
}

void SourcePreviewViewController::addMatchRows(Section& section) const {
    if (!matches() || !matches()->ready()) {
        return;
    }
    if (matches()->matched().feeds.empty()) {
        if (m_feeds->feeds().empty()) {
            section.rows.push_back(textRow(
                section.id, u"none"_s,
                {.title = Localized::tr("No schedules"),
                 .subtitle = Localized::tr("The playlist names no feed, and none was added. Add a feed "
                                           "to see what is on.")}));
        }
        return;
    }
    section.rows.push_back(
        textRow(section.id, QString(kReview),
                {.title = Localized::tr("Review matches"),
                 .subtitle = matchCountsText(matches()->counts(), environment().device.locale()),
                 .accessory = Accessory::Disclosure},
                true));
}

// ---- the user's events

void SourcePreviewViewController::headEvent(const RowId& id, const RowEvent& event) {
    if (const auto* edited = std::get_if<TextEdited>(&event)) {
        m_name = edited->text;
    } else if (const auto* chosen = std::get_if<Chosen>(&event)) {
        m_shift = shiftChoices(m_shift)[static_cast<std::size_t>(chosen->choice)];
        updateHead();
    } else if (std::holds_alternative<Tapped>(event)) {
        table().deselectRow();
        const QString name = *id.name();
        if (name == kMatch) {
            loadFeeds([] {});
        } else if (name == kCancel) {
            m_feeds->cancel();
            updateHead();
            setButtons();
        } else if (name == kAllFeeds) {
            m_showsAllFeeds = true;
            updateHead();
        } else if (name == kReview) {
            openReview();
        } else if (name == kAddAll) {
            setChosen(keysOfAll(), true);
            done();
        } else {
            feedTapped(id);
        }
    }
}

void SourcePreviewViewController::feedTapped(const RowId& id) {
    const auto place = static_cast<std::size_t>(id.name()->sliced(kFeed.size()).toUInt());
    m_feeds->setTicked(place, !m_feeds->feeds()[place].ticked);
    updateHead();
}

void SourcePreviewViewController::loadFeeds(std::function<void()> then) {
    const auto weak = weakFromThis<SourcePreviewViewController>();
    m_feeds->load(
        [weak] {
            if (const auto self = weak.lock()) {
                self->updateHead();
                self->setButtons();
            }
        },
        [weak, then = std::move(then)](const QString& problem) {
            if (const auto self = weak.lock()) {
                self->updateHead();
                self->setButtons();
                if (problem.isEmpty()) {
                    self->matches()->match(then);
                } else {
                    self->environment().navigation.presentNotice({problem});
                    self->matches()->match();
                }
            }
        });
}

void SourcePreviewViewController::openReview() {
    if (NavigationController* navigation = navigationController()) {
        navigation->pushFrom(*this,
                             std::make_shared<MatchReviewViewController>(sharedEnvironment(), matches()));
    }
}

void SourcePreviewViewController::done() {
    if (m_feeds && m_feeds->anyToLoad()) {
        loadFeeds([weak = weakFromThis<SourcePreviewViewController>()] {
            if (const auto self = weak.lock()) {
                self->add();
            }
        });
    } else {
        add();
    }
}

void SourcePreviewViewController::add() {
    // The stack lets go of the screen.
    const auto self = shared_from_this();
    OwnSource settings;
    settings.kind = proposal().kind;
    settings.name = m_name.trimmed().isEmpty() ? proposal().name : m_name.trimmed();
    settings.shift = m_shift;
    if (matches()) {
        settings.corrections = matches()->corrections();
    }
    if (m_feeds) {
        m_feeds->keep();
    }
    actions().add(proposal(), settings, chosenKeys(), matchedEntries());
    if (NavigationController* navigation = navigationController()) {
        navigation->popToRoot();
    }
    environment().navigation.selectTab(Symbol::Currently);
}

} // namespace guide
