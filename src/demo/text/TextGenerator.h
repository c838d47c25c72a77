#pragma once

#include "demo/schedule/Random.h"
#include "demo/text/TextGrammar.h"

namespace guide {

/// Expands rules of a grammar into texts. Variables bound in one text keep their values in the next.
class TextGenerator {
  public:
    TextGenerator(const TextGrammar& grammar, Random& random)
        : m_grammar(&grammar)
        , m_random(&random) {}

    void setRandom(Random& random) { m_random = &random; }
    void bind(const QString& variable, const QString& value) { m_variables.insert(variable, {value}); }
    bool isBound(const QString& variable) const { return m_variables.contains(variable); }

    /// A random alternative of the rule, expanded; empty for an unknown rule.
    QString expand(const QString& rule);
    /// The text with its references expanded.
    QString expandReferences(const QString& text);

  private:
    QString expand(const TextReference& reference);
    QStringList formsOf(const TextReference& reference);

    const TextGrammar* m_grammar;
    Random* m_random;
    QHash<QString, QStringList> m_variables;
    int m_depth = 0;
};

} // namespace guide
