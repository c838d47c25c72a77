#include "demo/text/TextGrammar.h"

#include <algorithm>
#include <limits>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// Names that the program binds before a text is expanded; each has one form.
const QStringList& programmeNames() {
    static const QStringList names{u"channel"_s, u"year"_s};
    return names;
}

bool hasBalancedBraces(QStringView text) {
    bool open = false;
    for (const QChar c : text) {
        if ((c == u'{' && open) || (c == u'}' && !open)) {
            return false;
        }
        open = c == u'{' || (open && c != u'}');
    }
    return !open;
}

/// Calls the function with the text between each pair of braces.
template <typename Function>
void forEachReference(const QString& text, Function function) {
    for (qsizetype open = text.indexOf(u'{'); open >= 0; open = text.indexOf(u'{', open + 1)) {
        const qsizetype close = text.indexOf(u'}', open);
        function(TextReference::parse(QStringView(text).sliced(open + 1, close - open - 1)));
    }
}

} // namespace

TextReference TextReference::parse(QStringView text) {
    TextReference reference;
    if (text.startsWith(u'^')) {
        reference.capital = true;
        text = text.sliced(1);
    }
    if (text.startsWith(u'#')) {
        const QStringView range = text.sliced(1);
        const qsizetype dash = std::max<qsizetype>(range.indexOf(u'-'), 0);
        reference.number = {range.first(dash).toInt(), range.sliced(dash).mid(1).toInt()};
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

void TextGrammar::add(const QString& fileName, const QString& source) {
    std::vector<Alternative>* rule = nullptr;
    int number = 0;
    for (const QString& line : source.split(u'\n')) {
        const QString origin = u"%1:%2"_s.arg(fileName).arg(++number);
        const QString text = line.trimmed();
        if (text.isEmpty() || line.startsWith(u'#')) {
            continue;
        }
        if (line.front().isSpace()) {
            const Alternative alternative{text.split(u'/'), text.split(u" @ "_s), origin};
            const QStringList parts = alternative.forms + alternative.fields;
            if (rule == nullptr) {
                m_syntaxErrors.append(origin + u": alternative without a rule"_s);
            } else if (!std::all_of(parts.begin(), parts.end(), hasBalancedBraces)) {
                m_syntaxErrors.append(origin + u": unbalanced braces"_s);
            } else {
                rule->push_back(alternative);
            }
            continue;
        }
        const QString name = text.chopped(1);
        rule = nullptr;
        if (!text.endsWith(u'=') || name.isEmpty()) {
            m_syntaxErrors.append(origin + u": neither a rule nor an alternative"_s);
            continue;
        }
        if (m_rules.contains(name)) {
            m_syntaxErrors.append(origin + u": rule is defined twice"_s);
            continue;
        }
        rule = &m_rules[name];
    }
}

const std::vector<TextGrammar::Alternative>& TextGrammar::alternatives(const QString& rule) const {
    static const std::vector<Alternative> none;
    const auto it = m_rules.constFind(rule);
    return it == m_rules.constEnd() ? none : *it;
}

QStringList TextGrammar::errors() const {
    QStringList errors = m_syntaxErrors;
    // The number of forms of each rule: that of the alternative with the fewest.
    QHash<QString, int> forms;
    for (auto rule = m_rules.begin(); rule != m_rules.end(); ++rule) {
        int fewest = std::numeric_limits<int>::max();
        for (const Alternative& alternative : rule.value()) {
            fewest = std::min(fewest, int(alternative.forms.size()));
        }
        if (rule.value().empty()) {
            errors.append(u"rule %1 has no alternatives"_s.arg(rule.key()));
        }
        forms.insert(rule.key(), fewest);
    }
    const auto forEach = [this](auto function) {
        for (const std::vector<Alternative>& rule : m_rules) {
            for (const Alternative& alternative : rule) {
                forEachReference(alternative.forms.join(u'/'), [&](const TextReference& reference) {
                    function(reference, alternative.origin);
                });
            }
        }
    };
    // The number of forms of each variable: that of the rule with the fewest among those it is bound to.
    QHash<QString, int> variables;
    for (const QString& name : programmeNames()) {
        variables.insert(name, 1);
    }
    forEach([&](const TextReference& reference, const QString&) {
        if (!reference.variable.isEmpty()) {
            const int fewest = forms.value(reference.name);
            variables[reference.variable] = std::min(variables.value(reference.variable, fewest), fewest);
        }
    });
    forEach([&](const TextReference& reference, const QString& origin) {
        if (reference.number) {
            if (reference.number->first >= reference.number->second) {
                errors.append(origin + u": not a range of numbers"_s);
            }
            return;
        }
        const int known = forms.value(reference.name, variables.value(reference.name));
        if (reference.form < 1 || reference.form > known) {
            errors.append(u"%1: {%2.%3} does not exist"_s.arg(origin, reference.name).arg(reference.form));
        }
    });
    errors.sort();
    return errors;
}

} // namespace guide
