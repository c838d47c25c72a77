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
constexpr auto kAllPrograms = "all"_L1;
/// Before the user asks for all; a package of grabbers has twenty.
constexpr qsizetype kMostPrograms = 4;

Row buttonRow(const SectionId& section, const QString& name, ButtonRow content) {
    return {.id = {section, name}, .content = std::move(content), .selectable = true};
}

QString fileName(const QString& path) {
    return path.section(u'/', -1);
}

/// By their names "tv_grab_REGION…", those of the region first.
QStringList programsInOrder(QStringList paths, const QString& region) {
    const QString own = region == "GB"_L1 ? u"uk"_s : region.toLower();
    std::ranges::stable_partition(
        paths, [&own](const QString& path) { return fileName(path).section(u'_', 2, 2) == own; });
    return paths;
}

} // namespace

AddSourceViewController::AddSourceViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                                 Start start)
    : m_environment(std::move(environment))
    , m_start(std::move(start)) {}

void AddSourceViewController::viewDidLoad() {
    setTitle(Localized::tr("Add channels"));
    show();
    m_finding =
        actions().findGrabbers([weak = weakFromThis<AddSourceViewController>()](const QStringList& paths) {
            if (const auto self = weak.lock()) {
                self->m_finding.reset();
                self->m_programs = programsInOrder(paths, regionOf(self->m_environment->device.locale()));
                self->show();
            }
        });
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
    table().setSections({inputSection(), catalogueSection(), programSection(), feedSection()});
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
    Section section{.id = kInput,
                    .footer =
                        Localized::tr("Schedules (XMLTV), packed or not, playlists (M3U), and programs that "
                                      "print a schedule.")};
    section.rows.push_back({.id = {section.id, QString(kField)},
                            .content = InputRow{.kind = InputRow::Kind::URL,
                                                .title = Localized::tr("Address, file or program"),
                                                .text = m_input,
                                                .placeholder = u"https://"_s,
                                                .error = m_problem,
                                                .focusOnOpening = true}});
    section.rows.push_back(buttonRow(section.id, QString(kContinue),
                                     {.title = Localized::tr("Show channels"),
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
    Section section{.id = kPrograms};
    if (m_programs.isEmpty()) {
        return section;
    }
    section.header = Localized::tr("Programs on this device");
    section.footer = Localized::tr("Found by their names. One runs only after you agree.");
    const bool isFolded = !m_showsAllPrograms && m_programs.size() > kMostPrograms + 1;
    for (const QString& path : m_programs.first(isFolded ? kMostPrograms : m_programs.size())) {
        section.rows.push_back(
            {.id = {section.id, path},
             .content =
                 TextRow{.title = fileName(path), .subtitle = path, .accessory = Accessory::Disclosure},
             .selectable = true});
    }
    if (isFolded) {
        section.rows.push_back(buttonRow(
            section.id, QString(kAllPrograms),
            {Localized::tr("Show all %n program(s)", nullptr, static_cast<int>(m_programs.size()))}));
    }
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
            m_asking.reset();
            show();
        }
        if (edited->entered && !m_input.trimmed().isEmpty()) {
            readAfterQuestion(m_input.trimmed());
        }
        return;
    }
    table().deselectRow();
    if (name == kContinue && !m_input.trimmed().isEmpty()) {
        readAfterQuestion(m_input.trimmed());
    } else if (name == kPaste) {
        if (const QString text = m_environment->clipboard.text().trimmed(); !text.isEmpty()) {
            m_input = text;
            show();
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
                 self->show();
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
    if (name == kAllPrograms) {
        m_showsAllPrograms = true;
        show();
    } else {
        askToRun(name);
    }
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
    m_asking =
        actions().isProgram(input, [weak = weakFromThis<AddSourceViewController>(), input](bool isProgram) {
            if (const auto self = weak.lock()) {
                self->m_asking.reset();
                isProgram ? self->askToRun(input) : self->read(input);
            }
        });
}

void AddSourceViewController::askToRun(const QString& program) {
    ask(Localized::tr("Run this program?"),
        Localized::tr("“%1” runs on this device with your rights, now and at each update.").arg(program),
        Localized::tr("Run"), &AddSourceViewController::read, program);
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
