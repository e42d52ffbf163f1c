// Finding 20,000 files in place, against what a run does that has nothing to do, and against a bare
// loop of the same stat calls; and showing a plan of 100,000 rows.

#include "app/PlanRows.h"
#include "support/ListModule.h"
#include "support/SyncHarness.h"
#include "sync/SyncPlanner.h"

#include <benchmark/benchmark.h>

#include <sys/stat.h>

#include <chrono>

namespace {

constexpr int fileCount = 20000;
constexpr int perFolder = 20;

/// Sources and their equal copies, as a music selection lies on a stick.
struct InPlace
{
    std::vector<CVSyncItem> items;
    const ListModule::Wishes wishes{[this] { return items; }, QStringLiteral("/PSP/MUSIC")};
    SyncHarness harness{{ListModule::kind(QStringLiteral("Music"), wishes)}};

    InPlace()
    {
        harness.mountStick();
        for (int i = 0; i < fileCount; ++i) {
            const QString name =
                QStringLiteral("Some Album %1/105. A Song %2.mp3").arg(i / perFolder).arg(i);
            const QString source = harness.home(QStringLiteral("Music/") + name);
            const QString copy = harness.stick(QStringLiteral("PSP/MUSIC/") + name);
            writeFile(source, "contents");
            writeFile(copy, "contents");
            items.emplace_back(source, copy, name);
        }
    }
};

void planInPlace(benchmark::State &state)
{
    InPlace place;
    const QString stick = place.harness.stick();
    quint64 left = 0;
    for (auto _ : state) {
        ModuleList modules;
        modules.push_back(
            std::make_unique<ListModule>(stick, QStringLiteral("Music"), place.wishes));
        const SyncPlan plan = SyncPlanner(stick, [] { return false; }).plan(modules);
        left += plan.syncBytesTotal() + plan.kinds[0].removals.size();
    }
    if (left != 0)
        state.SkipWithError("not everything was in place");
}

/// From the end of its pauses until it would copy.
void prepareAndCleanUp(benchmark::State &state)
{
    InPlace place;
    std::chrono::steady_clock::time_point began;
    std::chrono::duration<double> taken{};
    place.harness.clock.onSleep = [&began](int) {
        began = std::chrono::steady_clock::now();
    };
    place.harness.delegate.onEvent = [&](const QString &event) {
        if (event == u"syncDidStart")
            taken = std::chrono::steady_clock::now() - began;
    };
    for (auto _ : state) {
        if (!place.harness.run() || place.harness.delegate.processed() > 0)
            state.SkipWithError("there was something to do");
        state.SetIterationTime(taken.count());
    }
}

void bareStatLoop(benchmark::State &state)
{
    InPlace place;
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

constexpr unsigned rowCount = 100000;

const SyncPlan &longPlan()
{
    static const SyncPlan made = [] {
        SyncPlan plan{.volume = QStringLiteral("/media/STICK")};
        KindPlan &kind = plan.kinds.emplace_back();
        for (unsigned i = 0; i < rowCount; ++i) {
            const QString name = QStringLiteral("Some Album/%1. A Song.mp3").arg(i);
            kind.items.push_back({{QStringLiteral("/home/me/Music/") + name,
                                   plan.volume + QStringLiteral("/PSP/MUSIC/") + name, name}});
        }
        return plan;
    }();
    return made;
}

void page(benchmark::State &state, unsigned first)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(PlanRows::items(longPlan(), {}, first, PlanRows::longestPage));
}

void summary(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(PlanRows::summary(longPlan()));
}

BENCHMARK_CAPTURE(page, last, rowCount - PlanRows::longestPage)
    ->Name("last page of 100,000 rows/plan")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(page, first, 0)
    ->Name("first page of 100,000 rows/plan")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(summary)->Name("summary of 100,000 rows/plan")->Unit(benchmark::kMillisecond);
BENCHMARK(planInPlace)
    ->Name("20,000 files in place/plan")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(prepareAndCleanUp)
    ->Name("20,000 files in place/peer: prepare and clean-up")
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime();
BENCHMARK(bareStatLoop)
    ->Name("20,000 files in place/peer: bare loop of the stats")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace
