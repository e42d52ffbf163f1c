#pragma once

#include "app/FrontEnds.h"
#include "sync/CVSyncManagerDelegate.h"

#include <QSet>
#include <QString>

#include <atomic>
#include <functional>

class Clock;
class CVSyncManager;
class Plans;
class QMLogger;
class RunRecord;
class Sounds;
class StatusIcon;
class StatusMenu;

/// Turns what the sync manager tells into the two status lines, the status item's image and menu,
/// log lines, alerts and sounds, and hands it on to the front-ends. Main thread, but for the two
/// questions.
class SyncStatus : public CVSyncManagerDelegate
{
public:
    /// What it works with; not owned, outliving it.
    struct Services
    {
        CVSyncManager &manager;
        QMLogger &logger;
        Plans &plans;
        RunRecord &record;
        FrontEnds &frontEnds;
        StatusMenu &menu;
        StatusIcon &icon;
        Alerts &alerts;
        Sounds &sounds;
        const Clock &clock;
        std::function<void()> openFrontEnd;
    };
    explicit SyncStatus(Services services);

    QString statusText() const { return m_statusText; }
    QString statusSubText() const { return m_statusSubText; }
    void setStatusText(const QString &text);
    void setStatusSubText(const QString &text);
    /// The texts before anything is known; neither logged nor in the menu.
    void setInitialTexts();

    /// While set, a stick is neither synced on mount nor ejected after a run. Any thread.
    void setIsInteractive(bool interactive) { m_isInteractive = interactive; }

    /// Through a front-end where one is connected and takes it, else by ourselves.
    void doAlert(const QString &title, const QString &message, AlertStyle style);

    /// An eject is done, which one notification says. Where another stick is the PSP's now, the
    /// texts are about that.
    void pspDidEject();

    void pspDidMount(const QString &volume) override;
    void pspDidUnmount() override;
    void foundUnformattedMemoryStick() override;
    bool shouldSyncOnMount() override;
    void syncHeldBack(const HoldBack &why) override;
    void syncWillStart() override;
    void syncIsPreparing(const QString &progress) override;
    void syncWillCleanUp() override;
    void syncNotEnoughFreeSpace(quint64 bytes) override;
    void syncWillCancel() override;
    void syncDidStart() override;
    void syncWillProcessModule(const QString &moduleName) override;
    void syncWillProcessItem(const CVSyncItem &item) override;
    void syncDidCopyBytes(quint64 count) override;
    void syncDidCopyLastBytes() override;
    void syncDidProcessItem(const CVSyncItem &item) override;
    void syncError(const ErrorInfo &info) override;
    void syncDidProgress(const RunReport &report) override;
    void finalizeDidStart() override;
    bool shouldUnmountPSP() override;
    void pspWillUnmount() override;
    void pspUnmountFailed(const FailedEject &failed) override;
    void syncDidFinish(const RunReport &report) override;
    void newSyncBytesEstimate(quint64 bytes) override;

private:
    void show(const QString &text, const QString &subText);
    void showStick();
    void notifyUserInterface();
    QString lastSyncText() const;
    QString leftOutText() const;
    void showIdle(const QString &text, const QString &subText);
    void memoryStickFilled();
    void syncWasCancelled();
    void syncWasIncomplete(const RunReport &report);
    void syncWasSuccessful();
    void logLeftOut(const RunReport &report);

    const Services m_services;
    QString m_statusText;
    QString m_statusSubText;
    // In the active run
    bool m_saidFilled = false;
    QSet<QString> m_loggedErrors; // by path
    std::atomic<bool> m_isInteractive = false;
};
