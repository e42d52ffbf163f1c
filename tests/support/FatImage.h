#pragma once

#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QProcess>

/// A real file system of the FAT family (exFAT) on a loop device, mounted while the object lives.
/// Needs root, loop devices and FUSE.
class FatImage
{
public:
    /// `options` are mkfs.exfat's.
    FatImage(QString image, qint64 bytes, const QStringList &options = {})
        : m_image(std::move(image))
    {
        writeFile(m_image, {});
        QFile::resize(m_image, bytes);
        m_isFormatted = output(u"mkfs.exfat"_s, options + QStringList{m_image}).has_value();
    }
    ~FatImage()
    {
        if (!m_folder.isEmpty())
            output(u"umount"_s, {u"-l"_s, m_folder});
        if (m_device)
            output(u"losetup"_s, {u"-d"_s, *m_device});
    }
    Q_DISABLE_COPY_MOVE(FatImage)

    /// False where this machine doesn't let us.
    bool mount(const QString &folder)
    {
        QDir().mkpath(folder);
        if (m_isFormatted)
            m_device = output(u"losetup"_s, {u"-f"_s, u"--show"_s, m_image});
        if (!m_device || !output(u"mount.exfat-fuse"_s, {*m_device, folder}))
            return false;
        m_folder = folder;
        return true;
    }
    /// Unmounts and mounts in the same place, as what another computer has done comes back.
    bool remount()
    {
        return output(u"umount"_s, {m_folder}) &&
               output(u"mount.exfat-fuse"_s, {*m_device, m_folder});
    }

private:
    /// What the command prints; nothing where it fails.
    static std::optional<QString> output(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.start(program, arguments);
        if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit ||
            process.exitCode() != 0)
            return std::nullopt;
        return QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed();
    }

    const QString m_image;
    bool m_isFormatted = false;
    std::optional<QString> m_device;
    QString m_folder;
};
