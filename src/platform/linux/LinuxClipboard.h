#pragma once

#include "platform/Clipboard.h"

namespace guide {

/// The clipboard of the desktop.
class LinuxClipboard final : public Clipboard {
  public:
    void setText(const QString& text) override;
    QString text() const override;
};

} // namespace guide
