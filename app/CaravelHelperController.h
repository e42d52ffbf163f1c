#pragma once

#include "app/FrontEnds.h"
#include "app/LoginItems.h"
#include "app/Plans.h"
#include "app/RunRecord.h"
#include "app/SelectionLists.h"
#include "app/StatusIcon.h"
#include "app/StatusMenu.h"
#include "app/SyncStatus.h"
#include "modules/movies/MovieQueue.h"
#include "platform/bus/NamedConnection.h"
#include "platform/lists/Bundle.h"
#include "sync/CVSyncManager.h"
#include "util/QMLogger.h"

#include <QObject>
#include <QTimer>
#include <QVariantMap>

#include <functional>

/// The helper itself: brings its parts up and down, and does what a front-end or a menu asks for.
/// Main thread.
class CaravelHelperController : public QObject, private QMLoggerDelegate, private MovieQueueDelegate
{
    Q_OBJECT
public:
    /// What it works with; not owned, outliving it.
    struct Services
    {
        Volumes &volumes;
        DistributedNotificationCenter &notifications;
        Clock &clock;
        StatusBar &statusBar;
        Alerts &alerts;
        Sounds &sounds;
        Bundle bundle; ///< the helper's own
    };
    explicit CaravelHelperController(Services services, QObject *parent = nullptr);
    ~CaravelHelperController() override;

    /// Brings the helper up: log, announcement, manager, connection, texts, folders, status item
    /// and login items, detection.
    void start();

    QMLogger &logger() { return m_logger; }
    CVSyncManager &syncManager() { return m_manager; }
    SyncStatus &status() { return m_status; }
    Plans &plans() { return m_plans; }
    const RunRecord &record() const { return m_record; }
    SelectionLists &lists() { return m_lists; }
    FrontEnds &frontEnds() { return m_frontEnds; }
    MovieQueue &movies() { return m_movies; }

    void setApplication(const QString &address, const QString &objectPath);
    /// A front-end says that it quits. With the last one the helper goes too, once it is idle,
    /// unless it starts at login.
    void applicationWillQuit(const QString &address);

    /// Launches the front-end, or brings it forward where it sees to that itself.
    void openCaravel();
    /// Starts a sync, or cancels the running one for a sender titled "Cancel Sync".
    void syncNow(const QVariantMap &sender);
    /// Refused, and said to the user, during a sync.
    void ejectPSP();
    /// Puts a backup of a game save back on the PSP, or moves backups to the Trash. Refused, and
    /// said to the user, during a sync.
    void restoreBackup(const QString &identifier);
    void deleteBackup(const QString &identifier);

    /// Brings the status item and the login items in line with "startOnLogin", as the store on the
    /// disk has it; holds the caller a quarter of a second.
    void changeStartOnLogin();

    /// The platform's request to quit: passed over while a front-end is open, else the helper
    /// goes.
    void requestQuit();
    /// Goes without asking the front-ends.
    void terminate();

    void logChanged(const QString &line) override;

Q_SIGNALS:
    /// The helper has come down; the process may end now.
    void finished();

private:
    void reloadMoviesView() override { m_frontEnds.reloadMoviesView(); }
    void startConversionAnimation() override { m_frontEnds.startConversionAnimation(); }
    void stopConversionAnimation() override { m_frontEnds.stopConversionAnimation(); }
    void movieAlert(const QString &title, const QString &message) override;

    void initialize();
    void setUp();
    void createFolders();
    bool mayChangeBackups();
    void restoreFailed(const QString &identifier, const QString &whatIsThere);
    void helperDidStart();
    void quitWhenIdle();
    void checkName(const QString &name) const;
    void logDetail(const QString &message);
    void quit();
    QString frontEndPath() const;
    StatusMenu::Actions menuActions();

    const Services m_services;
    QMLogger m_logger;
    const ModuleCatalogue m_catalogue;
    CVSyncManager m_manager;
    Plans m_plans;
    RunRecord m_record;
    FrontEnds m_frontEnds;
    StatusMenu m_menu;
    StatusIcon m_icon;
    SyncStatus m_status;
    SelectionLists m_lists;
    MovieQueue m_movies;
    const LoginItems m_loginItems;
    NamedConnection m_helperConnection;
    QTimer m_idleTimer; // runs while the helper is to go and is still at work
    bool m_isQuitting = false;
};
