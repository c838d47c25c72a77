#pragma once

#include <QString>

namespace guide {

/// What the user pastes next. Main thread.
class Clipboard {
  public:
    virtual ~Clipboard() = default;
    virtual void setText(const QString& text) = 0;
};

} // namespace guide
