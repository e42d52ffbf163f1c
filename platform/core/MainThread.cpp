#include "platform/core/MainThread.h"

#include "platform/core/AwaitedAtQuit.h"
#include "platform/core/Log.h"
#include "platform/core/own/Posix.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QPointer>
#include <QSocketNotifier>
#include <QTimer>

#include <semaphore.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <deque>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>

namespace {

/// How long calls are served in one go, so that timers and requests don't starve.
constexpr auto longestBurst = std::chrono::microseconds(4000);

/// Lets a waiting caller go on, who may take this away at once.
class Completion
{
public:
    Completion() { ::sem_init(&m_done, 0, 0); }
    ~Completion() { ::sem_destroy(&m_done); }
    Completion(const Completion &) = delete;
    Completion &operator=(const Completion &) = delete;

    void signal() { ::sem_post(&m_done); }
    void wait()
    {
        Posix::retryInterrupted([this] { return ::sem_wait(&m_done); });
    }

private:
    sem_t m_done;
};

struct Call
{
    std::function<void()> work;
    Completion *done = nullptr; // the waiting caller's; null where nobody waits
};

/// The calls on their way to the main thread. Workers touch nothing of the application's, which may
/// be gone: they write to an eventfd that its event loop watches. It stays readable while calls
/// wait, so that a nested event loop of a call's serves what is left.
class CallQueue
{
public:
    CallQueue()
        : m_wakeup(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
    {
        if (m_wakeup < 0)
            qFatal("can't make an eventfd for the main thread's calls");
    }

    void attachToApplication()
    {
        m_mainThread = std::this_thread::get_id();
        auto *notifier =
            new QSocketNotifier(m_wakeup, QSocketNotifier::Read, QCoreApplication::instance());
        QObject::connect(notifier, &QSocketNotifier::activated, notifier, [this] { serveBurst(); });
    }

    bool isMainThread() const { return m_mainThread.load() == std::this_thread::get_id(); }

    void append(Call call)
    {
        bool isFirst = false;
        {
            const std::scoped_lock lock(m_mutex);
            isFirst = m_calls.empty();
            m_calls.push_back(std::move(call));
        }
        if (isFirst)
            wakeMainThread();
    }

    void serveWaiting()
    {
        for (size_t count = waiting(); count > 0 && serveOne(); --count) {
        }
    }

private:
    void wakeMainThread() const
    {
        const std::uint64_t one = 1;
        [[maybe_unused]] const auto written = ::write(m_wakeup, &one, sizeof one);
    }

    size_t waiting()
    {
        const std::scoped_lock lock(m_mutex);
        return m_calls.size();
    }

    void serveBurst()
    {
        const auto end = std::chrono::steady_clock::now() + longestBurst;
        if (!serveOne()) {
            sleepAfterLateWrite();
            return;
        }
        while (std::chrono::steady_clock::now() < end && serveOne()) {
        }
    }

    /// False where nothing waits.
    bool serveOne()
    {
        std::optional<Call> call = takeFirst();
        if (!call)
            return false;
        call->work();
        call->work = nullptr; // what it captured dies before its caller goes on
        if (call->done)
            call->done->signal();
        return true;
    }

    std::optional<Call> takeFirst()
    {
        const std::scoped_lock lock(m_mutex);
        if (m_calls.empty())
            return std::nullopt;
        std::optional<Call> first = std::move(m_calls.front());
        m_calls.pop_front();
        if (m_calls.empty())
            sleepAgain();
        return first;
    }

    /// A call may have been taken before its caller wrote: the loop then wakes for nothing.
    void sleepAfterLateWrite()
    {
        const std::scoped_lock lock(m_mutex);
        if (m_calls.empty())
            sleepAgain();
    }

    /// Lets the event loop wait. With the lock held: a write that comes later is for a later call.
    void sleepAgain() const
    {
        std::uint64_t count = 0;
        [[maybe_unused]] const auto cleared = ::read(m_wakeup, &count, sizeof count);
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
std::atomic<int> awaitedWorkers = 0;

void countWorker(Workers::AtQuit atQuit, int change)
{
    liveWorkers += change;
    if (atQuit == Workers::AtQuit::Wait)
        awaitedWorkers += change;
}

void wakeWhoeverServes() // in serveUntilFinished()
{
    performOnMainThread(
        nullptr, [] {}, CallMode::DontWait);
}

void runWorker(std::function<void()> work, Workers::AtQuit atQuit)
{
    work();
    work = nullptr;
    countWorker(atQuit, -1);
    wakeWhoeverServes();
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(attachCallQueue)

void serveWaitingCalls()
{
    callQueue().serveWaiting();
}

bool isMainThread()
{
    return callQueue().isMainThread();
}

void performOnMainThread(QObject *context, std::function<void()> work, CallMode mode)
{
    if (mode == CallMode::Wait && isMainThread()) {
        work();
        return;
    }
    // Objects of the main thread go on the main thread, where this asks.
    if (context) {
        work = [guard = QPointer(context), work = std::move(work)] {
            if (guard)
                work();
        };
    }
    if (mode == CallMode::DontWait) {
        callQueue().append({std::move(work), nullptr});
        return;
    }
    Completion done;
    callQueue().append({std::move(work), &done});
    done.wait();
}

// The toolkit ends the program by itself when its display goes away: no destructor may then run
// under a worker.
static void leaveUnderWorkers()
{
    if (Workers::live() > 0)
        std::_Exit(EXIT_FAILURE);
}

bool Workers::start(std::function<void()> work, AtQuit atQuit)
{
    [[maybe_unused]] static const int registered = std::atexit(leaveUnderWorkers);
    countWorker(atQuit, 1);
    try {
        std::thread(runWorker, std::move(work), atQuit).detach();
        return true;
    } catch (const std::system_error &error) {
        countWorker(atQuit, -1);
        qCWarning(lcPlatform, "Can't start a thread: %s", error.what());
        return false;
    }
}

AwaitedAtQuit::AwaitedAtQuit()
{
    ++awaitedWorkers;
}

AwaitedAtQuit::~AwaitedAtQuit()
{
    --awaitedWorkers;
    wakeWhoeverServes();
}

int Workers::live()
{
    return liveWorkers.load();
}

int Workers::awaited()
{
    return awaitedWorkers.load();
}

bool Workers::serveUntilFinished(std::chrono::milliseconds limit, int (*count)())
{
    const QDeadlineTimer deadline(limit);
    QTimer end; // wakes the loop when the time is over
    end.setSingleShot(true);
    end.start(limit);
    QEventLoop loop;
    do {
        while (count() > 0 && !deadline.hasExpired())
            loop.processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        serveWaitingCalls(); // the last that a worker said, which may start another
    } while (count() > 0 && !deadline.hasExpired());
    return count() == 0;
}
