#include "sync/RunReport.h"

#include <algorithm>

size_t RunReport::failures() const
{
    return static_cast<size_t>(std::ranges::count_if(
        leftOut, [](const LeftOut &item) { return item.reason != PlannedItem::Reason::Missing; }));
}

RunReport::Outcome RunReport::outcome() const
{
    if (isComplete)
        return failures() > 0 ? Outcome::Incomplete : Outcome::Complete;
    if (isStickLost)
        return Outcome::Disconnected;
    if (isStickFull)
        return Outcome::Full;
    return isTooLarge ? Outcome::TooLarge : Outcome::Cancelled;
}
