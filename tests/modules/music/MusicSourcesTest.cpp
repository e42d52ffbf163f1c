#include "modules/music/CVSyncMusic.h"

#include "support/FailingFileManager.h"
#include "support/SourceData.h"
#include "support/SyncHarness.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace {

enum Source { Folders = 1, Rhythmbox = 2 };

class MusicSourcesTest : public testing::Test
{
protected:
    SyncHarness harness;
    const QString music = harness.home(u"Musik"_s);

    void SetUp() override
    {
        writeFile(harness.home(u".config/user-dirs.dirs"_s), "XDG_MUSIC_DIR=\"$HOME/Musik\"\n");
        writeFile(harness.home(u"Library/Application Support/Caravel/log"_s), {});
        harness.set(u"syncDropboxes", false);
    }

    void put(const char *place, const QByteArray &contents) const
    {
        writeFile(music + u'/' + QString::fromUtf8(place), contents);
    }
    std::string offered(Source source)
    {
        harness.set(u"musicSource", source);
        const auto playlists = CVSyncMusic::availableIdentifiers();
        QStringList lines;
        for (const MusicLibrary::Playlist &playlist : playlists.valueOr({}))
            lines.append(*playlist.identifier() + u' ' + QString::number(playlist.size));
        return playlists ? joined(lines) : playlists.error().what().toStdString();
    }
    std::string wishes(const char *selected)
    {
        CVSyncMusic::setSelectedIdentifiers(list(selected, ','), {});
        return SyncHarness::wishes(CVSyncMusic(harness.stick()));
    }
};

} // namespace

TEST_F(MusicSourcesTest, TakesFoldersAndTheTagsOfTheirFiles)
{
    for (const char *name : {"tagged.mp3", "tagged.m4a", "tagged.wav", "tagged.aac"})
        put((QByteArray("Band/CD/") + name).constData(), sourceData(name));
    const QString path = music + u"/Band/CD/tagged.mp3"_s;
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QDateTime before(QDate(2020, 2, 2), QTime());
    file.setFileTime(before, QFileDevice::FileModificationTime);
    put("Band/CD/lossless.m4a", sourceData("lossless.m4a"));
    put("Band/CD/no music.mp3", "no music at all");
    put("Band/cd/Other.mp3", sourceData("tagged.mp3"));
    put("top.MP3", QByteArray(1 << 20, 'x'));
    put(".hidden/a.mp3", "x");
    put("Band/._tagged.mp3", "x");
    put("Texts/a.txt", "x");
    QFile::link(music, music + u"/Band/loop"_s);
    QFile::link(music + u"/top.MP3"_s, music + u"/Texts/link.mp3"_s);
    const char *const all = "Musik/ 1\nBand/CD/ 6\nBand/cd/ 1\nTexts/ 1";
    EXPECT_EQ(offered(Folders), all);
    harness.set(u"firmwareVersion", 0);
    EXPECT_EQ(offered(Folders), "Musik/ 1\nBand/CD/ 2\nBand/cd/ 1\nTexts/ 1");
    harness.set(u"firmwareVersion", 1);
    const std::string cd = "Unsorted/000. no music.mp3 < no music.mp3\n"
                           "R\u00e9cord/207. Raw.MP4 < tagged.aac\n"
                           "R\u00e9cord/207. Four.MP4 < tagged.m4a\n"
                           "R\u00e9cord/207. S\u00f4ng.mp3 < tagged.mp3\n"
                           "R\u00e9cord/007. Wave.wav < tagged.wav";
    const std::string decomposed =
        QString::fromStdString(cd).normalized(QString::NormalizationForm_D).toStdString();
    EXPECT_EQ(wishes("Band/CD/"), decomposed);
    EXPECT_EQ(wishes("Musik/,Texts/,Band/CD"), "Unsorted/000. top.MP3 < top.MP3\n"
                                               "Unsorted/000. link.mp3 < link.mp3");
    harness.set(u"organizeMusicBy", 0);
    EXPECT_EQ(wishes("Band/cd/").substr(0, 11), "Band_cd/207");

    // The tags are read once, as long as neither size nor time change.
    harness.set(u"organizeMusicBy", 2);
    const QByteArray song = readFile(path);
    file.write(QByteArray(song.size(), 'x'));
    file.flush();
    file.setFileTime(before, QFileDevice::FileModificationTime);
    EXPECT_EQ(wishes("Band/CD/"), decomposed);
    file.setFileTime(before.addSecs(1), QFileDevice::FileModificationTime);
    EXPECT_NE(wishes("Band/CD/"), decomposed);
    file.close();
    put("Band/CD/tagged.mp3", song);
    EXPECT_EQ(wishes("Band/CD/"), decomposed);
    const QString index = harness.home(u"Library/Application Support/Caravel/MusicTags"_s);
    const QByteArray kept = readFile(index);
    for (const QByteArray &damaged : {kept.chopped(1), kept.left(100), "x" + kept,
                                      QByteArray(kept).replace(15, 40, QByteArray(40, '\x7f'))}) {
        writeFile(index, damaged);
        EXPECT_EQ(wishes("Band/CD/"), decomposed);
        EXPECT_NE(readFile(index), damaged);
    }
    writeFile(harness.home(u".config/user-dirs.dirs"_s), "XDG_MUSIC_DIR=\"$HOME/Gone\"\n");
    EXPECT_EQ(offered(Folders), "Couldn't read");
}

TEST_F(MusicSourcesTest, TakesListsAsPlayersWriteThem)
{
    put("Band/a.mp3", "x");
    put("Band/b c.mp3", "x");
    put("Band/\u00fc.mp3", "x");
    const QByteArray absolute = music.toUtf8() + "/Band/b c.mp3";
    const QByteArray url = "file://" + QByteArray(absolute).replace(' ', "%20");
    const QByteArray outside = "/etc/passwd\nhttp://a/b.mp3\n../../../a.mp3\nnone.mp3\nnotes.txt\n";
    const std::string folder = "Band/ 3";
    const struct
    {
        const char *name;
        QByteArray contents;
        const char *offer;
        const char *wishes;
    } cases[] = {
        {"Lists/M.m3u", "../Band/a.mp3\n#comment\n" + outside + absolute + "\n" + url, "M 3",
         "000. a.mp3 < a.mp3\n000. b c.mp3 < b c.mp3\n000. b c.mp3 < b c.mp3"},
        {"W.M3U",
         "#EXTM3U\r\n#PLAYLIST:F\xfcr\r\n#EXTINF:3,A - B - T\r\nBand\\\xfc.mp3\r\n"
         "C:\\Band\\a.mp3\r\n#EXTINF:1\r\nBand\\a.mp3\r\n",
         "F\u00fcr 2", "000. B - T.mp3 < \u00fc.mp3\n000. 1.mp3 < a.mp3"},
        {"U.m3u8",
         "\xef\xbb\xbf"
         "Band/\u00fc.mp3\rBand/b%20c.mp3\rU.m3u8",
         "U 2", "000. u\u0308.mp3 < \u00fc.mp3\n000. b c.mp3 < b c.mp3"},
        {"S.m3u8", "#EXTM3U\n#EXT-X-VERSION:3\nBand/a.mp3\n", "S 0", ""},
        {"P.pls",
         "[playlist]\nTitle2=Second\nfile2=Band/a.mp3\nNumberOfEntries=9\nFILE1=" + url +
             "\nFile3=http://a/\nLength1=7\nFile99999999999=Band/a.mp3",
         "P 2", "000. b c.mp3 < b c.mp3\n000. Second.mp3 < a.mp3"},
        {"X.xspf",
         "<?xml version='1.0'?><playlist xmlns='http://xspf.org/ns/0/' xml:base='Band/'><title> "
         "Mix "
         "</title><trackList><track><location>b%20c.mp3</location><title>T&amp;T</title></track>"
         "<track><title>none</title></track><track><location>" +
             url + "</location><location>a.mp3</location></track></trackList></playlist>",
         "Mix 2", "000. T&T.mp3 < b c.mp3\n000. b c.mp3 < b c.mp3"},
        {"B.xspf", "<playlist><trackList><track><location>Band/a.mp3</location></track><tra", "B 1",
         "000. a.mp3 < a.mp3"},
        {"G.pls", QByteArray(1000, '\0') + "File1", "G 0", ""},
    };
    for (const auto &c : cases) {
        put(c.name, c.contents);
        EXPECT_EQ(offered(Folders), c.offer + ('\n' + folder)) << c.name;
        const QByteArray name = QByteArray(c.offer).chopped(2);
        EXPECT_EQ(wishes(name.constData()),
                  QString::fromUtf8(c.wishes).replace(u"000."_s, u"Unsorted/000."_s).toStdString())
            << c.name;
        QFile::remove(music + u'/' + QString::fromUtf8(c.name));
    }
    // Each source has a selection of its own, on a stick with profiles too.
    put("Band.m3u", "Band/a.mp3");
    harness.mountStick();
    CVSyncMusic::setSelectedIdentifiers({u"Band/"_s}, harness.stick());
    EXPECT_EQ(harness.defaults.stringArrayForKey(u"enabledMusic@1"_s), QStringList(u"Band/"_s));
    EXPECT_EQ(harness.tree(u".caravel"_s), "Music@1.plist");
    harness.set(u"musicSource", 7); // as 0
    EXPECT_EQ(CVSyncMusic::selectedIdentifiersForPSP(harness.stick()), std::nullopt);
}

TEST_F(MusicSourcesTest, IsNotCarriedAwayByWhatIsHuge)
{
    const QByteArray frame = "TIT2\x05\0\0\1\0\0\3"_ba + QByteArray(10 << 20, 'T');
    put("Big/a.mp3", "ID3\4\0\0\x05\0\0\x0b"_ba + frame);
    put("Lines.m3u", QByteArray("Big/a.mp3\n").repeated(1'000'000));
    EXPECT_EQ(offered(Folders), "Lines 100000\nBig/ 1");
    const std::string name = std::string(246, 'T') + ".mp3 < a.mp3";
    EXPECT_EQ(wishes("Big/"), "Unsorted/000. " + name);
}

TEST_F(MusicSourcesTest, SaysHowFarItIsAndStopsWhenAsked)
{
    for (int i = 0; i < 130; ++i)
        put((QByteArray::number(i) + ".mp3").constData(), "x");
    harness.set(u"musicSource", Folders);
    CVSyncMusic::setSelectedIdentifiers({u"Musik/"_s}, {});
    const auto saidUntil = [&](qsizetype last) {
        QStringList said;
        CVSyncMusic module(harness.stick());
        module.setProgress([&](const QString &text) { said.append(text); });
        module.setShouldStop([&] { return said.size() == last; });
        module.itemsToSync();
        return joined(said);
    };
    EXPECT_EQ(saidUntil(2), "Reading songs: 0 of 130\nReading songs: 64 of 130");
    EXPECT_EQ(saidUntil(9), "Reading songs: 0 of 66\nReading songs: 64 of 66");
    EXPECT_EQ(saidUntil(9), "");
}

TEST_F(MusicSourcesTest, TellsAFolderThatCantBeReadFromAnEmptyOne)
{
    FailingFileManager failing;
    FileManager::setDefaultManager(&failing);
    QDir().mkpath(music + u"/Band/Locked"_s);
    harness.set(u"musicSource", Folders);
    EXPECT_EQ(wishes("Band/Locked/"), "");
    failing.locked = music + u"/Band/Locked"_s;
    EXPECT_EQ(wishes("Band/"), "");
    EXPECT_EQ(wishes("Band/Locked/"), "unreadable: Locked");
    failing.locked = music;
    EXPECT_EQ(wishes("Band/"), "unreadable: Musik");
    FileManager::setDefaultManager(nullptr);
}

TEST_F(MusicSourcesTest, ReadsRhythmbox)
{
    const QString folder = harness.home(u".local/share/rhythmbox/"_s);
    const QByteArray home = harness.home({}).chopped(1).toUtf8();
    const auto file = [&](const char *name) {
        return sourceData(name).replace("/HOME", home);
    };
    writeFile(folder + u"playlists.xml"_s, file("playlists.xml"));
    EXPECT_EQ(offered(Rhythmbox), "Couldn't read");
    const QByteArray songs = file("rhythmdb.xml");
    writeFile(folder + u"rhythmdb.xml"_s, songs);
    EXPECT_EQ(offered(Rhythmbox),
              "Music 2\nNoisy 0\nRock or Two 2\nEmpty 0\nTr\u00e4ume & <More> 2");
    const std::string one = "Re\u0301cord/101. O\u0308ne.mp3 < 1.mp3";
    const std::string two = "Re\u0301cord/102. Two _2_.mp3 < 2 #two.mp3";
    EXPECT_EQ(wishes("Rock or Two"), two + '\n' + one);
    EXPECT_EQ(wishes("Tr\u00e4ume & <More>"), one + '\n' + two);

    const auto automatic = [&](const QByteArray &attributes, const QByteArray &query) {
        writeFile(folder + u"playlists.xml"_s,
                  "<rhythmdb-playlists><playlist name='A' type='automatic' " + attributes +
                      "><conjunction><subquery><conjunction>" + query +
                      "</conjunction></subquery></conjunction></playlist></rhythmdb-playlists>");
        return wishes("A");
    };
    const std::string both = one + '\n' + two;
    const std::pair<const char *, std::string> queries[] = {
        {"<equals prop='title'>one</equals>", one},
        {"<not-equal prop='track-number'>1</not-equal>", two},
        {"<like prop='artist-folded'>nd &amp;</like><not-like prop='title'>TWO</not-like>", one},
        {"<suffix prop='location'>two.mp3</suffix>", two},
        {"<less prop='duration'>1</less><greater prop='file-size'>4513</greater>", two},
        {"<current-time-within prop='last-played'>60</current-time-within>", ""},
        {"<current-time-not-within prop='first-seen'>0</current-time-not-within>", both},
        {"<year-equals prop='date'>1</year-equals>", ""},
        {"<like prop='keyword'>x</like>", ""},
        {"<disjunction/>", both},
    };
    for (const auto &[query, answer] : queries)
        EXPECT_EQ(automatic({}, query), answer) << query;
    const QByteArray all = "<like prop='album'>rec</like>";
    EXPECT_EQ(automatic("sort-key='Track' sort-direction='1' limit-count='1'", all), two);
    EXPECT_EQ(automatic("sort-key='Title' limit-time='1'", all), one);
    EXPECT_EQ(automatic({}, QByteArray("<subquery><conjunction>").repeated(9) +
                                QByteArray("</conjunction></subquery>").repeated(9)),
              "");
    for (const QByteArray &bad : {songs.chopped(20), QByteArray(), QByteArray("SQLite format 3")}) {
        writeFile(folder + u"rhythmdb.xml"_s, bad);
        EXPECT_EQ(wishes("A"), "unreadable: rhythmdb.xml");
    }
}
