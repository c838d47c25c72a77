#pragma once

namespace guide {

enum class AudioSessionCategory {
    /// Sounds beside what else plays.
    Ambient,
    /// Sounds in its place.
    Playback,
};

/// How the program's sound gets along with that of others. Failures are the session's own affair.
class AudioSession {
  public:
    virtual ~AudioSession() = default;
    virtual void setCategory(AudioSessionCategory category, bool mixWithOthers) = 0;
    virtual void setActive(bool active) = 0;
};

} // namespace guide
