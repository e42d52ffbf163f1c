#include "cli/ProgressDisplay.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

HelperState copying(quint64 done, quint64 total)
{
    HelperState state;
    state.syncing = true;
    state.statusText = QStringLiteral("Syncing");
    state.syncBytes = done;
    state.syncBytesTotal = total;
    return state;
}

TEST(ProgressLineTest, BarFitsItsColumnsAndDropsWhatHasNoRoom)
{
    const HelperState state = copying(quint64(1) << 20, quint64(4) << 20);
    const QString wide = ProgressLine::bar(state, 1024.0 * 1024, 100);
    EXPECT_TRUE(wide.startsWith(QStringLiteral("[##########%1] 25% (").arg(QString(30, u' '))))
        << qPrintable(wide);
    EXPECT_TRUE(wide.endsWith(u"/s, 0:03 left")) << qPrintable(wide);
    EXPECT_FALSE(ProgressLine::bar(state, std::nullopt, 100).contains(u"left"));
    EXPECT_FALSE(ProgressLine::bar(state, 0.0, 100).contains(u"left"));
    for (int columns = 0; columns < 100; ++columns) {
        const QString bar = ProgressLine::bar(state, 1024.0 * 1024, columns);
        EXPECT_LE(bar.size(), columns);
        EXPECT_EQ(bar.startsWith(u"25%"), columns >= 4 && !bar.startsWith(u'[')) << columns;
    }
    EXPECT_EQ(ProgressLine::bar(copying(0, 0), 5.0, 80), QString());
}

TEST(ProgressLineTest, LinesAreCutByColumnsAndCannotSteerTheTerminal)
{
    EXPECT_EQ(ProgressLine::fitted(QStringLiteral("abc"), 3), u"abc");
    EXPECT_EQ(ProgressLine::fitted(QStringLiteral("abcd"), 3), u"ab\u2026");
    EXPECT_EQ(ProgressLine::fitted(QStringLiteral("abcd"), 0), QString());
    EXPECT_EQ(ProgressLine::fitted(QStringLiteral("a\x1b[2Jb\n"), 20), u"a [2Jb ");
    const QString pair = QStringLiteral("a\U00010348\U00010348");
    EXPECT_EQ(ProgressLine::fitted(pair + pair, 3), u"a\U00010348\u2026");
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
