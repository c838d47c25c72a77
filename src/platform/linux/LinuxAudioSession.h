#pragma once

#include "platform/AudioSession.h"

namespace guide {

/// Linux mixes the sound of every program by itself: there is nothing to ask for.
class LinuxAudioSession : public AudioSession {
  public:
    void setCategory(AudioSessionCategory, bool) override {}
    void setActive(bool) override {}
};

} // namespace guide
