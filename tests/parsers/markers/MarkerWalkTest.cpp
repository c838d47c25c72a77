#include "parsers/markers/MarkerWalk.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

TEST(MarkerWalk, DoesNotMoveWhenAMarkerIsMissing) {
    MarkerTrace trace;
    MarkerWalk walk("<li>Čas 20:15</li><li>open", trace);
    EXPECT_EQ(walk.take("<li>", "</li>"), "Čas 20:15");
    const std::size_t place = walk.position();
    EXPECT_FALSE(walk.take("<li>", "</li>"));
    EXPECT_EQ(walk.position(), place);
    EXPECT_EQ(trace.lastMissed(), "</li>");
    EXPECT_TRUE(walk.pass("<li>"));
    EXPECT_EQ(walk.rest(), "open");
}

TEST(MarkerWalk, StaysWithinThePart) {
    MarkerTrace trace;
    const MarkerWalk page("a|bc|d|", trace);
    MarkerWalk part = page.part(2, 4);
    EXPECT_FALSE(part.find("|"));
    EXPECT_FALSE(part.find("c|")) << "a marker must end within the part";
    EXPECT_EQ(part.find("c"), 3U);
    EXPECT_EQ(part.find("bc"), 2U) << "a marker may fill the part";
    EXPECT_EQ(part.findOrLimit("d"), 4U);
    EXPECT_EQ(page.findLast("|"), 6U);
    EXPECT_FALSE(page.part(2, 4).findLast("a"));
    part.moveTo(100);
    EXPECT_TRUE(part.atEnd());
    EXPECT_EQ(part.part(0, 100).limit(), 4U);
}

TEST(MarkerWalk, CountsCharactersNotBytes) {
    MarkerTrace trace;
    EXPECT_EQ(MarkerWalk("žluťoučký", trace).characters(4), "žluť");
    EXPECT_EQ(MarkerWalk("ž", trace).characters(5), "ž");
}

TEST(MarkerPlaces, FindsTheNextMarkerFromAnyPosition) {
    const MarkerPlaces places("<p>1<p>2", "<p>");
    EXPECT_EQ(places.next(0), 0U);
    EXPECT_EQ(places.next(1), 4U);
    EXPECT_FALSE(places.next(5));
}

TEST(MarkedFields, FindFieldsFromAnyPosition) {
    const std::string text = "<a>1</a> <a><a>2</a> <a>open";
    const MarkedFields fields(text, "<a>", "</a>");
    const auto first = fields.next(0);
    ASSERT_TRUE(first);
    EXPECT_EQ(first->text, "1");
    EXPECT_EQ(first->end, 4U);
    EXPECT_EQ(fields.next(1)->text, "<a>2") << "the first opening marker counts";
    EXPECT_EQ(fields.next(10)->text, "2");
    EXPECT_TRUE(fields.next(0, 8));
    EXPECT_FALSE(fields.next(0, 7)) << "the closing marker must end before the limit";
    EXPECT_FALSE(fields.next(13));
    EXPECT_FALSE(fields.next(100));
}

} // namespace
} // namespace guide
