#include "modules/bookmarks/CVSyncBookmarks.h"

#include "modules/bookmarks/own/BrowserProfiles.h"
#include "platform/core/Localized.h"
#include "sync/Log.h"
#include "sync/ModuleSelection.h"
#include "util/Folders.h"
#include "util/StringTools.h"

namespace {

using Settings::BookmarkBrowser;

QString progressText(BookmarkBrowser browser)
{
    switch (browser) {
    case BookmarkBrowser::Safari:
        return localized("Syncing Safari Bookmarks...");
    case BookmarkBrowser::Firefox:
    case BookmarkBrowser::Places:
        return localized("Syncing Firefox Bookmarks...");
    case BookmarkBrowser::OmniWeb:
        return localized("Syncing OmniWeb Bookmarks...");
    case BookmarkBrowser::Camino:
        return localized("Syncing Camino Bookmarks...");
    case BookmarkBrowser::Chromium:
        return localized("Syncing Chromium Bookmarks...");
    }
    return {};
}

constexpr char header[] =
    "<!--Ver.01-->\n"
    "<!DOCTYPE Bookmark-file-1>\n"
    "<!-- This is an automatically generated file.\n"
    "    It will be read and overwritten.\n"
    "    Do Not Edit! -->\n"
    "<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=UTF-8\">\n"
    "<TITLE>Bookmarks</TITLE>\n"
    "<H1>Bookmarks</H1>\n"
    "<DL><p>\n";

// The PSP's browser takes both texts as they are, without escapes.
QByteArray lineFor(const Bookmark &bookmark)
{
    return "\t<DT><A HREF=\"" + bookmark.address.toUtf8() +
           "\" ADD_DATE=\"0\" LAST_VISIT=\"0\" LAST_MODIFIED=\"0\" LAST_CHARSET=\"UTF-8\">" +
           bookmark.title.toUtf8() + "</A>\n";
}

} // namespace

CVSyncBookmarks::CVSyncBookmarks(const QString &volume)
    : CVSyncModule(volume, saveName())
{
}

ModuleKind CVSyncBookmarks::kind()
{
    return {.saveName = saveName(),
            .make = [](const QString &volume) { return std::make_unique<CVSyncBookmarks>(volume); },
            .takesPart = [] { return Settings::firmwareVersion() > 0; },
            .setSelectedIdentifiers = setSelectedIdentifiers};
}

QString CVSyncBookmarks::saveName()
{
    return QStringLiteral("Bookmarks");
}

CVSyncBookmarks::FolderList CVSyncBookmarks::availableIdentifiers(const ShouldStop &shouldStop)
{
    return foldersOf(Settings::bookmarkSource(), shouldStop);
}

CVSyncBookmarks::FolderList CVSyncBookmarks::foldersOf(BookmarkBrowser browser,
                                                       const ShouldStop &shouldStop)
{
    switch (browser) {
    case BookmarkBrowser::Safari:
        return readSafariBookmarks();
    case BookmarkBrowser::Firefox:
        return parseFirefoxBookmarks();
    case BookmarkBrowser::OmniWeb:
        return parseOmniWebBookmarks();
    case BookmarkBrowser::Camino:
        return parseCaminoBookmarks();
    case BookmarkBrowser::Places:
        return readFirefoxDatabase(shouldStop);
    case BookmarkBrowser::Chromium:
        return readChromiumBookmarks();
    }
    return std::vector<BookmarkFolder>();
}

QString CVSyncBookmarks::placeOf(BookmarkBrowser browser)
{
    const auto inSupport = [](const char *path) {
        return StringTools::expandingTilde(QStringLiteral("~/Library/Application Support/") +
                                           QString::fromLatin1(path));
    };
    switch (browser) {
    case BookmarkBrowser::Safari:
        return StringTools::expandingTilde(QStringLiteral("~/Library/Safari/Bookmarks.plist"));
    case BookmarkBrowser::Firefox:
        return StringTools::appendingPathComponent(
            defaultFirefoxProfile().valueOr(inSupport("Firefox")),
            QStringLiteral("bookmarks.html"));
    case BookmarkBrowser::OmniWeb:
        return inSupport("OmniWeb 5/Bookmarks.html");
    case BookmarkBrowser::Camino:
        return inSupport("Camino/bookmarks.plist");
    case BookmarkBrowser::Places:
        return BrowserProfiles::firefoxDatabase();
    case BookmarkBrowser::Chromium:
        return BrowserProfiles::chromiumFile();
    }
    return {};
}

std::optional<QStringList> CVSyncBookmarks::selectedIdentifiersForPSP(const QString &volume)
{
    return ModuleSelection::read(saveName(), volume);
}

void CVSyncBookmarks::setSelectedIdentifiers(const QStringList &identifiers, const QString &forPSP)
{
    ModuleSelection::store(identifiers, saveName(), forPSP);
}

QString CVSyncBookmarks::moduleName() const
{
    return localized("Bookmarks");
}

QString CVSyncBookmarks::rootSyncFolder() const
{
    return pspVolume() + QStringLiteral("/PSP/SYSTEM/BROWSER");
}

bool CVSyncBookmarks::shouldClearUnsyncedFiles() const
{
    return false;
}

std::vector<CVSyncItem> CVSyncBookmarks::itemsToSync()
{
    const QString name = QStringLiteral("/bookmarks.html");
    const QString staged = Folders::support() + name;
    const BookmarkBrowser browser = Settings::bookmarkSource();
    const FolderList folders = foldersOf(browser, shouldStopQuestion());
    if (shouldStop())
        return {};
    if (!folders && isAnythingSelected())
        noteUnreadableLibrary(folders.error());
    const QByteArray lines = bookmarkLines(folders);
    const auto written = files().writeAtomically(staged, header + lines + "</DL><p>");
    if (!written)
        qCWarning(lcModules).noquote().nospace()
            << "Can't write " << staged << ": " << written.error().text;
    if (lines.isEmpty())
        return {};
    return {CVSyncItem(staged, rootSyncFolder() + name, progressText(browser))};
}

QByteArray CVSyncBookmarks::bookmarkLines(const FolderList &folders) const
{
    QByteArray lines;
    if (Settings::syncContacts())
        lines += lineFor({QStringLiteral("Caravel Contacts"),
                          QStringLiteral("file:///Caravel/Contacts/index.html")});
    for (const BookmarkFolder &folder : folders.valueOr({})) {
        if (!folder.title || !isSelected(*folder.title))
            continue;
        for (const Bookmark &bookmark : folder.bookmarks)
            lines += lineFor(bookmark);
    }
    return lines;
}
