#include "screens/options/ReplacedListsViewController.h"

#include "cloud/UserDataActions.h"
#include "screens/Localized.h"
#include "screens/ShowRows.h"

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kFavorites = "favorites"_L1;
constexpr auto kChannels = "channels"_L1;

QString countText(const ReplacedList& list) {
    const int count = static_cast<int>(list.count);
    return list.kind == ReplacedList::Kind::Favorites
               ? Localized::tr("%n favourite(s)", nullptr, count)
               : Localized::tr("%n selected channel(s)", nullptr, count);
}

/// What restoring the list brings back.
QString lackingText(const ReplacedList& list) {
    const auto more = static_cast<int>(list.lacking) - static_cast<int>(list.titles.size());
    const QString titles = list.titles.join(u", "_s);
    if (list.lacking == 0) {
        return Localized::tr("Nothing that you do not have now");
    }
    if (more == 0) {
        return Localized::tr("Brings back %1").arg(titles);
    }
    return titles.isEmpty() ? Localized::tr("Brings back %n", nullptr, more)
                            : Localized::tr("Brings back %1 and %n more", nullptr, more).arg(titles);
}

} // namespace

void ReplacedListsViewController::viewDidLoad() {
    setTitle(Localized::tr("Restore"));
}

void ReplacedListsViewController::viewWillAppear() {
    table().deselectRow();
    load();
}

void ReplacedListsViewController::load() {
    m_environment->userData->replacedLists(
        m_loaded.expect(weak_from_this(), [this](const std::vector<ReplacedList>& lists) {
            m_lists = lists;
            reloadTable();
        }));
}

void ReplacedListsViewController::reloadTable() {
    Section favorites{.id = kFavorites, .header = Localized::tr("Favourites")};
    Section channels{.id = kChannels, .header = Localized::tr("Selected channels")};
    const QLocale locale = m_environment->device.locale();
    for (const ReplacedList& list : m_lists) {
        Section& section = list.kind == ReplacedList::Kind::Favorites ? favorites : channels;
        const QDateTime date = localTime(m_environment->device, list.date);
        section.rows.push_back({.id = {section.id, list.name},
                                .content = TextRow{.title = countText(list),
                                                   .subtitle = lackingText(list),
                                                   .detail = locale.toString(date, QLocale::ShortFormat)},
                                .selectable = true});
    }
    std::vector<Section> sections;
    for (Section* section : {&favorites, &channels}) {
        if (!section->rows.empty()) {
            sections.push_back(std::move(*section));
        }
    }
    if (!sections.empty()) {
        sections.back().footer = Localized::tr("Lists that another device has replaced, by the time of that. "
                                               "At most ten of each kind are kept.");
    }
    table().setEmptyNote(
        EmptyNote{.title = Localized::tr("No lists"),
                  .message = Localized::tr("No other device has replaced your favourites or channels.")});
    table().setSections(std::move(sections));
}

void ReplacedListsViewController::rowEvent(const RowId& id, const RowEvent& event) {
    table().deselectRow();
    const auto list = std::ranges::find(m_lists, *id.name(), &ReplacedList::name);
    if (list != m_lists.end() && std::holds_alternative<Tapped>(event)) {
        ask(*list);
    }
}

void ReplacedListsViewController::ask(const ReplacedList& list) {
    const QString message =
        list.kind == ReplacedList::Kind::Favorites
            ? Localized::tr("These favourites take the place of the present ones on all your devices.")
            : Localized::tr("These channels take the place of the present ones on all your devices.");
    m_environment->navigation.presentAlert({countText(list),
                                            message,
                                            {{Localized::tr("Cancel"), AlertAction::Style::Cancel},
                                             {Localized::tr("Restore"), AlertAction::Style::Default,
                                              [weak = weakFromThis<ReplacedListsViewController>(), list] {
                                                  if (const auto self = weak.lock()) {
                                                      self->restore(list);
                                                  }
                                              }}}});
}

void ReplacedListsViewController::restore(const ReplacedList& list) {
    m_environment->userData->restore(list, m_restored.expect(weak_from_this(), [this](bool isDone) {
        if (isDone) {
            m_environment->navigation.presentNotice({.text = Localized::tr("The list was restored.")});
        } else {
            m_environment->navigation.presentAlert({Localized::tr("Error"),
                                                    Localized::tr("The list could not be read."),
                                                    {{Localized::tr("OK")}}});
        }
        load();
    }));
}

} // namespace guide
