#pragma once

#include "platform/UserDefaults.h"

#include <QString>
#include <QStringList>

namespace guide {

/// What the user searched for lately, kept on this device. Main queue.
class RecentSearches {
  public:
    static constexpr qsizetype kMost = 10;
    /// A longer text is not kept.
    static constexpr qsizetype kLongestText = 100;

    explicit RecentSearches(UserDefaults& userDefaults)
        : m_userDefaults(userDefaults) {}

    /// The latest one first. No two are the same apart from case and diacritics.
    QStringList all() const;
    /// Puts the text first. Replaces `typedBefore`, a shorter text that the user went on typing.
    void add(const QString& text, const QString& typedBefore = {});
    void remove(const QString& text);
    void set(const QStringList& texts);

  private:
    UserDefaults& m_userDefaults;
};

} // namespace guide
