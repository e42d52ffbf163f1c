#include "app/SyncStatus.h"

#include "app/Log.h"
#include "app/Plans.h"
#include "app/RelativeDate.h"
#include "app/RunRecord.h"
#include "app/StatusIcon.h"
#include "app/StatusMenu.h"
#include "platform/core/Clock.h"
#include "platform/core/Localized.h"
#include "platform/desktop/Sounds.h"
#include "platform/lists/UserDefaults.h"
#include "sync/CVSyncItem.h"
#include "sync/CVSyncManager.h"
#include "util/ByteCount.h"
#include "util/QMLogger.h"
#include "util/Settings.h"
#include "util/TextFormat.h"

#include <algorithm>
#include <utility>

namespace {

/// Lines of an alert that lists something.
constexpr qsizetype longestAlert = 10;

QString size(std::optional<quint64> bytes)
{
    return FileManagerTools::sizeDescriptionForByteCount(bytes);
}

} // namespace

SyncStatus::SyncStatus(Services services)
    : m_services(std::move(services))
{
    QObject::connect(&m_services.frontEnds, &FrontEnds::notShown, &m_services.frontEnds,
                     [this](const QString &title, const QString &message, AlertStyle style) {
                         m_services.alerts.show(title, message, style);
                     });
}

void SyncStatus::setInitialTexts()
{
    m_statusText = localized("Initializing...");
    const QString leftOut = leftOutText();
    m_statusSubText = leftOut.isEmpty() ? lastSyncText() : leftOut;
}

void SyncStatus::setStatusText(const QString &text)
{
    m_statusText = text;
    m_services.menu.setStatusText(text);
    const QString leftOut = leftOutText();
    m_services.icon.setToolTip(leftOut.isEmpty() ? text : text + QStringLiteral(" – ") + leftOut);
    if (Settings::useDetailedLogging())
        m_services.logger.log(text);
}

void SyncStatus::setStatusSubText(const QString &text)
{
    m_statusSubText = text;
    if (Settings::useDetailedLogging())
        m_services.logger.log(text);
}

void SyncStatus::show(const QString &text, const QString &subText)
{
    setStatusText(text);
    setStatusSubText(subText);
    notifyUserInterface();
}

/// While nothing runs: what the last run left out stays the second line until the next one.
void SyncStatus::showIdle(const QString &text, const QString &subText)
{
    const QString leftOut = leftOutText();
    show(text, leftOut.isEmpty() ? subText : leftOut);
}

void SyncStatus::notifyUserInterface()
{
    m_services.menu.update();
    m_services.frontEnds.updateUserInterface();
}

QString SyncStatus::lastSyncText() const
{
    const auto lastSync = Settings::lastSync();
    return filled(localized("Last Sync: %@"), {relativeDate(lastSync, m_services.clock.now())});
}

/// Empty where the last run left nothing out, or was not completed.
QString SyncStatus::leftOutText() const
{
    const std::optional<RunRecord::Counts> counts = m_services.record.leftOut();
    if (!counts)
        return {};
    return filled(localized("%@ of %@ files could not be copied."),
                  {QString::number(counts->leftOut), QString::number(counts->wanted)});
}

void SyncStatus::doAlert(const QString &title, const QString &message, AlertStyle style)
{
    m_services.frontEnds.doAlert(title, message, style);
}

// --- The device

void SyncStatus::showStick()
{
    const bool syncedBefore = Settings::lastSync().has_value();
    showIdle(filled(localized("%@ Available"), {size(m_services.manager.pspFreeSpace())}),
             syncedBefore ? lastSyncText() : localized("Click \"Sync Now\" to perform a sync."));
}

void SyncStatus::pspDidMount(const QString &)
{
    m_services.icon.pspDidMount();
    showStick();
    m_services.frontEnds.pspDidMount();
    if (Settings::openOnMount())
        m_services.openFrontEnd();
}

void SyncStatus::pspDidUnmount()
{
    m_services.plans.forget();
    m_services.icon.pspDidUnmount();
    showIdle(localized("No PSP Connected"), localized("Connect a PSP to perform a sync."));
    m_services.frontEnds.pspDidUnmount();
}

void SyncStatus::foundUnformattedMemoryStick()
{
    if (!Settings::warnAboutUnformattedMemorySticks())
        return;
    doAlert(
        localized("Unformatted memory stick found!"),
        localized("A Memory Stick was found, however it is not formatted for use with a "
                  "PSP.\n\nIf you intend to use this Memory Stick with the PSP and Caravel, you "
                  "must first format it from the PSP's main menu."),
        AlertStyle::Warning);
}

bool SyncStatus::shouldSyncOnMount()
{
    return !m_isInteractive && !Settings::useSyncProfiles();
}

bool SyncStatus::shouldUnmountPSP()
{
    return !m_isInteractive;
}

void SyncStatus::pspWillUnmount()
{
    show(localized("Ejecting PSP..."),
         localized("One moment, Caravel is preparing your PSP for ejection..."));
}

void SyncStatus::pspDidEject()
{
    m_services.alerts.notify(localized("PSP Ejected"),
                             localized("It is safe to remove the PSP now."));
    // Another stick's mount was told of long ago, or never.
    if (m_services.manager.pspIsMounted() && !m_services.manager.isSyncing())
        showStick();
}

void SyncStatus::pspUnmountFailed(const FailedEject &failed)
{
    QStringList why;
    for (const VolumeHolder &holder : failed.holders)
        why.append(filled(localized("%@ uses %@"), {holder.program, holder.path}));
    if (!failed.reason.isEmpty())
        why.append(failed.reason);
    for (const QString &line : why)
        m_services.logger.log(QStringLiteral("Eject failed: %@"), line);
    // Told first: who asked for the eject looks for the texts.
    if (!why.isEmpty())
        doAlert(localized("Can't eject the PSP now!"),
                why.first(std::min<qsizetype>(why.size(), longestAlert)).join(u'\n'),
                AlertStyle::Warning);
    show(localized("Eject Failed"), localized("The PSP may be in use by another application."));
}

// --- The run

void SyncStatus::syncHeldBack(const HoldBack &why)
{
    using Reason = HoldBack::Reason;
    const auto say = [this](const QString &message) {
        doAlert(localized("The sync was not started!"), message, AlertStyle::Warning);
    };
    switch (why.reason) {
    case Reason::UnreadablePreferences:
        return say(localized("The preferences can't be read, so it is not known what you have "
                             "selected."));
    case Reason::LostSelection:
        return say(localized("The preferences were damaged and had to be set aside, your selection "
                             "with them.\n\nPlease select your media anew, then sync."));
    case Reason::LinkedFolder:
        return say(localized("The folder \".caravel\" on the Memory Stick is a link, and no link "
                             "is followed there.\n\nPlease remove it, then sync."));
    case Reason::UnreadableProfile:
        return say(localized("The selection that is kept on the Memory Stick can't be read.\n\n"
                             "Please look at your selection, then click \"Sync Now\"."));
    case Reason::UnreadableLibrary:
        return say(filled(localized("The library for \"%@\" can't be read. A sync would remove "
                                    "from the PSP what you have selected in it.\n\nClick \"Sync "
                                    "Now\" to sync all the same."),
                          {why.kind}));
    case Reason::SourceChanged:
        return say(filled(localized("\"%@\" comes from another source now. A sync would remove "
                                    "from the PSP what came from the one before.\n\nClick \"Sync "
                                    "Now\" to sync all the same."),
                          {why.kind}));
    case Reason::MuchWouldGo:
        return say(filled(localized("A sync would remove more than half of \"%@\" from the PSP, "
                                    "though your selection is the same. Is a disk with your media "
                                    "missing?\n\nClick \"Sync Now\" to sync all the same."),
                          {why.kind}));
    }
}

void SyncStatus::syncWillStart()
{
    m_saidFilled = false;
    m_services.plans.forget();
    m_services.record.begin(m_services.manager.pspVolume(), m_services.clock.now());
    m_loggedErrors.clear();
    m_services.icon.startSyncAnimation();
    show(localized("Preparing to Sync..."),
         localized("One moment, Caravel is gathering information..."));
}

void SyncStatus::syncIsPreparing(const QString &progress)
{
    setStatusSubText(progress);
    m_services.frontEnds.updateUserInterface();
}

void SyncStatus::syncWillCleanUp()
{
    show(localized("Cleaning Up..."), localized("Caravel is removing unneeded files..."));
}

void SyncStatus::syncNotEnoughFreeSpace(quint64 bytes)
{
    m_services.logger.log(QStringLiteral("Not enough free space to complete sync of size: %@"),
                          size(bytes));
    doAlert(localized("Sync too large!"),
            filled(localized("You are attempting to sync %@, however only %@ of free space is "
                             "available on the Memory Stick currently in your PSP.\n\nPlease "
                             "deselect some media to ensure the sync can be completed."),
                   {size(bytes), size(m_services.manager.pspFreeSpace())}),
            AlertStyle::Critical);
}

void SyncStatus::syncDidStart()
{
    show(localized("Starting Sync..."), localized("Caravel is copying selected files..."));
}

void SyncStatus::syncWillProcessModule(const QString &moduleName)
{
    setStatusText(filled(localized("Syncing %@..."), {moduleName}));
    notifyUserInterface();
}

void SyncStatus::syncWillProcessItem(const CVSyncItem &item)
{
    setStatusSubText(item.description);
    m_services.frontEnds.updateUserInterface();
}

void SyncStatus::syncDidCopyBytes(quint64)
{
    m_services.frontEnds.updateSyncBytes();
}

void SyncStatus::syncDidCopyLastBytes()
{
    m_services.frontEnds.updateUserInterface();
}

void SyncStatus::syncDidProcessItem(const CVSyncItem &) {}

void SyncStatus::syncDidProgress(const RunReport &report)
{
    m_services.record.update(report);
}

void SyncStatus::finalizeDidStart() {}

void SyncStatus::syncWillCancel()
{
    show(localized("Cancelling Sync..."),
         localized("Please wait while Caravel completes the previous task..."));
}

void SyncStatus::syncError(const ErrorInfo &info)
{
    const FileError error = fileError(info);
    // A write that fails leaves a file as incomplete as one that couldn't be made.
    if (error.operation != FileError::Operation::Create &&
        error.operation != FileError::Operation::Write) {
        qCWarning(lcApp).noquote() << error.description();
        return;
    }
    CVSyncManager &manager = m_services.manager;
    if (manager.pspIsMounted() && manager.pspFreeSpace().value_or(0) == 0) {
        memoryStickFilled();
        return;
    }
    m_loggedErrors.insert(error.path);
    m_services.logger.log(QStringLiteral("Unexpected error: %@"), error.description());
}

void SyncStatus::memoryStickFilled()
{
    m_services.manager.cancelSync();
    // Files that follow fail the same way before the run has stopped; the user is told once.
    if (std::exchange(m_saidFilled, true))
        return;
    m_services.logger.log(QStringLiteral("Memory stick filled while syncing!"));
    doAlert(localized("Memory stick full!"),
            localized("The Memory Stick currently inside your PSP has been filled. You must "
                      "deselect some media to free enough space to complete a sync."),
            AlertStyle::Critical);
}

void SyncStatus::syncDidFinish(const RunReport &report)
{
    m_services.record.end(report, m_services.clock.now());
    m_services.icon.stopSyncAnimation();
    m_services.frontEnds.updateSyncBytes();
    // Before the end, at which a front-end that waits for it leaves.
    if (report.isStickLost)
        doAlert(localized("PSP lost during sync!"),
                localized("The PSP was disconnected, or its Memory Stick can't be written any "
                          "more, before the sync was complete.\n\nYou must re-sync to ensure the "
                          "PSP is up to date."),
                AlertStyle::Critical);
    m_services.frontEnds.syncDidFinish(report.isComplete);
    if (report.isComplete && report.hiddenFiles > 0)
        m_services.logger.log(QStringLiteral("Files in deeper folders than the PSP shows: %@"),
                              QString::number(report.hiddenFiles));
    if (!report.kept.empty())
        m_services.logger.log(filled(
            QStringLiteral(
                "Taken from the PSP, though no sync had placed it: %@; copies are kept in %@"),
            {QString::number(report.kept.size()), report.keptFolder}));
    if (!report.isComplete)
        syncWasCancelled();
    else if (report.failures() > 0)
        syncWasIncomplete(report);
    else
        syncWasSuccessful();
    UserDefaults::standard().synchronize();
    m_services.manager.refreshSyncBytesEstimate();
    notifyUserInterface();
}

void SyncStatus::syncWasSuccessful()
{
    if (!Settings::useDetailedLogging())
        m_services.logger.log(QStringLiteral("Sync was completed successfully."));
    setStatusText(localized("Sync Successful"));
    setStatusSubText(lastSyncText());
    if (Settings::playSyncCompletionSound())
        m_services.sounds.play(QStringLiteral("SyncCompleted"));
}

void SyncStatus::syncWasIncomplete(const RunReport &report)
{
    const QStringList counts{QString::number(report.failures()),
                             QString::number(report.placeable())};
    const QString text = QStringLiteral("%@ of %@ files could not be copied.");
    if (!Settings::useDetailedLogging())
        m_services.logger.log(filled(text, counts));
    setStatusText(localized("Sync Incomplete"));
    setStatusSubText(leftOutText());
    logLeftOut(report);
}

void SyncStatus::logLeftOut(const RunReport &report)
{
    for (const RunReport::LeftOut &item : report.leftOut) {
        if (item.reason != PlannedItem::Reason::Missing && !m_loggedErrors.contains(item.path))
            m_services.logger.log(
                filled(QStringLiteral("Not copied: %@ (%@)"), {item.path, item.text}));
    }
}

void SyncStatus::syncWasCancelled()
{
    if (!Settings::useDetailedLogging())
        m_services.logger.log(localized("Sync was cancelled."));
    setStatusText(localized("Sync Cancelled"));
    setStatusSubText(localized("You must re-sync to ensure the PSP is up to date."));
}

void SyncStatus::newSyncBytesEstimate(quint64 bytes)
{
    if (Settings::useDetailedLogging()) {
        qCInfo(lcApp).noquote() << filled(
            QStringLiteral("Got %@, last sync size = %@, last stick size = %@"),
            {size(bytes), size(Settings::lastSyncSize()), size(Settings::lastStickSize())});
    }
    m_services.frontEnds.updateSyncBytesEstimate();
}
