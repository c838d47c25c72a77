#include "parsers/xmltv/ProgrammeSkipScan.h"

#include "parsers/xmltv/FeedListing.h"

#include <array>
#include <gtest/gtest.h>

namespace guide::test {
namespace {

const Alphabet kAlphabet;
const Moment kNow = std::chrono::sys_days{std::chrono::year{2026} / 11 / 21};
const XMLTVOptions kOptions{.shows = {.alphabet = kAlphabet}, .now = kNow};

constexpr const char* kTimes = R"(start="20261122180000 +0000" stop="20261122190000 +0000")";

/// A programme with these attributes and content; `@` is replaced by the times.
std::string programme(std::string attributes, const std::string& content) {
    if (const auto place = attributes.find('@'); place != std::string::npos) {
        attributes.replace(place, 1, kTimes);
    }
    return "<programme " + attributes + ">" + content + "</programme>";
}

std::string show(const std::string& channel, const std::string& title) {
    return programme("@ channel=\"" + channel + "\"", "<title>" + title + "</title>");
}

struct Piece {
    const char* name;
    std::string text;
};

/// What precedes a skipped programme, named after the state in which it leaves the reader.
const std::array<Piece, 6> kStates{{
    {"clean", show("w", "Clean")},
    {"after a placeholder", show("w", "NEMA INFORMACIJA")},
    {"after a show without a title", programme("@ channel=\"w\"", "<desc>Untitled</desc>")},
    {"after an ended show",
     programme("start=\"20200101000000 Z\" stop=\"20200101010000 Z\" channel=\"w\"", "<title>E</title>")},
    {"after a show without a stop",
     programme("start=\"20261122180000 Z\" channel=\"w\"", "<title>S</title>")},
    {"at the start", ""},
}};

/// Programmes, most of them unwanted, with everything that XML allows.
const std::array<Piece, 23> kSkippable{{
    {"plain", show("u", "Skipped")},
    {"no channel", programme("@", "<title>Skipped</title>")},
    {"empty", "<programme channel=\"u\"/>"},
    {"blanks in the tags", "<programme\n channel = \"u\"\t x=\"1\" ></programme \n>"},
    {"single quotes", "<programme channel='u' note='say \"w\" > \"u\"'><title>S</title></programme>"},
    {"an end in a value", "<programme note=\"/programme>\" channel=\"u\"><title>S</title></programme>"},
    {"greater-than signs in values", "<programme note=\"a > b />\" channel=\"u\"/>"},
    {"an end in a comment", programme("@ channel=\"u\"", "<!-- </programme><programme> --><title>S</title>")},
    {"an end in a CDATA section",
     programme("@ channel=\"u\"", "<title><![CDATA[</programme><programme>]]></title>")},
    {"an end in an instruction",
     programme("@ channel=\"u\"", "<?x </programme><programme> ?><title>S</title>")},
    {"a tab in the id", programme("@ channel=\"w\t1\"", "<title>S</title>")},
    {"a line end in the id", programme("@ channel=\"w\r\n1\"", "<title>S</title>")},
    {"a numbered tab in the id", programme("@ channel=\"w&#9;1\"", "<title>S</title>")},
    {"a numbered id", show("&#x77;", "Wanted")},
    {"a decimal id", show("&#119;", "Wanted")},
    {"an id with hexadecimal letters", show("&#x6a;&#x6F;", "Wanted")},
    {"a reference in the id", show("v&amp;&lt;&gt;&quot;&apos;", "Wanted")},
    {"elements with similar names",
     programme("@ channel=\"u\"", "<programmes/><programme-id></programme-id><title>S</title>")},
    {"a prefixed name", "<x:programme xmlns:x=\"y\" channel=\"w\"><title>None</title></x:programme>"},
    {"a prefixed id", "<programme xmlns:x=\"y\" x:channel=\"w\"><title>None</title></programme>"},
    {"all texts",
     programme("@ channel=\"u\"", "<category desc=\"News\">x</category><previously-shown/><sub-title>y"
                                  "</sub-title><actor>z</actor><icon src=\"http://h/i\"/>")},
    {"wanted", show("w", "Wanted &amp; kept")},
    {"non-ASCII letters", show("ů", "Šťastná")},
}};

/// Input for which the scan gives up.
const std::array<Piece, 20> kDoubtful{{
    {"nested", programme("@ channel=\"u\"", show("w", "Inner"))},
    {"nested in a child", programme("@ channel=\"u\"", "<title>" + show("u", "Inner") + "</title>")},
    {"an unknown reference", show("&w;", "Unknown")},
    {"a malformed reference", show("a & b", "Malformed")},
    {"a reference to no character", show("&#0;", "None")},
    {"a reference out of range", show("&#x110000;", "None")},
    {"twice the same attribute", programme("channel=\"u\" @ channel=\"w\"", "<title>T</title>")},
    {"unquoted", programme("channel=u @", "<title>T</title>")},
    {"unspaced", programme("id=\"1\"channel=\"w\" @", "<title>T</title>")},
    {"no value", programme("channel @", "<title>T</title>")},
    {"a tag in a value", programme("channel=\"u<\" @", "<title>T</title>")},
    {"no end", "<programme channel=\"u\"><title>T</title>"},
    {"no end of the tag", "<programme channel=\"u\""},
    {"no end of a value", "<programme channel=\"u"},
    {"no end of a comment", programme("@ channel=\"u\"", "<!-- ")},
    {"no end of a CDATA section", programme("@ channel=\"u\"", "<title><![CDATA[ ")},
    {"no end of an instruction", programme("@ channel=\"u\"", "<? ")},
    {"text in the end tag", "<programme channel=\"u\"></programme x>"},
    {"a declaration", programme("@ channel=\"u\"", "<!ELEMENT title ANY>")},
    {"a slash in the tag", "<programme channel=\"u\" / ></programme>"},
}};

/// Not well-formed, but it is certain where each programme ends.
const std::array<Piece, 6> kMalformed{{
    {"crossed tags", programme("@ channel=\"u\"", "<title>T")},
    {"crossed tags of a wanted one", programme("@ channel=\"w\"", "<title>T")},
    {"an unknown entity", programme("@ channel=\"u\"", "<title>&nbsp;</title>")},
    {"a lone ampersand", programme("@ channel=\"u\"", "<title>a & b</title>")},
    {"a second root", "</tv><tv>"},
    {"a zero byte", std::string("\0", 1)},
}};

const std::array<Piece, 7> kHeads{{
    {"plain", "<tv>"},
    {"declared", "<?xml version=\"1.0\" encoding=\"ISO-8859-2\"?>\n<tv>"},
    {"byte order mark", "\xEF\xBB\xBF<?xml version=\"1.0\"?><tv>"},
    {"external subset", "<!DOCTYPE tv SYSTEM \"a[>].dtd\"><tv>"},
    {"internal subset", "<!DOCTYPE tv [<!ENTITY w \"w\"><!ATTLIST programme channel CDATA \"w\">]><tv>"},
    {"programmes in comments and sections",
     "<!-- <programme channel=\"u\"> --><?p <programme channel=\"u\"> ?><tv><channel id=\"w\">"
     "<display-name><![CDATA[<programme channel=\"u\">]]></display-name></channel>"},
    {"nested", "<tv><title><group>"},
}};

const std::array<Piece, 4> kGaps{
    {{"none", ""},
     {"blanks", "\r\n\t "},
     {"a comment", "<!-- <programme> -->"},
     {"text and an element", "text<title>Outside</title><programmes channel=\"u\"></programmes>"}}};

std::string foot(const Piece& head) {
    return head.name == std::string_view("nested") ? "</group></title></tv>" : "</tv>";
}

const std::array<std::vector<QString>, 3> kWanted{
    {{QStringLiteral("w")},
     {QStringLiteral("w"), QStringLiteral("w 1")},
     {QStringLiteral("v&<>\"'"), QStringLiteral("w"), QStringLiteral("w\t1"), QStringLiteral("jo")}}};

constexpr std::array<std::size_t, 6> kPieces{1, 2, 3, 7, 64, 4096};

/// Expects the scan in windows to keep the same for every window: what the scan of the whole feed keeps, or,
/// where that gives up, what gives the same shows as the whole feed.
void expectSameInPieces(const QByteArray& feed, const std::vector<QString>& wanted,
                        const std::optional<FilteredFeed>& whole, bool isXML, const std::string& what) {
    const WantedChannels channels(wanted);
    const QByteArray kept = filteredPieces(feed, FeedScan::kWindow, channels);
    // Each part of the documents meets each size of a window, at one or another place.
    static std::size_t turn = 0;
    const std::size_t piece = kPieces[turn++ % kPieces.size()];
    EXPECT_EQ(filteredPieces(feed, piece, channels), kept) << what << ", in pieces of " << piece;
    if (whole) {
        EXPECT_EQ(kept, whole->feed) << what;
    }
    const FeedListing ours = listingOfPieces(kept, piece, wanted, kOptions);
    const FeedListing all = listing(feed, wanted, kOptions);
    EXPECT_TRUE(isXML ? all == ours : isPrefix(all, ours)) << what << "\n" << feed.constData();
}

/// Expects the scan and the parser together to give the shows of the parser alone. Returns whether anything
/// was left out.
bool expectSameShows(const std::string& document, const std::string& what) {
    const QByteArray feed = QByteArray::fromStdString(document);
    const bool isXML = isWellFormed(feed);
    bool hasSkipped = false;
    for (const std::vector<QString>& wanted : kWanted) {
        const auto kept = withoutUnwantedProgrammes(feed, WantedChannels(wanted));
        expectSameInPieces(feed, wanted, kept, isXML, what);
        if (!kept) {
            continue;
        }
        hasSkipped = true;
        const FeedListing whole = listing(feed, wanted, kOptions);
        const FeedListing ours = listing(kept->feed, wanted, kOptions);
        if (isXML) {
            EXPECT_EQ(whole, ours) << what << "\n" << document << "\n" << kept->feed.toStdString();
        } else {
            EXPECT_TRUE(isPrefix(whole, ours)) << what << "\n"
                                               << document << "\n"
                                               << kept->feed.toStdString();
        }
    }
    return hasSkipped;
}

/// Tests every piece after every state of the reader, at every position of every kind of document.
template <std::size_t Count>
void crossPieces(const std::array<Piece, Count>& pieces, bool isXML) {
    for (const Piece& piece : pieces) {
        for (const Piece& head : kHeads) {
            for (const Piece& state : kStates) {
                for (const Piece& gap : kGaps) {
                    const std::string what =
                        std::string(piece.name) + ", " + head.name + ", " + state.name + ", gap: " + gap.name;
                    const std::string document = head.text + gap.text + state.text + gap.text + piece.text +
                                                 gap.text + show("u", "Unwanted") + gap.text +
                                                 show("w", "First") + gap.text + piece.text +
                                                 show("w", "Second") + piece.text + foot(head);
                    const bool hasSkipped = expectSameShows(document, what);
                    if (isXML) {
                        EXPECT_EQ(hasSkipped, head.name != std::string_view("internal subset")) << what;
                    }
                }
            }
        }
    }
}

TEST(ProgrammeSkipScan, GivesTheShowsOfTheWholeFeed) {
    crossPieces(kSkippable, true);
}

TEST(ProgrammeSkipScan, LosesNoShowOfAMalformedFeed) {
    crossPieces(kMalformed, false);
}

TEST(ProgrammeSkipScan, GivesUpWhenInDoubt) {
    for (const Piece& piece : kDoubtful) {
        const QByteArray feed =
            QByteArray::fromStdString("<tv>" + show("u", "Skipped") + piece.text + "</tv>");
        EXPECT_FALSE(withoutUnwantedProgrammes(feed, WantedChannels(kWanted[0]))) << piece.name;
        expectSameInPieces(feed, kWanted[0], std::nullopt, isWellFormed(feed), piece.name);
    }
}

TEST(ProgrammeSkipScan, ReplacesARunByOnePlaceholder) {
    const QByteArray feed =
        QByteArray::fromStdString("<tv> " + show("u", "1") + "\n " + show("x", "2") + show("", "3") +
                                  " <!-- kept -->" + show("w", "Kept") + "<programme/> </tv>");
    const WantedChannels wanted(kWanted[0]);
    const auto kept = withoutUnwantedProgrammes(feed, wanted);
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->feed.toStdString(),
              "<tv> <programme/> <!-- kept -->" + show("w", "Kept") + "<programme/> </tv>");
    for (const QByteArray& mark :
         {QByteArray("<tv>"), QByteArray("<!--"), QByteArray("Kept</"), QByteArray("</tv>")}) {
        EXPECT_EQ(kept->offsetInWhole(feed, static_cast<std::size_t>(kept->feed.indexOf(mark))),
                  static_cast<std::size_t>(feed.indexOf(mark)))
            << mark.toStdString();
    }
    EXPECT_FALSE(withoutUnwantedProgrammes(feed, wanted, static_cast<std::uint64_t>(kept->feed.size())));
}

TEST(ProgrammeSkipScan, GivesUpWhenNothingCanBeLeftOut) {
    const QByteArray feed = QByteArray::fromStdString("<tv>" + show("w", "1") + show("v", "2") + "</tv>");
    EXPECT_FALSE(withoutUnwantedProgrammes(feed, WantedChannels({})));
    EXPECT_FALSE(withoutUnwantedProgrammes(feed, WantedChannels({QStringLiteral("w"), QStringLiteral("v")})));
}

} // namespace
} // namespace guide::test
