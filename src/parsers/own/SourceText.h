#pragma once

#include "core/own/SourcePreview.h"
#include "platform/encoding/TextFile.h"

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <cstdint>

namespace guide {

/// The kind of a source by the beginning of its text, whatever its name or server say that it is.
SourceKind sourceKindOf(QStringView beginning);

/// The text of a source's file, packed or not; of an archive, its first feed or playlist.
class SourceText final : public TextSource {
  public:
    /// `charset` was declared by a server and may be empty.
    SourceText(const QString& path, const QString& charset, std::uint64_t physicalMemory);

    SourceKind kind() const { return m_kind; }
    /// After the last byte: Read, Incomplete, or why nothing of it can be used.
    SourceResult result() const;

    std::size_t read(std::span<char> room) override;
    std::int64_t unpackedBytes() const { return m_file.unpackedBytes(); }
    std::int64_t replacedBytes() const { return m_file.replacedBytes(); }

  private:
    TextFile m_file;
    /// Read to find out the kind.
    QByteArray m_beginning;
    qsizetype m_at = 0;
    bool m_hasText = false;
    SourceKind m_kind = SourceKind::Empty;
};

} // namespace guide
