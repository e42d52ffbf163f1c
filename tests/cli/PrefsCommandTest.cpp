#include "cli/PrefsCommand.h"

#include "platform/lists/UserDefaults.h"
#include "support/TestSupport.h"

#include <gmock/gmock.h>

namespace {

TEST(PrefsCommandTest, ValuesHaveTheTypeOfTheDefault)
{
    const QVariant unsignedDefault = QVariant::fromValue<quint64>(0);
    const struct
    {
        QString text;
        QVariant defaultValue;
        std::optional<QVariant> value;
    } cases[] = {
        {QStringLiteral("yes"), false, true},
        {QStringLiteral("TRUE"), false, true},
        {QStringLiteral("on"), false, true},
        {QStringLiteral("1"), false, true},
        {QStringLiteral("no"), true, false},
        {QStringLiteral("False"), true, false},
        {QStringLiteral("off"), true, false},
        {QStringLiteral("0"), true, false},
        {QStringLiteral("2"), true, std::nullopt},
        {QString(), true, std::nullopt},
        {QStringLiteral("-3"), 2, -3},
        {QStringLiteral("3x"), 2, std::nullopt},
        {QStringLiteral("2.5"), 2, std::nullopt},
        {QStringLiteral("4294967296"), 2, std::nullopt},
        {QStringLiteral("yes"), 2, std::nullopt},
        {QStringLiteral("18446744073709551615"), unsignedDefault, ~quint64(0)},
        {QStringLiteral("-1"), unsignedDefault, std::nullopt},
        {QStringLiteral("~/Music"), QStringLiteral("~/Documents"), QStringLiteral("~/Music")},
        {QString(), QStringLiteral("~/Documents"), QString()},
    };
    for (const auto &each : cases) {
        const auto value = parsePreference(each.text, each.defaultValue);
        EXPECT_EQ(value, each.value) << qPrintable(each.text);
        EXPECT_EQ(value.value_or(each.defaultValue).typeId(), each.defaultValue.typeId())
            << qPrintable(each.text);
    }
}

TEST(PrefsCommandTest, SetsWhatIsKnownAndOfTheRightTypeOnly)
{
    const TemporaryFolder home;
    UserDefaults store(QStringLiteral("org.caravel.Caravel"), home.path());
    UserDefaults::setStandard(&store);
    const struct
    {
        QStringList words;
        ExitStatus status;
    } cases[] = {
        {{QStringLiteral("syncMusic"), QStringLiteral("off")}, Done},
        {{QStringLiteral("backupsToKeep"), QStringLiteral("5")}, Done},
        {{QStringLiteral("syncPhotos"), QStringLiteral("maybe")}, BadUsage},
        {{QStringLiteral("noSuchKey"), QStringLiteral("1")}, Refused},
        {{QStringLiteral("lastSync"), QStringLiteral("1")}, Refused},
        {{QStringLiteral("lastSync")}, Done},
        {{QStringLiteral("noSuchKey")}, Refused},
    };
    for (const auto &each : cases)
        EXPECT_EQ(runPrefs(each.words, false), each.status) << qPrintable(each.words.join(u' '));
    const UserDefaults written(QStringLiteral("org.caravel.Caravel"), home.path());
    EXPECT_TRUE(written.object(QStringLiteral("syncMusic")).isValid());
    EXPECT_FALSE(written.boolForKey(QStringLiteral("syncMusic")));
    EXPECT_EQ(written.integerForKey(QStringLiteral("backupsToKeep")), 5);
    EXPECT_FALSE(written.object(QStringLiteral("syncPhotos")).isValid());
    UserDefaults::setStandard(nullptr);
}

} // namespace
