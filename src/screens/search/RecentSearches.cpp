#include "screens/search/RecentSearches.h"

#include "text/search/FoldedText.h"

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// One text a line.
constexpr auto kKey = "recent_searches"_L1;

void removeSame(QStringList& texts, const QString& text) {
    texts.removeIf([folded = foldedText(text)](const QString& each) { return foldedText(each) == folded; });
}

} // namespace

QStringList RecentSearches::all() const {
    const QString stored = m_userDefaults.stringForKey(kKey).value_or(QString());
    QStringList texts;
    for (const QStringView line : QStringTokenizer(stored, u'\n', Qt::SkipEmptyParts)) {
        if (line.size() <= kLongestText && texts.size() < kMost) {
            texts << line.toString();
        }
    }
    return texts;
}

void RecentSearches::add(const QString& text, const QString& typedBefore) {
    const QString kept = text.simplified();
    if (kept.isEmpty() || kept.size() > kLongestText) {
        return;
    }
    QStringList texts = all();
    if (!typedBefore.isEmpty() && kept.startsWith(typedBefore.simplified(), Qt::CaseInsensitive)) {
        removeSame(texts, typedBefore.simplified());
    }
    removeSame(texts, kept);
    texts.prepend(kept);
    set(texts.first(std::min(texts.size(), kMost)));
}

void RecentSearches::remove(const QString& text) {
    QStringList texts = all();
    removeSame(texts, text);
    set(texts);
}

void RecentSearches::set(const QStringList& texts) {
    if (texts.isEmpty()) {
        m_userDefaults.removeKey(kKey);
    } else {
        m_userDefaults.setString(kKey, texts.join(u'\n'));
    }
}

} // namespace guide
