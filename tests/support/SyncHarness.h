#pragma once

#include "platform/bus/DistributedNotificationCenter.h"
#include "platform/core/Clock.h"
#include "platform/lists/UserDefaults.h"
#include "platform/volumes/Volumes.h"
#include "support/TestSupport.h"
#include "sync/CVSyncItem.h"
#include "sync/CVSyncManager.h"

#include <functional>
#include <map>
#include <mutex>

/// Volumes that are mounted when the test says so.
class FakeVolumes : public Volumes
{
public:
    void mount(const QString &path);
    void unmount(const QString &path);
    /// The same without any event.
    void vanish(const QString &path);

    QStringList mountedRemovableMedia() const override;
    Ejection unmountAndEject(const QString &path) override
    {
        unmount(path);
        return {.isDone = true};
    }

private:
    mutable std::mutex m_mutex;
    QStringList m_mounted;
};

/// Notifications that stay in the test.
class FakeNotifications : public DistributedNotificationCenter
{
public:
    void post(const QString &name) override
    {
        for (const auto &observer : m_observers[name])
            observer();
    }
    void observe(const QString &name, QObject *, std::function<void()> tell, Own) override
    {
        m_observers[name].push_back(std::move(tell));
    }

private:
    std::map<QString, std::vector<std::function<void()>>> m_observers;
};

/// Pauses that take no time, and a date of the test's choice.
class FakeClock : public Clock
{
public:
    QDateTime now() const override { return current; }
    void sleep(std::chrono::milliseconds) override
    {
        ++pauses;
        if (onSleep)
            onSleep(pauses);
    }
    QDateTime current = QDateTime(QDate(2026, 3, 14), QTime(15, 9));
    std::function<void(int)> onSleep; ///< on the run's thread, with the number of the pause, from 1
    std::atomic<int> pauses = 0;
};

/// Writes down what the manager tells, one line a call, and lets a test act in the middle of it.
class RecordingDelegate : public CVSyncManagerDelegate
{
public:
    QStringList events; ///< "name" or "name argument"; written on the main thread but the questions
    std::function<void(const QString &event)> onEvent;
    std::vector<ErrorInfo> errors;

    /// The events from one on, without the chunks', which come as often as chunks do.
    std::string stepsFrom(QStringView step) const;
    int count(const QString &event) const { return static_cast<int>(events.count(event)); }
    /// How many items the last run took up.
    int processed() const
    {
        return static_cast<int>(events.filter(u"syncWillProcessItem"_s).size());
    }

    void pspDidMount(const QString &) override { note(u"pspDidMount"_s); }
    void pspDidUnmount() override { note(u"pspDidUnmount"_s); }
    void foundUnformattedMemoryStick() override { note(u"foundUnformattedMemoryStick"_s); }
    bool shouldSyncOnMount() override { return true; }
    void syncHeldBack(const HoldBack &why) override
    {
        note(u"syncHeldBack %1 %2"_s.arg(static_cast<int>(why.reason)).arg(why.kind));
    }
    void syncWillStart() override { note(u"syncWillStart"_s); }
    void syncIsPreparing(const QString &progress) override { note(progress); }
    void syncWillCleanUp() override { note(u"syncWillCleanUp"_s); }
    void syncNotEnoughFreeSpace(quint64 n) override { note(u"syncNotEnoughFreeSpace %1"_s.arg(n)); }
    void syncWillCancel() override { note(u"syncWillCancel"_s); }
    void syncDidStart() override { note(u"syncDidStart"_s); }
    void syncWillProcessModule(const QString &name) override
    {
        note(u"syncWillProcessModule "_s + name);
    }
    void syncWillProcessItem(const CVSyncItem &item) override
    {
        note(u"syncWillProcessItem "_s + item.description);
    }
    void syncDidCopyBytes(quint64 n) override { note(u"syncDidCopyBytes %1"_s.arg(n)); }
    void syncDidCopyLastBytes() override { note(u"syncDidCopyLastBytes"_s); }
    void syncDidProcessItem(const CVSyncItem &item) override
    {
        note(u"syncDidProcessItem "_s + item.description);
    }
    void syncError(const ErrorInfo &error) override;
    void finalizeDidStart() override { note(u"finalizeDidStart"_s); }
    bool shouldUnmountPSP() override { return true; }
    void pspWillUnmount() override { note(u"pspWillUnmount"_s); }
    void pspUnmountFailed(const FailedEject &) override { note(u"pspUnmountFailed"_s); }
    RunReport report; ///< of the last run
    void syncDidFinish(const RunReport &finished) override
    {
        report = finished;
        note(report.isComplete ? u"syncDidFinish true"_s : u"syncDidFinish false"_s);
    }
    void newSyncBytesEstimate(quint64 n) override { note(u"newSyncBytesEstimate %1"_s.arg(n)); }

private:
    void note(const QString &event)
    {
        events.append(event);
        if (onEvent)
            onEvent(event);
    }
};

/// A home, a stick, preferences and services. The home is $HOME and the preferences are
/// UserDefaults::standard() as long as it lives.
class HomeHarness
{
public:
    /// In a folder of its own, or in `place`, where an earlier one may have left things.
    explicit HomeHarness(const QString &place = {});
    ~HomeHarness() { UserDefaults::setStandard(nullptr); }
    Q_DISABLE_COPY_MOVE(HomeHarness)

    QString home(const QString &relative) const { return folder / (u"home/"_s + relative); }
    QString stick(const QString &relative = {}) const;
    /// What lies in a folder of the stick, a line each.
    std::string tree(const QString &relative) const { return joined(treeOf(stick(relative))); }
    void set(QStringView key, const QVariant &value) { defaults.setObject(key.toString(), value); }
    /// Waits until no run or estimate lives any more.
    static void settle();

    TemporaryFolder folder;
    UserDefaults defaults;
    FakeVolumes volumes;
    FakeNotifications notifications;
    FakeClock clock;
};

/// A home, a stick, and a manager between them: make something, run, look.
class SyncHarness : public HomeHarness
{
public:
    explicit SyncHarness(ModuleCatalogue catalogue = {});
    ~SyncHarness();

    /// Mounts the stick (formatted for a PSP, and synced before unless told otherwise) without
    /// letting the mount start a sync.
    void mountStick(bool syncedBefore = true);
    /// Runs a sync to its end and returns whether it completed.
    bool run();
    void finishRun();

    QStringList index(const QString &saveName) const;
    /// The archived number of the stick's "LastSyncSize"; 0 where there is none.
    quint64 lastSyncSizeOnStick() const;
    /// What a kind wants: "place below its folder < source's name", a line each; then "unreadable:"
    /// and its library's name where that is so.
    static std::string wishes(CVSyncModule &&module);

    RecordingDelegate delegate;
    CVSyncManager manager;
};
