#include "fuzz/InlineWorkers.h"

#include "fuzz/Home.h"
#include "platform/core/MainThread.h"

#include <QCoreApplication>
#include <QPointer>

#include <deque>
#include <utility>

namespace {

std::function<void()> betweenCalls;
std::deque<std::function<void()>> calls;
std::deque<std::function<void()>> workers; // the first one is at work while `isAtWork`
bool isAtWork = false;
bool isOnMainThread = true;

void runFirstWorker()
{
    isAtWork = true;
    isOnMainThread = false;
    workers.front()();
    isOnMainThread = true;
    workers.pop_front();
    isAtWork = false;
}

} // namespace

void InlineWorkers::setInterlude(std::function<void()> interlude)
{
    betweenCalls = std::move(interlude);
}

bool isMainThread()
{
    return isOnMainThread;
}

void serveWaitingCalls()
{
    for (size_t count = calls.size(); count > 0; --count) {
        const auto work = std::move(calls.front());
        calls.pop_front();
        work();
    }
}

void performOnMainThread(QObject *context, std::function<void()> work, CallMode mode)
{
    if (mode == CallMode::DontWait) {
        calls.push_back(
            [isTied = context != nullptr, guard = QPointer(context), work = std::move(work)] {
                if (guard || !isTied)
                    work();
            });
        return;
    }
    const bool isFromWorker = !std::exchange(isOnMainThread, true);
    if (isFromWorker) {
        serveWaitingCalls();
        if (betweenCalls)
            betweenCalls();
    }
    work();
    isOnMainThread = !isFromWorker;
}

bool Workers::start(std::function<void()> work)
{
    workers.push_back(std::move(work));
    return true;
}

int Workers::live()
{
    return static_cast<int>(workers.size());
}

bool Workers::serveUntilFinished(std::chrono::milliseconds)
{
    promise(!isAtWork, "nothing waits for a worker in the middle of its own calls");
    do {
        serveWaitingCalls();
        QCoreApplication::processEvents();
        if (!workers.empty())
            runFirstWorker();
    } while (!workers.empty() || !calls.empty());
    return true;
}
