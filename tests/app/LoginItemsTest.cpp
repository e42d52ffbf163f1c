#include "app/LoginItems.h"

#include "platform/lists/PropertyList.h"
#include "platform/lists/UserDefaults.h"
#include "support/TestSupport.h"

#include <QFile>
#include <QVariantMap>

#include <gtest/gtest.h>

namespace {

const QString itemsKey = QStringLiteral("AutoLaunchedApplicationDictionary");

QVariantMap item(const char *path)
{
    return {{QStringLiteral("Path"), QString::fromUtf8(path)}, {QStringLiteral("Hide"), true}};
}

class LoginItemsTest : public testing::Test
{
protected:
    TemporaryFolder home;
    const QByteArray oldHome = qgetenv("HOME");
    UserDefaults defaults{QStringLiteral("shared"), home / QStringLiteral("prefs")};
    const QString list = home / QStringLiteral("prefs/loginwindow.plist");
    const QString autostart = home / QStringLiteral(".config/autostart/caravel-helper.desktop");
    const QString bundle = home / QStringLiteral("50% \"off\"/CaravelHelper");
    const LoginItems items{Bundle(bundle), home / QStringLiteral("Caravel")};

    void SetUp() override
    {
        qputenv("HOME", home.path().toUtf8());
        UserDefaults::setStandard(&defaults);
        writeFile(bundle + QStringLiteral("/Contents/Info.plist"),
                  PropertyList::toXml(QVariantMap{
                      {QStringLiteral("CFBundleExecutable"), QStringLiteral("caravel-helper")}}));
    }
    void TearDown() override
    {
        UserDefaults::setStandard(nullptr);
        qputenv("HOME", oldHome);
    }

    QStringList paths() const
    {
        QStringList result;
        for (const QVariant &entry :
             PropertyList::readDictionary(list).valueOr({}).value(itemsKey).toList())
            result.append(entry.toMap().value(QStringLiteral("Path")).toString());
        return result;
    }
};

} // namespace

TEST_F(LoginItemsTest, EditsTheListAndNothingElse)
{
    items.setStartOnLogin(false);
    EXPECT_EQ(*PropertyList::read(list), QVariant(QVariantMap{{itemsKey, QVariantList()}}));
    EXPECT_FALSE(QFile::exists(autostart));

    const QVariantMap others{
        {QStringLiteral("LastUser"), QStringLiteral("me")},
        {QStringLiteral("When"), QDateTime(QDate(2006, 3, 3), QTime(4, 5), Qt::UTC)},
        {QStringLiteral("Raw"), QByteArray("\0\1", 2)}};
    QVariantMap domain = others;
    domain.insert(itemsKey,
                  QVariantList{item("/Apps/Mail"), item("/old/CaravelHelper/"),
                               QStringLiteral("no item"), item("/Apps/Caravel"),
                               item("/copy/CaravelHelper"), item("/Apps/CaravelHelper 2")});
    writeFile(list, PropertyList::toXml(domain));
    for (int again = 0; again < 2; ++again) {
        items.setStartOnLogin(true);
        EXPECT_EQ(paths(), (QStringList{bundle, QStringLiteral("/Apps/Mail"), QString(),
                                        QStringLiteral("/Apps/CaravelHelper 2")}));
    }
    const QVariantMap entry =
        PropertyList::readDictionary(list).valueOr({}).value(itemsKey).toList().first().toMap();
    EXPECT_EQ(entry.value(QStringLiteral("Hide")), QVariant(false));
    EXPECT_EQ(entry.value(QStringLiteral("AliasData")).typeId(), QMetaType::QByteArray);
    const QByteArray exec = "\nExec=\"" + home.path().toUtf8() +
                            "/50%% \\\\\"off\\\\\"/CaravelHelper/Contents/bin/caravel-helper\"\n";
    EXPECT_TRUE(readFile(autostart).contains(exec)) << readFile(autostart).constData();

    items.setStartOnLogin(false);
    EXPECT_EQ(paths(), (QStringList{QStringLiteral("/Apps/Mail"), QString(),
                                    QStringLiteral("/Apps/CaravelHelper 2")}));
    QVariantMap left = PropertyList::readDictionary(list).valueOr({});
    left.remove(itemsKey);
    EXPECT_EQ(left, others);
    EXPECT_FALSE(QFile::exists(autostart));
}

TEST_F(LoginItemsTest, LeavesAloneWhatItCantRead)
{
    const QByteArray wrongType =
        PropertyList::toXml(QVariantMap{{itemsKey, QVariantMap{{QStringLiteral("a"), 1}}}});
    for (const QByteArray &contents :
         {QByteArray("garbage"), QByteArray(), PropertyList::toXml(QVariantList{1}), wrongType}) {
        writeFile(list, contents);
        SystemLogCapture log;
        items.setStartOnLogin(true);
        EXPECT_EQ(readFile(list), contents);
        EXPECT_TRUE(log.contains(QStringLiteral("loginwindow"))) << contents.constData();
        EXPECT_TRUE(QFile::exists(autostart)) << "the user's wish holds all the same";
        items.setStartOnLogin(false);
        EXPECT_FALSE(QFile::exists(autostart));
    }
}
