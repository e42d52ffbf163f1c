#pragma once

#include "platform/files/FileManager.h"

/// For operations on files that nobody watches: errors go to the system log, and the operation goes
/// on.
class ErrorLog : public FileOperationHandler
{
public:
    bool fileManagerCopiedBytes(quint64 bytes, const QString &toPath) override;
    bool fileManagerShouldProceedAfterError(const FileError &error) override;
};
