#include "parsers/xmltv/XMLTVToEntries.h"

#include "parsers/ParsersLog.h"
#include "parsers/xmltv/FeedListEnds.h"
#include "parsers/xmltv/XMLTVDate.h"
#include "text/categories/CategoryMapping.h"

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// In the feeds of the catalogue, programmes of channels that repeat another one an hour later are listed an
/// hour too late.
constexpr std::string_view kShiftedChannel = "Plus1";
constexpr std::chrono::hours kShift{1};
/// A show of which no usable end is known is over after it, whatever follows.
constexpr std::chrono::hours kLongestOpenShow = kLongestRepairedShow;

std::optional<std::string> single(const std::vector<QString>& channels) {
    return channels.size() == 1 ? std::optional(channels.front().toStdString()) : std::nullopt;
}

} // namespace

XMLTVToEntries::XMLTVToEntries(const QByteArray& data, const std::vector<QString>& channels,
                               XMLTVOptions options)
    : XMLTVToEntries(channels, std::move(options)) {
    m_break = parseXMLTV(data, *this, [this] { return isStopped(); });
}

XMLTVToEntries::XMLTVToEntries(TextSource& data, const std::vector<QString>& channels, XMLTVOptions options)
    : XMLTVToEntries(channels, std::move(options)) {
    const auto parse =
        reading().startsEntriesFresh ? parseXMLTVRows : static_cast<decltype(&parseXMLTVRows)>(parseXMLTV);
    m_break = parse(data, *this, [this] { return isStopped(); });
}

XMLTVToEntries::XMLTVToEntries(const std::vector<QString>& channels, XMLTVOptions options)
    : m_options(std::move(options))
    , m_maker(m_options.shows)
    , m_wanted(channels)
    , m_single(single(channels)) {
    if (parsersLog().isInfoEnabled()) {
        QStringList list(channels.begin(), channels.end());
        qCInfo(parsersLog, "channels=%s", qUtf8Printable(list.join(u", "_s)));
    }
}

bool XMLTVToEntries::isStopped() const {
    return m_isFull || (m_options.control && m_options.control->isStopped());
}

void XMLTVToEntries::started(XMLTVElement element, const XMLTVAttributes& attributes) {
    if (element == XMLTVElement::Programme) {
        m_hasProgrammes = true;
        startProgramme(attributes);
        return;
    }
    m_inside = element;
    if (!m_hasShow) {
        return;
    }
    if (reading().readsFacts) {
        m_show.details.started(element, attributes);
        return;
    }
    switch (element) {
    case XMLTVElement::PreviouslyShown:
        m_show.previouslyShown = true;
        break;
    case XMLTVElement::EpisodeNum:
    case XMLTVElement::SeriesId:
        m_show.categories |= TVListingsCategorySeries;
        break;
    case XMLTVElement::Actor:
        if (m_show.roles.isSet()) {
            m_show.roles.append(", ");
        }
        break;
    case XMLTVElement::Director:
        if (m_show.directedBy.isSet()) {
            m_show.directedBy.append(", ");
        }
        break;
    case XMLTVElement::Icon:
        if (const auto source = attributes.value("src")) {
            m_show.icon.assign(*source);
            m_show.iconIsImage = false;
        }
        break;
    case XMLTVElement::Category:
        if (const auto description = attributes.value("desc")) {
            m_show.categories |= mapCategoryAttribute(
                QString::fromUtf8(description->data(), static_cast<qsizetype>(description->size())));
        }
        break;
    default:
        break;
    }
}

void XMLTVToEntries::startProgramme(const XMLTVAttributes& attributes) {
    m_category.clear();
    if (reading().startsEntriesFresh) {
        m_hasShow = false;
        m_ignoreTitle = false;
    }
    const auto channel = attributes.value("channel");
    if (!m_wanted.all() && (!channel || !m_wanted.contains(*channel))) {
        m_inside.reset();
        m_hasShow = false;
        m_ignoreTitle = false;
        return;
    }
    const bool isShifted =
        !reading().keepsTimes && channel && channel->find(kShiftedChannel) != std::string_view::npos;
    // The view of the channel is invalid after the next attribute is read.
    std::string sourceId = m_single ? *m_single : std::string(channel.value_or(std::string_view{}));
    m_inside = XMLTVElement::Programme;

    const auto moment = [this, isShifted, &attributes](std::string_view name) {
        const auto text = attributes.value(name);
        const auto read = text ? parseXMLTVDate(*text, m_options.withoutOffset) : std::nullopt;
        return read && isShifted ? std::optional<Moment>(*read - kShift) : read;
    };
    std::optional<Moment> stop = moment("stop");
    if (!reading().repairsEnds && (!stop || *stop <= m_options.now)) {
        return;
    }
    const std::optional<Moment> start = moment("start");
    if (reading().repairsEnds) {
        if (!start) {
            return;
        }
        stop = stop && *stop > *start ? stop : std::nullopt;
        if (stop.value_or(*start + kLongestOpenShow) <= m_options.now) {
            std::optional<Moment>& last = channelEntries(sourceId).lastOver;
            last = last ? std::max(*last, *start) : *start;
            return;
        }
    }
    m_show.clear();
    m_hasShow = true;
    m_show.sourceId = std::move(sourceId);
    m_show.dateTime = start;
    m_show.endDateTime = stop;
}

void XMLTVToEntries::skippedProgramme() {
    m_hasShow = false;
    m_ignoreTitle = false;
    m_inside.reset();
}

void XMLTVToEntries::text(std::string_view piece) {
    if (!m_inside || !m_hasShow) {
        return;
    }
    if (reading().readsFacts) {
        m_show.details.text(piece);
        return;
    }
    switch (*m_inside) {
    case XMLTVElement::Title:
        if (!m_ignoreTitle) {
            m_show.title.append(piece);
        }
        break;
    case XMLTVElement::SubTitle:
        // Episode numbers.
        if (piece.front() < '0' || piece.front() > '9') {
            m_show.subtitle.append(piece);
        }
        break;
    case XMLTVElement::Desc:
        m_show.description.appendCollapsed(piece);
        break;
    case XMLTVElement::Actor:
        m_show.roles.append(piece);
        break;
    case XMLTVElement::Director:
        m_show.directedBy.append(piece);
        break;
    case XMLTVElement::Category:
        m_category.append(piece);
        break;
    case XMLTVElement::Image:
        if (m_options.useImage) {
            m_show.icon.assign(piece);
            m_show.iconIsImage = true;
        }
        break;
    default:
        break;
    }
}

bool XMLTVToEntries::wantsText() const {
    if (!m_inside || !m_hasShow) {
        return false;
    }
    return reading().readsFacts ? m_show.details.wantsText()
                                : *m_inside != XMLTVElement::Programme && *m_inside != XMLTVElement::Other;
}

void XMLTVToEntries::ended(XMLTVElement element) {
    if (element == XMLTVElement::Programme) {
        const bool hasTitle = m_show.title.isSet() || !m_show.details.titles.all().empty();
        if (m_hasShow && hasTitle && !finishShow() && !reading().startsEntriesFresh) {
            return;
        }
        m_inside.reset();
        m_ignoreTitle = false;
        return;
    }
    if (m_hasShow && reading().readsFacts) {
        m_show.details.ended();
    }
    if (m_inside) {
        m_inside = XMLTVElement::Programme;
    }
    if (element == XMLTVElement::Title) {
        m_ignoreTitle = true;
    }
}

bool XMLTVToEntries::hasRoomForShow() {
    if (!m_options.control) {
        return true;
    }
    std::size_t textBytes = m_show.details.byteCount();
    for (const FeedText* text : {&m_show.title, &m_show.subtitle, &m_show.description, &m_show.roles,
                                 &m_show.directedBy, &m_show.icon}) {
        textBytes += text->bytes().size();
    }
    const auto channel = m_channelIndices.find(m_show.sourceId);
    const bool hasPlace =
        channel == m_channelIndices.end() || m_entries[channel->second].entries.size() < kMostShowsOfChannel;
    // When this show does not fit into the memory, reading the following ones is pointless.
    m_isFull = hasPlace && !m_options.control->countShow(textBytes);
    if (hasPlace && !m_isFull) {
        return true;
    }
    if (!m_isCut) {
        qCInfo(parsersLog, "the feed has more shows than fit into %s", m_isFull ? "the memory" : "a list");
        m_isCut = true;
    }
    m_options.control->setIncomplete();
    return false;
}

FeedChannelEntries& XMLTVToEntries::channelEntries(const std::string& sourceId) {
    const auto [place, isNew] = m_channelIndices.try_emplace(sourceId, m_entries.size());
    if (isNew) {
        m_entries.push_back({.sourceId = QString::fromStdString(sourceId), .entries = {}});
    }
    return m_entries[place->second];
}

bool XMLTVToEntries::finishShow() {
    if (!hasRoomForShow()) {
        m_hasShow = false;
        return true;
    }
    const auto language = m_options.languages.find(m_show.sourceId);
    static const QString kUnknown;
    if (m_options.names) {
        const auto name = m_options.names->find(m_show.sourceId);
        m_show.channelName = name == m_options.names->end() ? kUnknown : name->second;
    }
    std::optional<ExtendedTVEntry> entry =
        m_maker.make(m_show, m_category, language == m_options.languages.end() ? kUnknown : language->second);
    if (!entry) {
        if (reading().repairsEnds) {
            channelEntries(m_show.sourceId).gaps.push_back(*m_show.dateTime);
        }
        return false;
    }
    FeedChannelEntries& channel = channelEntries(m_show.sourceId);
    entry->basic->setSourceId(channel.sourceId);
    channel.entries.push_back(*std::move(entry));
    m_hasShow = false;
    return true;
}

} // namespace guide
