#include "app/FrontEndProtocol.h"

#include "app/CaravelHelperController.h"
#include "support/FakeDesktop.h"
#include "support/SyncHarness.h"

#include <gtest/gtest.h>

TEST(FrontEndProtocol, MethodsHaveTheTypesThatFrontEndsKnow)
{
    SyncHarness harness;
    FakeStatusBar statusBar;
    FakeAlerts alerts;
    FakeSounds sounds;
    CaravelHelperController controller({harness.volumes, harness.notifications, harness.clock,
                                        statusBar, alerts, sounds, Bundle(harness.folder.path())});
    QStringList found;
    for (const RemoteMethod &method : FrontEndProtocol::methods(controller))
        found.append(method.name + (method.oneway ? u"*("_s : u"("_s) + method.in.join(u',') +
                     u")"_s + method.out);
    const QString expected = QStringLiteral(
        "setApplication(o) applicationWillQuit*() ejectPSP*(a{sv}) openCaravel*(a{sv}) "
        "syncNow*(a{sv}) log()s isFirstSync()b pspIsMounted()b canSync()b isSyncing()b "
        "canCancelSync()b isIndeterminate()b syncBytesTotal()t syncBytes()t statusText()s "
        "statusSubText()s setIsInteractive(b) percentConverted()s changeStartOnLogin*() clearLog() "
        "syncPercentEstimate()u "
        "syncBytesEstimate()s refreshSyncBytesEstimate*() musicItems()aa{sv} "
        "setSelectedMusicIdentifiers*(as) photosItems()aa{sv} setSelectedPhotosIdentifiers*(as) "
        "bookmarksItems()aa{sv} setSelectedBookmarksIdentifiers*(as) moviesItems()aa{sv} "
        "setSelectedMoviesIdentifiers*(as) isConvertingMovie()b addMoviesFromArray(as) "
        "removeMovieItem(a{sv}) renameMovieItem(a{sv},s) backupItems()aa{sv} "
        "setSelectedBackupIdentifiers*(as) logChanged*(s) backupSubItemsForIdentifier(s)aa{sv} "
        "restoreBackupWithIdentifier(s) deleteBackupWithIdentifier(s) stick()a{sv}");
    EXPECT_EQ(found, expected.split(u' '));
}
