// Preloaded into a program, makes one of its calls on files fail, or kills it there. Only what lies
// below CARAVEL_FAULT_ROOT counts. CARAVEL_FAULT is "CALLS:N:WHAT": CALLS a call's name or "all", N
// from 1 (0: none), WHAT one of
//   kill    SIGKILL instead of the call
//   5       that errno instead of the call (a close closes all the same)
//   5+      the same, and so on for every later one
//   short   the call moves one byte where it could move more; every later one too
//   EINTR+  as a number, interrupted each second time
// Written to CARAVEL_FAULT_REPORT in the end: the number of calls, and the inodes of the files that
// were written and not flushed since.

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <mutex>
#include <set>
#include <string>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::string variable(const char *name)
{
    const char *value = std::getenv(name);
    return value ? value : "";
}

class Faults
{
public:
    Faults()
    {
        const std::string plan = variable("CARAVEL_FAULT");
        const size_t first = plan.find(':');
        const size_t second = plan.find(':', first + 1);
        if (m_root.empty() || second == std::string::npos)
            return;
        m_calls = plan.substr(0, first);
        m_at = std::atol(plan.c_str() + first + 1);
        const std::string what = plan.substr(second + 1);
        m_kills = what == "kill";
        m_isShort = what == "short";
        m_error = what.rfind("EINTR", 0) == 0 ? EINTR : std::atoi(what.c_str());
        m_goesOn = !what.empty() && what.back() == '+';
    }
    ~Faults()
    {
        const std::string report = variable("CARAVEL_FAULT_REPORT");
        if (FILE *file = report.empty() ? nullptr : std::fopen(report.c_str(), "w")) {
            std::fprintf(file, "%ld\n", m_count.load());
            for (const ino_t inode : m_unflushed)
                std::fprintf(file, "%lu\n", static_cast<unsigned long>(inode));
            std::fclose(file);
        }
    }

    bool isBelow(const char *path) const
    {
        return !m_root.empty() && path && std::strncmp(path, m_root.c_str(), m_root.size()) == 0;
    }
    bool isWatched(int descriptor) const
    {
        return descriptor >= 0 && size_t(descriptor) < m_watched.size() &&
               m_watched[size_t(descriptor)];
    }
    void watch(int descriptor, bool on)
    {
        if (descriptor >= 0 && size_t(descriptor) < m_watched.size())
            m_watched[size_t(descriptor)] = on;
    }

    void written(int descriptor)
    {
        const std::scoped_lock lock(m_mutex);
        m_unflushed.insert(inodeOf(descriptor));
    }
    void flushed(int descriptor, bool andAllOthers)
    {
        const std::scoped_lock lock(m_mutex);
        if (andAllOthers)
            m_unflushed.clear();
        m_unflushed.erase(inodeOf(descriptor));
    }

    /// Counts a call; true with errno set where it is to fail.
    bool fails(const char *call)
    {
        if (!isMeant(call))
            return false;
        const long number = ++m_count;
        if (m_at == 0 || m_isShort || number < m_at || (number > m_at && !m_goesOn))
            return false;
        if (m_kills)
            std::raise(SIGKILL);
        if (m_error == EINTR && (number - m_at) % 2 == 1)
            return false;
        errno = m_error;
        return true;
    }
    /// How much of a count a call that has been counted moves.
    size_t shortened(const char *call, size_t count) const
    {
        return m_isShort && isMeant(call) && m_count >= m_at && count > 1 ? (count + 1) / 2 : count;
    }

private:
    static ino_t inodeOf(int descriptor)
    {
        struct stat status = {};
        ::fstat(descriptor, &status);
        return status.st_ino;
    }
    bool isMeant(const char *call) const { return m_calls == "all" || m_calls == call; }

    const std::string m_root = variable("CARAVEL_FAULT_ROOT");
    std::string m_calls;
    long m_at = 0;
    int m_error = 0;
    bool m_kills = false;
    bool m_isShort = false;
    bool m_goesOn = false;
    std::atomic<long> m_count = 0;
    std::array<std::atomic<bool>, 1024> m_watched{};
    std::mutex m_mutex;
    std::set<ino_t> m_unflushed;
};

Faults &faults()
{
    static Faults all;
    return all;
}

// From the start: the report is due even where nothing is called.
[[maybe_unused]] const Faults &started = faults();

template <typename Function>
Function real(const char *name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

bool isMeant(int folder, const char *path)
{
    return path && (path[0] == '/' ? faults().isBelow(path) : faults().isWatched(folder));
}

int opened(int folder, const char *path, int flags, mode_t mode)
{
    static const auto next = real<int (*)(int, const char *, int, ...)>("openat64");
    const bool meant = isMeant(folder, path);
    if (meant && faults().fails("open"))
        return -1;
    const int descriptor = next(folder, path, flags, mode);
    faults().watch(descriptor, meant);
    return descriptor;
}

mode_t modeOf(int flags, va_list arguments)
{
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? static_cast<mode_t>(va_arg(arguments, int)) : 0;
}

} // namespace

#define OPEN(NAME)                                                                                 \
    extern "C" int NAME(const char *path, int flags, ...)                                          \
    {                                                                                              \
        va_list arguments;                                                                         \
        va_start(arguments, flags);                                                                \
        const mode_t mode = modeOf(flags, arguments);                                              \
        va_end(arguments);                                                                         \
        return opened(AT_FDCWD, path, flags, mode);                                                \
    }
OPEN(open)
OPEN(open64)

#define OPENAT(NAME)                                                                               \
    extern "C" int NAME(int folder, const char *path, int flags, ...)                              \
    {                                                                                              \
        va_list arguments;                                                                         \
        va_start(arguments, flags);                                                                \
        const mode_t mode = modeOf(flags, arguments);                                              \
        va_end(arguments);                                                                         \
        return opened(folder, path, flags, mode);                                                  \
    }
OPENAT(openat)
OPENAT(openat64)

extern "C" int close(int descriptor)
{
    static const auto next = real<int (*)(int)>("close");
    const bool meant = faults().isWatched(descriptor);
    faults().watch(descriptor, false);
    const bool fails = meant && faults().fails("close");
    const int error = errno;
    const int result = next(descriptor);
    if (fails)
        errno = error;
    return fails ? -1 : result;
}

extern "C" ssize_t read(int descriptor, void *buffer, size_t count)
{
    static const auto next = real<ssize_t (*)(int, void *, size_t)>("read");
    if (!faults().isWatched(descriptor))
        return next(descriptor, buffer, count);
    if (faults().fails("read"))
        return -1;
    return next(descriptor, buffer, faults().shortened("read", count));
}

extern "C" ssize_t write(int descriptor, const void *buffer, size_t count)
{
    static const auto next = real<ssize_t (*)(int, const void *, size_t)>("write");
    if (!faults().isWatched(descriptor))
        return next(descriptor, buffer, count);
    if (faults().fails("write"))
        return -1;
    faults().written(descriptor);
    return next(descriptor, buffer, faults().shortened("write", count));
}

namespace {

ssize_t sent(int to, int from, off64_t *offset, size_t count)
{
    static const auto next = real<ssize_t (*)(int, int, off64_t *, size_t)>("sendfile64");
    if (!faults().isWatched(to))
        return next(to, from, offset, count);
    if (faults().fails("write"))
        return -1;
    faults().written(to);
    return next(to, from, offset, faults().shortened("write", count));
}

} // namespace

extern "C" ssize_t sendfile(int to, int from, off_t *offset, size_t count)
{
    return sent(to, from, offset, count);
}

extern "C" ssize_t sendfile64(int to, int from, off64_t *offset, size_t count)
{
    return sent(to, from, offset, count);
}

#define ON_PATH(NAME, CALL, PARAMETERS, ARGUMENTS, FOLDER, PATH)                                   \
    extern "C" int NAME PARAMETERS                                                                 \
    {                                                                                              \
        static const auto next = real<int(*) PARAMETERS>(#NAME);                                   \
        return isMeant(FOLDER, PATH) && faults().fails(CALL) ? -1 : next ARGUMENTS;                \
    }
ON_PATH(rename, "rename", (const char *from, const char *to), (from, to), AT_FDCWD, to)
ON_PATH(renameat2, "rename", (int a, const char *from, int b, const char *to, unsigned flags),
        (a, from, b, to, flags), b, to)
ON_PATH(mkdir, "mkdir", (const char *path, mode_t mode), (path, mode), AT_FDCWD, path)
ON_PATH(mkdirat, "mkdir", (int folder, const char *path, mode_t mode), (folder, path, mode), folder,
        path)
ON_PATH(unlink, "unlink", (const char *path), (path), AT_FDCWD, path)
ON_PATH(rmdir, "unlink", (const char *path), (path), AT_FDCWD, path)
ON_PATH(unlinkat, "unlink", (int folder, const char *path, int flags), (folder, path, flags),
        folder, path)

namespace {

int duplicated(int result, int descriptor, int command)
{
    if (command == F_DUPFD_CLOEXEC && result >= 0)
        faults().watch(result, faults().isWatched(descriptor));
    return result;
}

} // namespace

#define FCNTL(NAME)                                                                                \
    extern "C" int NAME(int descriptor, int command, ...)                                          \
    {                                                                                              \
        static const auto next = real<int (*)(int, int, ...)>(#NAME);                              \
        va_list arguments;                                                                         \
        va_start(arguments, command);                                                              \
        void *argument = va_arg(arguments, void *);                                                \
        va_end(arguments);                                                                         \
        return duplicated(next(descriptor, command, argument), descriptor, command);               \
    }
FCNTL(fcntl)
FCNTL(fcntl64)

#define ON_DESCRIPTOR(NAME, ALL)                                                                   \
    extern "C" int NAME(int descriptor)                                                            \
    {                                                                                              \
        static const auto next = real<int (*)(int)>(#NAME);                                        \
        if (faults().isWatched(descriptor) && faults().fails("fsync"))                             \
            return -1;                                                                             \
        faults().flushed(descriptor, ALL);                                                         \
        return next(descriptor);                                                                   \
    }
ON_DESCRIPTOR(fsync, false)
ON_DESCRIPTOR(fdatasync, false)
ON_DESCRIPTOR(syncfs, true)
