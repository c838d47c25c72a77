#pragma once

#include <QString>

#include <atomic>

namespace guide {

/// Whether the device writes Cyrillic. One object, handed to whoever makes display texts: once found to be so
/// it stays so until the process ends. Written on the main thread, read from any.
class Alphabet {
  public:
    explicit Alphabet(bool useCyrillic = false)
        : m_useCyrillic(useCyrillic) {}

    bool useCyrillic() const { return m_useCyrillic.load(std::memory_order_relaxed); }

    /// Looks for a Cyrillic letter in a date as the device writes it (full date style, its locale).
    void detectAlphabet(const QString& fullDateText);

  private:
    std::atomic<bool> m_useCyrillic;
};

} // namespace guide
