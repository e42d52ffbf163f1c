#include "platform/core/Log.h"
#include "platform/files/FileManager.h"
#include "platform/files/own/Trees.h"

#include <cerrno>

using Posix::Entry;
using Posix::EntryKind;
using Posix::Links;
using Trees::nativeText;

namespace {

class Lister
{
public:
    enum class Depth { Whole, Top };

    Lister(std::string top, Depth depth, Posix::Sizes sizes = Posix::Sizes::Skip)
        : m_top(std::move(top))
        , m_depth(depth)
        , m_sizes(sizes)
    {
    }

    std::vector<FolderEntry> list()
    {
        listFolder(m_top, QString(), -1, Links::Follow);
        return std::move(m_found);
    }

private:
    void listFolder(const std::string &folder, const QString &prefix, int parent, Links links)
    {
        const auto entries = Trees::entriesAt(folder, links, m_sizes);
        if (!entries && parent < 0 && (errno == ENOENT || errno == ENOTDIR))
            return;
        if (!entries) {
            qCWarning(lcPlatform, "Can't read the folder %s: %s", folder.c_str(),
                      qPrintable(Posix::reason(errno)));
            return;
        }
        for (const Entry &entry : *entries)
            add(entry, folder, prefix, parent);
    }

    void add(const Entry &entry, const std::string &folder, const QString &prefix, int parent)
    {
        const QUtf8StringView name(entry.name.data(), qsizetype(entry.name.size()));
        if (!name.isValidUtf8()) {
            qCWarning(lcPlatform, "Leaving out %s/%s: its name is no valid UTF-8", folder.c_str(),
                      QByteArray::fromStdString(entry.name).toPercentEncoding(" ").constData());
            return;
        }
        const bool isFolder = entry.kind == EntryKind::Folder;
        const QString path = prefix + name.toString();
        m_found.push_back(
            {path, isFolder, parent, entry.kind == EntryKind::Link, entry.size, entry.modified});
        const int index = static_cast<int>(m_found.size()) - 1;
        if (isFolder && m_depth == Depth::Whole)
            listFolder(folder + '/' + entry.name, path + u'/', index, Links::Refuse);
    }

    const std::string m_top;
    const Depth m_depth;
    const Posix::Sizes m_sizes;
    std::vector<FolderEntry> m_found;
};

} // namespace

std::vector<FolderEntry> FileManager::subpaths(const QString &folder) const
{
    return Lister(nativeText(folder), Lister::Depth::Whole).list();
}

std::vector<FolderEntry> FileManager::subpathsWithSizes(const QString &folder) const
{
    return Lister(nativeText(folder), Lister::Depth::Whole, Posix::Sizes::Read).list();
}

std::vector<FolderEntry> FileManager::entries(const QString &folder) const
{
    return Lister(nativeText(folder), Lister::Depth::Top).list();
}
