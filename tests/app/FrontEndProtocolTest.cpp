#include "app/FrontEndProtocol.h"

#include "app/CaravelHelperController.h"
#include "support/SyncHarness.h"

#include <gtest/gtest.h>

namespace {

class NoAlerts : public AlertPresenter
{
public:
    void show(const QString &, const QString &, AlertStyle) override {}
};

} // namespace

TEST(FrontEndProtocol, MethodsHaveTheTypesThatFrontEndsKnow)
{
    SyncHarness harness;
    NoAlerts alerts;
    CaravelHelperController controller({harness.volumes, harness.notifications, harness.clock,
                                        alerts, Bundle(harness.folder.path())});
    QStringList found;
    for (const RemoteMethod &method : FrontEndProtocol::methods(controller)) {
        found.append(method.name + (method.oneway ? QStringLiteral("*(") : QStringLiteral("(")) +
                     method.in.join(u',') + QStringLiteral(")") + method.out);
        EXPECT_EQ(method.in.size(), method.inNames.size()) << qPrintable(method.name);
    }
    const QString expected = QStringLiteral(
        "setApplication(o) applicationWillQuit*() ejectPSP*(a{sv}) openCaravel*(a{sv}) "
        "syncNow*(a{sv}) log()s isFirstSync()b pspIsMounted()b canSync()b isSyncing()b "
        "canCancelSync()b isIndeterminate()b syncBytesTotal()t syncBytes()t statusText()s "
        "statusSubText()s setIsInteractive(b) clearLog() syncPercentEstimate()u "
        "syncBytesEstimate()s refreshSyncBytesEstimate*() musicItems()aa{sv} "
        "setSelectedMusicIdentifiers*(as) logChanged*(s)");
    EXPECT_EQ(found, expected.split(u' '));
}
