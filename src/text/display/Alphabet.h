#pragma once

#include <QString>

#include <atomic>

namespace guide {

/// Whether the device writes Cyrillic. One shared object for everything that makes display texts. Once true,
/// it stays true until the process ends. Written on the main thread, read on any thread.
class Alphabet {
  public:
    explicit Alphabet(bool useCyrillic = false)
        : m_useCyrillic(useCyrillic) {}

    bool useCyrillic() const { return m_useCyrillic.load(std::memory_order_relaxed); }

    /// Sets it when a date in the full style of the locale contains a Cyrillic letter.
    void detectAlphabet(const QString& fullDateText);

  private:
    std::atomic<bool> m_useCyrillic;
};

} // namespace guide
