#include "fuzz/Home.h"
#include "modules/bookmarks/own/CaminoBookmarks.h"
#include "modules/bookmarks/own/FirefoxBookmarks.h"
#include "modules/bookmarks/own/OmniWebBookmarks.h"
#include "modules/bookmarks/own/SafariBookmarks.h"

#include <QSet>

namespace {

const QString support = QStringLiteral("Library/Application Support/");

void checkTitles(const std::vector<BookmarkFolder> &folders)
{
    QSet<QString> titles;
    for (const BookmarkFolder &folder : folders) {
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
    checkTitles(parseFirefoxBookmarks());
    home.write(support + QStringLiteral("OmniWeb 5/Bookmarks.html"), input);
    checkTitles(parseOmniWebBookmarks());
    home.write(support + QStringLiteral("Camino/bookmarks.plist"), input);
    checkTitles(parseCaminoBookmarks());
    home.write(QStringLiteral("Library/Safari/Bookmarks.plist"), input);
    readSafariBookmarks();
    home.write(support + QStringLiteral("Firefox/profiles.ini"), input);
    defaultFirefoxProfile();
    return 0;
}
