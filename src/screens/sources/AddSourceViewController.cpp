#include "screens/sources/AddSourceViewController.h"

#include "screens/Localized.h"
#include "screens/kit/NavigationController.h"
#include "screens/sources/KnownFeedsViewController.h"
#include "screens/sources/SourcePreviewViewController.h"
#include "screens/sources/SourceTexts.h"

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kInput = "input"_L1;
constexpr auto kReading = "reading"_L1;
constexpr auto kCatalogue = "catalogue"_L1;
constexpr auto kFeeds = "feeds"_L1;
constexpr auto kPrograms = "programs"_L1;

constexpr auto kField = "field"_L1;
constexpr auto kContinue = "continue"_L1;
constexpr auto kPaste = "paste"_L1;
constexpr auto kFile = "file"_L1;
constexpr auto kCountries = "countries"_L1;
constexpr auto kFind = "find"_L1;

Row buttonRow(const SectionId& section, const QString& name, ButtonRow content) {
    return {.id = {section, name}, .content = std::move(content), .selectable = true};
}

} // namespace

AddSourceViewController::AddSourceViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                                 Start start)
    : m_environment(std::move(environment))
    , m_start(std::move(start)) {}

void AddSourceViewController::viewDidLoad() {
    setTitle(Localized::tr("Add channels"));
    show();
}

void AddSourceViewController::viewDidAppear() {
    if (const QString input = std::exchange(m_start.input, {}); !input.isEmpty()) {
        m_input = input;
        show();
        readAfterQuestion(input);
    }
}

// ---- rows

void AddSourceViewController::show() {
    if (m_reading) {
        table().setSections({readingSection()});
        return;
    }
    table().setSections({inputSection(), catalogueSection(), feedSection(), programSection()});
}

Section AddSourceViewController::readingSection() const {
    Section section{.id = kReading};
    const QLocale locale = m_environment->device.locale();
    section.rows.push_back(
        {.id = {section.id, u"source"_s}, .content = TextRow{.title = shortAddress(m_input)}});
    section.rows.push_back({.id = {section.id, u"progress"_s},
                            .content = ProgressRow{readingText(m_channels, m_bytes, locale)}});
    section.rows.push_back(buttonRow(section.id, u"cancel"_s, {Localized::tr("Cancel")}));
    return section;
}

Section AddSourceViewController::inputSection() const {
    const bool program = actions().isProgram(m_input.trimmed());
    Section section{
        .id = kInput,
        .footer = program
                      ? Localized::tr("This is a program. It runs on this device with your rights, now and "
                                      "at each update.")
                      : Localized::tr("Schedules (XMLTV), packed or not, playlists (M3U), and programs that "
                                      "print a schedule.")};
    section.rows.push_back({.id = {section.id, QString(kField)},
                            .content = InputRow{.kind = InputRow::Kind::URL,
                                                .title = Localized::tr("Address, file or program"),
                                                .text = m_input,
                                                .placeholder = u"https://"_s,
                                                .error = m_problem,
                                                .focusOnOpening = true}});
    section.rows.push_back(
        buttonRow(section.id, QString(kContinue),
                  {.title = program ? Localized::tr("Run this program") : Localized::tr("Show channels"),
                   .style = ButtonRow::Style::Primary,
                   .enabled = !m_input.trimmed().isEmpty()}));
    section.rows.push_back(buttonRow(section.id, QString(kPaste), {Localized::tr("Paste")}));
    section.rows.push_back(buttonRow(section.id, QString(kFile), {Localized::tr("Choose a file…")}));
    return section;
}

Section AddSourceViewController::catalogueSection() const {
    Section section{.id = kCatalogue};
    const SharedCatalogueSnapshot catalogue = m_environment->catalogue.snapshot();
    const auto count = static_cast<int>(
        std::ranges::count_if(catalogue->channels(), [](const auto& each) { return !each.id.isOwn(); }));
    if (m_start.openCatalogue && count > 0) {
        section.rows.push_back({.id = {section.id, QString(kCatalogue)},
                                .content = TextRow{.title = Localized::tr("From the catalogue"),
                                                   .detail = Localized::tr("%n channel(s)", nullptr, count),
                                                   .accessory = Accessory::Disclosure},
                                .selectable = true});
    }
    return section;
}

Section AddSourceViewController::feedSection() const {
    Section section{.id = kFeeds};
    if (!m_environment->knownFeeds || m_environment->knownFeeds->countries().empty()) {
        return section;
    }
    const QLocale locale = m_environment->device.locale();
    const KnownFeedCountry* own = m_environment->knownFeeds->feedsForRegion(regionOf(locale));
    section.header = own ? Localized::tr("Public feeds: %1").arg(countryName(own->region, locale))
                         : Localized::tr("Public feeds");
    if (own) {
        section.rows = knownFeedRows(section.id, *own, locale);
    }
    section.rows.push_back(
        {.id = {section.id, QString(kCountries)},
         .content = TextRow{.title = own ? Localized::tr("Other countries") : Localized::tr("All countries"),
                            .accessory = Accessory::Disclosure},
         .selectable = true});
    section.footer = knownFeedsFooter();
    return section;
}

Section AddSourceViewController::programSection() const {
    Section section{.id = kPrograms, .header = Localized::tr("Programs on this device")};
    if (m_finding) {
        section.rows.push_back(
            {.id = {section.id, u"progress"_s},
             .content = ProgressRow{Localized::tr("Looking for programs that give a schedule")}});
        return section;
    }
    for (const GrabberProgram& program : m_programs.value_or(std::vector<GrabberProgram>())) {
        section.rows.push_back({.id = {section.id, program.path},
                                .content = TextRow{.title = program.description,
                                                   .subtitle = program.path,
                                                   .accessory = Accessory::Disclosure},
                                .selectable = true});
    }
    if (m_programs && m_programs->empty()) {
        section.rows.push_back(
            {.id = {section.id, u"none"_s},
             .content = TextRow{.title = Localized::tr("None found"),
                                .subtitle = Localized::tr("Enter the path of a program above.")}});
    }
    section.rows.push_back(
        buttonRow(section.id, QString(kFind),
                  {m_programs ? Localized::tr("Look again…")
                              : Localized::tr("Look for programs that give a schedule…")}));
    return section;
}

// ---- the user's events

void AddSourceViewController::rowEvent(const RowId& id, const RowEvent& event) {
    if (id.section == kInput) {
        inputEvent(*id.name(), event);
    } else if (std::holds_alternative<Tapped>(event)) {
        table().deselectRow();
        if (id.section == kReading) {
            m_reading.reset();
            show();
        } else if (id.section == kCatalogue) {
            m_start.openCatalogue();
        } else if (id.section == kFeeds) {
            feedTapped(*id.name());
        } else {
            programTapped(*id.name());
        }
    }
}

void AddSourceViewController::inputEvent(const QString& name, const RowEvent& event) {
    if (const auto* edited = std::get_if<TextEdited>(&event)) {
        if (edited->text != m_input) {
            m_input = edited->text;
            m_problem.clear();
            show();
        }
        if (edited->entered && !m_input.trimmed().isEmpty()) {
            // The field has said that it is a program, if it is one.
            read(m_input.trimmed());
        }
        return;
    }
    table().deselectRow();
    if (name == kContinue && !m_input.trimmed().isEmpty()) {
        read(m_input.trimmed());
    } else if (name == kPaste) {
        if (const QString text = m_environment->clipboard.text().trimmed(); !text.isEmpty()) {
            m_input = text;
            readAfterQuestion(text);
        }
    } else if (name == kFile) {
        chooseFile();
    }
}

void AddSourceViewController::chooseFile() {
    m_environment->navigation.presentFileChooser(
        {Localized::tr("Choose a schedule or playlist"),
         [weak = weakFromThis<AddSourceViewController>()](const QString& path) {
             if (const auto self = weak.lock()) {
                 self->m_input = path;
                 self->readAfterQuestion(path);
             }
         }});
}

void AddSourceViewController::feedTapped(const QString& name) {
    if (name != kCountries) {
        const QString region = regionOf(m_environment->device.locale());
        readFeed(m_environment->knownFeeds->feedsForRegion(region)->feeds[name.toUInt()].address);
    } else if (NavigationController* navigation = navigationController()) {
        navigation->pushFrom(*this, std::make_shared<KnownFeedsViewController>(
                                        m_environment, [weak = weakFromThis<AddSourceViewController>()](
                                                           const QString& address) {
                                            if (const auto self = weak.lock()) {
                                                self->readFeed(address);
                                            }
                                        }));
    }
}

void AddSourceViewController::programTapped(const QString& name) {
    if (name == kFind) {
        ask(Localized::tr("Run programs?"),
            Localized::tr(
                "Each program on this device whose name begins with tv_grab_ is run, to ask what it "
                "is."),
            Localized::tr("Run"), &AddSourceViewController::findProgramsNow, {});
    } else if (m_programs &&
               std::ranges::find(*m_programs, name, &GrabberProgram::path) != m_programs->end()) {
        readAfterQuestion(name);
    }
}

void AddSourceViewController::findProgramsNow(const QString&) {
    m_finding = actions().findGrabbers(
        [weak = weakFromThis<AddSourceViewController>()](std::vector<GrabberProgram> found) {
            if (const auto self = weak.lock()) {
                self->m_finding.reset();
                self->m_programs = std::move(found);
                self->show();
            }
        });
    show();
}

void AddSourceViewController::ask(const QString& title, const QString& message, const QString& action,
                                  void (AddSourceViewController::*then)(const QString&),
                                  const QString& argument) {
    m_environment->navigation.presentAlert(
        {title,
         message,
         {{Localized::tr("Cancel"), AlertAction::Style::Cancel},
          {action, AlertAction::Style::Default,
           [weak = weakFromThis<AddSourceViewController>(), then, argument] {
               if (const auto self = weak.lock()) {
                   (self.get()->*then)(argument);
               }
           }}}});
}

// ---- reading

void AddSourceViewController::readFeed(const QString& address) {
    const std::optional<QString> host = actions().newHostOf(address);
    if (!host) {
        read(address);
        return;
    }
    ask(Localized::tr("Ask %1?").arg(*host),
        Localized::tr(
            "This server belongs to somebody else and was never asked before. It learns the network "
            "address of this device, and is asked again at each update."),
        Localized::tr("Ask"), &AddSourceViewController::read, address);
}

void AddSourceViewController::readAfterQuestion(const QString& input) {
    if (!actions().isProgram(input)) {
        read(input);
        return;
    }
    show();
    ask(Localized::tr("Run this program?"),
        Localized::tr("“%1” runs on this device with your rights, now and at each update.").arg(input),
        Localized::tr("Run"), &AddSourceViewController::read, input);
}

void AddSourceViewController::read(const QString& input) {
    m_input = input;
    m_problem.clear();
    m_channels = 0;
    m_bytes = 0;
    const auto weak = weakFromThis<AddSourceViewController>();
    m_reading = actions().propose(
        input,
        [weak](int channels, std::int64_t bytes) {
            if (const auto self = weak.lock(); self && self->m_reading) {
                self->m_channels = channels;
                self->m_bytes = bytes;
                self->show();
            }
        },
        [weak](SourceProposal proposal) {
            if (const auto self = weak.lock()) {
                self->proposed(std::move(proposal));
            }
        });
    show();
}

void AddSourceViewController::proposed(SourceProposal proposal) {
    m_reading.reset();
    const SourceResult result = proposal.preview.result;
    if (result != SourceResult::Read && result != SourceResult::Incomplete) {
        m_problem = result == SourceResult::Cancelled ? QString() : sourceResultText(result, proposal.detail);
        show();
        return;
    }
    show();
    if (NavigationController* navigation = navigationController()) {
        navigation->pushFrom(
            *this, std::make_shared<SourcePreviewViewController>(m_environment, std::move(proposal)));
    }
}

void addSource(const std::shared_ptr<const ScreenEnvironment>& environment, TabBarController& tabs,
               const QString& input) {
    const auto tab = std::ranges::find(tabs.tabs(), Symbol::SelectedChannels,
                                       [](const TabBarController::Tab& each) { return each.item.symbol; });
    if (!environment->sourceActions || tab == tabs.tabs().end()) {
        return;
    }
    tabs.dismissCover();
    tabs.setSelectedIndex(static_cast<int>(tab - tabs.tabs().begin()));
    tab->navigationController->dismiss();
    tab->navigationController->popToRoot();
    tab->navigationController->push(
        std::make_shared<AddSourceViewController>(environment, AddSourceViewController::Start{input, {}}));
}

} // namespace guide
