// Finding 20,000 files in place, against a bare loop of the same stat calls.

#include "Workbench.h"
#include "support/ListModule.h"
#include "support/SyncHarness.h"
#include "sync/SyncPlanner.h"

#include <QDir>
#include <QFile>

#include <benchmark/benchmark.h>

#include <sys/stat.h>

namespace {

constexpr int fileCount = 20000;
constexpr int perFolder = 20;

/// Sources and their equal copies, as a music selection lies on a stick.
struct InPlace
{
    Workbench folder;
    std::vector<CVSyncItem> items;

    InPlace()
    {
        QDir().mkpath(folder / QStringLiteral("stick/PSP/MUSIC"));
        for (int i = 0; i < fileCount; ++i) {
            const QString album = QStringLiteral("Some Album %1").arg(i / perFolder);
            const QString name = QStringLiteral("%1/105. A Song %2.mp3").arg(album).arg(i);
            for (const QString &top :
                 {QStringLiteral("home/Music/"), QStringLiteral("stick/PSP/MUSIC/")}) {
                QDir().mkpath(folder / (top + album));
                QFile file(folder / (top + name));
                if (!file.open(QIODevice::WriteOnly) || file.write("contents") != 8)
                    qFatal("can't write %s", qPrintable(file.fileName()));
            }
            items.emplace_back(folder / (QStringLiteral("home/Music/") + name),
                               folder / (QStringLiteral("stick/PSP/MUSIC/") + name), name);
        }
    }
};

void prepareInPlace(benchmark::State &state)
{
    const InPlace place;
    const ListModule::Wishes wishes{[&place] { return place.items; }, QStringLiteral("/PSP/MUSIC")};
    SyncHarness harness;
    const QString stick = place.folder / QStringLiteral("stick");
    quint64 left = 0;
    for (auto _ : state) {
        ModuleList modules;
        modules.push_back(std::make_unique<ListModule>(stick, QStringLiteral("Music"), wishes));
        const SyncPlan plan = SyncPlanner(stick, [] { return false; }).plan(modules);
        left += plan.syncBytesTotal() + plan.kinds[0].removals.size();
    }
    if (left != 0)
        state.SkipWithError("not everything was in place");
}

void bareStatLoop(benchmark::State &state)
{
    const InPlace place;
    std::vector<std::pair<std::string, std::string>> paths;
    for (const CVSyncItem &item : place.items)
        paths.emplace_back(item.source.toStdString(), item.destination.toStdString());
    for (auto _ : state) {
        size_t equal = 0;
        struct stat source;
        struct stat destination;
        for (const auto &[from, to] : paths) {
            if (::lstat(from.c_str(), &source) == 0 && ::lstat(to.c_str(), &destination) == 0)
                equal += source.st_size == destination.st_size;
        }
        benchmark::DoNotOptimize(equal);
    }
}

BENCHMARK(prepareInPlace)
    ->Name("20,000 files in place/plan")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(bareStatLoop)
    ->Name("20,000 files in place/peer: bare loop of the stats")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace
