#pragma once

#include <QtGlobal>

#include <chrono>
#include <deque>
#include <optional>

/// How fast a byte count grows, from its first byte on, over the last few seconds.
class RateMeter
{
public:
    using Time = std::chrono::milliseconds;

    /// The count at a moment (of any clock that only goes forward). A count that went back begins
    /// anew.
    void add(quint64 bytes, Time now);

    /// Bytes per second; nothing before half a second is known.
    std::optional<double> rate() const;

private:
    struct Sample
    {
        quint64 bytes;
        Time time;
    };
    std::deque<Sample> m_samples;
};
