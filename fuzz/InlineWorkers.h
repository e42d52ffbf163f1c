#pragma once

#include <functional>

/// Workers without threads, linked in the place of platform/MainThread.cpp: a worker runs on the
/// main thread, one after the other, while Workers::serveUntilFinished() waits for it. So an input
/// does the same each time, and costs no switches between threads.
namespace InlineWorkers {

/// Called wherever a worker waits for the main thread, before that does what it is waited for: the
/// time in which it may serve others.
void setInterlude(std::function<void()> interlude);

} // namespace InlineWorkers
