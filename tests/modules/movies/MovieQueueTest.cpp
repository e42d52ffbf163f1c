// The queue with converters that behave in every way that one can.

#include "modules/movies/MovieQueue.h"

#include "modules/movies/CVSyncMovies.h"
#include "support/FakeDesktop.h"
#include "support/SyncHarness.h"
#include "util/QMLogger.h"
#include "util/Settings.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace {

const QByteArray succeeds = "echo movie >\"$3\"; echo thumbnail >\"$4\"\n";

class MovieQueueTest : public testing::Test, protected MovieQueueDelegate
{
protected:
    SyncHarness harness;
    QMLogger logger;
    FakeSounds sounds;
    TemporaryFolder resources;
    int reloads = 0;
    int animations = 0; // started and not stopped
    QStringList alerts;
    MovieQueue queue{{harness.manager, logger, sounds, harness.clock, *this, resources.path()}};
    const QString converter = resources / u"convert.sh"_s;
    const QString support = harness.home(u"Library/Application Support/Caravel"_s);

    void SetUp() override
    {
        harness.mountStick();
        QDir().mkpath(support);
    }
    void TearDown() override
    {
        queue.close();
        SyncHarness::settle();
    }

    void reloadMoviesView() override { ++reloads; }
    void startConversionAnimation() override { ++animations; }
    void stopConversionAnimation() override { --animations; }
    void movieAlert(const QString &title, const QString &) override { alerts.append(title); }

    /// A script in the converter's place; $3 and $4 are its outputs, $R this test's folder.
    void setConverter(const QByteArray &script) const
    {
        QFile::remove(converter);
        writeFile(converter, "#!/bin/sh\nR='" + resources.path().toUtf8() + "'\n" + script);
        QFile(converter).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }
    void add(const char *names)
    {
        QStringList paths;
        for (const QString &name : list(names, ',')) {
            paths.append(name.startsWith(u'/') ? name : harness.home(name));
            if (!name.startsWith(u'/'))
                writeFile(paths.last(), "source");
        }
        queue.addMoviesFromArray(paths);
    }
    /// "name icon" of each row, with "+" where it is enabled.
    std::string rows()
    {
        QStringList result;
        for (const QVariant &each : queue.moviesItems()) {
            const QVariantMap row = each.toMap();
            result.append(row[u"name"_s].toString() + u' ' +
                          row[u"icon"_s].toString().section(u'/', -1) +
                          (row.value(u"enabled"_s).toBool() ? u"+"_s : QString()));
        }
        return joined(result);
    }
    QVariantMap row(QStringView name)
    {
        for (const QVariant &each : queue.moviesItems()) {
            if (each.toMap().value(u"name"_s) == name.toString())
                return each.toMap();
        }
        return {};
    }
    bool waitUntilIdle()
    {
        const bool isIdle =
            waitFor([this] { return sounds.played.contains(u"ConvertCompleted"_s); });
        sounds.played.clear();
        return isIdle;
    }
    /// The log's messages without their time stamps.
    std::string logged() const
    {
        QStringList lines = logger.log().split(u'\n', Qt::SkipEmptyParts);
        for (QString &line : lines)
            line = line.section(u" : "_s, 1);
        return joined(lines);
    }
};

} // namespace

TEST_F(MovieQueueTest, ConvertsOneAfterTheOtherAndSyncsThen)
{
    // It says what it was given, and that no other runs beside it.
    setConverter("mkdir \"$R/lock\" || exit 1\nprintf '%s|' \"$@\" >>\"$R/arguments\"\n"
                 "pwd >>\"$R/arguments\"\n" +
                 succeeds + "rmdir \"$R/lock\"\n");
    Settings::volumeBoost.set(150);
    Settings::syncOnMount.set(true);
    add("My Clip.avi,b.mpg");
    queue.addMoviesFromArray({u"relative.avi"_s});
    EXPECT_TRUE(queue.isConvertingMovie());
    EXPECT_EQ(animations, 1);
    EXPECT_EQ(rows(), "My Clip ConvertWorking1+\nb ConvertWaiting+");
    const QString first = harness.home(u"My Clip.avi"_s);
    EXPECT_EQ(row(u"My Clip"),
              (QVariantMap{{u"identifier"_s, first},
                           {u"identifier2"_s,
                            first + u"-%1"_s.arg(harness.clock.current.toSecsSinceEpoch())},
                           {u"name"_s, u"My Clip"_s},
                           {u"icon"_s, u"ConvertWorking1"_s},
                           {u"order"_s, 0},
                           {u"ready"_s, false},
                           {u"size"_s, u"6 b"_s},
                           {u"enabled"_s, true},
                           {u"converting"_s, true}}));
    ASSERT_TRUE(waitUntilIdle());
    EXPECT_EQ(rows(), "My Clip M4V00001.THM+\nb M4V00002.THM+");
    EXPECT_EQ(row(u"b").value(u"size"_s), u"Size: 6 b"_s);
    EXPECT_EQ(animations, 0);
    EXPECT_EQ(reloads, 4);
    EXPECT_EQ(Settings::selection(u"Movies"_s)->mid(2),
              (QStringList{u"M4V00001/My Clip"_s, u"M4V00002/b"_s}));
    EXPECT_EQ(QString::fromUtf8(readFile(resources / u"arguments"_s)).section(u'\n', 0, 0),
              u"%1|My Clip|%2/CONVERT.MP4|%2/CONVERT.THM|0|2|2|1|0|150|0||%3"_s.arg(
                  first, support, resources.path()));
    SyncHarness::settle();
    EXPECT_EQ(harness.delegate.count(u"syncWillStart"_s), 1);
    EXPECT_EQ(logged(), "");
}

TEST_F(MovieQueueTest, ShowsHowFarAConversionIs)
{
    setConverter("printf 'Duration: 00:01:00.0, start: 0.0\\nOutput'; sleep 0.1\n"
                 "printf 'frame=  450 q=2.0'\nwhile [ ! -e \"$R/go\" ]; do sleep 0.01; done\n" +
                 succeeds);
    add("a.avi");
    EXPECT_EQ(queue.percentConverted(), u"Conversion in progress..."_s);
    EXPECT_TRUE(waitFor(
        [&] { return queue.percentConverted() == u"Conversion in progress, 25% completed..."; }));
    writeFile(resources / u"go"_s, {});
    ASSERT_TRUE(waitUntilIdle());
    EXPECT_EQ(queue.percentConverted(), u"Conversion in progress..."_s);
}

TEST_F(MovieQueueTest, GoesOnAfterEveryKindOfFailure)
{
    const SystemLogCapture log;
    setConverter("case \"$2\" in\nexits) exit 3;;\nkilled) kill -9 $$;;\n"
                 "floods) head -c 20000000 /dev/zero; exit 1;;\nempty) exit 0;;\n"
                 "mute) exec >&- 2>&-;;\nesac\n" +
                 succeeds);
    add("exits.avi,killed.avi,floods.avi,empty.avi,mute.avi");
    ASSERT_TRUE(waitUntilIdle());
    EXPECT_EQ(rows(), "mute M4V00002.THM+\nexits ConvertFailed+\nkilled ConvertFailed+\n"
                      "floods ConvertFailed+")
        << "without a movie file there is no row";
    for (const char *name : {"exits", "killed", "floods"})
        queue.removeMovieItem(row(QString::fromLatin1(name)));
    QFile(converter).setPermissions(QFile::ReadOwner);
    add("not executable.avi");
    ASSERT_TRUE(waitUntilIdle());
    QFile::remove(converter);
    add("missing.avi");
    ASSERT_TRUE(waitUntilIdle());
    EXPECT_EQ(rows(), "mute M4V00002.THM+\nnot executable ConvertFailed+\nmissing ConvertFailed+");
    EXPECT_EQ(logged(), "Movie conversion failed: exits\nMovie conversion failed: killed\n"
                        "Movie conversion failed: floods\n"
                        "Movie conversion failed: not executable\n"
                        "Movie conversion failed: missing");
    EXPECT_EQ(animations, 0);
}

TEST_F(MovieQueueTest, RemovesRowsInEveryState)
{
    const SystemLogCapture log;
    // It never ends by itself, and not when it is asked to; what it starts goes with it.
    setConverter("trap '' TERM; sleep 1000 & wait\nwait\n");
    add("a.avi,b.avi,c.avi");
    queue.removeMovieItem(row(u"b"));
    EXPECT_EQ(rows(), "a ConvertWorking1+\nc ConvertWaiting+");
    queue.renameMovieItem(row(u"c"), u"Sea"_s);
    queue.renameMovieItem(row(u"Sea"), u"a/b"_s);
    Settings::setSelection(u"Movies"_s, {});
    const QVariantMap head = row(u"a");
    setConverter(succeeds);
    queue.removeMovieItem(head);
    ASSERT_TRUE(waitUntilIdle());
    EXPECT_EQ(rows(), "Sea M4V00001.THM") << "deselected while it waited";
    queue.removeMovieItem(row(u"Sea"));
    EXPECT_EQ(rows(), "");
    queue.removeMovieItem({{u"identifier"_s, u"../.."_s}});
    EXPECT_TRUE(QFile::exists(harness.home(u"a.avi"_s)));

    // A helper that quits ends its converter, which removes what it half wrote.
    setConverter("trap 'rm -f \"$3.part\"; exit 1' TERM; echo half >\"$3.part\"; touch \"$R/up\"\n"
                 "while :; do sleep 0.05; done\n");
    add("a.avi");
    ASSERT_TRUE(waitFor([&] { return QFile::exists(resources / u"up"_s); }));
    queue.close();
    EXPECT_FALSE(queue.isConvertingMovie());
    EXPECT_FALSE(QFile::exists(CVSyncMovies::convertedFile(u".MP4.part"_s)));
    EXPECT_EQ(logged(), "");
}
