#include "text/categories/FeedGenres.h"

#include "text/categories/CategoryMapping.h"
#include "text/categories/ShowClassifier.h"
#include "text/categories/genres/GenreWords.h"

#include <QStringTokenizer>

#include <algorithm>

namespace guide {

using namespace genres;

namespace {

using std::chrono::minutes;

constexpr Bits kCategories = TVListingsCategoryAllShows;
/// What tells a story, or might.
constexpr Bits kStories = TVListingsCategoryAllFilm | kSeries | kFiction;
constexpr Bits kStoryGenres = TVListingsCategoryFilmGenres | kFiction;
constexpr Bits kKinds = (kCategories & ~TVListingsCategoryFilmGenres) | kAnimation;

/// What the words of one text, or several that are believed equally, say.
struct Evidence {
    Bits strong = 0;
    Bits yielding = 0;
    Bits vague = 0;

    void add(Bits bits) {
        Bits& level = bits & kVague ? vague : bits & kYields ? yielding : strong;
        level |= bits & ~(kVague | kYields | kNation);
    }

    /// What is said without vague words.
    Bits said() const {
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
};

bool isLongerThan(const ShowText& show, minutes length) {
    return show.length && *show.length > length;
}

bool isShorterThan(const ShowText& show, minutes length) {
    return show.length && *show.length < length;
}

/// Words with which texts are read, and those of channel names.
const GenreWords& textWords() {
    static const GenreWords kWords(kLead | kText | kTitle | kTitleStart | kWholeTitle | kShowName);
    return kWords;
}

const GenreWords& nameWords() {
    static const GenreWords kWords(kName | kText);
    return kWords;
}

const GenreWords& channelWords() {
    static const GenreWords kWords(kChannel | kChannelStart);
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

/// What a category element says: as a whole, by its parts, by their words, or by the tables for other feeds.
void addCategory(const QString& category, QStringView language, Evidence& evidence) {
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

/// Genres that feeds put into subtitles, as a part of their own: "S2E50 ║ Sky Show ║ Kids, Cartoons".
void addSubtitleGenres(QStringView subtitle, QStringView language, Evidence& evidence) {
    constexpr qsizetype kLongestGenres = 60;
    for (QStringView part : subtitle.tokenize(u'║')) {
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

void addTitle(QStringView title, QStringView language, Evidence& evidence) {
    constexpr std::uint32_t kPlaces = kTitle | kText | kTitleStart | kWholeTitle | kShowName | kLead;
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

/// The parts of a description that define a show: its beginning and its last words.
void addDescription(QStringView description, QStringView language, Evidence& evidence) {
    constexpr qsizetype kHead = 240;
    constexpr qsizetype kTail = 120;
    addProse(description.first(std::min(kHead, description.size())), language, false, evidence);
    if (evidence.said() == 0 && description.size() > kHead + kTail) {
        addProse(description.last(kTail), language, false, evidence);
    }
}

/// What the name of the channel says. Successive shows of a feed mostly are on the same channel.
Bits channelTheme(const ShowText& show) {
    struct Known {
        QString channel;
        QString language;
        Bits theme = 0;
    };
    static thread_local Known known;
    if (known.channel == show.channelName && known.language == show.language) {
        return known.theme;
    }
    known = {show.channelName, show.language, 0};
    for (const Hit& hit : channelWords().find(show.channelName, show.language, kChannel | kChannelStart)) {
        if ((hit.row->places & kChannel) || hit.begin == 0) {
            known.theme |= hit.row->adds;
        }
    }
    return known.theme;
}

/// The categories of what was found.
TVListingsCategory settled(const ShowText& show, Bits found) {
    constexpr Bits kTold = kDocumentaries | kNews | kMusic | kSports;
    if (found & kForChildren) {
        return kForChildren;
    }
    const bool mayBeFilm = !show.hasEpisode && !isShorterThan(show, minutes(70));
    if (found & kAnimation) {
        if (!(found & kAdult)) {
            return kForChildren;
        }
        found |= found & kMovies || (mayBeFilm && show.length) ? kMovies : kSeries;
    }
    if (found & kTold) {
        found &= ~kEntertainment;
        if (found & (kNews | kDocumentaries)) {
            found &= ~kStories;
        }
        // A musical, or a concert?
        if ((found & kMusic) && (found & kMovies)) {
            found &= mayBeFilm ? ~kMusic : ~kStories;
        }
        if ((found & kMusic) && !(found & (kMovies | kSeries))) {
            found &= ~kStories;
        }
    } else if ((found & kEntertainment) && !(found & (kMovies | kSeries))) {
        found &= ~kStories;
    } else if ((found & kStoryGenres) && !(found & (kMovies | kSeries))) {
        found |= mayBeFilm ? kMovies : kSeries;
    }
    if (found & kSeries) {
        found &= ~TVListingsCategoryAllFilm;
    }
    return withoutExcluded(found & kCategories);
}

/// Whether the theme of the channel says more than what was found in the title and in the other texts.
bool isThemeBelieved(const ShowText& show, Bits theme, Bits title, Bits prose) {
    if (theme & kForChildren) {
        return ((title | prose) & (kNews | kSports | kMusic)) == 0;
    }
    const Bits found = title | prose;
    // Channels of other themes fill nights and weekends with films.
    constexpr Bits kWithFilms = kEntertainment | kDocumentaries;
    if ((theme & kWithFilms) && !show.hasEpisode &&
        isLongerThan(show, minutes(theme & kEntertainment ? 95 : 130))) {
        return false;
    }
    Bits outdone = kStories | kAnimation | kPresented;
    if (theme & (kSports | kMusic | kNews)) {
        outdone |= kEntertainment;
    }
    if (title & ~outdone) {
        return false;
    }
    // Descriptions mention many things in passing.
    if (theme & (kDocumentaries | kMusic | kSports)) {
        outdone |= kMusic | kSports | kNews | kEntertainment;
    }
    if (prose & ~outdone) {
        return false;
    }
    return !(found & kMovies) || isShorterThan(show, minutes(75));
}

} // namespace

TVListingsCategory feedCategories(const ShowText& show) {
    Evidence genres;
    for (const QString& category : show.categories) {
        addCategory(category, show.language, genres);
    }
    addSubtitleGenres(show.subtitle, show.language, genres);
    const Bits named = genres.said();
    if (named & (kKinds & ~kAnimation)) {
        // Some feeds call all that is no film a series.
        const bool isUncertainSeries = !(genres.strong & kSeries) && (named & kStoryGenres);
        if ((named & kSeries) && isUncertainSeries && !show.hasEpisode && isLongerThan(show, minutes(75))) {
            return settled(show, (named & ~kSeries) | kMovies);
        }
        // Talk shows about politics, and news that a feed calls films.
        if (named == kEntertainment || ((named & kMovies) && isShorterThan(show, minutes(60)))) {
            Evidence title;
            addTitle(show.title, show.language, title);
            if (const Bits told = title.strong & (named & kMovies ? kNews | kSports : kNews)) {
                return settled(show, told);
            }
        }
        return settled(show, named);
    }
    if (named & kNothing) {
        return 0;
    }
    const Bits themes = channelTheme(show);
    Evidence title;
    addTitle(show.title, show.language, title);
    if (named & kAnimation) {
        return settled(show, named | (title.strong & kForChildren) | ((themes | title.strong) & kAdult));
    }
    if (title.strong & kNothing || themes & kNothing) {
        return 0;
    }
    constexpr Bits kThemes = kForChildren | kSports | kMusic | kNews | kDocumentaries | kEntertainment;
    const Bits theme = themes & kThemes;
    if (named & kStoryGenres) {
        return settled(show, named);
    }
    const Bits titled = title.said();
    Bits told = 0;
    if (!(titled & (kKinds | kStoryGenres)) && !(theme & kForChildren)) {
        Evidence prose;
        addProse(show.subtitle, show.language, true, prose);
        addDescription(show.description, show.language, prose);
        if (prose.strong & kNothing) {
            return 0;
        }
        told = prose.said() | (prose.strong & kPresented);
        title.vague |= prose.vague;
        // A word about a film is no film.
        if ((told & kMovies) && isShorterThan(show, minutes(45))) {
            told &= ~kStories;
        }
    }
    if (theme != 0 && isThemeBelieved(show, theme, titled, told)) {
        return settled(show, theme);
    }
    const Bits found = titled | told;
    if (found & (kKinds | kStoryGenres)) {
        return settled(show, found | (themes & kAdult));
    }
    const bool mayBeFilm = !show.hasEpisode && isLongerThan(show, minutes(60));
    if ((themes & kMovies) && mayBeFilm && isLongerThan(show, minutes(69)) &&
        isShorterThan(show, minutes(240))) {
        return kMovies;
    }
    Bits vague = (title.vague ? title.vague : genres.vague) & kCategories;
    if ((vague & kMovies) && isShorterThan(show, minutes(60))) {
        vague = 0;
    }
    if (vague != 0) {
        return settled(show, vague);
    }
    if ((found | themes) & kPresented) {
        return 0;
    }
    if (show.hasRoles && mayBeFilm) {
        return kMovies;
    }
    if (isShorterThan(show, minutes(70)) && !isShorterThan(show, minutes(15)) &&
        (show.hasEpisode || (themes & kSeries))) {
        return kSeries;
    }
    return 0;
}

} // namespace guide
