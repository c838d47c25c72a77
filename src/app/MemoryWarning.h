#pragma once

#include <QByteArrayView>

#include <optional>

namespace guide {

/// The share of the machine's memory that programs can still have, from 0 to 1, of the text of /proc/meminfo;
/// nothing when it does not say.
std::optional<double> availableMemory(QByteArrayView meminfo);

/// Notices, from looks at the memory that is left, when the guide should give some back.
class MemoryWarning {
  public:
    /// Whether memory has become short with this look. Told once, until there is plenty again.
    bool due(double available);

  private:
    bool m_short = false;
};

} // namespace guide
