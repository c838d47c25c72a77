#include "screens/options/SharedPlaceViewController.h"

#include "platform/SharedPlaceAddress.h"
#include "screens/Localized.h"
#include "screens/ShowRows.h"

#include <algorithm>
#include <array>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kPlace = "place"_L1;
constexpr auto kCode = "code"_L1;
constexpr auto kChoice = "choice"_L1;
constexpr auto kField = "field"_L1;
constexpr auto kPassword = "password"_L1;
constexpr auto kEnter = "enter"_L1;
constexpr auto kFolder = "folder"_L1;
constexpr auto kUse = "use"_L1;
constexpr auto kDevice = "device"_L1;
constexpr auto kLeave = "leave"_L1;

/// What stores answer in English.
constexpr std::array kReasons{
    QT_TRANSLATE_NOOP("Guide", "The database cannot be reached."),
    QT_TRANSLATE_NOOP("Guide", "There is no server with the name in the address."),
    QT_TRANSLATE_NOOP("Guide", "This device has no network, or no way to the server of the database."),
    QT_TRANSLATE_NOOP("Guide", "The server does not run a database at the address."),
    QT_TRANSLATE_NOOP("Guide", "The server of the database does not answer."),
    QT_TRANSLATE_NOOP("Guide", "The server has no database with the name in the address."),
    QT_TRANSLATE_NOOP("Guide", "The user in the address may not use the database."),
    QT_TRANSLATE_NOOP("Guide",
                      "The server of the database cannot prove its identity, so nothing is sent to it."),
    QT_TRANSLATE_NOOP("Guide", "The database is not set up for the guide."),
    QT_TRANSLATE_NOOP("Guide", "The database takes no more changes for now; they are sent later."),
    QT_TRANSLATE_NOOP("Guide", "The database refuses a value because it is too large."),
    QT_TRANSLATE_NOOP("Guide", "An address of a database is like postgresql://anna@tv.example.org/guide."),
    QT_TRANSLATE_NOOP("Guide", "The address of a database begins with postgresql://."),
    QT_TRANSLATE_NOOP("Guide", "The only sslmode of an address is verify-full."),
    QT_TRANSLATE_NOOP("Guide",
                      "An address has no options but sslmode, sslrootcert and host, with full paths."),
    QT_TRANSLATE_NOOP("Guide", "The address needs a user, a server and the name of a database."),
    QT_TRANSLATE_NOOP("Guide", "The folder is not there, or it cannot be written."),
    QT_TRANSLATE_NOOP("Guide", "The path of a folder begins with “/” or “~/”."),
    QT_TRANSLATE_NOOP("Guide", "There is no such folder yet."),
    QT_TRANSLATE_NOOP("Guide", "There is no such folder, nor the one in which it would be."),
    QT_TRANSLATE_NOOP("Guide", "There is no such folder, and none can be created there."),
    QT_TRANSLATE_NOOP("Guide", "This is not a folder."),
    QT_TRANSLATE_NOOP("Guide", "The folder cannot be written."),
    QT_TRANSLATE_NOOP("Guide", "The folder cannot be created."),
    QT_TRANSLATE_NOOP("Guide", "This folder belongs to the guide on this device: choose another one."),
    QT_TRANSLATE_NOOP("Guide", "The place does not answer."),
    QT_TRANSLATE_NOOP("Guide", "The place cannot take what this device has."),
    QT_TRANSLATE_NOOP("Guide", "Another place is being tried.")};
/// Those about a password.
constexpr std::array kPasswordReasons{
    QT_TRANSLATE_NOOP("Guide", "The database does not accept the user or the password."),
    QT_TRANSLATE_NOOP("Guide", "This device does not have the password of the database."),
    QT_TRANSLATE_NOOP("Guide", "The password of the database cannot be kept.")};

template <class Reasons>
const char* findReason(const Reasons& reasons, const QString& reason) {
    const auto found = std::ranges::find_if(
        reasons, [&reason](const char* each) { return reason == QString::fromUtf8(each); });
    return found == reasons.end() ? nullptr : *found;
}

bool isAboutPassword(const QString& reason) {
    return findReason(kPasswordReasons, reason) != nullptr;
}

QString translated(const QString& reason) {
    const char* known = findReason(kReasons, reason);
    known = known ? known : findReason(kPasswordReasons, reason);
    return known ? Localized::tr(known) : reason;
}

QString kindText(SharedPlace::Kind kind) {
    switch (kind) {
    case SharedPlace::Kind::Folder:
        return Localized::tr("In a folder");
    case SharedPlace::Kind::Database:
        return Localized::tr("In a database");
    case SharedPlace::Kind::ThisDevice:
        break;
    }
    return Localized::tr("Only on this device");
}

} // namespace

QString sharedStateText(const SharedPlace& place, const Device& device) {
    const SharedStoreState& state = place.state;
    if (state.connection == SharedStoreConnection::Offline && !state.reason.isEmpty()) {
        return translated(state.reason) + u' ' + Localized::tr("Changes are kept and sent later.");
    }
    if (!state.reason.isEmpty()) {
        return translated(state.reason);
    }
    if (!state.lastSeen) {
        return {};
    }
    const QString seen = device.locale().toString(localTime(device, *state.lastSeen), QLocale::ShortFormat);
    QString text = Localized::tr("Another device was last seen: %1").arg(seen);
    if (state.device.isEmpty()) {
        return text;
    }
    const QString writer = state.device == place.deviceName
                               ? Localized::tr("Last change by another device with the name %1")
                               : Localized::tr("Last change by %1");
    return writer.arg(state.device) + u'\n' + text;
}

void SharedPlaceViewController::viewDidLoad() {
    setTitle(Localized::tr("Your devices"));
    m_environment->sharedPlace->setObserver(weak_from_this(), [this] { reloadTable(); });
}

void SharedPlaceViewController::viewWillAppear() {
    table().deselectRow();
    reloadTable();
}

void SharedPlaceViewController::reloadTable() {
    const SharedPlace place = m_environment->sharedPlace->place();
    std::vector<Section> sections{placeSection(place)};
    if (place.kind != SharedPlace::Kind::ThisDevice) {
        Section code{.id = kCode,
                     .header = Localized::tr("For another device"),
                     .footer = place.kind == SharedPlace::Kind::Database
                                   ? Localized::tr("The picture holds this address, without the password.")
                                   : Localized::tr("The picture holds the path of the folder.")};
        code.rows.push_back(
            {.id = {code.id, QString(kCode)},
             .content = PictureRow{.picture = {PictureKey::Kind::QRCode, place.address},
                                   .shape = PictureRow::Shape::Square,
                                   .description = Localized::tr("QR code of %1").arg(place.address)}});
        sections.push_back(std::move(code));
    }
    sections.push_back(choiceSection(place));
    sections.push_back(nameSection(place));
    table().setSections(std::move(sections));
}

Section SharedPlaceViewController::placeSection(const SharedPlace& place) const {
    Section section{.id = kPlace, .footer = sharedStateText(place, m_environment->device)};
    section.rows.push_back({.id = {section.id, QString(kPlace)},
                            .content = TextRow{.title = kindText(place.kind),
                                               .subtitle = pathForPeople(place.address),
                                               .checked = true}});
    if (place.kind == SharedPlace::Kind::Database && !m_entersPassword &&
        !isAboutPassword(place.state.reason)) {
        section.rows.push_back(
            {.id = {section.id, QString(kEnter)},
             .content = ButtonRow{.title = Localized::tr("Enter another password…"), .enabled = !m_isTrying},
             .selectable = true});
    } else if (place.kind == SharedPlace::Kind::Database) {
        section.rows.push_back(passwordRow(section.id, m_newPassword, m_isProblemHere));
        section.rows.push_back(
            {.id = {section.id, QString(kUse)},
             .content = ButtonRow{.title = m_isTrying && m_isProblemHere ? Localized::tr("One moment…")
                                                                         : Localized::tr("Use this password"),
                                  .style = ButtonRow::Style::Primary,
                                  .enabled = !m_isTrying && !m_newPassword.isEmpty()},
             .selectable = true});
    }
    if (place.kind != SharedPlace::Kind::ThisDevice) {
        section.rows.push_back(
            {.id = {section.id, QString(kLeave)},
             .content = ButtonRow{.title = Localized::tr("Stop sharing"), .enabled = !m_isTrying},
             .selectable = true});
    }
    return section;
}

Row SharedPlaceViewController::passwordRow(const QString& section, const QString& password,
                                           bool hasProblem) const {
    return {.id = {section, QString(kPassword)},
            .content = InputRow{.kind = InputRow::Kind::Password,
                                .title = Localized::tr("Password of the database"),
                                .text = password,
                                .error = hasProblem ? m_problem : QString(),
                                .enabled = !m_isTrying,
                                .revision = m_revision}};
}

Section SharedPlaceViewController::choiceSection(const SharedPlace& place) const {
    Section section{.id = kChoice,
                    .header = place.kind == SharedPlace::Kind::ThisDevice
                                  ? Localized::tr("Share with your other devices")
                                  : Localized::tr("Share in another place"),
                    .footer = Localized::tr(
                        "A folder that a sync tool copies between your devices, or a PostgreSQL "
                        "database. Channels, favourites, your own sources, silent hours and the name "
                        "of the calendar lie there; files in a folder can be read by whoever has it.")};
    const bool isDatabase = isDatabaseAddress(m_input.address);
    section.rows.push_back(
        {.id = {section.id, QString(kField)},
         .content =
             InputRow{.kind = InputRow::Kind::URL,
                      .title = Localized::tr("Folder or address of a database"),
                      .text = m_input.address,
                      .placeholder = u"~/…  postgresql://…"_s,
                      .error = m_isProblemHere || (isDatabase && m_isPasswordProblem) ? QString() : m_problem,
                      .enabled = !m_isTrying,
                      .revision = m_revision}});
    if (isDatabase) {
        section.rows.push_back(
            passwordRow(section.id, m_input.password, !m_isProblemHere && m_isPasswordProblem));
    } else {
        section.rows.push_back(
            {.id = {section.id, QString(kFolder)},
             .content = ButtonRow{.title = Localized::tr("Choose a folder…"), .enabled = !m_isTrying},
             .selectable = true});
    }
    section.rows.push_back(
        {.id = {section.id, QString(kUse)},
         .content = ButtonRow{.title = m_isTrying && !m_isProblemHere ? Localized::tr("One moment…")
                                                                      : Localized::tr("Share there"),
                              .style = ButtonRow::Style::Primary,
                              .enabled = canUse()},
         .selectable = true});
    return section;
}

Section SharedPlaceViewController::nameSection(const SharedPlace& place) const {
    Section section{.id = kDevice,
                    .footer = Localized::tr("Your other devices show this name with changes made here.")};
    section.rows.push_back({.id = {section.id, QString(kDevice)},
                            .content = InputRow{.title = Localized::tr("Name of this device"),
                                                .text = m_name.value_or(place.deviceName),
                                                .revision = m_nameRevision}});
    return section;
}

bool SharedPlaceViewController::canUse() const {
    return !m_isTrying && !m_input.address.trimmed().isEmpty();
}

void SharedPlaceViewController::rowEvent(const RowId& id, const RowEvent& event) {
    const QString name = *id.name();
    if (const auto* edited = std::get_if<TextEdited>(&event)) {
        if (id.section == kDevice) {
            nameEdited(*edited);
        } else if (id.section == kPlace) {
            passwordEdited(*edited);
        } else {
            inputEdited(*edited, name == kPassword);
        }
        return;
    }
    table().deselectRow();
    if (!std::holds_alternative<Tapped>(event) || m_isTrying) {
        return;
    }
    if (name == kFolder) {
        chooseFolder();
    } else if (name == kEnter) {
        m_entersPassword = true;
        reloadTable();
    } else if (name == kLeave) {
        choose({});
    } else if (id.section == kPlace && name == kUse) {
        usePassword();
    } else if (name == kUse && canUse()) {
        ask();
    }
}

void SharedPlaceViewController::inputEdited(const TextEdited& edited, bool isPassword) {
    QString& text = isPassword ? m_input.password : m_input.address;
    const bool isPasted = edited.text.size() > text.size() + 1;
    if (edited.text != text) {
        text = edited.text;
        m_problem.clear();
        reloadTable();
    }
    // While an address is typed, nobody knows where its password ends.
    if (const PlaceInput apart = withoutPassword(m_input.address);
        !isPassword && (isPasted || edited.finished) && !apart.password.isEmpty()) {
        setInput(apart);
    }
    if (edited.entered && canUse()) {
        ask();
    }
}

void SharedPlaceViewController::passwordEdited(const TextEdited& edited) {
    if (edited.text != m_newPassword) {
        m_newPassword = edited.text;
        m_problem.clear();
        reloadTable();
    }
    if (edited.entered) {
        usePassword();
    }
}

void SharedPlaceViewController::usePassword() {
    if (!m_isTrying && !m_newPassword.isEmpty()) {
        choose(withPassword({m_environment->sharedPlace->place().address, m_newPassword}));
    }
}

void SharedPlaceViewController::nameEdited(const TextEdited& edited) {
    if (!edited.finished) {
        m_name = edited.text;
        return;
    }
    m_name.reset();
    if (edited.text != m_environment->sharedPlace->place().deviceName) {
        m_environment->sharedPlace->setDeviceName(edited.text);
        ++m_nameRevision;
        reloadTable();
    }
}

void SharedPlaceViewController::setInput(PlaceInput input) {
    m_input = std::move(input);
    m_problem.clear();
    ++m_revision;
    reloadTable();
}

void SharedPlaceViewController::chooseFolder() {
    m_environment->navigation.presentFileChooser(
        {.title = Localized::tr("Choose a folder that your devices share"),
         .chosen =
             [weak = weakFromThis<SharedPlaceViewController>()](const QString& path) {
                 if (const auto self = weak.lock()) {
                     self->setInput({path});
                     self->ask();
                 }
             },
         .kind = FileChooser::Kind::Folder});
}

void SharedPlaceViewController::ask() {
    const QString address = withPassword({m_input.address.trimmed(), m_input.password});
    if (withoutPassword(address).address == m_environment->sharedPlace->place().address) {
        choose(address);
        return;
    }
    m_environment->navigation.presentAlert(
        {Localized::tr("Share there?"),
         Localized::tr(
             "Lists that another device has stored there replace those of this device, which are kept "
             "under “Restore…”. What is not there yet is stored."),
         {{Localized::tr("Cancel"), AlertAction::Style::Cancel},
          {Localized::tr("Share"), AlertAction::Style::Default,
           [weak = weakFromThis<SharedPlaceViewController>(), address] {
               if (const auto self = weak.lock()) {
                   self->choose(address);
               }
           }}}});
}

void SharedPlaceViewController::choose(const QString& address) {
    const QString before = m_environment->sharedPlace->place().address;
    m_isProblemHere = !m_newPassword.isEmpty() && withoutPassword(address).address == before;
    begin();
    m_environment->sharedPlace->choose(
        address, m_chosen.expect(weak_from_this(), [this, address, before](const QString& why) {
            end(why);
            if (why == QLatin1StringView(kFolderIsMissing)) {
                offerToCreate(address);
            } else if (why.isEmpty() && address.isEmpty()) {
                m_environment->navigation.presentNotice(
                    {.text = Localized::tr("This device shares nothing any more.")});
            } else if (why.isEmpty()) {
                const bool isSame = m_environment->sharedPlace->place().address == before;
                const bool hasPassword = withoutPassword(address).address != address;
                m_environment->navigation.presentNotice(
                    {.text = !isSame       ? Localized::tr("This device shares there from now on.")
                             : hasPassword ? Localized::tr("The password works and is kept.")
                                           : Localized::tr("This device shares there already.")});
            }
        }));
}

void SharedPlaceViewController::offerToCreate(const QString& path) {
    m_environment->navigation.presentAlert({Localized::tr("Create the folder?"),
                                            Localized::tr("There is no folder %1 yet.").arg(path),
                                            {{Localized::tr("Cancel"), AlertAction::Style::Cancel},
                                             {Localized::tr("Create"), AlertAction::Style::Default,
                                              [weak = weakFromThis<SharedPlaceViewController>(), path] {
                                                  if (const auto self = weak.lock()) {
                                                      self->create(path);
                                                  }
                                              }}}});
}

void SharedPlaceViewController::create(const QString& path) {
    begin();
    m_environment->sharedPlace->createFolder(
        path, m_chosen.expect(weak_from_this(), [this, path](const QString& why) {
            end(why);
            if (why.isEmpty()) {
                choose(path);
            }
        }));
}

void SharedPlaceViewController::begin() {
    m_isTrying = true;
    m_problem.clear();
    reloadTable();
}

void SharedPlaceViewController::end(const QString& why) {
    m_isTrying = false;
    if (why.isEmpty()) {
        m_newPassword.clear();
        m_entersPassword = false;
        setInput({});
        return;
    }
    m_problem = translated(why);
    m_isPasswordProblem = isAboutPassword(why);
    reloadTable();
    // The field may be out of sight.
    m_environment->navigation.presentNotice({.text = m_problem});
}

} // namespace guide
