#include "store/SearchText.h"

#include "platform/Utf8.h"
#include "text/FoldedText.h"

#include <algorithm>
#include <cstring>

namespace guide {

namespace {

/// Stands behind each text; no UTF-8 holds it.
constexpr char kTextEnd = '\xff';

void appendFolded(std::vector<char>& out, const std::optional<QString>& text) {
    if (!text || text->isEmpty()) {
        return;
    }
    const QString folded = foldedText(*text);
    const std::size_t begin = out.size();
    out.resize(begin + utf8Length(folded) + 1);
    *writeUtf8(folded, out.data() + begin) = kTextEnd;
}

} // namespace

QByteArray searchPattern(const QString& pattern) {
    const QString folded = foldedText(pattern);
    QByteArray bytes(static_cast<qsizetype>(utf8Length(folded)), Qt::Uninitialized);
    writeUtf8(folded, bytes.data());
    return bytes;
}

SearchText::SearchText(const ShowItems& shows) {
    m_offsets.reserve(shows.size() + 1);
    m_offsets.push_back(0);
    for (const ShowItem& show : shows) {
        const TVEntry& entry = *show.entry();
        appendFolded(m_text, entry.title());
        appendFolded(m_text, entry.instantDescription());
        appendFolded(m_text, entry.instantDetails());
        appendFolded(m_text, entry.subtitle());
        if (const TVEntrySupplementalData* details = show.details().get()) {
            appendFolded(m_text, details->description);
            appendFolded(m_text, details->episodeDescription);
            appendFolded(m_text, details->details);
            appendFolded(m_text, details->directedBy);
            appendFolded(m_text, details->roles);
        }
        m_offsets.push_back(m_text.size());
    }
    m_text.shrink_to_fit();
}

std::size_t SearchText::find(const QByteArray& searchPattern, std::size_t from) const {
    const std::size_t shows = m_offsets.size() - 1;
    if (searchPattern.isEmpty() || from >= shows || m_offsets[from] == m_text.size()) {
        return shows;
    }
    const void* found = ::memmem(m_text.data() + m_offsets[from], m_text.size() - m_offsets[from],
                                 searchPattern.constData(), static_cast<std::size_t>(searchPattern.size()));
    if (found == nullptr) {
        return shows;
    }
    const auto at = static_cast<std::size_t>(static_cast<const char*>(found) - m_text.data());
    const auto behind =
        std::upper_bound(m_offsets.begin() + static_cast<std::ptrdiff_t>(from), m_offsets.end(), at);
    return static_cast<std::size_t>(behind - m_offsets.begin()) - 1;
}

} // namespace guide
