#pragma once

#include <QByteArrayView>

namespace guide {

inline constexpr int kPropertyListDepth = 64;
inline constexpr int kPropertyListValues = 4'000'000;

/// Checks, before anything is built, that a property list expands to at most kPropertyListDepth levels and
/// kPropertyListValues values and that its keys are texts without NUL. A binary list refers to its parts by
/// number, so that a small file can describe an endless tree. Other damage is not detected.
bool binaryPropertyListIsBounded(QByteArrayView data);
bool xmlPropertyListIsBounded(QByteArrayView data);

} // namespace guide
