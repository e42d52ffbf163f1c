#include "app/LoginItems.h"

#include "platform/lists/PropertyList.h"
#include "platform/lists/UserDefaults.h"
#include "support/TestSupport.h"

#include <QFile>
#include <QVariantMap>

#include <gtest/gtest.h>

namespace {

const QString itemsKey = u"AutoLaunchedApplicationDictionary"_s;

QVariantMap item(const char *path)
{
    return {{u"Path"_s, QString::fromUtf8(path)}, {u"Hide"_s, true}};
}

class LoginItemsTest : public testing::Test
{
protected:
    TemporaryFolder home;
    const QByteArray oldHome = qgetenv("HOME");
    UserDefaults defaults{u"shared"_s, home / u"prefs"_s};
    const QString list = home / u"prefs/loginwindow.plist"_s;
    const QString autostart = home / u".config/autostart/caravel-helper.desktop"_s;
    const QString bundle = home / QStringLiteral("50% \"off\"/CaravelHelper");
    const LoginItems items{Bundle(bundle), home / u"Caravel"_s};

    void SetUp() override
    {
        qputenv("HOME", home.path().toUtf8());
        UserDefaults::setStandard(&defaults);
        writeFile(bundle + u"/Contents/Info.plist"_s,
                  PropertyList::toXml(QVariantMap{{u"CFBundleExecutable"_s, u"caravel-helper"_s}}));
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
            result.append(entry.toMap().value(u"Path"_s).toString());
        return result;
    }
};

} // namespace

TEST_F(LoginItemsTest, EditsTheListAndNothingElse)
{
    items.setStartOnLogin(false);
    EXPECT_EQ(*PropertyList::read(list), QVariant(QVariantMap{{itemsKey, QVariantList()}}));
    EXPECT_FALSE(QFile::exists(autostart));

    const QVariantMap others{{u"LastUser"_s, u"me"_s},
                             {u"When"_s, QDateTime(QDate(2006, 3, 3), QTime(4, 5), Qt::UTC)},
                             {u"Raw"_s, QByteArray("\0\1", 2)}};
    QVariantMap domain = others;
    domain.insert(itemsKey,
                  QVariantList{item("/Apps/Mail"), item("/old/CaravelHelper/"), u"no item"_s,
                               item("/Apps/Caravel"), item("/copy/CaravelHelper"),
                               item("/Apps/CaravelHelper 2")});
    writeFile(list, PropertyList::toXml(domain));
    for (int again = 0; again < 2; ++again) {
        items.setStartOnLogin(true);
        EXPECT_EQ(paths(),
                  (QStringList{bundle, u"/Apps/Mail"_s, QString(), u"/Apps/CaravelHelper 2"_s}));
    }
    const QVariantMap entry =
        PropertyList::readDictionary(list).valueOr({}).value(itemsKey).toList().first().toMap();
    EXPECT_EQ(entry.value(u"Hide"_s), QVariant(false));
    EXPECT_EQ(entry.value(u"AliasData"_s).typeId(), QMetaType::QByteArray);
    const QByteArray exec = "\nExec=\"" + home.path().toUtf8() +
                            "/50%% \\\\\"off\\\\\"/CaravelHelper/Contents/bin/caravel-helper\"\n";
    EXPECT_TRUE(readFile(autostart).contains(exec)) << readFile(autostart).constData();

    items.setStartOnLogin(false);
    EXPECT_EQ(paths(), (QStringList{u"/Apps/Mail"_s, QString(), u"/Apps/CaravelHelper 2"_s}));
    QVariantMap left = PropertyList::readDictionary(list).valueOr({});
    left.remove(itemsKey);
    EXPECT_EQ(left, others);
    EXPECT_FALSE(QFile::exists(autostart));
}

TEST_F(LoginItemsTest, LeavesAloneWhatItCantRead)
{
    const QByteArray wrongType =
        PropertyList::toXml(QVariantMap{{itemsKey, QVariantMap{{u"a"_s, 1}}}});
    for (const QByteArray &contents :
         {QByteArray("garbage"), QByteArray(), PropertyList::toXml(QVariantList{1}), wrongType}) {
        writeFile(list, contents);
        SystemLogCapture log;
        items.setStartOnLogin(true);
        EXPECT_EQ(readFile(list), contents);
        EXPECT_TRUE(log.contains(u"loginwindow"_s)) << contents.constData();
        EXPECT_TRUE(QFile::exists(autostart)) << "the user's wish holds all the same";
        items.setStartOnLogin(false);
        EXPECT_FALSE(QFile::exists(autostart));
    }
}
