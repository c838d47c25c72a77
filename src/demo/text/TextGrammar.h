#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>
#include <vector>

namespace guide {

/// Rules from which texts are generated. data/demo/README.md describes the syntax.
class TextGrammar {
  public:
    struct Alternative {
        /// The text split at "/".
        QStringList forms;
        /// The text split at " @ ".
        QStringList fields;
        /// "cs-films.txt:12", for messages.
        QString origin;
    };

    /// Adds the rules of a file; what cannot be read is skipped and listed among the errors.
    void add(const QString& fileName, const QString& source);

    bool has(const QString& rule) const { return m_rules.contains(rule); }
    /// Empty for an unknown rule.
    const std::vector<Alternative>& alternatives(const QString& rule) const;

    /// Syntax errors and references to missing rules or forms, one line each. Call it after adding all
    /// files.
    QStringList errors() const;

  private:
    QHash<QString, std::vector<Alternative>> m_rules;
    QStringList m_syntaxErrors;
};

/// The text between braces.
struct TextReference {
    bool capital = false;
    QString variable;
    QString name;
    /// Counted from 1.
    int form = 1;
    std::optional<std::pair<int, int>> number;

    static TextReference parse(QStringView text);
};

} // namespace guide
