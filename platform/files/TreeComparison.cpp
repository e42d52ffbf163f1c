#include "platform/files/FileManager.h"
#include "platform/files/own/Trees.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>

using Posix::Descriptor;
using Posix::Entry;
using Posix::EntryKind;
using Posix::Links;

namespace {

constexpr size_t compareBlock = 128U << 10;

class Comparer
{
public:
    explicit Comparer(const std::function<bool()> &shouldStop)
        : m_shouldStop(shouldStop)
    {
    }

    bool equal(const std::string &first, const std::string &second)
    {
        struct stat one;
        struct stat two;
        if (::lstat(first.c_str(), &one) != 0 || ::lstat(second.c_str(), &two) != 0)
            return false;
        const EntryKind kind = Posix::kindOf(one);
        if (kind != Posix::kindOf(two))
            return false;
        switch (kind) {
        case EntryKind::File:
            return one.st_size == two.st_size && filesEqual(first, second);
        case EntryKind::Folder:
            return foldersEqual(first, second);
        case EntryKind::Link:
            return linksEqual(first, second);
        default:
            return false;
        }
    }

private:
    static bool linksEqual(const std::string &first, const std::string &second)
    {
        const auto target = Trees::linkTarget(first);
        return target && target == Trees::linkTarget(second);
    }

    bool foldersEqual(const std::string &first, const std::string &second)
    {
        const auto one = Trees::entriesAt(first, Links::Refuse);
        const auto two = Trees::entriesAt(second, Links::Refuse);
        const auto same = [](const Entry &a, const Entry &b) {
            return a.name == b.name && a.kind == b.kind;
        };
        if (!one || !two || !std::ranges::equal(*one, *two, same))
            return false;
        return std::ranges::all_of(*one, [&](const Entry &entry) {
            return equal(first + '/' + entry.name, second + '/' + entry.name);
        });
    }

    bool filesEqual(const std::string &first, const std::string &second)
    {
        const Descriptor one(Posix::openRegularFile(first.c_str()));
        const Descriptor two(Posix::openRegularFile(second.c_str()));
        if (!one || !two)
            return false;
        m_blocks.resize(2 * compareBlock);
        char *const left = m_blocks.data();
        char *const right = left + compareBlock;
        for (;;) {
            if (m_shouldStop && m_shouldStop())
                return false;
            const ssize_t count = readBlock(one.get(), left);
            if (count < 0 || count != readBlock(two.get(), right))
                return false;
            if (std::memcmp(left, right, static_cast<size_t>(count)) != 0)
                return false;
            if (static_cast<size_t>(count) < compareBlock)
                return true;
        }
    }

    /// Fills the block as far as the file reaches; -1 where reading fails.
    static ssize_t readBlock(int file, char *block)
    {
        size_t filled = 0;
        while (filled < compareBlock) {
            const ssize_t count = Posix::retryInterrupted(
                [&] { return ::read(file, block + filled, compareBlock - filled); });
            if (count < 0)
                return -1;
            if (count == 0)
                break;
            filled += static_cast<size_t>(count);
        }
        return static_cast<ssize_t>(filled);
    }

    const std::function<bool()> &m_shouldStop;
    std::vector<char> m_blocks;
};

} // namespace

bool FileManager::contentsEqual(const QString &first, const QString &second,
                                const std::function<bool()> &shouldStop) const
{
    return Comparer(shouldStop).equal(Trees::nativeText(first), Trees::nativeText(second));
}
