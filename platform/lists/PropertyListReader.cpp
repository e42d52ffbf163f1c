#include "platform/lists/PropertyListReader.h"

#include "platform/core/own/Posix.h"
#include "platform/lists/own/PropertyListParts.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <optional>
#include <string_view>

using namespace PropertyListParts;

namespace PropertyListParts {

ssize_t readSome(int descriptor, void *buffer, std::size_t size)
{
    ssize_t count = 0;
    do
        count = ::read(descriptor, buffer, size);
    while (count < 0 && errno == EINTR);
    return count;
}

PropertyListError diskError()
{
    return {Posix::reason(errno), 0, true};
}

QString tooLongText(quint64 limit)
{
    return QStringLiteral("the file is longer than %1 bytes").arg(limit);
}

QString tooDeepText()
{
    return QStringLiteral("nested deeper than %1").arg(depthLimit);
}

} // namespace PropertyListParts

namespace {

/// Nothing where the file can't be read.
std::optional<bool> isBinary(int descriptor)
{
    constexpr std::string_view magic = "bplist0";
    char start[magic.size()];
    ssize_t count = 0;
    do
        count = ::pread(descriptor, start, sizeof start, 0);
    while (count < 0 && errno == EINTR);
    if (count < 0)
        return std::nullopt;
    return std::string_view(start, static_cast<size_t>(count)) == magic;
}

PropertyListError readOpenFile(int descriptor, quint64 limit, PropertyListHandler &handler)
{
    struct stat status;
    if (::fstat(descriptor, &status) != 0)
        return diskError();
    const auto size = static_cast<quint64>(status.st_size);
    if (size == 0)
        return PropertyListError{QStringLiteral("the file is empty")};
    if (size > limit)
        return PropertyListError{tooLongText(limit)};
    const std::optional<bool> binary = isBinary(descriptor);
    if (!binary)
        return diskError();
    if (*binary)
        return readBinary(descriptor, size, limit, handler);
    return readXml(descriptor, limit, handler);
}

} // namespace

QString PropertyListError::in(const QString &path) const
{
    const QString place = line > 0 ? path + u':' + QString::number(line) : path;
    return place + QStringLiteral(": ") + text;
}

bool readPropertyList(const QString &path, quint64 limit, PropertyListHandler &handler,
                      PropertyListError *error)
{
    PropertyListError problem;
    const Posix::Descriptor file(Posix::openRegularFile(Posix::native(path).constData()));
    const bool isMissing = !file && (errno == ENOENT || errno == ENOTDIR);
    if (file)
        problem = readOpenFile(file.get(), limit, handler);
    else if (!isMissing)
        problem = diskError();
    if (error)
        *error = problem;
    return file && !problem;
}
