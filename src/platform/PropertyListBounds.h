#pragma once

#include <QByteArrayView>

namespace guide {

inline constexpr int kPropertyListDepth = 64;
inline constexpr int kPropertyListValues = 4'000'000;

/// Whether a property list, read as a tree, stays within kPropertyListDepth levels and kPropertyListValues
/// values, and its keys are texts without a NUL, found out before anything is built: a binary list names its
/// parts by number, so a small file can stand for an endless tree. Says nothing about the rest of the file's
/// health.
bool binaryPropertyListIsBounded(QByteArrayView data);
bool xmlPropertyListIsBounded(QByteArrayView data);

} // namespace guide
