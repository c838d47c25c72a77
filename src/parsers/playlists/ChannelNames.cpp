#include "parsers/playlists/ChannelNames.h"

#include "text/search/FoldTable.h"

#include <QSet>
#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// The Latin form of a folded letter: of Cyrillic ones, and of those that folding leaves because they are no
/// letter with a mark.
QString latin(char16_t letter) {
    static constexpr std::array<std::pair<char16_t, const char*>, 48> kLetters{{
        {u'а', "a"},  {u'б', "b"},  {u'в', "v"},  {u'г', "g"},  {u'ґ', "g"}, {u'д', "d"},  {u'ђ', "dj"},
        {u'ѓ', "gj"}, {u'е', "e"},  {u'є', "je"}, {u'ж', "z"},  {u'з', "z"}, {u'ѕ', "dz"}, {u'и', "i"},
        {u'і', "i"},  {u'ј', "j"},  {u'к', "k"},  {u'ќ', "kj"}, {u'л', "l"}, {u'љ', "lj"}, {u'м', "m"},
        {u'н', "n"},  {u'њ', "nj"}, {u'о', "o"},  {u'п', "p"},  {u'р', "r"}, {u'с', "s"},  {u'т', "t"},
        {u'ћ', "c"},  {u'у', "u"},  {u'ф', "f"},  {u'х', "h"},  {u'ц', "c"}, {u'ч', "c"},  {u'џ', "dz"},
        {u'ш', "s"},  {u'щ', "st"}, {u'ъ', "a"},  {u'ы', "y"},  {u'ь', ""},  {u'э', "e"},  {u'ю', "ju"},
        {u'я', "ja"}, {u'đ', "dj"}, {u'ł', "l"},  {u'ı', "i"},  {u'ø', "o"}, {u'æ', "ae"},
    }};
    const auto found = std::ranges::find(kLetters, letter, &std::pair<char16_t, const char*>::first);
    return found == kLetters.end() ? QString(QChar(letter)) : QString::fromLatin1(found->second);
}

/// Folded, in Latin script, without the circled letters and raised marks that lists decorate names with.
QString plainName(const QString& name) {
    QString undecorated;
    for (const QChar c : name) {
        const bool circled = c.unicode() >= 0x24B6 && c.unicode() <= 0x24E9;
        if (!circled) {
            undecorated += c;
        }
    }
    QString plain;
    const FoldTable& table = FoldTable::of(FoldMode::CaseAndDiacritics);
    for (const QChar c : table.folded(undecorated.normalized(QString::NormalizationForm_KC))) {
        plain += c.unicode() < 0x80 ? QString(c) : latin(c.unicode());
    }
    return plain;
}

/// Runs of letters and digits; a plus sign belongs to the digits behind it.
QStringList wordsOf(const QString& text) {
    QStringList words;
    QString word;
    const auto finish = [&] {
        if (!word.isEmpty()) {
            words << std::exchange(word, QString());
        }
    };
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar c = text[at];
        if (c == u'+') {
            finish();
            word = c;
        } else if (c.isLetterOrNumber()) {
            word += c;
        } else {
            finish();
        }
    }
    finish();
    return words;
}

bool isQuality(const QString& word) {
    static const QSet<QString> kWords{u"hd"_s,   u"fhd"_s,  u"uhd"_s,  u"sd"_s,    u"hq"_s,    u"4k"_s,
                                      u"8k"_s,   u"hevc"_s, u"h264"_s, u"h265"_s,  u"x265"_s,  u"1080p"_s,
                                      u"720p"_s, u"576p"_s, u"raw"_s,  u"1080i"_s, u"fullhd"_s};
    return kWords.contains(word);
}

bool isCountry(const QString& word) {
    static const QSet<QString> kCodes{
        u"al"_s, u"at"_s, u"ba"_s, u"be"_s, u"bg"_s, u"by"_s, u"ch"_s, u"cy"_s, u"cz"_s, u"de"_s, u"dk"_s,
        u"ee"_s, u"es"_s, u"fi"_s, u"fr"_s, u"gb"_s, u"gr"_s, u"hr"_s, u"hu"_s, u"ie"_s, u"it"_s, u"lt"_s,
        u"lu"_s, u"lv"_s, u"md"_s, u"me"_s, u"mk"_s, u"mt"_s, u"nl"_s, u"no"_s, u"pl"_s, u"pt"_s, u"ro"_s,
        u"rs"_s, u"ru"_s, u"se"_s, u"si"_s, u"sk"_s, u"tr"_s, u"ua"_s, u"uk"_s, u"us"_s, u"xk"_s};
    return kCodes.contains(word);
}

bool isCommon(const QString& word) {
    static const QSet<QString> kWords{u"tv"_s,        u"channel"_s,    u"kanal"_s, u"televize"_s,
                                      u"televizia"_s, u"program"_s,    u"the"_s,   u"televizija"_s,
                                      u"televizio"_s, u"televiziune"_s};
    return kWords.contains(word);
}

/// The name behind "ES| ", "PL|", "CZ: " or "HU - ".
QString withoutCountryPrefix(const QString& plain) {
    const QString start = plain.trimmed();
    if (start.size() < 4 || !isCountry(start.first(2))) {
        return plain;
    }
    const QString rest = start.sliced(2).trimmed();
    const bool marked =
        rest.startsWith(u'|') || rest.startsWith(u':') || (rest.startsWith(u"- ") && start[2].isSpace());
    return marked ? rest.sliced(1) : plain;
}

} // namespace

ChannelNameKeys channelNameKeys(const QString& name) {
    const QStringList all = wordsOf(withoutCountryPrefix(plainName(name)));
    QStringList words;
    for (const QString& word : all) {
        if (!isQuality(word)) {
            words << word;
        }
    }
    if (words.size() > 1 && isCountry(words.constLast())) {
        words.removeLast();
    }
    // A name may consist of marks alone.
    if (words.isEmpty()) {
        words = all;
    }
    ChannelNameKeys keys{words.join(QString()), {}};
    words.removeIf(isCommon);
    std::ranges::sort(words);
    keys.near = words.join(u' ');
    return keys;
}

QString channelIdKey(const QString& id) {
    return wordsOf(plainName(id.section(u'@', 0, 0))).join(QString());
}

} // namespace guide
