#include "platform/lists/UserDefaults.h"
#include "platform/files/FileManager.h"
#include "platform/lists/PropertyList.h"
#include "support/FailingFileManager.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QThread>

#include <cmath>
#include <thread>

namespace {

const QString domain = QStringLiteral("org.example.Test");
const QString key = QStringLiteral("key");
const QString other = QStringLiteral("other");

class UserDefaultsFile : public testing::Test
{
protected:
    const TemporaryFolder home;
    const QString folder = home / "Library/Preferences";
    const QString path = home / "Library/Preferences/org.example.Test.plist";

    QVariantMap fileContents() const { return PropertyList::readDictionary(path).valueOr({}); }
    void writeList(const QVariantMap &values) { writeFile(path, PropertyList::toXml(values)); }
};

TEST_F(UserDefaultsFile, ConversionsAreThePlatforms)
{
    const auto text = [](const char *value) {
        return QVariant(QString::fromLatin1(value));
    };
    // As a boolean, an integer, an unsigned one and a text.
    const std::pair<QVariant, const char *> cases[] = {
        {true, "1 1 1 1"},
        {-3, "1 -3 0 -3"},
        {~quint64(0), "1 9223372036854775807 18446744073709551615 18446744073709551615"},
        {0.5, "1 0 0 0.5"},
        {1e30, "1 9223372036854775807 18446744073709551615 1e+30"},
        {-1e30, "1 -9223372036854775808 0 -1e+30"},
        {std::nan(""), "1 0 0 nan"},
        {text("YES"), "1 0 0 YES"},
        {text("true"), "1 0 0 true"},
        {text("1"), "1 1 1 1"},
        {text("NO"), "0 0 0 NO"},
        {text("00"), "0 0 0 00"},
        {text(" \t12abc"), "1 12 12  \t12abc"},
        {text("-99999999999999999999999"), "1 -9223372036854775808 0 -99999999999999999999999"},
        {QVariantList{1}, "0 0 0 "},
        {QByteArray("1"), "0 0 0 "},
    };
    UserDefaults store(domain, folder);
    for (const auto &[value, expected] : cases) {
        store.setObject(key, value);
        EXPECT_EQ(QStringLiteral("%1 %2 %3 ")
                          .arg(store.boolForKey(key))
                          .arg(store.integerForKey(key))
                          .arg(store.unsignedForKey(key)) +
                      store.stringForKey(key),
                  QLatin1String(expected));
        EXPECT_FALSE(store.dateForKey(key)) << expected;
        EXPECT_EQ(store.stringArrayForKey(key).has_value(), value == QVariantList{1}) << expected;
    }
    store.setObject(key, QVariantList{QStringLiteral("a"), 1, QStringLiteral("b")});
    EXPECT_EQ(store.stringArrayForKey(key)->join(u' '), u"a b");
    const QDateTime date = QDateTime::fromSecsSinceEpoch(1000);
    store.setObject(key, date);
    EXPECT_EQ(store.dateForKey(key), date);
}

TEST_F(UserDefaultsFile, TwoStoresKeepEachOthersKeys)
{
    writeList({{QStringLiteral("foreign"), QByteArray("x")}, {key, 1}});
    UserDefaults first(domain, folder);
    UserDefaults second(domain, folder);
    first.setObject(key, 2);
    second.setObject(other, QStringLiteral("text"));
    second.setObject(QStringLiteral("foreign"), {});
    EXPECT_TRUE(first.synchronize() && second.synchronize());
    EXPECT_EQ(fileContents(), (QVariantMap{{key, 2LL}, {other, QStringLiteral("text")}}));
    EXPECT_EQ(second.integerForKey(key), 2);
    EXPECT_TRUE(first.synchronize());
    EXPECT_EQ(first.stringForKey(other), QStringLiteral("text"));
    EXPECT_FALSE(first.object(QStringLiteral("foreign")).isValid());
    // What the other has changed since is not written back.
    second.setObject(key, 3);
    EXPECT_TRUE(second.synchronize());
    first.setObject(other, {});
    EXPECT_TRUE(first.synchronize());
    EXPECT_EQ(fileContents(), (QVariantMap{{key, 3LL}}));
    EXPECT_EQ(treeOf(folder).join(u' '), u".org.example.Test.lock org.example.Test.plist");
}

TEST_F(UserDefaultsFile, AFileThatIsReplacedIsReadAgainAndAnUnchangedOneIsNotWritten)
{
    writeList({{key, 1}});
    UserDefaults store(domain, folder);
    writeList({{key, 2}}); // as long as before, and written at once
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(store.integerForKey(key), 2);
    const auto written = files().stamp(path);
    store.setObject(key, 3);
    store.setObject(key, 2);
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(files().stamp(path), written);
    store.setObject(key, 1);
    store.setObject(key, true); // equal to the number only in name
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(fileContents().value(key).typeId(), int(QMetaType::Bool));
    QFile::remove(path);
    EXPECT_TRUE(store.synchronize());
    EXPECT_FALSE(store.object(key).isValid());
    store.registerDefaults({{key, 5}});
    EXPECT_EQ(store.integerForKey(key), 5);
}

TEST_F(UserDefaultsFile, WhatStandsInTheWayIsSaidOnceAndChangesWaitForBetterTimes)
{
    FailingFileManager impatient;
    impatient.waitsForLocks = false;
    FileManager::setDefaultManager(&impatient);
    std::optional<FileLock> anothers;
    for (const char *said :
         {"are left alone: Is a directory", "can't create the folder", "can't lock it"}) {
        const bool isReadable = said[0] != 'a';
        if (!isReadable) {
            QDir().mkpath(path);
        } else if (said[6] == 'c') {
            writeFile(home / "Library", "a file");
        } else {
            QDir().mkpath(folder);
            anothers.emplace(*files().lock(folder + QStringLiteral("/.org.example.Test.lock"), {}));
        }
        SystemLogCapture log;
        UserDefaults store(domain, folder);
        store.setObject(key, 1);
        EXPECT_FALSE(store.synchronize() || store.synchronize()) << said;
        EXPECT_EQ(store.isReadable(), isReadable) << said;
        EXPECT_EQ(log.lines().size(), 1) << said;
        EXPECT_TRUE(log.contains(QLatin1String(said))) << qPrintable(log.lines().join(u'\n'));
        files().remove(home / "Library", nullptr);
        EXPECT_TRUE(!anothers || waitFor([this] { return files().exists(path); }))
            << "not tried again by itself";
        EXPECT_TRUE(store.synchronize() && store.isReadable()) << said;
        EXPECT_EQ(fileContents(), (QVariantMap{{key, 1LL}})) << said;
        files().remove(home / "Library", nullptr);
    }
    FileManager::setDefaultManager(nullptr);
}

TEST_F(UserDefaultsFile, ChangedComesOnTheMainThreadOnceForSeveralChanges)
{
    UserDefaults store(domain, folder);
    int heard = 0;
    QObject::connect(&store, &UserDefaults::changed, &store, [&] {
        EXPECT_EQ(QThread::currentThread(), store.thread());
        // Setting a value from here is announced again, and equal values end the chain.
        store.setObject(other, std::min(++heard, 2));
    });
    store.setObject(key, QStringList{QStringLiteral("a")});
    std::thread([&] { store.setObject(key, 0.5); }).join();
    EXPECT_EQ(heard, 0);
    EXPECT_TRUE(waitFor([&] { return heard == 3; }));
    store.setObject(key, 0.5);
    store.setObject(QStringLiteral("absent"), {});
    const SystemLogCapture log;
    store.setObject(key, QVariant::fromValue(&store));
    EXPECT_TRUE(log.contains(key));
    EXPECT_EQ(store.object(key), QVariant(0.5));
    store.setObject(QStringLiteral("last"), 1);
    EXPECT_TRUE(waitFor([&] { return heard == 4; }));
}

} // namespace
