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

/// Why a command did not run.
struct Failure {
    QString why;
    bool badArguments = false;
};

using Outcome = std::variant<QJsonObject, Failure>;

/// The input of every command.
struct Context {
    Arguments arguments;
    Moment now;
    FixedDevice device;
    SourceHostTable hosts;
    /// The folder of the program's data files.
    QString bundleFolder;
    /// Reads standard input and removes one trailing line feed.
    std::function<QString()> input;
};

struct Command {
    QString name;
    CommandShape shape;
    /// What it prints, for the list of commands.
    QString summary;
    std::function<Outcome(Context&)> run;
};

/// Whether the device of the context writes dates, and therefore all texts, in Cyrillic.
bool writesCyrillic(const Context& context);

/// Every command, in the order of the help text.
const std::vector<Command>& allCommands();

std::vector<Command> sourceCommands();
std::vector<Command> textCommands();
std::vector<Command> catalogueCommands();
std::vector<Command> listingsCommands();
std::vector<Command> detailCommands();
std::vector<Command> profileCommands();
std::vector<Command> playlistCommands();
std::vector<Command> deviceCommands();

/// "2026-11-21T10:00:00Z", with milliseconds only if there are any; null when unset.
QJsonValue jsonMoment(const std::optional<Moment>& moment);

/// Accepts ISO 8601 times with a zone; nothing for any other text.
std::optional<Moment> momentFromText(const QString& text);

} // namespace guide::probe
