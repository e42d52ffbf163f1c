#include "modules/saves/own/SaveOnStick.h"

#include "platform/files/FileManager.h"
#include "sync/StickFiles.h"
#include "util/FileManagerTools.h"

namespace {

QString incoming(const QString &volume)
{
    return StickFiles::caravelFolder(volume) + QStringLiteral("/Restore");
}

QString replaced(const QString &volume)
{
    return StickFiles::caravelFolder(volume) + QStringLiteral("/Replaced");
}

} // namespace

SaveOnStick::SaveOnStick(const QString &volume, const QString &save)
    : m_volume(volume)
    , m_folder(parentOn(volume) + u'/' + save)
{
}

QString SaveOnStick::parentOn(const QString &volume)
{
    return volume + QStringLiteral("/PSP/SAVEDATA");
}

void SaveOnStick::removeLeftovers(const QString &volume)
{
    for (const QString &leftover : {incoming(volume), replaced(volume)}) {
        if (files().linkStatus(leftover).exists())
            files().remove(leftover, nullptr);
    }
}

bool SaveOnStick::exists() const
{
    return files().linkStatus(m_folder).exists();
}

bool SaveOnStick::takeAway(FileOperationHandler &handler) const
{
    FileManagerTools::createPath(StickFiles::caravelFolder(m_volume));
    return files().move(m_folder, replaced(m_volume), &handler);
}

bool SaveOnStick::put(const QString &backup, FileOperationHandler &handler) const
{
    removeLeftovers(m_volume);
    const QString partial = incoming(m_volume);
    FileManagerTools::createPath(parentOn(m_volume));
    FileManagerTools::createPath(StickFiles::caravelFolder(m_volume));
    const bool done =
        files().copy(backup, partial, &handler) && files().move(partial, m_folder, &handler);
    if (!done)
        removeLeftovers(m_volume);
    files().flush(parentOn(m_volume));
    return done;
}
