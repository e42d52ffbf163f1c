#include "modules/movies/ConversionProgress.h"
#include "support/TestSupport.h"

#include <QList>

#include <gtest/gtest.h>

namespace {

const QString unknown = u"Conversion in progress..."_s;

QString percent(int number)
{
    return u"Conversion in progress, %1% completed..."_s.arg(number);
}

} // namespace

TEST(ConversionProgress, LearnsTheDurationAndCountsFrames)
{
    const QByteArray minute = "Duration: 00:01:00.0, start: 0.000000\nOutput #0";
    const struct
    {
        const char *what;
        int quality;
        QList<QByteArray> chunks;
        quint32 totalFrames;
        QString text;
    } cases[] = {
        {"29.97 frames", 2, {minute, "frame=  450 q=2.0 size="}, 1798, percent(25)},
        {"14.97 frames", 0, {minute, "frame=450 q=2.0 size="}, 898, percent(50)},
        {"hours", 1, {"Duration: 01:02:03.5, start: 0 Output", "frame=1 q="}, 111578, unknown},
        {"half lines",
         2,
         {"Dura", "tion: 00:0", "1:00.0, st", "art: 0", "Outp", "ut", "frame= 899 q=1"},
         1798,
         percent(50)},
        {"line feeds",
         2,
         {"Duration:\n00:00:10.0, start: ", "\nOutput", "frame=150 q="},
         299,
         percent(50)},
        {"movie information",
         2,
         {"Duration: Output MOVINFO: 36000, 320, 240, 600 :MOVINFO", "frame=899 q=1"},
         1798,
         percent(50)},
        {"three fields",
         2,
         {"Duration: Output MOVINFO: 36000, 320, 600 :MOVINFO", "frame=9 q=1"},
         0,
         unknown},
        {"no units",
         2,
         {"Duration: Output MOVINFO: 36000, 1, 1, 0 :MOVINFO", "frame=9 q=1"},
         0,
         unknown},
        {"marks the wrong way round",
         2,
         {"Duration: Output :MOVINFO MOVINFO: 1, 1, 1, 1", "frame=9 q=1"},
         0,
         unknown},
        {"start too early", 2, {", start: Duration: Output", "frame=9 q=1"}, 0, unknown},
        {"no Output", 2, {"Duration: 00:01:00.0, start: 0", "frame=450 q=2.0"}, 0, unknown},
        {"nothing", 2, {"frame=450 q=2.0"}, 0, unknown},
        {"learnt late", 2, {"frame=1 q=1", minute, "frame=450 q=1"}, 1798, percent(25)},
        {"frame 0", 2, {minute, "frame=    0 q=0.0"}, 1798, unknown},
        {"no q", 2, {minute, "frame=450"}, 1798, unknown},
        {"beyond the end", 2, {minute, "frame=2000 q=1"}, 1798, unknown},
        {"the end", 2, {minute, "frame=1798 q=1"}, 1798, percent(100)},
        {"endless", 2, {minute, "frame=99999999999999999999 q=1"}, 1798, unknown},
        {"negative", 2, {minute, "frame=-5 q=1"}, 1798, unknown},
        {"a later one",
         2,
         {minute, "frame=450 q=1", "frame=900 q=1\rframe=1000 q=1"},
         1798,
         percent(50)},
    };
    for (const auto &c : cases) {
        ConversionProgress progress(c.quality);
        bool wasProgress = false;
        for (const QByteArray &chunk : c.chunks)
            wasProgress = progress.take(chunk);
        EXPECT_TRUE(wasProgress) << c.what;
        EXPECT_EQ(progress.totalFrames(), c.totalFrames) << c.what;
        EXPECT_EQ(progress.text(), c.text) << c.what;
    }
}

TEST(ConversionProgress, KeepsOnlyTheBeginningOfAnEndlessOutput)
{
    ConversionProgress progress(2);
    EXPECT_FALSE(progress.take("Duration: 00:01:00.0, start: 0 Output"));
    const QByteArray noise(1 << 20, 'x');
    for (int i = 0; i < 100; ++i)
        progress.take(noise);
    EXPECT_TRUE(progress.take("frame=450 q=1"));
    EXPECT_EQ(progress.text(), percent(25));
}
