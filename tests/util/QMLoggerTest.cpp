#include "util/QMLogger.h"
#include "platform/lists/UserDefaults.h"
#include "support/TestSupport.h"
#include "util/Settings.h"

#include <QRegularExpression>

#include <gmock/gmock.h>

namespace {

struct CollectingDelegate : QMLoggerDelegate
{
    QStringList lines;
    void logChanged(const QString &line) override { lines.append(line); }
};

class QMLoggerTest : public testing::Test
{
protected:
    TemporaryFolder folder;
    UserDefaults defaults{QStringLiteral("log.test"), folder.path()};
    QMLogger logger;
    CollectingDelegate delegate;

    void SetUp() override
    {
        UserDefaults::setStandard(&defaults);
        logger.setDelegate(&delegate);
    }
    void TearDown() override { UserDefaults::setStandard(nullptr); }
};

} // namespace

TEST_F(QMLoggerTest, LinesAreStampedKeptAndHandedOnVerbatim)
{
    logger.log(QStringLiteral("100% done %@ %1 %s"));
    logger.log(QStringLiteral("Restoring %@..."), QStringLiteral("a %@ b"));

    const QRegularExpression stamp(
        QStringLiteral("^[A-Z][a-z]{2} \\d\\d \\d\\d:\\d\\d:\\d\\d [AP]M : "));
    ASSERT_EQ(delegate.lines.size(), 2);
    for (const QString &line : delegate.lines)
        EXPECT_TRUE(stamp.match(line).hasMatch()) << qPrintable(line);
    EXPECT_TRUE(delegate.lines[0].endsWith(QStringLiteral(" : 100% done %@ %1 %s\n")));
    EXPECT_TRUE(delegate.lines[1].endsWith(QStringLiteral(" : Restoring a %@ b...\n")));
    EXPECT_EQ(logger.log(), delegate.lines.join(QString()));
}

TEST_F(QMLoggerTest, ClearLeavesOneLineAndTellsIt)
{
    logger.log(QStringLiteral("one"));
    logger.clear();
    EXPECT_TRUE(logger.log().endsWith(QStringLiteral(" : Log was cleared.\n")));
    EXPECT_EQ(logger.log().count(u'\n'), 1);
    EXPECT_EQ(delegate.lines.last(), logger.log());
}

TEST_F(QMLoggerTest, DetailedLoggingEchoesTheMessageToTheSystemLog)
{
    const SystemLogCapture system;
    logger.log(QStringLiteral("quiet"));
    EXPECT_FALSE(system.contains(QStringLiteral("quiet")));
    Settings::useDetailedLogging.set(true);
    logger.log(QStringLiteral("loud 50%"));
    EXPECT_TRUE(system.contains(QStringLiteral("loud 50%")));
}
