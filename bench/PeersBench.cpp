// Whole runs of the helper beside the commands that do the same: first copy, nothing to do,
// clean-up. What is left out of ours is the pause at the start alone.

#include "DropboxHome.h"

#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QStandardPaths>

#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>

namespace {

constexpr DropboxHome::Shape smallFiles{20000, 20, 8 << 10};
constexpr DropboxHome::Shape largeFiles{40, 10, 16 << 20};
constexpr DropboxHome::Shape onImage{1000, 20, 64 << 10, 512LL << 20};

/// Times the work alone, not what makes it ready.
template <typename Ready, typename Work>
void measure(benchmark::State &state, Ready ready, Work work)
{
    for (auto _ : state) {
        ready();
        const auto start = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(taken.count());
    }
}

using Command = QStringList (*)(const QString &from, const QString &to);

QStringList rsync(const QString &from, const QString &to)
{
    return {QStringLiteral("rsync"), QStringLiteral("-rt"), QStringLiteral("--delete"), from + u'/',
            to + u'/'};
}

QStringList rclone(const QString &from, const QString &to)
{
    return {QStringLiteral("rclone"), QStringLiteral("--config="), QStringLiteral("sync"), from,
            to};
}

QStringList cp(const QString &from, const QString &to)
{
    return {QStringLiteral("cp"), QStringLiteral("-r"), from + QStringLiteral("/."), to};
}

QStringList diff(const QString &from, const QString &to)
{
    return {QStringLiteral("diff"), QStringLiteral("-rq"), from, to};
}

QStringList rm(const QString & /*from*/, const QString &to)
{
    return {QStringLiteral("rm"), QStringLiteral("-rf"), to};
}

void run(QStringList command)
{
    const QString program = command.takeFirst();
    if (QProcess::execute(program, command) != 0)
        qFatal("%s failed", qPrintable(program));
}

// --- First copy

void firstCopy(benchmark::State &state, const DropboxHome::Shape &shape)
{
    DropboxHome home(shape);
    measure(
        state,
        [&] {
            home.emptyStick();
            home.settle();
        },
        [&] { home.sync(); });
}

void firstCopyOf(benchmark::State &state, const DropboxHome::Shape &shape, Command command)
{
    const DropboxHome home(shape);
    measure(
        state, [&] { home.emptyStick(); }, [&] { run(command(home.sources(), home.music())); });
}

/// Copies as we promise to, each file flushed before the next, and does nothing else.
void bareLoop(const QString &from, const QString &to)
{
    QDirIterator each(from, QDir::AllEntries | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (each.hasNext()) {
        const QString path = each.next();
        const QString target = to + path.mid(from.size());
        if (each.fileInfo().isDir()) {
            ::mkdir(target.toUtf8().constData(), 0755);
            continue;
        }
        const int source = ::open(path.toUtf8().constData(), O_RDONLY);
        const int copy = ::open(target.toUtf8().constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        while (::sendfile(copy, source, nullptr, 1 << 20) > 0) {
        }
        ::syncfs(copy);
        ::close(source);
        ::close(copy);
    }
}

void flushedCopy(benchmark::State &state, const DropboxHome::Shape &shape)
{
    const DropboxHome home(shape);
    measure(
        state, [&] { home.emptyStick(); }, [&] { bareLoop(home.sources(), home.music()); });
}

// --- Nothing to do

void nothingToDo(benchmark::State &state, const DropboxHome::Shape &shape)
{
    DropboxHome home(shape);
    home.sync();
    measure(
        state, [&] { home.settle(); }, [&] { home.sync(); });
}

/// The command once more over what lies there already.
void againOf(benchmark::State &state, const DropboxHome::Shape &shape, Command command)
{
    const DropboxHome home(shape);
    run({QStringLiteral("cp"), QStringLiteral("-a"), home.sources() + QStringLiteral("/."),
         home.music()}); // with its times, which some look at
    measure(
        state, [] {}, [&] { run(command(home.sources(), home.music())); });
}

// --- Clean-up

void cleanUp(benchmark::State &state, const DropboxHome::Shape &shape)
{
    DropboxHome home(shape);
    measure(
        state,
        [&] {
            home.select(true);
            home.sync();
            home.select(false);
            home.settle();
        },
        [&] { home.sync(); });
    if (!QDir(home.music()).isEmpty())
        state.SkipWithError("something is left");
}

void cleanUpOf(benchmark::State &state, const DropboxHome::Shape &shape, Command command)
{
    const DropboxHome home(shape);
    const Workbench nothing;
    measure(
        state, [&] { run(cp(home.sources(), home.music())); },
        [&] { run(command(nothing.path(), home.music())); });
}

// --- Comparing

void comparison(benchmark::State &state, const DropboxHome::Shape &shape)
{
    const DropboxHome home(shape);
    run(cp(home.sources(), home.music()));
    bool equal = true;
    measure(
        state, [] {},
        [&] {
            equal =
                equal && FileManager::defaultManager().contentsEqual(home.sources(), home.music());
        });
    if (!equal)
        state.SkipWithError("a copy is no true one");
}

// --- The table

void add(const std::string &name, const std::function<void(benchmark::State &)> &work)
{
    benchmark::RegisterBenchmark(name.c_str(), work)
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime()
        ->Iterations(1);
}

struct Peer
{
    const char *name;
    Command command;
};

void addRow(const std::string &what, const DropboxHome::Shape &shape,
            void (*us)(benchmark::State &, const DropboxHome::Shape &),
            void (*peer)(benchmark::State &, const DropboxHome::Shape &, Command),
            std::initializer_list<Peer> peers)
{
    add(what + "/run", [&shape, us](benchmark::State &state) { us(state, shape); });
    for (const Peer &each : peers) {
        const QStringList command = each.command({}, {});
        if (QStandardPaths::findExecutable(command.first()).isEmpty())
            continue;
        add(what + "/peer: " + each.name,
            [&shape, peer, command = each.command](benchmark::State &state) {
                peer(state, shape, command);
            });
    }
}

const bool registered = [] {
    const Peer rsyncPeer{"rsync -rt --delete", rsync};
    const Peer rclonePeer{"rclone sync", rclone};
    const Peer cpPeer{"cp -r", cp};
    addRow("first copy of 20,000 files of 8 KiB", smallFiles, firstCopy, firstCopyOf,
           {rsyncPeer, rclonePeer, cpPeer});
    addRow("nothing to do with 20,000 files", smallFiles, nothingToDo, againOf,
           {rsyncPeer, rclonePeer});
    addRow("clean-up of 20,000 files", smallFiles, cleanUp, cleanUpOf,
           {{"rm -rf", rm}, rsyncPeer, rclonePeer});
    addRow("first copy of 40 files of 16 MiB", largeFiles, firstCopy, firstCopyOf,
           {cpPeer, rsyncPeer, rclonePeer});
    addRow("comparing 20,000 files of 8 KiB", smallFiles, comparison, againOf,
           {{"diff -rq", diff}});
    addRow("comparing 40 files of 16 MiB", largeFiles, comparison, againOf, {{"diff -rq", diff}});
    if (::geteuid() != 0)
        return false;
    addRow("image: first copy of 1,000 files", onImage, firstCopy, firstCopyOf,
           {rsyncPeer, rclonePeer});
    add("image: first copy of 1,000 files/peer: bare loop with syncfs",
        [](benchmark::State &state) { flushedCopy(state, onImage); });
    addRow("image: nothing to do with 1,000 files", onImage, nothingToDo, againOf,
           {rsyncPeer, rclonePeer});
    addRow("image: clean-up of 1,000 files", onImage, cleanUp, cleanUpOf,
           {{"rm -rf", rm}, rsyncPeer, rclonePeer});
    return true;
}();

} // namespace
