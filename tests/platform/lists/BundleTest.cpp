#include "platform/lists/Bundle.h"
#include "platform/core/QuitSignals.h"
#include "platform/desktop/Workspace.h"

#include "support/TestSupport.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>

#include <csignal>

namespace {

QByteArray infoList(const QByteArray &executable, const QByteArray &version)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\"><dict>"
           "<key>CFBundleExecutable</key>" +
           executable + "<key>CFBundleVersion</key>" + version + "</dict></plist>";
}

} // namespace

TEST(Bundle, ReadsItsInfo)
{
    const TemporaryFolder folder;
    const struct
    {
        const char *info;
        bool exists;
        QString version;
        QString executable; // its name; empty: none
    } cases[] = {
        {"<string>tool</string>|<string>7</string>", true, QStringLiteral("7"),
         QStringLiteral("tool")},
        {"<string>tool</string>|<integer>12</integer>", true, QStringLiteral("12"),
         QStringLiteral("tool")},
        {"<string>../../evil</string>|<array/>", true, QString(), QString()},
        {"<string>..</string>|<true/>", true, QString(), QString()},
        {"<string/>|<string/>", true, QString(), QString()},
        {"<broken|", false, QString(), QString()},
    };
    for (const auto &c : cases) {
        const QList<QByteArray> parts = QByteArray(c.info).split('|');
        writeFile(folder / QStringLiteral("b/Contents/Info.plist"), infoList(parts[0], parts[1]));
        const Bundle bundle(folder / QStringLiteral("x/../b/"));
        EXPECT_EQ(bundle.path(), folder / QStringLiteral("b"));
        EXPECT_EQ(bundle.exists(), c.exists) << c.info;
        EXPECT_EQ(bundle.version(), c.version) << c.info;
        const QString bin = folder / QStringLiteral("b/Contents/bin/");
        EXPECT_EQ(bundle.executable(), c.executable.isEmpty() ? QString() : bin + c.executable)
            << c.info;
    }
    EXPECT_FALSE(Bundle(folder / QStringLiteral("none")).exists());
}

TEST(Bundle, TheMainOneIsFoundFromTheExecutable)
{
    const QString own = QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
    EXPECT_EQ(Bundle::main().path(), QDir::cleanPath(own + QStringLiteral("/../../..")));
    EXPECT_EQ(Bundle::main().resourcePath(),
              Bundle::main().path() + QStringLiteral("/Contents/Resources"));
}

TEST(Workspace, StartsABundlesExecutable)
{
    const TemporaryFolder folder;
    const QString started = folder / QStringLiteral("started");
    const QString script = folder / QStringLiteral("b/Contents/bin/tool");
    writeFile(script, "#!/bin/sh\ntouch '" + started.toUtf8() + "'\n");
    QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QString info = folder / QStringLiteral("b/Contents/Info.plist");
    writeFile(info, infoList("<string>tool</string>", "<string>1</string>"));
    EXPECT_TRUE(Workspace::openFile(folder / QStringLiteral("b")));
    EXPECT_TRUE(waitFor([&] { return QFile::exists(started); }));
    // Without an executable it is a folder like any other, which some desktop might open.
    const QByteArray programs = qgetenv("PATH");
    qputenv("PATH", folder.path().toUtf8());
    for (const QByteArray name : {"<string>missing</string>", "<integer/>"}) {
        writeFile(info, infoList(name, "<string>1</string>"));
        EXPECT_FALSE(Workspace::openFile(folder / QStringLiteral("b"))) << name.toStdString();
    }
    qputenv("PATH", programs);
}

TEST(Workspace, RecyclesIntoTheUsersTrash)
{
    const TemporaryFolder home;
    qputenv("HOME", home.path().toUtf8());
    writeFile(home / QStringLiteral("save/DATA.BIN"), "saved");
    EXPECT_TRUE(Workspace::recycle(home / QStringLiteral("save")));
    EXPECT_FALSE(QFile::exists(home / QStringLiteral("save")));
    EXPECT_EQ(readFile(home / QStringLiteral(".local/share/Trash/files/save/DATA.BIN")), "saved");
    EXPECT_FALSE(Workspace::recycle(home / QStringLiteral("save")));
}

TEST(QuitSignals, TurnSignalsIntoCallsAndPutTheOldHandlersBack)
{
    static volatile std::sig_atomic_t before = 0;
    before = 0;
    std::signal(SIGTERM, [](int) { before = before + 1; });
    QList<int> seen;
    {
        const QuitSignals signals([&](int number) { seen.append(number); });
        std::raise(SIGTERM);
        std::raise(SIGINT);
        EXPECT_TRUE(seen.isEmpty());
        EXPECT_TRUE(waitFor([&] { return seen.size() == 2; }));
    }
    EXPECT_THAT(seen, testing::ElementsAre(SIGTERM, SIGINT));
    std::raise(SIGTERM);
    EXPECT_EQ(before, 1);
    std::signal(SIGTERM, SIG_DFL);
}
