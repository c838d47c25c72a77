#pragma once

#include <QByteArrayView>

#include <optional>

namespace guide {

/// The available share of the machine's memory, from 0 to 1, from the text of /proc/meminfo; unset when the
/// text does not contain it.
std::optional<double> availableMemory(QByteArrayView meminfo);

/// Decides, from repeated readings of the available memory, when the guide should release some.
class MemoryWarning {
  public:
    /// Whether memory has become short with this reading. True once, then not until plenty was available
    /// again.
    bool due(double available);

  private:
    bool m_short = false;
};

} // namespace guide
