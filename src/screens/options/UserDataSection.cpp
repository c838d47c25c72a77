#include "screens/options/UserDataSection.h"

#include "cloud/UserDataActions.h"
#include "screens/Localized.h"
#include "screens/kit/NavigationController.h"
#include "screens/options/EraseViewController.h"
#include "screens/options/ReplacedListsViewController.h"
#include "screens/options/SharedPlaceViewController.h"

#include <QFileInfo>

#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kSection = "data"_L1;
constexpr auto kDevices = "devices"_L1;
constexpr auto kExport = "export"_L1;
constexpr auto kRestore = "restore"_L1;
constexpr auto kErase = "erase"_L1;

Row button(const QString& name, ButtonRow content) {
    return {.id = {kSection, name}, .content = std::move(content), .selectable = true};
}

} // namespace

UserDataSection::UserDataSection(std::shared_ptr<const ScreenEnvironment> environment, ViewController& screen)
    : m_environment(std::move(environment))
    , m_screen(screen) {}

Section UserDataSection::section() const {
    Section section{.id = kSection, .header = Localized::tr("Your data")};
    if (m_environment->sharedPlace) {
        const SharedPlace place = m_environment->sharedPlace->place();
        section.footer = sharedStateText(place, m_environment->device);
        section.rows.push_back({.id = {kSection, QString(kDevices)},
                                .content = TextRow{.title = Localized::tr("Your devices"),
                                                   .subtitle = pathForPeople(place.address),
                                                   .accessory = Accessory::Disclosure},
                                .selectable = true});
    }
    section.rows.push_back(button(kExport, {.title = Localized::tr("Export…")}));
    section.rows.push_back(button(kRestore, {.title = Localized::tr("Restore…")}));
    section.rows.push_back(
        button(kErase, {.title = Localized::tr("Delete…"), .style = ButtonRow::Style::Destructive}));
    return section;
}

bool UserDataSection::tapped(const RowId& id) {
    if (id.section != kSection) {
        return false;
    }
    if (*id.name() == kExport) {
        askToExport();
    } else if (*id.name() == kDevices) {
        open(std::make_shared<SharedPlaceViewController>(m_environment));
    } else if (*id.name() == kRestore) {
        open(std::make_shared<ReplacedListsViewController>(m_environment));
    } else {
        open(std::make_shared<EraseViewController>(m_environment));
    }
    return true;
}

void UserDataSection::open(const std::shared_ptr<ViewController>& screen) const {
    if (NavigationController* navigation = m_screen.navigationController()) {
        navigation->pushFrom(m_screen, screen);
    }
}

void UserDataSection::askToExport() {
    m_environment->navigation.presentAlert(
        {Localized::tr("Notice"),
         Localized::tr("This will export all your personal application data stored in iCloud."),
         {{Localized::tr("Cancel"), AlertAction::Style::Cancel},
          {Localized::tr("Export"), AlertAction::Style::Default, [this, weak = m_screen.weak_from_this()] {
               if (const auto screen = weak.lock()) {
                   exportData();
               }
           }}}});
}

void UserDataSection::exportData() {
    m_environment->userData->exportData(
        m_exported.expect(m_screen.weak_from_this(), [this](const std::optional<QString>& path) {
            if (!path) {
                m_environment->navigation.presentAlert({Localized::tr("Error"),
                                                        Localized::tr("The file could not be written."),
                                                        {{Localized::tr("OK")}}});
                return;
            }
            const auto openFolder = [environment = m_environment, folder = QFileInfo(*path).path()] {
                environment->navigation.openFolder(folder);
            };
            m_environment->navigation.presentAlert(
                {Localized::tr("Your data was exported"),
                 pathForPeople(*path),
                 {{Localized::tr("OK"), AlertAction::Style::Cancel},
                  {Localized::tr("Open the folder"), AlertAction::Style::Default, openFolder}}});
        }));
}

} // namespace guide
