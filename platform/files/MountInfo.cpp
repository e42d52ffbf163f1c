#include "platform/files/own/MountInfo.h"

#include "platform/core/own/Posix.h"

#include <QFile>
#include <QList>

#include <fcntl.h>
#include <sys/stat.h>

#include <optional>

namespace {

/// The mount's number where the kernel tells it (since 5.8), else its device.
struct Mount
{
    QByteArray id;
    QByteArray device;
};

std::optional<Mount> mountOf(const QString &path)
{
    struct statx status = {};
    if (::statx(AT_FDCWD, Posix::native(path).constData(), 0, STATX_BASIC_STATS | STATX_MNT_ID,
                &status) != 0)
        return std::nullopt;
    const bool hasId = (status.stx_mask & STATX_MNT_ID) != 0;
    return Mount{hasId ? QByteArray::number(qulonglong(status.stx_mnt_id)) : QByteArray(),
                 QByteArray::number(status.stx_dev_major) + ':' +
                     QByteArray::number(status.stx_dev_minor)};
}

bool isLineOf(const QList<QByteArray> &fields, const Mount &mount)
{
    return mount.id.isEmpty() ? fields[2] == mount.device : fields[0] == mount.id;
}

/// What stands behind the separator, and so behind any number of optional fields: the type, the
/// source, the file system's options. Empty where there is no such line.
QList<QByteArray> fileSystemOf(const QString &path)
{
    const auto mount = mountOf(path);
    QFile table(QStringLiteral("/proc/self/mountinfo"));
    if (!mount || !table.open(QIODevice::ReadOnly))
        return {};
    for (const QByteArray &line : table.readAll().split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        const qsizetype separator = fields.indexOf("-");
        if (separator > 2 && isLineOf(fields, *mount))
            return fields.mid(separator + 1);
    }
    return {};
}

} // namespace

QByteArray MountInfo::typeOf(const QString &path)
{
    return fileSystemOf(path).value(0);
}

QByteArrayList MountInfo::optionsOf(const QString &path)
{
    return fileSystemOf(path).value(2).split(',');
}
