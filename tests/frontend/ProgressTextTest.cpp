#include "frontend/ProgressText.h"
#include "frontend/RateMeter.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

HelperState copying(quint64 done, quint64 total)
{
    HelperState state;
    state.syncing = true;
    state.syncBytes = done;
    state.syncBytesTotal = total;
    return state;
}

TEST(ProgressTextTest, Durations)
{
    EXPECT_EQ(ProgressText::duration(0s), u"0:00");
    EXPECT_EQ(ProgressText::duration(67s), u"1:07");
    EXPECT_EQ(ProgressText::duration(59min + 59s), u"59:59");
    EXPECT_EQ(ProgressText::duration(3723s), u"1:02:03");
    EXPECT_EQ(ProgressText::duration(100h), u"100:00:00");
}

TEST(ProgressTextTest, PercentIsKnownOnlyWhileBytesAreCopied)
{
    HelperState idle = copying(0, 1);
    idle.syncing = false;
    HelperState preparing = copying(0, 10);
    preparing.indeterminate = true;
    const struct
    {
        HelperState state;
        std::optional<int> percent;
    } cases[] = {
        {idle, std::nullopt},          {preparing, std::nullopt},
        {copying(0, 0), std::nullopt}, {copying(0, 3), 0},
        {copying(1, 3), 33},           {copying(2, 3), 66},
        {copying(999, 1000), 99},      {copying(5, 5), 100},
        {copying(7, 5), 100},          {copying(~quint64(0) / 2, ~quint64(0)), 50},
    };
    for (const auto &each : cases)
        EXPECT_EQ(ProgressText::percent(each.state), each.percent)
            << each.state.syncBytes << " of " << each.state.syncBytesTotal;
}

TEST(RateMeterTest, MeasuresTheLastSeconds)
{
    RateMeter meter;
    EXPECT_FALSE(meter.rate());
    for (const auto pause : {-5000ms, -100ms})
        meter.add(0, pause);
    meter.add(100, 0ms);
    meter.add(200, 100ms);
    EXPECT_FALSE(meter.rate());
    meter.add(1100, 1000ms);
    EXPECT_EQ(meter.rate(), 1000.0);
    // What lies more than the span back no longer counts.
    for (int second = 2; second <= 12; ++second)
        meter.add(1100, std::chrono::seconds(second));
    EXPECT_EQ(meter.rate(), 0.0);
    meter.add(10, 13s);
    EXPECT_FALSE(meter.rate());
}

} // namespace
