#include "platform/files/own/Trees.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>

std::string Trees::nativeText(const QString &path)
{
    return Posix::native(path).toStdString();
}

std::optional<std::string> Trees::linkTarget(const std::string &path)
{
    std::array<char, 4096> target;
    const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
    if (length < 0)
        return std::nullopt;
    return std::string(target.data(), static_cast<size_t>(length));
}

std::optional<std::vector<Posix::Entry>> Trees::entriesAt(const std::string &folder,
                                                          Posix::Links links, Posix::Sizes sizes)
{
    return Posix::entriesOf(Posix::openFolder(AT_FDCWD, folder.c_str(), links), sizes);
}
