#include "parsers/xmltv/ProgrammeSkipScan.h"

#include "parsers/xmltv/FeedMarkup.h"

#include <cstring>
#include <vector>

namespace guide {

namespace {

/// Scans a feed once, from "<" to "<", and records the parts to keep.
class Scan {
  public:
    Scan(const char* feed, const WantedChannels& wanted, std::uint64_t mostBytes)
        : m_wanted(wanted)
        , m_mostBytes(mostBytes)
        , m_end(feed + std::strlen(feed))
        , m_at(feed)
        , m_keptFrom(feed) {}

    /// False when the whole feed has to be read.
    bool run() {
        while (const char* mark = std::strchr(m_at, '<')) {
            bool isCertain = true;
            if (elementNamed(mark, kProgrammeOpening) == Markup::Whole) {
                isCertain = skipProgramme(mark);
            } else if (mark[1] == '?' || mark[1] == '!') {
                constexpr std::string_view kDocumentType = "<!DOCTYPE";
                const bool isType = std::strncmp(mark, kDocumentType.data(), kDocumentType.size()) == 0;
                m_at = mark;
                isCertain = (isType ? skipDocumentType(m_at) : skipAside(m_at)) == Markup::Whole;
            } else {
                m_at = mark + 1;
            }
            if (!isCertain || !isSmall()) {
                return false;
            }
        }
        if (m_kept.empty()) {
            return false;
        }
        keep(m_end);
        return isSmall();
    }

    FilteredFeed feed() && {
        FilteredFeed filtered;
        filtered.feed.resize(m_size);
        char* to = filtered.feed.data();
        for (const std::string_view stretch : m_kept) {
            to = static_cast<char*>(std::memcpy(to, stretch.data(), stretch.size())) + stretch.size();
        }
        filtered.parts = std::move(m_kept);
        return filtered;
    }

  private:
    /// False when it is uncertain where the programme ends or which channel it belongs to.
    bool skipProgramme(const char* mark) {
        OpeningTag tag;
        if (tag.read(mark + kProgrammeOpening.size()) != Markup::Whole) {
            return false;
        }
        const auto unwanted = isUnwanted(tag.value("channel"));
        const char* end = tag.end();
        if (!unwanted || (!tag.isEmptyElement() &&
                          skipElement(end, m_end, kProgrammeOpening, kProgrammeClosing) != Markup::Whole)) {
            return false;
        }
        if (*unwanted) {
            // A run continues as long as only blanks separate its programmes.
            if (m_kept.empty() || skipBlanks(m_keptFrom) != mark) {
                keep(mark);
                m_kept.push_back(kEmptyProgramme);
                m_size += static_cast<qsizetype>(kEmptyProgramme.size());
            }
            m_keptFrom = end;
        }
        m_at = end;
        return true;
    }

    std::optional<bool> isUnwanted(std::optional<std::string_view> channel) {
        if (!channel) {
            return true;
        }
        // Most feeds are sorted by channel.
        if (!m_lastChannel.data() || m_lastChannel != *channel) {
            const auto id = attributeValue(*channel);
            if (!id) {
                return std::nullopt;
            }
            m_lastUnwanted = !m_wanted.contains(*id);
            m_lastChannel = *channel;
        }
        return m_lastUnwanted;
    }

    bool isSmall() const {
        return static_cast<std::uint64_t>(m_size) + m_kept.size() * sizeof(std::string_view) <= m_mostBytes;
    }

    void keep(const char* to) {
        m_kept.emplace_back(m_keptFrom, static_cast<std::size_t>(to - m_keptFrom));
        m_size += to - m_keptFrom;
    }

    const WantedChannels& m_wanted;
    const std::uint64_t m_mostBytes;
    const char* const m_end;
    const char* m_at;
    /// The start of the part that has not been recorded yet.
    const char* m_keptFrom;
    std::vector<std::string_view> m_kept;
    qsizetype m_size = 0;
    std::string_view m_lastChannel;
    bool m_lastUnwanted = false;
};

} // namespace

std::size_t FilteredFeed::offsetInWhole(const QByteArray& whole, std::size_t offset) const {
    const char* last = whole.constData();
    for (const std::string_view part : parts) {
        const bool isPlaceholder = part.data() == kEmptyProgramme.data();
        if (offset < part.size() && !isPlaceholder) {
            last = part.data() + offset;
            break;
        }
        if (offset < part.size()) {
            break;
        }
        offset -= part.size();
        last = isPlaceholder ? last : part.data() + part.size();
    }
    return static_cast<std::size_t>(last - whole.constData());
}

std::optional<FilteredFeed> withoutUnwantedProgrammes(const QByteArray& feed, const WantedChannels& wanted,
                                                      std::uint64_t mostBytes) {
    if (wanted.all()) {
        return std::nullopt;
    }
    Scan scan(feed.constData(), wanted, mostBytes);
    return scan.run() ? std::optional(std::move(scan).feed()) : std::nullopt;
}

} // namespace guide
