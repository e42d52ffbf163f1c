#include "app/LoginItems.h"

#include "platform/lists/PropertyList.h"
#include "support/SyncHarness.h"

#include <QDateTime>
#include <QFile>

#include <gtest/gtest.h>

namespace {

const QString itemsKey = u"AutoLaunchedApplicationDictionary"_s;

class LoginItemsTest : public testing::Test
{
protected:
    HomeHarness harness;
    const QString list = harness.folder / u"preferences/loginwindow.plist"_s;
    const QString autostart = harness.home(u".config/autostart/caravel-helper.desktop"_s);
    const QString bundle = harness.home(u"50% \"off\"/CaravelHelper"_s);
    std::unique_ptr<LoginItems> items;

    void SetUp() override
    {
        writeFile(bundle + u"/Contents/Info.plist"_s,
                  PropertyList::toXml(QVariantMap{{u"CFBundleExecutable"_s, u"caravel-helper"_s}}));
        items = std::make_unique<LoginItems>(Bundle(bundle), harness.home(u"Caravel"_s));
    }
    QVariantMap domain() const { return PropertyList::readDictionary(list).valueOr({}); }
    std::string paths() const
    {
        QStringList result;
        for (const QVariant &entry : domain().value(itemsKey).toList())
            result.append(entry.toMap().value(u"Path"_s).toString());
        return joined(result);
    }
};

} // namespace

TEST_F(LoginItemsTest, EditsTheListAndNothingElse)
{
    items->setStartOnLogin(false);
    EXPECT_EQ(domain(), (QVariantMap{{itemsKey, QVariantList()}}));
    EXPECT_FALSE(QFile::exists(autostart));
    const QVariantMap others{{u"LastUser"_s, u"me"_s},
                             {u"When"_s, QDateTime(QDate(2006, 3, 3), QTime(4, 5), Qt::UTC)},
                             {u"Raw"_s, QByteArray("\0\1", 2)}};
    QVariantList entries{u"no item"_s};
    for (const char *path :
         {"/Mail", "/old/CaravelHelper/", "/Caravel", "/copy/CaravelHelper", "/CaravelHelper 2"})
        entries.append(QVariantMap{{u"Path"_s, QLatin1String(path)}, {u"Hide"_s, true}});
    QVariantMap all = others;
    all.insert(itemsKey, entries);
    writeFile(list, PropertyList::toXml(all));
    for (int again = 0; again < 2; ++again) {
        items->setStartOnLogin(true);
        EXPECT_EQ(paths(), bundle.toStdString() + "\n\n/Mail\n/CaravelHelper 2");
    }
    const QVariantMap entry = domain().value(itemsKey).toList().first().toMap();
    EXPECT_EQ(entry.value(u"Hide"_s), QVariant(false));
    EXPECT_EQ(entry.value(u"AliasData"_s).typeId(), QMetaType::QByteArray);
    EXPECT_TRUE(readFile(autostart).contains(
        "\nExec=\"" + harness.home({}).toUtf8() +
        "50%% \\\\\"off\\\\\"/CaravelHelper/Contents/bin/caravel-helper\"\nTryExec=" +
        harness.home({}).toUtf8() + "50% \"off\"/CaravelHelper/Contents/bin/caravel-helper\n"))
        << readFile(autostart).constData();
    items->setStartOnLogin(false);
    EXPECT_EQ(paths(), "\n/Mail\n/CaravelHelper 2");
    QVariantMap left = domain();
    left.remove(itemsKey);
    EXPECT_EQ(left, others);
    EXPECT_FALSE(QFile::exists(autostart));
}

TEST_F(LoginItemsTest, LeavesAloneWhatItCantRead)
{
    const QVariantMap wrongType{{itemsKey, QVariantMap{{u"a"_s, 1}}}};
    for (const QByteArray &contents :
         {QByteArray("garbage"), QByteArray(), PropertyList::toXml(QVariantList{1}),
          PropertyList::toXml(wrongType)}) {
        writeFile(list, contents);
        const SystemLogCapture log;
        items->setStartOnLogin(true);
        EXPECT_EQ(readFile(list), contents);
        EXPECT_TRUE(log.contains(u"loginwindow"_s)) << contents.constData();
        EXPECT_TRUE(QFile::exists(autostart)) << "the user's wish holds all the same";
        items->setStartOnLogin(false);
        EXPECT_FALSE(QFile::exists(autostart));
    }
}
