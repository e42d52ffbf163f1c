#include "modules/bookmarks/own/BrowserProfiles.h"

#include "platform/files/FileManager.h"
#include "util/QMINIParser.h"
#include "util/Settings.h"
#include "util/StringTools.h"

#include <QStandardPaths>
#include <QStringList>

#include <algorithm>

namespace {

QString inHome(const char *path)
{
    return StringTools::expandingTilde(QStringLiteral("~/") + QString::fromLatin1(path));
}

QString inConfiguration(const char *path)
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u'/' +
           QString::fromLatin1(path);
}

/// The first of the folders that holds the file, with it; empty: none.
QString firstWith(const QStringList &folders, const QString &file)
{
    for (const QString &folder : folders) {
        const QString path = StringTools::appendingPathComponent(folder, file);
        if (files().exists(path))
            return path;
    }
    return {};
}

/// The profiles that the setting may mean: a path, or a name below one of the roots.
QStringList namedProfiles(const QString &name, const QStringList &roots)
{
    const QString path = StringTools::expandingTilde(name);
    if (path.startsWith(u'/'))
        return {path};
    QStringList profiles;
    for (const QString &root : roots)
        profiles += {root + u'/' + name, root + QStringLiteral("/Profiles/") + name};
    return profiles;
}

using Ini = QHash<QString, QString>;

Ini readIni(const QString &path)
{
    return QMINIParser::parseINI(path).valueOr({});
}

/// The values of the keys that end so, in the order of the keys.
QStringList valuesOf(const Ini &ini, const QString &front, const QString &end)
{
    QStringList keys = ini.keys();
    keys.sort();
    QStringList values;
    for (const QString &key : keys) {
        if (key.startsWith(front) && key.endsWith(end))
            values.append(ini.value(key));
    }
    return values;
}

/// Most likely first.
QStringList firefoxProfilesIn(const QString &root)
{
    const Ini profiles = readIni(root + QStringLiteral("/profiles.ini"));
    const QString byDefault = QStringLiteral("-Default");
    QStringList paths = valuesOf(readIni(root + QStringLiteral("/installs.ini")), {}, byDefault);
    paths += valuesOf(profiles, QStringLiteral("Install"), byDefault);
    QStringList others;
    for (int i = 0; profiles.contains(QStringLiteral("Profile%1-Path").arg(i)); ++i) {
        const QString section = QStringLiteral("Profile%1").arg(i);
        const QString path = profiles.value(section + QStringLiteral("-Path"));
        const bool isDefault = profiles.value(section + byDefault) == u"1";
        (isDefault ? paths : others).append(path);
    }
    paths += others;
    for (QString &path : paths)
        path = path.startsWith(u'/') ? path : root + u'/' + path;
    return paths;
}

/// The one that every new user has, then the others by name.
QStringList chromiumProfilesIn(const QString &root)
{
    QStringList paths{root + QStringLiteral("/Default")};
    for (const FolderEntry &entry : files().entries(root)) {
        if (entry.isFolder && entry.path.startsWith(u"Profile "))
            paths.append(root + u'/' + entry.path);
    }
    return paths;
}

QString found(const QStringList &roots, QStringList (*profilesIn)(const QString &),
              const QString &file)
{
    if (const QString name = Settings::bookmarkProfile(); !name.isEmpty())
        return firstWith(namedProfiles(name, roots), file);
    for (const QString &root : roots) {
        if (const QString path = firstWith(profilesIn(root), file); !path.isEmpty())
            return path;
    }
    return {};
}

} // namespace

QString BrowserProfiles::firefoxDatabase()
{
    return found({inHome(".mozilla/firefox"), inConfiguration("mozilla/firefox"),
                  inHome("snap/firefox/common/.mozilla/firefox"),
                  inHome(".var/app/org.mozilla.firefox/.mozilla/firefox"),
                  inHome(".var/app/org.mozilla.firefox/config/mozilla/firefox")},
                 firefoxProfilesIn, QStringLiteral("places.sqlite"));
}

QString BrowserProfiles::chromiumFile()
{
    return found({inConfiguration("chromium"), inConfiguration("google-chrome"),
                  inConfiguration("BraveSoftware/Brave-Browser"), inConfiguration("microsoft-edge"),
                  inHome("snap/chromium/common/chromium"),
                  inHome(".var/app/org.chromium.Chromium/config/chromium")},
                 chromiumProfilesIn, QStringLiteral("Bookmarks"));
}
