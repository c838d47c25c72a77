#include "cloud/ReplacedLists.h"

#include "alarms/FavoritesFile.h"
#include "core/SelectionFile.h"
#include "platform/archive/Archive.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <iterator>
#include <unordered_set>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMostCopies = 10;
constexpr qsizetype kMostTitles = 3;
constexpr qint64 kMostBytes = 16 << 20;
constexpr auto kTimeFormat = "yyyyMMdd'T'HHmmsszzz'Z'"_L1;
constexpr auto kSuffix = ".plist"_L1;

QLatin1StringView prefixOf(ReplacedList::Kind kind) {
    return kind == ReplacedList::Kind::Favorites ? "favorites-"_L1 : "selection-"_L1;
}

std::optional<Moment> dateOfName(const QString& name, ReplacedList::Kind kind) {
    const QString text = name.sliced(prefixOf(kind).size()).chopped(kSuffix.size());
    QDateTime date = QDateTime::fromString(text, QString(kTimeFormat));
    date.setTimeSpec(Qt::UTC);
    return date.isValid() ? std::optional(Moment(std::chrono::milliseconds(date.toMSecsSinceEpoch())))
                          : std::nullopt;
}

QString nameOf(ReplacedList::Kind kind, Moment date) {
    const auto utc = QDateTime::fromMSecsSinceEpoch(date.time_since_epoch().count(), Qt::UTC);
    return prefixOf(kind) + utc.toString(kTimeFormat) + kSuffix;
}

/// The files of the kind in order of their dates.
QStringList namesIn(const QString& folder, ReplacedList::Kind kind) {
    QStringList names = QDir(folder).entryList({prefixOf(kind) + u'*' + kSuffix}, QDir::Files, QDir::Name);
    names.removeIf([kind](const QString& name) { return !dateOfName(name, kind); });
    return names;
}

/// The one of the names, which are in order of their dates, whose neighbours are closest for its age; never
/// the first or the last. So a day of many changes does not cost the copies of the time before it.
qsizetype mostDispensable(const QStringList& names, ReplacedList::Kind kind) {
    std::vector<Moment> dates;
    std::ranges::transform(names, std::back_inserter(dates),
                           [kind](const QString& name) { return *dateOfName(name, kind); });
    const auto gapForAge = [&dates](std::size_t at) {
        return double((dates[at + 1] - dates[at - 1]).count()) / double((dates.back() - dates[at]).count());
    };
    std::size_t chosen = 1;
    for (std::size_t at = 2; at + 1 < dates.size(); ++at) {
        chosen = gapForAge(at) < gapForAge(chosen) ? at : chosen;
    }
    return static_cast<qsizetype>(chosen);
}

} // namespace

ReplacedLists::ReplacedLists(const Folders& folders, const Clock& clock)
    : m_folder(folders.documents + u"/replaced"_s)
    , m_writable(folders.writable)
    , m_clock(clock) {}

void ReplacedLists::keep(const std::vector<Favorite>& rules) {
    if (!rules.empty()) {
        keep(ReplacedList::Kind::Favorites, favoritesFileContent(rules));
    }
}

void ReplacedLists::keep(const std::vector<ObjectId>& selected) {
    if (!selected.empty()) {
        keep(ReplacedList::Kind::Selection, archivedData(selectionValue(selected)));
    }
}

void ReplacedLists::keep(ReplacedList::Kind kind, const QByteArray& content) {
    if (!m_writable) {
        return;
    }
    const std::lock_guard lock(m_guard);
    QDir().mkpath(m_folder);
    QStringList names = namesIn(m_folder, kind);
    if (!names.isEmpty() && fileContent(m_folder + u'/' + names.last(), kMostBytes) == content) {
        return;
    }
    Moment date = m_clock.now();
    // A clock that was set back must not make this copy one of the oldest.
    if (!names.isEmpty()) {
        date = std::max(date, *dateOfName(names.last(), kind) + std::chrono::milliseconds(1));
    }
    if (!replaceFile(m_folder + u'/' + nameOf(kind, date), content)) {
        qWarning().noquote() << "ReplacedLists: cannot write in" << m_folder;
        return;
    }
    names << nameOf(kind, date);
    while (names.size() > kMostCopies) {
        QFile::remove(m_folder + u'/' + names.takeAt(mostDispensable(names, kind)));
    }
}

std::optional<QByteArray> ReplacedLists::content(const QString& name, ReplacedList::Kind kind) const {
    const bool isName = name.startsWith(prefixOf(kind)) && name.endsWith(kSuffix) && !name.contains(u'/');
    return isName ? fileContent(m_folder + u'/' + name, kMostBytes) : std::nullopt;
}

std::optional<std::vector<Favorite>> ReplacedLists::favorites(const QString& name) const {
    const auto found = content(name, ReplacedList::Kind::Favorites);
    return found ? favoritesOfFile(*found) : std::nullopt;
}

std::optional<std::vector<ObjectId>> ReplacedLists::selection(const QString& name) const {
    const auto found = content(name, ReplacedList::Kind::Selection);
    return found ? selectionOfFile(*found) : std::nullopt;
}

std::vector<ReplacedList> ReplacedLists::all(const Present& present) const {
    const std::unordered_set<ObjectId> selectedNow(present.selected.begin(), present.selected.end());
    std::vector<ReplacedList> lists;
    const std::lock_guard lock(m_guard);
    const auto add = [&lists](ReplacedList::Kind kind, const QString& name, const auto& copy,
                              const auto& titleIfLacking) {
        ReplacedList list{.kind = kind, .date = *dateOfName(name, kind), .count = copy.size(), .name = name};
        for (const auto& each : copy) {
            const std::optional<QString> title = titleIfLacking(each);
            list.lacking += title ? 1 : 0;
            if (title && !title->isEmpty() && list.titles.size() < kMostTitles) {
                list.titles << *title;
            }
        }
        lists.push_back(std::move(list));
    };
    for (const QString& name : namesIn(m_folder, ReplacedList::Kind::Favorites)) {
        if (const auto rules = favorites(name)) {
            add(ReplacedList::Kind::Favorites, name, *rules, [&present](const Favorite& rule) {
                return present.rules.containsFavoriteNamed(rule.identificator)
                           ? std::nullopt
                           : std::optional(rule.identificator);
            });
        }
    }
    for (const QString& name : namesIn(m_folder, ReplacedList::Kind::Selection)) {
        if (const auto channels = selection(name)) {
            add(ReplacedList::Kind::Selection, name, *channels, [&](const ObjectId& channel) {
                const CatalogueChannel* known = present.catalogue.find(channel);
                return selectedNow.contains(channel) ? std::nullopt
                                                     : std::optional(known ? known->title : QString());
            });
        }
    }
    std::ranges::stable_sort(lists, std::ranges::greater(), &ReplacedList::date);
    return lists;
}

std::size_t ReplacedLists::count() const {
    const std::lock_guard lock(m_guard);
    return static_cast<std::size_t>(namesIn(m_folder, ReplacedList::Kind::Favorites).size() +
                                    namesIn(m_folder, ReplacedList::Kind::Selection).size());
}

std::size_t ReplacedLists::removeAll() {
    if (!m_writable) {
        return 0;
    }
    const std::lock_guard lock(m_guard);
    std::size_t removed = 0;
    for (const ReplacedList::Kind kind : {ReplacedList::Kind::Favorites, ReplacedList::Kind::Selection}) {
        for (const QString& name : namesIn(m_folder, kind)) {
            removed += QFile::remove(m_folder + u'/' + name) ? 1 : 0;
        }
    }
    QDir().rmdir(m_folder);
    return removed;
}

} // namespace guide
