#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <memory>
#include <optional>

namespace guide {

/// The hosts of the endpoints, by role. A value is a bare host (a port may follow), or a base URL that begins
/// with "http://" or "https://" and keeps its scheme wherever it is used. Immutable once made; copies share
/// their state. May be used from any thread.
class SourceHostTable {
  public:
    SourceHostTable();

    /// A JSON object with a string a key; other values are left out. Nothing when the text is no JSON object.
    static std::optional<SourceHostTable> fromJson(const QByteArray& json);
    /// As above; nothing, with a log line, when the file cannot be read.
    static std::optional<SourceHostTable> fromFile(const QString& path);
    /// The table that came with the program, "hosts.json" in its folder, with the entries of "hosts.json" in
    /// the configuration folder in their place, key by key.
    static SourceHostTable installed(const QString& bundleFolder, const QString& configurationFolder);

    /// This table with the entries of the other one, also empty ones, in the place of its own.
    SourceHostTable overriddenBy(const SourceHostTable& other) const;

    /// The value as it stands; empty where there is none.
    QString value(const QString& key) const;

    /// The value without scheme and closing slash. Nothing for a missing or empty entry, of which the log
    /// tells once for each key.
    std::optional<QString> name(const QString& key) const;

    /// The value as the beginning of a URL, without a closing slash: with its own scheme, else with the given
    /// one. Nothing as above.
    std::optional<QString> base(const QString& key, const QString& scheme = QStringLiteral("https")) const;

    /// As base, for a stem: the label goes where the value has "%@", or to the end of the host, behind a dot.
    std::optional<QString> baseOfStem(const QString& key, const QString& label,
                                      const QString& scheme = QStringLiteral("https")) const;

    /// Whether the id is the Prima Max site's: the value of "PrimaMaxSourceId", with or without its scheme.
    bool isPrimaMaxSourceId(const QString& sourceId) const;

  private:
    struct Told;
    std::optional<QString> presentValue(const QString& key) const;

    QHash<QString, QString> m_values;
    std::shared_ptr<Told> m_told;
};

} // namespace guide
