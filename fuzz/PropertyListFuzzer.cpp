#include "fuzz/Home.h"
#include "platform/PropertyList.h"

// XML and binary lists as trees. What is read is written back and then reads as what was written:
// a second round changes nothing any more.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString path = Home::instance().write(QStringLiteral("list.plist"), bytesOf(data, size));
    PropertyListError error;
    const auto root = PropertyList::read(path, PropertyList::defaultLimit, &error);
    promise(root.has_value() != bool(error), "there is either a list or an error");
    PropertyList::readStringArray(path);
    if (!root)
        return 0;
    const QByteArray once = PropertyList::toXml(*root);
    if (once.isEmpty())
        return 0;
    const auto again =
        PropertyList::read(Home::instance().write(QStringLiteral("again.plist"), once),
                           PropertyList::defaultLimit, &error);
    promise(again.has_value(), "a list that was written can be read");
    promise(PropertyList::toXml(*again) == once, "a list that was read is written the same");
    return 0;
}
