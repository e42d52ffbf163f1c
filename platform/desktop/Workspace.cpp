#include "platform/desktop/Workspace.h"

#include "platform/core/Log.h"
#include "platform/core/own/Posix.h"
#include "platform/lists/Bundle.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

bool startDetached(const QString &program, const QStringList &arguments)
{
    if (QProcess::startDetached(program, arguments))
        return true;
    qCWarning(lcPlatform, "Can't start %s", qUtf8Printable(program));
    return false;
}

} // namespace

bool Workspace::openFile(const QString &path)
{
    const Bundle bundle(path);
    if (!bundle.exists())
        return startDetached(QStringLiteral("xdg-open"), {path});
    const QString executable = bundle.executable();
    if (!executable.isEmpty())
        return startDetached(executable, {});
    qCWarning(lcPlatform, "The bundle %s names no executable", qUtf8Printable(path));
    return false;
}

bool Workspace::recycle(const QString &path)
{
    // Qt makes the Trash but not the folder for it, and would fall back to another Trash.
    QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    QFile file(path);
    if (file.moveToTrash())
        return true;
    qCWarning(lcPlatform, "Can't move %s to the Trash: %s", qUtf8Printable(path),
              qUtf8Printable(file.errorString()));
    return false;
}

void Workspace::noteFileSystemChanged(const QString &path)
{
    // File managers watch folders with inotify; a new modification time makes them look again.
    const auto folder =
        Posix::openFolder(AT_FDCWD, Posix::native(path).constData(), Posix::Links::Follow);
    if (folder)
        ::futimens(folder.get(), nullptr);
}
