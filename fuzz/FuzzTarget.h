#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <functional>
#include <string>
#include <vector>

namespace guide::fuzz {

/// Code that reads untrusted bytes, and what a fuzzer needs for it.
struct FuzzTarget {
    std::string name;
    /// Aborts, with a line on standard error, when the result breaks an invariant.
    std::function<void(QByteArrayView input)> run;
    /// Valid inputs to start from.
    std::function<std::vector<QByteArray>()> seeds;
    /// Files below src/ whose string literals go into the dictionary: the markers of a format.
    std::vector<std::string> literals = {};
    /// Bytes that a run may allocate at once per byte of input; 0 for targets with other bounds (unpacking).
    int maxMemoryPerByte = 100;
};

std::vector<FuzzTarget> readerTargets();
std::vector<FuzzTarget> feedTargets();
std::vector<FuzzTarget> detailTargets();
std::vector<FuzzTarget> textTargets();
std::vector<FuzzTarget> archiveTargets();
std::vector<FuzzTarget> sourceTargets();
std::vector<FuzzTarget> profileTargets();
std::vector<FuzzTarget> ownSourceTargets();
std::vector<FuzzTarget> calendarTargets();

/// All of the above.
const std::vector<FuzzTarget>& fuzzTargets();

/// Aborts when `holds` is false.
void require(bool holds, const char* what);

} // namespace guide::fuzz
