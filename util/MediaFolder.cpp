#include "util/MediaFolder.h"

#include "platform/files/OpenFile.h"
#include "util/FileManagerTools.h"
#include "util/Log.h"
#include "util/PathComponents.h"

#include <algorithm>
#include <cerrno>

namespace {

/// Why the folder can't be read; nothing where it can: it opens, but is no file.
std::optional<FileError> obstacleTo(const QString &folder)
{
    const auto opened = OpenFile::forReading(folder);
    return opened || opened.error().number == EISDIR ? std::nullopt : std::optional(opened.error());
}

} // namespace

FileResult<MediaFolder> MediaFolder::read(const QString &folder, Detail detail)
{
    MediaFolder found(folder, FileManagerTools::pathByResolvingAliasesInPath(folder));
    const FileManager &manager = FileManager::defaultManager();
    const FileStatus status = manager.status(found.m_path);
    if (!status.isFolder())
        return FileError::of(FileError::Operation::Read, folder,
                             status.exists() ? ENOTDIR : ENOENT);
    if (const auto obstacle = obstacleTo(found.m_path)) {
        qCWarning(lcUtil).noquote() << "Can't read the folder" << found.m_path;
        return *obstacle;
    }
    found.m_entries = detail == Detail::Sizes ? manager.subpathsWithSizes(found.m_path)
                                              : manager.subpaths(found.m_path);
    found.sortOut();
    return found;
}

void MediaFolder::sortOut()
{
    std::vector<bool> isHidden(m_entries.size());
    std::vector<bool> isEmpty(m_entries.size(), true);
    for (size_t i = 0; i < m_entries.size(); ++i) {
        const FolderEntry &entry = m_entries[i];
        isHidden[i] = entry.path[entry.path.lastIndexOf(u'/') + 1] == u'.';
        if (entry.parent >= 0) {
            const auto parent = static_cast<size_t>(entry.parent);
            isHidden[i] = isHidden[i] || isHidden[parent];
            isEmpty[parent] = false;
        }
        if (!isHidden[i] && !entry.isFolder)
            m_files.push_back(&entry);
    }
    for (size_t i = 0; i < m_entries.size(); ++i) {
        if (m_entries[i].isFolder && isEmpty[i] && !isHidden[i])
            m_empty.append(m_entries[i].path);
    }
}

QString MediaFolder::nameOf(int folder) const
{
    return folder < 0 ? PathComponents::lastOf(m_given)
                      : m_entries[static_cast<size_t>(folder)].path;
}

std::optional<FileError> MediaFolder::unreadableAmong(const QSet<QString> &names) const
{
    for (const QString &folder : m_empty) {
        const auto isInside = [&](const QString &name) {
            return (name + u'/').startsWith(folder + u'/');
        };
        if (!std::ranges::any_of(names, isInside))
            continue;
        if (auto obstacle = obstacleTo(m_path + u'/' + folder))
            return obstacle;
    }
    return std::nullopt;
}
