#pragma once

#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

namespace guide {

/// How the reading of a file ended.
enum class FileEnd {
    Complete,
    /// It ends before its content does.
    CutShort,
    Damaged,
    /// It unpacks to too much, or to a suspicious multiple of its size, or is an archive of too many files.
    TooLarge,
    /// It is missing, cannot be read, or is no regular file.
    NoFile,
    /// An archive without a file that is wanted.
    NothingWanted,
};

struct PackedFileOptions {
    /// In bytes; the decoder of xz may use a quarter of it. 0 means no limit.
    std::uint64_t physicalMemory = 0;
    /// Whether the file of an archive that begins with these bytes is the one to read.
    std::function<bool(QByteArrayView)> isWanted = {};
};

/// Reads a file, unpacked if it has the signature of gzip (all members), xz (all streams) or zip (one file of
/// the archive), in bounded memory. Of a file that is damaged or ends early, gives what precedes.
class PackedFile {
  public:
    /// The first bytes of an archive's file that decide whether it is wanted.
    static constexpr std::size_t kBeginning = std::size_t{64} << 10;
    static constexpr std::int64_t kMostUnpacked = std::int64_t{4} << 30;
    /// A higher ratio to the packed size is refused, beyond kMostAtAnyRatio.
    static constexpr std::int64_t kMostRatio = 1'000;
    static constexpr std::int64_t kMostAtAnyRatio = std::int64_t{64} << 20;
    static constexpr std::uint64_t kMostArchivedFiles = 10'000;

    PackedFile(const QString& path, PackedFileOptions options);
    ~PackedFile();

    /// Fills `room` with the next bytes and returns their number, which is smaller only at the end.
    std::size_t read(std::span<char> room);
    /// Valid when read() has returned less than asked for.
    FileEnd end() const { return m_end; }
    /// So far.
    std::int64_t unpackedBytes() const { return m_unpacked; }
    std::int64_t packedBytes() const { return m_packed; }

    /// One content, as it follows from the signature.
    class Content;

  private:
    std::unique_ptr<Content> m_content;
    FileEnd m_end = FileEnd::Complete;
    std::int64_t m_packed = 0;
    std::int64_t m_unpacked = 0;
};

} // namespace guide
