#include "sync/ErrorInfo.h"

namespace {

const QString errorKey = QStringLiteral("Error");
const QString pathKey = QStringLiteral("Path");
const QString reasonKey = QStringLiteral("Reason");
const QString operationKey = QStringLiteral("Operation");

} // namespace

ErrorInfo errorInfo(const FileError &error)
{
    ErrorInfo info{{errorKey, error.what()},
                   {pathKey, error.path},
                   {operationKey, static_cast<int>(error.operation)}};
    if (!error.text.isEmpty())
        info.insert(reasonKey, error.text);
    return info;
}

FileError fileError(const ErrorInfo &info)
{
    return {static_cast<FileError::Operation>(info.value(operationKey).toInt()),
            info.value(pathKey).toString(), 0, info.value(reasonKey).toString()};
}
