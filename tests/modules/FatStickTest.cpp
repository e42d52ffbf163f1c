// A stick with a FAT-like file system, which keeps names' case but doesn't tell it apart: a real
// one, on a loop device, where mounting is allowed.

#include "modules/music/CVSyncMusic.h"
#include "support/FatImage.h"
#include "support/MusicLibraryFile.h"
#include "support/SyncHarness.h"
#include "util/Settings.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

class FatStickTest : public testing::Test
{
protected:
    SyncHarness harness{{CVSyncMusic::kind()}};
    FatImage image{harness.folder / u"stick.img"_s, 64 << 20};
    MusicLibraryFile library;
    QList<int> ids;
    std::vector<std::string> wanted; // the tracks' contents

    void SetUp() override
    {
        if (!image.mount(harness.stick()))
            GTEST_SKIP() << "skipped: exFAT can't be mounted here";
        harness.mountStick();
        Settings::sortMusicBy.set(Settings::MusicPrefix::Nothing);
    }
    void TearDown() override { harness.settle(); }

    void addTrack(const QString &album, const QString &title)
    {
        const int id = static_cast<int>(wanted.size());
        // All of one size: only the names tell them apart.
        const QByteArray contents = "track " + QByteArray::number(id).rightJustified(4, '0');
        const QString file = harness.home(u"Music/%1.mp3"_s.arg(id));
        writeFile(file, contents);
        library.addFile(id, file,
                        MusicLibraryFile::string("Name", title) +
                            MusicLibraryFile::string("Album", album));
        wanted.push_back(contents.toStdString());
        ids.append(id);
    }
    void writeLibrary()
    {
        MusicLibraryFile all = library;
        all.addPlaylist(u"All"_s, ids);
        writeFile(harness.home(u"Music/iTunes/iTunes Music Library.xml"_s), all.contents());
        CVSyncMusic::setSelectedIdentifiers({u"All"_s}, harness.stick());
    }
    QStringList tree() const { return treeOf(harness.stick(u"PSP/MUSIC"_s)); }
    std::vector<std::string> found() const
    {
        std::vector<std::string> contents;
        for (const QString &path : tree()) {
            if (!path.endsWith(u'/'))
                contents.push_back(readFile(harness.stick(u"PSP/MUSIC/"_s + path)).toStdString());
        }
        std::sort(contents.begin(), contents.end());
        return contents;
    }
    int copied() const
    {
        return static_cast<int>(harness.delegate.events.filter(u"syncWillProcessItem"_s).size());
    }
};

} // namespace

TEST_F(FatStickTest, KeepsEveryFileAndItsNameFromRunToRun)
{
    for (const char *album : {"Mix", "MIX", "mix"})
        for (const char *title : {"Song", "SONG", "song"})
            addTrack(QString::fromLatin1(album), QString::fromLatin1(title));
    for (const char *album : {"Café", "Cafe\u0301", "CAFÉ", "Live.", "Live. ", "Live", " Live",
                              "...", "Straße", "STRASSE"})
        addTrack(QString::fromUtf8(album), u"One"_s);
    for (const QString &title :
         {QString(300, QChar(0xE9)), QString(299, QChar(0xE9)) + u'x', QString(200, QChar(0x65E5)),
          QString(255, u'x'), QString(251, u'y'), u"ends in a dot."_s, u"ends in a blank "_s})
        addTrack(u"Long"_s, title);
    writeLibrary();
    ASSERT_TRUE(harness.run());
    EXPECT_EQ(found(), wanted);
    EXPECT_TRUE(harness.delegate.errors.empty());
    const QStringList before = tree();

    for (int again = 0; again < 2; ++again) {
        ASSERT_TRUE(harness.run());
        EXPECT_EQ(copied(), 0);
        EXPECT_EQ(tree(), before);
    }
    // Another computer has spelled a folder in another case.
    for (const char *step : {"Mix Mix_", "Mix_ MIX"}) {
        const QStringList names = QString::fromLatin1(step).split(u' ');
        const QString music = harness.stick(u"PSP/MUSIC/"_s);
        ASSERT_TRUE(QDir().rename(music + names[0], music + names[1]));
        ASSERT_TRUE(image.remount());
    }
    ASSERT_TRUE(tree().contains(u"MIX/"_s));
    ASSERT_TRUE(harness.run());
    EXPECT_EQ(copied(), 0);
    EXPECT_EQ(found(), wanted);
}
