#include "platform/encoding/GzipInflate.h"

namespace guide {

namespace {

GzipEnd inflateWith(Unpacker& unpacker, QByteArrayView data, GzipOutput& output) {
    PackedBytes input(data);
    for (;;) {
        std::size_t written = 0;
        const UnpackState state = unpacker.unpack(input, output.room(), written);
        if (!output.take(written)) {
            return GzipEnd::Stopped;
        }
        switch (state) {
        case UnpackState::More:
            break;
        case UnpackState::Complete:
            return GzipEnd::Complete;
        case UnpackState::CutShort:
            return GzipEnd::CutShort;
        case UnpackState::Damaged:
            return GzipEnd::Damaged;
        }
    }
}

} // namespace

GzipEnd inflateWithZlib(QByteArrayView data, GzipOutput& output) {
    return inflateWith(*zlibGzipUnpacker(), data, output);
}

GzipEnd inflateWithIsal(QByteArrayView data, GzipOutput& output) {
    const auto unpacker = isalGzipUnpacker();
    return unpacker ? inflateWith(*unpacker, data, output) : GzipEnd::Damaged;
}

} // namespace guide
