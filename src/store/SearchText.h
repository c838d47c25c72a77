#pragma once

#include "store/ShowItem.h"

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <vector>

namespace guide {

/// A pattern in the form that searches compare: without case and diacritics. When nothing is left it is
/// empty, and find() never finds it.
QByteArray searchPattern(const QString& pattern);

/// The texts of shows, without case and diacritics, in one buffer. A pattern is found only within a single
/// text.
class SearchText {
  public:
    std::size_t size() const { return m_ends.size(); }

    void reserve(std::size_t shows, std::size_t bytes);
    std::size_t bytes() const { return static_cast<std::size_t>(m_text.size()); }

    /// Folds the texts of one more show.
    void append(const ShowItem& show);
    /// Copies texts that are already folded.
    void append(const SearchText& other, std::size_t first, std::size_t count);

    /// The index of the first show at or after `from` that contains the pattern; size() when none does.
    std::size_t find(const QByteArray& searchPattern, std::size_t from) const;

  private:
    void append(const std::optional<QString>& text);
    std::size_t begin(std::size_t show) const { return show == 0 ? 0 : m_ends[show - 1]; }

    QByteArray m_text;
    /// Where the texts of each show end.
    std::vector<std::size_t> m_ends;
};

} // namespace guide
