#include "platform/core/Clock.h"

#include <thread>

QDateTime SystemClock::now() const
{
    return QDateTime::currentDateTime();
}

void SystemClock::sleep(std::chrono::milliseconds duration)
{
    std::this_thread::sleep_for(duration);
}
