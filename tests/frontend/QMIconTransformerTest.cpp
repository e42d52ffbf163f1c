#include "frontend/QMIconTransformer.h"

#include "support/TestSupport.h"

#include <QFile>

#include <gtest/gtest.h>

TEST(QMIconTransformer, KnowsEveryIconThatRowsName)
{
    const QMIconTransformer transformer(QStringLiteral(CARAVEL_RESOURCES));
    for (const char *name :
         {"iTunesLibrary", "iTunesPodcasts", "iTunesSmartPlaylist", "iTunesPlaylist",
          "iPhotoLibrary", "iPhotoRoll", "iPhotoMonth", "iPhotoSmartAlbum", "iPhotoAlbum",
          "iPhotoBook", "iPhotoSlideshow", "BookmarksBar", "BookmarksMenu", "Folder16", "Backup",
          "ConvertWaiting", "ConvertWorking1", "ConvertFailed"}) {
        EXPECT_EQ(transformer.transformedValue(QString::fromLatin1(name)).size(), QSize(16, 16))
            << name;
    }
}

TEST(QMIconTransformer, ReadsFilesAndNeverGivesNothing)
{
    const TemporaryFolder folder;
    const QString picture = folder / QStringLiteral("ICON0.PNG");
    ASSERT_TRUE(QImage(144, 80, QImage::Format_RGB32).save(picture));
    writeFile(folder / QStringLiteral("resources/Backup.png"), "damaged");
    const QMIconTransformer transformer(folder / QStringLiteral("resources"));
    EXPECT_EQ(transformer.transformedValue(picture).size(), QSize(144, 80));
    writeFile(folder / QStringLiteral("cut.png"), readFile(picture).first(60));
    for (const QString &icon :
         {QString(), QStringLiteral("Backup"), QStringLiteral("None"), QStringLiteral("../ICON0"),
          folder.path(), folder / QStringLiteral("cut.png"), folder / QStringLiteral("none.png"),
          QStringLiteral("/dev/zero")})
        EXPECT_EQ(transformer.transformedValue(icon).size(), QSize(1, 1)) << qPrintable(icon);
}
