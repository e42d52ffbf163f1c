#pragma once

#include "sync/ModuleKind.h"

#include <functional>
#include <memory>

/// A module whose wishes are a list that the test gives it.
class ListModule : public CVSyncModule
{
public:
    struct Wishes
    {
        std::function<std::vector<CVSyncItem>()> items;
        QString folder; ///< of the module, below the volume
        bool clears = true;
        QString name = QStringLiteral("Test");
    };

    ListModule(const QString &volume, const QString &saveName, const Wishes &wishes)
        : CVSyncModule(volume, saveName)
        , m_wishes(wishes)
    {
    }

    static ModuleKind kind(const QString &saveName, const Wishes &wishes)
    {
        return {.saveName = saveName, .make = [saveName, &wishes](const QString &volume) {
                    return std::make_unique<ListModule>(volume, saveName, wishes);
                }};
    }

    QString moduleName() const override { return m_wishes.name; }
    QString rootSyncFolder() const override { return pspVolume() + m_wishes.folder; }
    bool shouldClearUnsyncedFiles() const override { return m_wishes.clears; }
    std::vector<CVSyncItem> itemsToSync() override { return m_wishes.items(); }

private:
    const Wishes &m_wishes;
};
