#pragma once

#include <chrono>
#include <functional>

class QObject;

/// Whether a caller of performOnMainThread() goes on at once or when the work has been done.
enum class CallMode { Wait, DontWait };

/// The one way by which work crosses from a worker to the main thread (the thread that made the
/// QCoreApplication, and that must be running its event loop for anything to happen).
///
/// Calls from one thread are carried out in the order in which they were made. On the main thread
/// `Wait` calls straight through and `DontWait` queues. All writes that the caller made before the
/// call are visible to the work, and with `Wait` the work's writes are visible to the caller
/// afterwards. Nothing on the main thread may wait for a worker. A worker that still waits when the
/// application is gone is held until the process has ended.
///
/// `context` is an object that lives on the main thread, and still does during this call: once it
/// is gone, calls of its that are still queued are dropped, and those who wait for them go on.
/// nullptr for work that touches nothing which may go before it.
void performOnMainThread(QObject *context, std::function<void()> work, CallMode mode);

/// Carries out the calls that wait right now. Main thread, from the event loop: for who serves
/// requests of other processes, of which the loop would take any number before the next call.
void serveWaitingCalls();

/// Whether the calling thread is the main thread.
bool isMainThread();

/// Threads of our own: each is detached and counted. A process that exits while one lives ends at
/// once, with a failure's status and without running destructors.
namespace Workers {

/// Whether a process that quits waits for it, or leaves it to end with the process.
enum class AtQuit { Wait, Leave };

/// Runs `work` on a new detached thread. False where the system has no thread to give: the reason
/// is in the system log, and `work` is never run. Any thread.
[[nodiscard]] bool start(std::function<void()> work, AtQuit atQuit = AtQuit::Wait);

/// How many workers have not finished yet, and how many of these a quit waits for. Any thread.
int live();
int awaited();

/// Main thread only: serves the event loop until none is counted any more, and what they left to be
/// called is done, or the time is over; returns whether none is counted.
bool serveUntilFinished(std::chrono::milliseconds limit, int (*count)() = live);

} // namespace Workers
