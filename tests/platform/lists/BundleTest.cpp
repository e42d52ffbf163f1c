#include "platform/lists/Bundle.h"
#include "platform/desktop/Workspace.h"

#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <QFile>

namespace {

void writeInfo(const QString &bundle, const QByteArray &executable, const QByteArray &version)
{
    writeFile(bundle + QStringLiteral("/Contents/Info.plist"),
              "<plist version=\"1.0\"><dict><key>CFBundleExecutable</key>" + executable +
                  "<key>CFBundleVersion</key>" + version + "</dict></plist>");
}

TEST(Bundle, ReadsItsInfo)
{
    const TemporaryFolder folder;
    const struct
    {
        const char *executable;
        const char *version;
        const char *both; // as read
    } cases[] = {
        {"<string>tool</string>", "<integer>12</integer>", "/b/Contents/bin/tool 12"},
        {"<string>../../evil</string>", "<array/>", " "},
        {"<string>..</string>", "<string>7</string>", " 7"},
    };
    for (const auto &c : cases) {
        writeInfo(folder / "b", c.executable, c.version);
        const Bundle bundle(folder / "x/../b/");
        EXPECT_EQ(bundle.path(), folder / "b");
        EXPECT_TRUE(bundle.exists());
        EXPECT_EQ(bundle.executable().remove(folder.path()) + u' ' + bundle.version(),
                  QString::fromLatin1(c.both));
    }
    writeInfo(folder / "b", "<broken", "");
    EXPECT_FALSE(Bundle(folder / "b").exists());
    EXPECT_FALSE(Bundle(folder / "none").exists());
}

} // namespace
