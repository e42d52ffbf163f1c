#include "fuzz/Home.h"
#include "modules/bookmarks/CVSyncBookmarks.h"

#include <QSet>

namespace {

const QString support = QStringLiteral("Library/Application Support/");

void checkTitles(const CVSyncBookmarks::FolderList &folders)
{
    QSet<QString> titles;
    for (const BookmarkFolder &folder : folders.valueOr({})) {
        promise(folder.title && !titles.contains(*folder.title), "each title comes once");
        titles.insert(*folder.title);
    }
}

} // namespace

// The same bytes in the places of all browsers.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray input = bytesOf(data, size);
    const Home &home = Home::instance();
    home.write(support + QStringLiteral("Firefox/profiles.ini"), "[Profile0]\nPath=profile\n");
    home.write(support + QStringLiteral("Firefox/profile/bookmarks.html"), input);
    checkTitles(CVSyncBookmarks::parseFirefoxBookmarks());
    home.write(support + QStringLiteral("OmniWeb 5/Bookmarks.html"), input);
    checkTitles(CVSyncBookmarks::parseOmniWebBookmarks());
    home.write(support + QStringLiteral("Camino/bookmarks.plist"), input);
    checkTitles(CVSyncBookmarks::parseCaminoBookmarks());
    home.write(QStringLiteral("Library/Safari/Bookmarks.plist"), input);
    (void)CVSyncBookmarks::readSafariBookmarks();
    home.write(QStringLiteral(".config/chromium/Default/Bookmarks"), input);
    checkTitles(CVSyncBookmarks::readChromiumBookmarks());
    home.write(support + QStringLiteral("Firefox/profiles.ini"), input);
    (void)CVSyncBookmarks::defaultFirefoxProfile();
    return 0;
}
