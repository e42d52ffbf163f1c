#include "app/FrontEndProtocol.h"
#include "fuzz/BusCalls.h"
#include "platform/people/AddressBook.h"
#include "platform/tray/own/BusMenu.h"
#include "support/HelperHarness.h"
#include "util/Settings.h"

#include <QCoreApplication>
#include <QDir>

namespace {

/// The names tell whose a file is.
const char *const placed[] = {
    "letter.txt",
    "home/letter.txt",
    "home/.config/autostart/letter.txt",
    "home/Documents/letter.txt",
    "home/Documents/Caravel/letter.txt",
    "home/Documents/Caravel/Backup/letter.txt",
    "home/Documents/Caravel/Backup/Game Saves/letter.txt",
    "home/Documents/Caravel/Movies/letter.txt",
    "home/Documents/Caravel/Backup/Game Saves/ULUS10041/1000/ULUS10041/DATA.BIN",
    "home/Documents/Caravel/Movies/M4V00001/Film.MP4",
    "home/Documents/Caravel/Movies/M4V00001/Film.THM",
    "stranger/letter.txt",
    "volumes/letter.txt",
    "volumes/STICK/MEMSTICK.IND",
    "volumes/STICK/PSP/SAVEDATA/ULUS10041/DATA.BIN",
    "volumes/STICK/.caravel/mark",
};

class NoAddressBook : public AddressBook
{
    People people() override { return {}; }
};

/// What lies where the system has no files.
QStringList othersPaths()
{
    QStringList paths = treeOf(Home::instance().path());
    paths.removeIf([](const QString &path) {
        return path.startsWith(u"preferences/") ||
               (path.startsWith(u"home/") && path != u"home/") ||
               (path.startsWith(u"volumes/STICK/") && path != u"volumes/STICK/");
    });
    return paths;
}

std::vector<CalledMethod> calledMethods(const std::vector<RemoteMethod> &served)
{
    constexpr const char *menu = "com.canonical.dbusmenu";
    std::vector<CalledMethod> called{
        {"/Menu", menu, "GetLayout", "iias", "u(ia{sv}av)"},
        {"/Menu", menu, "GetGroupProperties", "aias", "a(ia{sv})"},
        {"/Menu", menu, "GetProperty", "is", "v"},
        {"/Menu", menu, "Event", "isvu", ""},
        {"/Menu", menu, "EventGroup", "a(isvu)", "ai"},
        {"/Menu", menu, "AboutToShow", "i", "b"},
        {"/Menu", menu, "AboutToShowGroup", "ai", "aiai"},
        {"/Menu", "org.freedesktop.DBus.Properties", "GetAll", "s", "a{sv}"},
    };
    for (const RemoteMethod &method : served) {
        if (method.name != u"openCaravel") // takes nothing from its caller, and starts a program
            called.push_back({"/Served", "org.caravel.Served", method.name.toLatin1(),
                              method.in.join(QString()).toLatin1(), method.out.toLatin1()});
    }
    return called;
}

void serve(BusCalls &bus, const QByteArray &input)
{
    HelperHarness harness(Home::instance().path());
    Settings::syncOnMount.set(false);
    Settings::useSyncProfiles.set(input.startsWith("profile"));
    if (!input.startsWith("no stick"))
        harness.volumes.mount(harness.stick());
    const std::vector<RemoteMethod> methods = FrontEndProtocol::methods(*harness.helper);
    NamedConnection connection;
    promise(connection.exportObject(QStringLiteral("/Served"), QStringLiteral("org.caravel.Served"),
                                    methods),
            "the helper is served");
    Menu menu;
    for (const bool isEnabled : {true, false, true})
        menu.addItem({QStringLiteral("_"),
                      [isEnabled](const QString &) {
                          promise(isEnabled, "what is disabled can't be chosen");
                      },
                      isEnabled});
    QObject::connect(&menu, &Menu::needsUpdate, &menu,
                     [&] { menu.setTitle(0, menu.itemAtIndex(0).title + u'_'); });
    const BusMenu busMenu(menu, QStringLiteral("/Menu"));
    bus.make(input, calledMethods(methods), HelperHarness::settle);
    HelperHarness::settle();
    harness.helper->movies().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

// Calls of a front-end and of who draws the menu over the bus, on a home and a stick that each
// input finds alike. The first line may say that there is no stick, or that it has a profile.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static BusCalls bus;
    static NoAddressBook nobody;
    AddressBook::setSharedAddressBook(&nobody);
    qputenv("PATH", "/nonexistent"); // no program is started
    const Home &home = Home::instance();
    QDir(home.path()).removeRecursively();
    for (const char *file : placed)
        home.write(QString::fromLatin1(file), file);
    const QStringList others = othersPaths();
    serve(bus, bytesOf(data, size));
    promise(othersPaths() == others, "nothing comes or goes where the system has no files");
    for (const char *file : placed)
        promise(!QByteArrayView(file).endsWith("letter.txt") ||
                    readFile(home / QString::fromLatin1(file)) == file,
                "what is no file of the system's own stays");
    return 0;
}
