#include "platform/encoding/PackedContent.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <optional>
#include <utility>
#include <zip.h>

namespace guide {

namespace {

constexpr char kLocalHeader[] = {'P', 'K', '\3', '\4'};
constexpr char kDirectoryEnd[] = {'P', 'K', '\5', '\6'};
constexpr char kWideDirectoryEnd[] = {'P', 'K', '\6', '\6'};

/// Where the end of an archive says how many files it has.
struct CountField {
    QByteArrayView signature;
    qsizetype offset;
    qsizetype size;
};
constexpr CountField kCounts[] = {{QByteArrayView(kDirectoryEnd, 4), 10, 2},
                                  {QByteArrayView(kWideDirectoryEnd, 4), 32, 8}};
/// The longest comment, and what surrounds it.
constexpr qint64 kDirectoryEndWithin = 65'535 + 22 + 20 + 56;
/// Says that the number stands elsewhere.
constexpr std::uint64_t kSeeWide = 0xffff;

/// Whether the archive claims more files than are allowed. The library reserves memory for as many as the
/// archive says that it has before anybody can ask for their number.
bool hasTooManyFiles(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) ||
        !file.seek(std::max<qint64>(0, file.size() - kDirectoryEndWithin))) {
        return false;
    }
    const QByteArray tail = file.read(kDirectoryEndWithin);
    for (const CountField& field : kCounts) {
        for (qsizetype at = tail.indexOf(field.signature); at >= 0;
             at = tail.indexOf(field.signature, at + 1)) {
            if (at + field.offset + field.size > tail.size()) {
                continue;
            }
            const char* number = tail.constData() + at + field.offset;
            const std::uint64_t count =
                field.size == 2 ? qFromLittleEndian<quint16>(number) : qFromLittleEndian<quint64>(number);
            if (count > PackedFile::kMostArchivedFiles && !(field.size == 2 && count == kSeeWide)) {
                return true;
            }
        }
    }
    return false;
}

struct CloseArchive {
    void operator()(zip_t* archive) const { zip_discard(archive); }
};
struct CloseFile {
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};

class ZipContent final : public PackedFile::Content {
  public:
    ZipContent(const QString& path, std::function<bool(QByteArrayView)> isWanted) {
        if (hasTooManyFiles(path)) {
            m_fault = FileEnd::TooLarge;
            return;
        }
        m_archive.reset(zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY, nullptr));
        const zip_int64_t count = m_archive ? zip_get_num_entries(m_archive.get(), 0) : 0;
        if (!m_archive || count < 0) {
            m_fault = FileEnd::Damaged;
        } else if (static_cast<std::uint64_t>(count) > PackedFile::kMostArchivedFiles) {
            m_fault = FileEnd::TooLarge;
        } else if (!choose(static_cast<zip_uint64_t>(count), isWanted)) {
            m_fault = FileEnd::NothingWanted;
        }
    }

    std::size_t read(std::span<char> room, std::optional<FileEnd>& end) override {
        if (m_fault) {
            end = m_fault;
            return 0;
        }
        if (m_at < m_beginning.size()) {
            const std::size_t count = std::min(room.size(), m_beginning.size() - m_at);
            std::memcpy(room.data(), m_beginning.data() + m_at, count);
            m_at += count;
            return count;
        }
        const zip_int64_t got = zip_fread(m_file.get(), room.data(), room.size());
        if (got <= 0) {
            end = got == 0 && !m_isDamaged ? FileEnd::Complete : FileEnd::Damaged;
            return 0;
        }
        return static_cast<std::size_t>(got);
    }

  private:
    bool choose(zip_uint64_t count, const std::function<bool(QByteArrayView)>& isWanted) {
        for (zip_uint64_t index = 0; index < count; ++index) {
            // Null for a file that is encrypted or packed in a way that the library does not know.
            m_file.reset(zip_fopen_index(m_archive.get(), index, 0));
            if (!m_file) {
                continue;
            }
            readBeginning();
            if (!m_beginning.empty() &&
                (!isWanted ||
                 isWanted(QByteArrayView(m_beginning.data(), static_cast<qsizetype>(m_beginning.size()))))) {
                return true;
            }
        }
        return false;
    }

    void readBeginning() {
        m_beginning.resize(PackedFile::kBeginning);
        std::size_t filled = 0;
        m_isDamaged = false;
        while (filled < m_beginning.size()) {
            const zip_int64_t got =
                zip_fread(m_file.get(), m_beginning.data() + filled, m_beginning.size() - filled);
            m_isDamaged = got < 0;
            if (got <= 0) {
                break;
            }
            filled += static_cast<std::size_t>(got);
        }
        m_beginning.resize(filled);
    }

    std::unique_ptr<zip_t, CloseArchive> m_archive;
    /// Closed before the archive.
    std::unique_ptr<zip_file_t, CloseFile> m_file;
    std::vector<char> m_beginning;
    std::size_t m_at = 0;
    bool m_isDamaged = false;
    std::optional<FileEnd> m_fault;
};

} // namespace

bool hasZipSignature(QByteArrayView data) {
    const QByteArrayView start = data.first(std::min<qsizetype>(data.size(), sizeof kLocalHeader));
    return start == QByteArrayView(kLocalHeader, sizeof kLocalHeader) ||
           start == QByteArrayView(kDirectoryEnd, sizeof kDirectoryEnd);
}

std::unique_ptr<PackedFile::Content> zipContent(const QString& path,
                                                std::function<bool(QByteArrayView)> isWanted) {
    return std::make_unique<ZipContent>(path, std::move(isWanted));
}

} // namespace guide
