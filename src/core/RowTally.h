#pragma once

#include <QString>

#include <array>
#include <cstddef>

namespace guide {

/// Why a row of a catalogue, selection or host table cannot be used as it is.
enum class RowProblem {
    /// A value has another type than the one expected.
    Type,
    /// A required value is missing or empty.
    Incomplete,
    /// The identity is not 24 hexadecimal digits.
    Identity,
    /// The language and region are not a supported pair.
    Language,
    /// The icon cannot be read.
    Icon,
};

/// Counts the rows of a file while it is read, and those that have a problem.
class RowTally {
  public:
    void addRow() { ++m_rows; }
    /// Counts a row that is not used.
    void leaveOut(RowProblem problem) { ++m_leftOut[static_cast<std::size_t>(problem)]; }
    /// Counts a row that is used in spite of a problem.
    void accept(RowProblem problem) { ++m_accepted[static_cast<std::size_t>(problem)]; }

    std::size_t rows() const { return m_rows; }

    /// One line, such as "12 of 40 channels left out: 9 language, 3 icon"; empty when no row has a problem.
    /// `plural` names the rows.
    QString summary(const QString& plural) const;

  private:
    static constexpr std::size_t kProblems = 5;
    using Counts = std::array<std::size_t, kProblems>;

    static QString listed(const Counts& counts);

    std::size_t m_rows = 0;
    Counts m_leftOut{};
    Counts m_accepted{};
};

} // namespace guide
