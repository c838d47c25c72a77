#include "app/CommandLine.h"

#include <QDateTime>
#include <QFileInfo>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

QString usage() {
    return u"usage: quellin-guide [OPTION...] [URL]\n"
           "\n"
           "What is on television now, and what comes next.\n"
           "\n"
           "  --profile FOLDER      keep all folders, settings and the key-value store under FOLDER\n"
           "  --demo                use made-up channels, served by the program itself\n"
           "  --catalogue FILE      the channel catalogue, a property list\n"
           "  --hosts FILE          the table of source hosts, a JSON object\n"
           "  --select FILE         the channels to select if none are selected yet, a JSON array\n"
           "  --now TIME            the initial time of the clock, as in 2025-12-31T19:30:00Z\n"
           "  --form phone|tablet   the layout\n"
           "  --screenshots FOLDER  save a picture of every screen in FOLDER and exit\n"
           "  --help                this text\n"
           "\n"
           "The options from --demo to --now use a temporary profile, unless --profile names one.\n"_s;
}

CommandLineText refusal(const QString& why) {
    return {u"quellin-guide: %1; see quellin-guide --help\n"_s.arg(why), 2};
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
        if (!path && name != "--now"_L1 && name != "--form"_L1) {
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
        } else if (name == "--now"_L1) {
            const QDateTime moment = QDateTime::fromString(value, Qt::ISODateWithMs);
            if (!moment.isValid()) {
                return refusal(u"\"%1\" is not a time like 2025-12-31T19:30:00Z"_s.arg(value));
            }
            options.now = Moment(std::chrono::milliseconds(moment.toMSecsSinceEpoch()));
        } else if (value == "phone"_L1 || value == "tablet"_L1) {
            options.form = value == "phone"_L1 ? UserInterfaceIdiom::Phone : UserInterfaceIdiom::Tablet;
        } else {
            return refusal(u"--form must be phone or tablet, not \"%1\""_s.arg(value));
        }
    }
    if (options.demo && (options.catalogue || options.hosts || options.select)) {
        return refusal(u"--demo has its own catalogue, hosts and selection"_s);
    }
    return options;
}

} // namespace guide
