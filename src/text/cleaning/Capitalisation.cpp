#include "text/cleaning/Capitalisation.h"

#include "text/search/FoldTable.h"

#include <QByteArray>

#include <memory>
#include <optional>
#include <unicode/ucasemap.h>

namespace guide {

namespace {

/// ICU's case map and word iterator for a language. They are expensive to open, so each thread keeps its own.
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
        // A change of case at most triples the length.
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

} // namespace

QString capitalizedWords(const QString& text, const QLocale& locale) {
    const QByteArray localeName = locale.name().toLatin1();
    thread_local std::optional<TitleCase> titleCase;
    if (!titleCase || titleCase->localeName() != localeName) {
        titleCase.emplace(localeName);
    }
    return titleCase->apply(text);
}

QString sentenceCase(const QString& text, const QLocale& locale) {
    qsizetype first = 0;
    if (!text.isEmpty()) {
        takeCodePoint(text, first);
    }
    return locale.toUpper(text.first(first)) + locale.toLower(text.sliced(first));
}

} // namespace guide
