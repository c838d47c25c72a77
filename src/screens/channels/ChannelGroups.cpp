#include "screens/channels/ChannelGroups.h"

#include "screens/Localized.h"
#include "text/display/LanguageName.h"
#include "text/display/Transliteration.h"
#include "text/search/FoldedText.h"

#include <QCollator>
#include <QHash>
#include <QStringMatcher>

#include <algorithm>
#include <numeric>
#include <optional>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

QString firstCharacter(const QString& text) {
    return text.left(text.size() > 1 && text[0].isHighSurrogate() ? 2 : 1);
}

QString indexTitleOf(const QString& title, const QLocale& locale) {
    const QString composed = firstCharacter(title.normalized(QString::NormalizationForm_C));
    return firstCharacter(locale.toUpper(composed));
}

/// The rank of each index title in the order of the collator. Letters that the language treats as variants of
/// each other get ranks side by side.
QHash<QString, int> ranksOf(const std::vector<ChannelGroups::Channel>& channels, const QCollator& collator) {
    QHash<QString, int> ranks;
    for (const ChannelGroups::Channel& channel : channels) {
        ranks.insert(channel.indexTitle, 0);
    }
    QStringList titles = ranks.keys();
    std::ranges::sort(titles, [&collator](const QString& a, const QString& b) {
        const int order = collator.compare(a, b);
        return order != 0 ? order < 0 : a < b;
    });
    for (int rank = 0; rank < titles.size(); ++rank) {
        ranks[titles[rank]] = rank;
    }
    return ranks;
}

template <class Value>
std::vector<Value> permuted(std::vector<Value> values, const std::vector<std::size_t>& order) {
    std::vector<Value> result;
    result.reserve(values.size());
    for (const std::size_t place : order) {
        result.push_back(std::move(values[place]));
    }
    return result;
}

} // namespace

ChannelGroups::ChannelGroups(SharedCatalogueSnapshot catalogue, const Alphabet& alphabet,
                             const QLocale& locale)
    : m_catalogue(std::move(catalogue)) {
    QCollator collator(locale);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);

    const std::size_t count = m_catalogue->channels().size();
    std::vector<QString> languages;
    std::vector<QCollatorSortKey> keys;
    m_channels.reserve(count);
    m_searchTexts.reserve(count);
    languages.reserve(count);
    keys.reserve(count);
    for (const CatalogueChannel& each : m_catalogue->channels()) {
        const QString title = latin2Cyrillic(each.title, each.language, alphabet);
        m_channels.push_back({each.id, title, each.icon, indexTitleOf(title, locale)});
        QString searched = each.title + u'\n' + each.language;
        if (title != each.title) {
            searched += u'\n' + title;
        }
        m_searchTexts.push_back(foldedText(searched));
        languages.push_back(each.language);
        keys.push_back(collator.sortKey(title));
    }

    const QHash<QString, int> ranks = ranksOf(m_channels, collator);
    std::vector<int> rankOf(count);
    for (std::size_t place = 0; place < count; ++place) {
        rankOf[place] = ranks.value(m_channels[place].indexTitle);
    }
    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), 0);
    std::ranges::stable_sort(order, [&](std::size_t a, std::size_t b) {
        return rankOf[a] != rankOf[b] ? rankOf[a] < rankOf[b] : keys[a].compare(keys[b]) < 0;
    });
    m_channels = permuted(std::move(m_channels), order);
    m_searchTexts = permuted(std::move(m_searchTexts), order);
    makeGroups(permuted(std::move(languages), order), locale);
}

void ChannelGroups::makeGroups(const std::vector<QString>& languages, const QLocale& locale) {
    m_groups.push_back({{}, Localized::tr("All channels"), Places(m_channels.size())});
    std::iota(m_groups[0].channels.begin(), m_groups[0].channels.end(), 0);

    QHash<QString, std::size_t> groupOf;
    for (std::size_t place = 0; place < languages.size(); ++place) {
        auto group = groupOf.constFind(languages[place]);
        if (group == groupOf.constEnd()) {
            group = groupOf.insert(languages[place], m_groups.size());
            m_groups.push_back({languages[place], languageName(languages[place], locale), {}});
        }
        m_groups[*group].channels.push_back(place);
    }
    const QCollator collator(locale);
    const QString own = QLocale::languageToCode(locale.language());
    std::sort(m_groups.begin() + 1, m_groups.end(), [&](const Group& a, const Group& b) {
        const bool ownA = a.id.split(u'/').contains(own);
        const bool ownB = b.id.split(u'/').contains(own);
        return ownA != ownB ? ownA : collator.compare(a.title, b.title) < 0;
    });
}

const ChannelGroups::Group& ChannelGroups::group(const QString& id) const {
    const auto found = std::ranges::find(m_groups, id, &Group::id);
    return found == m_groups.end() ? m_groups.front() : *found;
}

ChannelGroups::Places ChannelGroups::matching(const QString& text) const {
    Places places;
    const QString pattern = foldedText(text);
    if (pattern.isEmpty()) {
        return places;
    }
    const QStringMatcher matcher(pattern);
    for (std::size_t place = 0; place < m_searchTexts.size(); ++place) {
        if (matcher.indexIn(m_searchTexts[place]) >= 0) {
            places.push_back(place);
        }
    }
    return places;
}

std::size_t selectedCount(const ChannelGroups& groups, const ChannelGroups::Group& group,
                          const std::unordered_set<ObjectId>& selected) {
    return static_cast<std::size_t>(std::ranges::count_if(
        group.channels, [&](std::size_t place) { return selected.contains(groups.channels()[place].id); }));
}

} // namespace guide
