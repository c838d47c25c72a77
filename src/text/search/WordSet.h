#pragma once

#include <QSet>
#include <QString>
#include <QStringView>

#include <algorithm>
#include <array>
#include <cstdint>

namespace guide {

/// A set of words that is asked for many more than it has: their first letters and lengths are looked at
/// before anything is hashed.
class WordSet {
  public:
    void insert(const QString& word) {
        m_words.insert(word);
        m_lengths[slotOf(word)] |= bitOf(word);
    }
    bool contains(QStringView word) const {
        return (m_lengths[slotOf(word)] & bitOf(word)) != 0 &&
               m_words.contains(QString::fromRawData(word.data(), word.size()));
    }
    const QSet<QString>& words() const { return m_words; }

  private:
    static constexpr std::size_t kSlots = 256;

    static std::size_t slotOf(QStringView word) {
        return word.isEmpty() ? 0 : word.front().unicode() % kSlots;
    }
    /// All long words share the last bit.
    static std::uint32_t bitOf(QStringView word) {
        return std::uint32_t{1} << std::min<qsizetype>(word.size(), 31);
    }

    QSet<QString> m_words;
    /// By the first unit: a bit for each length.
    std::array<std::uint32_t, kSlots> m_lengths{};
};

} // namespace guide
