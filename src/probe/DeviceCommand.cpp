#include "probe/Command.h"
#include "probe/DeviceWorld.h"

#include <QFile>
#include <QJsonDocument>

namespace guide::probe {

using namespace Qt::StringLiterals;

namespace {

std::variant<QJsonObject, Failure> readState(const Context& context) {
    const QString path = context.arguments.operands.front();
    QByteArray bytes;
    if (path == "-"_L1) {
        bytes = context.input().toUtf8();
    } else {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            return Failure{u"%1 cannot be read: %2"_s.arg(path, file.errorString())};
        }
        bytes = file.readAll();
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (!document.isObject()) {
        return Failure{u"%1 is not a JSON object: %2"_s.arg(path, error.errorString())};
    }
    return document.object();
}

Outcome device(Context& context) {
    const auto state = readState(context);
    if (const auto* failure = std::get_if<Failure>(&state)) {
        return *failure;
    }
    const QJsonObject& description = std::get<QJsonObject>(state);
    auto made = DeviceWorld::make(description, context);
    if (auto* failure = std::get_if<Failure>(&made)) {
        return std::move(*failure);
    }
    DeviceWorld& world = *std::get<std::unique_ptr<DeviceWorld>>(made);
    QJsonArray answers;
    for (const QJsonValue& step : description.value(u"do"_s).toArray()) {
        const auto answer = world.perform(step.toObject());
        if (const auto* failure = std::get_if<Failure>(&answer)) {
            return *failure;
        }
        answers.append(std::get<QJsonValue>(answer));
    }
    QJsonObject result = world.state();
    result[u"answers"_s] = answers;
    return result;
}

} // namespace

std::vector<Command> deviceCommands() {
    return {
        {u"device"_s,
         {u"STATE"_s, {}, {}, 1, 1},
         u"plays steps on a made-up device with rules, calendars, listings and a cloud; STATE is a JSON file or -"_s,
         device}};
}

} // namespace guide::probe
