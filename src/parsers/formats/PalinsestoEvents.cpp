#include "parsers/formats/PalinsestoEvents.h"

#include "parsers/ParsersLog.h"
#include "parsers/formats/EntryClassifier.h"
#include "parsers/markers/DateText.h"
#include "parsers/markers/MarkerWalk.h"
#include "parsers/markers/ZoneClock.h"
#include "parsers/xmltv/XMLSaxParser.h"
#include "text/cleaning/Capitalisation.h"

#include <algorithm>
#include <array>

namespace guide {

namespace {

using namespace Qt::StringLiterals;
using std::chrono::hours;

enum Element : std::size_t {
    Programma,
    Giorno,
    Canale,
    Prg,
    Titolo,
    Descrizione,
    LinkScheda,
    Anno,
    Paese,
    Tipologia
};
constexpr std::array kElementNames{"programma",   "giorno",     "canale", "prg",   "titolo",
                                   "descrizione", "linkScheda", "anno",   "paese", "tipologia"};

struct ShowKind {
    QStringView text;
    TVListingsCategory category;
};
constexpr std::array kShowKinds{
    ShowKind{u"CINEMA", TVListingsCategoryMovies},
    ShowKind{u"INTRATTENIMENTO", TVListingsCategoryEntertainment},
    ShowKind{u"CULTURA", TVListingsCategoryDocumentaries},
    ShowKind{u"FICTION/SERIE TV", TVListingsCategorySeries},
    ShowKind{u"SPORT", TVListingsCategorySports},
    ShowKind{u"INFORMAZIONE", TVListingsCategoryNews},
    ShowKind{u"CARTONI ANIMATI", TVListingsCategoryForChildren},
};
/// Channels whose shows are all for children.
constexpr std::array<QStringView, 3> kChildrensChannels{u"_KN", u"_KP", u"_DY"};

TVListingsCategory categoryOf(QStringView text, QStringView sourceId) {
    const auto row = std::find_if(kShowKinds.begin(), kShowKinds.end(),
                                  [text](const ShowKind& candidate) { return candidate.text == text; });
    if (row != kShowKinds.end()) {
        return row->category;
    }
    const bool forChildren =
        std::find(kChildrensChannels.begin(), kChildrensChannels.end(), sourceId) != kChildrensChannels.end();
    return forChildren ? TVListingsCategoryForChildren : 0;
}

/// 12 digits from year to minute, interpreted as UTC.
std::optional<Moment> timestampMoment(std::string_view text) {
    if (text.size() != 12) {
        return std::nullopt;
    }
    const auto year = decimalNumber(text.substr(0, 4));
    const auto month = decimalNumber(text.substr(4, 2));
    const auto day = decimalNumber(text.substr(6, 2));
    const auto hour = decimalNumber(text.substr(8, 2));
    const auto minute = decimalNumber(text.substr(10, 2));
    if (!year || !month || !day || !hour || !minute || *hour > 23 || *minute > 59) {
        return std::nullopt;
    }
    const std::chrono::year_month_day date{std::chrono::year(*year),
                                           std::chrono::month(static_cast<unsigned>(*month)),
                                           std::chrono::day(static_cast<unsigned>(*day))};
    return date.ok() ? std::optional<Moment>(std::chrono::sys_days(date) + hours(*hour) +
                                             std::chrono::minutes(*minute))
                     : std::nullopt;
}

class Rows final : public XMLEvents {
  public:
    Rows(const PalinsestoCodes& wanted, const Alphabet& alphabet, PalinsestoTexts& texts)
        : m_wanted(wanted)
        , m_alphabet(alphabet)
        , m_texts(texts)
        , m_rome(QTimeZone("Europe/Rome")) {}

    std::vector<ExtendedTVEntry> take() { return std::move(m_rows); }

    void started(std::size_t element, const XMLAttributes& attributes) override {
        switch (element) {
        case Programma:
            startProgramma(attributes);
            break;
        case Giorno:
            startGiorno(attributes);
            break;
        case Canale:
            startCanale(attributes);
            break;
        case Prg:
            startPrg(attributes);
            break;
        case kOtherXMLElement:
            break;
        default:
            if (m_inUnusableShow) {
                break;
            }
            if (m_rows.empty()) {
                addRow();
            }
            m_open = element;
            m_text.reset();
        }
    }

    void text(std::string_view piece) override {
        if (m_open != kOtherXMLElement) {
            m_text ? void(m_text->append(piece)) : void(m_text.emplace(piece));
        }
    }

    void ended(std::size_t element) override {
        if (element == m_open && element != kOtherXMLElement) {
            if (m_text && *m_text != "--") {
                setText(element, *m_text);
            }
            m_open = kOtherXMLElement;
        }
        m_inUnusableShow = m_inUnusableShow && element != Prg && element != Programma;
        m_text.reset();
    }

  private:
    TVEntry& addRow() {
        m_rows.push_back({std::make_shared<TVEntry>(m_alphabet), std::nullopt, nullptr, {}});
        return *m_rows.back().basic;
    }

    static QString attribute(const XMLAttributes& attributes, std::string_view name) {
        return pageString(attributes.value(name).value_or(std::string_view()));
    }

    void startProgramma(const XMLAttributes& attributes) {
        // The document contains all channels; few are wanted.
        const auto code = m_wanted.find(attributes.value("idref").value_or(std::string_view()));
        const auto local = code == m_wanted.end() || code->first.empty()
                               ? std::nullopt
                               : timestampMoment(attributes.value("timestamp").value_or(std::string_view()));
        m_inUnusableShow = !local;
        if (m_inUnusableShow) {
            return;
        }
        TVEntry& entry = addRow();
        entry.setSourceId(code->second);
        // The timestamp is local time; the offset is taken at that moment read as UTC.
        entry.setDateTime(*local - m_rome.offsetAt(*local));
        if (const auto title = attributes.value("titolo")) {
            entry.setIdentificator(m_texts.sentenceCase(*title));
        }
        m_rows.back().categories = classifyEntry(entry);
    }

    void startGiorno(const XMLAttributes& attributes) {
        std::string data(attributes.value("data").value_or(std::string_view()));
        if (data.size() != 10) {
            return;
        }
        std::replace(data.begin(), data.end(), '/', '-');
        // Noon cannot be moved to another date by a clock change. Rows after an invalid day get no date
        // rather than that of the day before.
        const auto date = yearMonthDay(data);
        addRow().setDateTime(date ? m_rome.momentAt(*date, hours(12)) : std::nullopt);
    }

    void startCanale(const XMLAttributes& attributes) {
        if (m_rows.empty()) {
            return;
        }
        const std::optional<Moment> moment = m_rows.back().basic->dateTime();
        TVEntry& entry = addRow();
        entry.setDateTime(moment);
        entry.setSourceId(u'_' + attribute(attributes, "id"));
    }

    /// A show gets its date from the preceding row.
    void startPrg(const XMLAttributes& attributes) {
        const std::string start(attributes.value("orainizio").value_or(std::string_view()));
        const auto time = start.size() == 5 ? timeOfDay(start) : std::nullopt;
        // The texts of a skipped show must not be added to the show before it.
        m_inUnusableShow = !time || m_rows.empty() || !m_rows.back().basic->dateTime();
        if (m_inUnusableShow) {
            return;
        }
        const std::optional<QString> sourceId = m_rows.back().basic->sourceId();
        const Moment running = *m_rows.back().basic->dateTime();
        // The first show before 06:00 starts the next day, 24 hours later.
        const bool turns = *time < hours(6) && m_rome.hourAt(running) >= 6;
        const QDate date = m_rome.dateAt(turns ? running + hours(24) : running);
        TVEntry& entry = addRow();
        entry.setSourceId(sourceId);
        entry.setDateTime(m_rome.momentAt(date, *time));
        const auto end = attributes.value("orafine");
        if (const auto endTime = end && end->size() == 5 ? timeOfDay(*end) : std::nullopt) {
            entry.setEndDateTime(m_rome.momentAt(date, *endTime));
        }
        entry.setPreviouslyShown(attributes.value("primaTv") == "No");
    }

    void setText(std::size_t element, std::string_view text) {
        TVEntry& entry = *m_rows.back().basic;
        switch (element) {
        case Titolo:
            entry.setIdentificator(m_texts.capitalizedWords(text));
            break;
        case LinkScheda:
            entry.setUrl(QUrl(pageString(text)));
            break;
        case Descrizione:
            entry.setInstantDescription1(
                m_texts.capitalizedWords(text.substr(0, text.size() - (text.ends_with(" - ") ? 3 : 0))));
            break;
        case Paese: {
            // The country precedes the year.
            const QString country = m_texts.capitalizedWords(text);
            const auto& details = entry.instantDetails1();
            entry.setInstantDetails1(details ? country + ", "_L1 + *details : country);
            break;
        }
        case Anno: {
            const QString year = pageString(text);
            const auto& details = entry.instantDetails1();
            entry.setInstantDetails1(!details ? year : text.empty() ? *details : *details + ", "_L1 + year);
            break;
        }
        case Tipologia:
            m_rows.back().categories = categoryOf(pageString(text), entry.sourceId().value_or(QString()));
            break;
        default:
            break;
        }
    }

    const PalinsestoCodes& m_wanted;
    const Alphabet& m_alphabet;
    PalinsestoTexts& m_texts;
    ZoneClock m_rome;
    std::vector<ExtendedTVEntry> m_rows;
    /// The text element being read.
    std::size_t m_open = kOtherXMLElement;
    std::optional<std::string> m_text;
    bool m_inUnusableShow = false;
};

// Most words consist of unaccented letters, with punctuation and a blank after them, and are capitalised
// without a look-up. False for any other word; `out` has room for it.
bool capitalizePlainWord(std::string_view word, QChar* out) {
    bool isFirst = true;
    bool isEnding = false;
    for (const char letter : word) {
        const char lower = static_cast<char>(letter | 0x20);
        if (!isEnding && lower >= 'a' && lower <= 'z') {
            *out++ = QLatin1Char(isFirst ? static_cast<char>(lower & ~0x20) : lower);
            isFirst = false;
            continue;
        }
        isEnding = true;
        if (letter != ' ' && letter != ',' && letter != '.') {
            return false;
        }
        *out++ = QLatin1Char(letter);
    }
    return true;
}

// Whether the case of a to z does not depend on the language: i has a dot in some, ij is one letter in
// others.
bool hasPlainLetters(QLocale::Language language) {
    return language != QLocale::Turkish && language != QLocale::Azerbaijani && language != QLocale::Dutch;
}

} // namespace

PalinsestoTexts::PalinsestoTexts(const QLocale& locale)
    : m_locale(locale)
    , m_hasPlainLetters(hasPlainLetters(m_locale.language())) {}

QString PalinsestoTexts::capitalizedWords(std::string_view text) {
    // Titles repeat; descriptions rarely do.
    constexpr std::size_t kLongestTitle = 40;
    const bool isTitle = text.size() <= kLongestTitle;
    if (const QString* known = isTitle ? m_texts.find(text) : nullptr) {
        return *known;
    }
    // Words end at blanks and are capitalised independently of each other.
    QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
    QChar* out = result.data();
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find(' ', start), text.size() - 1) + 1;
        const std::string_view word = text.substr(start, end - start);
        const auto wordSize = static_cast<qsizetype>(word.size());
        start = end;
        if (m_hasPlainLetters && capitalizePlainWord(word, out)) {
            out += wordSize;
            continue;
        }
        const QString* known = m_words.find(word);
        if (!known) {
            known = &m_words.add(word, guide::capitalizedWords(pageString(word), m_locale));
        }
        if (known->size() > wordSize) {
            const qsizetype written = out - result.data();
            result.resize(result.size() + known->size() - wordSize);
            out = result.data() + written;
        }
        out = std::copy(known->cbegin(), known->cend(), out);
    }
    result.truncate(out - result.data());
    return isTitle ? m_texts.add(text, std::move(result)) : result;
}

QString PalinsestoTexts::sentenceCase(std::string_view text) {
    const QString* known = m_sentences.find(text);
    return known ? *known : m_sentences.add(text, guide::sentenceCase(pageString(text), m_locale));
}

std::optional<std::vector<ExtendedTVEntry>> palinsestoRows(const QByteArray& document,
                                                           const PalinsestoCodes& wanted,
                                                           const Alphabet& alphabet, PalinsestoTexts& texts,
                                                           const std::function<bool()>& stopped) {
    Rows rows(wanted, alphabet, texts);
    if (const auto end = parseXML(document, kElementNames, rows, stopped)) {
        qCInfo(parsersLog, "the document broke off at byte %zu: %s", end->byte, end->message.c_str());
        return std::nullopt;
    }
    return rows.take();
}

} // namespace guide
