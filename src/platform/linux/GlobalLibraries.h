#pragma once

namespace guide {

/// Initialises libraries that require it to happen once, before other threads run. Must be the first object
/// that the program creates on its main thread and the last one destroyed.
class GlobalLibraries {
  public:
    GlobalLibraries();
    GlobalLibraries(const GlobalLibraries&) = delete;
    GlobalLibraries& operator=(const GlobalLibraries&) = delete;
    ~GlobalLibraries();
};

} // namespace guide
