#include "demo/text/TextGenerator.h"

namespace guide {

namespace {

/// Stops the expansion of a rule that refers to itself.
constexpr int kMaxDepth = 20;

} // namespace

QString TextGenerator::expand(const QString& rule) {
    return expand(TextReference::parse(rule));
}

QString TextGenerator::expandReferences(const QString& text) {
    QString result;
    qsizetype at = 0;
    for (qsizetype open = text.indexOf(u'{'); open >= 0; open = text.indexOf(u'{', at)) {
        const qsizetype close = text.indexOf(u'}', open);
        result += QStringView(text).sliced(at, open - at);
        result += expand(TextReference::parse(QStringView(text).sliced(open + 1, close - open - 1)));
        at = close + 1;
    }
    result += QStringView(text).sliced(at);
    return result;
}

QString TextGenerator::expand(const TextReference& reference) {
    if (reference.number) {
        return QString::number(m_random->between(reference.number->first, reference.number->second));
    }
    const QStringList forms = formsOf(reference);
    if (reference.form > forms.size() || m_depth >= kMaxDepth) {
        return {};
    }
    ++m_depth;
    QString result = expandReferences(forms[reference.form - 1]);
    --m_depth;
    if (reference.capital && !result.isEmpty()) {
        result[0] = result[0].toUpper();
    }
    return result;
}

QStringList TextGenerator::formsOf(const TextReference& reference) {
    QStringList forms = m_variables.value(reference.name);
    const auto& alternatives = m_grammar->alternatives(reference.name);
    if (forms.isEmpty() && !alternatives.empty()) {
        forms = alternatives[m_random->below(alternatives.size())].forms;
    }
    if (reference.variable.isEmpty()) {
        return forms;
    }
    // A variable keeps its first value.
    const auto bound = m_variables.constFind(reference.variable);
    return bound == m_variables.constEnd() ? *m_variables.insert(reference.variable, forms) : *bound;
}

} // namespace guide
