#include "text/Capitalisation.h"

#include "text/FoldTable.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <unicode/ucasemap.h>
#include <vector>

namespace guide {

namespace {

/// Languages that write some Latin letters in a case of their own.
bool hasOwnLatinRules(QLocale::Language language) {
    return language == QLocale::Turkish || language == QLocale::Azerbaijani ||
           language == QLocale::Lithuanian || language == QLocale::Dutch;
}

/// The Latin letters that change their case as all languages but those do, each into one letter, and the
/// punctuation that stands around words and parts them.
class PlainUnits {
  public:
    PlainUnits() {
        constexpr QStringView kOthers = u"×÷ßİıĸŉſ";
        for (char16_t unit = 0; unit < kUnits; ++unit) {
            const QChar letter(unit);
            m_upper[unit] = letter.toUpper().unicode();
            m_lower[unit] = letter.toLower().unicode();
            m_isLetter[unit] =
                letter.isLetter() && !kOthers.contains(letter) && (unit < 0x80 || unit >= u'À');
            m_opens[unit] = QStringView(u"\"'(").contains(letter);
            m_closes[unit] = QStringView(u"\"'(),.:;!? ").contains(letter);
        }
    }

    /// Writes the word, which has no blank but at its end, to `out`; false when it takes the library.
    bool write(QStringView word, char16_t* out) const {
        const char16_t* at = word.utf16();
        const char16_t* const end = at + word.size();
        while (at != end && is(m_opens, *at)) {
            *out++ = *at++;
        }
        if (at != end && is(m_isLetter, *at)) {
            *out++ = m_upper[*at++];
        }
        while (at != end && is(m_isLetter, *at)) {
            *out++ = m_lower[*at++];
        }
        while (at != end && is(m_closes, *at)) {
            *out++ = *at++;
        }
        return at == end;
    }

  private:
    static constexpr std::size_t kUnits = 0x180;
    using Units = std::array<char16_t, kUnits>;
    using Flags = std::array<bool, kUnits>;

    static bool is(const Flags& flags, char16_t unit) { return unit < kUnits && flags[unit]; }

    Units m_upper{};
    Units m_lower{};
    Flags m_isLetter{};
    Flags m_opens{};
    Flags m_closes{};
};

/// ICU's case rules of a language with the words of its texts: dear to open, so a thread keeps its own. What
/// ICU would make of most words is known without it.
class TitleCase {
  public:
    explicit TitleCase(const QLocale& locale)
        : m_locale(locale)
        , m_knowsPlainWords(!hasOwnLatinRules(locale.language())) {
        UErrorCode error = U_ZERO_ERROR;
        m_map.reset(ucasemap_open(locale.name().toLatin1().constData(), 0, &error));
    }

    const QLocale& locale() const { return m_locale; }

    QString apply(const QString& text) {
        // No character grows to more than three when its case changes.
        m_scratch.resize(std::max(m_scratch.size(), 3 * static_cast<std::size_t>(text.size())));
        char16_t* out = m_scratch.data();
        // A blank ends a word whatever stands around it, and the case of one word is no other's affair.
        for (qsizetype start = 0; start < text.size();) {
            qsizetype end = start;
            while (end < text.size() && text[end++] != u' ') {
            }
            const QStringView word = QStringView(text).sliced(start, end - start);
            if (m_knowsPlainWords && m_plain.write(word, out)) {
                out += word.size();
            } else {
                out += writeByLibrary(word, out, m_scratch.data() + m_scratch.size() - out);
            }
            start = end;
        }
        return QStringView(m_scratch.data(), out).toString();
    }

  private:
    std::ptrdiff_t writeByLibrary(QStringView word, char16_t* out, std::ptrdiff_t room) {
        UErrorCode error = U_ZERO_ERROR;
        const std::int32_t size =
            m_map ? ucasemap_toTitle(m_map.get(), out, static_cast<std::int32_t>(room), word.utf16(),
                                     static_cast<std::int32_t>(word.size()), &error)
                  : 0;
        if (!m_map || U_FAILURE(error)) {
            return std::copy(word.utf16(), word.utf16() + word.size(), out) - out;
        }
        return size;
    }

    struct Close {
        void operator()(UCaseMap* map) const { ucasemap_close(map); }
    };

    QLocale m_locale;
    bool m_knowsPlainWords;
    PlainUnits m_plain;
    std::vector<char16_t> m_scratch;
    std::unique_ptr<UCaseMap, Close> m_map;
};

} // namespace

QString capitalizedWords(const QString& text, const QLocale& locale) {
    thread_local std::optional<TitleCase> titleCase;
    if (!titleCase || titleCase->locale() != locale) {
        titleCase.emplace(locale);
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
