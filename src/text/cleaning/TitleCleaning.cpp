#include "text/cleaning/Capitalisation.h"
#include "text/cleaning/FeedTextCleaning.h"
#include "text/cleaning/TextPatterns.h"
#include "text/search/FoldTable.h"

#include <array>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// Titles that contain a comma.
constexpr std::array<QStringView, 6> kProtectedTitles{
    u"Tri, dva, jedan - kuhaj", u"Gem, set, meč", u"Lud, zbunjen, normalan",
    u"Draga, smanjili smo se",  u"2,4 djeteta",   u"Zvonili ste, milorde?",
};

QString withoutBracketedParts(const QString& text) {
    return withoutBrackets(withoutParentheses(text));
}

bool isInCapitals(QStringView text) {
    bool upper = false;
    for (qsizetype i = 0; i < text.size();) {
        const char32_t character = takeCodePoint(text, i);
        if (QChar::isLower(character)) {
            return false;
        }
        upper = upper || QChar::isUpper(character);
    }
    return upper;
}

} // namespace

QString showTitle(const QString& text, const QLocale& locale) {
    for (const QStringView title : kProtectedTitles) {
        if (text.startsWith(title)) {
            return title.toString();
        }
    }
    QString title = withoutBracketedParts(text);
    if (const qsizetype comma = title.indexOf(u','); comma >= 0) {
        title.truncate(comma);
    }
    return isInCapitals(title) ? capitalizedWords(title, locale) : title;
}

std::optional<QString> showInstantDescription(const QString& text) {
    for (const QStringView title : kProtectedTitles) {
        if (title.size() + 2 < text.size() && text.startsWith(title)) {
            return text.mid(title.size() + 2);
        }
    }
    if (!text.contains(u',')) {
        return std::nullopt;
    }
    const qsizetype comma = withoutBracketedParts(text).indexOf(", "_L1);
    if (comma < 0) {
        return std::nullopt;
    }
    // The length is taken from the shorter text and applied to the whole one: removed parts before the comma
    // make the end of the title begin later.
    return text.mid(comma + 2);
}

bool hasProductionNote(const QString& text) {
    const std::optional<QString> tail = showInstantDescription(text);
    return tail && tail->contains(u'(') && tail->contains(u'/') && tail->contains(u')');
}

bool isRepeatMarked(const QString& text) {
    return text.contains("(R)"_L1) || text.contains("[Repris]"_L1);
}

} // namespace guide
