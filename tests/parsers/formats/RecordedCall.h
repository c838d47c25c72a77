#pragma once

#include "parsers/ListDriver.h"
#include "parsers/SourceFormats.h"
#include "platform/memory/ManualClock.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <stdexcept>
#include <vector>

namespace guide::test {

/// The bytes of a file that must exist.
inline QByteArray recordedContent(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("cannot read " + path.toStdString());
    }
    return file.readAll();
}

/// The folder of the recorded pages of every format.
inline QDir recordedFolder() {
    return QDir(QStringLiteral(QUELLIN_TEST_DATA "/recorded"));
}

/// "CHANNEL,SOURCE_ID,LANGUAGE", as the probe takes it.
inline LoadItem loadItem(const QString& text) {
    const qsizetype first = text.indexOf(u',');
    const qsizetype last = text.lastIndexOf(u',');
    return {ObjectId::fromHex(text.first(first)), text.sliced(first + 1, last - first - 1),
            text.sliced(last + 1)};
}

inline const SourceHostTable& recordedHosts() {
    static const SourceHostTable hosts = [] {
        const auto read = SourceHostTable::fromFile(recordedFolder().filePath(QStringLiteral("hosts.json")));
        return read ? *read : throw std::runtime_error("no recorded/hosts.json");
    }();
    return hosts;
}

/// One recorded call of the driver. STEM.items.json contains its time, its items and the names of its pages.
/// Reading one that lacks any of it throws.
class RecordedCall {
  public:
    explicit RecordedCall(const QString& stem)
        : m_folder(QFileInfo(stem).dir()) {
        const QString path = stem + QStringLiteral(".items.json");
        const QJsonObject how = QJsonDocument::fromJson(recordedContent(path)).object();
        const QDateTime time = QDateTime::fromString(how[QStringLiteral("now")].toString(), Qt::ISODate);
        m_now = Moment(std::chrono::milliseconds(time.toMSecsSinceEpoch()));
        m_zone = QTimeZone(how[QStringLiteral("zone")].toString(QStringLiteral("Europe/Prague")).toLatin1());
        for (const QJsonValue item : how[QStringLiteral("items")].toArray()) {
            m_items.push_back(loadItem(item.toString()));
        }
        for (const QJsonValue page : how[QStringLiteral("pages")].toArray()) {
            m_pageNames.push_back(page.toString());
        }
        if (!time.isValid() || !m_zone.isValid() || m_items.empty() || m_pageNames.empty()) {
            throw std::runtime_error("incomplete: " + path.toStdString());
        }
        m_type = listingsTypeForSourceId(m_items.front().sourceId, recordedHosts());
    }

    const std::vector<LoadItem>& items() const { return m_items; }
    ListingsType type() const { return m_type; }
    const std::vector<QString>& pageNames() const { return m_pageNames; }

    std::vector<QByteArray> pages() const {
        std::vector<QByteArray> pages;
        pages.reserve(m_pageNames.size());
        for (const QString& name : m_pageNames) {
            pages.push_back(recordedContent(m_folder.filePath(name)));
        }
        return pages;
    }

    /// The lists that the driver reads from these pages, which may differ from the recorded ones.
    MergeResult lists(const std::vector<QByteArray>& pages, MarkerTrace* trace = nullptr) const {
        const ManualClock clock(m_now);
        // The shows refer to it.
        static const Alphabet alphabet;
        const ListDriver driver({.clock = clock,
                                 .alphabet = alphabet,
                                 .hosts = recordedHosts(),
                                 .merge = {},
                                 .locale = QLocale(QLocale::Czech, QLocale::CzechRepublic),
                                 .timeZone = [this] { return m_zone; }});
        return mergedLists(m_items, driver.read(m_items, pages, m_now, m_type, trace), m_now, m_type);
    }

  private:
    QDir m_folder;
    Moment m_now;
    QTimeZone m_zone;
    std::vector<LoadItem> m_items;
    std::vector<QString> m_pageNames;
    ListingsType m_type{};
};

/// The calls recorded for a format, by name; `stem` is the path without ".items.json".
inline std::vector<QString> recordedStems(const QString& format) {
    const QDir folder(recordedFolder().filePath(format));
    std::vector<QString> stems;
    for (const QString& file : folder.entryList({QStringLiteral("*.items.json")}, QDir::Files, QDir::Name)) {
        stems.push_back(folder.filePath(file.chopped(QStringView(u".items.json").size())));
    }
    return stems;
}

} // namespace guide::test
