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

/// The texts of a list of shows in one piece of memory, without case and diacritics. A pattern is found
/// within one text of one show, never across two. Immutable; any thread.
class SearchText {
  public:
    explicit SearchText(const ShowItems& shows);

    /// The index of the first show at or behind `from` that holds the pattern; the number of shows when none
    /// does.
    std::size_t find(const QByteArray& searchPattern, std::size_t from) const;

  private:
    std::vector<char> m_text;
    /// Where the texts of each show begin, and the end of the last ones.
    std::vector<std::size_t> m_offsets;
};

} // namespace guide
