#include "fuzz/Home.h"
#include "platform/lists/PropertyList.h"

namespace {

QVariant reread(const QByteArray &xml)
{
    const auto root =
        PropertyList::read(Home::instance().write(QStringLiteral("again.plist"), xml));
    promise(bool(root), "a list that was written can be read");
    return *root;
}

} // namespace

// XML and binary lists as trees. What is read is written and read again; XML has no control
// characters, but what has been through it once changes no more.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString path = Home::instance().write(QStringLiteral("list.plist"), bytesOf(data, size));
    const auto root = PropertyList::read(path);
    promise(root || !root.error().text.isEmpty(), "an error says what is wrong");
    static_cast<void>(PropertyList::readStringArray(path));
    if (!root)
        return 0;
    const QByteArray written = PropertyList::toXml(*root);
    if (written.isEmpty())
        return 0;
    const QByteArray once = PropertyList::toXml(reread(written));
    promise(PropertyList::toXml(reread(once)) == once, "a list in XML is written as it was read");
    return 0;
}
