#include "util/Folders.h"

#include "util/Settings.h"
#include "util/StringTools.h"

#include <QDir>
#include <QStandardPaths>

namespace Folders {

namespace {

// Who wants no such folder makes the home it.
QString userFolder(QStandardPaths::StandardLocation location, const QString &otherwise)
{
    const QString folder = QDir::cleanPath(QStandardPaths::writableLocation(location));
    const QString home = StringTools::expandingTilde(QStringLiteral("~"));
    return folder.startsWith(u'/') && folder != home ? folder : home + u'/' + otherwise;
}

} // namespace

QString music()
{
    return userFolder(QStandardPaths::MusicLocation, QStringLiteral("Music"));
}

QString pictures()
{
    return userFolder(QStandardPaths::PicturesLocation, QStringLiteral("Pictures"));
}

bool isPlace(const QString &setting)
{
    return setting.startsWith(u'/') || setting == u"~" || setting.startsWith(u"~/");
}

QString documents()
{
    const QString setting = Settings::caravelFolder();
    const QString parent = StringTools::expandingTilde(
        isPlace(setting) ? setting : QString::fromUtf8(Settings::caravelFolder.defaultValue));
    return StringTools::appendingPathComponent(StringTools::standardizingPath(parent),
                                               QStringLiteral("Caravel"));
}

QString support()
{
    return StringTools::expandingTilde(QStringLiteral("~/Library/Application Support/Caravel"));
}

QString dropbox(const QString &name)
{
    return documents() + QStringLiteral("/Dropboxes/") + name;
}

} // namespace Folders
