#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace guide::probe {

/// The arguments that a command takes.
struct CommandShape {
    QString operands;
    QStringList valueOptions;
    QStringList flags;
    int minOperands = 0;
    /// Negative: any number.
    int maxOperands = 0;
};

/// A parsed command line. Only words that begin with two dashes are options.
struct Arguments {
    QStringList operands;
    /// The values of each option in the order given, by name without the dashes. A flag has no values.
    QMap<QString, QStringList> options;

    bool has(const QString& option) const { return options.contains(option); }
    /// The last value given.
    std::optional<QString> value(const QString& option) const;
};

/// Parses the words after the command. Nothing when they do not fit the shape; `fault` then says why.
std::optional<Arguments> parseArguments(const QStringList& words, const CommandShape& shape, QString& fault);

} // namespace guide::probe
