#pragma once

#include "platform/AudioSession.h"

namespace guide {

/// Linux mixes the sound of all programs by itself, so there is nothing to do.
class LinuxAudioSession : public AudioSession {
  public:
    void setCategory(AudioSessionCategory, bool) override {}
    void setActive(bool) override {}
};

} // namespace guide
