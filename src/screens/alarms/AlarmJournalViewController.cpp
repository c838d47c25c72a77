#include "screens/alarms/AlarmJournalViewController.h"

#include "screens/Localized.h"
#include "screens/ShowRowText.h"
#include "screens/ShowRows.h"
#include "screens/TimeTexts.h"
#include "screens/alarms/AlarmTexts.h"
#include "screens/compound/CompoundListingsViewController.h"
#include "screens/kit/NavigationController.h"
#include "text/display/DayFormat.h"

#include <QHash>

#include <ranges>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// The names of the rows of entries, which new entries and the loss of old ones do not change: the time, and
/// the number among those of the same time.
QStringList rowNames(const std::vector<JournalEntry>& entries) {
    QStringList names;
    QHash<qint64, int> counts;
    for (const JournalEntry& entry : entries) {
        const auto at = static_cast<qint64>(entry.at.time_since_epoch().count());
        names << QString::number(at) + u' ' + QString::number(counts[at]++);
    }
    return names;
}

/// Makes the rows. Any thread after the construction.
class JournalRows {
  public:
    JournalRows(const Device& device, Moment now)
        : m_device(device)
        , m_locale(device.locale())
        , m_text(m_locale, device.timeZone())
        , m_dayFormat(dayFormat(m_locale))
        , m_today(localTime(device, now).date()) {}

    /// `names` are those of the rows.
    std::vector<Section> sectionsOf(const std::vector<JournalEntry>& entries,
                                    const QStringList& names) const {
        std::vector<Section> sections;
        // The clock may have been set back, so that a day comes twice.
        QHash<QDate, int> counts;
        QDate latest;
        for (std::size_t place = entries.size(); place-- > 0;) {
            const JournalEntry& entry = entries[place];
            const QDate day = localTime(m_device, entry.at).date();
            if (sections.empty() || day != latest) {
                latest = day;
                const int count = counts[day]++;
                const SectionId id = day.toString(Qt::ISODate);
                sections.push_back(
                    {.id = count == 0 ? id : id + u' ' + QString::number(count), .header = dayText(day)});
            }
            sections.back().rows.push_back(
                rowOf(entry, {sections.back().id, names[static_cast<qsizetype>(place)]}));
        }
        return sections;
    }

  private:
    QString dayText(const QDate& day) const {
        const QString near = nearDayText(day, m_today);
        return near.isEmpty() ? m_locale.toString(day, QLocale::LongFormat) : near;
    }
    QString showText(const JournalEntry& entry) const {
        const std::optional<Moment> start = entry.newStart ? entry.newStart : entry.oldStart;
        QStringList facts{entry.channel};
        if (start) {
            facts << m_locale.toString(localTime(m_device, *start).date(), m_dayFormat) + u' ' +
                         m_text.shortTime(start);
        }
        facts.removeAll(QString());
        return facts.join(u" · "_s);
    }
    Row rowOf(const JournalEntry& entry, RowId id) const {
        const Symbol symbol = journalSymbol(entry);
        QStringList lines{journalText(entry, m_device), showText(entry)};
        lines.removeAll(QString());
        return {.id = std::move(id),
                .content =
                    TextRow{.title = entry.title,
                            .subtitle = lines.join(u'\n'),
                            .detail = m_text.shortTime(entry.at),
                            .titleColor = symbol == Symbol::Warning ? ColorRole::Alarm : ColorRole::Label,
                            .accessory = Accessory::Disclosure,
                            .symbol = symbol},
                .selectable = true};
    }

    const Device& m_device;
    const QLocale m_locale;
    const ShowRowText m_text;
    const QString m_dayFormat;
    const QDate m_today;
};

} // namespace

AlarmJournalViewController::AlarmJournalViewController(std::shared_ptr<const ScreenEnvironment> environment)
    : m_environment(std::move(environment)) {}

void AlarmJournalViewController::viewDidLoad() {
    setTitle(Localized::tr("Journal"));
    setProgress(Progress{});
}

void AlarmJournalViewController::viewWillAppear() {
    table().deselectRow();
    load();
}

void AlarmJournalViewController::notificationsSynched() {
    if (viewLoaded()) {
        load();
    }
}

void AlarmJournalViewController::load() {
    m_environment->alarmExplanations->journal(
        m_latest.expect(weak_from_this(), [this](const JournalEntries& entries) { makeRows(entries); }));
}

void AlarmJournalViewController::makeRows(const JournalEntries& entries) {
    struct Made {
        QStringList names;
        std::vector<Section> sections;
    };
    using Answer = std::shared_ptr<Made>;
    MainBlock<Answer> answer = m_latest.expect(weak_from_this(), [this, entries](const Answer& made) {
        m_entries = entries;
        m_names = std::move(made->names);
        setProgress({});
        table().setEmptyNote(EmptyNote{Localized::tr("Nothing yet"),
                                       Localized::tr("What happens to your alerts is written down here for "
                                                     "60 days.")});
        table().setSections(std::move(made->sections));
    });
    m_environment->queues.globalQueue(QueuePriority::UserInitiated)
        .async([&main = m_environment->mainQueue,
                rows = JournalRows(m_environment->device, m_environment->clock.now()), entries,
                answer = std::move(answer)]() mutable {
            QStringList names = rowNames(*entries);
            std::vector<Section> sections = rows.sectionsOf(*entries, names);
            answer.post(main, std::make_shared<Made>(Made{std::move(names), std::move(sections)}));
        });
}

const JournalEntry* AlarmJournalViewController::entryOf(const RowId& id) const {
    const auto place = static_cast<std::size_t>(m_names.indexOf(*id.name()));
    return m_entries && place < m_entries->size() ? &(*m_entries)[place] : nullptr;
}

bool AlarmJournalViewController::canRefuse(const JournalEntry& entry) const {
    return entry.deed == AlarmDeed::Made && entry.reason == AlarmReason::RuleAgain && entry.show &&
           entry.newStart && *entry.newStart > m_environment->clock.now();
}

void AlarmJournalViewController::refuse(const JournalEntry& entry) {
    m_environment->alarmExplanations->refuseBroadcast(
        {*entry.show, entry.title, *entry.newStart, entry.end.value_or(*entry.newStart)});
}

void AlarmJournalViewController::rowEvent(const RowId& id, const RowEvent& /*event*/) {
    const JournalEntry* entry = entryOf(id);
    if (!entry) {
        return;
    }
    if (!canRefuse(*entry)) {
        openBroadcasts(entry->title);
        return;
    }
    table().deselectRow();
    const auto self = weakFromThis<AlarmJournalViewController>();
    const auto withSelf = [self](const std::function<void(AlarmJournalViewController&)>& act) {
        return [self, act] {
            if (const auto alive = self.lock()) {
                act(*alive);
            }
        };
    };
    m_environment->navigation.presentAlert(
        {entry->title,
         Localized::tr("You removed this alert in the calendar, and the rule set it again."),
         {{Localized::tr("Not this broadcast"), AlertAction::Style::Default,
           withSelf([own = *entry](AlarmJournalViewController& screen) { screen.refuse(own); })},
          {Localized::tr("More broadcasts"), AlertAction::Style::Default,
           withSelf(
               [title = entry->title](AlarmJournalViewController& screen) { screen.openBroadcasts(title); })},
          {Localized::tr("Cancel"), AlertAction::Style::Cancel}}});
}

std::vector<RowAction> AlarmJournalViewController::actionsForRow(const RowId& id) {
    const JournalEntry* entry = entryOf(id);
    if (!entry || !canRefuse(*entry)) {
        return {};
    }
    return {{Localized::tr("Not this broadcast"),
             {},
             ColorRole::Alarm,
             [self = weakFromThis<AlarmJournalViewController>(), own = *entry] {
                 if (const auto alive = self.lock()) {
                     alive->refuse(own);
                 }
             }}};
}

void AlarmJournalViewController::openBroadcasts(const QString& title) {
    if (NavigationController* navigation = navigationController()) {
        navigation->pushFrom(
            *this, std::make_shared<CompoundListingsViewController>(m_environment, TitleListings{title}));
    }
}

} // namespace guide
