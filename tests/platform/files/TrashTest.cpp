#include "platform/files/Trash.h"

#include "support/TestSupport.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

TEST(Trash, GivesBackWhatWentThereLast)
{
    QDir().mkpath(QDir::homePath() + u"/.local/share"_s);
    const QString movie = QDir::homePath() + u"/Movies/50 % Ähnlich"_s;
    for (const char *contents : {"older", "newer"}) {
        writeFile(movie + u"/M4V00001.MP4"_s, contents);
        ASSERT_TRUE(QFile::moveToTrash(movie));
        // The Trash tells the time to the second.
        const QString info =
            QDir::homePath() + u"/.local/share/Trash/info/50 % Ähnlich.trashinfo"_s;
        writeFile(info, readFile(info).replace("DeletionDate=20", "DeletionDate=19"));
    }
    EXPECT_TRUE(Trash::putBack(movie));
    EXPECT_EQ(readFile(movie + u"/M4V00001.MP4"_s), "newer");
    EXPECT_FALSE(Trash::putBack(movie)) << "something is there";
    EXPECT_TRUE(QDir(movie).removeRecursively());
    EXPECT_TRUE(Trash::putBack(movie));
    EXPECT_EQ(readFile(movie + u"/M4V00001.MP4"_s), "older");
    EXPECT_TRUE(QDir(movie).removeRecursively());
    EXPECT_FALSE(Trash::putBack(movie));
}
