#include "util/Folders.h"

#include "util/Settings.h"
#include "util/StringTools.h"

namespace Folders {

QString documents()
{
    const QString parent = StringTools::expandingTilde(Settings::caravelFolder());
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
