#include "text/cleaning/TitleCapitals.h"

#include "text/cleaning/Capitalisation.h"
#include "text/cleaning/TextPatterns.h"

#include <QSet>

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// Words that are not acronyms anywhere are left out even if they are somewhere.
const QSet<QString>& acronyms() {
    static const QSet<QString> kAcronyms = [] {
        QSet<QString> set;
        constexpr QStringView kWords =
            u"ABBA|ABC|ACI|AEK|AEW|AFC|AHL|ALF|AMC|ARD|ATP|ATV|AXN|BBC|BMW|BMX|BNT|BTV|CBS|CD|CIA|"
            u"CNBC|CNN|CSI|ČT|DDR|DIY|DJ|DKA|DNA|DNK|DSF|DTM|DVD|EFC|EHF|ERT|ESPN|ERC|EU|FA|FBI|"
            u"FIA|FIFA|FIBA|FIM|FIS|FIVB|FTV|GMC|GP|HBO|HD|HNL|HNS|HRT|HTV|IIHF|IMDB|ITF|ITV|JAG|"
            u"KBS|KGB|KHL|LA7|LGBT|LIV|MDR|MGM|MLB|MLS|MMA|MS|MTV|NASA|NASCAR|NATO|NBA|NBC|NCAA|"
            u"NCIS|NDR|NFL|NHL|NRK|NRW|NTV|OBN|ORF|OSN|ÖBB|ΑΕΚ|ΕΡΤ|ΗΠΑ|ΚΕΝ|ΠΑΟΚ|PBS|PDC|PGA|PR|PS|"
            u"PSG|RAI|RBB|RCS|RFE|RTCG|RTL|RTS|RTP|RTV|RTVS|SBB|SBS|SF|SGP|SK|SNL|SOKO|SOS|SPFL|"
            u"SRF|STV|SUV|SWAT|SWR|TBA|TCR|TG|TGR|TLC|TNA|TNT|TRT|TSN|TV|TVE|TVN|TVP|TVR|UAE|UCI|"
            u"UCL|UEFA|UFC|UFO|UHD|UK|UN|US|USA|USB|VH1|VIP|VOX|WBC|WDR|WEC|WHO|WNBA|WRC|WTA|WTF|"
            u"WWE|WWF|XXL|XXX|ZDF|ZIB|БНТ|БТВ|БГ|ЕС|САЩ|САД|СССР|ТВ|РТС|МРТ|УЕФА|НБА";
        for (const QStringView each : kWords.split(u'|')) {
            set.insert(each.toString());
        }
        return set;
    }();
    return kAcronyms;
}

bool isRomanNumber(QStringView word) {
    static const QSet<QString> kNumbers{u"II"_s,   u"III"_s,   u"IV"_s,    u"VI"_s,   u"VII"_s, u"VIII"_s,
                                        u"IX"_s,   u"XI"_s,    u"XII"_s,   u"XIII"_s, u"XIV"_s, u"XV"_s,
                                        u"XVI"_s,  u"XVII"_s,  u"XVIII"_s, u"XIX"_s,  u"XX"_s,  u"XXI"_s,
                                        u"XXII"_s, u"XXIII"_s, u"XXIV"_s,  u"XXV"_s,  u"XXX"_s};
    return kNumbers.contains(word.toString());
}

bool isInCapitals(QStringView text) {
    bool hasUpper = false;
    for (const QChar unit : text) {
        if (unit.isLower()) {
            return false;
        }
        hasUpper = hasUpper || unit.isUpper();
    }
    return hasUpper;
}

/// A letter with a digit beside it, as in "TG1" and "F1", or letters between full stops, as in "M.A.S.H.".
bool looksLikeCode(QStringView word) {
    const bool hasDigit = std::ranges::any_of(word, [](QChar unit) { return unit.isDigit(); });
    if (hasDigit) {
        const auto letters = std::ranges::count_if(word, [](QChar unit) { return unit.isLetter(); });
        return word.front().isLetter() ? letters <= 4 : letters <= 1;
    }
    const bool isDotted =
        word.size() >= 4 && word[0].isLetter() && word[1] == u'.' && word[2].isLetter() && word[3] == u'.';
    return isDotted;
}

/// Whether the title is nothing but a few letters, as "QI" or "QI XL".
bool areAcronyms(QStringView title) {
    constexpr int kMostTogether = 3;
    constexpr int kMostLetters = 4;
    int together = 0;
    int letters = 0;
    for (const QChar unit : title) {
        together = unit.isLetter() ? together + 1 : 0;
        letters += unit.isLetter() ? 1 : 0;
        const bool isGreek = unit.script() == QChar::Script_Greek;
        if (together > kMostTogether || letters > kMostLetters || isGreek) {
            return false;
        }
    }
    return true;
}

} // namespace

QString withoutCapitals(const QString& title, const QString& language) {
    if (!isInCapitals(title) || areAcronyms(title)) {
        return title;
    }
    const QLocale locale = language.isEmpty() ? QLocale::c() : QLocale(language);
    QString cased = capitalizedWords(title, locale);
    if (cased.size() != title.size()) {
        // Dots of decomposed letters and the like; positions no longer correspond.
        return acronyms().contains(title) ? title : cased;
    }
    for (qsizetype at = 0; at < title.size();) {
        const auto belongs = [&title](qsizetype i) {
            return title[i].isLetterOrNumber() || title[i].isMark() ||
                   (title[i] == u'.' && i > 0 && title[i - 1].isLetter());
        };
        if (!title[at].isLetterOrNumber()) {
            ++at;
            continue;
        }
        qsizetype end = at;
        while (end < title.size() && belongs(end)) {
            ++end;
        }
        QStringView word = QStringView(title).sliced(at, end - at);
        QStringView bare = word;
        while (bare.endsWith(u'.')) {
            bare.chop(1);
        }
        const bool stays = acronyms().contains(bare.toString()) || isRomanNumber(bare) || looksLikeCode(word);
        if (stays) {
            cased.replace(at, word.size(), word.data(), word.size());
        }
        at = end;
    }
    return cased;
}

} // namespace guide
