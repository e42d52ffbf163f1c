#pragma once

#include "platform/files/FileError.h"

struct CVSyncItem;

/// Whom a run asks and tells while it handles a kind's items. Every call comes on the thread of the
/// run.
class CVSyncModuleDelegate
{
public:
    virtual ~CVSyncModuleDelegate() = default;

    /// Asked before each item and after each chunk copied; true ends the copying.
    virtual bool syncModuleShouldCancel() = 0;

    /// How far gathering the items has come, in the user's words; only where it takes long.
    virtual void syncModuleIsGathering(const QString &progress) = 0;
    virtual void syncModuleWillProcessItem(const CVSyncItem &item) = 0;
    /// Bytes of the chunk just copied, at most 1 MiB.
    virtual void syncModuleDidCopyBytes(quint64 count) = 0;
    virtual void syncModuleDidProcessItem(const CVSyncItem &item) = 0;
    /// A file operation failed; the run goes on.
    virtual void syncModuleError(const FileError &error) = 0;
};
