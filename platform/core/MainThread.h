#pragma once

#include <chrono>
#include <functional>

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
void performOnMainThread(std::function<void()> work, CallMode mode);

/// Carries out the calls that wait right now. Main thread, from the event loop: for who serves
/// requests of other processes, of which the loop would take any number before the next call.
void serveWaitingCalls();

/// Whether the calling thread is the main thread.
bool isMainThread();

/// Threads of our own: each is detached and counted. A process that exits while one lives ends at
/// once, with a failure's status and without running destructors.
namespace Workers {

/// Runs `work` on a new detached thread. Any thread.
void start(std::function<void()> work);

/// How many workers have not finished yet. Any thread.
int live();

/// Main thread only: serves the event loop until no worker lives or the time is over; returns
/// whether none lives any more.
bool serveUntilFinished(std::chrono::milliseconds limit);

} // namespace Workers
