#include "parsers/xmltv/FeedText.h"

#include "platform/encoding/Utf8.h"

#include <algorithm>

namespace guide {

void FeedText::appendCollapsed(std::string_view piece) {
    for (std::size_t at = piece.find("  "); at != std::string_view::npos; at = piece.find("  ")) {
        m_bytes.append(piece.substr(0, at + 1));
        piece.remove_prefix(std::min(piece.find_first_not_of(' ', at), piece.size()));
    }
    append(piece);
}

std::optional<QString> FeedText::string() const {
    return m_isSet ? std::optional(feedString(m_bytes)) : std::nullopt;
}

QString feedString(std::string_view bytes) {
    QString text;
    const bool isValid = readUtf8(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())), text);
    return isValid ? text : QString();
}

void FeedTexts::start(std::string_view kind) {
    if (m_count == m_texts.size() && m_count < kMost) {
        m_texts.emplace_back();
    }
    if (m_count < m_texts.size()) {
        Each& next = m_texts[m_count++];
        next.kind.assign(kind);
        next.text.clear();
    }
}

std::size_t FeedTexts::byteCount() const {
    std::size_t bytes = 0;
    for (const Each& each : all()) {
        bytes += each.kind.size() + each.text.size();
    }
    return bytes;
}

} // namespace guide
