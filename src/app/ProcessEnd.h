#pragma once

#include <chrono>

namespace guide {

/// Ends the process even if something goes on waiting for a folder whose server does not answer. To be called
/// when everything has been written.
void endWithin(std::chrono::seconds atMost, int status);

} // namespace guide
