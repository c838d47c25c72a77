#include "parsers/formats/PortNetworkListReader.h"

#include "parsers/formats/EntryClassifier.h"
#include "parsers/formats/ReaderPages.h"
#include "parsers/markers/DateText.h"
#include "store/ListMerge.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace guide {

namespace {

using namespace Qt::StringLiterals;

/// Placeholders that are replaced by the English one inside a schedule.
constexpr std::array<QStringView, 4> kRenamed{
    u"Nincs információ",
    u"Nie je informácia",
    u"Nema sadržaja",
    u"Nema podataka",
};
constexpr int kPortDays = 7;
constexpr int kShortPortDays = 4;
/// The channels that have four days of schedule, ascending.
constexpr std::array kShortPortIds{41,    63,    69,    71,    151,   152,   156,   165,   170,
                                   197,   236,   264,   10078, 10110, 10113, 10123, 10124, 10142,
                                   10197, 10354, 20095, 40021, 40028, 40078, 60046, 60050};

/// Channels whose short description is not a description.
constexpr std::array kWithoutDescriptions{10058, 10109, 10132, 10192, 10193, 10194, 10306, 10316};

template <class Values, class Value>
bool contains(const Values& values, const Value& value) {
    return std::find(values.begin(), values.end(), value) != values.end();
}

/// "Z", or a sign, hours and minutes, with or without a colon.
std::optional<std::chrono::minutes> offsetOf(std::string_view text) {
    if (text == "Z") {
        return std::chrono::minutes(0);
    }
    const bool hasColon = text.size() == 6 && text[3] == ':';
    if ((text.size() != 5 && !hasColon) || (text[0] != '+' && text[0] != '-')) {
        return std::nullopt;
    }
    const auto hours = decimalNumber(text.substr(1, 2));
    const auto minutes = decimalNumber(text.substr(text.size() - 2));
    if (!hours || !minutes || *minutes > 59) {
        return std::nullopt;
    }
    const std::chrono::minutes offset = std::chrono::hours(*hours) + std::chrono::minutes(*minutes);
    return text[0] == '-' ? -offset : offset;
}

/// "yyyy-MM-ddTHH:mm:ss" and the offset from UTC.
std::optional<Moment> momentOf(const QJsonValue& value) {
    constexpr qsizetype kLongest = 25;
    const QString text = value.toString();
    if (text.size() < 20 || text.size() > kLongest || text[10] != u'T') {
        return std::nullopt;
    }
    std::array<char, kLongest> latin{};
    std::transform(text.begin(), text.end(), latin.begin(), [](QChar c) { return c.toLatin1(); });
    const std::string_view view(latin.data(), static_cast<std::size_t>(text.size()));
    const auto date = yearMonthDay(view.substr(0, 10));
    const auto time = timeWithSeconds(view.substr(11, 8));
    const auto offset = offsetOf(view.substr(19));
    if (!date || !time || !offset) {
        return std::nullopt;
    }
    return utcDay(*date) + *time - *offset;
}

QString withoutParentheses(const QString& text) {
    const bool wrapped = text.size() >= 3 && text.startsWith(u'(') && text.endsWith(u')');
    return wrapped ? text.sliced(1, text.size() - 2) : text;
}

class ProgrammeReader {
  public:
    ProgrammeReader(const ListReaderInput& input, std::vector<ExtendedTVEntry>& list)
        : m_input(input)
        , m_item(input.items.front())
        , m_list(list)
        , m_describes(!contains(kWithoutDescriptions, m_item.sourceId.toInt()))
        , m_site(input.hosts.base(u"PortHost"_s)) {}

    void read(const QJsonObject& programme) {
        const QJsonValue title = programme[u"title"];
        if (!title.isString()) {
            m_input.trace.miss("\"title\"");
            return;
        }
        QString name = title.toString();
        if (m_list.empty() && isEmptySlotTitle(name)) {
            return;
        }
        if (contains(kRenamed, QStringView(name))) {
            name = u"No information"_s;
        }
        const auto start = momentOf(programme[u"start_datetime"]);
        if (!start) {
            m_input.trace.miss("\"start_datetime\"");
        }
        if (!start || (!m_list.empty() && m_list.back().basic->dateTime() == start)) {
            return;
        }
        auto entry = newEntry(m_input, m_item, name, *start);
        entry->setEndDateTime(momentOf(programme[u"end_datetime"]));
        if (const QJsonValue subtitle = programme[u"episode_title"]; subtitle.isString()) {
            entry->setSubtitle1(subtitle.toString());
        }
        if (const QJsonValue text = programme[u"short_description"]; m_describes && text.isString()) {
            entry->setInstantDescription1(withoutParentheses(text.toString()));
        }
        if (const QString url = urlOf(programme[u"film_url"].toString()); !url.isEmpty()) {
            entry->setUrl(QUrl(url));
        }
        if (const QJsonValue repeat = programme[u"is_repeat"]; repeat.isDouble() || repeat.isBool()) {
            entry->setPreviouslyShown(repeat.toBool() || repeat.toDouble() != 0);
        }
        entry->setSourceId(m_item.sourceId);
        const TVListingsCategory categories = classifyEntry(*entry);
        m_list.push_back({std::move(entry), categories, nullptr, {}});
    }

  private:
    QString urlOf(const QString& text) const {
        return text.size() >= 2 && text.startsWith(u'/') ? m_site.value_or(QString()) + text : text;
    }

    const ListReaderInput& m_input;
    const LoadItem& m_item;
    std::vector<ExtendedTVEntry>& m_list;
    const bool m_describes;
    const std::optional<QString> m_site;
};

} // namespace

void readPortNetworkLists(const ListReaderInput& input, ParsedLists& lists) {
    const QByteArray* page = pageNumbered(input, 0);
    if (!page) {
        return;
    }
    const QJsonDocument document = QJsonDocument::fromJson(*page);
    if (!document.isObject()) {
        input.trace.miss("{");
        return;
    }
    std::vector<ExtendedTVEntry> list;
    ProgrammeReader reader(input, list);
    const QJsonObject days = document.object();
    for (const QJsonValue day : days) {
        const QJsonValue channel = day[u"channels"].toArray().first();
        if (!channel.isObject()) {
            input.trace.miss("\"channels\"");
        }
        const QJsonArray programmes = channel[u"programs"].toArray();
        if (programmes.isEmpty()) {
            input.trace.miss("\"programs\"");
        }
        for (const QJsonValue programme : programmes) {
            if (programme.isObject()) {
                reader.read(programme.toObject());
            }
        }
    }
    if (!list.empty()) {
        lists[input.items.front().channel] = std::move(list);
    }
}

PlannedURLs planPortNetworkPage(const PlanRequest& request) {
    const int window =
        std::ranges::binary_search(kShortPortIds, request.sourceId.toInt()) ? kShortPortDays : kPortDays;
    return singleURL(request.hosts.base(u"PortHost"_s),
                     "/tvapi?channel_id=tvchannel-"_L1 + request.sourceId + "&i_datetime_from="_L1 +
                         yearMonthDayText(dateAtServer(u"hu", request.now)) + "&i_datetime_to="_L1 +
                         yearMonthDayText(dateAtServer(u"hu", request.now + window * kPlanDay)));
}

} // namespace guide
