#pragma once

#include <QQuickItem>
#include <QStringList>

namespace guide::test {

/// What is wrong with the visible texts of a window: cut off, larger than their place, outside the window,
/// their row or their button, or drawn over another text or a symbol of the same row. A text that is an
/// excerpt by design has the object name "excerpt", symbols behind the last word of a text have the name
/// "marks".
QStringList misfits(const QQuickItem& root);

} // namespace guide::test
