#pragma once

#include <QString>

#include <cstdint>
#include <memory>

namespace guide {

/// The titles of the favourites at one moment. Immutable; any thread.
class FavoriteTitles {
  public:
    virtual ~FavoriteTitles() = default;
    virtual bool empty() const = 0;
    /// Ignores case.
    virtual bool containsFavoriteNamed(const QString& title) const = 0;
    /// False when none of them has a title with this titleHash().
    virtual bool mayContain(std::uint32_t titleHash) const = 0;
};

/// Where the store gets the favourites from. Answers from memory; any thread.
class FavoriteTitlesSource {
  public:
    virtual ~FavoriteTitlesSource() = default;
    /// Never null. A query takes it once.
    virtual std::shared_ptr<const FavoriteTitles> titles() const = 0;
};

} // namespace guide
