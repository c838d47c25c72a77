#include "probe/Command.h"

#include "parsers/ShowJSON.h"

#include <QDateTime>

namespace guide::probe {

using namespace Qt::StringLiterals;

const std::vector<Command>& allCommands() {
    static const std::vector<Command> kCommands = [] {
        std::vector<Command> all;
        for (auto&& some :
             {sourceCommands(), listingsCommands(), detailCommands(), textCommands(), catalogueCommands()}) {
            all.insert(all.end(), some.begin(), some.end());
        }
        return all;
    }();
    return kCommands;
}

QJsonValue jsonMoment(const std::optional<Moment>& moment) {
    return moment ? QJsonValue(isoMoment(*moment)) : QJsonValue(QJsonValue::Null);
}

std::optional<Moment> momentFromText(const QString& text) {
    const QDateTime moment = QDateTime::fromString(text, Qt::ISODateWithMs);
    // Without a zone it would be another moment on each device.
    if (!moment.isValid() || moment.timeSpec() == Qt::LocalTime) {
        return std::nullopt;
    }
    return Moment(std::chrono::milliseconds(moment.toMSecsSinceEpoch()));
}

} // namespace guide::probe
