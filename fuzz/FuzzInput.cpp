#include "FuzzInput.h"

#include "platform/encoding/Utf8.h"

#include <QString>

namespace guide::fuzz {

namespace {

constexpr char kSeparator = '\x1e';

} // namespace

std::vector<QByteArray> FuzzInput::parts(std::size_t most) const {
    std::vector<QByteArray> parts;
    QByteArrayView rest = m_parts;
    while (parts.size() + 1 < most) {
        const qsizetype end = rest.indexOf(kSeparator);
        if (end < 0) {
            break;
        }
        parts.push_back(rest.first(end).toByteArray());
        rest = rest.sliced(end + 1);
    }
    parts.push_back(rest.toByteArray());
    return parts;
}

std::vector<QByteArray> FuzzInput::textParts(std::size_t most) const {
    std::vector<QByteArray> texts = parts(most);
    for (QByteArray& text : texts) {
        if (!isValidUtf8(text)) {
            text = QString::fromUtf8(text).toUtf8();
        }
    }
    return texts;
}

QByteArray fuzzInput(const std::vector<QByteArray>& parts, std::size_t choice) {
    QByteArray input;
    for (const QByteArray& part : parts) {
        input += part;
        input += kSeparator;
    }
    if (!input.isEmpty()) {
        input.chop(1);
    }
    input += static_cast<char>(choice);
    return input;
}

} // namespace guide::fuzz
