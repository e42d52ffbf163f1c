#include "app/FrontEndProtocol.h"

#include "support/HelperHarness.h"

#include <gtest/gtest.h>

TEST(FrontEndProtocol, MethodsHaveTheTypesThatFrontEndsKnow)
{
    HelperHarness harness;
    QStringList found;
    for (const RemoteMethod &method : FrontEndProtocol::methods(*harness.helper))
        found.append(method.name + (method.oneway ? u"*("_s : u"("_s) + method.in.join(u',') +
                     u")"_s + method.out);
    EXPECT_EQ(
        joined(found, u" "),
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
        "restoreBackupWithIdentifier(s) deleteBackupWithIdentifier(s) requestPlan*() "
        "planSummary()a{sv} planItems(s,u,u)aa{sv} stick()a{sv}");
}
