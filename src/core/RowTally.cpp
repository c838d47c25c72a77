#include "core/RowTally.h"

#include <QStringList>

#include <algorithm>
#include <functional>
#include <numeric>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// In the order of RowProblem.
constexpr std::array kNames{"type"_L1, "incomplete"_L1, "identity"_L1, "language"_L1, "icon"_L1};

} // namespace

// The most frequent problem first.
QString RowTally::listed(const Counts& counts) {
    static_assert(kNames.size() == kProblems);
    std::array<std::size_t, kProblems> order{};
    std::iota(order.begin(), order.end(), std::size_t(0));
    std::ranges::stable_sort(order, std::greater(),
                             [&counts](std::size_t problem) { return counts[problem]; });
    QStringList parts;
    for (const std::size_t problem : order) {
        if (counts[problem] > 0) {
            parts.append(u"%1 %2"_s.arg(QString::number(counts[problem]), kNames[problem]));
        }
    }
    return parts.join(", "_L1);
}

QString RowTally::summary(const QString& plural) const {
    const auto part = [&](const Counts& counts, const QString& outcome) {
        const std::size_t total = std::reduce(counts.begin(), counts.end());
        return total == 0 ? QString()
                          : u"%1 of %2 %3 %4: %5"_s.arg(QString::number(total), QString::number(m_rows),
                                                        plural, outcome, listed(counts));
    };
    QStringList parts{part(m_leftOut, u"left out"_s), part(m_accepted, u"doubtful"_s)};
    parts.removeAll(QString());
    return parts.join("; "_L1);
}

} // namespace guide
