#pragma once

#include "text/ShowClassifierWords.h"
#include "text/TVListingsCategory.h"

#include <QList>
#include <QString>

#include <array>
#include <map>
#include <optional>
#include <vector>

// The classifier as one would write it with plain searches, one a word: what the real one is compared with.

namespace guide {

/// A text as its base letters, case folded, each with the stretch of the text that it comes from.
struct NaiveFold {
    explicit NaiveFold(const QString& of)
        : text(of) {
        for (qsizetype i = 0; i < text.size();) {
            const bool isPair =
                i + 1 < text.size() && text[i].isHighSurrogate() && text[i + 1].isLowSurrogate();
            const qsizetype size = isPair ? 2 : 1;
            for (const char32_t part : text.mid(i, size).normalized(QString::NormalizationForm_D).toUcs4()) {
                if (!QChar::isMark(part)) {
                    letters.push_back(QChar::toCaseFolded(part));
                    begins.push_back(i);
                }
            }
            i += size;
        }
        begins.push_back(text.size());
    }

    /// Where the word first occurs.
    std::size_t find(const QString& word) const {
        static std::map<QString, std::u32string> words;
        auto known = words.find(word);
        if (known == words.end()) {
            known = words.emplace(word, NaiveFold(word).letters).first;
        }
        return known->second.empty() ? std::u32string::npos : letters.find(known->second);
    }

    QString text;
    std::u32string letters;
    /// With one more, the end of the text.
    std::vector<qsizetype> begins;
};

inline bool naiveMatchWord(const NaiveFold& folded, const QString& word) {
    const std::size_t at = folded.find(word);
    if (at == std::u32string::npos) {
        return false;
    }
    // Marks are dropped, so the folded neighbours are those that count.
    if (at > 0 && QChar::isLetter(folded.letters[at - 1])) {
        return false;
    }
    const std::size_t end = at + NaiveFold(word).letters.size();
    if (end == folded.letters.size()) {
        return true;
    }
    const QChar behind = folded.text[folded.begins[end]];
    return behind.unicode() < 0x80 && !behind.isLetter();
}

inline TVListingsCategory naiveCategories(const std::optional<QString>& sourceId,
                                          const std::optional<QString>& instantDetails1,
                                          const std::optional<QString>& identificator,
                                          const std::optional<QString>& instantDescription1) {
    constexpr TVListingsCategory kSeries = TVListingsCategorySeries;
    constexpr TVListingsCategory kSports = TVListingsCategorySports;
    constexpr TVListingsCategory kShow = TVListingsCategoryEntertainment;
    constexpr TVListingsCategory kChildren = TVListingsCategoryForChildren;
    constexpr TVListingsCategory kFilm = TVListingsCategoryAllFilm;
    constexpr TVListingsCategory kDocumentaries = TVListingsCategoryDocumentaries;

    TVListingsCategory result = 0;
    if (sourceId && !sourceId->isEmpty() && sourceId->size() < 5 && sourceId->at(0) >= u'0' &&
        sourceId->at(0) <= u'9') {
        static const std::map<TVListingsCategory, std::vector<int>> kChannels{
            {kChildren, {41, 77}},
            {kSports, {36, 37, 58, 94, 98, 102, 161, 211}},
            {TVListingsCategoryMusic, {22}},
            {kShow, {63}},
            {kDocumentaries, {14, 65, 66, 83, 85, 141, 174, 182}},
            {kSeries, {89}}};
        for (const auto& [bits, numbers] : kChannels) {
            for (const int number : numbers) {
                result |= number == std::atoi(sourceId->toUtf8().constData()) ? bits : 0;
            }
        }
    }

    std::vector<NaiveFold> texts;
    std::vector<bool> isTitle;
    for (const auto* text : {&instantDetails1, &identificator, &instantDescription1}) {
        if (*text && !(*text)->isEmpty()) {
            texts.emplace_back(**text);
            isTitle.push_back(text == &identificator);
        }
    }
    const auto word = [](const NaiveFold& text, const char16_t* wanted) {
        return naiveMatchWord(text, QString::fromUtf16(wanted));
    };
    for (const NaiveFold& text : texts) {
        for (const ClassifierGroup& group : classifierGroups()) {
            bool matches =
                group.substring && text.find(QString::fromUtf16(group.substring)) != std::u32string::npos;
            for (const char16_t* each : group.words) {
                matches = matches || word(text, each);
            }
            matches =
                matches || (group.conditional && word(text, group.conditional) && !word(text, group.unless));
            if (matches) {
                result &= ~group.clears;
                result |= group.adds;
            }
        }
    }

    const NaiveFold title(identificator.value_or(QString()));
    if (word(title, u"kad lišće pada")) {
        result = (result & ~(kFilm | kSeries)) | kSeries;
    }
    if (word(title, u"kućni ljubimci")) {
        result &= ~kFilm;
    }
    if ((result & 0x1ff09) != 0) {
        for (const NaiveFold& text : texts) {
            result &= word(text, u"south park") ? ~kChildren : ~0u;
            result &= word(text, u"reportaža") ? ~kFilm : ~0u;
        }
    }
    if ((result & 0x1ff03) == 0) {
        for (const NaiveFold& text : texts) {
            result |= word(text, u"priča") ? kChildren : 0;
        }
    }
    if ((result & 0x1ff03) == 0) {
        for (std::size_t i = 0; i < texts.size(); ++i) {
            if (!isTitle[i] && word(texts[i], u"f.")) {
                result |= TVListingsCategoryMovies;
                break;
            }
            if (word(texts[i], u"s.") || word(texts[i], u"s,")) {
                result |= kSeries;
                break;
            }
        }
    }

    struct Rule {
        TVListingsCategory has;
        TVListingsCategory anyOf;
        TVListingsCategory clear;
    };
    for (const Rule& rule :
         {Rule{kSeries, TVListingsCategoryCrime, TVListingsCategoryCrime},
          Rule{kSeries, TVListingsCategoryDramas, TVListingsCategoryDramas},
          Rule{kSeries, TVListingsCategoryComedies, TVListingsCategoryComedies},
          Rule{kSeries, kSports, kSeries}, Rule{kSports, kFilm, kSports}, Rule{kSeries, kShow, kShow},
          Rule{kShow, kFilm, kShow}, Rule{kSeries, kFilm, kFilm}, Rule{kDocumentaries, kFilm, kFilm},
          Rule{kChildren, kFilm, kFilm}, Rule{kSeries, kChildren, kSeries}, Rule{kSports, kChildren, kSports},
          Rule{kSeries, kDocumentaries, kSeries},
          Rule{TVListingsCategorySF, TVListingsCategoryFantasy, TVListingsCategoryFantasy},
          Rule{kSports, kShow, kShow}}) {
        if ((result & rule.has) != 0 && (result & rule.anyOf) != 0) {
            result &= ~rule.clear;
        }
    }
    return result;
}

} // namespace guide
