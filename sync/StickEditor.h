#pragma once

#include "platform/volumes/VolumeIdentity.h"
#include "sync/ItemPlacer.h"

#include <QHash>
#include <QString>

#include <functional>
#include <optional>

/// The only hands that write or remove on a stick. Before each change it is asked whether that very
/// stick still lies at its path; where it doesn't, nothing happens and nothing is reported but by
/// `whenGone`. No link on the stick is followed: what would go through one fails with FollowLink.
/// Paths are absolute and lie on the volume; others are refused. One thread at a time.
class StickEditor : public ItemPlacer
{
public:
    /// For the stick that lies at the volume's path now.
    explicit StickEditor(const QString &volume);
    /// For the one that was seen there before.
    StickEditor(QString volume, std::optional<VolumeIdentity> identity);

    const QString &volume() const { return m_volume; }

    /// Called each time that the stick is found gone, or no longer to be written.
    void setWhenGone(std::function<void()> whenGone) { m_whenGone = std::move(whenGone); }

    /// Whether that very stick still lies at its path. One that was lost once stays it.
    bool isPresent();

    /// Whether a failure says that the stick has gone or has turned read-only, rather than that one
    /// of its files can't be had. It is lost then.
    bool isLostBy(const FileError &error);

    /// Makes the folder and every missing one on the way; what is there already is fine.
    FileResult<> makeFolders(const QString &path);

    /// Replaces a small file whole, with the folder that holds it. Nothing is written where it
    /// holds the same already.
    FileResult<> write(const QString &path, const QByteArray &contents);

    // As FileManager's, for which a handler may be null.
    bool remove(const QString &path, FileOperationHandler *handler);
    bool removeEmptyFolder(const QString &path, FileOperationHandler *handler);
    bool copyTree(const QString &source, const QString &destination, FileOperationHandler &handler);
    bool move(const QString &source, const QString &destination, FileOperationHandler &handler);

    CopyOutcome place(const CVSyncItem &item, FileOperationHandler &handler) override;

    /// The month's picture for the volume and the mark that makes file managers show it; `icon` is
    /// the file to take it from.
    void setIcon(const QString &icon);

    /// Writes what is buffered to the device, where anything was changed.
    FileResult<> flush();

    /// The first folder on the way to the path, itself left out, that is a link; empty: none. What
    /// was seen once is remembered.
    QString linkOnTheWayTo(const QString &path);

private:
    std::optional<FileError> obstacleTo(FileError::Operation operation, const QString &path);
    bool mayChange(FileError::Operation operation, const QString &path,
                   FileOperationHandler *handler);
    QString linkAtOrAbove(const QString &folder);
    bool lose();

    const QString m_volume;
    const std::optional<VolumeIdentity> m_identity;
    std::function<void()> m_whenGone;
    bool m_isLost = false;
    bool m_isToFlush = false;
    QHash<QString, QString> m_links; // per folder, the link at or above it
    QString m_lastFolder;            // that something was copied into
};
