#include "platform/desktop/Autostart.h"

#include "platform/core/Log.h"
#include "platform/files/FileManager.h"

#include <QDir>
#include <QFile>

namespace {

QString folder()
{
    return qEnvironmentVariable("HOME") + QStringLiteral("/.config/autostart");
}

QString pathOf(const QString &entry)
{
    return folder() + u'/' + entry + QStringLiteral(".desktop");
}

QString escaped(QString text)
{
    return text.replace(u'\\', QStringLiteral("\\\\")).replace(u'\n', QStringLiteral("\\n"));
}

// An argument of the key Exec: quoted for the command line, its percent signs doubled since they
// mark fields, and then all of it escaped as a string of the file is.
QString quoted(const QString &argument)
{
    QString text;
    for (const QChar c : argument) {
        if (c == u'"' || c == u'`' || c == u'$' || c == u'\\')
            text += u'\\';
        if (c == u'%')
            text += u'%';
        text += c;
    }
    return u'"' + escaped(text) + u'"';
}

// TryExec: an entry that outlives the program starts nothing.
QByteArray contents(const QString &name, const QString &executable)
{
    return QStringLiteral("[Desktop Entry]\n"
                          "Type=Application\n"
                          "Name=%1\n"
                          "Icon=org.caravel.Caravel\n"
                          "Exec=%2\n"
                          "TryExec=%3\n"
                          "NoDisplay=true\n"
                          "X-GNOME-Autostart-enabled=true\n")
        .arg(name, quoted(executable), escaped(executable))
        .toUtf8();
}

bool hasContents(const QString &path, const QByteArray &wanted)
{
    const auto limit = static_cast<quint64>(wanted.size());
    const auto contents = files().readFile(path, limit);
    return contents && *contents == wanted;
}

} // namespace

bool Autostart::add(const QString &entry, const QString &name, const QString &executable)
{
    const QString path = pathOf(entry);
    const QByteArray wanted = contents(name, executable);
    if (hasContents(path, wanted))
        return true;
    QDir().mkpath(folder());
    const auto written = files().writeAtomically(path, wanted);
    if (written)
        return true;
    qCWarning(lcPlatform).noquote() << "Can't write" << path << "-" << written.error().text;
    return false;
}

bool Autostart::remove(const QString &entry)
{
    QFile file(pathOf(entry));
    if (!file.exists() || file.remove())
        return true;
    qCWarning(lcPlatform).noquote()
        << "Can't remove" << file.fileName() << "-" << file.errorString();
    return false;
}
