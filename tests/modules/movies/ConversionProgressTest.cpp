#include "modules/movies/ConversionProgress.h"

#include <QList>

#include <gtest/gtest.h>

TEST(ConversionProgress, LearnsTheDurationAndCountsFrames)
{
    const QByteArray minute = "Duration: 00:01:00.0, start: 0.000000\nOutput #0";
    const QByteArray noise(1 << 20, 'x');
    const auto info = [](const QByteArray &text) {
        return "Duration: Output " + text;
    };
    const struct
    {
        const char *what;
        QList<QByteArray> chunks;
        quint32 totalFrames;
        int percent; // 0: not known
        int quality = 2;
    } cases[] = {
        {"29.97 frames", {minute, "frame=  450 q=2.0 size="}, 1798, 25},
        {"14.97 frames", {minute, "frame=450 q=2.0 size="}, 898, 50, 0},
        {"hours", {"Duration: 01:02:03.5, start: 0 Output", "frame=1 q="}, 111578, 0, 1},
        {"half lines",
         {"Dura", "tion: 00:0", "1:00.0, st", "art: 0Outp", "ut", "frame= 899 q=1"},
         1798,
         50},
        {"line feeds", {"Duration:\n00:00:10.0, start: ", "\nOutput", "frame=150 q="}, 299, 50},
        {"movie information",
         {info("MOVINFO: 36000, 2, 4, 600 :MOVINFO"), "frame=899 q=1"},
         1798,
         50},
        {"no units", {info("MOVINFO: 36000, 1, 1, 0 :MOVINFO"), "frame=9 q=1"}, 0, 0},
        {"no Output", {"Duration: 00:01:00.0, start: 0", "frame=450 q=2.0"}, 0, 0},
        {"learnt late", {"frame=1 q=1", minute, "frame=450 q=1"}, 1798, 25},
        {"frame 0", {minute, "frame=    0 q=0.0"}, 1798, 0},
        {"no q", {minute, "frame=450"}, 1798, 0},
        {"beyond the end", {minute, "frame=2000 q=1"}, 1798, 0},
        {"the end", {minute, "frame=1798 q=1"}, 1798, 100},
        {"endless", {minute, "frame=99999999999999999999 q=1"}, 1798, 0},
        {"negative", {minute, "frame=-5 q=1"}, 1798, 0},
        {"a later one", {minute, "frame=450 q=1", "frame=900 q=1\rframe=1000 q=1"}, 1798, 50},
        {"noise",
         QList<QByteArray>{minute} + QList<QByteArray>(100, noise) +
             QList<QByteArray>{"frame=450 q=1"},
         1798, 25},
    };
    for (const auto &c : cases) {
        ConversionProgress progress(c.quality);
        bool wasProgress = false;
        for (const QByteArray &chunk : c.chunks)
            wasProgress = progress.take(chunk, true);
        EXPECT_TRUE(wasProgress) << c.what;
        EXPECT_EQ(progress.totalFrames(), c.totalFrames) << c.what;
        EXPECT_EQ(progress.text().toStdString(),
                  c.percent == 0
                      ? "Conversion in progress..."
                      : "Conversion in progress, " + std::to_string(c.percent) + "% completed...")
            << c.what;
    }
}

TEST(ConversionProgress, ReadsWhatWentWrong)
{
    const QByteArray line(1 << 13, 'x');
    ConversionProgress progress(2);
    for (const QByteArray &chunk :
         {QByteArray("Duration: 00:01:00.0, start: 0\nOutput\nconvert.sh"), QByteArray(": first\n"),
          QByteArray("frame=1 q=1\rWarning: it is\rconvert.sh: the disk is full\n"), line + '\n',
          QByteArray("not convert.sh: this\nconvert.sh: unfinished")})
        progress.take(chunk, true);
    EXPECT_EQ(progress.reason(), QLatin1String("the disk is full"));
    EXPECT_EQ(progress.warning(), QLatin1String("it is"));
    EXPECT_FALSE(progress.take("frame=900 q=1", false)) << "it is over";
    EXPECT_EQ(progress.text(), QLatin1String("Conversion in progress..."));
}
