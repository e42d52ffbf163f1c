#include "util/Folders.h"

#include "util/Settings.h"
#include "util/StringTools.h"

namespace Folders {

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
