// What a worker's waiting call to the main thread costs, beside Qt's own: the time of calls back to
// back, and the processor time (both threads') of calls at a stick's pace.

#include "platform/core/MainThread.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QMetaObject>

#include <benchmark/benchmark.h>

#include <chrono>
#include <ctime>
#include <thread>

using namespace std::chrono_literals;

namespace {

using Work = void (*)();
using Call = void (*)(Work work);

void callThroughBridge(Work work)
{
    performOnMainThread(nullptr, work, CallMode::Wait);
}

void callThroughQt(Work work)
{
    QMetaObject::invokeMethod(QCoreApplication::instance(), work, Qt::BlockingQueuedConnection);
}

/// Has a worker make so many calls, each after a pause, and serves them.
void serveCalls(Call call, int count, std::chrono::milliseconds pause)
{
    QEventLoop loop;
    const bool isStarted = Workers::start([&loop, call, count, pause] {
        for (int i = 0; i < count; ++i) {
            if (pause > 0ms)
                std::this_thread::sleep_for(pause);
            call([] {});
        }
        performOnMainThread(
            nullptr, [&loop] { loop.quit(); }, CallMode::DontWait);
    });
    if (!isStarted)
        qFatal("there is no thread to call from");
    loop.exec();
    Workers::serveUntilFinished(60s);
}

void backToBack(benchmark::State &state, Call call)
{
    for ([[maybe_unused]] auto each : state)
        serveCalls(call, 10000, 0ms);
}

void processorTime(benchmark::State &state, Call call, std::chrono::milliseconds pause)
{
    for ([[maybe_unused]] auto each : state) {
        const std::clock_t before = std::clock(); // the whole process's
        serveCalls(call, 250, pause);
        state.SetIterationTime(double(std::clock() - before) / CLOCKS_PER_SEC);
    }
}

void registerPaced(const std::string &name, Call call, std::chrono::milliseconds pause)
{
    benchmark::RegisterBenchmark(name.c_str(), processorTime, call, pause)
        ->UseManualTime()
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
}

[[maybe_unused]] const bool registered = [] {
    const std::pair<std::string, Call> ways[] = {{"/us", callThroughBridge},
                                                 {"/peer: Qt's blocking call", callThroughQt}};
    for (const auto &[who, call] : ways) {
        benchmark::RegisterBenchmark(("bridge: 10000 calls back to back" + who).c_str(), backToBack,
                                     call)
            ->UseRealTime()
            ->Unit(benchmark::kMillisecond);
        registerPaced("bridge: processor, 250 calls 2 ms apart" + who, call, 2ms);
        registerPaced("bridge: processor, 250 calls 6 ms apart" + who, call, 6ms);
    }
    return true;
}();

} // namespace
