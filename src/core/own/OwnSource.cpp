#include "core/own/OwnSource.h"

#include <QCryptographicHash>
#include <QRandomGenerator>

#include <algorithm>

namespace guide {

OwnSourceId OwnSourceId::generate() {
    std::array<std::uint32_t, 2> words{};
    QRandomGenerator::system()->fillRange(words.data(), words.size());
    Bytes bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<std::uint8_t>(words[i / 4] >> (i % 4 * 8));
    }
    return OwnSourceId(bytes);
}

std::optional<OwnSourceId> OwnSourceId::fromHex(const QString& hex) {
    const QByteArray digits = hex.toLatin1();
    const QByteArray data = QByteArray::fromHex(digits);
    Bytes bytes{};
    if (digits.size() != 2 * static_cast<qsizetype>(bytes.size()) || data.toHex() != digits.toLower()) {
        return std::nullopt;
    }
    std::ranges::copy(data, bytes.begin());
    return OwnSourceId(bytes);
}

QString OwnSourceId::hex() const {
    return QString::fromLatin1(
        QByteArray(reinterpret_cast<const char*>(m_bytes.data()), static_cast<qsizetype>(m_bytes.size()))
            .toHex());
}

ObjectId ownChannelId(const OwnSourceId& source, const QString& key) {
    QCryptographicHash digest(QCryptographicHash::Sha256);
    digest.addData(source.hex().toLatin1());
    digest.addData(key.toUtf8());
    ObjectId::Bytes bytes{ObjectId::kOwnMark};
    const QByteArray result = digest.result();
    std::copy_n(result.begin(), bytes.size() - 1, bytes.begin() + 1);
    return ObjectId(bytes);
}

} // namespace guide
