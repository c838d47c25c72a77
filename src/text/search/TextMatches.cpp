#include "text/search/TextMatches.h"

#include "text/search/FoldTable.h"
#include "text/search/FoldedText.h"

namespace guide {

std::vector<TextRange> textMatches(QStringView text, QStringView foldedPattern) {
    std::vector<TextRange> matches;
    const QString folded = foldedText(text);
    qsizetype found = foldedPattern.isEmpty() ? -1 : folded.indexOf(foldedPattern);
    if (found < 0) {
        return matches;
    }
    // For each folded unit the character that it comes from. Marks fold to nothing, so that the end of a
    // match is where the next folded character begins.
    const FoldTable& table = FoldTable::of(FoldMode::Lookalikes);
    std::vector<qsizetype> origins;
    origins.reserve(static_cast<std::size_t>(folded.size()) + 1);
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype begin = at;
        const qsizetype units = table.fold(takeCodePoint(text, at)).size();
        origins.insert(origins.end(), static_cast<std::size_t>(units), begin);
    }
    origins.push_back(text.size());
    for (; found >= 0; found = folded.indexOf(foldedPattern, found + foldedPattern.size())) {
        const qsizetype begin = origins[static_cast<std::size_t>(found)];
        auto end = static_cast<std::size_t>(found + foldedPattern.size());
        // A match that ends within a character that folds to several units covers it whole.
        while (origins[end] == origins[end - 1]) {
            ++end;
        }
        if (matches.empty() || begin >= matches.back().start + matches.back().length) {
            matches.push_back({begin, origins[end] - begin});
        }
    }
    return matches;
}

} // namespace guide
