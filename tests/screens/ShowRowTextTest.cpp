#include "screens/ShowRowText.h"

#include <QDateTime>

#include <gtest/gtest.h>

namespace guide::test {

using namespace Qt::StringLiterals;

namespace {

Moment moment(const QString& text) {
    return Moment(std::chrono::milliseconds(QDateTime::fromString(text, Qt::ISODate).toMSecsSinceEpoch()));
}

TEST(ShowRowTextTest, TimesFollowTheLocaleWithTwoDigitsOfHour) {
    const Alphabet alphabet;
    TVEntry entry(alphabet);
    entry.setDateTime(moment(u"2026-06-01T04:05:00Z"_s));
    entry.setEndDateTime(moment(u"2026-06-01T15:30:00Z"_s));
    entry.setIdentificator(u"Title"_s);
    struct Case {
        const char* locale;
        const char* zone;
        QString start, end;
    };
    const std::vector<Case> cases{
        {"en_US", "Europe/Prague", u"06:05am"_s, u"05:30pm"_s},
        {"en_GB", "UTC", u"04:05"_s, u"15:30"_s},
        {"cs_CZ", "Europe/Prague", u"06:05"_s, u"17:30"_s},
        {"bg_BG", "Europe/Sofia", u"07:05ч."_s, u"18:30ч."_s},
        {"en_AU", "Australia/Lord_Howe", u"02:35pm"_s, u"02:00am"_s},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.locale);
        const ShowRowText text(QLocale(QString::fromLatin1(each.locale)), QTimeZone(each.zone));
        const StyledText full = text.humanWithColor(entry, ColorRole::Running, true);
        ASSERT_EQ(full.runs.size(), 3U) << "no heart in this form";
        EXPECT_EQ(full.runs[0], StyledRun(each.start, TextStyle::Time, ColorRole::Running));
        EXPECT_EQ(full.runs[1], StyledRun(each.end, TextStyle::RaisedTime, ColorRole::SecondaryLabel));
        EXPECT_EQ(full.runs[2], StyledRun(u"Title"_s, TextStyle::Title, ColorRole::Label));
        EXPECT_EQ(text.humanCondensedWithColor(entry, ColorRole::Alarm, true).plain(),
                  each.start + u" Title❤️"_s);
    }
}

TEST(ShowRowTextTest, AShowWithNothingButATitle) {
    const Alphabet alphabet;
    TVEntry entry(alphabet);
    entry.setIdentificator(u"Title"_s);
    const ShowRowText text(QLocale::c(), QTimeZone::utc());
    EXPECT_EQ(text.humanCondensedWithColor(entry, ColorRole::Label, false).plain(), u" Title"_s);
    EXPECT_TRUE(text.endTime(entry).empty());
    EXPECT_TRUE(text.details(entry).empty());
}

} // namespace

} // namespace guide::test
