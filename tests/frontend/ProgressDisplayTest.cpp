#include "frontend/ProgressDisplay.h"

#include <gmock/gmock.h>

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

HelperState copying(quint64 done, quint64 total, const QString &text = QStringLiteral("Syncing"))
{
    HelperState state;
    state.syncing = true;
    state.statusText = text;
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

TEST(ProgressTextTest, BarFitsItsColumnsAndDropsWhatHasNoRoom)
{
    const HelperState state = copying(quint64(1) << 20, quint64(4) << 20);
    const QString wide = ProgressText::bar(state, 1024.0 * 1024, 100);
    EXPECT_TRUE(wide.startsWith(QStringLiteral("[##########%1] 25% (").arg(QString(30, u' '))))
        << qPrintable(wide);
    EXPECT_TRUE(wide.endsWith(u"/s, 0:03 left")) << qPrintable(wide);
    EXPECT_FALSE(ProgressText::bar(state, std::nullopt, 100).contains(u"left"));
    EXPECT_FALSE(ProgressText::bar(state, 0.0, 100).contains(u"left"));
    for (int columns = 0; columns < 100; ++columns) {
        const QString bar = ProgressText::bar(state, 1024.0 * 1024, columns);
        EXPECT_LE(bar.size(), columns);
        EXPECT_EQ(bar.startsWith(u"25%"), columns >= 4 && !bar.startsWith(u'[')) << columns;
    }
    EXPECT_EQ(ProgressText::bar(copying(0, 0), 5.0, 80), QString());
}

TEST(ProgressTextTest, LinesAreCutByColumnsAndCannotSteerTheTerminal)
{
    EXPECT_EQ(ProgressText::fitted(QStringLiteral("abc"), 3), u"abc");
    EXPECT_EQ(ProgressText::fitted(QStringLiteral("abcd"), 3), u"ab\u2026");
    EXPECT_EQ(ProgressText::fitted(QStringLiteral("abcd"), 0), QString());
    EXPECT_EQ(ProgressText::fitted(QStringLiteral("a\x1b[2Jb\n"), 20), u"a [2Jb ");
    const QString pair = QStringLiteral("a\U00010348\U00010348");
    EXPECT_EQ(ProgressText::fitted(pair + pair, 3), u"a\U00010348\u2026");
}

TEST(RateMeterTest, MeasuresTheLastSeconds)
{
    RateMeter meter;
    EXPECT_FALSE(meter.rate());
    meter.add(0, 0ms);
    meter.add(100, 100ms);
    EXPECT_FALSE(meter.rate());
    meter.add(1000, 1000ms);
    EXPECT_EQ(meter.rate(), 1000.0);
    // What lies more than the span back no longer counts.
    for (int second = 2; second <= 12; ++second)
        meter.add(1000, std::chrono::seconds(second));
    EXPECT_EQ(meter.rate(), 0.0);
    meter.add(10, 13s);
    EXPECT_FALSE(meter.rate());
}

TEST(LineDisplayTest, NewTextsOnceAndProgressInTens)
{
    LineDisplay display(LineDisplay::SubTexts::Hide);
    EXPECT_THAT(display.lines(copying(0, 100)), ElementsAre(QStringLiteral("Syncing")));
    EXPECT_THAT(display.lines(copying(9, 100)), IsEmpty());
    const QStringList jump = display.lines(copying(35, 100));
    ASSERT_EQ(jump.size(), 1);
    EXPECT_TRUE(jump[0].startsWith(u"35% ("));
    EXPECT_THAT(display.lines(copying(39, 100)), IsEmpty());
    HelperState pause = copying(39, 100);
    pause.indeterminate = true;
    EXPECT_THAT(display.lines(pause), IsEmpty());
    EXPECT_THAT(display.lines(copying(39, 100)), IsEmpty());
    EXPECT_EQ(display.lines(copying(40, 100)).size(), 1);
    // The next sync begins anew.
    EXPECT_THAT(display.lines(HelperState()), ElementsAre(QString()));
    EXPECT_EQ(display.lines(copying(20, 100)).size(), 2);
}

} // namespace
