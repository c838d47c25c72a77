#pragma once

#include "platform/Clipboard.h"

namespace guide {

/// A clipboard of the process.
class MemoryClipboard final : public Clipboard {
  public:
    void setText(const QString& text) override { m_text = text; }
    const QString& text() const { return m_text; }

  private:
    QString m_text;
};

} // namespace guide
