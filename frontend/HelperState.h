#pragma once

#include <QString>

/// What the helper shows of its device and its sync at one moment.
struct HelperState
{
    bool mounted = false;
    bool syncing = false;
    bool canCancel = false;
    bool indeterminate = false; ///< the byte counts say nothing now
    QString statusText;
    QString statusSubText;
    quint64 syncBytes = 0;
    quint64 syncBytesTotal = 0;
    bool converting = false; ///< a movie is being converted
    QString percentConverted;

    bool operator==(const HelperState &) const = default;
};
