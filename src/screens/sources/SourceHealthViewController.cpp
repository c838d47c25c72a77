#include "screens/sources/SourceHealthViewController.h"

#include "screens/Localized.h"
#include "screens/kit/NavigationController.h"
#include "screens/sources/MatchReviewViewController.h"
#include "screens/sources/OwnChannelsViewController.h"
#include "screens/sources/SourceChannelsViewController.h"
#include "screens/sources/SourceHealth.h"
#include "screens/sources/SourceTexts.h"

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kState = "state"_L1;
constexpr auto kFacts = "facts"_L1;
constexpr auto kActions = "actions"_L1;
constexpr auto kSettings = "settings"_L1;
constexpr auto kEnd = "end"_L1;

/// The rest is in the text that can be copied.
constexpr qsizetype kLongestOutput = 2000;

constexpr auto kRefresh = "refresh"_L1;
constexpr auto kChoose = "choose"_L1;
constexpr auto kReview = "review"_L1;
constexpr auto kName = "name"_L1;
constexpr auto kAddress = "address"_L1;
constexpr auto kSaveAddress = "save address"_L1;
constexpr auto kShift = "shift"_L1;
constexpr auto kChannels = "channels"_L1;
constexpr auto kCopy = "copy"_L1;
constexpr auto kRemove = "remove"_L1;

Row actionRow(const SectionId& section, const QString& name, const QString& title,
              Accessory accessory = Accessory::None) {
    if (accessory == Accessory::None) {
        return {.id = {section, name}, .content = ButtonRow{title}, .selectable = true};
    }
    return {.id = {section, name},
            .content = TextRow{.title = title, .accessory = accessory},
            .selectable = true};
}

} // namespace

SourceHealthViewController::SourceHealthViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                                       const OwnSourceId& source)
    : m_environment(std::move(environment))
    , m_source(source) {}

void SourceHealthViewController::viewDidLoad() {
    setHasRefreshControl(true);
}

void SourceHealthViewController::viewWillAppear() {
    table().deselectRow();
    show();
}

void SourceHealthViewController::ownSourcesChanged() {
    if (viewLoaded()) {
        setRefreshing(actions().status(m_source).running);
        show();
    }
}

void SourceHealthViewController::didPullToRefresh() {
    actions().refresh(m_source);
}

// ---- rows

void SourceHealthViewController::show() {
    const std::optional<OwnSource> shown = source();
    if (!shown) {
        table().setEmptyNote(EmptyNote{Localized::tr("This source was removed"), {}});
        table().setSections({});
        return;
    }
    setTitle(shown->name);
    const SourceStatus status = actions().status(m_source);
    table().setSections({stateSection(status), actionSection(*shown, status), settingSection(*shown),
                         factSection(*shown, status), endSection()});
}

Section SourceHealthViewController::stateSection(const SourceStatus& status) {
    Section section{.id = kState};
    const bool problem = isProblem(status.result);
    section.rows.push_back(
        {.id = {section.id, u"result"_s},
         .content = TextRow{.title = status.running ? Localized::tr("It is being read.")
                                                    : sourceResultText(status.result, status.detail),
                            .titleColor = problem ? ColorRole::Alarm : ColorRole::Label,
                            .accessory = status.running ? Accessory::Spinner : Accessory::None,
                            .symbol = problem ? std::optional(Symbol::Warning) : std::nullopt}});
    return section;
}

Section SourceHealthViewController::factSection(const OwnSource& source, const SourceStatus& status) const {
    Section section{.id = kFacts, .header = Localized::tr("Details")};
    for (const SourceFact& fact : sourceFacts(source, status, m_environment->device)) {
        section.rows.push_back({.id = {section.id, QLatin1StringView(fact.id)},
                                .content = TextRow{.title = fact.title,
                                                   .subtitle = fact.isShort ? QString() : fact.value,
                                                   .detail = fact.isShort ? fact.value : QString()}});
    }
    if (!status.output.isEmpty()) {
        section.rows.push_back({.id = {section.id, u"output"_s},
                                .content = TextRow{.title = Localized::tr("Output of the program")}});
        section.rows.push_back({.id = {section.id, u"output text"_s},
                                .content = ParagraphRow{status.output.right(kLongestOutput)}});
    }
    return section;
}

Section SourceHealthViewController::actionSection(const OwnSource& source, const SourceStatus& status) const {
    Section section{.id = kActions};
    // It stays, so that the rows below do not move under a finger.
    section.rows.push_back(
        {.id = {section.id, QString(kRefresh)},
         .content = ButtonRow{.title = Localized::tr("Refresh now"), .enabled = !status.running},
         .selectable = !status.running});
    section.rows.push_back(
        actionRow(section.id, kChoose, Localized::tr("Choose channels"), Accessory::Disclosure));
    if (source.kind == OwnSourceKind::Playlist) {
        section.rows.push_back(actionRow(section.id, kReview, Localized::tr("Review matches"),
                                         m_reading ? Accessory::Spinner : Accessory::Disclosure));
    }
    section.rows.push_back(
        actionRow(section.id, kChannels, Localized::tr("Settings of channels"), Accessory::Disclosure));
    return section;
}

Section SourceHealthViewController::settingSection(const OwnSource& source) const {
    Section section{.id = kSettings, .header = Localized::tr("Settings")};
    section.rows.push_back({.id = {section.id, QString(kName)},
                            .content = InputRow{.title = Localized::tr("Name"), .text = source.name}});
    section.rows.push_back({.id = {section.id, QString(kAddress)},
                            .content = InputRow{.kind = InputRow::Kind::URL,
                                                .title = source.kind == OwnSourceKind::Grabber
                                                             ? Localized::tr("Program")
                                                             : Localized::tr("Address or file"),
                                                .text = m_address.value_or(source.address)}});
    if (m_address && *m_address != source.address) {
        section.rows.push_back(actionRow(section.id, kSaveAddress, Localized::tr("Save the new address")));
    }
    const auto shifts = shiftChoices(source.shift);
    ChoiceRow choice{.title = Localized::tr("Move all times"),
                     .chosen = static_cast<int>(std::ranges::find(shifts, source.shift) - shifts.begin())};
    for (const std::chrono::minutes shift : shifts) {
        choice.choices.push_back(shiftText(shift, m_environment->device.locale()));
    }
    section.rows.push_back({.id = {section.id, QString(kShift)}, .content = std::move(choice)});
    if (source.hasSecret) {
        section.footer = Localized::tr(
            "The secret part of the address is kept apart, on this device only. Enter the whole "
            "address to change it.");
    }
    return section;
}

Section SourceHealthViewController::endSection() const {
    Section section{.id = kEnd};
    section.rows.push_back(actionRow(section.id, kCopy, Localized::tr("Copy as text")));
    section.rows.push_back(
        {.id = {section.id, QString(kRemove)},
         .content = ButtonRow{Localized::tr("Remove this source"), ButtonRow::Style::Destructive},
         .selectable = true});
    return section;
}

// ---- the user's events

void SourceHealthViewController::rowEvent(const RowId& id, const RowEvent& event) {
    if (std::holds_alternative<Tapped>(event)) {
        table().deselectRow();
        tapped(*id.name());
    } else if (const auto* edit = std::get_if<TextEdited>(&event)) {
        edited(*id.name(), *edit);
    } else if (const auto* chosen = std::get_if<Chosen>(&event)) {
        setShift(chosen->choice);
    }
}

void SourceHealthViewController::tapped(const QString& name) {
    if (name == kRefresh) {
        actions().refresh(m_source);
        show();
    } else if (name == kChoose) {
        push(std::make_shared<SourceChannelsViewController>(m_environment, m_source));
    } else if (name == kReview) {
        openMatches();
    } else if (name == kChannels) {
        push(std::make_shared<OwnChannelsViewController>(m_environment, m_source));
    } else if (name == kSaveAddress) {
        saveAddress();
    } else if (name == kCopy) {
        copy();
    } else if (name == kRemove) {
        askToRemove();
    }
}

void SourceHealthViewController::edited(const QString& name, const TextEdited& edit) {
    std::optional<OwnSource> changed = source();
    if (!changed) {
        return;
    }
    if (name == kAddress) {
        m_address = edit.text;
        if (edit.entered) {
            saveAddress();
        } else {
            show();
        }
    } else if (const QString text = edit.text.trimmed();
               edit.finished && !text.isEmpty() && text != changed->name) {
        changed->name = text;
        actions().update(*changed);
        show();
    }
}

void SourceHealthViewController::setShift(int choice) {
    if (std::optional<OwnSource> changed = source()) {
        changed->shift = shiftChoices(changed->shift)[static_cast<std::size_t>(choice)];
        actions().update(*changed);
        show();
    }
}

void SourceHealthViewController::saveAddress() {
    const QString address = std::exchange(m_address, std::nullopt).value_or(QString()).trimmed();
    const std::optional<OwnSource> shown = source();
    if (shown && !address.isEmpty() && address != shown->address) {
        actions().setAddress(m_source, address);
    }
    show();
}

void SourceHealthViewController::openMatches() {
    if (m_reading) {
        return;
    }
    const auto weak = weakFromThis<SourceHealthViewController>();
    m_reading = actions().proposeAgain(m_source, {}, [weak](const SourceProposal& proposal) {
        const auto self = weak.lock();
        if (!self) {
            return;
        }
        self->m_reading.reset();
        self->show();
        const SourceResult result = proposal.preview.result;
        if (result != SourceResult::Read && result != SourceResult::Incomplete) {
            self->m_environment->navigation.presentNotice({sourceResultText(result, proposal.detail)});
            return;
        }
        const std::optional<OwnSource> reviewed = self->source();
        self->m_matches = std::make_shared<PlaylistMatches>(self->actions(), proposal.preview.playlist,
                                                            reviewed ? reviewed->corrections
                                                                     : std::vector<GuideCorrection>());
        self->m_matches->match([weak] {
            if (const auto ready = weak.lock()) {
                ready->m_matches->setObserver([weak] {
                    if (const auto changed = weak.lock()) {
                        changed->matchesChanged();
                    }
                });
                ready->push(
                    std::make_shared<MatchReviewViewController>(ready->m_environment, ready->m_matches));
            }
        });
    });
    show();
}

/// The corrections are kept, and the chosen channels take their schedules from where they say.
void SourceHealthViewController::matchesChanged() {
    std::optional<OwnSource> changed = source();
    if (!changed) {
        return;
    }
    changed->corrections = m_matches->corrections();
    for (OwnChannel& channel : changed->channels) {
        if (const MatchedEntry* entry = m_matches->find(channel.key)) {
            channel.guide = entry->guide;
            if (!channel.languageCorrected && !entry->guideLanguage.isEmpty()) {
                channel.language = entry->guideLanguage;
            }
        }
    }
    actions().update(*changed);
}

void SourceHealthViewController::copy() const {
    if (const std::optional<OwnSource> shown = source()) {
        m_environment->clipboard.setText(
            sourceReport(*shown, actions().status(m_source), m_environment->device));
        m_environment->navigation.presentNotice({Localized::tr("Copied")});
    }
}

void SourceHealthViewController::askToRemove() {
    const std::optional<OwnSource> shown = source();
    if (!shown) {
        return;
    }
    const int served = servedChannels(m_source, *actions().sources());
    QStringList losses;
    if (!shown->channels.empty() || served == 0) {
        losses << Localized::tr("%n channel(s) and their shows go with it.", nullptr,
                                static_cast<int>(shown->channels.size()));
    }
    if (served > 0) {
        losses << Localized::tr("%n channel(s) of other sources lose their schedules.", nullptr, served);
    }
    m_environment->navigation.presentAlert({Localized::tr("Remove “%1”?").arg(shown->name),
                                            losses.join(u' '),
                                            {{Localized::tr("Cancel"), AlertAction::Style::Cancel},
                                             {Localized::tr("Remove"), AlertAction::Style::Destructive,
                                              [weak = weakFromThis<SourceHealthViewController>()] {
                                                  if (const auto self = weak.lock()) {
                                                      self->remove();
                                                  }
                                              }}}});
}

void SourceHealthViewController::remove() {
    // The stack lets go of the screen.
    const auto self = shared_from_this();
    actions().remove(m_source);
    if (NavigationController* navigation = navigationController()) {
        navigation->pop();
    }
}

void SourceHealthViewController::push(std::shared_ptr<ViewController> screen) {
    if (NavigationController* navigation = navigationController()) {
        navigation->pushFrom(*this, std::move(screen));
    }
}

} // namespace guide
