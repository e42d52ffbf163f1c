#include "app/CaravelHelperController.h"

#include "app/Catalogue.h"
#include "app/FrontEndProtocol.h"
#include "app/Log.h"
#include "app/PrefsController.h"
#include "modules/movies/CVSyncMovies.h"
#include "modules/saves/CVSyncBackup.h"
#include "platform/bus/DistributedNotificationCenter.h"
#include "platform/core/Localized.h"
#include "platform/core/MainThread.h"
#include "platform/desktop/Workspace.h"
#include "platform/lists/UserDefaults.h"
#include "protocol/Protocol.h"
#include "util/FileManagerTools.h"
#include "util/Folders.h"
#include "util/Settings.h"
#include "util/StringTools.h"
#include "util/TextFormat.h"

#include <QFile>

#include <cstdlib>
#include <utility>

namespace {

// How long a quitting helper waits for its run to write what it must.
constexpr auto quitPatience = std::chrono::seconds(5);

// How long an older helper may take to give its name up to this one.
constexpr auto handOverPatience = std::chrono::seconds(10);

// How often a helper that is to go looks whether it is still at work.
constexpr auto idleInterval = std::chrono::seconds(1);

// How long a value that a front-end has just set may take to reach the store's file.
constexpr auto storeDelay = std::chrono::milliseconds(250);

QString helperDidStartNotification()
{
    return QStringLiteral("CVHelperDidStartNotification");
}

} // namespace

CaravelHelperController::CaravelHelperController(Services services, QObject *parent)
    : QObject(parent)
    , m_services(std::move(services))
    , m_catalogue(catalogue(m_services.clock))
    , m_manager({m_services.volumes, m_services.notifications, m_services.clock,
                 m_services.bundle.resourcePath()},
                m_catalogue)
    , m_plans(m_catalogue, m_manager)
    , m_menu(m_manager, menuActions())
    , m_icon(m_services.statusBar, m_manager)
    , m_status({m_manager, m_logger, m_plans, m_record, m_frontEnds, m_menu, m_icon,
                m_services.alerts, m_services.sounds, m_services.clock,
                [this] {
                    openCaravel();
                }})
    , m_lists(m_catalogue, m_manager, m_services.clock)
    , m_movies({m_manager, m_logger, m_services.sounds, m_services.clock, *this,
                m_services.bundle.resourcePath()})
    , m_loginItems(m_services.bundle, frontEndPath())
{
    m_logger.setDelegate(this);
    m_manager.setDelegate(&m_status);
    connect(&m_plans, &Plans::isReady, &m_frontEnds, &FrontEnds::planIsReady);
    connect(&m_frontEnds, &FrontEnds::vanished, this,
            &CaravelHelperController::applicationWillQuit);
    connect(&m_frontEnds, &FrontEnds::interactiveChanged, this,
            [this](bool interactive) { m_status.setIsInteractive(interactive); });
    connect(&m_manager, &CVSyncManager::ejected, this, [this] { m_status.pspDidEject(); });
    m_idleTimer.setInterval(idleInterval);
    connect(&m_idleTimer, &QTimer::timeout, this, &CaravelHelperController::quitWhenIdle);
}

CaravelHelperController::~CaravelHelperController() = default;

StatusMenu::Actions CaravelHelperController::menuActions()
{
    StatusMenu::Actions actions;
    actions.syncNow = [this](const QString &title) {
        syncNow({{QStringLiteral("title"), title}});
    };
    actions.ejectPSP = [this](const QString &) {
        ejectPSP();
    };
    actions.openCaravel = [this](const QString &) {
        openCaravel();
    };
    actions.quit = [this](const QString &) {
        requestQuit();
    };
    return actions;
}

void CaravelHelperController::start()
{
    PrefsController::initialize(m_services.notifications);
    PrefsController::beginObserving(m_services.notifications);
    m_plans.watchSettings(m_services.notifications);
    initialize();
    setUp();
}

void CaravelHelperController::initialize()
{
    m_logger.log(QStringLiteral("Initializing %@..."),
                 filled(QStringLiteral("%@ build %@"),
                        {QStringLiteral("Caravel"), m_services.bundle.version()}));
    m_services.notifications.post(helperDidStartNotification());
    m_services.notifications.observe(
        helperDidStartNotification(), this, [this] { helperDidStart(); },
        DistributedNotificationCenter::Own::Ignore);
    logDetail(QStringLiteral("Initializing SyncManager..."));
    // The estimate's modules write into them.
    createFolders();
    m_manager.refreshSyncBytesEstimate();
    logDetail(QStringLiteral("Creating helper connection..."));
    m_helperConnection.exportObject(Protocol::helperPath.toString(),
                                    Protocol::helperInterface.toString(),
                                    FrontEndProtocol::methods(*this));
    const QString name = Protocol::helperConnection(m_services.bundle.version());
    if (!m_helperConnection.registerName(name))
        QTimer::singleShot(handOverPatience, this, [this, name] { checkName(name); });
    m_status.setInitialTexts();
}

void CaravelHelperController::checkName(const QString &name) const
{
    if (!m_isQuitting && !m_helperConnection.hasName(name))
        qCWarning(lcApp).noquote() << "Another process has the connection name" << name
                                   << "; this one is reached when that one leaves";
}

void CaravelHelperController::setUp()
{
    logDetail(QStringLiteral("Setting up status item..."));
    m_status.setStatusText(localized("No PSP Connected"));
    CVSyncMovies::removeLeftovers();
    changeStartOnLogin();
    m_manager.detectPSP();
}

void CaravelHelperController::changeStartOnLogin()
{
    m_services.clock.sleep(storeDelay);
    UserDefaults::standard().synchronize();
    const bool startOnLogin = Settings::startOnLogin();
    m_menu.update();
    if (startOnLogin)
        m_icon.show(m_menu.menu());
    else
        m_icon.remove();
    m_loginItems.setStartOnLogin(startOnLogin);
}

void CaravelHelperController::createFolders()
{
    FileManagerTools::createPath(Folders::support());
    // The pages of contacts and bookmarks are made there.
    QFile::setPermissions(Folders::support(),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    FileManagerTools::createPath(Folders::documents());
    for (const ModuleKind &kind : m_catalogue) {
        if (kind.hasDropbox)
            FileManagerTools::createPath(Folders::dropbox(kind.saveName));
    }
}

void CaravelHelperController::logDetail(const QString &message)
{
    if (Settings::useDetailedLogging())
        m_logger.log(message);
}

void CaravelHelperController::logChanged(const QString &line)
{
    m_frontEnds.writeToLog(line);
}

void CaravelHelperController::movieAlert(const QString &title, const QString &message)
{
    m_status.doAlert(title, message, AlertStyle::Warning);
}

// --- The front-ends

void CaravelHelperController::setApplication(const QString &address, const QString &objectPath)
{
    m_idleTimer.stop();
    m_frontEnds.connectTo(address, objectPath);
    logDetail(QStringLiteral("Caravel front-end has connected."));
}

void CaravelHelperController::applicationWillQuit(const QString &address)
{
    if (!m_frontEnds.forget(address))
        return;
    logDetail(QStringLiteral("Caravel front-end has quit."));
    if (!m_frontEnds.isEmpty() || Settings::startOnLogin())
        return;
    m_idleTimer.start();
    quitWhenIdle();
}

void CaravelHelperController::quitWhenIdle()
{
    if (m_manager.isSyncing() || m_movies.hasWork())
        return;
    m_idleTimer.stop();
    if (!Settings::startOnLogin())
        requestQuit();
}

void CaravelHelperController::openCaravel()
{
    if (m_isQuitting)
        return;
    logDetail(QStringLiteral("Launching Caravel front-end..."));
    Workspace::openFile(frontEndPath());
}

QString CaravelHelperController::frontEndPath() const
{
    return StringTools::standardizingPath(m_services.bundle.resourcePath() +
                                          QStringLiteral("/../../../../.."));
}

void CaravelHelperController::syncNow(const QVariantMap &sender)
{
    if (sender.value(QStringLiteral("title")).toString() == localized("Cancel Sync"))
        m_manager.cancelSync();
    else
        m_manager.sync();
}

// --- Backups

// A run may be copying the very save.
bool CaravelHelperController::mayChangeBackups()
{
    if (!m_manager.isSyncing())
        return true;
    m_logger.log(QStringLiteral("Can't restore or delete backups during a sync."));
    m_status.doAlert(localized("Can't change backups now!"),
                     localized("Can't restore or delete backups during a sync."),
                     AlertStyle::Warning);
    return false;
}

void CaravelHelperController::restoreBackup(const QString &identifier)
{
    if (!mayChangeBackups())
        return;
    logDetail(filled(QStringLiteral("Restoring backup %@..."), {identifier}));
    using Restored = CVSyncBackup::Restored;
    switch (CVSyncBackup::restoreBackupWithIdentifier(identifier, m_manager.pspVolume(),
                                                      m_services.clock)) {
    case Restored::Done:
        return;
    case Restored::NoBackup:
        restoreFailed(identifier, localized("There is no such backup. Nothing was changed."));
        return;
    case Restored::NoStick:
        restoreFailed(identifier, localized("No PSP is connected. Nothing was changed."));
        return;
    case Restored::NotKept:
        restoreFailed(identifier,
                      localized("The game save on the PSP could not be kept first, so nothing on "
                                "the PSP was changed."));
        return;
    case Restored::Failed:
        restoreFailed(identifier,
                      localized("The game save that was on the PSP is kept as the newest backup."));
        return;
    }
}

void CaravelHelperController::restoreFailed(const QString &identifier, const QString &whatIsThere)
{
    m_logger.log(QStringLiteral("Restoring backup failed: %@"), identifier);
    m_status.doAlert(localized("Restoring failed!"), whatIsThere, AlertStyle::Critical);
}

void CaravelHelperController::deleteBackup(const QString &identifier)
{
    if (!mayChangeBackups())
        return;
    logDetail(filled(QStringLiteral("Deleting backup %@..."), {identifier}));
    CVSyncBackup::deleteBackupWithIdentifier(identifier);
}

void CaravelHelperController::ejectPSP()
{
    if (!m_manager.isSyncing()) {
        m_manager.eject();
        return;
    }
    // It would take the stick from the run's hands.
    m_logger.log(QStringLiteral("The PSP can't be ejected during a sync."));
    m_status.doAlert(localized("Can't eject the PSP now!"),
                     localized("The PSP can't be ejected during a sync."), AlertStyle::Warning);
}

// --- Going away

void CaravelHelperController::helperDidStart()
{
    logDetail(QStringLiteral("Another helper has started, I am quitting!"));
    m_icon.remove();
    // Even under an open front-end: two helpers would both sync a stick that mounts.
    terminate();
}

void CaravelHelperController::requestQuit()
{
    if (!m_frontEnds.isOpen())
        terminate();
}

void CaravelHelperController::terminate()
{
    if (std::exchange(m_isQuitting, true))
        return;
    m_movies.close();
    m_lists.close();
    logDetail(QStringLiteral("Helper quitting..."));
    m_icon.disable();
    // From here on nobody's call is taken: what it changed would be lost.
    m_helperConnection.invalidate();
    quit();
}

void CaravelHelperController::quit()
{
    m_manager.close();
    m_manager.cancelSync();
    if (!Workers::serveUntilFinished(quitPatience, Workers::awaited))
        qCWarning(lcApp) << "A sync didn't end in time; leaving without it";
    NamedConnection::flush();
    UserDefaults::standard().synchronize(std::chrono::seconds(1));
    // A thread that hangs in a read of a dying stick, or estimates, must not meet destructors.
    if (Workers::live() > 0)
        std::_Exit(0);
    Q_EMIT finished();
}
