#pragma once

#include "platform/volumes/VolumeIdentity.h"
#include "sync/CVSyncModuleDelegate.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class CVSyncManager;
class CVSyncModule;

/// What one run or estimate works on, fixed at its start: the volume, which file system that was,
/// and the modules. It lives on the thread of the run and is its modules' delegate, so that a stick
/// that comes or goes meanwhile never changes where they write.
class SyncRun : public CVSyncModuleDelegate
{
public:
    SyncRun(CVSyncManager &manager, QString volume);
    ~SyncRun() override;

    std::vector<std::unique_ptr<CVSyncModule>> modules;
    quint64 estimateTotal = 0; ///< bytes of everything selected

    QString pspVolume() const override { return m_volume; }
    bool pspVolumeIsPresent() override;
    bool pspVolumeTellsCaseApart() const override { return m_tellsCaseApart; }
    bool syncModuleShouldCancel() override;
    void syncModuleWillProcessItem(const CVSyncItem &item) override;
    void syncModuleDidCopyBytes(quint64 count) override;
    void syncModuleDidProcessItem(const CVSyncItem &item) override;
    void syncModuleError(const FileError &error) override;

    /// Finds out how the stick compares names, by a folder that is known to lie on it.
    void learnHowNamesCompare();

private:
    CVSyncManager &m_manager;
    const QString m_volume;
    const std::optional<VolumeIdentity> m_identity;
    bool m_saidGone = false;
    bool m_tellsCaseApart = true;
};
