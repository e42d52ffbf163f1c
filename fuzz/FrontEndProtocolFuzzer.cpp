#include "app/CaravelHelperController.h"
#include "app/FrontEndProtocol.h"
#include "fuzz/InlineWorkers.h"
#include "fuzz/StampedTree.h"
#include "platform/core/MainThread.h"
#include "platform/lists/UserDefaults.h"
#include "platform/people/AddressBook.h"
#include "support/FakeDesktop.h"
#include "support/SyncHarness.h"
#include "util/Settings.h"

#include <QCoreApplication>

#include <fuzzer/FuzzedDataProvider.h>
#include <map>

namespace {

const QString user = QStringLiteral("users/somebody");
const QString stick = QStringLiteral("volumes/STICK");

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
                                              {QStringLiteral("a{sv}"), QMetaType::QVariantMap},
                                              {QStringLiteral("aa{sv}"), QMetaType::QVariantList}};
    promise(answer.typeId() == types.at(type), "an answer is of the declared type");
}

// What is in the home: the names tell whose a file is.
const char *const files[] = {
    "letter.txt",
    "users/letter.txt",
    "users/stranger/letter.txt",
    "users/somebody/letter.txt",
    "users/somebody/.config/autostart/letter.txt",
    "users/somebody/Documents/letter.txt",
    "users/somebody/Documents/Caravel/Backup/Game Saves/ULUS10041/1000/ULUS10041/DATA.BIN",
    "users/somebody/Documents/Caravel/Movies/M4V00001/Film.MP4",
    "users/somebody/Documents/Caravel/Movies/M4V00001/Film.THM",
    "volumes/STICK/MEMSTICK.IND",
    "volumes/STICK/PSP/SAVEDATA/ULUS10041/DATA.BIN",
    "volumes/STICK/.caravel/mark",
};

/// What the system may do with a path below the home.
StampedTree::Keep keepOf(const QString &relative)
{
    if (relative == user || relative == stick)
        return StampedTree::Keep::Itself;
    if (!relative.startsWith(user + u'/') && !relative.startsWith(stick + u'/'))
        return StampedTree::Keep::Entries;
    return relative.endsWith(u"/letter.txt") ? StampedTree::Keep::Itself
                                             : StampedTree::Keep::Nothing;
}

StampedTree makeTree()
{
    const Home &home = Home::instance();
    StampedTree tree;
    tree.addFolder(home.path().toStdString(), StampedTree::Keep::Entries);
    for (const char *file : files) {
        const QString relative = QString::fromLatin1(file);
        for (qsizetype end = relative.indexOf(u'/'); end >= 0;
             end = relative.indexOf(u'/', end + 1))
            tree.addFolder((home / relative.left(end)).toStdString(), keepOf(relative.left(end)));
        tree.addFile((home / relative).toStdString(), file, keepOf(relative));
    }
    return tree;
}

/// Makes the input's calls, between runs and in the middle of them.
class Caller
{
public:
    Caller(CaravelHelperController &controller, FuzzedDataProvider &input)
        : m_methods(FrontEndProtocol::methods(controller))
        , m_input(input)
    {
        InlineWorkers::setInterlude([this] { comeBetween(); });
    }
    ~Caller() { InlineWorkers::setInterlude({}); }
    Caller(const Caller &) = delete;
    Caller &operator=(const Caller &) = delete;

    void callAll()
    {
        while (m_left > 0 && m_input.remaining_bytes() > 0) {
            call();
            if (m_input.ConsumeBool())
                finishRuns();
        }
        finishRuns();
    }

private:
    void call()
    {
        --m_left;
        const RemoteMethod &method =
            m_methods[m_input.ConsumeIntegralInRange<size_t>(0, m_methods.size() - 1)];
        RemoteRequest request{QStringLiteral(":1.1"), {}};
        for (const QString &type : method.in)
            request.arguments.append(argumentFrom(m_input, type));
        // One takes nothing from its caller, and starts a program; one waits for what it
        // interrupts.
        if (method.name == u"openCaravel" || (m_isBetween && method.name == u"applicationWillQuit"))
            return;
        checkAnswer(method.call(request), method.out);
    }

    void finishRuns()
    {
        setNextPause();
        promise(Workers::serveUntilFinished(std::chrono::seconds(5)), "runs come to an end");
    }

    void comeBetween()
    {
        if (m_pauses == 0 || --m_pauses > 0 || m_left == 0)
            return;
        m_isBetween = true;
        call();
        m_isBetween = false;
        setNextPause();
    }

    void setNextPause()
    {
        m_pauses = Workers::live() > 0 ? m_input.ConsumeIntegralInRange(0, 127) : 0;
    }

    const std::vector<RemoteMethod> m_methods;
    FuzzedDataProvider &m_input;
    int m_left = 8;   // calls
    int m_pauses = 0; // of a run's, up to the one in which the next call comes; 0: no call comes
    bool m_isBetween = false;
};

void serve(FuzzedDataProvider &input)
{
    const Home &home = Home::instance();
    UserDefaults defaults(QStringLiteral("org.caravel.Caravel"),
                          home / (user + QStringLiteral("/Library/Preferences")));
    UserDefaults::setStandard(&defaults);
    defaults.registerDefaults(Settings::registeredDefaults());
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
        Settings::syncOnMount.set(false);
        Settings::useSyncProfiles.set(input.ConsumeBool());
        if (input.ConsumeBool())
            volumes.mount(home / stick);
        Caller(controller, input).callAll();
        controller.movies().close();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    serveWaitingCalls();
    UserDefaults::setStandard(nullptr);
}

void setUp()
{
    const Home &home = Home::instance();
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

// Calls of a front-end, on a home and a stick that each input finds alike.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const bool isSetUp = (setUp(), true);
    Q_UNUSED(isSetUp)
    static StampedTree tree = makeTree();
    tree.restore();
    FuzzedDataProvider input(data, size);
    serve(input);
    tree.check();
    return 0;
}
