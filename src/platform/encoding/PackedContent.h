#pragma once

#include "platform/encoding/PackedFile.h"
#include "platform/encoding/Unpacker.h"

#include <QFile>

#include <memory>
#include <vector>

namespace guide {

class PackedFile::Content {
  public:
    virtual ~Content() = default;
    /// Writes the next bytes to `room`, at least one unless it sets `end`.
    virtual std::size_t read(std::span<char> room, std::optional<FileEnd>& end) = 0;
};

/// A file, read through a small buffer.
class FileInput final : public PackedInput {
  public:
    explicit FileInput(const QString& path);

    bool open();
    std::int64_t size() const { return m_file.size(); }
    bool restart();
    QByteArrayView peek(qsizetype least) override;
    void skip(qsizetype count) override;

  private:
    QFile m_file;
    std::vector<char> m_buffer;
    std::size_t m_at = 0;
    std::size_t m_filled = 0;
};

bool hasZipSignature(QByteArrayView data);
/// Never null. Gives the first file of the archive that is wanted.
std::unique_ptr<PackedFile::Content> zipContent(const QString& path,
                                                std::function<bool(QByteArrayView)> isWanted);

} // namespace guide
