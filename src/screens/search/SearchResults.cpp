#include "screens/search/SearchResults.h"

#include "text/search/FoldedText.h"

#include <algorithm>

namespace guide {

namespace {

constexpr qsizetype kBefore = 30;
constexpr qsizetype kBehind = 60;

void mark(ShowRow& row, const ShowItem& show, const QString& foldedPattern) {
    row.titleMatches = textMatches(row.title, foldedPattern);
    row.detailsMatches = textMatches(row.details, foldedPattern);
    if (!row.titleMatches.empty() || !row.detailsMatches.empty()) {
        return;
    }
    const ShowFacts noFacts;
    const TVEntrySupplementalData noDetails;
    const ShowFacts& facts = show.entry()->facts() ? *show.entry()->facts() : noFacts;
    const TVEntrySupplementalData& details = show.details() ? *show.details() : noDetails;
    for (const std::optional<QString>* text :
         {&facts.originalTitle, &details.description, &details.episodeDescription, &details.details,
          &details.directedBy, &details.roles}) {
        const auto matches = *text ? textMatches(**text, foldedPattern) : std::vector<TextRange>();
        if (!matches.empty()) {
            row.details +=
                (row.details.isEmpty() ? QString() : QString(u'\n')) + excerpt(**text, matches.front());
            row.detailsMatches = textMatches(row.details, foldedPattern);
            return;
        }
    }
}

} // namespace

QString excerpt(const QString& text, const TextRange& around) {
    qsizetype begin = std::max<qsizetype>(0, around.start - kBefore);
    qsizetype end = std::min(text.size(), around.start + around.length + kBehind);
    // At the edge of a word where there is one.
    while (begin > 0 && begin < around.start && !text[begin - 1].isSpace()) {
        ++begin;
    }
    while (end < text.size() && end > around.start + around.length && !text[end].isSpace()) {
        --end;
    }
    QString part = text.sliced(begin, end - begin).simplified();
    if (begin > 0) {
        part.prepend(u"… ");
    }
    if (end < text.size()) {
        part.append(u" …");
    }
    return part;
}

SearchResults searchResults(const QString& pattern, std::span<const ShowItem> shows,
                            const CompoundRows& rows) {
    const QString folded = foldedText(pattern);
    SearchResults results{pattern, rows.sectionsOfAll(shows)};
    for (std::size_t day = 0; day < results.found.days.size(); ++day) {
        const ShowItems& ofDay = results.found.days[day].shows;
        for (std::size_t place = 0; place < ofDay.size(); ++place) {
            Row& row = results.found.sections[day].rows[place];
            mark(std::get<ShowRow>(row.content), ofDay[place], folded);
        }
    }
    return results;
}

FirstResults firstResults(const QString& pattern, const ShowItems& shows, std::size_t atMost,
                          std::shared_ptr<const CompoundRows> rows) {
    const std::size_t count = std::min(atMost, shows.size());
    return {searchResults(pattern, std::span(shows).first(count), *rows), shows, count, std::move(rows)};
}

} // namespace guide
