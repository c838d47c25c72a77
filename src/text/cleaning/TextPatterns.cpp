#include "text/cleaning/TextPatterns.h"

#include <algorithm>

namespace guide {

namespace {

/// The end of the line that contains the position.
qsizetype lineEndFrom(QStringView text, qsizetype position) {
    return std::find_if(text.begin() + position, text.end(), isLineEnd) - text.begin();
}

/// Removes every match. `match` returns the end of a match that begins at the position, or a negative number.
template <class Match>
QString without(const QString& text, QChar sign, Match&& match) {
    if (!text.contains(sign)) {
        return text;
    }
    const QStringView view(text);
    QString left;
    left.reserve(text.size());
    qsizetype kept = 0;
    for (qsizetype i = 0; i < view.size();) {
        const qsizetype end = match(view, i);
        if (end < 0) {
            ++i;
            continue;
        }
        left += view.sliced(kept, i - kept);
        kept = i = end;
    }
    left += view.sliced(kept);
    return left;
}

/// For ascending positions, finds the last `closing` on the line of each.
class LastOfLine {
  public:
    explicit LastOfLine(QChar closing)
        : m_closing(closing) {}

    /// Negative if the line has none at or after the position.
    qsizetype at(QStringView text, qsizetype position) {
        if (position >= m_lineEnd) {
            m_lineEnd = std::max(lineEndFrom(text, position), position + 1);
            const qsizetype size = std::min(m_lineEnd, text.size()) - position;
            const qsizetype found = text.sliced(position, size).lastIndexOf(m_closing);
            m_last = found < 0 ? -1 : position + found;
        }
        return m_last >= position ? m_last : -1;
    }

  private:
    QChar m_closing;
    qsizetype m_lineEnd = -1;
    qsizetype m_last = -1;
};

} // namespace

bool isLineEnd(QChar unit) {
    const char16_t code = unit.unicode();
    return (code >= 0x0a && code <= 0x0d) || code == 0x85 || code == 0x2028 || code == 0x2029;
}

QString withoutParentheses(const QString& text) {
    return without(text, u'(', [closing = LastOfLine(u')')](QStringView view, qsizetype i) mutable {
        if (!view[i].isSpace() || i + 1 >= view.size() || view[i + 1] != u'(' || i + 2 >= view.size()) {
            return qsizetype(-1);
        }
        const qsizetype last = closing.at(view, i + 2);
        return last < 0 ? last : last + 1;
    });
}

QString withoutBrackets(const QString& text) {
    return without(text, u'[', [closing = LastOfLine(u']')](QStringView view, qsizetype i) mutable {
        if (view[i] != u'[' || i + 1 >= view.size()) {
            return qsizetype(-1);
        }
        const qsizetype last = closing.at(view, i + 1);
        return last < 0 ? last : last + 1;
    });
}

QString withoutLabelTails(const QString& text) {
    return without(text, u':', [](QStringView view, qsizetype i) {
        if (!view[i].isSpace()) {
            return qsizetype(-1);
        }
        const auto* wordEnd =
            std::find_if(view.begin() + i + 1, view.end(), [](QChar unit) { return unit.isSpace(); });
        const qsizetype blank = wordEnd - view.begin();
        // At least one character before the colon, a blank after it, and something after that on the same
        // line.
        if (blank - i < 3 || view[blank - 1] != u':' || blank + 1 >= view.size() ||
            isLineEnd(view[blank + 1])) {
            return qsizetype(-1);
        }
        return lineEndFrom(view, blank + 1);
    });
}

QStringView trimmedSpace(QStringView text) {
    return text.trimmed();
}

} // namespace guide
