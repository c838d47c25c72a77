#include "app/StepSchedule.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>

using namespace Qt::StringLiterals;

namespace guide {
namespace {

ObjectId channel(unsigned char number) {
    ObjectId::Bytes bytes{};
    bytes.back() = number;
    return ObjectId(bytes);
}

/// "a+b:12": pages of the hosts a and b that serve the channels 1 and 2.
UpdateStep step(const std::string& text) {
    UpdateStep made;
    const std::size_t colon = text.find(':');
    for (const QString& host : QString::fromStdString(text.substr(0, colon)).split(u'+')) {
        made.urls << QUrl(u"http://"_s + host + u"/page"_s);
    }
    for (const char digit : text.substr(colon + 1)) {
        made.served.push_back(
            {channel(static_cast<unsigned char>(digit - '0')), u"id"_s, ListingsType::XMLTV});
    }
    return made;
}

/// Carries out "+" (starts what can start), "-N" (the step ends), "=C" (the channel is loaded) and "*" (the
/// steps after the "/" are added), and returns the numbers of the steps that each "+" started.
std::string run(const std::string& steps, const std::string& actions) {
    std::vector<std::vector<UpdateStep>> plans(1);
    std::istringstream words(steps);
    for (std::string word; words >> word;) {
        if (word == "/") {
            plans.emplace_back();
        } else {
            plans.back().push_back(step(word));
        }
    }
    StepSchedule schedule;
    schedule.addFirst(plans[0]);
    std::string started;
    for (std::size_t at = 0; at < actions.size(); ++at) {
        if (actions[at] == '-') {
            schedule.finish(static_cast<std::size_t>(actions[++at] - '0'));
        } else if (actions[at] == '=') {
            schedule.release(channel(static_cast<unsigned char>(actions[++at] - '0')));
        } else if (actions[at] == '*') {
            schedule.addFirst(plans.at(1));
        } else {
            started += started.empty() ? "" : "|";
            while (const auto index = schedule.start()) {
                started += std::to_string(*index);
            }
        }
    }
    return started + (schedule.isRunning() ? "" : ".");
}

TEST(StepScheduleTest, StartsWhatNeedsNotWait) {
    struct Row {
        const char* name;
        const char* steps;
        const char* actions;
        const char* started;
    };
    const Row rows[] = {
        {"nothing", "", "+", "."},
        {"one host after the other", "a:1 a:2 b:3", "+-0+-2+-1", "02|1|."},
        {"at most four", "a:1 b:2 c:3 d:4 e:5 f:6", "+-2+-0+", "0123|4|5"},
        {"a step of two hosts waits for both", "a:1 b:2 a+b:3 c:4", "+-0+-1+", "013||2"},
        {"sources of a channel stay in order", "a:1 b:2 c:1 d:12", "+-0+-1+-2+", "01|2||3"},
        {"a loaded channel holds up nothing", "a:1 b:1 c:12 d:3", "+=1-0+-2-3+", "03|2|."},
        {"loaded while its step runs", "a:12 b:1 c:2", "+=1+-0+", "0||2"},
        {"channels that are not due", "a:1 b:12 c:2", "=1+=2+-1+", "1||."},
        {"a channel with two sources in one list", "a:11 b:1", "+-0+", "0|1"},
        {"a later plan comes first", "a:1 a:2 / a:3 b:4", "+*+-0+-2+", "0|3|2|1"},
        {"a later plan for a channel whose old step runs", "a:12 / b:1 c:1", "=1+*+-0+-1+", "0|1||2"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(run(row.steps, row.actions), row.started) << row.name;
    }
}

TEST(StepScheduleTest, AHostIsSchemeNameAndPort) {
    UpdateStep first = step("a:1");
    UpdateStep second = step("a:2");
    second.urls = {QUrl(u"http://a:81/page"_s)};
    UpdateStep third = step("a:3");
    third.urls = {QUrl(u"http://user@a/other"_s)};
    StepSchedule schedule;
    schedule.addFirst({first, second, third});
    EXPECT_EQ(schedule.start(), 0U);
    EXPECT_EQ(schedule.start(), 1U);
    EXPECT_EQ(schedule.start(), std::nullopt);
}

} // namespace
} // namespace guide
