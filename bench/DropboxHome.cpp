#include "DropboxHome.h"

#include "util/Settings.h"

#include <QDir>
#include <QFile>
#include <QProcess>

namespace {

void execute(const QString &program, const QStringList &arguments)
{
    if (QProcess::execute(program, arguments) != 0)
        qFatal("%s failed", qPrintable(program));
}

} // namespace

DropboxHome::DropboxHome(const Shape &shape)
    : m_shape(shape)
    , m_helper(m_folder.path())
{
    Settings::syncOnMount.set(false);
    Settings::firmwareVersion.set(0);
    fill(shape);
    QDir().mkpath(volume());
    if (shape.image > 0)
        mountImage(shape.image);
    emptyStick();
    m_helper.volumes.mount(volume());
}

DropboxHome::~DropboxHome()
{
    settle();
    if (m_shape.image > 0)
        execute(QStringLiteral("umount"), {volume()});
}

void DropboxHome::fill(const Shape &shape) const
{
    for (int i = 0; i < shape.files; ++i) {
        const QString folder =
            sources() + QStringLiteral("/Some Album %1").arg(i / shape.perFolder);
        if (i % shape.perFolder == 0)
            QDir().mkpath(folder);
        QFile file(folder + QStringLiteral("/105. A Song %1.mp3").arg(i));
        if (!file.open(QIODevice::WriteOnly) ||
            file.write(QByteArray(shape.bytes, static_cast<char>(i))) != shape.bytes)
            qFatal("can't write %s", qPrintable(file.fileName()));
    }
}

void DropboxHome::mountImage(qint64 bytes) const
{
    const QString image = m_folder / QStringLiteral("image");
    QFile file(image);
    if (!file.open(QIODevice::WriteOnly) || !file.resize(bytes))
        qFatal("can't write %s", qPrintable(image));
    file.close();
    execute(QStringLiteral("mkfs.ext4"), {QStringLiteral("-q"), QStringLiteral("-F"), image});
    execute(QStringLiteral("mount"),
            {QStringLiteral("-o"), QStringLiteral("loop"), image, volume()});
}

void DropboxHome::emptyStick() const
{
    QDir(volume() + QStringLiteral("/PSP")).removeRecursively();
    QDir(volume() + QStringLiteral("/.caravel")).removeRecursively();
    QDir().mkpath(music());
    if (!QFile(volume() + QStringLiteral("/MEMSTICK.IND")).open(QIODevice::WriteOnly))
        qFatal("can't write the stick");
}

void DropboxHome::select(bool everything)
{
    Settings::syncDropboxes.set(everything);
}

void DropboxHome::sync()
{
    if (!m_helper.sync())
        qFatal("the run did not complete");
}
