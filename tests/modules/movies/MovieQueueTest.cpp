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

    void SetUp() override
    {
        harness.mountStick();
        QDir().mkpath(harness.home(u"Library/Application Support/Caravel"_s));
    }
    void TearDown() override
    {
        queue.close();
        harness.settle();
    }

    void reloadMoviesView() override { ++reloads; }
    void startConversionAnimation() override { ++animations; }
    void stopConversionAnimation() override { --animations; }
    void movieAlert(const QString &title, const QString &) override { alerts.append(title); }

    /// A script in the converter's place; $3 and $4 are its outputs.
    void setConverter(const QByteArray &script) const
    {
        const QString path = resources / u"convert.sh"_s;
        QFile::remove(path);
        writeFile(path, "#!/bin/sh\n" + script);
        QFile(path).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }
    QString source(const char *name) const
    {
        const QString path = harness.home(QString::fromUtf8(name));
        writeFile(path, "source");
        return path;
    }
    /// "name icon" of each row, with "+" where it is enabled.
    QStringList rows()
    {
        QStringList result;
        for (const QVariant &each : queue.moviesItems()) {
            const QVariantMap row = each.toMap();
            result.append(row.value(u"name"_s).toString() + u' ' +
                          row.value(u"icon"_s).toString().section(u'/', -1) +
                          (row.value(u"enabled"_s).toBool() ? u"+"_s : QString()));
        }
        return result;
    }
    QVariantMap row(const QString &name)
    {
        for (const QVariant &each : queue.moviesItems()) {
            if (each.toMap().value(u"name"_s) == name)
                return each.toMap();
        }
        return {};
    }
    bool waitUntilIdle()
    {
        return waitFor([this] { return sounds.played.contains(u"ConvertCompleted"_s); });
    }
    bool hasLogged(const char *message) const
    {
        return logger.log().contains(QString::fromUtf8(message) + u'\n');
    }
};

const QByteArray succeeds = "echo movie >\"$3\"; echo thumbnail >\"$4\"\n";

QStringList list(std::initializer_list<const char *> texts)
{
    QStringList result;
    for (const char *text : texts)
        result.append(QString::fromUtf8(text));
    return result;
}

} // namespace

TEST_F(MovieQueueTest, ConvertsOneAfterTheOtherAndSyncsThen)
{
    // It says what it was given, and that no other runs beside it.
    setConverter("mkdir \"$3.lock\" || exit 1\n"
                 "printf '%s|' \"$@\" >>\"" +
                 resources.path().toUtf8() + "/arguments\"; pwd >>\"" + resources.path().toUtf8() +
                 "/arguments\"\n" + succeeds + "rmdir \"$3.lock\"\n");
    Settings::volumeBoost.set(150);
    Settings::syncOnMount.set(true);
    const QString first = source("My Clip.avi");
    queue.addMoviesFromArray({first, source("b.mpg"), u"relative.avi"_s});
    EXPECT_TRUE(queue.isConvertingMovie());
    EXPECT_EQ(animations, 1);
    EXPECT_EQ(rows(), list({"My Clip ConvertWorking1+", "b ConvertWaiting+"}));
    const QVariantMap head = row(u"My Clip"_s);
    EXPECT_EQ(head.value(u"identifier"_s), first);
    EXPECT_EQ(head.value(u"identifier2"_s).toString(),
              first + u"-%1"_s.arg(harness.clock.current.toSecsSinceEpoch()));
    EXPECT_EQ(head.value(u"size"_s), u"6 b"_s);
    EXPECT_EQ(head.value(u"converting"_s), true);
    ASSERT_TRUE(waitUntilIdle());
    EXPECT_EQ(rows(), list({"My Clip M4V00001.THM+", "b M4V00002.THM+"}));
    EXPECT_EQ(row(u"b"_s).value(u"size"_s), u"Size: 6 b"_s);
    EXPECT_EQ(animations, 0);
    EXPECT_EQ(reloads, 3);
    EXPECT_EQ(Settings::selection(CVSyncMovies::saveName())->mid(2),
              list({"M4V00001/My Clip", "M4V00002/b"}));
    const QString support = harness.home(u"Library/Application Support/Caravel"_s);
    EXPECT_EQ(QString::fromUtf8(readFile(resources / u"arguments"_s)).section(u'\n', 0, 0),
              first + u"|My Clip|"_s + support + u"/CONVERT.MP4|"_s + support +
                  u"/CONVERT.THM|0|2|2|1|0|150|0||"_s + resources.path());
    harness.settle();
    EXPECT_EQ(harness.delegate.count(u"syncWillStart"_s), 1);
    EXPECT_FALSE(hasLogged("Movie conversion failed: b"));
}

TEST_F(MovieQueueTest, ShowsHowFarAConversionIs)
{
    const QString go = resources / u"go"_s;
    setConverter("printf 'Duration: 00:01:00.0, start: 0.0\\nOutput'; sleep 0.1\n"
                 "printf 'frame=  450 q=2.0'\n"
                 "while [ ! -e \"" +
                 go.toUtf8() + "\" ]; do sleep 0.01; done\n" + succeeds);
    queue.addMoviesFromArray({source("a.avi")});
    EXPECT_EQ(queue.percentConverted(), u"Conversion in progress..."_s);
    EXPECT_TRUE(waitFor(
        [&] { return queue.percentConverted() == u"Conversion in progress, 25% completed..."; }));
    writeFile(go, {});
    ASSERT_TRUE(waitUntilIdle());
    EXPECT_EQ(queue.percentConverted(), u"Conversion in progress..."_s);
}

TEST_F(MovieQueueTest, GoesOnAfterEveryKindOfFailure)
{
    const SystemLogCapture log;
    const struct
    {
        const char *what;
        QByteArray script; // empty: none
        bool executable;
        bool fails;
    } cases[] = {
        {"exits at once", "exit 3\n", true, true},
        {"is killed", "kill -9 $$\n", true, true},
        {"floods", "head -c 20000000 /dev/zero; exit 1\n", true, true},
        {"not executable", "exit 0\n", false, true},
        {"missing", "", true, true},
        {"no output", "exit 0\n", true, false},
        {"ignores its output", "exec >&- 2>&-; " + succeeds, true, false},
    };
    for (const auto &c : cases) {
        setConverter(c.script);
        QFile converter(resources / u"convert.sh"_s);
        if (c.script.isEmpty())
            converter.remove();
        else if (!c.executable)
            converter.setPermissions(QFile::ReadOwner);
        logger.clear();
        sounds.played.clear();
        queue.addMoviesFromArray({source("film.avi")});
        ASSERT_TRUE(waitUntilIdle()) << c.what;
        EXPECT_EQ(hasLogged("Movie conversion failed: film"), c.fails) << c.what;
        EXPECT_EQ(rows().contains(u"film ConvertFailed+"_s), c.fails) << c.what;
        if (c.fails)
            queue.removeMovieItem(row(u"film"_s));
    }
    EXPECT_EQ(rows(), list({"film M4V00002.THM+"})) << "without a movie file there is no row";
    EXPECT_EQ(animations, 0);
}

TEST_F(MovieQueueTest, RemovesRowsInEveryState)
{
    const SystemLogCapture log;
    // It never ends by itself, and not when it is asked to; what it starts goes with it.
    setConverter("trap '' TERM; sleep 1000 & wait\nwait\n");
    queue.addMoviesFromArray({source("a.avi"), source("b.avi"), source("c.avi")});
    queue.removeMovieItem(row(u"b"_s));
    EXPECT_EQ(rows(), list({"a ConvertWorking1+", "c ConvertWaiting+"}));
    queue.renameMovieItem(row(u"c"_s), u"Sea"_s);
    queue.renameMovieItem(row(u"Sea"_s), u"a/b"_s);
    Settings::setSelection(CVSyncMovies::saveName(), {});
    const QVariantMap head = row(u"a"_s);
    setConverter(succeeds);
    queue.removeMovieItem(head);
    ASSERT_TRUE(waitUntilIdle());
    EXPECT_EQ(rows(), list({"Sea M4V00001.THM"})) << "deselected while it waited";
    EXPECT_FALSE(hasLogged("Movie conversion failed: a"));
    queue.removeMovieItem(row(u"Sea"_s));
    EXPECT_TRUE(rows().isEmpty());
    queue.removeMovieItem({{u"identifier"_s, u"../.."_s}});
    EXPECT_TRUE(QFile::exists(harness.home(u"a.avi"_s)));
}

TEST_F(MovieQueueTest, EndsItsConverterWhenTheHelperQuits)
{
    setConverter("trap 'rm -f \"$3.part\"; exit 1' TERM; echo half >\"$3.part\"; echo $$ >\"" +
                 resources.path().toUtf8() + "/pid\"\nwhile :; do sleep 0.05; done\n");
    queue.addMoviesFromArray({source("a.avi")});
    const QString part = CVSyncMovies::convertedFile(u".MP4.part"_s);
    ASSERT_TRUE(waitFor([&] { return QFile::exists(resources / u"pid"_s); }));
    queue.close();
    EXPECT_FALSE(queue.isConvertingMovie());
    EXPECT_FALSE(QFile::exists(part));
}

TEST_F(MovieQueueTest, QueuesAThousandAtOnce)
{
    setConverter("exit 1\n");
    QStringList paths;
    for (int i = 0; i < 1000; ++i)
        paths.append(u"/nowhere/%1.avi"_s.arg(i));
    paths.append(paths.first());
    queue.addMoviesFromArray(paths);
    EXPECT_EQ(queue.moviesItems().size(), 1001);
    EXPECT_EQ(Settings::selection(CVSyncMovies::saveName())->size(), 1000);
    for (const QVariant &each : queue.moviesItems())
        queue.removeMovieItem(each.toMap());
    ASSERT_TRUE(waitUntilIdle());
    // Two rows of one file and one second can't be told apart: the head went twice.
    EXPECT_EQ(rows(), list({"0 ConvertFailed+"}));
}
