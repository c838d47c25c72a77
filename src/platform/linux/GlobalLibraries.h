#pragma once

namespace guide {

/// The libraries that want to be set up once, while no other thread runs. The first object that the program
/// makes on its main thread, and the last one to go.
class GlobalLibraries {
  public:
    GlobalLibraries();
    GlobalLibraries(const GlobalLibraries&) = delete;
    GlobalLibraries& operator=(const GlobalLibraries&) = delete;
    ~GlobalLibraries();
};

} // namespace guide
