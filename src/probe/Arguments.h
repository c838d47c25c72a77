#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace guide::probe {

/// How a command is called: its operands for the usage line, the options with a value and those without.
struct CommandShape {
    QString operands;
    QStringList valueOptions;
    QStringList flags;
    int leastOperands = 0;
    /// Negative: any number.
    int mostOperands = 0;
};

/// A command line taken apart. An operand may begin with a dash: only a word that begins with two is an
/// option.
struct Arguments {
    QStringList operands;
    /// The values of each option in the order given, by its name without the dashes; a flag has no values.
    QMap<QString, QStringList> options;

    bool has(const QString& option) const { return options.contains(option); }
    /// The last value given.
    std::optional<QString> value(const QString& option) const;
};

/// Takes the words behind the command apart. Nothing when they do not fit the shape; `fault` then says why.
std::optional<Arguments> parseArguments(const QStringList& words, const CommandShape& shape, QString& fault);

} // namespace guide::probe
