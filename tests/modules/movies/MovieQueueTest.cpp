// What the queue does that the real programs don't show.

#include "modules/movies/MovieQueue.h"

#include "modules/movies/CVSyncMovies.h"
#include "platform/core/MainThread.h"
#include "support/FakeDesktop.h"
#include "support/SyncHarness.h"
#include "util/QMLogger.h"
#include "util/Settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <functional>

using namespace std::chrono_literals;

namespace {

/// Notes who moves files, and may refuse.
class Mover : public FileManager
{
public:
    Mover() { FileManager::setDefaultManager(this); }
    ~Mover() override { FileManager::setDefaultManager(nullptr); }
    std::atomic<bool> refuses = false;
    std::atomic<bool> hasHeldTheMainThread = false;
    std::function<void()> whileMoving = [] {
    };
    bool move(const QString &source, const QString &destination,
              FileOperationHandler *handler) override
    {
        if (isMainThread())
            hasHeldTheMainThread = true;
        performOnMainThread(QCoreApplication::instance(), whileMoving, CallMode::Wait);
        return !refuses && FileManager::move(source, destination, handler);
    }
};

class MovieQueueTest : public testing::Test, protected MovieQueueDelegate
{
protected:
    SyncHarness harness;
    QMLogger logger;
    FakeSounds sounds;
    TemporaryFolder resources;
    Mover files;
    QStringList alerts;
    MovieQueue queue{
        {harness.manager, logger, sounds, harness.clock, *this, resources.path(), 10ms}};
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
    void reloadMoviesView() override {}
    void startConversionAnimation() override {}
    void stopConversionAnimation() override {}
    void movieAlert(const QString &, const QString &message) override
    {
        alerts.append(QString(message).replace(u"\n\n"_s, u" "_s).remove(support));
    }

    /// What a script in the converter's place makes of them; $3 and $4 are its outputs.
    void convert(const QByteArray &script, const QStringList &names)
    {
        const QString converter = resources / u"convert.sh"_s;
        writeFile(converter, "#!/bin/sh\n" + script);
        QFile(converter).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        QStringList paths;
        for (const QString &name : names)
            paths.append(harness.home(name));
        queue.addMoviesFromArray(paths);
        ASSERT_TRUE(waitFor([this] { return !sounds.played.isEmpty(); }));
        sounds.played.clear();
    }
};

} // namespace

TEST_F(MovieQueueTest, SaysWhyAMovieIsNotInTheLibrary)
{
    const SystemLogCapture log;
    QDir().mkpath(harness.home(u"Films/new"_s));
    QFile::link(harness.home(u"Films/new"_s), harness.home(u"new"_s));
    const QByteArray made = "\nesac; echo movie >\"$3\"; echo thumbnail >\"$4\"";
    convert("case $2 in ?) echo convert.sh: no video; exit 3;; killed) kill -9 $$;;\n"
            "floods) head -c 20000000 /dev/zero; exit 1;; short) echo Warning: it is short;;" +
                made,
            list("new/..//a.avi b.avi killed.avi floods.avi short.avi"));
    files.refuses = true;
    convert("case x in y) ;;" + made, {u"lost.avi"_s});
    EXPECT_EQ(joined(alerts),
              "The movie \"a\" could not be converted: no video\n"
              "The movie \"killed\" could not be converted: The converter gave no reason.\n"
              "The movie \"short\" was converted, but not all of it is there: it is short\n"
              "The movie \"lost\" was converted, but neither the movie library nor the folder  "
              "could take it. It has to be converted again.");
    QStringList rows;
    for (const QVariant &row : queue.moviesItems()())
        rows.append(row.toMap()[u"identifier"_s].toString().remove(harness.home({})));
    EXPECT_EQ(joined(rows), "M4V00001/short\nFilms/a.avi\nb.avi\nkilled.avi\nfloods.avi\nlost.avi");
}

TEST_F(MovieQueueTest, StoresBesideTheMainThreadAndKeepsTheMark)
{
    const SystemLogCapture log;
    queue.addMoviesFromArray({u"relative.avi"_s, u"/"_s});
    EXPECT_FALSE(Settings::selection(u"Movies"_s));
    Settings::useSyncProfiles.set(true);
    CVSyncMovies::setSelectedIdentifiers({u"x"_s}, harness.stick());
    const QString away = harness.home(u"away"_s);
    QDir().rename(harness.stick(), away);
    QTimer::singleShot(0, [&] { QDir().rename(away, harness.stick()); });
    convert("sleep 0.2; echo movie >\"$3\"; echo thumbnail >\"$4\"", {u"a.avi"_s});
    EXPECT_EQ(joined(*CVSyncMovies::selectedIdentifiersForPSP(harness.stick())), "x\nM4V00001/a");
    EXPECT_FALSE(files.hasHeldTheMainThread);

    files.whileMoving = [&] {
        queue.removeMovieItem(queue.moviesItems()().last().toMap());
    };
    convert("echo movie >\"$3\"; echo thumbnail >\"$4\"", {u"removed.avi"_s});
    EXPECT_EQ(queue.moviesItems()().size(), 1);
}

TEST_F(MovieQueueTest, KnowsTheMovieOfARowFromBeforeItWasStored)
{
    QVariantMap queued;
    const auto convertNoting = [&](const QString &name) {
        QTimer::singleShot(0, [&] { queued = queue.moviesItems()().last().toMap(); });
        convert("sleep 0.1; echo movie >\"$3\"; echo thumbnail >\"$4\"", {name});
    };
    convertNoting(u"late.avi"_s);
    queue.renameMovieItem(queued, u"Late"_s);
    queue.renameMovieItem(queued, u"Later"_s);
    EXPECT_EQ(CVSyncMovies::availableIdentifiers().last(), u"M4V00001/Later");
    queue.removeMovieItem(queued);
    const QVariantMap gone = queued; // the id becomes the next movie's
    convertNoting(u"other.avi"_s);
    queue.removeMovieItem(gone);
    EXPECT_EQ(CVSyncMovies::availableIdentifiers().last(), u"M4V00001/other");
}
