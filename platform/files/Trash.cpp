#include "platform/files/Trash.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

constexpr qint64 longestInfo = 64 << 10;
const QByteArray pathKey = "Path=";
const QByteArray dateKey = "DeletionDate=";

struct Entry
{
    QString info;    ///< the file that tells of it
    QByteArray path; ///< where it was
    QByteArray date;
};

Entry entryIn(const QString &info)
{
    QFile file(info);
    Entry entry{info, {}, {}};
    if (!file.open(QIODevice::ReadOnly))
        return entry;
    for (const QByteArray &line : file.read(longestInfo).split('\n')) {
        if (line.startsWith(pathKey))
            entry.path = line.mid(pathKey.size());
        else if (line.startsWith(dateKey))
            entry.date = line.mid(dateKey.size());
    }
    return entry;
}

// The rules have the path percent-encoded; the toolkit writes it as it is.
bool isFrom(const Entry &entry, const QByteArray &path)
{
    return entry.path == path || QByteArray::fromPercentEncoding(entry.path) == path;
}

} // namespace

bool Trash::putBack(const QString &path)
{
    const QString trash = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                          QStringLiteral("/Trash");
    Entry newest;
    for (const QFileInfo &info : QDir(trash + QStringLiteral("/info"))
                                     .entryInfoList({QStringLiteral("*.trashinfo")}, QDir::Files)) {
        const Entry entry = entryIn(info.filePath());
        if (isFrom(entry, path.toUtf8()) && entry.date >= newest.date)
            newest = entry;
    }
    const QFileInfo there(path);
    if (newest.info.isEmpty() || there.exists() || there.isSymLink())
        return false;
    const QString name = QFileInfo(newest.info).completeBaseName();
    if (!QFile::rename(trash + QStringLiteral("/files/") + name, path))
        return false;
    QFile::remove(newest.info);
    return true;
}
