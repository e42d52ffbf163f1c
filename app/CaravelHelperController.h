#pragma once

#include "app/FrontEnd.h"
#include "app/SelectionLists.h"
#include "app/SyncStatus.h"
#include "platform/Bundle.h"
#include "platform/NamedConnection.h"
#include "sync/CVSyncManager.h"
#include "util/QMLogger.h"

#include <QObject>
#include <QVariantMap>

#include <functional>

/// The helper itself: brings its parts up and down, and does what a front-end or a menu asks for.
/// Main thread.
class CaravelHelperController : public QObject, private QMLoggerDelegate
{
    Q_OBJECT
public:
    /// What it works with; not owned, outliving it.
    struct Services
    {
        Volumes &volumes;
        DistributedNotificationCenter &notifications;
        Clock &clock;
        AlertPresenter &alerts;
        Bundle bundle; ///< the helper's own
    };
    explicit CaravelHelperController(Services services, QObject *parent = nullptr);
    ~CaravelHelperController() override;

    /// Brings the helper up: log, announcement, manager, connection, texts, folders, detection.
    void start();

    QMLogger &logger() { return m_logger; }
    CVSyncManager &syncManager() { return m_manager; }
    SyncStatus &status() { return m_status; }
    SelectionLists &lists() { return m_lists; }

    void setApplication(const QString &address, const QString &objectPath);
    /// A front-end says that it quits; the helper goes too unless it starts at login.
    void applicationWillQuit(const QString &address);

    void openCaravel();
    /// Starts a sync, or cancels the running one for a sender titled "Cancel Sync".
    void syncNow(const QVariantMap &sender);
    void ejectPSP();

    /// The platform's request to quit: passed over while the front-end is open, else the helper
    /// goes.
    void requestQuit();

    void logChanged(const QString &line) override;

Q_SIGNALS:
    /// The helper has come down; the process may end now.
    void finished();

private:
    void initialize();
    void setUp();
    void createFolders();
    void helperDidStart();
    void frontEndIsGone();
    void logDetail(const QString &message);
    void quit();

    const Services m_services;
    QMLogger m_logger;
    CVSyncManager m_manager;
    FrontEnd m_frontEnd;
    SyncStatus m_status;
    SelectionLists m_lists;
    NamedConnection m_helperConnection;
    bool m_isQuitting = false;
};
