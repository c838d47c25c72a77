#include "parsers/playlists/Playlist.h"

#include "parsers/playlists/PlaylistAttributes.h"
#include "platform/encoding/CharacterSets.h"
#include "platform/encoding/Utf8.h"
#include "sources/WebURL.h"

#include <QStringConverter>
#include <QUrl>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kHeader("#EXTM3U");
constexpr QLatin1StringView kEntry("#EXTINF:");
constexpr QLatin1StringView kGroup("#EXTGRP:");
constexpr QLatin1StringView kName("#PLAYLIST:");
/// Of feeds in one list; lists with a hundred occur.
constexpr qsizetype kMostFeeds = 1'000;
constexpr double kMostShift = 24;

bool startsWith(QStringView line, QLatin1StringView mark) {
    return line.startsWith(mark, Qt::CaseInsensitive);
}

/// Calls `use` with each line that is not blank, without its surrounding blanks, until it returns false.
template <class Use>
void eachLine(QStringView text, Use use) {
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype end = text.indexOf(u'\n', at);
        const QStringView line = (end < 0 ? text.sliced(at) : text.sliced(at, end - at)).trimmed();
        if (!line.isEmpty() && !use(line)) {
            return;
        }
        at = end < 0 ? text.size() : end + 1;
    }
}

QStringView withoutByteOrderMark(QStringView text) {
    return text.startsWith(QChar::ByteOrderMark) ? text.sliced(1) : text;
}

QStringList groupsOf(const QString& text) {
    QStringList groups;
    for (const QString& group : text.split(u';', Qt::SkipEmptyParts)) {
        if (const QString name = group.trimmed(); !name.isEmpty()) {
            groups << name;
        }
    }
    return groups;
}

double shiftOf(const QString& text) {
    bool isNumber = false;
    const double hours = text.toDouble(&isNumber);
    return isNumber && std::abs(hours) <= kMostShift ? hours : 0;
}

class Reader {
  public:
    void read(QStringView line) {
        if (startsWith(line, kHeader)) {
            readHeader(playlistAttributes(line.sliced(kHeader.size())));
        } else if (startsWith(line, kEntry)) {
            keep();
            m_entry = entryOf(playlistAttributes(line.sliced(kEntry.size())));
        } else if (startsWith(line, kGroup)) {
            m_groups = groupsOf(line.sliced(kGroup.size()).toString());
            if (m_entry && m_entry->groups.isEmpty()) {
                m_entry->groups = m_groups;
            }
        } else if (startsWith(line, kName)) {
            m_list.name = line.sliced(kName.size()).trimmed().toString();
        } else if (!line.startsWith(u'#') && m_entry) {
            m_entry->stream = line.toString();
            keep();
        }
    }

    bool isFull() const { return m_list.truncated; }

    Playlist finished() {
        keep();
        return std::move(m_list);
    }

  private:
    void readHeader(const PlaylistAttributes& header) {
        // Some lists give the address as the id.
        for (const QLatin1StringView key : {"x-tvg-url"_L1, "url-tvg"_L1, "tvg-url"_L1, "tvg-id"_L1}) {
            addFeeds(header.value({key}));
        }
        m_shift = shiftOf(header.value({"tvg-shift"_L1}));
    }

    void addFeeds(QString text) {
        text.replace(u';', u',');
        for (const QString& each : text.split(u',', Qt::SkipEmptyParts)) {
            const QString address = each.trimmed();
            if (isWebURL(QUrl(address)) && m_list.feeds.size() < kMostFeeds &&
                !m_list.feeds.contains(address)) {
                m_list.feeds << address;
            }
        }
    }

    PlaylistEntry entryOf(const PlaylistAttributes& line) const {
        PlaylistEntry entry;
        entry.guideName = line.value({"tvg-name"_L1});
        entry.name = line.text.isEmpty() ? entry.guideName : line.text;
        entry.id = line.value({"tvg-id"_L1});
        entry.number = line.value({"tvg-chno"_L1, "ch-number"_L1, "tvh-chnum"_L1});
        entry.logo = line.value({"tvg-logo"_L1, "logo"_L1});
        entry.groups = groupsOf(line.value({"group-title"_L1}));
        if (entry.groups.isEmpty()) {
            entry.groups = m_groups;
        }
        entry.language = line.value({"tvg-language"_L1, "tvg-lang"_L1});
        entry.country = line.value({"tvg-country"_L1});
        const QString shift = line.value({"tvg-shift"_L1});
        entry.shift = shift.isEmpty() ? m_shift : shiftOf(shift);
        return entry;
    }

    void keep() {
        if (!m_entry) {
            return;
        }
        PlaylistEntry entry = *std::exchange(m_entry, std::nullopt);
        if (entry.name.isEmpty() && entry.id.isEmpty()) {
            return;
        }
        if (m_list.entries.size() == kMostPlaylistEntries) {
            m_list.truncated = true;
            return;
        }
        m_list.entries.push_back(std::move(entry));
    }

    Playlist m_list;
    /// Its stream is still to come.
    std::optional<PlaylistEntry> m_entry;
    /// Of the header.
    double m_shift = 0;
    /// Set by a line that names a group. It applies to the entries after it that have none.
    QStringList m_groups;
};

} // namespace

QString playlistText(const QByteArray& bytes) {
    if (const auto encoding = QStringConverter::encodingForData(bytes)) {
        return QStringDecoder(*encoding)(bytes);
    }
    if (isValidUtf8(bytes)) {
        return QString::fromUtf8(bytes);
    }
    const auto text = utf8FromCharacterSet(bytes, u"windows-1250"_s);
    return QString::fromUtf8(text.value_or(bytes));
}

bool isPlaylist(QStringView text) {
    constexpr int kLines = 20;
    bool found = false;
    int lines = 0;
    eachLine(withoutByteOrderMark(text), [&](QStringView line) {
        found = startsWith(line, kHeader) || startsWith(line, kEntry);
        return !found && line.startsWith(u'#') && ++lines < kLines;
    });
    return found;
}

Playlist readPlaylist(QStringView text) {
    Reader reader;
    eachLine(withoutByteOrderMark(text), [&reader](QStringView line) {
        // Joined lists have a mark at each beginning.
        reader.read(withoutByteOrderMark(line));
        return !reader.isFull();
    });
    return reader.finished();
}

} // namespace guide
