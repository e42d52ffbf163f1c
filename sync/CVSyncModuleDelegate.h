#pragma once

#include "platform/files/FileManager.h"

#include <QString>

struct CVSyncItem;

/// Whom a module asks and tells. Every call comes on the thread that runs the module.
class CVSyncModuleDelegate
{
public:
    virtual ~CVSyncModuleDelegate() = default;

    /// Mount path of the stick that the module works for; the same throughout the module's life.
    virtual QString pspVolume() const = 0;

    /// Whether that very stick still lies at its path. A module asks right before it writes or
    /// removes anything there, and leaves it when the answer is false.
    virtual bool pspVolumeIsPresent() = 0;

    /// Whether the path's letters' case tells names apart on the stick.
    virtual bool pspVolumeTellsCaseApart() const = 0;

    /// Asked before each item and after each chunk copied; true ends the module's copying.
    virtual bool syncModuleShouldCancel() = 0;

    virtual void syncModuleWillProcessItem(const CVSyncItem &item) = 0;
    /// Bytes of the chunk just copied, at most 1 MiB.
    virtual void syncModuleDidCopyBytes(quint64 count) = 0;
    virtual void syncModuleDidProcessItem(const CVSyncItem &item) = 0;
    /// A file operation of the module failed; the module goes on.
    virtual void syncModuleError(const FileError &error) = 0;
};
