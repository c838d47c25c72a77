#include "store/SearchText.h"

#include "platform/encoding/Utf8.h"
#include "text/search/FoldedText.h"

#include <algorithm>
#include <cstring>

namespace guide {

namespace {

/// Follows each text; does not occur in UTF-8.
constexpr char kTextEnd = '\xff';

/// The most bytes that one UTF-16 unit takes in UTF-8.
constexpr qsizetype kBytesPerUnit = 3;

} // namespace

QByteArray searchPattern(const QString& pattern) {
    const QString folded = foldedText(pattern);
    QByteArray bytes(folded.size() * kBytesPerUnit, Qt::Uninitialized);
    bytes.truncate(writeUtf8(folded, bytes.data()) - bytes.constData());
    return bytes;
}

void SearchText::reserve(std::size_t shows, std::size_t bytes) {
    m_ends.reserve(shows);
    m_text.reserve(static_cast<qsizetype>(bytes));
}

void SearchText::append(const std::optional<QString>& text) {
    if (!text || text->isEmpty()) {
        return;
    }
    const QString folded = foldedText(*text);
    const qsizetype begin = m_text.size();
    m_text.resize(begin + folded.size() * kBytesPerUnit + 1);
    char* end = writeUtf8(folded, m_text.data() + begin);
    *end++ = kTextEnd;
    m_text.truncate(end - m_text.constData());
}

void SearchText::append(const ShowItem& show) {
    const TVEntry& entry = *show.entry();
    append(entry.title());
    if (const ShowFacts* facts = entry.facts().get()) {
        append(facts->originalTitle);
    }
    append(entry.instantDescription());
    append(entry.instantDetails());
    append(entry.subtitle());
    if (const TVEntrySupplementalData* details = show.details().get()) {
        append(details->description);
        append(details->episodeDescription);
        append(details->details);
        append(details->directedBy);
        append(details->roles);
    }
    m_ends.push_back(bytes());
}

void SearchText::append(const SearchText& other, std::size_t first, std::size_t count) {
    if (count == 0) {
        return;
    }
    const std::size_t from = other.begin(first);
    const std::size_t to = bytes();
    m_text.append(other.m_text.constData() + from,
                  static_cast<qsizetype>(other.m_ends[first + count - 1] - from));
    const auto ends = other.m_ends.begin() + static_cast<std::ptrdiff_t>(first);
    std::transform(ends, ends + static_cast<std::ptrdiff_t>(count), std::back_inserter(m_ends),
                   [from, to](std::size_t end) { return end - from + to; });
}

std::size_t SearchText::find(const QByteArray& searchPattern, std::size_t from) const {
    if (searchPattern.isEmpty() || from >= size()) {
        return size();
    }
    const char* const text = m_text.constData();
    const std::size_t start = begin(from);
    const void* found = ::memmem(text + start, bytes() - start, searchPattern.constData(),
                                 static_cast<std::size_t>(searchPattern.size()));
    if (found == nullptr) {
        return size();
    }
    // Gallops: the matches of a frequent pattern are close together.
    const auto at = static_cast<std::size_t>(static_cast<const char*>(found) - text);
    std::size_t low = from;
    std::size_t step = 1;
    while (low + step < size() && m_ends[low + step - 1] <= at) {
        low += step;
        step *= 2;
    }
    const auto first = m_ends.begin() + static_cast<std::ptrdiff_t>(low);
    const auto last = m_ends.begin() + static_cast<std::ptrdiff_t>(std::min(low + step, size()));
    return static_cast<std::size_t>(std::upper_bound(first, last, at) - m_ends.begin());
}

} // namespace guide
