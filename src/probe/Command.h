#pragma once

#include "platform/Moment.h"
#include "probe/Arguments.h"
#include "probe/ProbeDevice.h"
#include "sources/SourceHostTable.h"

#include <QByteArray>
#include <QJsonObject>

#include <functional>
#include <optional>
#include <variant>
#include <vector>

namespace guide::probe {

/// Why a command did not run: unusable arguments, or something that it could not do.
struct Failure {
    QString why;
    bool badArguments = false;
};

using Outcome = std::variant<QJsonObject, Failure>;

/// What every command is given.
struct Context {
    Arguments arguments;
    Moment now;
    FixedDevice device;
    SourceHostTable hosts;
    /// What came with the program: supported regions and the host table.
    QString bundleFolder;
    /// Standard input, one trailing line feed removed; read when it is asked for.
    std::function<QString()> input;
};

struct Command {
    QString name;
    CommandShape shape;
    /// What it prints, for the list of commands.
    QString summary;
    std::function<Outcome(Context&)> run;
};

/// Whether the device of the context writes its dates, and so all that it shows, in Cyrillic.
bool writesCyrillic(const Context& context);

/// Every command, in the order of the help text.
const std::vector<Command>& allCommands();

std::vector<Command> sourceCommands();
std::vector<Command> textCommands();
std::vector<Command> catalogueCommands();
std::vector<Command> listingsCommands();
std::vector<Command> detailCommands();

/// "2026-11-21T10:00:00Z", with milliseconds only where there are any; null for nothing.
QJsonValue jsonMoment(const std::optional<Moment>& moment);

/// An ISO 8601 time with its zone; nothing for another text.
std::optional<Moment> momentFromText(const QString& text);

} // namespace guide::probe
