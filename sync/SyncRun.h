#pragma once

#include "sync/CVSyncManagerDelegate.h"
#include "sync/CVSyncModuleDelegate.h"
#include "sync/KeptFiles.h"
#include "sync/ModuleKind.h"
#include "sync/RunReport.h"
#include "sync/StickEditor.h"
#include "sync/SyncPlan.h"

#include <QElapsedTimer>
#include <QHash>
#include <QSet>
#include <QStringList>

#include <memory>

class Clock;

/// What a run needs of the manager that started it. Any thread.
class SyncRunHost : public CVSyncModuleDelegate
{
public:
    virtual bool shouldCancelSync() const = 0;
    virtual void cancelSync() = 0;
    /// What the run does, once that stands.
    virtual void setPlan(std::shared_ptr<const SyncPlan> plan) = 0;
    /// What the run has done by now.
    virtual void reportProgress(const RunReport &report) = 0;
    virtual void setIsIndeterminate(bool indeterminate) = 0;
    /// Of the run's copies; and of everything selected.
    virtual void setSyncBytes(quint64 total, quint64 copied) = 0;
    virtual void setSyncBytesEstimate(quint64 bytes) = 0;
    virtual quint64 syncBytesLeft() const = 0;
    /// Calls the delegate on the main thread and waits for it.
    virtual void tell(const std::function<void(CVSyncManagerDelegate &)> &callback) = 0;
    virtual bool shouldUnmountPSP() = 0;
    virtual void ejectVolume(const QString &volume) = 0;
};

/// One sync, from its start to the eject: a plan is made, then carried out. A stick that comes or
/// goes meanwhile never changes where it writes. Lives on the run's thread.
class SyncRun : private FileOperationHandler
{
public:
    struct Services
    {
        const ModuleCatalogue &catalogue;
        Clock &clock;
        QString resourceFolder; ///< holds the device icons
    };

    /// Host and services are not owned and outlive the run. The stick is the one that was found
    /// when the run was asked for.
    SyncRun(SyncRunHost &host, Services services, StickEditor stick);

    /// All of it but the announcement of the end.
    RunReport run();

private:
    // The phases, in their order; each has a file of its own
    void start();
    void prepare();
    void cleanUp();
    void testFreeSpace();
    void copy();
    void finalize();
    void recordSizes();
    void ejectStick();

    void pause();
    void flush();
    void makePlan();
    void keepReplaced(const KindPlan &kind);
    void markUnfinished();
    void removeReplaced(const KindPlan &kind);
    void cleanUp(const KindPlan &kind, ItemPlacer *placer);
    void removePlanned(const PlannedRemoval &removal);
    bool mayGo(const QString &path, bool isStranger);
    void copyKind(const KindPlan &kind, ItemPlacer &placer);
    void copyItem(const PlannedItem &planned, ItemPlacer &placer, QStringList &index);
    bool isInTheWay(const QString &destination) const;
    void record(const PlannedItem &planned, const CopyOutcome &outcome);
    void leaveOut(const CVSyncItem &item, PlannedItem::Reason reason);
    void writeLastSelection();
    QStringList indexOf(const KindPlan &kind) const;
    void write(const QString &path, const QByteArray &contents);
    void reportNowAndThen();

    bool fileManagerCopiedBytes(quint64 bytes, const QString &toPath) override;
    bool fileManagerShouldProceedAfterError(const FileError &error) override;

    SyncRunHost &m_host;
    const Services m_services;
    StickEditor m_stick;
    bool m_saidGone = false;

    ModuleList m_modules; // one for each kind of the plan
    std::shared_ptr<const SyncPlan> m_plan = std::make_shared<SyncPlan>();
    QHash<QString, QStringList> m_indexes; // syncIndex: per save name, relative to the volume
    QStringList m_notRemoved;              // paths; their folders stay
    KeptFiles m_kept;
    QSet<QString> m_notKept;  // destinations where something lies that can't go
    QSet<QString> m_inTheWay; // destinations of copies where something lies that no plan knew
    FileError m_lastError;    // of the item that is being placed
    RunReport m_report;
    QElapsedTimer m_sinceReport;
};
