#include "platform/files/own/HeldFiles.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <mutex>
#include <utility>

namespace {

constexpr size_t mostHeld = 64;

struct Held
{
    std::mutex mutex; // of what follows
    HeldFiles::Batch files;
};

Held &held()
{
    static auto *all = new Held; // never destroyed: workers may outlast the statics
    return *all;
}

bool freesAtOnce(const struct statfs &fileSystem)
{
    return fileSystem.f_type == MSDOS_SUPER_MAGIC || fileSystem.f_type == EXFAT_SUPER_MAGIC;
}

dev_t deviceOf(int descriptor)
{
    struct stat status;
    return ::fstat(descriptor, &status) == 0 ? status.st_dev : 0;
}

} // namespace

bool HeldFiles::areNeededIn(const std::string &folder)
{
    struct statfs fileSystem;
    return ::statfs(folder.c_str(), &fileSystem) == 0 && freesAtOnce(fileSystem);
}

bool HeldFiles::areNeededAt(int descriptor)
{
    struct statfs fileSystem;
    return ::fstatfs(descriptor, &fileSystem) == 0 && freesAtOnce(fileSystem);
}

void HeldFiles::hold(int at, const char *name)
{
    const int file = ::openat(at, name, O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
    if (file < 0)
        return;
    auto added = std::make_unique<Posix::Descriptor>(file);
    Batch full;
    {
        const std::scoped_lock lock(held().mutex);
        if (held().files.size() >= mostHeld)
            full = std::exchange(held().files, {});
        held().files.push_back(std::move(added));
    }
    flushOthers(full, -1);
}

HeldFiles::Batch HeldFiles::take()
{
    const std::scoped_lock lock(held().mutex);
    return std::exchange(held().files, {});
}

void HeldFiles::flushOthers(const Batch &batch, int flushed)
{
    dev_t last = flushed < 0 ? 0 : deviceOf(flushed);
    for (const auto &file : batch) {
        const dev_t device = deviceOf(file->get());
        // On failure the stick has gone, and there is nothing left to keep in order.
        if (std::exchange(last, device) != device)
            ::syncfs(file->get());
    }
}
