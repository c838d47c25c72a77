#include "alarms/TVShows.h"

#include "alarms/FavoritesFile.h"

#include <QDebug>

#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMostBytes = 16 << 20;

} // namespace

TVShows::TVShows(const Folders& folders, KeyValueStore& keyValueStore, DispatchQueues& queues)
    : m_file({folders.documents + u"/favorites.plist"_s, u"Favorites"_s, kMostBytes, folders.writable},
             keyValueStore, queues.makeQueue("favorites", QueueKind::Serial, QueuePriority::Default)) {}

// Under the guard. The file of an intact profile is not written again: its rules may be older than those that
// another device has mirrored.
void TVShows::read() {
    const auto take = [this](std::optional<std::vector<Favorite>> rules) {
        if (rules) {
            m_current = std::make_shared<const FavoritesSnapshot>(*std::move(rules));
        }
        return m_current != nullptr;
    };
    const MirroredFile::Found found =
        m_file.read([&take](const QByteArray& content) { return take(favoritesOfFile(content)); },
                    [&take](const QCborValue& copy) { return take(favoritesOfMirror(copy)); });
    if (found == MirroredFile::Found::Copy || (found == MirroredFile::Found::File && m_file.wasRefused())) {
        m_file.write(content());
    } else if (found == MirroredFile::Found::File && !m_file.hasCopy()) {
        // The copy may only be out of reach, and newer.
        m_file.writeMissing(content());
    }
}

// Under the guard.
std::function<MirroredFile::Content()> TVShows::content() const {
    return [written = m_current] {
        return MirroredFile::Content{favoritesFileContent(written->rules()),
                                     favoritesMirror(written->rules())};
    };
}

// Under the guard. False when the rules are equal.
bool TVShows::replace(std::vector<Favorite> rules) {
    if (!m_current) {
        // Finds out whether there is a damaged file to keep.
        read();
    }
    const bool modified = !m_current || m_current->rules() != rules;
    qInfo("newFavorites: modified=%s", modified ? "true" : "false");
    if (modified) {
        m_current = std::make_shared<const FavoritesSnapshot>(std::move(rules));
    }
    return modified;
}

std::optional<std::vector<Favorite>> TVShows::favorites() {
    const std::lock_guard lock(m_guard);
    if (!m_current) {
        read();
    }
    return m_current ? std::optional(m_current->rules()) : std::nullopt;
}

void TVShows::setFavorites(std::vector<Favorite> rules, Block before) {
    const std::lock_guard lock(m_guard);
    if (replace(std::move(rules))) {
        m_file.beforeWriting(std::move(before));
        m_file.write(content());
    }
}

void TVShows::takeFavorites(std::vector<Favorite> rules, const QCborValue& stored, Block before) {
    const std::lock_guard lock(m_guard);
    if (replace(std::move(rules))) {
        m_file.beforeWriting(std::move(before));
    } else if (favoritesMirror(m_current->rules()) == stored) {
        return;
    }
    m_file.writeTaken(content(), stored);
}

bool TVShows::setDate(const QString& title, Moment date) {
    const std::lock_guard lock(m_guard);
    const Favorite* rule = m_current ? m_current->ruleNamed(title) : nullptr;
    if (!rule) {
        return false;
    }
    std::vector<Favorite> rules = m_current->rules();
    rules[static_cast<std::size_t>(rule - m_current->rules().data())].date = date;
    m_current = std::make_shared<const FavoritesSnapshot>(std::move(rules));
    return true;
}

bool TVShows::isLoaded() const {
    const std::lock_guard lock(m_guard);
    return m_current != nullptr;
}

std::shared_ptr<const FavoritesSnapshot> TVShows::snapshot() const {
    const std::lock_guard lock(m_guard);
    return m_current ? m_current : m_none;
}

} // namespace guide
