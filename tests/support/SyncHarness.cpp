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

std::string RecordingDelegate::stepsFrom(QStringView step) const
{
    QStringList steps = events;
    steps.removeIf([](const QString &event) {
        return event.startsWith(u"syncDidCopyBytes") || event.startsWith(u"newSyncBytesEstimate");
    });
    while (!steps.isEmpty() && !steps.first().startsWith(step))
        steps.removeFirst();
    return joined(steps);
}

void RecordingDelegate::syncError(const ErrorInfo &error)
{
    errors.push_back(error);
    note(u"syncError "_s + error.value(u"Error"_s).toString());
}

HomeHarness::HomeHarness(const QString &place)
    : folder(place)
    , defaults(u"org.caravel.Caravel"_s, folder / u"preferences"_s)
{
    QDir().mkpath(home({}));
    qputenv("HOME", (folder / u"home"_s).toUtf8());
    UserDefaults::setStandard(&defaults);
    defaults.registerDefaults(Settings::registeredDefaults());
}

QString HomeHarness::stick(const QString &relative) const
{
    const QString volume = folder / u"volumes/STICK"_s;
    return relative.isEmpty() ? volume : volume + u'/' + relative;
}

void HomeHarness::settle()
{
    ASSERT_TRUE(Workers::serveUntilFinished(std::chrono::seconds(60)));
}

SyncHarness::SyncHarness(ModuleCatalogue catalogue)
    : manager({volumes, notifications, clock, folder / u"resources"_s}, std::move(catalogue))
{
    manager.setDelegate(&delegate);
}

SyncHarness::~SyncHarness()
{
    delegate.onEvent = nullptr;
    settle();
}

void SyncHarness::mountStick(bool syncedBefore)
{
    writeFile(stick(u"MEMSTICK.IND"_s), {});
    QDir().mkpath(stick(u"PSP"_s));
    if (syncedBefore)
        QDir().mkpath(stick(u".caravel"_s));
    Settings::syncOnMount.set(false);
    volumes.mount(stick());
}

bool SyncHarness::run()
{
    delegate.events.clear();
    manager.sync();
    finishRun();
    return delegate.events.contains(u"syncDidFinish true"_s);
}

void SyncHarness::finishRun()
{
    ASSERT_TRUE(waitFor([this] { return !delegate.events.filter(u"syncDidFinish"_s).isEmpty(); }));
    settle();
}

QStringList SyncHarness::index(const QString &saveName) const
{
    return PropertyList::readStringArray(stick(u".caravel/%1SyncIndex.plist"_s.arg(saveName)))
        .valueOr({u"no index"_s});
}

quint64 SyncHarness::lastSyncSizeOnStick() const
{
    return NumberArchive::read(stick(u".caravel/LastSyncSize"_s)).valueOr(0);
}

std::string SyncHarness::wishes(CVSyncModule &&module)
{
    QStringList all;
    for (const CVSyncItem &item : module.itemsToSync())
        all.append(item.destination.mid(module.rootSyncFolder().size() + 1) + u" < "_s +
                   item.source.section(u'/', -1));
    if (const auto &unreadable = module.unreadableLibrary())
        all.append(u"unreadable: "_s + unreadable->path.section(u'/', -1));
    return joined(all);
}
