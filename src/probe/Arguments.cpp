#include "probe/Arguments.h"

namespace guide::probe {

using namespace Qt::StringLiterals;

std::optional<QString> Arguments::value(const QString& option) const {
    const auto found = options.find(option);
    if (found == options.end() || found->isEmpty()) {
        return std::nullopt;
    }
    return found->last();
}

std::optional<Arguments> parseArguments(const QStringList& words, const CommandShape& shape, QString& fault) {
    static const QStringList kCommonOptions{u"hosts"_s, u"now"_s, u"zone"_s, u"locale"_s};
    Arguments arguments;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString& word = words[i];
        if (!word.startsWith("--"_L1)) {
            arguments.operands.append(word);
            continue;
        }
        const qsizetype equals = word.indexOf(u'=');
        const QString name = word.mid(2, equals < 0 ? -1 : equals - 2);
        if (shape.flags.contains(name) || name == "help"_L1) {
            if (equals >= 0) {
                fault = u"--%1 takes no value"_s.arg(name);
                return std::nullopt;
            }
            arguments.options[name];
            continue;
        }
        if (!shape.valueOptions.contains(name) && !kCommonOptions.contains(name)) {
            fault = u"there is no option --%1"_s.arg(name);
            return std::nullopt;
        }
        if (equals < 0 && i + 1 >= words.size()) {
            fault = u"--%1 needs a value"_s.arg(name);
            return std::nullopt;
        }
        arguments.options[name].append(equals < 0 ? words[++i] : word.mid(equals + 1));
    }
    if (arguments.has(u"help"_s)) {
        return arguments;
    }
    if (arguments.operands.size() < shape.minOperands) {
        fault = u"an operand is missing"_s;
        return std::nullopt;
    }
    if (shape.maxOperands >= 0 && arguments.operands.size() > shape.maxOperands) {
        fault = u"\"%1\" is one operand too many"_s.arg(arguments.operands[shape.maxOperands]);
        return std::nullopt;
    }
    return arguments;
}

} // namespace guide::probe
