#pragma once

#include "platform/Clipboard.h"

namespace guide {

/// A clipboard of the process.
class MemoryClipboard final : public Clipboard {
  public:
    void setText(const QString& text) override { m_text = text; }
    QString text() const override { return m_text; }

  private:
    QString m_text;
};

} // namespace guide
