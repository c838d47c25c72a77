#include "sources/SourceHostTable.h"

#include "platform/files/FileContent.h"

#include <QDebug>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <mutex>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMostBytes = 1 << 20;
constexpr QLatin1StringView kSchemeEnd = "://"_L1;

// Where the host begins in a value: after the scheme, if it has one.
qsizetype hostStart(const QString& value) {
    for (const QLatin1StringView scheme : {"http"_L1, "https"_L1}) {
        if (value.startsWith(scheme, Qt::CaseInsensitive) &&
            QStringView(value).mid(scheme.size()).startsWith(kSchemeEnd)) {
            return scheme.size() + kSchemeEnd.size();
        }
    }
    return 0;
}

QString withScheme(const QString& value, const QString& scheme) {
    return hostStart(value) > 0 ? value : scheme + kSchemeEnd + value;
}

} // namespace

/// The keys whose missing value has been logged.
struct SourceHostTable::ReportedKeys {
    std::mutex guard;
    QSet<QString> keys;
};

SourceHostTable::SourceHostTable()
    : m_reported(std::make_shared<ReportedKeys>()) {}

std::optional<SourceHostTable> SourceHostTable::fromJson(const QByteArray& json, RowTally* tally) {
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject()) {
        return std::nullopt;
    }
    RowTally ignored;
    RowTally& counts = tally ? *tally : ignored;
    SourceHostTable table;
    const QJsonObject object = document.object();
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        counts.addRow();
        if (!entry->isString()) {
            counts.leaveOut(RowProblem::Type);
            continue;
        }
        QString value = entry->toString().trimmed();
        while (value.size() > hostStart(value) && value.endsWith(u'/')) {
            value.chop(1);
        }
        table.m_values.insert(entry.key(), value);
    }
    return table;
}

std::optional<SourceHostTable> SourceHostTable::fromFile(const QString& path) {
    RowTally tally;
    const std::optional<QByteArray> content = fileContent(path, kMostBytes);
    const std::optional<SourceHostTable> table = content ? fromJson(*content, &tally) : std::nullopt;
    if (!table) {
        qWarning().noquote() << "SourceHostTable: cannot read" << path;
    } else if (const QString leftOut = tally.summary(u"hosts"_s); !leftOut.isEmpty()) {
        qWarning().noquote().nospace() << path << ": " << leftOut;
    }
    return table;
}

SourceHostTable SourceHostTable::installed(const QString& bundleFolder, const QString& configurationFolder) {
    const QString name = u"/hosts.json"_s;
    SourceHostTable table = fromFile(bundleFolder + name).value_or(SourceHostTable());
    if (QFile::exists(configurationFolder + name)) {
        if (const std::optional<SourceHostTable> own = fromFile(configurationFolder + name)) {
            table = table.overriddenBy(*own);
        }
    }
    return table;
}

SourceHostTable SourceHostTable::overriddenBy(const SourceHostTable& other) const {
    SourceHostTable table;
    table.m_values = m_values;
    table.m_values.insert(other.m_values);
    return table;
}

QString SourceHostTable::value(const QString& key) const {
    return m_values.value(key);
}

std::optional<QString> SourceHostTable::presentValue(const QString& key) const {
    QString value = m_values.value(key);
    if (value.size() > hostStart(value)) {
        return value;
    }
    const std::lock_guard lock(m_reported->guard);
    if (!m_reported->keys.contains(key)) {
        m_reported->keys.insert(key);
        qWarning().noquote() << "SourceHostTable: no host for" << key;
    }
    return std::nullopt;
}

std::optional<QString> SourceHostTable::name(const QString& key) const {
    std::optional<QString> value = presentValue(key);
    if (value) {
        value->remove(0, hostStart(*value));
    }
    return value;
}

std::optional<QString> SourceHostTable::base(const QString& key, const QString& scheme) const {
    const std::optional<QString> value = presentValue(key);
    if (!value) {
        return std::nullopt;
    }
    return withScheme(*value, scheme);
}

std::optional<QString> SourceHostTable::baseOfStem(const QString& key, const QString& label,
                                                   const QString& scheme) const {
    std::optional<QString> value = presentValue(key);
    if (!value) {
        return std::nullopt;
    }
    if (value->contains("%@"_L1)) {
        value->replace("%@"_L1, label);
        return withScheme(*value, scheme);
    }
    const qsizetype start = hostStart(*value);
    qsizetype end = start;
    while (end < value->size() && value->at(end) != u':' && value->at(end) != u'/') {
        ++end;
    }
    value->insert(end, u'.' + label);
    return withScheme(*value, scheme);
}

bool SourceHostTable::isPrimaMaxSourceId(const QString& sourceId) const {
    const QString value = m_values.value(u"PrimaMaxSourceId"_s);
    const QStringView host = QStringView(value).mid(hostStart(value));
    return !host.isEmpty() && (sourceId == value || sourceId == host);
}

} // namespace guide
