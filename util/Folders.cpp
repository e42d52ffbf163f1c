#include "util/Folders.h"

#include "util/Settings.h"
#include "util/StringTools.h"

namespace Folders {

QString documents()
{
    QString parent = StringTools::expandingTilde(Settings::caravelFolder());
    if (!parent.startsWith(u'/'))
        parent =
            StringTools::expandingTilde(QString::fromUtf8(Settings::caravelFolder.defaultValue));
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
