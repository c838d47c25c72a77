#include "parsers/formats/PrimaMaxListReader.h"

#include "parsers/ParsersLog.h"
#include "parsers/formats/EntryClassifier.h"
#include "parsers/formats/ReaderPages.h"
#include "parsers/markers/ZoneClock.h"
#include "sources/WebURL.h"
#include "text/cleaning/MarkupText.h"

#include <algorithm>

namespace guide {

namespace {

using namespace Qt::StringLiterals;

constexpr int kMostDays = 14;
constexpr std::chrono::hours kDay(24);
constexpr std::string_view kTab = "class=\"tab tab-active\"";
constexpr std::string_view kRow = "<div class=\"row\">";
constexpr std::string_view kTime = "<time>";

/// The text inside the tags around it.
std::string_view withoutTags(std::string_view text) {
    const auto withoutBlanks = [](std::string_view padded) {
        return padded.substr(0, padded.find_last_not_of(" \t\r\n") + 1);
    };
    text = withoutBlanks(text);
    while (text.ends_with('>')) {
        const std::size_t opening = text.rfind('<');
        if (opening == std::string_view::npos) {
            return text.substr(0, text.find_last_not_of("> \t\r\n") + 1);
        }
        text = withoutBlanks(text.substr(0, opening));
    }
    const std::size_t tag = text.rfind('>');
    return tag == std::string_view::npos || tag + 1 == text.size() ? text : text.substr(tag + 1);
}

std::optional<QString> trimmed(std::string_view text) {
    return trimmedListingText(pageString(text));
}

/// Moves the episode in parentheses at the end of a title to the details.
void splitEpisode(QString& title, TVEntry& entry) {
    const qsizetype open = title.lastIndexOf(" ("_L1);
    if (open >= 0 && title.indexOf(u')') == title.size() - 1) {
        entry.setInstantDetails1("ep. "_L1 + title.sliced(open + 2, title.size() - open - 3));
        title.truncate(open);
    }
}

enum class Part { Fact, Ignored, Roles, Director };

struct Separator {
    QStringView text;
    Part part;
    qsizetype position = -1;

    /// Records the first position of the separator, ignoring case.
    void lookAt(const QString& block, qsizetype place) {
        if (position < 0 && QStringView(block).sliced(place).startsWith(text, Qt::CaseInsensitive)) {
            position = place;
        }
    }
};

/// The separators in the block, each at its first position, in order of position.
std::vector<Separator> separatorsOf(const QString& block) {
    Separator fact{u".. ", Part::Fact};
    Separator ignored{u"… ", Part::Ignored};
    Separator roles{u" Dále Hrají ", Part::Roles};
    Separator actors{u" Hrají ", Part::Ignored};
    Separator director{u" Režie ", Part::Director};
    for (qsizetype at = 0; at + 1 < block.size(); ++at) {
        const char16_t unit = block[at].unicode();
        if (unit == u'.') {
            fact.lookAt(block, at);
        } else if (unit == u'…') {
            ignored.lookAt(block, at);
        } else if (unit == u' ') {
            // The first letter rules out nearly every word.
            switch (block[at + 1].unicode()) {
            case u'D':
            case u'd':
                roles.lookAt(block, at);
                break;
            case u'H':
            case u'h':
                actors.lookAt(block, at);
                break;
            case u'R':
            case u'r':
                director.lookAt(block, at);
                break;
            default:
                break;
            }
        }
    }
    std::vector<Separator> separators{fact, ignored, roles.position < 0 ? actors : roles, director};
    std::erase_if(separators, [](const Separator& separator) { return separator.position < 0; });
    std::sort(separators.begin(), separators.end(),
              [](const Separator& a, const Separator& b) { return a.position < b.position; });
    return separators;
}

/// Splits the text of a show into its parts.
void readBlock(const QString& block, TVEntry& entry, TVEntrySupplementalData& details) {
    const std::vector<Separator> separators = separatorsOf(block);
    for (std::size_t i = 0; i < separators.size(); ++i) {
        const qsizetype start = separators[i].position + separators[i].text.size();
        const qsizetype end = i + 1 < separators.size() ? separators[i + 1].position : block.size();
        if (start >= end) {
            continue;
        }
        const QString text = block.sliced(start, end - start);
        switch (separators[i].part) {
        case Part::Fact:
            entry.setInstantDetails1(entry.instantDetails1() ? *entry.instantDetails1() + ", "_L1 + text
                                                             : text);
            break;
        case Part::Roles:
            details.roles = text;
            break;
        case Part::Director:
            details.directedBy = text;
            break;
        case Part::Ignored:
            break;
        }
    }
    QString description = separators.empty() ? block : block.first(separators.front().position);
    if (!description.isEmpty() && !description.endsWith(u'.')) {
        description += u'.';
    }
    details.description = description;
}

class DayReader {
  public:
    DayReader(const ListReaderInput& input, std::string_view text, std::vector<ExtendedTVEntry>& list)
        : m_input(input)
        , m_item(input.items.front())
        , m_list(list)
        , m_rows(text, kRow)
        , m_titles(text, "<h3 class=\"broadcast-title broadcast-title-xs\">", "</h3>", &input.trace)
        , m_blocks(text, "<p class=\"m-top broadcast-description\">", "<", &input.trace)
        , m_pictures(text, "<img src=\"", "\"") {}

    QDate dateAt(Moment moment) { return m_prague.dateAt(moment); }

    /// `dateAfter` is used for shows after midnight.
    void read(MarkerWalk day, QDate date, const QDate& dateAfter) {
        std::string_view previous;
        while (!day.atEnd()) {
            const auto nextRow = m_rows.next(day.position());
            MarkerWalk row = day.part(day.position(), nextRow ? *nextRow + kRow.size() : day.limit());
            const std::size_t start = row.position();
            if (!row.pass(kTime)) {
                return;
            }
            const std::string_view time = row.characters(5);
            day.moveTo(row.position());
            day.moveTo(day.findOrLimit(kTime));
            if (!previous.empty() && previous >= time) {
                date = dateAfter;
            } else {
                previous = time;
            }
            addShow(start, row.limit(), date, time);
        }
    }

  private:
    /// Adds the show of the row from `begin` to `end`.
    void addShow(std::size_t begin, std::size_t end, const QDate& date, std::string_view time) {
        const auto name = m_titles.next(begin, end);
        const auto block = m_blocks.next(begin, end);
        const auto source = m_pictures.next(begin, end);
        const auto clockTime = name && block ? timeOfDay(time) : std::nullopt;
        const auto start = clockTime ? m_prague.momentAt(date, *clockTime) : std::nullopt;
        if (!start) {
            return;
        }
        ExtendedTVEntry show;
        show.basic = newEntry(m_input, m_item, *start);
        show.extra = std::make_shared<TVEntrySupplementalData>();
        QString title = trimmed(withoutTags(name->text)).value_or(QString());
        splitEpisode(title, *show.basic);
        if (title.isEmpty()) {
            return;
        }
        show.basic->setIdentificator(title);
        if (const auto text = trimmed(block->text)) {
            readBlock(*text, *show.basic, *show.extra);
        }
        if (const QUrl picture = source ? QUrl(pageString(source->text)) : QUrl(); isWebURL(picture)) {
            show.pictures.insert(picture);
        }
        show.basic->setSourceId(m_item.sourceId);
        show.categories = classifyEntry(*show.basic);
        m_list.push_back(std::move(show));
    }

    const ListReaderInput& m_input;
    const LoadItem& m_item;
    std::vector<ExtendedTVEntry>& m_list;
    const MarkerPlaces m_rows;
    const MarkedFields m_titles;
    const MarkedFields m_blocks;
    const MarkedFields m_pictures;
    ZoneClock m_prague{QTimeZone("Europe/Prague")};
};

} // namespace

void readPrimaMaxLists(const ListReaderInput& input, ParsedLists& lists) {
    const QByteArray text = joinedPages(input.pages);
    MarkerWalk walk(pageText(text), input.trace);
    DayReader reader(input, pageText(text), lists[input.items.front().channel]);

    Moment day = input.now;
    for (int i = 0; i < kMostDays; ++i, day += kDay) {
        const QDate date = reader.dateAt(day);
        if (!walk.pass(kTab)) {
            qCInfo(parsersLog, "dayKey %s not found", qPrintable(date.toString(Qt::ISODate)));
            return;
        }
        if (!walk.find(kRow)) {
            qCInfo(parsersLog, "class item not found");
            return;
        }
        // Stops before the next day, so that a day without rows does not take its rows.
        MarkerWalk tab = walk.part(walk.position(), walk.findOrLimit(kTab));
        walk.moveTo(tab.limit());
        if (tab.contains(kRow)) {
            tab.pass(kRow);
            reader.read(tab, date, reader.dateAt(day + kDay));
        }
    }
}

PlannedURLs planPrimaMaxPages(const PlanRequest& request) {
    const std::optional<QString> page =
        joinedURL(request.hosts.base(u"PrimaMaxSourceId"_s), "/tv-program"_L1);
    if (!page) {
        return std::nullopt;
    }
    URLList urls;
    urls.add(*page);
    for (int day = 1; day <= 3; ++day) {
        urls.add(*page + u'/' + yearMonthDayText(dateAtServer(u"cz", request.now + day * kPlanDay)));
    }
    return std::move(urls).result();
}

} // namespace guide
