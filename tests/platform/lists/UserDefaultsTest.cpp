#include "platform/lists/UserDefaults.h"
#include "platform/files/FileManager.h"
#include "platform/lists/PropertyList.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QScopeGuard>
#include <QThread>

#include <cmath>
#include <limits>
#include <memory>
#include <thread>

namespace {

const QString domain = QStringLiteral("org.example.Test");
const QString key = QStringLiteral("key");
const QString other = QStringLiteral("other");

std::function<bool(QVariantMap &)> set(const QVariantMap &values)
{
    return [values](QVariantMap &edited) {
        edited = values;
        return true;
    };
}

class UserDefaultsFile : public testing::Test
{
protected:
    TemporaryFolder home;
    const QString folder = home / QStringLiteral("Library/Preferences");
    const QString path = folder + QStringLiteral("/org.example.Test.plist");

    QVariantMap fileContents() const { return PropertyList::readDictionary(path).valueOr({}); }
    void writeList(const QVariantMap &values) { writeFile(path, PropertyList::toXml(values)); }
};

TEST_F(UserDefaultsFile, SetValuesLieOverRegisteredOnesAndReachTheFileBySynchronize)
{
    UserDefaults store(domain, folder);
    EXPECT_FALSE(QFileInfo::exists(folder));
    store.registerDefaults({{key, 5}, {other, true}});
    EXPECT_EQ(store.integerForKey(key), 5);
    store.setObject(key, 7);
    EXPECT_EQ(store.integerForKey(key), 7);
    EXPECT_FALSE(QFileInfo::exists(path));
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(fileContents(), (QVariantMap{{key, 7LL}}));
    store.setObject(key, {});
    EXPECT_EQ(store.integerForKey(key), 5);
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(fileContents(), QVariantMap());
    EXPECT_TRUE(store.boolForKey(other));
    EXPECT_FALSE(store.object(QStringLiteral("absent")).isValid());
}

TEST_F(UserDefaultsFile, ConversionsAreThePlatforms)
{
    constexpr qint64 highest = std::numeric_limits<qint64>::max();
    constexpr qint64 lowest = std::numeric_limits<qint64>::min();
    constexpr quint64 highestUnsigned = std::numeric_limits<quint64>::max();
    const struct
    {
        QVariant value;
        bool asBool;
        qint64 asInteger;
        quint64 asUnsigned;
        const char16_t *asString;
    } cases[] = {
        {true, true, 1, 1, u"1"},
        {false, false, 0, 0, u"0"},
        {0, false, 0, 0, u"0"},
        {-3, true, -3, 0, u"-3"},
        {highestUnsigned, true, highest, highestUnsigned, u"18446744073709551615"},
        {0.5, true, 0, 0, u"0.5"},
        {-2.9, true, -2, 0, u"-2.9"},
        {1e30, true, highest, highestUnsigned, u"1e+30"},
        {-1e30, true, lowest, 0, u"-1e+30"},
        {std::nan(""), true, 0, 0, u"nan"},
        {QStringLiteral("YES"), true, 0, 0, u"YES"},
        {QStringLiteral("true"), true, 0, 0, u"true"},
        {QStringLiteral("1"), true, 1, 1, u"1"},
        {QStringLiteral("NO"), false, 0, 0, u"NO"},
        {QStringLiteral("00"), false, 0, 0, u"00"},
        {QStringLiteral(""), false, 0, 0, u""},
        {QStringLiteral("-"), false, 0, 0, u"-"},
        {QStringLiteral(" \t12abc"), true, 12, 12, u" \t12abc"},
        {QStringLiteral("-12"), true, -12, 0, u"-12"},
        {QStringLiteral("99999999999999999999999"), true, highest, highestUnsigned,
         u"99999999999999999999999"},
        {QStringLiteral("-99999999999999999999999"), true, lowest, 0, u"-99999999999999999999999"},
        {QVariantList{1}, false, 0, 0, u""},
        {QVariantMap{{key, 1}}, false, 0, 0, u""},
        {QByteArray("1"), false, 0, 0, u""},
    };
    UserDefaults store(domain, folder);
    for (const auto &[value, asBool, asInteger, asUnsigned, asString] : cases) {
        store.setObject(key, value);
        const std::string name = value.toString().toStdString() + " " + value.typeName();
        EXPECT_EQ(store.boolForKey(key), asBool) << name;
        EXPECT_EQ(store.integerForKey(key), asInteger) << name;
        EXPECT_EQ(store.unsignedForKey(key), asUnsigned) << name;
        EXPECT_EQ(store.stringForKey(key), QString::fromUtf16(asString)) << name;
        EXPECT_FALSE(store.dateForKey(key)) << name;
        EXPECT_EQ(store.stringArrayForKey(key).has_value(), name == " QVariantList") << name;
    }
    store.setObject(key, QVariantList{QStringLiteral("a"), 1, QStringLiteral("b")});
    EXPECT_EQ(store.stringArrayForKey(key),
              (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    const QDateTime now = QDateTime::currentDateTime();
    store.setObject(key, now);
    EXPECT_EQ(store.dateForKey(key)->toSecsSinceEpoch(), now.toSecsSinceEpoch());
}

TEST_F(UserDefaultsFile, TwoStoresKeepEachOthersKeys)
{
    writeList({{QStringLiteral("foreign"), QByteArray("x")}, {key, 1}});
    UserDefaults first(domain, folder);
    UserDefaults second(domain, folder);
    first.setObject(key, 2);
    second.setObject(other, QStringLiteral("text"));
    second.setObject(QStringLiteral("foreign"), {});
    EXPECT_TRUE(first.synchronize());
    EXPECT_TRUE(second.synchronize());
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
    EXPECT_EQ(treeOf(folder), (QStringList{QStringLiteral(".org.example.Test.lock"),
                                           QStringLiteral("org.example.Test.plist")}));
}

TEST_F(UserDefaultsFile, WritersAtOnceLoseNothing)
{
    UserDefaults first(domain, folder);
    UserDefaults second(domain, folder);
    constexpr int rounds = 40;
    const auto hammer = [](UserDefaults &store, const QString &prefix) {
        for (int i = 0; i < rounds; ++i) {
            store.setObject(prefix + QString::number(i), i);
            while (!store.synchronize()) { // the others may keep it locked for long
            }
            EXPECT_EQ(store.integerForKey(prefix + QString::number(i)), i);
        }
    };
    {
        // Two threads on one store, a third one on another.
        const std::jthread a(hammer, std::ref(first), QStringLiteral("a"));
        const std::jthread b(hammer, std::ref(first), QStringLiteral("b"));
        const std::jthread c(hammer, std::ref(second), QStringLiteral("c"));
    }
    const QVariantMap contents = fileContents();
    EXPECT_EQ(contents.size(), 3 * rounds);
    for (const QString &prefix : {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}) {
        for (int i = 0; i < rounds; ++i)
            EXPECT_EQ(contents.value(prefix + QString::number(i)), QVariant(qlonglong(i)));
    }
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
    store.setObject(key, true); // equal to a number only in name
    store.setObject(key, 1);
    store.setObject(key, true);
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(fileContents().value(key).typeId(), int(QMetaType::Bool));
    QFile::remove(path);
    EXPECT_TRUE(store.synchronize());
    EXPECT_FALSE(store.object(key).isValid());
}

TEST_F(UserDefaultsFile, GarbageIsKeptAsideAndSaidOnce)
{
    const QByteArray listOfWrongKind = PropertyList::toXml(QVariantList{1});
    for (const QByteArray &garbage : {QByteArray("<plist>\n<dict>\n<oops/>"), listOfWrongKind}) {
        writeFile(path, garbage);
        SystemLogCapture log;
        UserDefaults store(domain, folder);
        store.registerDefaults({{key, 5}});
        EXPECT_EQ(store.integerForKey(key), 5);
        EXPECT_EQ(readFile(path + QStringLiteral(".unreadable")), garbage);
        EXPECT_FALSE(QFileInfo::exists(path));
        store.setObject(other, 1);
        EXPECT_TRUE(store.synchronize());
        EXPECT_TRUE(store.synchronize());
        EXPECT_EQ(fileContents(), (QVariantMap{{other, 1LL}}));
        EXPECT_EQ(log.lines().size(), 1);
        EXPECT_TRUE(log.contains(path)) << qPrintable(log.lines().join(u'\n'));
        EXPECT_EQ(log.contains(path + QStringLiteral(":3: <oops>")), garbage != listOfWrongKind);
    }
}

/// Waits for no lock.
class ImpatientFileManager : public FileManager
{
public:
    FileResult<FileLock> lock(const QString &path, std::chrono::milliseconds) override
    {
        return FileManager::lock(path, std::chrono::milliseconds(0));
    }
};

TEST_F(UserDefaultsFile, WhatStandsInTheWayIsSaidOnceAndChangesWaitForBetterTimes)
{
    const QString library = home / QStringLiteral("Library");
    std::optional<FileLock> anothers;
    const struct
    {
        const char *said;
        bool isReadable;
        std::function<void()> comes;
        std::function<void()> goes;
    } obstacles[] = {
        {"are left alone: Is a directory", false, [&] { QDir().mkpath(path); },
         [&] {
             EXPECT_TRUE(QDir().rmdir(path));
         }},
        {"can't create the folder", true, [&] { writeFile(library, "a file"); },
         [&] {
             QFile::remove(library);
         }},
        {"can't lock it", true,
         [&] {
             QDir().mkpath(folder);
             anothers.emplace(
                 *files().lock(folder + QStringLiteral("/.org.example.Test.lock"), {}));
         },
         [&] {
             anothers.reset();
         }},
    };
    ImpatientFileManager impatient;
    FileManager::setDefaultManager(&impatient);
    const auto restore = qScopeGuard([] { FileManager::setDefaultManager(nullptr); });
    for (const auto &[said, isReadable, comes, goes] : obstacles) {
        QDir(library).removeRecursively();
        SystemLogCapture log;
        comes();
        UserDefaults store(domain, folder);
        store.setObject(key, 1);
        EXPECT_FALSE(store.synchronize()) << said;
        EXPECT_FALSE(store.synchronize()) << said;
        EXPECT_EQ(store.isReadable(), isReadable) << said;
        EXPECT_EQ(log.lines().size(), 1) << qPrintable(log.lines().join(u'\n'));
        EXPECT_TRUE(log.contains(QLatin1String(said))) << qPrintable(log.lines().join(u'\n'));
        EXPECT_FALSE(store.editPersistentDomain(domain, set({{other, 1}}))) << said;
        goes();
        EXPECT_TRUE(store.synchronize() && store.isReadable()) << said;
        EXPECT_EQ(fileContents(), (QVariantMap{{key, 1LL}})) << said;
    }
}

TEST_F(UserDefaultsFile, ChangedComesOnTheMainThreadOnceForSeveralChanges)
{
    UserDefaults store(domain, folder);
    int heard = 0;
    QObject::connect(&store, &UserDefaults::changed, &store, [&] {
        EXPECT_EQ(QThread::currentThread(), store.thread());
        // Setting a value from here is announced again, and equal values end the chain.
        if (++heard < 3)
            store.setObject(other, heard);
        else
            store.setObject(other, 2);
    });
    store.setObject(key, QStringList{QStringLiteral("a")});
    store.setObject(key, QStringList{QStringLiteral("b")});
    std::thread([&] { store.setObject(key, 0.5); }).join();
    EXPECT_EQ(heard, 0);
    EXPECT_TRUE(waitFor([&] { return heard == 3; }));

    EXPECT_TRUE(store.synchronize());
    store.setObject(key, 0.5);
    store.setObject(QStringLiteral("absent"), {});
    {
        SystemLogCapture log;
        store.setObject(key, QVariant::fromValue(&store));
        EXPECT_TRUE(log.contains(key));
    }
    EXPECT_EQ(store.object(key), QVariant(0.5));
    store.setObject(QStringLiteral("last"), 1);
    EXPECT_TRUE(waitFor([&] { return heard == 4; }));
}

TEST_F(UserDefaultsFile, AStoreMayGoWhileItsSignalIsOnTheWay)
{
    bool heard = false;
    auto gone = std::make_unique<UserDefaults>(domain, folder);
    UserDefaults stays(domain, folder);
    QObject::connect(gone.get(), &UserDefaults::changed, [&] { FAIL() << "a dead store spoke"; });
    QObject::connect(&stays, &UserDefaults::changed, [&] { heard = true; });
    gone->setObject(key, 1);
    gone.reset();
    stays.setObject(key, 1);
    EXPECT_TRUE(waitFor([&] { return heard; }));
}

TEST_F(UserDefaultsFile, OtherDomainsAreReadAndReplacedWhole)
{
    UserDefaults store(domain, folder);
    const QString login = QStringLiteral("loginwindow");
    EXPECT_FALSE(store.persistentDomain(login));
    const QVariantMap values{{key, QVariantList{QVariantMap{{other, QByteArray("x")}}}}};
    EXPECT_TRUE(store.editPersistentDomain(login, set(values)));
    EXPECT_EQ(store.persistentDomain(login), values);
    EXPECT_FALSE(store.editPersistentDomain(login, [](QVariantMap &edited) {
        edited.clear();
        return false;
    }));
    EXPECT_EQ(store.persistentDomain(login), values);
    EXPECT_TRUE(store.editPersistentDomain(login, set({})));
    EXPECT_EQ(store.persistentDomain(login), QVariantMap());
    SystemLogCapture log;
    const QString broken = folder + QStringLiteral("/broken.plist");
    writeFile(broken, "\nnonsense");
    EXPECT_FALSE(store.persistentDomain(QStringLiteral("broken")));
    EXPECT_TRUE(log.contains(broken + QStringLiteral(":2: ")));
    EXPECT_FALSE(store.editPersistentDomain(QStringLiteral("broken"), set(values)));
    EXPECT_EQ(readFile(broken), "\nnonsense");
}

TEST(UserDefaultsStandard, LiesInTheHomeAndCanBeReplaced)
{
    const TemporaryFolder home;
    const QByteArray oldHome = qgetenv("HOME");
    qputenv("HOME", home.path().toUtf8());
    UserDefaults::setStandard(nullptr);
    UserDefaults::standard().setObject(key, 1);
    EXPECT_TRUE(UserDefaults::standard().synchronize());
    EXPECT_TRUE(
        PropertyList::read(home / QStringLiteral("Library/Preferences/org.caravel.Caravel.plist")));
    UserDefaults replacement(domain, home.path());
    UserDefaults::setStandard(&replacement);
    EXPECT_EQ(&UserDefaults::standard(), &replacement);
    qputenv("HOME", oldHome);
    UserDefaults::setStandard(nullptr);
    EXPECT_FALSE(UserDefaults::standard().object(key).isValid());
}

} // namespace
