#include "text/FeedTextCleaning.h"
#include "text/FoldTable.h"
#include "text/TextPatterns.h"

#include <array>
#include <memory>
#include <unicode/ucasemap.h>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// Titles with a comma of their own.
constexpr std::array<QStringView, 6> kProtectedTitles{
    u"Tri, dva, jedan - kuhaj", u"Gem, set, meč", u"Lud, zbunjen, normalan",
    u"Draga, smanjili smo se",  u"2,4 djeteta",   u"Zvonili ste, milorde?",
};

QString withoutStretches(const QString& text) {
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

/// ICU's case rules of a language with the words of its texts: dear to open, so a thread keeps its own.
class TitleCase {
  public:
    explicit TitleCase(const QByteArray& localeName)
        : m_localeName(localeName) {
        UErrorCode error = U_ZERO_ERROR;
        m_map.reset(ucasemap_open(localeName.constData(), 0, &error));
    }

    const QByteArray& localeName() const { return m_localeName; }

    QString apply(const QString& text) {
        if (!m_map) {
            return text;
        }
        // No character grows to more than three when its case changes.
        QString result(text.size() * 3, Qt::Uninitialized);
        UErrorCode error = U_ZERO_ERROR;
        const std::int32_t size = ucasemap_toTitle(
            m_map.get(), reinterpret_cast<UChar*>(result.data()), static_cast<std::int32_t>(result.size()),
            reinterpret_cast<const UChar*>(text.utf16()), static_cast<std::int32_t>(text.size()), &error);
        if (U_FAILURE(error)) {
            return text;
        }
        result.truncate(size);
        return result;
    }

  private:
    struct Close {
        void operator()(UCaseMap* map) const { ucasemap_close(map); }
    };

    QByteArray m_localeName;
    std::unique_ptr<UCaseMap, Close> m_map;
};

/// Each word with an initial capital, by Unicode's words and the rules of the language.
QString capitalized(const QString& text, const QLocale& locale) {
    const QByteArray localeName = locale.name().toLatin1();
    thread_local std::optional<TitleCase> titleCase;
    if (!titleCase || titleCase->localeName() != localeName) {
        titleCase.emplace(localeName);
    }
    return titleCase->apply(text);
}

} // namespace

QString showTitle(const QString& text, const QLocale& locale) {
    for (const QStringView title : kProtectedTitles) {
        if (text.startsWith(title)) {
            return title.toString();
        }
    }
    QString title = withoutStretches(text);
    if (const qsizetype comma = title.indexOf(u','); comma >= 0) {
        title.truncate(comma);
    }
    return isInCapitals(title) ? capitalized(title, locale) : title;
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
    const qsizetype comma = withoutStretches(text).indexOf(", "_L1);
    if (comma < 0) {
        return std::nullopt;
    }
    // Counted in the shorter text and applied to the whole one: stretches before the comma make the tail
    // begin later.
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
