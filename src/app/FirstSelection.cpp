#include "app/FirstSelection.h"

#include "core/RowTally.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <unordered_set>

namespace guide {

using namespace Qt::StringLiterals;

std::optional<std::vector<ObjectId>> selectionFromFile(const QString& path, QString& why) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        why = u"the selection %1 cannot be read: %2"_s.arg(path, file.errorString());
        return std::nullopt;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (!document.isArray()) {
        why = u"the selection %1 is not a JSON array"_s.arg(path);
        if (error.error != QJsonParseError::NoError) {
            why += u": "_s + error.errorString();
        }
        return std::nullopt;
    }
    RowTally tally;
    std::unordered_set<ObjectId> known;
    std::vector<ObjectId> selected;
    const QJsonArray entries = document.array();
    for (const auto& entry : entries) {
        tally.addRow();
        const QString hex = entry.toString();
        if (!ObjectId::isHex(hex)) {
            tally.leaveOut(entry.isString() ? RowProblem::Identity : RowProblem::Type);
            continue;
        }
        const ObjectId channel = ObjectId::fromHex(hex);
        if (known.insert(channel).second) {
            selected.push_back(channel);
        }
    }
    if (const QString leftOut = tally.summary(u"channels"_s); !leftOut.isEmpty()) {
        qWarning("%s: %s", qPrintable(path), qPrintable(leftOut));
    }
    return selected;
}

} // namespace guide
