#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <functional>
#include <string>
#include <vector>

namespace guide::fuzz {

/// Something that eats bytes of strangers, and what a fuzzer needs to begin with it.
struct FuzzTarget {
    std::string name;
    /// Takes any bytes. Aborts, with a line on the standard error, when what comes out is wrong.
    std::function<void(QByteArrayView input)> run;
    /// Inputs that lead deep.
    std::function<std::vector<QByteArray>()> seeds;
    /// The files below src/ whose literal texts are worth mixing in: the markers of a format.
    std::vector<std::string> literals = {};
    /// Bytes that a run may hold at once for each byte of its input; 0 where unpacking has bounds of its own.
    int mostMemoryPerByte = 100;
};

std::vector<FuzzTarget> readerTargets();
std::vector<FuzzTarget> feedTargets();
std::vector<FuzzTarget> detailTargets();
std::vector<FuzzTarget> textTargets();
std::vector<FuzzTarget> archiveTargets();
std::vector<FuzzTarget> sourceTargets();

/// All of the above.
const std::vector<FuzzTarget>& fuzzTargets();

/// Ends the process when `holds` is false.
void require(bool holds, const char* what);

} // namespace guide::fuzz
