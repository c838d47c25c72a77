#include "app/MemoryWarning.h"

#include <QByteArray>

#include <algorithm>

namespace guide {

namespace {

constexpr double kShort = 0.05;
constexpr double kPlenty = 0.1;

/// The number of kibibytes after the name; 0 when there is none.
double amount(QByteArrayView meminfo, QByteArrayView name) {
    const qsizetype at = meminfo.indexOf(name);
    if (at < 0) {
        return 0;
    }
    const QByteArrayView rest = meminfo.sliced(at + name.size());
    return rest.first(std::max<qsizetype>(0, rest.indexOf("kB"))).trimmed().toDouble();
}

} // namespace

std::optional<double> availableMemory(QByteArrayView meminfo) {
    const double total = amount(meminfo, "MemTotal:");
    if (total <= 0 || !meminfo.contains("MemAvailable:")) {
        return std::nullopt;
    }
    return amount(meminfo, "MemAvailable:") / total;
}

bool MemoryWarning::due(double available) {
    const bool wasShort = m_short;
    m_short = available < (wasShort ? kPlenty : kShort);
    return m_short && !wasShort;
}

} // namespace guide
