#include "app/CloudSetup.h"

#include "platform/linux/database/DatabaseSetup.h"

#include <cstdio>
#include <iostream>
#include <string>
#include <termios.h>
#include <unistd.h>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

int refuse(const QString& why) {
    std::fprintf(stderr, "quellin-guide: %s\n", qPrintable(why));
    return 1;
}

void warn(DatabaseSetup& setup) {
    for (const QString& warning : setup.takeWarnings()) {
        std::fprintf(stderr, "quellin-guide: warning: %s\n", qPrintable(warning));
    }
}

/// What the person types, without showing it; nothing without a terminal.
std::optional<QString> typedPassword() {
    termios shown{};
    if (::tcgetattr(STDIN_FILENO, &shown) != 0) {
        return std::nullopt;
    }
    std::fputs("Password of the administrator: ", stderr);
    termios hidden = shown;
    hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &hidden);
    std::string line;
    const bool isRead = static_cast<bool>(std::getline(std::cin, line));
    ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &shown);
    std::fputc('\n', stderr);
    return isRead ? std::optional(QString::fromLocal8Bit(line.data(), static_cast<qsizetype>(line.size())))
                  : std::nullopt;
}

} // namespace

int setUpCloud(const QString& address, const std::optional<QString>& user, const QString& schemaFolder) {
    QString why;
    std::optional<DatabaseAddress> administrator = databaseAddress(address, why);
    // Before anything is changed.
    if (!administrator || (user && !DatabaseSetup::acceptsName(*user, why))) {
        return refuse(why);
    }
    bool needsPassword = false;
    std::optional<DatabaseSetup> setup = DatabaseSetup::connect(*administrator, needsPassword, why);
    if (!setup && needsPassword) {
        administrator->password = typedPassword();
        if (administrator->password) {
            setup = DatabaseSetup::connect(*administrator, needsPassword, why);
        }
    }
    const std::optional<QStringList> applied = setup ? setup->upgrade(schemaFolder, why) : std::nullopt;
    if (!applied) {
        return refuse(why);
    }
    warn(*setup);
    for (const QString& file : *applied) {
        std::printf("applied %s\n", qPrintable(file));
    }
    if (applied->isEmpty()) {
        std::puts("the database is up to date");
    }
    if (!user) {
        return 0;
    }
    const std::optional<DatabaseSetup::User> made = setup->setUser(*user, why);
    if (!made) {
        return refuse(why);
    }
    warn(*setup);
    if (made->isNew) {
        std::printf(
            "made the user %s; the address for the devices, with a password that is shown only now:\n",
            qPrintable(*user));
    } else {
        std::printf(
            "gave the user %s a new password; devices with the one before are refused when they connect "
            "next. The address, with the password, which is shown only now:\n",
            qPrintable(*user));
    }
    std::puts(qPrintable(made->address));
    if (administrator->isSocket()) {
        std::puts("with the name under which devices reach this server in place of \"server\"");
    }
    return 0;
}

} // namespace guide
