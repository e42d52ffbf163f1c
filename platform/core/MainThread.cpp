#include "platform/core/MainThread.h"

#include "platform/core/Log.h"

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
#include <cstdlib>
#include <deque>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>

namespace {

/// Waking a sleeping thread takes far longer than most calls do (100 µs and more on virtual
/// machines), and calls come in bursts. So the main thread stays awake for a moment after each
/// (that a chunk of a copy takes in memory; on a stick it takes a hundred times as long), and a
/// waiting caller for as long as the main thread may take to wake.
constexpr auto burstGap = std::chrono::microseconds(1000);
constexpr auto wakeTime = std::chrono::microseconds(250);
constexpr auto longestBurst = std::chrono::microseconds(4000);

template <typename Condition>
bool stayAwakeUntil(Condition condition, std::chrono::microseconds limit)
{
    for (int i = 0; i < 100; ++i) { // most waits are shorter than a system call
        if (condition())
            return true;
    }
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= end)
            return false;
        std::this_thread::yield(); // whom we wait for may need this very processor
    }
    return true;
}

/// Lets a waiting caller go on.
class Completion
{
public:
    void signal()
    {
        m_done.store(true, std::memory_order_release);
        const std::scoped_lock lock(m_mutex);
        m_changed.notify_one();
    }

    void wait()
    {
        const auto isDone = [this] {
            return m_done.load(std::memory_order_acquire);
        };
        if (stayAwakeUntil(isDone, wakeTime))
            return;
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, isDone);
    }

private:
    std::atomic<bool> m_done = false;
    std::mutex m_mutex;
    std::condition_variable m_changed;
};

struct Call
{
    std::function<void()> work;
    std::shared_ptr<Completion> completion; // null where nobody waits
};

/// The calls on their way to the main thread. Workers touch nothing of Qt's: they queue a call and,
/// unless the main thread looks at the queue anyway, write to an eventfd, which its event loop
/// watches. While a call is carried out it doesn't look: a nested event loop of the call's serves
/// what comes meanwhile.
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
        bool isWatched = false;
        {
            const std::scoped_lock lock(m_mutex);
            m_calls.push_back(std::move(call));
            ++m_waiting;
            isWatched = m_isWatched;
        }
        if (!isWatched)
            wakeMainThread();
    }

    void serveWaiting()
    {
        for (int count = m_waiting.load(std::memory_order_acquire); count > 0; --count)
            serveOne();
        stopWatching();
    }

private:
    void wakeMainThread() const
    {
        const std::uint64_t one = 1;
        while (::write(m_wakeup, &one, sizeof one) < 0 && errno == EINTR) {
        }
    }

    /// A burst of calls is served in one go, but never so long that timers and requests starve.
    void serveBurst()
    {
        std::uint64_t count = 0;
        [[maybe_unused]] const auto cleared = ::read(m_wakeup, &count, sizeof count);
        const auto end = std::chrono::steady_clock::now() + longestBurst;
        const auto hasNext = [this] {
            return m_waiting.load(std::memory_order_acquire) > 0;
        };
        while (serveOne() && std::chrono::steady_clock::now() < end &&
               stayAwakeUntil(hasNext, burstGap)) {
        }
        stopWatching();
    }

    /// False where nothing waits. The queue is watched afterwards.
    bool serveOne()
    {
        Call call;
        {
            const std::scoped_lock lock(m_mutex);
            if (m_calls.empty())
                return false;
            call = std::move(m_calls.front());
            m_calls.pop_front();
            --m_waiting;
            m_isWatched = false;
            if (!m_calls.empty())
                wakeMainThread();
        }
        call.work();
        call.work = nullptr; // what it captured dies before its caller goes on
        {
            const std::scoped_lock lock(m_mutex);
            m_isWatched = true;
        }
        if (call.completion)
            call.completion->signal();
        return true;
    }

    void stopWatching()
    {
        const std::scoped_lock lock(m_mutex);
        m_isWatched = false;
        if (!m_calls.empty())
            wakeMainThread();
    }

    const int m_wakeup;
    // Until an application is made, the thread that loaded the program.
    std::atomic<std::thread::id> m_mainThread = std::this_thread::get_id();

    std::atomic<int> m_waiting = 0; // calls in the queue
    std::mutex m_mutex;             // guards what follows
    std::deque<Call> m_calls;
    bool m_isWatched = false; // the main thread looks at the queue by itself
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

void serveWaitingCalls()
{
    callQueue().serveWaiting();
}

bool isMainThread()
{
    return callQueue().isMainThread();
}

void performOnMainThread(std::function<void()> work, CallMode mode)
{
    if (mode == CallMode::DontWait) {
        callQueue().append({std::move(work), nullptr});
        return;
    }
    if (isMainThread()) {
        work();
        return;
    }
    const auto completion = std::make_shared<Completion>();
    callQueue().append({std::move(work), completion});
    completion->wait();
}

// The toolkit ends the program by itself when its display goes away: no destructor may then run
// under a worker.
static void leaveUnderWorkers()
{
    if (Workers::live() > 0)
        std::_Exit(EXIT_FAILURE);
}

void Workers::start(std::function<void()> work)
{
    [[maybe_unused]] static const int registered = std::atexit(leaveUnderWorkers);
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
