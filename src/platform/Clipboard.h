#pragma once

#include <QString>

namespace guide {

/// What the user copied last, and pastes next. Main thread.
class Clipboard {
  public:
    virtual ~Clipboard() = default;
    virtual void setText(const QString& text) = 0;
    /// Empty when something other than text was copied.
    virtual QString text() const = 0;
};

} // namespace guide
