#include "platform/archive/Archive.h"

#include "platform/archive/ArchiveContainer.h"

#include <QBuffer>
#include <QCborStreamReader>
#include <QCborStreamWriter>

namespace guide {

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
    QCborStreamReader reader(content->data(), content->size());
    QCborValue root = QCborValue::fromCbor(reader);
    if (reader.lastError() != QCborError::NoError || reader.currentOffset() != content->size()) {
        return std::nullopt;
    }
    return root;
}

} // namespace guide
