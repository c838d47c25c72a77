#pragma once

#include "demo/DemoServer.h"
#include "demo/Misbehaviour.h"

namespace guide {

/// An answer, and how it goes out.
struct SpoiledAnswer {
    ServedResponse response;
    /// How much of the body is sent; the rest is announced and never comes.
    qsizetype sent = 0;
    /// What becomes of the connection behind the last byte that is sent.
    enum class Ending { Close, KeepSilent } ending = Ending::Close;
    /// The time over which the body is spread.
    std::chrono::milliseconds duration{0};
    /// Nothing is sent at all, not even the head.
    bool mute = false;
};

/// The good answer, spoiled; as it stands for Misbehaviour::Kind::None. `redirect` is where redirects lead.
SpoiledAnswer spoiled(const ServedResponse& good, const Misbehaviour& how, const QByteArray& redirect);

} // namespace guide
