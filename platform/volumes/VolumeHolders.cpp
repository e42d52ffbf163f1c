#include "platform/volumes/VolumeHolders.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <climits>
#include <unistd.h>

namespace {

/// What a link of /proc leads to, as its text; empty where that may not be read.
QString leadsTo(const QString &link)
{
    char target[PATH_MAX];
    const ssize_t size = ::readlink(QFile::encodeName(link).constData(), target, sizeof target);
    return size > 0 ? QFile::decodeName(QByteArray(target, static_cast<qsizetype>(size)))
                    : QString();
}

bool isOn(const QString &path, const QString &volume)
{
    return path == volume || path.startsWith(volume + u'/');
}

QString mappedOn(const QString &process, const QString &volume)
{
    QFile maps(process + QStringLiteral("/maps"));
    if (!maps.open(QIODevice::ReadOnly))
        return {};
    // Address, rights, offset, device and inode come before the path.
    for (const QByteArray &line : maps.readAll().split('\n')) {
        const QString path = QFile::decodeName(line.mid(line.indexOf('/')));
        if (line.contains('/') && isOn(path, volume))
            return path;
    }
    return {};
}

QString heldBy(const QString &process, const QString &volume)
{
    const QString descriptors = process + QStringLiteral("/fd");
    QStringList links =
        QDir(descriptors).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System);
    for (QString &link : links)
        link = descriptors + u'/' + link;
    for (const char *link : {"/cwd", "/root", "/exe"})
        links.append(process + QString::fromLatin1(link));
    for (const QString &link : links) {
        if (const QString path = leadsTo(link); isOn(path, volume))
            return path;
    }
    return mappedOn(process, volume);
}

QString programOf(const QString &process)
{
    QFile name(process + QStringLiteral("/comm"));
    return name.open(QIODevice::ReadOnly) ? QString::fromLocal8Bit(name.readAll()).trimmed()
                                          : QString();
}

} // namespace

std::vector<VolumeHolder> volumeHolders(const QString &volume)
{
    std::vector<VolumeHolder> holders;
    for (const QString &entry : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        bool isProcess = false;
        const qint64 number = entry.toLongLong(&isProcess);
        const QString process = QStringLiteral("/proc/") + entry;
        if (!isProcess)
            continue;
        if (const QString path = heldBy(process, volume); !path.isEmpty())
            holders.push_back({number, programOf(process), path});
    }
    std::ranges::sort(holders, {}, &VolumeHolder::process);
    return holders;
}
