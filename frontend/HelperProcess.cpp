#include "frontend/HelperProcess.h"

#include "platform/bus/NamedConnection.h"
#include "platform/core/Localized.h"
#include "protocol/Protocol.h"
#include "util/FileManagerTools.h"
#include "util/Folders.h"

#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>

Bundle HelperProcess::bundle()
{
    return Bundle(Bundle::main().path() + QStringLiteral("/Contents/Helpers/CaravelHelper"));
}

std::unique_ptr<RemoteObject> HelperProcess::remote()
{
    const QString connection = Protocol::helperConnection(Bundle::main().version());
    return std::make_unique<RemoteObject>(NamedConnection::busName(connection),
                                          Protocol::helperPath.toString(),
                                          Protocol::helperInterface.toString());
}

// A folder given relative to the one that it doesn't keep has to be spelled out.
bool HelperProcess::startDetached(const QString &executable)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString volumes = QStringLiteral("CARAVEL_VOLUMES");
    if (const QString folder = environment.value(volumes); !folder.isEmpty())
        environment.insert(volumes, QDir().absoluteFilePath(folder));
    QProcess process;
    process.setProgram(executable);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(QDir::rootPath());
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

bool HelperProcess::isText(const QString &text, const char *english)
{
    return isLocalizedForm(text, english,
                           bundle().resourcePath() + QStringLiteral("/translations"));
}

QString HelperProcess::startLock()
{
    FileManagerTools::createPath(Folders::support());
    return Folders::support() + QStringLiteral("/.starting");
}
