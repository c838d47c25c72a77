#include "ui/look/MarkedText.h"

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

QString markedText(const QString& text, const std::vector<TextRange>& ranges, const QColor& color) {
    const QString begin = u"<b><font color=\"%1\">"_s.arg(color.name());
    QString marked;
    qsizetype done = 0;
    const auto append = [&](qsizetype until) {
        marked += text.sliced(done, until - done).toHtmlEscaped();
        done = until;
    };
    for (const TextRange& range : ranges) {
        append(std::clamp(range.start, done, text.size()));
        marked += begin;
        append(std::clamp(range.start + range.length, done, text.size()));
        marked += "</font></b>"_L1;
    }
    append(text.size());
    return marked.replace(u'\n', "<br>"_L1);
}

} // namespace guide
