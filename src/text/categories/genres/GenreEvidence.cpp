#include "text/categories/genres/GenreEvidence.h"

#include "text/categories/CategoryMapping.h"
#include "text/categories/genres/GenreWords.h"

#include <QStringTokenizer>

#include <algorithm>

namespace guide::genres {

namespace {

/// Of titles, subtitles and genres: what is behind is not read.
constexpr qsizetype kLongestText = 400;

/// Words with which texts are read, and those of channel names.
const GenreWords& textWords() {
    static const GenreWords kWords(kLead | kText | kTitle | kTitleStart | kWholeTitle | kShowName);
    return kWords;
}

const GenreWords& nameWords() {
    static const GenreWords kWords(kName | kText);
    return kWords;
}

/// A genre without what stands around it: "Documentary (60')".
QStringView trimmedName(QStringView name) {
    if (name.endsWith(u')')) {
        const qsizetype bracket = name.lastIndexOf(u'(');
        if (bracket > 0) {
            name = name.first(bracket);
        }
    }
    while (!name.isEmpty() && (name.back() == u'.' || name.back() == u',')) {
        name.chop(1);
    }
    return name.trimmed();
}

bool isNameSeparator(QStringView text, qsizetype at) {
    const QChar unit = text[at];
    if (unit == u'/' || unit == u',' || unit == u';' || unit == u'|') {
        return true;
    }
    return (unit == u'-' || unit == u'&' || unit == u'+') && at > 0 && at + 1 < text.size() &&
           text[at - 1] == u' ' && text[at + 1] == u' ';
}

/// Calls `use(part)` for the parts of a list of genres.
template <class Use>
void forEachName(QStringView text, Use&& use) {
    qsizetype begin = 0;
    for (qsizetype at = 0; at <= text.size(); ++at) {
        if (at == text.size() || isNameSeparator(text, at)) {
            const QStringView part = trimmedName(text.sliced(begin, at - begin));
            if (!part.isEmpty()) {
                use(part);
            }
            begin = at + 1;
        }
    }
}

bool endsSentence(QStringView text, qsizetype at) {
    const QChar unit = text[at];
    return (unit == u'.' || unit == u'!' || unit == u'?') &&
           (at + 1 == text.size() || text[at + 1].isSpace());
}

bool hasSentenceEnd(QStringView text, qsizetype begin, qsizetype end) {
    for (qsizetype at = begin; at < end; ++at) {
        if (endsSentence(text, at)) {
            return true;
        }
    }
    return false;
}

/// Whether a year follows, before the sentence ends.
bool isBeforeYear(QStringView text, qsizetype at) {
    constexpr qsizetype kFarthest = 30;
    const qsizetype end = std::min(text.size(), at + kFarthest);
    for (; at + 3 < end && !endsSentence(text, at); ++at) {
        const bool isCentury =
            (text[at] == u'1' && text[at + 1] == u'9') || (text[at] == u'2' && text[at + 1] == u'0');
        if (isCentury && text[at + 2].isDigit() && text[at + 3].isDigit() &&
            (at == 0 || !text[at - 1].isLetterOrNumber()) &&
            (at + 4 == text.size() || !text[at + 4].isLetterOrNumber())) {
            return true;
        }
    }
    return false;
}

qsizetype wordCount(QStringView text) {
    qsizetype count = 0;
    bool isInWord = false;
    for (const QChar unit : text) {
        const bool isWord = unit.isLetterOrNumber();
        count += isWord && !isInWord;
        isInWord = isWord || (isInWord && !unit.isSpace());
    }
    return count;
}

/// Whether a nationality or country stands at the word: "French comedy", "Comedy, France".
bool isNextToNation(QStringView text, const std::vector<Hit>& hits, const Hit& word) {
    constexpr qsizetype kFarthest = 24;
    return std::ranges::any_of(hits, [&](const Hit& hit) {
        if ((hit.row->adds & kNation) == 0) {
            return false;
        }
        if (hit.end <= word.begin) {
            return word.begin - hit.end <= kFarthest && !hasSentenceEnd(text, hit.end, word.begin);
        }
        return hit.begin >= word.end && hit.begin - word.end <= kFarthest / 2 &&
               !hasSentenceEnd(text, word.end, hit.begin);
    });
}

/// Whether the word defines what the text is about, and is not just mentioned.
bool isDefinition(QStringView text, const std::vector<Hit>& hits, const Hit& word, bool isSubtitle) {
    constexpr qsizetype kShortSentence = 3;
    if (isBeforeYear(text, word.end) || isNextToNation(text, hits, word)) {
        return true;
    }
    if (isSubtitle) {
        // Others are titles of episodes.
        return wordCount(text.first(word.begin)) <= 1 && wordCount(text.sliced(word.end)) == 0;
    }
    if (wordCount(text.first(word.begin)) <= 2) {
        return true;
    }
    qsizetype begin = word.begin;
    while (begin > 0 && !endsSentence(text, begin - 1)) {
        --begin;
    }
    qsizetype end = word.end;
    while (end < text.size() && !endsSentence(text, end)) {
        ++end;
    }
    return wordCount(text.sliced(begin, end - begin)) <= kShortSentence;
}

/// Adds what the words of a subtitle or of a part of the description say.
void addProse(QStringView text, QStringView language, bool isSubtitle, Evidence& evidence) {
    const std::vector<Hit> hits = textWords().find(text, language, kLead | kText);
    for (const Hit& hit : hits) {
        if ((hit.row->adds & kNation) == 0 &&
            ((hit.row->places & kText) || isDefinition(text, hits, hit, isSubtitle))) {
            evidence.add(hit.row->adds);
        }
    }
}

/// Whether at most an episode or a subtitle follows the name of a show.
bool isNameUntil(QStringView title, qsizetype end) {
    while (end < title.size() && title[end].isSpace()) {
        ++end;
    }
    if (end < title.size() && (title[end] == u'\'' || title[end] == u'’' || title[end] == u',')) {
        return false;
    }
    QStringView word = title.sliced(end);
    qsizetype size = 0;
    while (size < word.size() && word[size].isLetterOrNumber()) {
        ++size;
    }
    word.truncate(size);
    return std::ranges::all_of(word, [](QChar unit) {
        return unit.isDigit() || unit == u'I' || unit == u'V' || unit == u'X' || unit == u'L';
    });
}

/// Whether the title begins at the position, or what follows its first part does.
bool isTitleStart(QStringView title, qsizetype begin) {
    while (begin > 0 && title[begin - 1].isSpace()) {
        --begin;
    }
    return begin == 0 || QStringView(u":-–|⋗>(").contains(title[begin - 1]);
}

/// Whether the words from the position to the end are what a title is explained with: "Rex - crime series".
bool isTitleTail(QStringView title, const Hit& hit) {
    constexpr qsizetype kMostWords = 4;
    const qsizetype dash = title.lastIndexOf(u" - ");
    const qsizetype begin = std::max(dash < 0 ? 0 : dash + 3, title.lastIndexOf(u'(') + 1);
    return begin > 0 && hit.begin >= begin && wordCount(title.sliced(begin)) <= kMostWords &&
           wordCount(title.sliced(hit.end)) == 0;
}

} // namespace

void Evidence::add(Bits bits) {
    Bits& level = bits & kVague ? vague : bits & kYields ? yielding : strong;
    level |= bits & ~(kVague | kYields | kNation);
}

Bits Evidence::said() const {
    if (strong & (kKinds | kNothing)) {
        return strong;
    }
    Bits kinds = strong & kStoryGenres ? yielding & ~kEntertainment : yielding;
    // The more specific of the generic words.
    if (kinds & (kKinds & ~(kEntertainment | kSeries))) {
        kinds &= ~(kEntertainment | kSeries);
    } else if (kinds & kEntertainment) {
        kinds &= ~kSeries;
    }
    return strong | kinds;
}

void addCategory(const QString& category, QStringView language, Evidence& evidence) {
    if (category.size() > kLongestText) {
        return;
    }
    const QStringView whole = trimmedName(category);
    for (const QStringView name : {QStringView(category), whole}) {
        if (const Bits bits = bitsOfName(name, language)) {
            evidence.add(bits);
            return;
        }
    }
    bool isKnown = false;
    forEachName(whole, [&](QStringView part) {
        if (const Bits bits = bitsOfName(part, language)) {
            evidence.add(bits);
            isKnown = true;
            return;
        }
        for (const Hit& hit : nameWords().find(part, {}, kName | kText)) {
            evidence.add(hit.row->adds);
            isKnown = isKnown || (hit.row->adds & ~kNation) != 0;
        }
    });
    if (!isKnown) {
        const TVListingsCategory mapped = mapCategoryAttribute(category) | mapCategoryText(category);
        evidence.strong |= mapped;
    }
}

void addSubtitleGenres(QStringView subtitle, QStringView language, Evidence& evidence) {
    constexpr qsizetype kLongestGenres = 60;
    for (QStringView part : subtitle.first(std::min(subtitle.size(), kLongestText)).tokenize(u'║')) {
        part = trimmedName(part.trimmed());
        if (part.isEmpty() || part.size() > kLongestGenres) {
            continue;
        }
        Evidence found;
        if (const Bits bits = bitsOfName(part, language)) {
            found.add(bits);
        } else {
            bool isAllKnown = true;
            forEachName(part, [&](QStringView name) {
                const Bits each = isAllKnown ? bitsOfName(name, language) : 0;
                isAllKnown = each != 0;
                found.add(each);
            });
            if (!isAllKnown) {
                continue;
            }
        }
        evidence.strong |= found.strong;
        evidence.yielding |= found.yielding;
        evidence.vague |= found.vague;
    }
}

void addTitle(QStringView title, QStringView language, Evidence& evidence) {
    constexpr std::uint32_t kPlaces = kTitle | kText | kTitleStart | kWholeTitle | kShowName | kLead;
    title.truncate(std::min(title.size(), kLongestText));
    const std::vector<Hit> hits = textWords().find(title, language, kPlaces);
    for (const Hit& hit : hits) {
        const std::uint32_t places = hit.row->places;
        const bool counts =
            (places & (kTitle | kText)) || ((places & kTitleStart) && isTitleStart(title, hit.begin)) ||
            ((places & kShowName) && isTitleStart(title, hit.begin) && isNameUntil(title, hit.end)) ||
            ((places & kWholeTitle) && wordCount(title.first(hit.begin)) == 0 &&
             isNameUntil(title, hit.end) && wordCount(title.sliced(hit.end)) <= 1) ||
            ((places & kLead) && (isTitleTail(title, hit) || isBeforeYear(title, hit.end)));
        if (counts) {
            evidence.add(hit.row->adds);
        }
    }
}

void addSubtitle(QStringView subtitle, QStringView language, Evidence& evidence) {
    addProse(subtitle.first(std::min(subtitle.size(), kLongestText)), language, true, evidence);
}

void addDescription(QStringView description, QStringView language, Evidence& evidence) {
    constexpr qsizetype kHead = 240;
    constexpr qsizetype kTail = 120;
    addProse(description.first(std::min(kHead, description.size())), language, false, evidence);
    if (evidence.said() == 0 && description.size() > kHead + kTail) {
        addProse(description.last(kTail), language, false, evidence);
    }
}

} // namespace guide::genres
