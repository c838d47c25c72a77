#pragma once

#include "sources/RandomIndex.h"

#include <QByteArray>

namespace guide {

/// The browser that this run of the program says it is: one of fourteen, chosen when the object is made.
/// There is one such object, and every request carries its value.
class HTTPUserAgent {
  public:
    static constexpr unsigned kCount = 14;

    explicit HTTPUserAgent(const RandomIndex& random);

    const QByteArray& value() const { return m_value; }

  private:
    QByteArray m_value;
};

} // namespace guide
