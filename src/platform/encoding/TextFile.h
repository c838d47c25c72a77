#pragma once

#include "platform/encoding/CharacterConverter.h"
#include "platform/encoding/PackedFile.h"
#include "platform/encoding/TextSource.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <functional>
#include <memory>

namespace guide {

struct TextFileOptions {
    /// The character set that a server declared; may be empty.
    QString charset = {};
    /// In bytes; limits what the decoder of xz may use. 0 means no limit.
    std::uint64_t physicalMemory = 0;
    /// Whether the file of an archive that begins with this text is the one to read. May be empty.
    std::function<bool(QStringView)> isWanted = {};
    /// The number of bytes that are decoded at once, at least 4.
    std::size_t window = std::size_t{256} << 10;
};

/// Reads a text file, packed or not, as valid UTF-8 without a byte order mark, in bounded memory.
///
/// The character set is that of a byte order mark, else `charset`, else the one that the document's XML
/// declaration names, if they can decode its beginning but for one byte in a thousand; but a beginning that
/// is valid UTF-8, and not only ASCII, is UTF-8 whatever other set is declared. Otherwise it is UTF-8, unless
/// around the first invalid byte more than one in a thousand is invalid and fewer letters beyond ASCII are
/// valid: then it is the character set of Central European Windows. A document of at most one window gets the
/// answer that its whole content gives. In a longer one, invalid bytes behind the first window with letters
/// beyond ASCII no longer change the answer.
///
/// A byte that cannot be decoded is replaced by U+FFFD, a control character that XML does not allow by a
/// blank; both are counted.
class TextFile final : public TextSource {
  public:
    TextFile(const QString& path, const TextFileOptions& options);

    /// `room` has at least 4 bytes.
    std::size_t read(std::span<char> room) override;

    /// Valid when read() has returned 0.
    FileEnd end() const { return m_file.end(); }
    /// So far, in the file's character set.
    std::int64_t unpackedBytes() const { return m_file.unpackedBytes(); }
    /// So far.
    std::int64_t replacedBytes() const;

  private:
    void fill();
    void decide();
    std::size_t readUtf8(std::span<char> room);
    std::size_t repairUtf8(std::span<char> room);
    std::size_t readConverted(std::span<char> room);
    void useConverter(std::unique_ptr<CharacterConverter> converter);

    const QString m_charset;
    const std::size_t m_window;
    PackedFile m_file;
    /// Bytes that are not decoded yet: m_raw from m_at on.
    QByteArray m_raw;
    qsizetype m_at = 0;
    bool m_isLast = false;
    bool m_isDecided = false;
    /// Only ASCII so far: another character set is possible.
    bool m_isPlain = true;
    /// Null for UTF-8.
    std::unique_ptr<CharacterConverter> m_converter;
    std::int64_t m_replaced = 0;
};

} // namespace guide
