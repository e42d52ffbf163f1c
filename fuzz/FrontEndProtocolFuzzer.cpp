#include "app/CaravelHelperController.h"
#include "app/FrontEndProtocol.h"
#include "fuzz/Home.h"
#include "platform/AddressBook.h"
#include "platform/MainThread.h"
#include "platform/UserDefaults.h"
#include "support/FakeDesktop.h"
#include "support/SyncHarness.h"
#include "util/Preferences.h"

#include <QCoreApplication>
#include <QDirIterator>

#include <fuzzer/FuzzedDataProvider.h>
#include <map>

namespace {

const QString user = QStringLiteral("users/somebody");
const QString stick = QStringLiteral("volumes/STICK");
const QString own = user + QStringLiteral("/Documents/Caravel/");

// What the system's own files are called, and what is beside them: calls that name none of it are
// refused long before they could do harm.
const char *const texts[] = {"",
                             ".",
                             "..",
                             "/",
                             "/etc",
                             "Cancel Sync",
                             "Film",
                             "M4V00001",
                             "M4V00001/Film",
                             "M4V00001/../../letter.txt",
                             "ULUS10041",
                             "ULUS10041/1000",
                             "ULUS10041/..",
                             "../..",
                             "../../letter.txt",
                             "../../../letter.txt",
                             "../../../../letter.txt",
                             "../../../../../letter.txt"};
const char *const keys[] = {"identifier", "identifier2", "name", "title", "enabled", "icon"};

class NoAddressBook : public AddressBook
{
    std::vector<Person> people() override { return {}; }
};

QString textFrom(FuzzedDataProvider &input)
{
    if (input.ConsumeBool())
        return QString::fromLatin1(input.PickValueInArray(texts));
    return QString::fromStdString(input.ConsumeRandomLengthString(64));
}

QVariant anyValueFrom(FuzzedDataProvider &input, int depth);

QVariantMap mapFrom(FuzzedDataProvider &input, int depth)
{
    QVariantMap map;
    for (int left = input.ConsumeIntegralInRange(0, 3); left > 0; --left) {
        const QString key = QString::fromLatin1(input.PickValueInArray(keys));
        map.insert(key, anyValueFrom(input, depth));
    }
    return map;
}

QStringList listFrom(FuzzedDataProvider &input)
{
    QStringList list;
    for (int left = input.ConsumeIntegralInRange(0, 4); left > 0; --left)
        list.append(textFrom(input));
    return list;
}

QVariant anyValueFrom(FuzzedDataProvider &input, int depth)
{
    switch (input.ConsumeIntegralInRange(0, depth > 0 ? 6 : 3)) {
    case 0:
        return textFrom(input);
    case 1:
        return input.ConsumeBool();
    case 2:
        return input.ConsumeIntegral<qlonglong>();
    case 3:
        return input.ConsumeFloatingPoint<double>();
    case 4:
        return listFrom(input);
    case 5:
        return mapFrom(input, depth - 1);
    default:
        return QVariantList{anyValueFrom(input, depth - 1)};
    }
}

QVariant argumentFrom(FuzzedDataProvider &input, const QString &type)
{
    // Some are of a wrong type, which the connection would refuse.
    if (input.ConsumeIntegralInRange(0, 7) == 7)
        return anyValueFrom(input, 2);
    if (type == u"a{sv}")
        return mapFrom(input, 2);
    if (type == u"as")
        return listFrom(input);
    return type == u"b" ? QVariant(input.ConsumeBool()) : QVariant(textFrom(input));
}

void checkAnswer(const QVariant &answer, const QString &type)
{
    static const std::map<QString, int> types{{QString(), QMetaType::UnknownType},
                                              {QStringLiteral("b"), QMetaType::Bool},
                                              {QStringLiteral("s"), QMetaType::QString},
                                              {QStringLiteral("t"), QMetaType::ULongLong},
                                              {QStringLiteral("u"), QMetaType::UInt},
                                              {QStringLiteral("aa{sv}"), QMetaType::QVariantList}};
    promise(answer.typeId() == types.at(type), "an answer is of the declared type");
}

void write(const QString &relative)
{
    Home::instance().write(relative, relative.toUtf8());
}

void makeUser()
{
    const Home &home = Home::instance();
    for (const QString &folder : {user, stick})
        QDir(home / folder).removeRecursively();
    for (const char *file :
         {"/letter.txt", "/Documents/letter.txt", "/.config/autostart/letter.txt"})
        write(user + QLatin1String(file));
    for (const char *file : {"Backup/Game Saves/ULUS10041/1000/ULUS10041/DATA.BIN",
                             "Movies/M4V00001/Film.MP4", "Movies/M4V00001/Film.THM"})
        write(own + QLatin1String(file));
    for (const char *file : {"/MEMSTICK.IND", "/PSP/SAVEDATA/ULUS10041/DATA.BIN", "/.caravel/mark"})
        write(stick + QLatin1String(file));
}

// The user's letters, and everything outside of the home.
std::map<QString, QByteArray> foreignFiles()
{
    const Home &home = Home::instance();
    std::map<QString, QByteArray> found;
    QDirIterator each(home.path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (each.hasNext()) {
        const QString path = each.next();
        const bool isOwn =
            path.startsWith(home / (user + u'/')) || path.startsWith(home / (stick + u'/'));
        if (isOwn && !path.endsWith(u"/letter.txt"))
            continue;
        QFile file(path);
        found[path] = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(folder)");
    }
    return found;
}

void call(CaravelHelperController &controller, FuzzedDataProvider &input)
{
    const std::vector<RemoteMethod> methods = FrontEndProtocol::methods(controller);
    for (int left = 8; left > 0 && input.remaining_bytes() > 0; --left) {
        const RemoteMethod &method =
            methods[input.ConsumeIntegralInRange<size_t>(0, methods.size() - 1)];
        RemoteRequest request{QStringLiteral(":1.1"), {}};
        for (const QString &type : method.in)
            request.arguments.append(argumentFrom(input, type));
        // It takes nothing from its caller, and starts a program.
        if (method.name != u"openCaravel")
            checkAnswer(method.call(request), method.out);
        if (input.ConsumeBool())
            promise(Workers::serveUntilFinished(std::chrono::seconds(5)), "runs come to an end");
    }
}

void serve(FuzzedDataProvider &input)
{
    const Home &home = Home::instance();
    UserDefaults defaults(QStringLiteral("org.caravel.Caravel"),
                          home / (user + QStringLiteral("/Library/Preferences")));
    UserDefaults::setStandard(&defaults);
    defaults.registerDefaults(Preferences::registeredDefaults());
    FakeVolumes volumes;
    FakeNotifications notifications;
    FakeClock clock;
    FakeStatusBar statusBar;
    FakeAlerts alerts;
    FakeSounds sounds;
    {
        CaravelHelperController controller(
            {volumes, notifications, clock, statusBar, alerts, sounds,
             Bundle(home / QStringLiteral("programs/Caravel/Contents/Helpers/CaravelHelper"))});
        defaults.setObject(QStringLiteral("syncOnMount"), false);
        defaults.setObject(QStringLiteral("useSyncProfiles"), input.ConsumeBool());
        if (input.ConsumeBool())
            volumes.mount(home / stick);
        call(controller, input);
        promise(Workers::serveUntilFinished(std::chrono::seconds(5)), "runs come to an end");
        controller.movies().close();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    UserDefaults::setStandard(nullptr);
}

void setUp()
{
    const Home &home = Home::instance();
    for (const char *file : {"users/stranger/letter.txt", "users/letter.txt", "letter.txt"})
        write(QString::fromLatin1(file));
    QDir().mkpath(home / QStringLiteral("volumes"));
    qputenv("HOME", (home / user).toUtf8());
    qputenv("PATH", "/nonexistent"); // no program is started
    static int argc = 1;
    static char name[] = "fuzzer";
    static char *argv[] = {name, nullptr};
    static auto *const application = new QCoreApplication(argc, argv); // outlives every worker
    Q_UNUSED(application)
    static NoAddressBook nobody;
    AddressBook::setSharedAddressBook(&nobody);
}

} // namespace

// Calls of a front-end, on a home and a stick that are made anew for each input.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const bool isSetUp = (setUp(), true);
    Q_UNUSED(isSetUp)
    makeUser();
    const auto before = foreignFiles();
    FuzzedDataProvider input(data, size);
    serve(input);
    promise(foreignFiles() == before, "what is no file of the system's own stays");
    return 0;
}
