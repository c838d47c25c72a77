#pragma once

#include "core/RowTally.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <memory>
#include <optional>

namespace guide {

/// The hosts of the endpoints, by key. A value is a bare host (a port may follow), or a base URL that begins
/// with "http://" or "https://" and keeps its scheme wherever it is used. Immutable once made; copies share
/// their state. Any thread.
class SourceHostTable {
  public:
    SourceHostTable();

    /// A JSON object of strings; other values are left out and counted. Nothing when the text is not a JSON
    /// object.
    static std::optional<SourceHostTable> fromJson(const QByteArray& json, RowTally* tally = nullptr);
    /// As above; nothing when the file cannot be read. Logs one line when it cannot be read or has values
    /// that are left out.
    static std::optional<SourceHostTable> fromFile(const QString& path);
    /// "hosts.json" of the program's folder, overridden key by key by "hosts.json" of the configuration
    /// folder.
    static SourceHostTable installed(const QString& bundleFolder, const QString& configurationFolder);

    /// This table with the entries of the other one, including empty ones, replacing its own.
    SourceHostTable overriddenBy(const SourceHostTable& other) const;

    /// The value as written; empty when there is none.
    QString value(const QString& key) const;

    /// The value without scheme and closing slash. Nothing for a missing or empty entry, which is logged once
    /// for each key.
    std::optional<QString> name(const QString& key) const;

    /// The value as the beginning of a URL, without a closing slash: with its own scheme or else the given
    /// one. Nothing as above.
    std::optional<QString> base(const QString& key, const QString& scheme = QStringLiteral("https")) const;

    /// As base, for a stem: the label replaces "%@" in the value, or is appended to the host after a dot.
    std::optional<QString> baseOfStem(const QString& key, const QString& label,
                                      const QString& scheme = QStringLiteral("https")) const;

    /// Whether the id is that of the Prima Max site: the value of "PrimaMaxSourceId", with or without its
    /// scheme.
    bool isPrimaMaxSourceId(const QString& sourceId) const;

  private:
    struct ReportedKeys;
    std::optional<QString> presentValue(const QString& key) const;

    QHash<QString, QString> m_values;
    std::shared_ptr<ReportedKeys> m_reported;
};

} // namespace guide
