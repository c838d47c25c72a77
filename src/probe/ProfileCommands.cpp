#include "platform/archive/Archive.h"
#include "probe/Command.h"
#include "store/ShowCoding.h"
#include "text/display/Alphabet.h"

#include <QCborArray>
#include <QFile>
#include <QJsonArray>

namespace guide::probe {

using namespace Qt::StringLiterals;

namespace {

/// What an archive of a profile holds: a list of shows, other values, or nothing that can be read.
QJsonObject archiveJSON(const QString& path, const QByteArray& bytes, const Alphabet& alphabet) {
    QJsonObject json{{u"file"_s, path}, {u"content"_s, QJsonValue::Null}};
    const auto root = unarchivedRoot(bytes);
    if (!root) {
        return json;
    }
    const auto shows = unarchivedShows(bytes, alphabet);
    json[u"content"_s] = shows ? u"shows"_s : u"values"_s;
    json[u"count"_s] = shows ? qint64(shows->size()) : qint64(root->isArray() ? root->toArray().size() : 1);
    if (shows && !shows->empty()) {
        json[u"first"_s] = jsonMoment(shows->front().entry()->dateTime());
        json[u"last"_s] = jsonMoment(shows->back().entry()->dateTime());
    }
    return json;
}

Outcome archives(Context& context) {
    const Alphabet alphabet;
    QJsonArray list;
    for (const QString& path : context.arguments.operands) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            return Failure{u"%1 cannot be read: %2"_s.arg(path, file.errorString())};
        }
        list.append(archiveJSON(path, file.readAll(), alphabet));
    }
    return QJsonObject{{u"archives"_s, list}};
}

} // namespace

std::vector<Command> profileCommands() {
    return {{u"archives"_s,
             {u"FILE..."_s, {}, {}, 1, -1},
             u"what the archives of a profile hold; \"content\" is null for a damaged one"_s,
             archives}};
}

} // namespace guide::probe
