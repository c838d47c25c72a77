#include "parsers/xmltv/FeedScan.h"

#include "parsers/xmltv/ProgrammeSkipScan.h"

#include <cstring>

namespace guide {

namespace {

constexpr std::string_view kChannelOpening = "<channel";
constexpr std::string_view kChannelClosing = "</channel";
constexpr std::string_view kRootOpening = "<tv";
constexpr std::string_view kRootClosing = "</tv";
constexpr std::string_view kDocumentType = "<!DOCTYPE";

std::string_view between(const char* begin, const char* end) {
    return {begin, static_cast<std::size_t>(end - begin)};
}

bool isTooLong(const char* begin, const char* end) {
    return static_cast<std::size_t>(end - begin) > FeedScan::kLongestElement;
}

/// What is between the tags of an element that ends at `end`.
std::string_view contentOf(const OpeningTag& tag, const char* end) {
    const std::string_view rest = between(tag.end(), end);
    return rest.substr(0, tag.isEmptyElement() ? 0 : rest.rfind('<'));
}

} // namespace

bool FeedScan::next(std::string* kept) {
    if (m_isCut || (m_isLast && m_from == m_text.constData() + m_size)) {
        return false;
    }
    m_kept = kept;
    readWindow();
    scan(kept);
    return true;
}

/// Moves what was not scanned to the front and reads behind it.
void FeedScan::readWindow() {
    const auto rest = m_from ? m_size - static_cast<std::size_t>(m_from - m_text.constData()) : 0;
    const auto scanned = m_from ? static_cast<std::size_t>(m_at - m_from) : 0;
    if (static_cast<std::size_t>(m_text.size()) < rest + kWindow + 1) {
        QByteArray larger(static_cast<qsizetype>(2 * rest + kWindow + 1), Qt::Uninitialized);
        std::memcpy(larger.data(), m_from ? m_from : "", rest);
        m_text.swap(larger);
    } else {
        std::memmove(m_text.data(), m_from, rest);
    }
    char* const text = m_text.data();
    const std::size_t got = m_source.read({text + rest, kWindow});
    const auto* zero = static_cast<const char*>(std::memchr(text + rest, '\0', got));
    m_size = zero ? static_cast<std::size_t>(zero - text) : rest + got;
    m_isLast = m_isLast || got == 0 || zero != nullptr;
    text[m_size] = '\0';
    m_from = text;
    m_at = m_from + scanned;
}

void FeedScan::scan(std::string* kept) {
    const char* const end = m_text.constData() + m_size;
    while (const char* mark = std::strchr(m_at, '<')) {
        m_at = mark;
        const Markup part = skip(mark);
        if (part == Markup::Whole) {
            continue;
        }
        const bool isEndless = part == Markup::Unfinished && isTooLong(mark, end);
        m_isCut = m_isCut || (isEndless && ++m_endlessCount > kMostEndless);
        if (!m_isCut && (part == Markup::Doubtful || isEndless || m_isLast)) {
            // Declarations in front of the feed hide nothing.
            m_isMalformed = m_isMalformed || part == Markup::Unfinished || mark[1] != '!' || m_hasRoot;
            m_keepsAll = true;
            m_isRun = false;
            m_at = mark + 1;
            continue;
        }
        m_at = mark;
        break;
    }
    if (*m_at != '<') {
        m_at = end;
    }
    // Blanks behind a dropped programme are dropped as well if another such programme follows.
    const bool mayBeDropped = m_isRun && skipBlanks(m_from) >= m_at && !m_isLast && !m_isCut;
    if (!mayBeDropped) {
        keep(m_at);
        m_isRun = false;
    } else if (isTooLong(m_from, m_at)) {
        m_isCut = true;
    }
    m_kept = kept;
}

void FeedScan::keep(const char* end) {
    if (m_kept) {
        m_kept->append(between(m_from, end));
    }
    m_from = end;
}

Markup FeedScan::skip(const char* mark) {
    switch (mark[1]) {
    case '\0':
        return Markup::Unfinished;
    case '?':
        return skipAside(m_at);
    case '!': {
        const std::size_t compared = std::min(kDocumentType.size(), std::strlen(mark));
        if (std::strncmp(mark, kDocumentType.data(), compared) != 0) {
            return skipAside(m_at);
        }
        return compared < kDocumentType.size() ? Markup::Unfinished : skipDocumentType(m_at);
    }
    case 'p':
        return skipProgramme(mark);
    case 'c':
        return skipChannel(mark);
    case 't':
        return skipRoot(mark);
    case '/': {
        const Markup root = elementNamed(mark, kRootClosing);
        if (root == Markup::Unfinished) {
            return root;
        }
        m_hasEnded = m_hasEnded || root == Markup::Whole;
        break;
    }
    default:
        break;
    }
    m_at = mark + 1;
    return Markup::Whole;
}

Markup FeedScan::skipProgramme(const char* mark) {
    const Markup name = elementNamed(mark, kProgrammeOpening);
    if (name != Markup::Whole) {
        m_at = mark + 1;
        return name == Markup::Unfinished ? name : Markup::Whole;
    }
    OpeningTag tag;
    if (const Markup opening = tag.read(mark + kProgrammeOpening.size()); opening != Markup::Whole) {
        return opening;
    }
    const char* end = tag.end();
    if (!tag.isEmptyElement()) {
        const Markup rest =
            skipElement(end, m_text.constData() + m_size, kProgrammeOpening, kProgrammeClosing);
        if (rest != Markup::Whole) {
            return rest;
        }
    }
    if (isTooLong(mark, end)) {
        return Markup::Unfinished;
    }
    const auto isKept = m_events.programme(tag, contentOf(tag, end));
    if (!isKept) {
        return Markup::Doubtful;
    }
    if (!*isKept && !m_keepsAll) {
        // A run continues as long as only blanks separate its programmes.
        if (!m_isRun || skipBlanks(m_from) != mark) {
            keep(mark);
            if (m_kept) {
                m_kept->append(kEmptyProgramme);
            }
            m_isRun = true;
        }
        m_from = end;
    }
    m_at = end;
    return Markup::Whole;
}

/// A channel never makes the rest of the feed uncertain.
Markup FeedScan::skipChannel(const char* mark) {
    m_at = mark + 1;
    const Markup name = elementNamed(mark, kChannelOpening);
    if (name != Markup::Whole) {
        return name == Markup::Unfinished ? name : Markup::Whole;
    }
    OpeningTag tag;
    Markup part = tag.read(mark + kChannelOpening.size());
    const char* end = tag.end();
    if (part == Markup::Whole && !tag.isEmptyElement()) {
        part = skipElement(end, m_text.constData() + m_size, kChannelOpening, kChannelClosing);
    }
    if (part == Markup::Unfinished && !m_isLast) {
        return part;
    }
    if (part == Markup::Whole) {
        m_events.channel(tag, contentOf(tag, end));
        m_at = end;
    } else {
        m_isMalformed = true;
    }
    return Markup::Whole;
}

Markup FeedScan::skipRoot(const char* mark) {
    m_at = mark + 1;
    const Markup name = elementNamed(mark, kRootOpening);
    if (name == Markup::Whole && !m_hasRoot) {
        OpeningTag tag;
        if (tag.read(mark + kRootOpening.size()) == Markup::Unfinished && !m_isLast) {
            return Markup::Unfinished;
        }
        m_hasRoot = true;
        m_hasEnded = tag.isEmptyElement();
    }
    return name == Markup::Unfinished ? name : Markup::Whole;
}

} // namespace guide
