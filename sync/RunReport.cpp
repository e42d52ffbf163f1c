#include "sync/RunReport.h"

#include <algorithm>

size_t RunReport::failures() const
{
    return static_cast<size_t>(std::ranges::count_if(
        leftOut, [](const LeftOut &item) { return item.reason != PlannedItem::Reason::Missing; }));
}
