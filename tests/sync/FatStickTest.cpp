// A stick with a FAT-like file system, which keeps names' case but doesn't tell it apart: a real
// one, on a loop device, where mounting is allowed.

#include "support/FatImage.h"
#include "support/ListModule.h"

#include <gtest/gtest.h>

namespace {

/// The files' contents, each of which says what was wanted.
QStringList found(const ListHarness &harness)
{
    QStringList contents;
    for (const QString &path : treeOf(harness.stick(u"PSP/MUSIC"_s))) {
        if (!path.endsWith(u'/'))
            contents.append(QString::fromUtf8(readFile(harness.place(path))));
    }
    contents.sort();
    return contents;
}

} // namespace

TEST(FatStick, KeepsEveryFileAndItsNameFromRunToRun)
{
    ListHarness harness;
    FatImage image(harness.folder / u"stick.img"_s, 64 << 20);
    if (!image.mount(harness.stick()))
        GTEST_SKIP() << "skipped: exFAT can't be mounted here";
    harness.mountStick();
    QStringList all;
    for (const char *folder : {"Mix", "MIX", "mix", "Café", "Cafe\u0301", "CAFÉ", "Live.", "Live. ",
                               "Live", " Live", "...", "Straße", "STRASSE", "a:b?", "a_b_"}) {
        for (const char *file : {"One.mp3", "ONE.mp3", "one.mp3", "ends.", "ends ", "ends"}) {
            // All of one size: only the names tell them apart.
            all.append(u"%1"_s.arg(all.size(), 4, 10, QChar(u'0')));
            harness.want(QString::fromUtf8(folder) + u'/' + QString::fromUtf8(file),
                         all.last().toUtf8());
        }
    }
    for (const QString &name : {QString(120, QChar(0xE9)), QString(85, QChar(0x65E5)),
                                QString(255, u'x'), QString(251, u'y') + u".mp3"_s}) {
        all.append(u"%1"_s.arg(all.size(), 4, 10, QChar(u'0')));
        harness.want(name, all.last().toUtf8());
    }
    ASSERT_TRUE(harness.run());
    EXPECT_EQ(found(harness), all);
    EXPECT_TRUE(harness.delegate.errors.empty());
    const std::string before = harness.placed();
    ASSERT_TRUE(harness.run());
    EXPECT_EQ(harness.delegate.processed(), 0);
    EXPECT_EQ(harness.placed(), before);
    // Another computer has spelled a folder in another case.
    for (const char *step : {"Mix Mix_", "Mix_ MIX"}) {
        ASSERT_TRUE(QDir().rename(harness.place(list(step)[0]), harness.place(list(step)[1])));
        ASSERT_TRUE(image.remount());
    }
    ASSERT_TRUE(harness.run());
    EXPECT_EQ(harness.delegate.processed(), 0);
    EXPECT_EQ(found(harness), all);
}
