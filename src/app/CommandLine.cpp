#include "app/CommandLine.h"

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// The options whose value is not a path.
constexpr std::array kValueOptions{"--now"_L1, "--form"_L1,        "--appearance"_L1, "--text-scale"_L1,
                                   "--add"_L1, "--cloud-setup"_L1, "--user"_L1};

QString usage() {
    return u"usage: quellin-guide [OPTION...] [URL]\n"
           "\n"
           "What is on television now, and what comes next.\n"
           "\n"
           "  --add ADDRESS|FILE    offer the channels of a feed, playlist or grabber for adding\n"
           "  --update              update schedules and alarms once, without a window, and exit\n"
           "  --profile FOLDER      keep all folders, settings and the key-value store under FOLDER\n"
           "  --demo                use made-up channels, served by the program itself\n"
           "  --catalogue FILE      the channel catalogue, a property list\n"
           "  --hosts FILE          the table of source hosts, a JSON object\n"
           "  --select FILE         the channels to select if none are selected yet, a JSON array\n"
           "  --now TIME            the initial time of the clock, as in 2025-12-31T19:30:00Z\n"
           "  --form phone|tablet   the layout\n"
           "  --appearance light|dark\n"
           "                        the colours; the system's if missing\n"
           "  --text-scale PERCENT  the size of the text, from 100 to 200; the system's if missing\n"
           "  --screenshots FOLDER  save a picture of every screen in FOLDER and exit\n"
           "  --cloud-setup URL     set up or upgrade the database that devices share, and exit; the URL is "
           "the\n"
           "                        administrator's, as in postgresql://postgres@tv.example.org/guide\n"
           "  --user NAME           with --cloud-setup: make a user, or a new password of one, and print it\n"
           "  --help                this text\n"
           "\n"
           "The options from --demo to --now use a temporary profile, unless --profile names one.\n"_s;
}

CommandLineText refusal(const QString& why) {
    return {u"quellin-guide: %1; see quellin-guide --help\n"_s.arg(why), 2};
}

/// Sets an option whose value is not a path; returns why it cannot, or an empty text.
QString setValue(LaunchOptions& options, const QString& name, const QString& value) {
    if (name == "--add"_L1) {
        options.add = QFileInfo::exists(value) ? QFileInfo(value).absoluteFilePath() : value;
    } else if (name == "--cloud-setup"_L1) {
        options.cloudSetup = value;
    } else if (name == "--user"_L1) {
        options.user = value;
    } else if (name == "--now"_L1) {
        const QDateTime moment = QDateTime::fromString(value, Qt::ISODateWithMs);
        if (!moment.isValid()) {
            return u"\"%1\" is not a time like 2025-12-31T19:30:00Z"_s.arg(value);
        }
        options.now = Moment(std::chrono::milliseconds(moment.toMSecsSinceEpoch()));
    } else if (name == "--form"_L1) {
        if (value != "phone"_L1 && value != "tablet"_L1) {
            return u"--form must be phone or tablet, not \"%1\""_s.arg(value);
        }
        options.form = value == "phone"_L1 ? UserInterfaceIdiom::Phone : UserInterfaceIdiom::Tablet;
    } else if (name == "--appearance"_L1) {
        if (value != "light"_L1 && value != "dark"_L1) {
            return u"--appearance must be light or dark, not \"%1\""_s.arg(value);
        }
        options.appearance = value == "light"_L1 ? ColorScheme::Light : ColorScheme::Dark;
    } else {
        bool isNumber = false;
        const int percent = value.toInt(&isNumber);
        if (!isNumber || percent < 100 || percent > 200) {
            return u"--text-scale must be a number from 100 to 200, not \"%1\""_s.arg(value);
        }
        options.textScale = percent / 100.0;
    }
    return {};
}

} // namespace

std::variant<LaunchOptions, CommandLineText> parseCommandLine(const QStringList& words) {
    LaunchOptions options;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString& word = words[i];
        if (word == "--help"_L1 || word == "-h"_L1) {
            return CommandLineText{usage(), 0};
        }
        if (word == "--demo"_L1) {
            options.demo = true;
            continue;
        }
        if (word == "--update"_L1) {
            options.update = true;
            continue;
        }
        if (!word.startsWith(u'-')) {
            if (options.url) {
                return refusal(u"only one URL can be opened, \"%1\" is another"_s.arg(word));
            }
            options.url = word;
            continue;
        }
        const qsizetype equals = word.indexOf(u'=');
        const QString name = word.left(equals < 0 ? word.size() : equals);
        const auto path = [&]() -> std::optional<QString>* {
            return name == "--profile"_L1       ? &options.profile
                   : name == "--catalogue"_L1   ? &options.catalogue
                   : name == "--hosts"_L1       ? &options.hosts
                   : name == "--select"_L1      ? &options.select
                   : name == "--screenshots"_L1 ? &options.screenshots
                                                : nullptr;
        }();
        if (!path &&
            std::ranges::none_of(kValueOptions, [&](QLatin1StringView each) { return each == name; })) {
            return refusal(u"there is no option %1"_s.arg(name));
        }
        const QString value = equals >= 0            ? word.mid(equals + 1)
                              : i + 1 < words.size() ? words[++i]
                                                     : QString();
        if (value.isEmpty()) {
            return refusal(u"%1 needs a value"_s.arg(name));
        }
        if (path) {
            *path = QFileInfo(value).absoluteFilePath();
        } else if (const QString why = setValue(options, name, value); !why.isEmpty()) {
            return refusal(why);
        }
    }
    if (options.demo && (options.catalogue || options.hosts || options.select)) {
        return refusal(u"--demo has its own catalogue, hosts and selection"_s);
    }
    if (options.update && (options.url || options.add || options.screenshots)) {
        return refusal(
            u"--update shows nothing, so it cannot be combined with a URL, --add or --screenshots"_s);
    }
    if (options.user && !options.cloudSetup) {
        return refusal(u"--user is for --cloud-setup"_s);
    }
    return options;
}

} // namespace guide
