#include "window/LogModel.h"

#include "support/TestSupport.h"

#include <gtest/gtest.h>

TEST(LogModel, FindsAroundTheEnds)
{
    LogModel log;
    log.append({u"Copying one\n"_s, u"<b>Two</b>"_s, u"copying three"_s});
    EXPECT_EQ(log.index(0, 0).data().toString(), u"Copying one");
    const struct
    {
        const char *text;
        int from;
        bool backwards;
        std::optional<int> found;
    } cases[] = {
        {"copying", 0, false, 0},  {"COPYING", 1, false, 2}, {"copying", 3, false, 0},
        {"copying", 1, true, 0},   {"copying", -1, true, 2}, {"<b>", 2, false, 1},
        {"nothing", 0, false, {}}, {"", 0, false, {}},
    };
    for (const auto &each : cases)
        EXPECT_EQ(log.find(QLatin1String(each.text), each.from, each.backwards), each.found)
            << each.text << each.from;
    EXPECT_EQ(log.countOf(u"copying"_s), 2);
}
