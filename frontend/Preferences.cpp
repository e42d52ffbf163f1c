#include "frontend/Preferences.h"

#include "frontend/HelperClient.h"
#include "platform/bus/DistributedNotificationCenter.h"
#include "platform/bus/NamedConnection.h"
#include "platform/core/MainThread.h"
#include "platform/lists/UserDefaults.h"
#include "protocol/Protocol.h"
#include "util/Folders.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>
#include <vector>

using namespace std::chrono_literals;

namespace Preferences {

namespace {

constexpr auto patience = 1s;

QString didChange()
{
    return QStringLiteral("CVPrefsDidChangeNotification");
}

// The notification makes other processes read the store; the login item needs a word of its own.
void tellOthers(const QString &name)
{
    if (!NamedConnection::busAvailable())
        return;
    DistributedNotificationCenter::defaultCenter().post(didChange());
    if (name == Settings::startOnLogin.name)
        HelperClient::tellRunningHelper(Protocol::changeStartOnLogin);
    NamedConnection::flush();
}

std::optional<QVariant> boolIn(const QString &text)
{
    static const QStringList yes = {QStringLiteral("yes"), QStringLiteral("true"),
                                    QStringLiteral("on"), QStringLiteral("1")};
    static const QStringList no = {QStringLiteral("no"), QStringLiteral("false"),
                                   QStringLiteral("off"), QStringLiteral("0")};
    const bool isYes = yes.contains(text.toLower());
    return isYes || no.contains(text.toLower()) ? std::optional<QVariant>(isYes) : std::nullopt;
}

/// Brings store and file together on a worker.
void exchange(QObject *context, Done done)
{
    const auto store = &UserDefaults::standard();
    const auto report = [context = QPointer(context), done = std::move(done)](bool isWritten) {
        if (context)
            done(isWritten);
    };
    const auto work = [store, report] {
        const bool isWritten = store->synchronize(patience);
        performOnMainThread(
            nullptr, [report, isWritten] { report(isWritten); }, CallMode::DontWait);
    };
    if (!Workers::start(work))
        report(store->synchronize());
}

struct Observer
{
    QPointer<QObject> context;
    std::function<void()> changed;
};

std::vector<Observer> &observers()
{
    static std::vector<Observer> all;
    return all;
}

void tellObservers()
{
    std::erase_if(observers(), [](const Observer &each) { return !each.context; });
    for (const Observer &each : std::vector(observers())) {
        if (each.context)
            each.changed();
    }
}

} // namespace

void begin()
{
    UserDefaults::standard().registerDefaults(Settings::registeredDefaults());
}

const Settings::Key *find(const QString &name)
{
    const auto &keys = Settings::keys();
    const auto found = std::ranges::find(keys, name, &Settings::Key::name);
    return found == keys.end() ? nullptr : &*found;
}

bool isDefault(const Settings::Key &key)
{
    return key.value().toString() == key.defaultValue.toString();
}

std::optional<QVariant> valueIn(const QString &text, const Settings::Key &key)
{
    bool ok = true;
    QVariant value = text;
    switch (key.defaultValue.typeId()) {
    case QMetaType::Bool:
        return boolIn(text);
    case QMetaType::Int:
        value = text.toInt(&ok);
        ok = ok && value.toInt() >= key.range.least && value.toInt() <= key.range.most;
        break;
    case QMetaType::ULongLong:
        value = text.toULongLong(&ok);
        break;
    default:
        ok = key.name != Settings::caravelFolder.name || Folders::isPlace(text);
    }
    return ok ? std::optional(value) : std::nullopt;
}

bool set(const QString &name, const QVariant &value)
{
    UserDefaults &store = UserDefaults::standard();
    store.setObject(name, value);
    if (!store.synchronize(patience))
        return false;
    tellOthers(name);
    return true;
}

void setLater(const QString &name, const QVariant &value, QObject *context, Done done)
{
    UserDefaults::standard().setObject(name, value);
    const auto written = [name, context = QPointer(context), done = std::move(done)](bool ok) {
        if (ok)
            tellOthers(name);
        if (context)
            done(ok);
    };
    exchange(QCoreApplication::instance(), written);
}

void observe(QObject *context, std::function<void()> changed)
{
    if (!NamedConnection::busAvailable())
        return;
    if (observers().empty())
        DistributedNotificationCenter::defaultCenter().observe(
            didChange(), QCoreApplication::instance(),
            [] { exchange(QCoreApplication::instance(), [](bool) { tellObservers(); }); });
    observers().push_back({context, std::move(changed)});
}

} // namespace Preferences
