#include "modules/saves/own/SaveOnStick.h"

#include "platform/files/FileManager.h"
#include "sync/StickEditor.h"
#include "sync/StickFiles.h"

#include <tuple>

namespace {

QString incoming(const QString &volume)
{
    return StickFiles::restoreFolder(volume) + QStringLiteral("/Incoming");
}

QString replaced(const QString &volume)
{
    return StickFiles::restoreFolder(volume) + QStringLiteral("/Replaced");
}

/// False, reported, where the folder isn't there afterwards.
bool makeFolder(StickEditor &stick, const QString &folder, FileOperationHandler &handler)
{
    const auto made = stick.makeFolders(folder);
    if (!made)
        handler.fileManagerShouldProceedAfterError(made.error());
    return bool(made);
}

} // namespace

SaveOnStick::SaveOnStick(StickEditor &stick, const QString &save)
    : m_stick(stick)
    , m_folder(parentOn(stick.volume()) + u'/' + save)
{
}

QString SaveOnStick::parentOn(const QString &volume)
{
    return volume + QStringLiteral("/PSP/SAVEDATA");
}

bool SaveOnStick::exists() const
{
    return files().linkStatus(m_folder).exists();
}

void SaveOnStick::removeStaged()
{
    const QString staged = StickFiles::restoreFolder(m_stick.volume());
    if (files().linkStatus(staged).exists())
        m_stick.remove(staged, nullptr);
    std::ignore = m_stick.flush(); // what is left of it goes at the next start
}

bool SaveOnStick::takeAway(FileOperationHandler &handler)
{
    return makeFolder(m_stick, StickFiles::restoreFolder(m_stick.volume()), handler) &&
           m_stick.move(m_folder, replaced(m_stick.volume()), handler);
}

bool SaveOnStick::put(const QString &backup, FileOperationHandler &handler)
{
    const QString volume = m_stick.volume();
    const QString partial = incoming(volume);
    const bool done = makeFolder(m_stick, parentOn(volume), handler) &&
                      makeFolder(m_stick, StickFiles::restoreFolder(volume), handler) &&
                      m_stick.copyTree(backup, partial, handler) &&
                      m_stick.move(partial, m_folder, handler);
    const auto flushed = m_stick.flush();
    if (!flushed)
        handler.fileManagerShouldProceedAfterError(flushed.error());
    removeStaged();
    return done && flushed;
}
