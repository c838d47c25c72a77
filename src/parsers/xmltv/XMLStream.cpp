#include "parsers/xmltv/XMLStream.h"

#include "parsers/xmltv/FeedMarkup.h"
#include "parsers/xmltv/XMLTagBounds.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace guide {

namespace {

constexpr std::size_t kStep = std::size_t{64} << 10;
/// Forgetting moves the rest of the bytes.
constexpr std::size_t kLeastForgotten = std::size_t{256} << 10;
constexpr std::string_view kLongText = "a text is longer than 4 MB";

} // namespace

std::size_t XMLStream::read(std::span<char> room) {
    while (m_checked - m_given < 2 && !m_isLast) {
        m_isLast = !fill();
        skipByteOrderMark();
        check();
    }
    const std::string_view ready = from(m_given).substr(0, m_checked - m_given);
    std::size_t count = std::min(room.size(), ready.size());
    // The library would take a line end that it reads in two pieces for two.
    if (count > 1 && ready[count - 1] == '\r' && !(m_isLast && count == ready.size())) {
        --count;
    }
    std::memcpy(room.data(), ready.data(), count);
    m_given += count;
    return count;
}

void XMLStream::forget(std::size_t offset) {
    const std::size_t needed = std::min({offset, m_given, m_checked, m_mark, m_textStart});
    if (needed > m_start && needed - m_start >= kLeastForgotten) {
        m_bytes.remove(0, static_cast<qsizetype>(needed - m_start));
        m_start = needed;
    }
}

bool XMLStream::restartAt(std::size_t offset, std::string_view opening, std::string_view root) {
    std::size_t at = std::min(std::max({offset, m_firstRestart, m_start}), end()) - m_start;
    for (;;) {
        const std::size_t found = bytes().find(opening, at);
        if (found == std::string_view::npos || found + opening.size() >= bytes().size()) {
            const std::size_t tail = bytes().size() - std::min(bytes().size(), opening.size());
            m_bytes.remove(0, static_cast<qsizetype>(std::max(at, std::min(found, tail))));
            at = 0;
            if (!fill()) {
                return false;
            }
        } else if (elementNamed(m_bytes.constData() + found, opening) == Markup::Whole) {
            m_bytes.remove(0, static_cast<qsizetype>(found));
            break;
        } else {
            at = found + 1;
        }
    }
    m_bytes.prepend(root.data(), static_cast<qsizetype>(root.size()));
    m_start = m_given = m_checked = m_mark = m_textStart = 0;
    m_atStart = m_hasMark = m_isLast = false;
    m_firstRestart = root.size() + opening.size();
    m_fault = {};
    return true;
}

bool XMLStream::fill() {
    const qsizetype before = m_bytes.size();
    m_bytes.resize(before + static_cast<qsizetype>(kStep));
    const std::size_t got = m_source.read({m_bytes.data() + before, kStep});
    m_bytes.truncate(before + static_cast<qsizetype>(got));
    return got > 0;
}

/// The library does not expect it in a document that it reads in pieces.
void XMLStream::skipByteOrderMark() {
    constexpr std::string_view kMark = "\xef\xbb\xbf";
    while (m_atStart && bytes().size() < kMark.size() && !m_isLast) {
        m_isLast = !fill();
    }
    if (std::exchange(m_atStart, false) && bytes().starts_with(kMark)) {
        m_bytes.remove(0, kMark.size());
    }
}

/// Tags contain no "<", so that only the last "<" of each stretch is looked for.
void XMLStream::check() {
    while (m_fault.empty()) {
        if (!m_hasMark) {
            const std::size_t next = from(m_mark).find('<');
            m_hasMark = next != std::string_view::npos;
            m_mark = m_hasMark ? m_mark + next : end();
            m_checked = m_mark;
            if (m_mark - m_textStart > kLongestText) {
                m_fault = kLongText;
                m_checked = std::max(m_textStart, m_given);
                break;
            }
            if (!m_hasMark) {
                break;
            }
        }
        const std::string_view rest = from(m_mark);
        if (rest.size() <= kLongStretch) {
            m_checked = m_isLast ? end() : m_mark;
            break;
        }
        m_textStart = m_mark;
        if (const std::size_t last = rest.substr(0, kLongStretch).rfind('<'); last > 0) {
            m_mark += last;
            continue;
        }
        if (rest.size() < kMostTagBytes && !m_isLast) {
            m_checked = m_mark;
            break;
        }
        if (!isReadableTag(rest)) {
            m_fault = kUnreadableTag;
            m_checked = m_mark;
            break;
        }
        m_mark += kLongStretch;
        m_hasMark = false;
    }
    m_isLast = m_isLast || !m_fault.empty();
}

} // namespace guide
