#include "util/QMLogger.h"
#include "platform/lists/UserDefaults.h"
#include "support/TestSupport.h"
#include "util/Settings.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

TEST(QMLogger, StampsKeepsHandsOnAndClears)
{
    struct : QMLoggerDelegate
    {
        QString lines;
        void logChanged(const QString &line) override { lines.append(line); }
    } delegate;
    const TemporaryFolder folder;
    UserDefaults defaults(QStringLiteral("log.test"), folder.path());
    UserDefaults::setStandard(&defaults);
    const SystemLogCapture system;
    QMLogger logger;
    logger.setDelegate(&delegate);
    logger.log(QStringLiteral("100% done %@ %1 %s"));
    logger.log(QStringLiteral("Restoring %@..."), QStringLiteral("a %@ b"));
    const QString stamp = QStringLiteral("[A-Z][a-z]{2} \\d\\d \\d\\d:\\d\\d:\\d\\d [AP]M : ");
    const QRegularExpression both(u'^' + stamp + QStringLiteral("100% done %@ %1 %s\n") + stamp +
                                  QStringLiteral("Restoring a %@ b\\.\\.\\.\n$"));
    EXPECT_TRUE(both.match(logger.log()).hasMatch()) << qPrintable(logger.log());
    EXPECT_EQ(delegate.lines, logger.log());

    delegate.lines.clear();
    logger.clear();
    EXPECT_TRUE(logger.log().endsWith(QStringLiteral(" : Log was cleared.\n")));
    EXPECT_EQ(logger.log().count(u'\n'), 1);
    EXPECT_EQ(delegate.lines, logger.log());

    EXPECT_TRUE(system.lines().isEmpty());
    Settings::useDetailedLogging.set(true);
    logger.log(QStringLiteral("loud 50%"));
    EXPECT_TRUE(system.contains(QStringLiteral("loud 50%")));
    UserDefaults::setStandard(nullptr);
}
