#include "parsers/xmltv/XMLTVListReader.h"

#include "parsers/ParsersLog.h"
#include "parsers/xmltv/ProgrammeSkipScan.h"
#include "parsers/xmltv/XMLTVToEntries.h"

#include <algorithm>
#include <iterator>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// Logs where a page broke off. `kept` is what was read of the page, if it was not the whole.
void logBreak(const QByteArray& page, const std::optional<FilteredFeed>& kept, const XMLBreak& end) {
    const std::size_t byte = kept ? kept->offsetInWhole(page, end.byte) : end.byte;
    const auto line = std::count(page.cbegin(), page.cbegin() + static_cast<qsizetype>(byte), '\n') + 1;
    qCInfo(parsersLog, "the feed broke off at line %lld, byte %zu: %s", static_cast<long long>(line), byte,
           end.message.c_str());
}

/// The channel that gets the shows of `feedChannel`; nothing when it is unwanted.
std::optional<ObjectId> channelOf(const QString& feedChannel, const std::vector<LoadItem>& items,
                                  const std::vector<QString>& wanted) {
    if (wanted.empty()) {
        return items.front().channel;
    }
    const auto last = std::find(wanted.rbegin(), wanted.rend(), feedChannel);
    if (last == wanted.rend()) {
        return std::nullopt;
    }
    return items[static_cast<std::size_t>(wanted.rend() - last) - 1].channel;
}

} // namespace

std::vector<QString> wantedFeedChannels(const std::vector<LoadItem>& items) {
    std::vector<QString> wanted;
    for (const LoadItem& item : items) {
        const QString& id = item.sourceId;
        if (id.startsWith("r."_L1)) {
            // The part after the group. An id without a channel matches no channel instead of all.
            const qsizetype point = id.indexOf(u'.', 2);
            wanted.push_back(point < 0 ? u""_s : id.mid(point + 1));
        } else if (id.startsWith("tvpc."_L1)) {
            wanted.push_back(id.mid(5));
        } else if (id.startsWith("s."_L1) || id.startsWith("n."_L1)) {
            wanted.push_back(id.mid(2));
        }
    }
    return wanted;
}

void readXMLTVLists(const ListReaderInput& input, ParsedLists& lists) {
    if (input.items.empty()) {
        return;
    }
    const std::vector<QString> wanted = wantedFeedChannels(input.items);
    const WantedChannels filter(wanted);
    const bool useImage = std::any_of(input.items.begin(), input.items.end(),
                                      [](const LoadItem& item) { return item.sourceId.endsWith(".tv"_L1); });
    const auto imageBase = useImage ? input.hosts.base(u"FeedImageBase"_s) : std::nullopt;
    const XMLTVOptions options{.shows = {.alphabet = input.alphabet,
                                         .locale = input.locale,
                                         .imageBase = imageBase ? *imageBase + "/images/"_L1 : QString(),
                                         .siteHost = input.hosts.name(u"FeedSiteHost"_s).value_or(QString())},
                               .now = input.clock.now(),
                               .useImage = useImage,
                               .control = &input.control};

    bool isSchedule = false;
    for (const QByteArray& page : input.pages) {
        if (input.control.isStopped()) {
            break;
        }
        // One half for the programmes to read, the other one for their shows.
        const auto kept = withoutUnwantedProgrammes(page, filter, input.control.memoryLeft() / 2);
        XMLTVToEntries reader(kept ? kept->feed : page, wanted, options);
        isSchedule = isSchedule || reader.hasProgrammes() || page.contains("<tv");
        if (reader.brokeOff() && !page.isEmpty() && !input.control.isStopped()) {
            logBreak(page, kept, *reader.brokeOff());
            input.control.setIncomplete();
        }
        for (FeedChannelEntries& feedChannel : reader.entries()) {
            const auto channel = channelOf(feedChannel.sourceId, input.items, wanted);
            if (!channel) {
                continue;
            }
            std::vector<ExtendedTVEntry>& list = lists[*channel];
            for (ExtendedTVEntry& entry : feedChannel.entries) {
                entry.basic->setChannel(*channel);
                entry.basic->setSourceId(feedChannel.sourceId);
            }
            std::move(feedChannel.entries.begin(), feedChannel.entries.end(), std::back_inserter(list));
        }
    }
    if (!isSchedule) {
        input.control.setNotASchedule();
    }
    if (lists.empty()) {
        input.trace.miss(wanted.empty() ? "<programme" : "channel=\"" + wanted.front().toStdString() + '"');
    }
}

} // namespace guide
