#pragma once

#include "demo/Random.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

namespace guide {

/// Rules from which texts are told. The source of a grammar has a rule's name and "=" at the beginning of a
/// line and one alternative on each indented line below. An alternative is a text with these references:
///
///     {rule}      one alternative of the rule, told
///     {rule.3}    its third form: an alternative may have several, separated by "/", as a word has cases
///     {a:rule.2}  likewise, and the same alternative is meant by {a.1}, {a.3} … and {a:rule.4} from then on
///     {^rule}     with a capital letter
///     {#2-90}     a number between the two
///
/// and may be a record of several fields, separated by " @ ".
class Grammar {
  public:
    using Forms = QStringList;
    struct Alternative {
        Forms forms;
        QStringList fields;
    };

    explicit Grammar(const QString& source);

    bool has(const QString& rule) const { return m_rules.contains(rule); }
    /// The alternatives of a rule; none for a rule that there is not.
    const std::vector<Alternative>& alternatives(const QString& rule) const;

    /// References to what there is not, one line each. Empty for a good grammar.
    QStringList faults() const;

  private:
    QHash<QString, std::vector<Alternative>> m_rules;
};

/// One text, or several that go together, told by a grammar: what was named in one is known in the next.
class Telling {
  public:
    Telling(const Grammar& grammar, Random& random)
        : m_grammar(&grammar)
        , m_random(&random) {}

    /// From now on texts are told by another chance.
    void setRandom(Random& random) { m_random = &random; }
    /// What {name} means.
    void name(const QString& name, const QString& meaning) { m_names.insert(name, {meaning}); }
    bool knows(const QString& name) const { return m_names.contains(name); }

    /// An alternative of the rule; an empty text when there is no such rule.
    QString told(const QString& rule);
    /// The text with its references replaced.
    QString filled(const QString& text);

  private:
    QString referred(QStringView reference);

    const Grammar* m_grammar;
    Random* m_random;
    QHash<QString, Grammar::Forms> m_names;
    int m_depth = 0;
};

} // namespace guide
