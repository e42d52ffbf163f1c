#pragma once

#include "support/SyncHarness.h"
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
        QString name = u"Test"_s;
        std::optional<FileError> unreadable = {}; ///< the library
        qint64 source = 0;
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
    std::vector<CVSyncItem> itemsToSync() override
    {
        if (m_wishes.unreadable)
            noteUnreadableLibrary(*m_wishes.unreadable);
        return m_wishes.items();
    }

private:
    qint64 source() const override { return m_wishes.source; }
    const Wishes &m_wishes;
};

/// A kind that wants files of a folder of sources, and what lies in its folder on the stick.
class ListHarness : public SyncHarness
{
public:
    TemporaryFolder sources;
    QStringList wanted; ///< names below the sources and below the kind's folder
    ListModule::Wishes wishes{[this] {
                                  std::vector<CVSyncItem> items;
                                  for (const QString &name : wanted)
                                      items.emplace_back(sources / name, place(name), name);
                                  return items;
                              },
                              u"/PSP/MUSIC"_s, true, u"Music"_s};

    ListHarness()
        : SyncHarness({ListModule::kind(u"Music"_s, wishes)})
    {
    }
    void want(const QString &name, const QByteArray &contents)
    {
        writeFile(sources / name, contents);
        wanted.append(name);
    }
    /// On the stick.
    QString place(const QString &name) const { return stick(u"PSP/MUSIC/"_s + name); }
    void put(const QString &name, const QByteArray &contents = "x") const
    {
        writeFile(place(name), contents);
    }
    std::string placed() const { return tree(u"PSP/MUSIC"_s); }
};
