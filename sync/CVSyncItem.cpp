#include "sync/CVSyncItem.h"

#include "platform/core/Localized.h"

#include <utility>

CVSyncItem::CVSyncItem()
    : description(localized("Conversion in progress..."))
{
}

CVSyncItem::CVSyncItem(QString itemSource, QString itemDestination, QString itemDescription)
    : source(std::move(itemSource))
    , destination(std::move(itemDestination))
    , description(std::move(itemDescription))
{
}
