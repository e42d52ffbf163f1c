#pragma once

#include "platform/volumes/Volumes.h"

#include <algorithm>
#include <vector>

/// Tells once of each volume that has gone or come, however many events it came with. A `Volume`
/// has a `path`, and equals itself only: another one at the same path is a change. Main thread.
template <typename Volume>
void announceChanges(Volumes &volumes, const std::vector<Volume> &before,
                     const std::vector<Volume> &now)
{
    const auto isIn = [](const std::vector<Volume> &list, const Volume &volume) {
        return std::ranges::find(list, volume) != list.end();
    };
    for (const Volume &volume : before) {
        if (!isIn(now, volume))
            Q_EMIT volumes.didUnmount(volume.path);
    }
    for (const Volume &volume : now) {
        if (!isIn(before, volume))
            Q_EMIT volumes.didMount(volume.path);
    }
}
