#include "screens/detail/DetailViewController.h"

#include "alarms/AlarmExplanations.h"
#include "alarms/AlarmText.h"
#include "screens/FactTexts.h"
#include "screens/Localized.h"
#include "screens/ShowRows.h"
#include "screens/ShowTexts.h"
#include "screens/alarms/AlarmTexts.h"
#include "screens/compound/CompoundListingsViewController.h"
#include "screens/detail/ShowPage.h"
#include "screens/favorites/FavoriteSettingsTimeThresholdViewController.h"
#include "screens/kit/NavigationController.h"
#include "store/ShownEnds.h"
#include "text/display/Transliteration.h"

#include <algorithm>
#include <span>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kHead = "title"_L1;
constexpr auto kActions = "actions"_L1;
constexpr auto kFavourite = "favorite"_L1;
constexpr auto kAlarm = "alarm"_L1;
constexpr auto kRefusal = "refusal"_L1;
constexpr auto kFacts = "facts"_L1;
constexpr auto kShowAll = "show all"_L1;
constexpr qsizetype kPeopleShown = 10;
/// Of the one archive of past broadcasts.
constexpr auto kArchiveLanguage = "hr"_L1;
/// The width of a page, at most.
constexpr double kPictureSide = 720;

RowId rowId(const SectionId& section, const QString& name) {
    return {section, name};
}

std::optional<Moment> shownEnd(const ShowItem& show) {
    return ShownEnds(std::span(&show, 1)).endOf(*show.entry());
}

/// Any of them will do; always the same one is better.
QUrl pictureOf(const PictureURLs& pictures) {
    const std::vector<QUrl> urls = pictures.urls();
    return *std::min_element(urls.begin(), urls.end());
}

} // namespace

DetailViewController::DetailViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                           ShowItem show, const QString& channelIconName)
    : m_environment(std::move(environment))
    , m_show(std::move(show))
    , m_channelIcon(m_environment->icons.hasIconFile(channelIconName)
                        ? PictureKey{PictureKey::Kind::ChannelIcon, channelIconName}
                        : PictureKey())
    , m_minuteTick(m_environment->clock, m_environment->mainQueue, m_environment->applicationState) {
    const SharedCatalogueSnapshot catalogue = m_environment->catalogue.snapshot();
    const CatalogueChannel* channel = catalogue->find(entry().channel());
    m_channelTitle = latin2Cyrillic(channel ? channel->title : u"?"_s, entry().language().value_or(QString()),
                                    m_environment->alphabet);
    m_stream = streamURLOf(*catalogue, entry().channel());
}

void DetailViewController::viewDidLoad() {
    setTitle(m_channelTitle);
}

void DetailViewController::viewWillAppear() {
    table().deselectRow();
    favoritesUpdated();
    loadDetails();
    askForIMDbLink();
    loadPicture();
}

void DetailViewController::viewDidAppear() {
    m_minuteTick.start(weak_from_this(), [this] { loadContent(); });
}

void DetailViewController::viewDidDisappear() {
    m_minuteTick.stop();
    table().deselectRow();
}

void DetailViewController::applicationDidBecomeActive() {
    m_minuteTick.resume();
    if (viewLoaded()) {
        loadContent();
    }
}

const QUrl* DetailViewController::imdbURL() const {
    return m_show.details() && m_show.details()->imdbURL ? &*m_show.details()->imdbURL : nullptr;
}

const Favorite* DetailViewController::ruleIn(const FavoritesSnapshot& favorites) const {
    return favorites.ruleNamed(entry().identificator().value_or(QString()));
}

// ---- rows

void DetailViewController::loadContent() {
    const Moment now = m_environment->clock.now();
    std::vector<Section> sections;
    sections.push_back({.id = kHead, .rows = {headRow(now)}});
    sections.push_back({.id = kActions, .rows = {actionsRow(now)}});
    if (m_favourite) {
        sections.push_back(favouriteSection());
    }
    if (const auto& facts = entry().facts(); facts) {
        const QStringList lines = factLines(*facts, m_environment->device.locale());
        if (!lines.isEmpty()) {
            sections.push_back(
                {.id = kFacts,
                 .rows = {{.id = rowId(kFacts, kFacts), .content = ParagraphRow{lines.join(u'\n')}}}});
        }
    }
    for (const ShowGroup& group : showGroups(m_show, m_environment->alphabet)) {
        sections.push_back(groupSection(group));
    }
    table().setSections(std::move(sections));
}

Row DetailViewController::headRow(Moment now) const {
    const std::optional<Moment> end = shownEnd(m_show);
    const ShowState state = showState(entry().dateTime(), end, now);
    const QStringList facts =
        QStringList{m_channelTitle} + showFacts(entry(), end, now, m_environment->device);
    return {.id = rowId(kHead, kHead),
            .content = HeadRow{.picture = m_picture,
                               .wholePicture = m_environment->settings.alwaysMaintainsAspectRatio(),
                               .title = entry().title().value_or(QString()),
                               .channelIcon = m_channelIcon,
                               .facts = facts.join(kBetweenFacts),
                               .status = state.text,
                               .running = state.running,
                               .progress = state.progress},
            .selectable = entry().title().has_value()};
}

void DetailViewController::addAction(std::vector<ActionButton>& buttons, Action action, ActionSymbol symbol,
                                     const QString& title) {
    buttons.push_back({.symbol = symbol, .title = title});
    m_actions.push_back(action);
}

Row DetailViewController::actionsRow(Moment now) {
    std::vector<ActionButton> buttons;
    m_actions.clear();
    const auto& details = m_show.details();
    if (entry().title()) {
        addAction(buttons, Action::Favourite, ActionSymbol::Favourite, Localized::tr("Favourite"));
        buttons.back().on = m_favourite;
        buttons.back().enabled = m_favouriteEnabled;
    }
    if (m_favourite) {
        addAction(buttons, Action::Alert, ActionSymbol::Alert, Localized::tr("Alert"));
    }
    if (m_stream && showState(entry().dateTime(), shownEnd(m_show), now).running) {
        addAction(buttons, Action::Play, ActionSymbol::Play, Localized::tr("Play"));
    }
    if (details && details->trailerURL) {
        addAction(buttons, Action::Trailer, ActionSymbol::Trailer, Localized::tr("Trailer"));
    }
    if (!m_show.pictures().isEmpty()) {
        addAction(buttons, Action::Pictures, ActionSymbol::Pictures, Localized::tr("Pictures"));
    }
    if (imdbURL()) {
        addAction(buttons, Action::IMDb, ActionSymbol::WebPage, u"IMDb"_s);
    }
    if (entry().title()) {
        addAction(buttons, Action::Broadcasts, ActionSymbol::Broadcasts, Localized::tr("More broadcasts"));
        if (entry().language() == kArchiveLanguage) {
            addAction(buttons, Action::PastBroadcasts, ActionSymbol::PastBroadcasts,
                      Localized::tr("Past broadcasts"));
        }
    }
    if (entry().urlDigestWithScheme(m_environment->scheme)) {
        addAction(buttons, Action::CopyLink, ActionSymbol::CopyLink, Localized::tr("Copy link"));
    }
    return {.id = rowId(kActions, kActions), .content = ActionsRow{std::move(buttons)}};
}

Section DetailViewController::favouriteSection() const {
    const auto favourites = m_environment->favorites.snapshot();
    const QString text =
        leadTimeText(ruleIn(*favourites), m_environment->alarms.snapshot()->alarmedEntry(entry()));
    Section section{.id = kFavourite, .header = u"⭐ %1:"_s.arg(Localized::tr("Favorite"))};
    TextRow alarmRow{
        .title = u"⏰ %1:"_s.arg(Localized::tr("Alert")), .detail = text, .accessory = Accessory::Disclosure};
    std::optional<ButtonRow> refusal;
    if (m_environment->alarmExplanations) {
        const ShowAlarm alarm = m_environment->alarmExplanations->alarmOf(entry());
        alarmRow.subtitle = showAlarmText(alarm);
        if (alarm.reason == ShowAlarmReason::Refused) {
            refusal = {.title = Localized::tr("Allow an alert for this broadcast")};
        } else if (alarm.reason == ShowAlarmReason::HasByRule || alarm.reason == ShowAlarmReason::NextRun) {
            refusal = {.title = Localized::tr("Not this broadcast")};
        }
    }
    section.rows.push_back(
        {.id = rowId(kFavourite, kAlarm), .content = std::move(alarmRow), .selectable = true});
    if (refusal) {
        section.rows.push_back(
            {.id = rowId(kFavourite, kRefusal), .content = *std::move(refusal), .selectable = true});
    }
    return section;
}

Section DetailViewController::groupSection(const ShowGroup& group) const {
    // The mark that tells the plural form from the singular is for translators.
    Section section{.id = group.name, .header = QString(group.name).remove("(p)"_L1)};
    QString text = group.content;
    qsizetype hidden = 0;
    if (group.isPeople) {
        QStringList people = peopleOf(group.content);
        hidden = m_unfolded.contains(group.name) ? 0 : std::max<qsizetype>(0, people.size() - kPeopleShown);
        text = people.first(people.size() - hidden).join(u'\n');
    }
    section.rows.push_back({.id = rowId(section.id, u"text"_s), .content = ParagraphRow{text}});
    if (hidden > 0) {
        section.rows.push_back({.id = rowId(section.id, kShowAll),
                                .content = ButtonRow{Localized::tr("Show all %n", nullptr,
                                                                   static_cast<int>(hidden + kPeopleShown))},
                                .selectable = true});
    }
    return section;
}

// ---- what is loaded

void DetailViewController::loadDetails() {
    if (m_show.details() || !entry().encodedUrl() || std::exchange(m_askedForDetails, true)) {
        return;
    }
    setProgress(Progress{});
    m_environment->showLookup.netDescriptionFor(
        m_show.entry(), m_details.expect(weak_from_this(), [this](const ShowItem& described) {
            setProgress({});
            // Asked again when the screen appears the next time.
            m_askedForDetails = false;
            if (!described) {
                return;
            }
            m_show = described;
            loadContent();
            askForIMDbLink();
            loadPicture();
        }));
}

void DetailViewController::askForIMDbLink() {
    if (imdbURL() || m_askedForDetails || std::exchange(m_askedForIMDbLink, true)) {
        return;
    }
    m_environment->showLookup.imdbLink(
        m_show, m_imdbLink.expect(weak_from_this(), [this](const IMDbLink& link) {
            const PictureURLs pictures = link.picture ? PictureURLs{*link.picture} : PictureURLs();
            m_environment->listings.updateIMDBForChannel(
                entry().channel(), entry().identificator().value_or(QString()),
                m_show.categories().value_or(0), link.page, pictures);
            auto details = m_show.details() ? std::make_shared<TVEntrySupplementalData>(*m_show.details())
                                            : std::make_shared<TVEntrySupplementalData>();
            details->imdbURL = link.page;
            m_show = ShowItem(m_show.entry(), m_show.categories(), std::move(details),
                              pictures.isEmpty() ? m_show.pictures() : pictures);
            loadContent();
            loadPicture();
        }));
}

void DetailViewController::loadPicture() {
    const ScreenSettings& settings = m_environment->settings;
    if (!settings.imagesEnabled() || !settings.showBgImages()) {
        m_picture = {};
        loadContent();
        return;
    }
    if (m_show.pictures().isEmpty()) {
        return;
    }
    const QUrl url = pictureOf(m_show.pictures());
    if (const auto known = m_environment->pictureCache.find(url); known && !known->empty()) {
        if (m_picture != *known) {
            m_picture = *known;
            loadContent();
        }
        return;
    }
    const double side = std::min(kPictureSide, m_environment->device.screenSize().width());
    m_environment->pictures.imageAtURL(
        url, {side, side}, m_pictureAnswer.expect(weak_from_this(), [this, url](const QImage& image) {
            if (!image.isNull()) {
                m_environment->pictureCache.insert(url, image);
                m_picture = m_environment->pictureCache.find(url).value_or(PictureKey());
                loadContent();
            }
        }));
}

// ---- the user's events

void DetailViewController::rowEvent(const RowId& id, const RowEvent& event) {
    if (const auto* chosen = std::get_if<Chosen>(&event); chosen && id.section == kActions) {
        perform(m_actions[static_cast<std::size_t>(chosen->choice)]);
    } else if (id.section == kHead) {
        openBroadcasts(false);
    } else if (id.name() && *id.name() == kAlarm) {
        selectedAlarm();
    } else if (id.name() && *id.name() == kRefusal) {
        refuseOrAllow();
    } else if (id.name() && *id.name() == kShowAll) {
        m_unfolded.insert(id.section);
        table().deselectRow();
        loadContent();
    }
}

void DetailViewController::perform(Action action) {
    const auto& details = m_show.details();
    switch (action) {
    case Action::Favourite:
        favoriteSwitched(!m_favourite);
        break;
    case Action::Alert:
        selectedAlarm();
        break;
    case Action::Play:
        m_environment->navigation.playURL(*m_stream);
        break;
    case Action::Trailer:
        m_environment->navigation.playURL(*details->trailerURL);
        break;
    case Action::Pictures: {
        std::vector<QUrl> urls = m_show.pictures().urls();
        std::sort(urls.begin(), urls.end());
        m_environment->navigation.showPictures(urls);
        break;
    }
    case Action::IMDb:
        m_environment->navigation.openWebPage(*imdbURL(), u"IMDb"_s);
        break;
    case Action::Broadcasts:
        openBroadcasts(false);
        break;
    case Action::PastBroadcasts:
        openBroadcasts(true);
        break;
    case Action::CopyLink:
        copyLink();
        break;
    }
}

void DetailViewController::favoriteSwitched(bool on) {
    const QString title = entry().title().value_or(QString());
    m_favourite = on;
    m_removing = !on;
    if (on) {
        m_environment->favoriteActions.addFavorite(title);
        loadContent();
        return;
    }
    m_favouriteEnabled = false;
    loadContent();
    m_environment->favoriteActions.removeFavorite(title);
    m_environment->mainQueue.async([weak = weakFromThis<DetailViewController>()] {
        if (const auto self = weak.lock()) {
            self->m_favouriteEnabled = true;
            self->loadContent();
        }
    });
}

void DetailViewController::notificationsSynched() {
    if (!viewLoaded()) {
        return;
    }
    const QString title = entry().title().value_or(QString());
    // An alarm that was still being set may have added the rule again.
    if (std::exchange(m_removing, false) &&
        m_environment->favorites.snapshot()->containsFavoriteNamed(title)) {
        m_environment->favoriteActions.removeFavorite(title);
    }
    if (!m_favourite) {
        m_favouriteEnabled = true;
    }
    loadContent();
}

void DetailViewController::recolor() {
    if (viewLoaded()) {
        loadContent();
        loadPicture();
    }
}

void DetailViewController::favoritesUpdated() {
    if (!viewLoaded()) {
        return;
    }
    const auto& title = entry().title();
    m_favourite = !m_removing && title && m_environment->favorites.snapshot()->containsFavoriteNamed(*title);
    notificationsSynched();
}

void DetailViewController::selectedAlarm() {
    table().deselectRow();
    if (!m_environment->alarmSynchronisation.hasCalendarAccess()) {
        m_environment->navigation.presentAlert(
            {Localized::tr("Error"),
             Localized::tr(
                 "You have to allow access to your calendars to be able to use alerts. Calendar data "
                 "will only be used by the application on your device, and will not be sent to any "
                 "other device or service. Go to 'Privacy' in the 'Settings' application."),
             {{Localized::tr("OK")}}});
        return;
    }
    m_environment->listings.broadcastForTitle(
        entry().identificator().value_or(QString()), !entry().previouslyShown(),
        m_otherType.expect(weak_from_this(), [this](bool hasOtherType) { openAlarmSettings(hasOtherType); }));
}

void DetailViewController::openAlarmSettings(bool hasOtherType) {
    NavigationController* navigation = navigationController();
    if (!navigation || !navigation->shows(*this)) {
        return;
    }
    // Its choice is applied when it is left, so a second screen would be opened on what is still set.
    const auto open = m_alarmSettings.lock();
    if (open && open->navigationController() && open->navigationController()->shows(*open)) {
        return;
    }
    const auto favourites = m_environment->favorites.snapshot();
    const Favorite* rule = ruleIn(*favourites);
    AlarmSettings::Current current{.hasOtherType = hasOtherType};
    if (rule && rule->minutes) {
        current.recurring = {*rule->minutes, rule->previouslyShown};
    } else {
        current.minutes = m_environment->alarms.snapshot()->alarmedEntry(entry());
    }
    auto screen =
        std::make_shared<FavoriteSettingsTimeThresholdViewController>(m_environment, m_show.entry(), current);
    m_alarmSettings = screen;
    if (m_environment->device.userInterfaceIdiom() == UserInterfaceIdiom::Tablet) {
        navigation->show(std::move(screen), Presentation::Popover, rowId(kFavourite, kAlarm));
    } else {
        navigation->pushFrom(*this, std::move(screen));
    }
}

void DetailViewController::refuseOrAllow() {
    table().deselectRow();
    const std::optional<AlarmBroadcast> broadcast = alarmBroadcastOf(entry());
    if (!broadcast) {
        return;
    }
    AlarmExplanations& alarms = *m_environment->alarmExplanations;
    if (alarms.alarmOf(entry()).reason == ShowAlarmReason::Refused) {
        alarms.allowBroadcast(*broadcast);
    } else {
        alarms.refuseBroadcast(*broadcast);
    }
}

void DetailViewController::openBroadcasts(bool lookForPastShows) {
    if (NavigationController* navigation = navigationController()) {
        navigation->pushFrom(
            *this, std::make_shared<CompoundListingsViewController>(
                       m_environment, TitleListings{entry().title().value_or(QString()), lookForPastShows}));
    }
}

void DetailViewController::copyLink() {
    if (const auto url = entry().urlDigestWithScheme(m_environment->scheme)) {
        m_environment->clipboard.setText(url->toString());
        m_environment->navigation.presentNotice({.text = Localized::tr("Link copied")});
    }
}

} // namespace guide
