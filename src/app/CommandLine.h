#pragma once

#include "platform/Device.h"
#include "platform/Moment.h"
#include "ui/GuideWindow.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

namespace guide {

/// The options of a launch. Paths are absolute.
struct LaunchOptions {
    std::optional<QString> profile;
    bool demo = false;
    std::optional<QString> catalogue;
    std::optional<QString> hosts;
    std::optional<QString> select;
    /// The initial time of the clock.
    std::optional<Moment> now;
    std::optional<UserInterfaceIdiom> form;
    /// In place of the system's. Pictures are taken in both where unset.
    std::optional<ColorScheme> appearance;
    /// In place of the system's, from 1 to 2.
    std::optional<double> textScale;
    std::optional<QString> screenshots;
    /// A URL of the application's scheme, to be opened after the launch.
    std::optional<QString> url;
    /// An address, or the absolute path of a file, to be offered as a source after the launch.
    std::optional<QString> add;
    /// Only to update the schedules and alarms, without a window.
    bool update = false;
    /// Only to set up the database at this address, as its administrator.
    std::optional<QString> cloudSetup;
    /// The user to be made there.
    std::optional<QString> user;

    /// Whether the options only try something out and must not touch the user's profile.
    bool usesSeparateProfile() const { return demo || catalogue || hosts || select || now; }
};

/// A text to print instead of a launch.
struct CommandLineText {
    QString text;
    /// 0 for the help, 2 for unusable arguments.
    int exitStatus = 0;
};

/// Parses the arguments after the program's name. Relative paths are resolved against the working folder.
std::variant<LaunchOptions, CommandLineText> parseCommandLine(const QStringList& words);

} // namespace guide
