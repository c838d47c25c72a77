#pragma once

#include "store/ShowItem.h"

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <vector>

namespace guide {

/// A pattern as searches compare it: without case and diacritics. Empty when nothing is left of it, and then
/// it is found nowhere.
QByteArray searchPattern(const QString& pattern);

/// The texts of shows, without case and diacritics, in one piece of memory. A pattern is found within one
/// text of one show, never across two.
class SearchText {
  public:
    std::size_t size() const { return m_ends.size(); }

    void reserve(std::size_t shows, std::size_t bytes);
    std::size_t bytes() const { return static_cast<std::size_t>(m_text.size()); }

    /// Folds the texts of one more show.
    void append(const ShowItem& show);
    /// Takes over the texts of shows that were folded before.
    void append(const SearchText& other, std::size_t first, std::size_t count);

    /// The index of the first show at or behind `from` that holds the pattern; size() when none does.
    std::size_t find(const QByteArray& searchPattern, std::size_t from) const;

  private:
    void append(const std::optional<QString>& text);
    std::size_t begin(std::size_t show) const { return show == 0 ? 0 : m_ends[show - 1]; }

    QByteArray m_text;
    /// Where the texts of each show end.
    std::vector<std::size_t> m_ends;
};

} // namespace guide
