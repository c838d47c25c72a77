#include "probe/Command.h"

#include "parsers/ShowJSON.h"
#include "text/display/Alphabet.h"

#include <QDateTime>

namespace guide::probe {

using namespace Qt::StringLiterals;

const std::vector<Command>& allCommands() {
    static const std::vector<Command> kCommands = [] {
        std::vector<Command> all;
        for (auto&& some : {sourceCommands(), listingsCommands(), detailCommands(), textCommands(),
                            catalogueCommands(), profileCommands(), playlistCommands(), deviceCommands()}) {
            all.insert(all.end(), some.begin(), some.end());
        }
        return all;
    }();
    return kCommands;
}

bool writesCyrillic(const Context& context) {
    const auto today =
        QDateTime::fromMSecsSinceEpoch(context.now.time_since_epoch().count(), context.device.timeZone());
    Alphabet alphabet;
    alphabet.detectAlphabet(context.device.locale().toString(today.date(), QLocale::LongFormat));
    return alphabet.useCyrillic();
}

QJsonValue jsonMoment(const std::optional<Moment>& moment) {
    return moment ? QJsonValue(isoMoment(*moment)) : QJsonValue(QJsonValue::Null);
}

std::optional<Moment> momentFromText(const QString& text) {
    const QDateTime moment = QDateTime::fromString(text, Qt::ISODateWithMs);
    // Without a zone the moment would depend on the device.
    if (!moment.isValid() || moment.timeSpec() == Qt::LocalTime) {
        return std::nullopt;
    }
    return Moment(std::chrono::milliseconds(moment.toMSecsSinceEpoch()));
}

} // namespace guide::probe
