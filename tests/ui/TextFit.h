#pragma once

#include <QQuickItem>
#include <QStringList>

namespace guide::test {

/// What is wrong with the visible texts of a window: cut off, larger than their place, beyond the window's
/// sides, or drawn over another text of the same row. A text that is an excerpt by design has the object name
/// "excerpt".
QStringList misfits(const QQuickItem& root);

} // namespace guide::test
