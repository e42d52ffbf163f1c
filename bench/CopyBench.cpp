// A whole first run of 500 files of 1 MiB, without the start pause, against `cp -r`.

#include "Workbench.h"
#include "support/ListModule.h"
#include "support/SyncHarness.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <benchmark/benchmark.h>

namespace {

constexpr int fileCount = 500;
constexpr qsizetype fileBytes = 1 << 20;

struct Sources
{
    Workbench folder;

    Sources()
    {
        QDir().mkpath(folder / QStringLiteral("sources"));
        for (int i = 0; i < fileCount; ++i) {
            QFile file(folder / QStringLiteral("sources/%1.mp3").arg(i));
            if (!file.open(QIODevice::WriteOnly) ||
                file.write(QByteArray(fileBytes, char(i))) != fileBytes)
                qFatal("can't write %s", qPrintable(file.fileName()));
        }
    }
};

void firstCopy(benchmark::State &state)
{
    const Sources sources;
    const QString stick = sources.folder / QStringLiteral("stick");
    const ListModule::Wishes wishes{
        [&] {
            std::vector<CVSyncItem> items;
            for (int i = 0; i < fileCount; ++i) {
                const QString name = QStringLiteral("%1.mp3").arg(i);
                items.emplace_back(sources.folder / (QStringLiteral("sources/") + name),
                                   stick + QStringLiteral("/PSP/MUSIC/") + name, name);
            }
            return items;
        },
        QStringLiteral("/PSP/MUSIC")};
    SyncHarness harness(ModuleFactory{.music = ListModule::maker(QStringLiteral("Music"), wishes)});
    harness.defaults.setObject(QStringLiteral("syncOnMount"), false);
    QDir().mkpath(stick + QStringLiteral("/PSP"));
    QFile(stick + QStringLiteral("/MEMSTICK.IND")).open(QIODevice::WriteOnly);
    harness.volumes.mount(stick);
    for (auto _ : state) {
        if (!harness.run())
            state.SkipWithError("the run did not complete");
        state.PauseTiming();
        QDir(stick + QStringLiteral("/PSP/MUSIC")).removeRecursively();
        state.ResumeTiming();
    }
}

void copyCommand(benchmark::State &state)
{
    const Sources sources;
    const QString copy = sources.folder / QStringLiteral("copy");
    for (auto _ : state) {
        if (QProcess::execute(
                QStringLiteral("cp"),
                {QStringLiteral("-r"), sources.folder / QStringLiteral("sources"), copy}) != 0)
            state.SkipWithError("cp failed");
        state.PauseTiming();
        QDir(copy).removeRecursively();
        state.ResumeTiming();
    }
}

BENCHMARK(firstCopy)
    ->Name("first copy of 500 files of 1 MiB/sync run")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(copyCommand)
    ->Name("first copy of 500 files of 1 MiB/peer: cp -r")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace
