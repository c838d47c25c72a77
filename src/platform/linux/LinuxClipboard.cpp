#include "platform/linux/LinuxClipboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace guide {

void LinuxClipboard::setText(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
}

QString LinuxClipboard::text() const {
    return QGuiApplication::clipboard()->text();
}

} // namespace guide
