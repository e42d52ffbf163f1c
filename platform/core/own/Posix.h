#pragma once

#include <QByteArray>
#include <QString>

#include <cerrno>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

struct stat;

/// POSIX calls with their bookkeeping, for the rooms of the platform.
namespace Posix {

/// Of what is made anew, less the umask.
inline constexpr mode_t newFileMode = 0644;
inline constexpr mode_t newFolderMode = 0755;

/// Calls again as long as a signal interrupts.
template <typename Operation>
auto retryInterrupted(Operation operation)
{
    auto result = operation();
    while (result < 0 && errno == EINTR)
        result = operation();
    return result;
}

/// The path as the system takes it: UTF-8 whatever the locale. Empty, and so reaching nothing, for
/// a path with a NUL character in it.
QByteArray native(const QString &path);

/// The system's own text for an errno value. Any thread.
QString reason(int error);

/// Owns an open descriptor.
class Descriptor
{
public:
    explicit Descriptor(int descriptor = -1)
        : m_descriptor(descriptor)
    {
    }
    ~Descriptor();
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    explicit operator bool() const { return m_descriptor >= 0; }
    int get() const { return m_descriptor; }

    /// Gives the descriptor away.
    int release();

private:
    int m_descriptor;
};

/// Opens a regular file for reading without ever waiting for a pipe's other end; -1 and errno for
/// anything else.
int openRegularFile(const char *path);

enum class EntryKind { File, Folder, Link, Special, Unknown };

EntryKind kindOf(const struct stat &status);

/// One name of a folder, in the file system's bytes.
struct Entry
{
    std::string name;
    EntryKind kind = EntryKind::Unknown; ///< Unknown where the entry vanished meanwhile
    std::uint64_t size = 0;              ///< bytes, where sizes are read
    std::int64_t modified = 0;           ///< as FileStamp has it, where sizes are read
};

/// Nanoseconds since 1970 began in UTC.
std::int64_t modifiedTime(const struct stat &status);

/// Sizes cost a stat call for each entry.
enum class Sizes { Skip, Read };

/// The entries of an open folder in byte order of names; nothing and errno where it can't be read.
/// Takes the descriptor over.
std::optional<std::vector<Entry>> entriesOf(Descriptor folder, Sizes sizes = Sizes::Skip);

enum class Links { Follow, Refuse };

/// Opens a folder for listing, by path or relative to an open one; invalid and errno where it is
/// none.
Descriptor openFolder(int at, const char *path, Links links);

/// A rename that replaces nothing, also where the file system doesn't know how to promise that.
/// False and errno where it failed.
bool renameExclusively(const char *source, const char *destination);

} // namespace Posix
