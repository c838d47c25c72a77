#include "platform/linux/calendar/EDSSources.h"

#include "platform/linux/calendar/CalendarColor.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QHash>
#include <QLocale>
#include <QMap>
#include <QUuid>

#include <algorithm>
#include <tuple>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// Of each object, the properties of each interface.
using ManagedObjects = QMap<QDBusObjectPath, QMap<QString, QVariantMap>>;

const QString kSourceInterface = u"org.gnome.evolution.dataserver.Source"_s;
constexpr qsizetype kLargestSource = 100'000;
constexpr std::size_t kMostSources = 1'000;

QString unescaped(QStringView value) {
    QString text;
    for (qsizetype at = 0; at < value.size(); ++at) {
        if (value[at] != u'\\' || at + 1 == value.size()) {
            text += value[at];
            continue;
        }
        const QChar escaped = value[++at];
        text += escaped == u's' ? u' ' : escaped == u'n' ? u'\n' : escaped == u't' ? u'\t' : escaped;
    }
    return text;
}

/// One line, so that it cannot add keys.
QString escaped(const QString& value) {
    return value.simplified().replace(u'\\', u"\\\\"_s);
}

/// Groups of keys, in the format of desktop entries.
using KeyFile = QHash<QString, QHash<QString, QString>>;

KeyFile readKeyFile(const QString& text) {
    KeyFile groups;
    QString group;
    for (const QStringView whole : QStringView(text).split(u'\n')) {
        const QStringView line = whole.trimmed();
        const qsizetype equals = line.indexOf(u'=');
        if (line.startsWith(u'[') && line.endsWith(u']')) {
            group = line.mid(1, line.size() - 2).toString();
            groups[group];
        } else if (!line.startsWith(u'#') && equals > 0) {
            groups[group].insert(line.left(equals).trimmed().toString(),
                                 unescaped(line.mid(equals + 1).trimmed()));
        }
    }
    return groups;
}

/// The value in the language of the locale (such as "de_AT"), or the general one.
QString localizedValue(const QHash<QString, QString>& group, const QString& key, const QString& locale) {
    for (const QString& name : {locale, locale.section(u'_', 0, 0)}) {
        if (const auto found = group.constFind(u"%1[%2]"_s.arg(key, name)); found != group.constEnd()) {
            return *found;
        }
    }
    return group.value(key);
}

} // namespace

bool EDSSource::needsUser() const {
    return connectionStatus == "awaiting-credentials"_L1 || connectionStatus == "ssl-failed"_L1;
}

bool EDSSource::isReadOnlyKind() const {
    return backend == "contacts"_L1 || backend == "weather"_L1 || backend == "webcal"_L1;
}

std::optional<std::vector<EDSSource>> edsSources(EDSConnection& connection) {
    const EDSReply reply =
        connection.call({kEDSSourcesService, kEDSSourceManagerPath, u"org.freedesktop.DBus.ObjectManager"_s},
                        u"GetManagedObjects"_s);
    if (!reply.isOk() || reply.values.isEmpty()) {
        return std::nullopt;
    }
    const auto objects = qdbus_cast<ManagedObjects>(reply.values.first());
    struct Data {
        KeyFile keys;
        QString connectionStatus;
    };
    QHash<QString, Data> sources;
    for (const auto& interfaces : objects) {
        const QVariantMap properties = interfaces.value(kSourceInterface);
        sources.insert(properties.value(u"UID"_s).toString(),
                       {readKeyFile(properties.value(u"Data"_s).toString().left(kLargestSource)),
                        properties.value(u"ConnectionStatus"_s).toString()});
        if (std::size_t(sources.size()) == kMostSources) {
            break;
        }
    }
    const QString locale = QLocale().name();
    const QString general = u"Data Source"_s;
    const auto isEnabled = [&](const Data& data) {
        return data.keys.value(general).value(u"Enabled"_s, u"true"_s) != "false"_L1;
    };
    std::vector<EDSSource> found;
    for (auto source = sources.cbegin(); source != sources.cend(); ++source) {
        const auto calendar = source->keys.value(u"Calendar"_s);
        const auto group = source->keys.value(general);
        const Data account = sources.value(group.value(u"Parent"_s));
        const QString backend = calendar.value(u"BackendName"_s);
        if (backend.isEmpty() || !isEnabled(*source) || !isEnabled(account)) {
            continue;
        }
        found.push_back({.uid = source.key(),
                         .title = localizedValue(group, u"DisplayName"_s, locale),
                         .account = localizedValue(account.keys.value(general), u"DisplayName"_s, locale),
                         .color = calendar.value(u"Color"_s),
                         .backend = backend,
                         .connectionStatus = source->connectionStatus});
    }
    std::ranges::sort(found, [](const EDSSource& one, const EDSSource& other) {
        return std::tie(one.account, one.title, one.uid) < std::tie(other.account, other.title, other.uid);
    });
    return found;
}

QString createEDSSource(EDSConnection& connection, const QString& title) {
    qDBusRegisterMetaType<QMap<QString, QString>>();
    const QString uid = QUuid::createUuid().toString(QUuid::Id128);
    const QString keys =
        u"[Data Source]\nDisplayName=%1\nEnabled=true\nParent=local-stub\n\n"
        "[Calendar]\nBackendName=local\nColor=%2\nSelected=true\n\n"
        "[Alarms]\nIncludeMe=true\n"_s.arg(escaped(title), QString::fromLatin1(kNewCalendarColor));
    const EDSReply reply = connection.call(
        {kEDSSourcesService, kEDSSourceManagerPath, u"org.gnome.evolution.dataserver.SourceManager"_s},
        u"CreateSources"_s, {QVariant::fromValue(QMap<QString, QString>{{uid, keys}})});
    return reply.isOk() ? uid : QString();
}

} // namespace guide
