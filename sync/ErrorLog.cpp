#include "sync/ErrorLog.h"

#include "sync/Log.h"

bool ErrorLog::fileManagerCopiedBytes(quint64, const QString &)
{
    return false;
}

bool ErrorLog::fileManagerShouldProceedAfterError(const FileError &error)
{
    qCWarning(lcModules).noquote() << error.what() << error.path << error.text;
    return true;
}
