#pragma once

#include "modules/bookmarks/BookmarkSource.h"
#include "sync/ModuleKind.h"

#include <optional>
#include <vector>

/// Writes the PSP browser's bookmark file from the chosen top-level folders of one browser's
/// bookmarks ("bookmarkSource"), as one flat list. The other files of the browser's folder stay.
class CVSyncBookmarks : public CVSyncModule
{
public:
    explicit CVSyncBookmarks(const QString &volume);

    /// As the catalogue of kinds has it.
    static ModuleKind kind();
    static QString saveName();

    /// The top-level folders of the browser that "bookmarkSource" names, in its file's order; none
    /// for another number. A folder is identified by its title. Any thread.
    static std::vector<BookmarkFolder> availableIdentifiers();
    static std::optional<QStringList> selectedIdentifiersForPSP(const QString &volume);
    static void setSelectedIdentifiers(const QStringList &identifiers, const QString &forPSP);

    QString moduleName() const override;
    QString rootSyncFolder() const override;
    bool shouldClearUnsyncedFiles() const override;

    /// Writes the file to the support folder, each time; the one item places it. None where the
    /// file would hold no bookmark, so that the PSP's own stays.
    std::vector<CVSyncItem> itemsToSync() override;

private:
    QByteArray bookmarkLines() const;
};
