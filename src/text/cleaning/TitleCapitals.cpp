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
        for (const char16_t* each :
             {u"ABBA", u"ABC",  u"ACI",  u"AEK",  u"AEW",  u"AFC",  u"AHL",    u"ALF",  u"AMC",  u"ARD",
              u"ATP",  u"ATV",  u"AXN",  u"BBC",  u"BMW",  u"BMX",  u"BNT",    u"BTV",  u"CBS",  u"CD",
              u"CIA",  u"CNBC", u"CNN",  u"CSI",  u"ČT",   u"DDR",  u"DIY",    u"DJ",   u"DKA",  u"DNA",
              u"DNK",  u"DSF",  u"DTM",  u"DVD",  u"EFC",  u"EHF",  u"ERT",    u"ESPN", u"ERC",  u"EU",
              u"FA",   u"FBI",  u"FIA",  u"FIFA", u"FIBA", u"FIM",  u"FIS",    u"FIVB", u"FTV",  u"GMC",
              u"GP",   u"HBO",  u"HD",   u"HNL",  u"HNS",  u"HRT",  u"HTV",    u"IIHF", u"IMDB", u"ITF",
              u"ITV",  u"JAG",  u"KBS",  u"KGB",  u"KHL",  u"LA7",  u"LGBT",   u"LIV",  u"MDR",  u"MGM",
              u"MLB",  u"MLS",  u"MMA",  u"MS",   u"MTV",  u"NASA", u"NASCAR", u"NATO", u"NBA",  u"NBC",
              u"NCAA", u"NCIS", u"NDR",  u"NFL",  u"NHL",  u"NRK",  u"NRW",    u"NTV",  u"OBN",  u"ORF",
              u"OSN",  u"ÖBB",  u"ΑΕΚ",  u"ΕΡΤ",  u"ΗΠΑ",  u"ΚΕΝ",  u"ΠΑΟΚ",   u"PBS",  u"PDC",  u"PGA",
              u"PR",   u"PS",   u"PSG",  u"RAI",  u"RBB",  u"RCS",  u"RFE",    u"RTCG", u"RTL",  u"RTS",
              u"RTP",  u"RTV",  u"RTVS", u"SBB",  u"SBS",  u"SF",   u"SGP",    u"SK",   u"SNL",  u"SOKO",
              u"SOS",  u"SPFL", u"SRF",  u"STV",  u"SUV",  u"SWAT", u"SWR",    u"TBA",  u"TCR",  u"TG",
              u"TGR",  u"TLC",  u"TNA",  u"TNT",  u"TRT",  u"TSN",  u"TV",     u"TVE",  u"TVN",  u"TVP",
              u"TVR",  u"UAE",  u"UCI",  u"UCL",  u"UEFA", u"UFC",  u"UFO",    u"UHD",  u"UK",   u"UN",
              u"US",   u"USA",  u"USB",  u"VH1",  u"VIP",  u"VOX",  u"WBC",    u"WDR",  u"WEC",  u"MMA",
              u"WHO",  u"WNBA", u"WRC",  u"WTA",  u"WTF",  u"WWE",  u"WWF",    u"XXL",  u"XXX",  u"ZDF",
              u"ZIB",  u"БНТ",  u"БТВ",  u"БГ",   u"ЕС",   u"САЩ",  u"САД",    u"СССР", u"ТВ",   u"РТС",
              u"МРТ",  u"УЕФА", u"НБА"}) {
            set.insert(QStringView(each).toString());
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
