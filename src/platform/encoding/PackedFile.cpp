#include "platform/encoding/PackedFile.h"

#include "platform/encoding/Decompression.h"
#include "platform/encoding/PackedContent.h"
#include "platform/files/FileContent.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <optional>
#include <utility>

namespace guide {

namespace {

constexpr std::size_t kPackedWindow = std::size_t{64} << 10;
constexpr qsizetype kLongestSignature = 6;

std::uint64_t memoryOf(const PackedFileOptions& options) {
    return options.physicalMemory > 0 ? options.physicalMemory / 4
                                      : std::numeric_limits<std::uint64_t>::max();
}

class PlainContent final : public PackedFile::Content {
  public:
    explicit PlainContent(std::unique_ptr<FileInput> input)
        : m_input(std::move(input)) {}

    std::size_t read(std::span<char> room, std::optional<FileEnd>& end) override {
        const QByteArrayView bytes = m_input->peek(1);
        const std::size_t count = std::min(static_cast<std::size_t>(bytes.size()), room.size());
        std::memcpy(room.data(), bytes.data(), count);
        m_input->skip(static_cast<qsizetype>(count));
        if (count == 0) {
            end = FileEnd::Complete;
        }
        return count;
    }

  private:
    const std::unique_ptr<FileInput> m_input;
};

class UnpackedContent final : public PackedFile::Content {
  public:
    /// `second`, which may be null, reads the file again where `first` finds it damaged, so that a file gives
    /// the same bytes on every machine.
    UnpackedContent(std::unique_ptr<FileInput> input, std::unique_ptr<Unpacker> first,
                    std::unique_ptr<Unpacker> second)
        : m_input(std::move(input))
        , m_unpacker(std::move(first))
        , m_second(std::move(second)) {}

    std::size_t read(std::span<char> room, std::optional<FileEnd>& end) override {
        std::size_t written = 0;
        UnpackState state = UnpackState::More;
        while (written == 0 && state == UnpackState::More) {
            state = m_unpacker->unpack(*m_input, room, written);
            if (state == UnpackState::Damaged && m_second) {
                // What was unpacked last by a decoder that gave up does not count.
                written = 0;
                state = startAgain(room);
            }
        }
        m_delivered += written;
        if (state != UnpackState::More) {
            end = state == UnpackState::Complete   ? FileEnd::Complete
                  : state == UnpackState::CutShort ? FileEnd::CutShort
                                                   : FileEnd::Damaged;
        }
        return written;
    }

  private:
    UnpackState startAgain(std::span<char> room) {
        m_unpacker = std::exchange(m_second, nullptr);
        if (!m_input->restart()) {
            return UnpackState::Damaged;
        }
        UnpackState state = UnpackState::More;
        for (std::uint64_t left = m_delivered; left > 0 && state == UnpackState::More;) {
            std::size_t written = 0;
            state =
                m_unpacker->unpack(*m_input, room.first(std::min<std::uint64_t>(room.size(), left)), written);
            left -= written;
        }
        return state;
    }

    const std::unique_ptr<FileInput> m_input;
    std::unique_ptr<Unpacker> m_unpacker;
    std::unique_ptr<Unpacker> m_second;
    std::uint64_t m_delivered = 0;
};

} // namespace

FileInput::FileInput(const QString& path)
    : m_file(path) {}

bool FileInput::open() {
    m_buffer.resize(kPackedWindow);
    return m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

bool FileInput::restart() {
    m_at = 0;
    m_filled = 0;
    return m_file.seek(0);
}

QByteArrayView FileInput::peek(qsizetype least) {
    if (m_filled - m_at < static_cast<std::size_t>(least)) {
        std::memmove(m_buffer.data(), m_buffer.data() + m_at, m_filled - m_at);
        m_filled -= std::exchange(m_at, 0);
        while (m_filled < static_cast<std::size_t>(least)) {
            const qint64 got =
                m_file.read(m_buffer.data() + m_filled, static_cast<qint64>(m_buffer.size() - m_filled));
            if (got <= 0) {
                break;
            }
            m_filled += static_cast<std::size_t>(got);
        }
    }
    return {m_buffer.data() + m_at, static_cast<qsizetype>(m_filled - m_at)};
}

void FileInput::skip(qsizetype count) {
    m_at += static_cast<std::size_t>(count);
}

PackedFile::PackedFile(const QString& path, PackedFileOptions options) {
    auto input = std::make_unique<FileInput>(path);
    if (!isReadableFile(path, std::numeric_limits<qint64>::max()) || !input->open()) {
        m_end = FileEnd::NoFile;
        return;
    }
    m_packed = input->size();
    const QByteArrayView beginning = input->peek(kLongestSignature);
    if (hasZipSignature(beginning)) {
        m_content = zipContent(path, std::move(options.isWanted));
    } else if (hasGzipSignature(beginning)) {
        auto fast = isalGzipUnpacker();
        auto exact = zlibGzipUnpacker();
        if (!fast) {
            std::swap(fast, exact);
        }
        m_content = std::make_unique<UnpackedContent>(std::move(input), std::move(fast), std::move(exact));
    } else if (hasXzSignature(beginning)) {
        m_content =
            std::make_unique<UnpackedContent>(std::move(input), xzUnpacker(memoryOf(options)), nullptr);
    } else {
        m_content = std::make_unique<PlainContent>(std::move(input));
    }
}

PackedFile::~PackedFile() = default;

std::size_t PackedFile::read(std::span<char> room) {
    std::size_t filled = 0;
    while (filled < room.size() && m_content) {
        std::optional<FileEnd> end;
        const std::size_t count = m_content->read(room.subspan(filled), end);
        filled += count;
        m_unpacked += static_cast<std::int64_t>(count);
        if (m_unpacked > kMostUnpacked ||
            (m_unpacked > kMostAtAnyRatio && m_unpacked / kMostRatio > m_packed)) {
            end = FileEnd::TooLarge;
        }
        if (end) {
            m_end = *end;
            m_content.reset();
        }
    }
    return filled;
}

} // namespace guide
