#pragma once

#include "platform/Device.h"
#include "platform/Moment.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

namespace guide {

/// How the guide was asked to start. Paths are absolute.
struct LaunchOptions {
    std::optional<QString> profile;
    bool demo = false;
    std::optional<QString> catalogue;
    std::optional<QString> hosts;
    std::optional<QString> select;
    /// The clock starts there.
    std::optional<Moment> now;
    std::optional<UserInterfaceIdiom> form;
    std::optional<QString> screenshots;
    /// A URL of the application's scheme, to be opened once the guide stands.
    std::optional<QString> url;

    /// Whether the guide has to stay off the user's own profile: something is only being tried.
    bool impliesOwnProfile() const { return demo || catalogue || hosts || select || now; }
};

/// What the words of the command line come to: options to start with, or a text to print and end.
struct CommandLineText {
    QString text;
    /// 0 for the help that was asked for, 2 for words that cannot be used.
    int exitStatus = 0;
};

/// Takes the words behind the program's name apart. Relative paths are taken from the working folder.
std::variant<LaunchOptions, CommandLineText> parseCommandLine(const QStringList& words);

} // namespace guide
