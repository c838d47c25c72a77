#include "app/FirstSelection.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace guide {

namespace {

bool isIdentity(const QString& text) {
    return text.size() == 24 && std::ranges::all_of(text, [](QChar c) {
               return (c >= u'0' && c <= u'9') || (c.toLower() >= u'a' && c.toLower() <= u'f');
           });
}

} // namespace

std::optional<std::vector<ObjectId>> selectionFromFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("The selection %s cannot be read: %s", qPrintable(path), qPrintable(file.errorString()));
        return std::nullopt;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (!document.isArray()) {
        qWarning("The selection %s is not a JSON array: %s", qPrintable(path),
                 qPrintable(error.errorString()));
        return std::nullopt;
    }
    std::vector<ObjectId> selected;
    for (const QJsonValue value : document.array()) {
        const QString hex = value.toString();
        if (!isIdentity(hex)) {
            qWarning("The selection %s has an entry that is not 24 hexadecimal digits: \"%s\"",
                     qPrintable(path), qPrintable(hex));
            continue;
        }
        const ObjectId channel = ObjectId::fromHex(hex);
        if (std::ranges::find(selected, channel) == selected.end()) {
            selected.push_back(channel);
        }
    }
    return selected;
}

} // namespace guide
