#include "FuzzInput.h"
#include "FuzzTarget.h"
#include "parsers/formats/RecordedCall.h"
#include "platform/archive/Archive.h"
#include "platform/archive/ArchiveContainer.h"
#include "platform/archive/PropertyList.h"
#include "store/ShowCoding.h"

namespace guide::fuzz {

namespace {

/// Reads an arbitrary archive, or a list's file with a valid checksum, so that the code after the check is
/// reached.
void readArchive(QByteArrayView bytes) {
    static const Alphabet alphabet;
    const FuzzInput input(bytes);
    QByteArray archive = input.whole();
    if (input.choice(2) == 1) {
        archive.prepend(QByteArray(kArchiveHeaderSize, '\0'));
        sealArchive(archive);
    } else {
        unarchivedRoot(archive);
    }
    const auto shows = unarchivedShows(archive, alphabet);
    if (!shows) {
        return;
    }
    for (const ShowItem& show : *shows) {
        require(show.entry()->identificator() && show.entry()->dateTime(), "a show has a title and a start");
    }
    const auto again = unarchivedShows(archivedShows(*shows), alphabet);
    require(again && again->size() == shows->size(), "a list that was read can be archived again");
    for (std::size_t i = 0; i < shows->size(); ++i) {
        const auto& facts = (*shows)[i].entry()->facts();
        const auto& kept = (*again)[i].entry()->facts();
        require(facts ? kept && *kept == *facts : !kept, "its facts are the same again");
    }
}

void readPropertyList(QByteArrayView bytes) {
    propertyListFromData(FuzzInput(bytes).whole());
}

/// An archive of one show with every fact.
QByteArray archiveWithFacts() {
    static const Alphabet alphabet;
    ShowFacts facts;
    facts.originalTitle = QStringLiteral("The Harbour");
    facts.episode = {1, 2, 3, 4, 5};
    facts.year = 1999;
    facts.countries = {QStringLiteral("CZ"), QStringLiteral("SK")};
    facts.ageRating = QStringLiteral("12");
    facts.starRating = StarRating{7.5, 10};
    facts.newness = Newness::New;
    const auto entry = std::make_shared<TVEntry>(alphabet);
    entry->setIdentificator(QStringLiteral("Přístav"));
    entry->setDateTime(Moment(std::chrono::hours(500'000)));
    entry->setFacts(std::make_shared<const ShowFacts>(facts));
    return archivedShows(ShowItems{ShowItem(entry)});
}

std::vector<QByteArray> archives() {
    std::vector<QByteArray> seeds{fuzzInput({archiveWithFacts()}, 0),
                                  fuzzInput({archiveWithFacts().sliced(kArchiveHeaderSize)}, 1)};
    for (const char* format : {"xmltv", "hbo"}) {
        for (const QString& stem : test::recordedStems(QString::fromLatin1(format))) {
            const test::RecordedCall call(stem);
            for (const auto& [channel, list] : call.lists(call.pages()).lists) {
                const QByteArray archive = archivedShows(*list);
                seeds.push_back(fuzzInput({archive}, 0));
                seeds.push_back(fuzzInput({archive.sliced(kArchiveHeaderSize)}, 1));
            }
        }
    }
    return seeds;
}

} // namespace

std::vector<FuzzTarget> archiveTargets() {
    return {
        {.name = "archive", .run = readArchive, .seeds = archives, .literals = {"store/ShowCoding.cpp"}},
        {.name = "property-list",
         .run = readPropertyList,
         .seeds =
             [] {
                 const QByteArray xml =
                     "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>Channels</key><array><dict>"
                     "<key>Title</key><string>Č&amp;T</string><key>n</key><integer>-42</integer>"
                     "<key>r</key><real>1.5</real><key>d</key><date>2025-12-31T18:30:00Z</date>"
                     "<key>b</key><data>AAEC</data><true/></dict></array></dict></plist>";
                 const QByteArray binary = QByteArray::fromHex("62706c6973743030d101025161a1035162080b0d0f000"
                                                               "0000000000101000000000000000400000000000000"
                                                               "00000000000000000011");
                 return std::vector<QByteArray>{fuzzInput({xml}), fuzzInput({binary})};
             },
         .literals = {"platform/archive/PropertyList.cpp", "platform/archive/PropertyListBounds.cpp"},
         .maxMemoryPerByte = 400},
    };
}

} // namespace guide::fuzz
