#include "demo/Grammar.h"

#include <QSet>

#include <algorithm>
#include <optional>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kDeepest = 20;

struct Reference {
    bool capital = false;
    QString variable;
    QString name;
    /// Counted from 1.
    int form = 1;
    std::optional<std::pair<int, int>> number;
};

Reference parsedReference(QStringView text) {
    Reference reference;
    if (text.startsWith(u'^')) {
        reference.capital = true;
        text = text.sliced(1);
    }
    if (text.startsWith(u'#')) {
        const qsizetype dash = text.indexOf(u'-');
        reference.number = {text.first(dash).sliced(1).toInt(), text.sliced(dash + 1).toInt()};
        return reference;
    }
    if (const qsizetype colon = text.indexOf(u':'); colon >= 0) {
        reference.variable = text.first(colon).toString();
        text = text.sliced(colon + 1);
    }
    if (const qsizetype dot = text.indexOf(u'.'); dot >= 0) {
        reference.form = text.sliced(dot + 1).toInt();
        text = text.first(dot);
    }
    reference.name = text.toString();
    return reference;
}

/// Calls the function with what stands between each pair of braces.
template <typename Function>
void forEachReference(const QString& text, Function function) {
    for (qsizetype open = text.indexOf(u'{'); open >= 0; open = text.indexOf(u'{', open + 1)) {
        const qsizetype close = text.indexOf(u'}', open);
        function(QStringView(text).sliced(open + 1, close - open - 1));
    }
}

} // namespace

Grammar::Grammar(const QString& source) {
    std::vector<Alternative>* rule = nullptr;
    const QStringList lines = source.split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const QString text = line.trimmed();
        if (text.isEmpty()) {
            continue;
        }
        if (!line.startsWith(u' ')) {
            rule = &m_rules[text.chopped(1).trimmed()];
        } else if (rule != nullptr) {
            rule->push_back({text.split(u'/'), text.split(u" @ "_s)});
        }
    }
}

const std::vector<Grammar::Alternative>& Grammar::alternatives(const QString& rule) const {
    static const std::vector<Alternative> none;
    const auto it = m_rules.constFind(rule);
    return it == m_rules.constEnd() ? none : *it;
}

QStringList Grammar::faults() const {
    // A variable has as many forms as the poorest alternative of the rules that it is bound to.
    QHash<QString, int> variables;
    const auto fewestForms = [this](const QString& name) {
        int fewest = 100;
        for (const Alternative& alternative : alternatives(name)) {
            fewest = std::min(fewest, int(alternative.forms.size()));
        }
        return fewest;
    };
    const auto eachReference = [this](const auto& function) {
        for (auto it = m_rules.begin(); it != m_rules.end(); ++it) {
            for (const Alternative& alternative : it.value()) {
                const QString text = alternative.forms.join(u'/');
                forEachReference(text, [&](QStringView reference) {
                    function(it.key(), text, parsedReference(reference));
                });
            }
        }
    };
    eachReference([&](const QString&, const QString&, const Reference& reference) {
        if (!reference.variable.isEmpty()) {
            const int forms = fewestForms(reference.name);
            variables[reference.variable] = std::min(variables.value(reference.variable, forms), forms);
        }
    });
    for (const QString& given : {u"channel"_s, u"year"_s}) {
        variables.insert(given, 1);
    }

    QStringList faults;
    eachReference([&](const QString& rule, const QString& text, const Reference& reference) {
        if (reference.number) {
            if (reference.number->first >= reference.number->second) {
                faults.append(rule + u": "_s + text);
            }
            return;
        }
        const int forms =
            has(reference.name) ? fewestForms(reference.name) : variables.value(reference.name, 0);
        if (reference.form < 1 || reference.form > forms) {
            faults.append(rule + u": {"_s + reference.name + u"} in "_s + text);
        }
    });
    return faults;
}

QString Telling::told(const QString& rule) {
    const auto& alternatives = m_grammar->alternatives(rule);
    return alternatives.empty() ? QString()
                                : filled(alternatives[m_random->below(alternatives.size())].forms.first());
}

QString Telling::filled(const QString& text) {
    QString result;
    qsizetype at = 0;
    for (qsizetype open = text.indexOf(u'{'); open >= 0; open = text.indexOf(u'{', at)) {
        const qsizetype close = text.indexOf(u'}', open);
        result += QStringView(text).sliced(at, open - at);
        result += referred(QStringView(text).sliced(open + 1, close - open - 1));
        at = close + 1;
    }
    result += QStringView(text).sliced(at);
    return result;
}

QString Telling::referred(QStringView text) {
    const Reference reference = parsedReference(text);
    if (reference.number) {
        return QString::number(m_random->between(reference.number->first, reference.number->second));
    }
    Grammar::Forms forms = m_names.value(reference.name);
    if (forms.isEmpty()) {
        const auto& alternatives = m_grammar->alternatives(reference.name);
        if (!alternatives.empty()) {
            forms = alternatives[m_random->below(alternatives.size())].forms;
        }
    }
    if (!reference.variable.isEmpty()) {
        // What has a name keeps its meaning.
        forms = *(m_names.contains(reference.variable) ? m_names.find(reference.variable)
                                                       : m_names.insert(reference.variable, forms));
    }
    if (reference.form > forms.size() || m_depth >= kDeepest) {
        return {};
    }
    ++m_depth;
    QString result = filled(forms[reference.form - 1]);
    --m_depth;
    if (reference.capital && !result.isEmpty()) {
        result[0] = result[0].toUpper();
    }
    return result;
}

} // namespace guide
