// quellin-probe: the guide's engine on the command line. Prints one JSON object per call.

#include "platform/linux/GlobalLibraries.h"
#include "platform/linux/LinuxFolders.h"
#include "probe/Command.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QJsonDocument>
#include <QStringDecoder>

#include <algorithm>
#include <cstdio>

namespace guide::probe {

using namespace Qt::StringLiterals;

namespace {

void print(std::FILE* stream, const QString& text) {
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stream);
}

QString usageOf(const Command& command) {
    return u"usage: quellin-probe %1 %2\n"_s.arg(command.name, command.shape.operands);
}

QString usage() {
    QString text = u"usage: quellin-probe COMMAND [OPTION...] [OPERAND...]\n\n"
                   "Runs one operation of the guide's engine and prints one JSON object.\n\nCommands:\n"_s;
    for (const Command& command : allCommands()) {
        text += u"  %1 %2\n      %3\n"_s.arg(command.name, command.shape.operands, command.summary);
    }
    text += u"\nOptions of every command:\n"
            "  --hosts FILE   the host table to use, JSON, in place of the installed one\n"
            "  --now TIME     the moment that counts as now, as in 2026-11-21T10:00:00Z\n"
            "  --zone ID      the device's time zone, an IANA name\n"
            "  --locale NAME  the device's locale, as in cs_CZ or sr_RS@cyrillic\n"
            "  --help         how to call the command\n\n"
            "Status: 0 it ran, even if it found nothing; 1 it could not run; 2 unusable arguments.\n"_s;
    return text;
}

QString standardInput() {
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly)) {
        return {};
    }
    QByteArray bytes = input.readAll();
    if (bytes.endsWith('\n')) {
        bytes.chop(1);
    }
    // A byte order mark is part of the text.
    return QStringDecoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom)(bytes);
}

/// The context given by the common options.
std::variant<Context, Failure> contextFor(const Arguments& arguments) {
    Moment now{std::chrono::milliseconds(QDateTime::currentMSecsSinceEpoch())};
    if (const auto text = arguments.value(u"now"_s)) {
        const auto moment = momentFromText(*text);
        if (!moment) {
            return Failure{u"\"%1\" is not a time like 2026-11-21T10:00:00Z"_s.arg(*text), true};
        }
        now = *moment;
    }
    QTimeZone zone = QTimeZone::systemTimeZone();
    if (const auto name = arguments.value(u"zone"_s)) {
        zone = QTimeZone(name->toUtf8());
        if (!zone.isValid()) {
            return Failure{u"there is no time zone \"%1\""_s.arg(*name), true};
        }
    }
    const auto name = arguments.value(u"locale"_s);
    const QLocale locale = name ? localeNamed(*name) : QLocale::system();

    const Folders folders = namedLinuxFolders({});
    SourceHostTable hosts;
    if (const auto file = arguments.value(u"hosts"_s)) {
        auto table = SourceHostTable::fromFile(*file);
        if (!table) {
            return Failure{u"%1 cannot be read as a host table"_s.arg(*file)};
        }
        hosts = *table;
    } else {
        hosts = SourceHostTable::installed(folders.bundle, folders.configuration);
    }
    return Context{arguments, now, probeDevice(zone, locale), hosts, folders.bundle, standardInput};
}

int run(const QStringList& words) {
    if (words.isEmpty()) {
        print(stderr, u"quellin-probe: a command is missing; quellin-probe --help lists them\n"_s);
        return 2;
    }
    if (words[0] == "--help"_L1 || words[0] == "-h"_L1) {
        print(stdout, usage());
        return 0;
    }
    const auto& commands = allCommands();
    const auto command = std::ranges::find(commands, words[0], &Command::name);
    if (command == commands.end()) {
        print(stderr, u"quellin-probe: there is no command \"%1\"; quellin-probe --help lists them\n"_s.arg(
                          words[0]));
        return 2;
    }
    const auto refuse = [&](const Failure& failure) {
        print(stderr, u"quellin-probe: %1%2"_s.arg(
                          failure.why, failure.badArguments ? u"; "_s + usageOf(*command) : u"\n"_s));
        return failure.badArguments ? 2 : 1;
    };
    QString fault;
    const auto arguments = parseArguments(words.mid(1), command->shape, fault);
    if (!arguments) {
        return refuse({fault, true});
    }
    if (arguments->has(u"help"_s)) {
        print(stdout, usageOf(*command) + command->summary + u'\n');
        return 0;
    }
    auto context = contextFor(*arguments);
    if (const auto* failure = std::get_if<Failure>(&context)) {
        return refuse(*failure);
    }
    const Outcome outcome = command->run(std::get<Context>(context));
    if (const auto* failure = std::get_if<Failure>(&outcome)) {
        return refuse(*failure);
    }
    const QByteArray json =
        QJsonDocument(std::get<QJsonObject>(outcome)).toJson(QJsonDocument::Compact) + '\n';
    std::fwrite(json.constData(), 1, std::size_t(json.size()), stdout);
    return std::fflush(stdout) == 0 ? 0 : 1;
}

} // namespace
} // namespace guide::probe

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const guide::GlobalLibraries libraries;
    return guide::probe::run(QCoreApplication::arguments().mid(1));
}
