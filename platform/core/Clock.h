#pragma once

#include <QDateTime>

#include <chrono>

/// Time as the sync engine sees it: tests replace it to make pauses free and dates fixed.
class Clock
{
public:
    virtual ~Clock() = default;

    /// The current date and time, local time zone. Any thread.
    virtual QDateTime now() const = 0;

    /// Holds the calling thread for so long.
    virtual void sleep(std::chrono::milliseconds duration) = 0;
};

class SystemClock : public Clock
{
public:
    QDateTime now() const override;
    void sleep(std::chrono::milliseconds duration) override;
};
