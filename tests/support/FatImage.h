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
        m_isFormatted =
            output(QStringLiteral("mkfs.exfat"), options + QStringList{m_image}).has_value();
    }
    ~FatImage()
    {
        if (!m_folder.isEmpty())
            output(QStringLiteral("umount"), {QStringLiteral("-l"), m_folder});
        if (m_device)
            output(QStringLiteral("losetup"), {QStringLiteral("-d"), *m_device});
    }
    FatImage(const FatImage &) = delete;
    FatImage &operator=(const FatImage &) = delete;

    /// False where this machine doesn't let us.
    bool mount(const QString &folder)
    {
        QDir().mkpath(folder);
        if (m_isFormatted)
            m_device = output(QStringLiteral("losetup"),
                              {QStringLiteral("-f"), QStringLiteral("--show"), m_image});
        if (!m_device || !output(QStringLiteral("mount.exfat-fuse"), {*m_device, folder}))
            return false;
        m_folder = folder;
        return true;
    }
    /// Unmounts and mounts in the same place, as what another computer has done comes back.
    bool remount()
    {
        return output(QStringLiteral("umount"), {m_folder}) &&
               output(QStringLiteral("mount.exfat-fuse"), {*m_device, m_folder});
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
