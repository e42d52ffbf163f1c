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
    Q_OBJECT
public:
    void mount(const QString &path);
    void unmount(const QString &path);
    /// The same without any event.
    void vanish(const QString &path);

    QStringList mountedRemovableMedia() const override;
    bool unmountAndEject(const QString &path) override;
    std::atomic<bool> canEject = true;

private:
    mutable std::mutex m_mutex;
    QStringList m_mounted;
};

/// Notifications that stay in the test.
class FakeNotifications : public DistributedNotificationCenter
{
    Q_OBJECT
public:
    void post(const QString &name) override;
    void observe(const QString &name, QObject *context, std::function<void()> observer,
                 Own own) override;
    QStringList posted;

private:
    std::multimap<QString, std::function<void()>> m_observers;
};

/// Pauses that take no time, and a date of the test's choice.
class FakeClock : public Clock
{
public:
    QDateTime now() const override { return current; }
    void sleep(std::chrono::milliseconds duration) override;
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
    std::atomic<bool> answerSyncOnMount = true;
    std::atomic<bool> answerUnmount = true;

    /// The events without the chunks' ("syncDidCopyBytes"), which come as often as chunks do.
    QStringList steps() const;
    int count(const QString &event) const;

    void pspDidMount(const QString &) override { note(u"pspDidMount"); }
    void pspDidUnmount() override { note(u"pspDidUnmount"); }
    void foundUnformattedMemoryStick() override { note(u"foundUnformattedMemoryStick"); }
    bool shouldSyncOnMount() override;
    void syncWillStart() override { note(u"syncWillStart"); }
    void syncWillCleanUp() override { note(u"syncWillCleanUp"); }
    void syncNotEnoughFreeSpace(quint64 bytes) override;
    void syncWillCancel() override { note(u"syncWillCancel"); }
    void syncDidStart() override { note(u"syncDidStart"); }
    void syncWillProcessModule(const QString &name) override;
    void syncWillProcessItem(const CVSyncItem &item) override;
    void syncDidCopyBytes(quint64 count) override;
    void syncDidCopyLastBytes() override { note(u"syncDidCopyLastBytes"); }
    void syncDidProcessItem(const CVSyncItem &item) override;
    void syncError(const ErrorInfo &error) override;
    void finalizeDidStart() override { note(u"finalizeDidStart"); }
    bool shouldUnmountPSP() override;
    void pspWillUnmount() override { note(u"pspWillUnmount"); }
    void pspUnmountFailed() override { note(u"pspUnmountFailed"); }
    void syncDidFinish(bool completed) override;
    void newSyncBytesEstimate(quint64 bytes) override;

private:
    void note(QStringView event, const QString &argument = {});
};

/// A home, a stick, and a manager between them: make something, run, look. The home is $HOME and
/// its store is UserDefaults::standard() as long as the harness lives.
class SyncHarness
{
public:
    /// In a folder of its own, or in `place`, where an earlier harness may have left things.
    explicit SyncHarness(ModuleCatalogue catalogue = {}, const QString &place = {});
    ~SyncHarness();

    /// Mounts the stick (formatted for a PSP, and synced before unless told otherwise) without
    /// letting the mount start a sync.
    void mountStick(bool syncedBefore = true);
    /// Runs a sync to its end and returns whether it completed.
    bool run();
    void finishRun();
    /// Waits until no run or estimate lives any more.
    void settle();

    QString home(const QString &relative) const
    {
        return folder / (QStringLiteral("home/") + relative);
    }
    QString stick(const QString &relative = {}) const;
    QStringList index(const QString &saveName) const;
    /// The archived number of the stick's "LastSyncSize"; 0 where there is none.
    quint64 lastSyncSizeOnStick() const;

    TemporaryFolder folder;
    UserDefaults defaults;
    FakeVolumes volumes;
    FakeNotifications notifications;
    FakeClock clock;
    RecordingDelegate delegate;
    CVSyncManager manager;
};
