#include "text/cleaning/FeedTextCleaning.h"
#include "text/cleaning/TextLog.h"
#include "text/cleaning/TextPatterns.h"

#include <array>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// Characters that may remain in front of a subtitle when its bracket is removed.
constexpr std::array kPrefixes{" . "_L1, ", "_L1, " "_L1, ". "_L1};

/// Removes the character from both ends and returns how many were removed.
int trimSign(QStringView& text, QChar sign) {
    const qsizetype before = text.size();
    while (text.startsWith(sign)) {
        text = text.sliced(1);
    }
    while (text.endsWith(sign)) {
        text.chop(1);
    }
    return static_cast<int>(before - text.size());
}

} // namespace

std::optional<TextRange> bracketRange(QStringView text) {
    for (qsizetype start = text.indexOf(u'['); start >= 0; start = text.indexOf(u'[', start)) {
        qsizetype lineEnd = start;
        while (lineEnd < text.size() && !isLineEnd(text[lineEnd])) {
            ++lineEnd;
        }
        const qsizetype closing = text.sliced(start, lineEnd - start).lastIndexOf(u']');
        if (closing >= 0) {
            return TextRange{start, closing + 1};
        }
        start = lineEnd;
    }
    return std::nullopt;
}

QString applySubtitleBracket(QString& subtitle, qsizetype start, qsizetype size) {
    const QString matched = subtitle.mid(start, size);
    subtitle.remove(start, size);
    if (subtitle.startsWith(". ("_L1) && subtitle.endsWith(u')')) {
        subtitle = subtitle.mid(3, subtitle.size() - 4);
    }
    for (const QLatin1StringView prefix : kPrefixes) {
        if (subtitle.startsWith(prefix)) {
            subtitle.remove(0, prefix.size());
            break;
        }
    }
    return matched;
}

FinishedSubtitle finishSubtitle(const std::optional<QString>& subtitle, bool recognised) {
    if (!subtitle) {
        return {};
    }
    const QStringView firstForm = trimmedSpace(*subtitle);
    QStringView working = firstForm;
    const int opening = trimSign(working, u'(');
    working = trimmedSpace(working);
    int closing = 0;
    if (opening >= 1) {
        closing = trimSign(working, u')');
        working = trimmedSpace(working);
    }
    if (working.size() == 1 && (working[0] < u'0' || working[0] > u'9')) {
        working = {};
    }
    qCDebug(textLog, "s1=%s s2=%s subtitle1=%s p1=%d p2=%d", qUtf8Printable(*subtitle),
            working.toUtf8().constData(), firstForm.toUtf8().constData(), opening, closing);
    const bool unwrapped = opening == closing && !working.contains(u'(') && !working.contains(u')');
    const QStringView form = unwrapped ? working : firstForm;
    QString finished = form.size() == subtitle->size() ? *subtitle : form.toString();
    if (recognised) {
        return {std::nullopt, std::move(finished)};
    }
    if (trimmedSpace(finished).isEmpty()) {
        return {};
    }
    return {std::move(finished), std::nullopt};
}

} // namespace guide
