#include "FuzzInput.h"
#include "FuzzTarget.h"
#include "parsers/formats/RecordedCall.h"
#include "store/ShowCoding.h"

#include <algorithm>
#include <iterator>

namespace guide::fuzz {

namespace {

/// More pages than any source has.
constexpr std::size_t kMaxPages = 16;

struct Format {
    const char* folder;
    std::vector<std::string> literals;
};

using Calls = std::vector<test::RecordedCall>;

/// A list that the store accepts must survive being written to its file and read again.
void requireGoodList(const ShowList& list) {
    require(list && !list->empty(), "a stored list has shows");
    const auto start = [](const ShowItem& show) { return show.entry()->dateTime(); };
    for (const ShowItem& show : *list) {
        require(start(show).has_value(), "a stored show has a start");
    }
    require(std::is_sorted(list->begin(), list->end(),
                           [&](const ShowItem& a, const ShowItem& b) { return start(a) < start(b); }),
            "a stored list is sorted by start");
    const auto read = unarchivedShows(archivedShows(*list), Alphabet());
    require(read.has_value(), "the file of a list can be read");
    const auto titled = std::count_if(list->begin(), list->end(), [](const ShowItem& show) {
        return show.entry()->identificator().has_value();
    });
    require(std::ssize(*read) == titled, "the file of a list contains its shows");
}

/// Reads arbitrary pages with the channels and the time of a recorded call.
void readPages(const Calls& calls, QByteArrayView bytes) {
    const FuzzInput input(bytes);
    const test::RecordedCall& call = calls[input.choice(calls.size())];
    const MergeResult merged = call.lists(input.textParts(kMaxPages));
    require(merged.outcomes.size() == std::min(merged.outcomes.size(), call.items().size()),
            "every outcome belongs to a channel");
    for (const auto& [channel, outcome] : merged.outcomes) {
        require((outcome == MergeOutcome::Stored) == merged.lists.contains(channel),
                "every stored channel has a list");
    }
    for (const auto& [channel, list] : merged.lists) {
        requireGoodList(list);
    }
}

FuzzTarget readerTarget(const Format& format) {
    const auto calls = std::make_shared<Calls>();
    for (const QString& stem : test::recordedStems(QString::fromLatin1(format.folder))) {
        calls->emplace_back(stem);
    }
    require(!calls->empty(), "every format has recorded pages");
    return {.name = format.folder,
            .run = [calls](QByteArrayView bytes) { readPages(*calls, bytes); },
            .seeds =
                [calls] {
                    std::vector<QByteArray> seeds;
                    seeds.reserve(calls->size());
                    for (std::size_t i = 0; i < calls->size(); ++i) {
                        seeds.push_back(fuzzInput((*calls)[i].pages(), i));
                    }
                    return seeds;
                },
            .literals = format.literals};
}

} // namespace

std::vector<FuzzTarget> readerTargets() {
    const std::vector<Format> formats{
        {"port-network", {"parsers/formats/PortNetworkListReader.cpp"}},
        {"xmltv",
         {"parsers/xmltv/XMLTVSaxParser.cpp", "parsers/xmltv/XMLTVToEntries.cpp",
          "parsers/xmltv/FeedShow.cpp"}},
        {"palinsesto", {"parsers/formats/PalinsestoListReader.cpp", "parsers/formats/PalinsestoEvents.cpp"}},
        {"barrandov", {"parsers/formats/BarrandovListReader.cpp"}},
        {"digi-sport", {"parsers/formats/DigiSportListReader.cpp"}},
        {"joj-cinema", {"parsers/formats/JojCinemaListReader.cpp"}},
        {"prima-max", {"parsers/formats/PrimaMaxListReader.cpp"}},
        {"hbo", {"parsers/formats/HBOListReader.cpp"}},
        {"nova", {"parsers/formats/NovaListReader.cpp"}},
        {"dolce-sport", {"parsers/formats/DolceSportListReader.cpp"}},
        {"cinestar", {"parsers/formats/CinestarListReader.cpp"}},
        {"comedy-central", {"parsers/formats/ComedyCentralListReader.cpp"}},
    };
    std::vector<FuzzTarget> targets;
    std::transform(formats.begin(), formats.end(), std::back_inserter(targets), readerTarget);
    return targets;
}

} // namespace guide::fuzz
