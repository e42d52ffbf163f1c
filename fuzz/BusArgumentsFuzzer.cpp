#include "fuzz/BusCalls.h"
#include "platform/bus/NamedConnection.h"
#include "platform/tray/Menu.h"
#include "platform/tray/own/BusMenu.h"

#include <QCoreApplication>

namespace {

constexpr const char *servedPath = "/Served";
constexpr const char *servedInterface = "org.caravel.Served";
constexpr const char *menuPath = "/Menu";
constexpr const char *menuInterface = "com.canonical.dbusmenu";

/// Each gives its first argument back. Those that hold values of any type may lose some: what has
/// no plain type is left out.
const std::vector<CalledMethod> methods{
    {servedPath, servedInterface, "echoBool", "b", "b"},
    {servedPath, servedInterface, "echoInt", "i", "i"},
    {servedPath, servedInterface, "echoUInt", "u", "u"},
    {servedPath, servedInterface, "echoLong", "t", "t"},
    {servedPath, servedInterface, "echoReal", "d", "d"},
    {servedPath, servedInterface, "echoText", "s", "s"},
    {servedPath, servedInterface, "echoTexts", "as", "as"},
    {servedPath, servedInterface, "echoPath", "o", "o"},
    {servedPath, servedInterface, "takeMap", "a{sv}", "a{sv}"},
    {servedPath, servedInterface, "takeRows", "aa{sv}", "aa{sv}"},
    {servedPath, servedInterface, "takeTwo", "a{sv}s", "a{sv}"},
    {servedPath, servedInterface, "takeNone", "", ""},
    {servedPath, servedInterface, "hear", "a{sv}", ""},
    {menuPath, menuInterface, "GetLayout", "iias", "u(ia{sv}av)"},
    {menuPath, menuInterface, "GetGroupProperties", "aias", "a(ia{sv})"},
    {menuPath, menuInterface, "GetProperty", "is", "v"},
    {menuPath, menuInterface, "Event", "isvu", ""},
    {menuPath, menuInterface, "EventGroup", "a(isvu)", "ai"},
    {menuPath, menuInterface, "AboutToShow", "i", "b"},
    {menuPath, menuInterface, "AboutToShowGroup", "ai", "aiai"},
    {menuPath, "org.freedesktop.DBus.Properties", "GetAll", "s", "a{sv}"},
};

RemoteMethod served(const CalledMethod &method)
{
    QStringList in{QString::fromLatin1(method.in)};
    if (method.in == "a{sv}s")
        in = {QStringLiteral("a{sv}"), QStringLiteral("s")};
    in.removeAll(QString());
    return {QString::fromLatin1(method.name),
            in,
            {},
            QString::fromLatin1(method.out),
            method.name == "hear",
            [in](const RemoteRequest &request) {
                promise(request.arguments.size() == in.size(), "all arguments arrive");
                promise(request.caller == u":1.7", "a call tells its caller");
                return request.arguments.value(0);
            }};
}

} // namespace

// Nested values are made and freed from more places than can all be kept at length.
extern "C" const char *__asan_default_options()
{
    return "malloc_context_size=8:quarantine_size_mb=64";
}

// Calls that come over the bus, of any types: from the bytes on the socket to the methods that they
// are for, and back.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static BusCalls bus;
    Menu menu;
    for (const bool isEnabled : {true, true, false, true})
        menu.addItem({QStringLiteral("_"),
                      [isEnabled](const QString &) {
                          promise(isEnabled, "what is disabled can't be chosen");
                      },
                      isEnabled});
    QObject::connect(&menu, &Menu::needsUpdate, &menu,
                     [&] { menu.setTitle(0, menu.itemAtIndex(0).title + u'_'); });
    const BusMenu busMenu(menu, QString::fromLatin1(menuPath));
    // Made anew: QtDBus remembers every signature that an object was called with.
    NamedConnection connection;
    std::vector<RemoteMethod> all;
    for (const CalledMethod &method : methods)
        if (method.path == servedPath)
            all.push_back(served(method));
    promise(connection.exportObject(QString::fromLatin1(servedPath),
                                    QString::fromLatin1(servedInterface), all),
            "the object is served");
    bus.make(bytesOf(data, size), methods);
    QCoreApplication::sendPostedEvents(); // a menu's choices come last
    return 0;
}
