#pragma once

namespace guide {

enum class AudioSessionCategory {
    /// Plays together with other programs.
    Ambient,
    /// Plays instead of other programs.
    Playback,
};

/// How the program's sound behaves towards that of other programs. Failures are not reported.
class AudioSession {
  public:
    virtual ~AudioSession() = default;
    virtual void setCategory(AudioSessionCategory category, bool mixWithOthers) = 0;
    virtual void setActive(bool active) = 0;
};

} // namespace guide
