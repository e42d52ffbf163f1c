#pragma once

#include "modules/bookmarks/BookmarkSource.h"
#include "sync/ModuleKind.h"
#include "util/Settings.h"

#include <functional>
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

    using FolderList = FileResult<std::vector<BookmarkFolder>>;
    /// Asked between steps that can be felt; true ends the reading with an error. May be none.
    using ShouldStop = std::function<bool()>;

    /// The top-level folders of the browser that "bookmarkSource" names, in its file's order; none
    /// for another number. A folder is identified by its title. An error, which is in the system
    /// log unless nothing is there, where its file can't be read. Any thread, as the readers below.
    static FolderList availableIdentifiers(const ShouldStop &shouldStop = nullptr);
    /// Those of one browser.
    static FolderList foldersOf(Settings::BookmarkBrowser browser,
                                const ShouldStop &shouldStop = nullptr);
    /// The browser's file, whether or not it is there; empty where nothing leads to one.
    static QString placeOf(Settings::BookmarkBrowser browser);
    static std::optional<QStringList> selectedIdentifiersForPSP(const QString &volume);
    static void setSelectedIdentifiers(const QStringList &identifiers, const QString &forPSP);

    QString moduleName() const override;
    QString rootSyncFolder() const override;
    bool shouldClearUnsyncedFiles() const override;

    /// Writes the file to the support folder, each time; the one item places it. None where the
    /// file would hold no bookmark, so that the PSP's own stays.
    std::vector<CVSyncItem> itemsToSync() override;

    // The readers of the browsers' own files; errors are as above.

    /// Safari's top-level folders, folders of the same title included. A folder's bookmarks are its
    /// own and those of the folders right inside it.
    static FolderList readSafariBookmarks();
    /// Camino's top-level entries as folders, each with its own bookmarks and those of the folders
    /// right inside it; an entry without a title is passed over.
    static FolderList parseCaminoBookmarks();
    /// The folders of the default profile's "bookmarks.html". Only headings indented by four blanks
    /// are folders; bookmarks below other headings go to the last such folder.
    static FolderList parseFirefoxBookmarks();
    /// A folder without a title has no bookmarks.
    static FolderList parseOmniWebBookmarks();
    /// Each folder of today's Firefox that holds bookmarks, by its path, which begins with the name
    /// of the menu, the toolbar or the like. The browser may be running meanwhile.
    static FolderList readFirefoxDatabase(const ShouldStop &shouldStop = nullptr);
    /// The same of Chromium and its kin.
    static FolderList readChromiumBookmarks();
    /// The folder of Firefox's first profile, absolute; missing where "profiles.ini" names none.
    static FileResult<QString> defaultFirefoxProfile();

private:
    qint64 source() const override { return static_cast<qint64>(Settings::bookmarkSource()); }
    QByteArray bookmarkLines(const FolderList &folders) const;
};
