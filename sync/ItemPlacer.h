#pragma once

#include "platform/files/FileManager.h"
#include "sync/CVSyncItem.h"
#include "util/FileManagerTools.h"

/// Puts a kind's items where they belong: the stick's editor does for most, and kinds that keep
/// what they bring on the computer have one of their own. On the thread of the run.
class ItemPlacer
{
public:
    virtual ~ItemPlacer() = default;

    /// Makes the folders that are missing on the way and copies the item; progress, cancel and
    /// errors go through the handler. Nothing that is there already is overwritten.
    virtual CopyOutcome place(const CVSyncItem &item, FileOperationHandler &handler) = 0;

    /// Removes what is kept for too long; once a run, when the stick is cleaned up.
    virtual void prune() {}
};
