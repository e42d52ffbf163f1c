#include "sync/StickEditor.h"

#include "platform/desktop/Workspace.h"
#include "platform/files/FinderInfo.h"
#include "sync/StickFiles.h"
#include "util/PathComponents.h"

#include <cerrno>
#include <utility>

using Operation = FileError::Operation;

StickEditor::StickEditor(const QString &volume)
    : StickEditor(volume, VolumeIdentity::of(volume))
{
}

StickEditor::StickEditor(QString volume, std::optional<VolumeIdentity> identity)
    : m_volume(std::move(volume))
    , m_identity(identity)
{
}

bool StickEditor::isPresent()
{
    return (!m_isLost && m_identity && VolumeIdentity::of(m_volume) == m_identity) || lose();
}

bool StickEditor::lose()
{
    m_isLost = true;
    if (m_whenGone)
        m_whenGone();
    return false;
}

bool StickEditor::isLostBy(const FileError &error)
{
    if (!StickFiles::isOnVolume(error.path, m_volume) || error.number == 0)
        return false;
    if (!isPresent())
        return true;
    const auto space = files().volumeSpace(m_volume);
    if (error.number == ENODEV || error.number == EROFS || !space || space->isReadOnly ||
        (error.number == EIO && files().entries(m_volume).empty()))
        lose();
    return m_isLost;
}

// A link among the folders leads off the stick: what lies behind it is the user's own.
QString StickEditor::linkOnTheWayTo(const QString &path)
{
    return linkAtOrAbove(PathComponents::folderOf(path));
}

QString StickEditor::linkAtOrAbove(const QString &folder)
{
    if (!StickFiles::isOnVolume(folder, m_volume) || folder.size() == m_volume.size())
        return {};
    if (const auto known = m_links.constFind(folder); known != m_links.constEnd())
        return *known;
    const bool isLink = files().linkStatus(folder).kind == FileStatus::Kind::Link;
    const QString link = isLink ? folder : linkAtOrAbove(PathComponents::folderOf(folder));
    m_links.insert(folder, link);
    return link;
}

std::optional<FileError> StickEditor::obstacleTo(Operation operation, const QString &path)
{
    if (!isPresent())
        return FileError::of(operation, path, ENODEV);
    if (!StickFiles::isOnVolume(path, m_volume) || path.size() == m_volume.size())
        return FileError::of(operation, path, EXDEV);
    const QString link = linkOnTheWayTo(path);
    return link.isEmpty() ? std::nullopt
                          : std::optional(FileError::of(Operation::FollowLink, link, 0));
}

bool StickEditor::mayChange(Operation operation, const QString &path, FileOperationHandler *handler)
{
    const auto obstacle = obstacleTo(operation, path);
    if (obstacle && obstacle->number != ENODEV && handler)
        handler->fileManagerShouldProceedAfterError(*obstacle);
    m_isToFlush |= !obstacle;
    return !obstacle;
}

FileResult<> StickEditor::makeFolders(const QString &path)
{
    if (const FileStatus status = files().linkStatus(path); status.isFolder())
        return {};
    if (const auto obstacle = obstacleTo(Operation::Create, path))
        return *obstacle;
    const QString parent = PathComponents::folderOf(path);
    if (parent.size() > m_volume.size()) {
        if (const auto made = makeFolders(parent); !made)
            return made;
    }
    m_links.remove(path);
    m_isToFlush = true;
    return files().createFolder(path);
}

FileResult<> StickEditor::write(const QString &path, const QByteArray &contents)
{
    if (const auto obstacle = obstacleTo(Operation::Write, path))
        return *obstacle;
    const auto before = files().readFile(path, static_cast<quint64>(contents.size()));
    if (before && *before == contents)
        return {};
    if (const auto made = makeFolders(PathComponents::folderOf(path)); !made)
        return made;
    return files().writeAtomically(path, contents);
}

bool StickEditor::remove(const QString &path, FileOperationHandler *handler)
{
    return mayChange(Operation::Remove, path, handler) && files().remove(path, handler);
}

bool StickEditor::removeEmptyFolder(const QString &path, FileOperationHandler *handler)
{
    return mayChange(Operation::Remove, path, handler) && files().removeEmptyFolder(path, handler);
}

bool StickEditor::copyTree(const QString &source, const QString &destination,
                           FileOperationHandler &handler)
{
    return mayChange(Operation::Create, destination, &handler) &&
           files().copy(source, destination, &handler);
}

bool StickEditor::move(const QString &source, const QString &destination,
                       FileOperationHandler &handler)
{
    return mayChange(Operation::Move, source, &handler) &&
           mayChange(Operation::Create, destination, &handler) &&
           files().move(source, destination, &handler);
}

CopyOutcome StickEditor::place(const CVSyncItem &item, FileOperationHandler &handler)
{
    if (!mayChange(Operation::Create, item.destination, &handler))
        return {};
    const QString folder = PathComponents::folderOf(item.destination);
    // What is wrong with the folder is said of the file that can't be made in it.
    if (m_lastFolder != folder) {
        if (const auto made = makeFolders(folder); !made) {
            FileError error = made.error();
            error.path = item.destination;
            handler.fileManagerShouldProceedAfterError(error);
            return {};
        }
    }
    m_lastFolder = folder;
    const CopyOutcome outcome = FileManagerTools::copyPath(item.source, item.destination, handler);
    // Other systems keep a file's resource fork beside it under this name.
    const QString companion =
        folder + QStringLiteral("/._") + PathComponents::lastOf(item.destination);
    if (files().linkStatus(companion).exists())
        remove(companion, &handler);
    return outcome;
}

void StickEditor::setIcon(const QString &icon)
{
    const QString path = m_volume + QStringLiteral("/.VolumeIcon.icns");
    if (!isPresent())
        return;
    if (files().linkStatus(path).exists()) {
        if (files().contentsEqual(icon, path))
            return;
        files().remove(path, nullptr);
    }
    m_isToFlush = true;
    files().copy(icon, path, nullptr);
    FinderInfo::setCustomIconFlag(m_volume);
    Workspace::noteFileSystemChanged(m_volume);
}

FileResult<> StickEditor::flush()
{
    if (std::exchange(m_isToFlush, false))
        return files().flush(m_volume);
    return {};
}
