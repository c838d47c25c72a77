#include "platform/archive/Archive.h"

#include "platform/archive/ArchiveContainer.h"

#include <QBuffer>
#include <QCborStreamReader>
#include <QCborStreamWriter>

namespace guide {

namespace {

constexpr int kDeepest = 64;

/// Whether the next item nests at most `depth` containers, none of which claims more elements than there are
/// bytes. Qt would reserve room for a false number of elements on each level.
bool hasTrueSizes(QCborStreamReader& reader, qsizetype size, int depth) {
    while (reader.isTag()) {
        if (!reader.next()) {
            return false;
        }
    }
    if (!reader.isContainer()) {
        return reader.next();
    }
    const quint64 left = static_cast<quint64>(size - reader.currentOffset());
    if (depth == 0 || (reader.isLengthKnown() && reader.length() > left) || !reader.enterContainer()) {
        return false;
    }
    while (reader.lastError() == QCborError::NoError && reader.hasNext()) {
        if (!hasTrueSizes(reader, size, depth - 1)) {
            return false;
        }
    }
    return reader.lastError() == QCborError::NoError && reader.leaveContainer();
}

} // namespace

QByteArray archivedData(const QCborValue& root) {
    QByteArray archive(static_cast<qsizetype>(kArchiveHeaderSize), '\0');
    {
        QBuffer content(&archive);
        content.open(QIODevice::WriteOnly | QIODevice::Append);
        QCborStreamWriter writer(&content);
        root.toCbor(writer);
    }
    sealArchive(archive);
    return archive;
}

std::optional<QCborValue> unarchivedRoot(const QByteArray& data) {
    const std::optional<QByteArrayView> content = archiveContent(data);
    if (!content) {
        return std::nullopt;
    }
    QCborStreamReader sizes(content->data(), content->size());
    if (!hasTrueSizes(sizes, content->size(), kDeepest)) {
        return std::nullopt;
    }
    QCborStreamReader reader(content->data(), content->size());
    QCborValue root = QCborValue::fromCbor(reader);
    if (reader.lastError() != QCborError::NoError || reader.currentOffset() != content->size()) {
        return std::nullopt;
    }
    return root;
}

} // namespace guide
