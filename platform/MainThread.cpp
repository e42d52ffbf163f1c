#include "platform/MainThread.h"

#include "platform/Log.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QSocketNotifier>
#include <QTimer>

#include <sys/eventfd.h>
#include <unistd.h>

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <system_error>
#include <thread>

namespace {

/// Lets a waiting caller go on. Lives on that caller's stack.
struct Completion
{
    std::mutex mutex;
    std::condition_variable changed;
    bool done = false; // under mutex

    void signal()
    {
        // Notified under the lock: the waiter's stack may be gone right after it.
        const std::scoped_lock lock(mutex);
        done = true;
        changed.notify_one();
    }

    void wait()
    {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return done; });
    }
};

struct Call
{
    std::function<void()> work;
    Completion *completion = nullptr; // nobody waits where it is null
};

/// The calls on their way to the main thread. Workers touch nothing of Qt's: they queue a call and
/// count an eventfd up, which the main thread's event loop watches. One count is one call, so that
/// a nested event loop serves what comes after the call that runs it.
class CallQueue
{
public:
    CallQueue()
        : m_wakeup(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK | EFD_SEMAPHORE))
    {
        if (m_wakeup < 0)
            qFatal("can't make an eventfd for the main thread's calls");
    }

    void attachToApplication()
    {
        m_mainThread = std::this_thread::get_id();
        auto *notifier =
            new QSocketNotifier(m_wakeup, QSocketNotifier::Read, QCoreApplication::instance());
        QObject::connect(notifier, &QSocketNotifier::activated, notifier, [this] { serveOne(); });
    }

    bool isMainThread() const { return m_mainThread.load() == std::this_thread::get_id(); }

    void append(Call call)
    {
        {
            const std::scoped_lock lock(m_mutex);
            m_calls.push_back(std::move(call));
        }
        const std::uint64_t one = 1;
        while (::write(m_wakeup, &one, sizeof one) < 0 && errno == EINTR) {
        }
    }

private:
    void serveOne()
    {
        std::uint64_t count = 0;
        if (::read(m_wakeup, &count, sizeof count) < 0)
            return;
        Call call;
        {
            const std::scoped_lock lock(m_mutex);
            call = std::move(m_calls.front());
            m_calls.pop_front();
        }
        call.work();
        call.work = nullptr; // what it captured dies before its caller goes on
        if (call.completion)
            call.completion->signal();
    }

    const int m_wakeup;
    // Until an application is made, the thread that loaded the program.
    std::atomic<std::thread::id> m_mainThread = std::this_thread::get_id();

    std::mutex m_mutex; // guards what follows
    std::deque<Call> m_calls;
};

/// Never destroyed: a detached worker may still call while the process ends. It then waits until
/// the process is gone.
CallQueue &callQueue()
{
    static auto *queue = new CallQueue;
    return *queue;
}

void attachCallQueue()
{
    callQueue().attachToApplication();
}

std::atomic<int> liveWorkers = 0;

void runWorker(std::function<void()> work)
{
    work();
    work = nullptr;
    --liveWorkers;
    performOnMainThread([] {}, CallMode::DontWait); // wakes serveUntilFinished()
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(attachCallQueue)

bool isMainThread()
{
    return callQueue().isMainThread();
}

void performOnMainThread(std::function<void()> work, CallMode mode)
{
    if (mode == CallMode::DontWait) {
        callQueue().append({std::move(work)});
        return;
    }
    if (isMainThread()) {
        work();
        return;
    }
    Completion completion;
    callQueue().append({std::move(work), &completion});
    completion.wait();
}

void Workers::start(std::function<void()> work)
{
    ++liveWorkers;
    try {
        std::thread(runWorker, std::move(work)).detach();
    } catch (const std::system_error &error) {
        qFatal("can't start a thread: %s", error.what());
    }
}

int Workers::live()
{
    return liveWorkers.load();
}

bool Workers::serveUntilFinished(std::chrono::milliseconds limit)
{
    const QDeadlineTimer deadline(limit);
    QTimer end; // wakes the loop when the time is over
    end.setSingleShot(true);
    end.start(limit);
    QEventLoop loop;
    while (live() > 0 && !deadline.hasExpired())
        loop.processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    return live() == 0;
}
