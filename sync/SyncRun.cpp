// The run as a whole, its start and its end.

#include "sync/SyncRun.h"

#include "platform/core/Clock.h"
#include "platform/lists/NumberArchive.h"
#include "sync/Log.h"
#include "sync/StickFiles.h"
#include "util/Settings.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace {

constexpr int startPauses = 5;
constexpr auto startPause = std::chrono::seconds(1);
constexpr qint64 reportInterval = 1000; // ms

} // namespace

SyncRun::SyncRun(SyncRunHost &host, Services services, StickEditor stick)
    : m_host(host)
    , m_services(std::move(services))
    , m_stick(std::move(stick))
    , m_kept(m_stick.volume(), m_services.clock,
             {[this] { return m_host.shouldCancelSync(); },
              [this](const FileError &error) {
                  m_lastError = error;
                  if (!m_stick.isLostBy(error))
                      qCWarning(lcSync).noquote() << "Can't keep a copy:" << error.description();
              }})
{
    m_stick.setWhenGone([this] {
        if (!std::exchange(m_saidGone, true)) {
            qCWarning(lcSync).noquote()
                << "The stick at" << m_stick.volume()
                << "is gone or read-only; the sync ends and nothing is written there";
            m_report.isStickLost = !m_host.shouldCancelSync();
        }
        m_host.cancelSync();
    });
}

RunReport SyncRun::run()
{
    start();
    prepare();
    cleanUp();
    testFreeSpace();
    copy();
    finalize();
    recordSizes();
    std::ignore = files().finishClosing(); // of what was removed, also where the stick is gone
    ejectStick();
    m_report.isComplete = !m_host.shouldCancelSync();
    return std::move(m_report);
}

void SyncRun::start()
{
    const QString caravel = StickFiles::caravelFolder(m_stick.volume());
    if (!m_stick.isPresent())
        return;
    if (const auto made = m_stick.makeFolders(caravel); !made && !m_stick.isLostBy(made.error()))
        qCWarning(lcSync).noquote() << "Can't create the folder" << caravel;
    const QString restore = StickFiles::restoreFolder(m_stick.volume());
    if (files().linkStatus(restore).exists())
        m_stick.remove(restore, nullptr); // of one that was interrupted
    if (Settings::useDetailedLogging())
        qCInfo(lcSync) << "Setting PSP device icon...";
    m_stick.setIcon(QStringLiteral("%1/PSP%2.icns")
                        .arg(m_services.resourceFolder)
                        .arg(m_services.clock.now().date().month()));
    flush();
    pause();
}

void SyncRun::flush()
{
    if (const auto flushed = m_stick.flush(); !flushed)
        fileManagerShouldProceedAfterError(flushed.error());
}

// In which a cancel costs nothing.
void SyncRun::pause()
{
    for (int i = 0; i < startPauses && !m_host.shouldCancelSync(); ++i)
        m_services.clock.sleep(startPause);
}

void SyncRun::recordSizes()
{
    quint64 size = m_plan->syncBytesEstimate();
    if (m_host.shouldCancelSync())
        size -= std::min(m_host.syncBytesLeft(), size);
    if (m_plan->isComplete)
        Settings::lastSyncSize.set(size);
    // Of a stick that is gone the last known free space is still the best guess.
    if (m_stick.isPresent()) {
        if (const auto space = files().volumeSpace(m_stick.volume()))
            Settings::lastFreeSpace.set(space->free);
        if (m_plan->isComplete)
            write(StickFiles::lastSyncSize(m_stick.volume()), NumberArchive::encode(size));
    }
    m_host.setSyncBytes(1, 0);
}

// One of our own files.
void SyncRun::write(const QString &path, const QByteArray &contents)
{
    if (!m_stick.isPresent())
        return;
    const auto written = m_stick.write(path, contents);
    if (!written && !m_stick.isLostBy(written.error()))
        qCWarning(lcSync).noquote() << "Can't write" << path << ":" << written.error().text;
}

// What a run that is killed was known to have done by then.
void SyncRun::reportNowAndThen()
{
    if (m_sinceReport.isValid() && !m_sinceReport.hasExpired(reportInterval))
        return;
    m_sinceReport.start();
    m_host.reportProgress(m_report);
}

void SyncRun::ejectStick()
{
    if (!m_host.shouldCancelSync() && Settings::unmountAfterSync() && m_host.shouldUnmountPSP())
        m_host.ejectVolume(m_stick.volume());
}

bool SyncRun::fileManagerCopiedBytes(quint64 bytes, const QString &)
{
    m_host.syncModuleDidCopyBytes(bytes);
    std::ignore = m_stick.isPresent(); // a stick that is gone cancels the run
    return m_host.syncModuleShouldCancel();
}

bool SyncRun::fileManagerShouldProceedAfterError(const FileError &error)
{
    m_lastError = error;
    // What is wrong with the stick as a whole is said once, at the end.
    if (m_stick.isLostBy(error))
        return true;
    const bool wasCancelled = m_host.shouldCancelSync();
    m_host.syncModuleError(error);
    if (error.number == ENOSPC && !wasCancelled)
        m_report.isStickFull = m_host.shouldCancelSync();
    return true;
}
