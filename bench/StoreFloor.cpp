#include "StoreFloor.h"

#include "platform/archive/ArchiveContainer.h"

#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <string_view>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace guide::bench {

namespace {

class Walk {
  public:
    explicit Walk(const char* at)
        : m_at(at) {}

    std::uint64_t head() {
        const auto first = static_cast<std::uint8_t>(*m_at++);
        const unsigned small = first & 0x1f;
        if (small < 24) {
            return small;
        }
        std::uint64_t value = 0;
        for (unsigned bytes = 1u << (small - 24); bytes > 0; --bytes) {
            value = value << 8 | static_cast<std::uint8_t>(*m_at++);
        }
        return value;
    }
    std::string_view string() {
        const auto size = static_cast<std::size_t>(head());
        m_at += size;
        return {m_at - size, size};
    }
    QString text() {
        const std::string_view bytes = string();
        return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    }
    Moment moment() { return Moment(std::chrono::milliseconds(head())); }
    bool boolean() { return *m_at++ == '\xf5'; }

  private:
    const char* m_at;
};

FloorShow show(Walk& walk) {
    FloorShow show;
    walk.head();
    for (std::uint64_t fields = walk.head(); fields > 0; --fields) {
        const std::string_view key = walk.string();
        if (key == "channel") {
            std::memcpy(show.channel.data(), walk.string().data(), show.channel.size());
        } else if (key == "realChannelId") {
            show.sourceId = walk.text();
        } else if (key == "lang") {
            show.language = walk.text();
        } else if (key == "dateTime") {
            show.start = walk.moment();
        } else if (key == "endDateTime") {
            show.end = walk.moment();
        } else if (key == "title") {
            show.shownTitle = show.title = walk.text();
        } else if (key == "instantDetails") {
            show.shownInstantDetails = show.instantDetails = walk.text();
        } else if (key == "subtitle") {
            show.shownSubtitle = show.subtitle = walk.text();
        } else if (key == "instantDescription") {
            show.shownInstantDescription = show.instantDescription = walk.text();
        } else if (key == "url") {
            show.url = walk.text();
        } else {
            show.previouslyShown = walk.boolean();
        }
    }
    show.categories = static_cast<std::uint32_t>(walk.head());
    for (std::uint64_t fields = walk.head(); fields > 0; --fields) {
        const std::string_view key = walk.string();
        (key == "description"          ? show.description
         : key == "episodeDescription" ? show.episodeDescription
         : key == "details"            ? show.details
         : key == "directedBy"         ? show.directedBy
         : key == "roles"              ? show.roles
                                       : show.detailsLanguage) = walk.text();
    }
    return show;
}

} // namespace

std::vector<FloorShow> floorShows(const QByteArray& path) {
    const int file = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
    struct stat status{};
    ::fstat(file, &status);
    const auto size = static_cast<std::size_t>(status.st_size);
    void* map = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file, 0);
    ::close(file);
    Walk walk(static_cast<const char*>(map) + kArchiveHeaderSize);
    std::vector<FloorShow> shows(static_cast<std::size_t>(walk.head()));
    for (FloorShow& each : shows) {
        each = show(walk);
    }
    ::munmap(map, size);
    return shows;
}

bool floorReplace(const QByteArray& path, const QByteArray& content, Flush flush) {
    const QByteArray temporary = path + ".new";
    const int file = ::open(temporary.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    const auto size = static_cast<std::size_t>(content.size());
    const bool written = ::write(file, content.constData(), size) == static_cast<ssize_t>(size) &&
                         (flush == Flush::No || ::fdatasync(file) == 0);
    ::close(file);
    return written && std::rename(temporary.constData(), path.constData()) == 0;
}

} // namespace guide::bench
