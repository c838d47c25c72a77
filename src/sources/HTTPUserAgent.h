#pragma once

#include "sources/RandomIndex.h"

#include <QByteArray>

namespace guide {

/// The browser identity of this run: one of fourteen, chosen on construction. One object exists and every
/// request carries its value.
class HTTPUserAgent {
  public:
    static constexpr unsigned kCount = 14;

    explicit HTTPUserAgent(const RandomIndex& random);

    const QByteArray& value() const { return m_value; }

  private:
    QByteArray m_value;
};

} // namespace guide
