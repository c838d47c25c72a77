#include "FuzzInput.h"
#include "FuzzTarget.h"
#include "parsers/formats/RecordedCall.h"
#include "parsers/xmltv/FeedListing.h"
#include "parsers/xmltv/ProgrammeSkipScan.h"
#include "parsers/xmltv/XMLTVDate.h"

#include <QDateTime>

namespace guide::fuzz {

namespace {

const std::vector<std::vector<QString>>& wantedChannels() {
    static const std::vector<std::vector<QString>> wanted{
        {QStringLiteral("w")},
        {QStringLiteral("w"), QStringLiteral("v")},
        {QStringLiteral("reka1.cz")},
        {QStringLiteral("reka1.cz"), QStringLiteral("kino3.sk"), QStringLiteral("hrid")},
    };
    return wanted;
}

/// Skipping unwanted programmes must not change the wanted shows.
void leaveOutUnwanted(QByteArrayView bytes) {
    static const Alphabet alphabet;
    static const Moment now = std::chrono::sys_days{std::chrono::year{2026} / 1 / 1};
    static const XMLTVOptions options{.shows = {.alphabet = alphabet}, .now = now};
    const FuzzInput input(bytes);
    const std::vector<QString>& wanted = wantedChannels()[input.choice(wantedChannels().size())];
    const QByteArray feed = input.textParts(1).front();
    const auto kept = withoutUnwantedProgrammes(feed, WantedChannels(wanted));
    if (!kept) {
        return;
    }
    require(kept->feed.size() < feed.size() + 16, "skipping programmes shortens a feed");
    const test::FeedListing whole = test::listing(feed, wanted, options);
    const test::FeedListing ours = test::listing(kept->feed, wanted, options);
    require(test::isPrefix(whole, ours), "no wanted show is lost");
    if (test::isWellFormed(feed) && test::isWellFormed(kept->feed)) {
        require(whole == ours, "a well-formed feed gives the same shows");
    }
}

void readDate(QByteArrayView bytes) {
    const auto date = parseXMLTVDate({bytes.data(), static_cast<std::size_t>(bytes.size())});
    if (date) {
        const QByteArray digits = bytes.first(std::min<qsizetype>(bytes.size(), 14)).toByteArray();
        const QDateTime naive =
            QDateTime::fromString(QString::fromLatin1(digits) + u'Z', QStringLiteral("yyyyMMddHHmmsst"));
        require(naive.isValid(), "an accepted date is valid");
        const auto offset = naive.toMSecsSinceEpoch() - date->time_since_epoch().count();
        require(std::abs(offset) <= 24 * 3600 * 1000, "an offset is less than a day");
    }
}

} // namespace

std::vector<FuzzTarget> feedTargets() {
    const auto seeds = [] {
        std::vector<QByteArray> feeds;
        for (const QString& stem : test::recordedStems(QStringLiteral("xmltv"))) {
            for (const QByteArray& page : test::RecordedCall(stem).pages()) {
                for (std::size_t choice = 0; choice < wantedChannels().size(); ++choice) {
                    feeds.push_back(fuzzInput({page}, choice));
                }
            }
        }
        for (const char* odd :
             {"<tv><programme channel=\"u\"/><programme channel='w' start=\"20261122180000 Z\" "
              "stop=\"20261122190000 Z\"><title>A</title></programme></tv>",
              "<?xml version=\"1.0\"?><!DOCTYPE tv SYSTEM \"a[>].dtd\"><tv><!-- <programme> --><programme "
              "channel=\"u\"><title><![CDATA[</programme>]]></title></programme><programme "
              "channel=\"&#119;\" start=\"20261122180000 Z\" stop=\"20261122190000 Z\"><title>B</title>"
              "</programme></tv>"}) {
            feeds.push_back(fuzzInput({odd}, 0));
        }
        return feeds;
    };
    return {{.name = "programme-skip-scan",
             .run = leaveOutUnwanted,
             .seeds = seeds,
             .literals = {"parsers/xmltv/ProgrammeSkipScan.cpp", "parsers/xmltv/XMLTVSaxParser.cpp"}},
            {.name = "xmltv-date", .run = readDate, .seeds = [] {
                 return std::vector<QByteArray>{"20240101120000 +0100", "20240229235959 -05:45",
                                                "20240101120000Z"};
             }}};
}

} // namespace guide::fuzz
