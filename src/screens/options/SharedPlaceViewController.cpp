#include "screens/options/SharedPlaceViewController.h"

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
constexpr auto kUse = "use"_L1;
constexpr auto kLeave = "leave"_L1;

/// What stores answer in English.
QString translated(const QString& reason) {
    static constexpr std::array kKnown{
        QT_TRANSLATE_NOOP("Guide", "The database cannot be reached."),
        QT_TRANSLATE_NOOP("Guide", "The database does not accept the user or the password."),
        QT_TRANSLATE_NOOP("Guide",
                          "The server of the database cannot prove its identity, so nothing is sent to it."),
        QT_TRANSLATE_NOOP("Guide", "The database is not set up for the guide."),
        QT_TRANSLATE_NOOP("Guide",
                          "An address of a database is like postgresql://anna@tv.example.org/guide."),
        QT_TRANSLATE_NOOP("Guide", "The only sslmode of an address is verify-full."),
        QT_TRANSLATE_NOOP("Guide", "The address needs a user, a server and the name of a database."),
        QT_TRANSLATE_NOOP("Guide", "The database takes no more changes for now; they are sent later."),
        QT_TRANSLATE_NOOP("Guide", "The database refuses a value because it is too large."),
        QT_TRANSLATE_NOOP("Guide", "The password of the database cannot be kept."),
        QT_TRANSLATE_NOOP("Guide", "The folder is not there, or it cannot be written."),
        QT_TRANSLATE_NOOP("Guide", "There is no such folder, or it cannot be written."),
        QT_TRANSLATE_NOOP("Guide", "The place cannot take what this device has."),
        QT_TRANSLATE_NOOP("Guide", "Another place is being tried.")};
    const auto* known = std::ranges::find_if(
        kKnown, [&reason](const char* each) { return reason == QLatin1StringView(each); });
    return known == kKnown.end() ? reason : Localized::tr(*known);
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

QString sharedStateText(const SharedStoreState& state, const Device& device) {
    if (!state.reason.isEmpty()) {
        return translated(state.reason);
    }
    if (!state.lastSeen) {
        return {};
    }
    const QString seen = device.locale().toString(localTime(device, *state.lastSeen), QLocale::ShortFormat);
    const QString text = Localized::tr("Another device was last seen: %1").arg(seen);
    return state.device.isEmpty() ? text
                                  : Localized::tr("Last change by %1").arg(state.device) + u'\n' + text;
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
                     .footer = Localized::tr("The picture holds this address, without the password.")};
        code.rows.push_back(
            {.id = {code.id, QString(kCode)},
             .content = PictureRow{.picture = {PictureKey::Kind::QRCode, place.address},
                                   .shape = PictureRow::Shape::Square,
                                   .description = Localized::tr("QR code of %1").arg(place.address)}});
        sections.push_back(std::move(code));
    }
    sections.push_back(choiceSection(place));
    table().setSections(std::move(sections));
}

Section SharedPlaceViewController::placeSection(const SharedPlace& place) const {
    Section section{.id = kPlace, .footer = sharedStateText(place.state, m_environment->device)};
    section.rows.push_back(
        {.id = {section.id, QString(kPlace)},
         .content = TextRow{.title = kindText(place.kind), .subtitle = place.address, .checked = true}});
    if (place.kind != SharedPlace::Kind::ThisDevice) {
        section.rows.push_back(
            {.id = {section.id, QString(kLeave)},
             .content = ButtonRow{.title = Localized::tr("Only on this device"), .enabled = !m_isTrying},
             .selectable = true});
    }
    return section;
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
    section.rows.push_back({.id = {section.id, QString(kField)},
                            .content = InputRow{.kind = InputRow::Kind::URL,
                                                .title = Localized::tr("Folder or address of a database"),
                                                .text = m_input,
                                                .placeholder = u"postgresql://"_s,
                                                .error = m_problem,
                                                .enabled = !m_isTrying}});
    section.rows.push_back({.id = {section.id, QString(kUse)},
                            .content = ButtonRow{.title = m_isTrying ? Localized::tr("One moment…")
                                                                     : Localized::tr("Share there"),
                                                 .style = ButtonRow::Style::Primary,
                                                 .enabled = !m_isTrying && !m_input.trimmed().isEmpty()},
                            .selectable = true});
    return section;
}

void SharedPlaceViewController::rowEvent(const RowId& id, const RowEvent& event) {
    if (id.section == kChoice && *id.name() == kField) {
        inputEvent(event);
        return;
    }
    table().deselectRow();
    if (!std::holds_alternative<Tapped>(event) || m_isTrying) {
        return;
    }
    if (id.section == kChoice && !m_input.trimmed().isEmpty()) {
        ask(m_input.trimmed());
    } else if (id.section == kPlace && *id.name() == kLeave) {
        choose({});
    }
}

void SharedPlaceViewController::inputEvent(const RowEvent& event) {
    const auto* edited = std::get_if<TextEdited>(&event);
    if (!edited) {
        return;
    }
    if (edited->text != m_input) {
        m_input = edited->text;
        m_problem.clear();
        reloadTable();
    }
    if (edited->entered && !m_isTrying && !m_input.trimmed().isEmpty()) {
        ask(m_input.trimmed());
    }
}

void SharedPlaceViewController::ask(const QString& address) {
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
    m_isTrying = true;
    m_problem.clear();
    reloadTable();
    m_environment->sharedPlace->choose(address, m_chosen.expect(weak_from_this(), [this](const QString& why) {
        m_isTrying = false;
        m_problem = translated(why);
        if (why.isEmpty()) {
            m_input.clear();
        }
        reloadTable();
    }));
}

} // namespace guide
