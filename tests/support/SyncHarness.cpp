#include "support/SyncHarness.h"

#include "platform/core/MainThread.h"
#include "platform/lists/NumberArchive.h"
#include "platform/lists/PropertyList.h"
#include "util/Settings.h"

#include <QDir>

#include <gtest/gtest.h>

void FakeVolumes::mount(const QString &path)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_mounted.append(path);
    }
    Q_EMIT didMount(path);
}

void FakeVolumes::vanish(const QString &path)
{
    const std::scoped_lock lock(m_mutex);
    m_mounted.removeAll(path);
}

void FakeVolumes::unmount(const QString &path)
{
    performOnMainThread(
        nullptr, [this, path] { Q_EMIT willUnmount(path); }, CallMode::Wait);
    vanish(path);
    performOnMainThread(
        nullptr, [this, path] { Q_EMIT didUnmount(path); }, CallMode::Wait);
}

QStringList FakeVolumes::mountedRemovableMedia() const
{
    const std::scoped_lock lock(m_mutex);
    return m_mounted;
}

bool FakeVolumes::unmountAndEject(const QString &path)
{
    if (canEject)
        unmount(path);
    return canEject;
}

void FakeNotifications::post(const QString &name)
{
    posted.append(name);
    const auto [first, last] = m_observers.equal_range(name);
    for (auto observer = first; observer != last; ++observer)
        observer->second();
}

void FakeNotifications::observe(const QString &name, QObject *, std::function<void()> observer, Own)
{
    m_observers.emplace(name, std::move(observer));
}

void FakeClock::sleep(std::chrono::milliseconds)
{
    ++pauses;
    if (onSleep)
        onSleep(pauses);
}

void RecordingDelegate::note(QStringView event, const QString &argument)
{
    const QString line = argument.isEmpty() ? event.toString() : event.toString() + u' ' + argument;
    events.append(line);
    if (onEvent)
        onEvent(line);
}

QStringList RecordingDelegate::steps() const
{
    QStringList result;
    for (const QString &event : events) {
        if (!event.startsWith(u"syncDidCopyBytes") && !event.startsWith(u"newSyncBytesEstimate"))
            result.append(event);
    }
    return result;
}

int RecordingDelegate::count(const QString &event) const
{
    return static_cast<int>(events.count(event));
}

bool RecordingDelegate::shouldSyncOnMount()
{
    note(u"shouldSyncOnMount");
    return answerSyncOnMount;
}

bool RecordingDelegate::shouldUnmountPSP()
{
    // Asked on the run's thread; the list belongs to the main thread.
    performOnMainThread(
        nullptr, [this] { note(u"shouldUnmountPSP"); }, CallMode::Wait);
    return answerUnmount;
}

void RecordingDelegate::syncNotEnoughFreeSpace(quint64 bytes)
{
    note(u"syncNotEnoughFreeSpace", QString::number(bytes));
}

void RecordingDelegate::syncWillProcessModule(const QString &name)
{
    note(u"syncWillProcessModule", name);
}

void RecordingDelegate::syncWillProcessItem(const CVSyncItem &item)
{
    note(u"syncWillProcessItem", item.description);
}

void RecordingDelegate::syncDidCopyBytes(quint64 count)
{
    note(u"syncDidCopyBytes", QString::number(count));
}

void RecordingDelegate::syncDidProcessItem(const CVSyncItem &item)
{
    note(u"syncDidProcessItem", item.description);
}

void RecordingDelegate::syncError(const ErrorInfo &error)
{
    errors.push_back(error);
    note(u"syncError", error.value(QStringLiteral("Error")).toString());
}

void RecordingDelegate::syncDidFinish(bool completed)
{
    note(u"syncDidFinish", completed ? QStringLiteral("true") : QStringLiteral("false"));
}

void RecordingDelegate::newSyncBytesEstimate(quint64 bytes)
{
    note(u"newSyncBytesEstimate", QString::number(bytes));
}

SyncHarness::SyncHarness(ModuleCatalogue catalogue, const QString &place)
    : folder(place)
    , defaults(QStringLiteral("org.caravel.Caravel"), folder / QStringLiteral("preferences"))
    , manager({volumes, notifications, clock, folder / QStringLiteral("resources")},
              std::move(catalogue))
{
    QDir().mkpath(folder / QStringLiteral("home"));
    qputenv("HOME", (folder / QStringLiteral("home")).toUtf8());
    UserDefaults::setStandard(&defaults);
    defaults.registerDefaults(Settings::registeredDefaults());
    manager.setDelegate(&delegate);
}

SyncHarness::~SyncHarness()
{
    delegate.onEvent = nullptr;
    settle();
    UserDefaults::setStandard(nullptr);
}

QString SyncHarness::stick(const QString &relative) const
{
    const QString volume = folder / QStringLiteral("volumes/STICK");
    return relative.isEmpty() ? volume : volume + u'/' + relative;
}

void SyncHarness::mountStick(bool syncedBefore)
{
    writeFile(stick(QStringLiteral("MEMSTICK.IND")), {});
    QDir().mkpath(stick(QStringLiteral("PSP")));
    if (syncedBefore)
        QDir().mkpath(stick(QStringLiteral(".caravel")));
    Settings::syncOnMount.set(false);
    volumes.mount(stick());
}

bool SyncHarness::run()
{
    delegate.events.clear();
    manager.sync();
    finishRun();
    return delegate.events.contains(QStringLiteral("syncDidFinish true"));
}

void SyncHarness::finishRun()
{
    ASSERT_TRUE(waitFor([this] {
        return !delegate.events.isEmpty() &&
               !delegate.events.filter(QStringLiteral("syncDidFinish")).isEmpty();
    }));
    settle();
}

void SyncHarness::settle()
{
    ASSERT_TRUE(Workers::serveUntilFinished(std::chrono::seconds(60)));
}

QStringList SyncHarness::index(const QString &saveName) const
{
    return PropertyList::readStringArray(
               stick(QStringLiteral(".caravel/%1SyncIndex.plist").arg(saveName)))
        .valueOr({QStringLiteral("no index")});
}

quint64 SyncHarness::lastSyncSizeOnStick() const
{
    return NumberArchive::read(stick(QStringLiteral(".caravel/LastSyncSize"))).valueOr(0);
}
