#include "platform/files/FileError.h"

#include "platform/core/own/Posix.h"

#include <cerrno>

FileError FileError::of(Operation operation, const QString &path, int number)
{
    return {operation, path, number, number == 0 ? QString() : Posix::reason(number)};
}

bool FileError::isMissing() const
{
    return number == ENOENT || number == ENOTDIR;
}

QString FileError::what() const
{
    switch (operation) {
    case Operation::Copy:
        return QStringLiteral("Couldn't copy");
    case Operation::Create:
        return QStringLiteral("Couldn't create");
    case Operation::Write:
        return QStringLiteral("Couldn't write");
    case Operation::Read:
        return QStringLiteral("Couldn't read");
    case Operation::Move:
        return QStringLiteral("Couldn't move");
    case Operation::Remove:
        return QStringLiteral("Couldn't remove");
    case Operation::FollowLink:
        return QStringLiteral("Won't follow a link off the stick");
    case Operation::Parse:
        return QStringLiteral("Couldn't understand");
    case Operation::Lock:
        return QStringLiteral("Couldn't lock");
    }
    return {};
}

QString FileError::description() const
{
    const QString where = what() + QStringLiteral(": ") + path;
    return text.isEmpty() ? where : QStringLiteral("%1 (%2)").arg(where, text);
}
