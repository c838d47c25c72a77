#include "FuzzInput.h"
#include "FuzzTarget.h"
#include "core/SupportedChannelTypes.h"
#include "fakes/Packing.h"
#include "parsers/URLPlanner.h"
#include "parsers/formats/RecordedCall.h"
#include "platform/encoding/Utf8.h"
#include "sources/PageText.h"

#include <QSet>

#include <array>

namespace guide::fuzz {

namespace {

constexpr std::array<const char*, 9> kContentTypes{"",
                                                   "text/html; charset=iso-8859-2",
                                                   "text/html; charset=\"windows-1250\"",
                                                   "application/xml;charset=UTF-16",
                                                   "application/x-gzip",
                                                   "application/x-xz",
                                                   "text/html; charset=iso-2022-kr",
                                                   "text/html; charset=utf-7",
                                                   "text/xml; charset="};

/// The memory that is passed to pageText; unpacking may use a quarter of it.
constexpr std::uint64_t kMemory = 64 << 20;

void makePage(QByteArrayView bytes) {
    const FuzzInput input(bytes);
    HTTPResponse response{.statusCode = 200, .headers = {}};
    if (const QByteArray type = kContentTypes[input.choice(kContentTypes.size())]; !type.isEmpty()) {
        response.headers.append({"Content-Type", type});
    }
    const PageText page = pageText(input.whole(), response, kMemory);
    require(page.text.has_value() == (page.reason == PageReason::None), "a missing page has a reason");
    if (page.text) {
        require(isValidUtf8(*page.text), "a page is UTF-8");
        require(static_cast<std::uint64_t>(page.text->size()) <= kMemory, "unpacking is bounded");
    }
}

/// Parts: a host table, a source id, a table of languages.
void plan(QByteArrayView bytes) {
    static const Moment now = std::chrono::sys_days{std::chrono::year{2026} / 10 / 25};
    const FuzzInput input(bytes);
    std::vector<QByteArray> parts = input.textParts(3);
    parts.resize(3);
    SupportedChannelTypes::fromJson(parts[2]);
    const auto hosts = SourceHostTable::fromJson(parts[0]);
    const QString sourceId = QString::fromUtf8(parts[1]);
    const URLPlanner planner(hosts.value_or(SourceHostTable()), [](unsigned bound) { return bound - 1; });
    listingsTypeForSourceId(sourceId, planner.hosts());
    const auto urls = planner.urlsForSourceId(sourceId, now, QTimeZone("Europe/Prague"));
    if (urls) {
        require(QSet<QUrl>(urls->begin(), urls->end()).size() == urls->size(), "no page is planned twice");
    }
}

} // namespace

std::vector<FuzzTarget> sourceTargets() {
    return {
        {.name = "page-text",
         .run = makePage,
         .seeds =
             [] {
                 const QByteArray text = "<tv>Šťastná chvíle</tv>";
                 std::vector<QByteArray> seeds{fuzzInput({gzipped(text)}, 4), fuzzInput({xzPacked(text)}, 5),
                                               fuzzInput({gzipped(text)}, 0), fuzzInput({xzPacked(text)}, 0)};
                 for (std::size_t type = 0; type < kContentTypes.size(); ++type) {
                     seeds.push_back(fuzzInput({text}, type));
                 }
                 return seeds;
             },
         .literals = {"sources/PageText.cpp"},
         .maxMemoryPerByte = 0},
        {.name = "planner",
         .run = plan,
         .seeds =
             [] {
                 const QByteArray hosts =
                     test::recordedContent(QStringLiteral(QUELLIN_TEST_DATA "/recorded/hosts.json"));
                 std::vector<QByteArray> seeds;
                 for (const char* id : {"42", "-hbo.ro.1", "cinestar.hr.1", "joj.cinema", "_1", "cc.romania",
                                        "http://primamax.example", "a.b.cz", "10000"}) {
                     seeds.push_back(fuzzInput({hosts, id, R"([{"language": "cs", "region": "CZ"}])"}));
                 }
                 return seeds;
             },
         .literals = {"parsers/SourceFormats.cpp", "parsers/xmltv/FeedPlans.cpp",
                      "sources/SourceHostTable.cpp"}},
    };
}

} // namespace guide::fuzz
