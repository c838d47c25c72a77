#pragma once

#include "platform/Moment.h"
#include "store/FavoriteTitles.h"

#include <QHash>
#include <QString>

#include <cstddef>
#include <memory>
#include <optional>
#include <unordered_set>
#include <vector>

namespace guide {

/// A rule on a show title.
struct Favorite {
    /// The title as the user added it.
    QString identificator;
    /// Lead time of the recurring alarm; unset when the rule has none.
    std::optional<int> minutes;
    /// When the rule was created or last replaced.
    Moment date;
    /// Unset for any broadcast, false for premieres only, true for replays only.
    std::optional<bool> previouslyShown;

    friend bool operator==(const Favorite&, const Favorite&) = default;
};

/// All rules at one moment, in the order in which they were added.
class FavoritesSnapshot final : public FavoriteTitles {
  public:
    FavoritesSnapshot() = default;
    explicit FavoritesSnapshot(std::vector<Favorite> rules);

    const std::vector<Favorite>& rules() const { return m_rules; }
    bool empty() const override { return m_rules.empty(); }
    bool containsFavoriteNamed(const QString& title) const override { return ruleNamed(title) != nullptr; }
    bool mayContain(std::uint32_t titleHash) const override { return m_hashes.contains(titleHash); }
    /// The first rule with the title, ignoring case; null when there is none.
    const Favorite* ruleNamed(const QString& title) const;

  private:
    std::vector<Favorite> m_rules;
    /// The index of the first rule of each lowercased title.
    QHash<QString, std::size_t> m_byTitle;
    /// titleHash() of each title.
    std::unordered_set<std::uint32_t> m_hashes;
};

/// Provides the current favourites from memory. Any thread.
class FavoritesSource : public FavoriteTitlesSource {
  public:
    /// Never null. A screen takes it once per rebuild, other work once per run.
    virtual std::shared_ptr<const FavoritesSnapshot> snapshot() const = 0;
    std::shared_ptr<const FavoriteTitles> titles() const final { return snapshot(); }
};

} // namespace guide
