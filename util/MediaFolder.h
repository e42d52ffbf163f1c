#pragma once

#include "platform/files/FileManager.h"

#include <QSet>
#include <QStringList>

#include <optional>
#include <vector>

/// A folder of the user's, with media in it, as a source of them: its visible files. What is hidden
/// is passed over, links to folders are not followed. Folders go by their paths below it, and it
/// itself by its own name.
class MediaFolder
{
public:
    enum class Detail {
        Names,
        Sizes, ///< what FolderEntry has only where sizes were asked for
    };

    /// Fails where the folder is missing or, which the system log then says, can't be read. Any
    /// thread.
    static FileResult<MediaFolder> read(const QString &folder, Detail detail);

    /// Its path as it was given, and the same with links followed.
    const QString &givenPath() const { return m_given; }
    const QString &path() const { return m_path; }

    /// In byte order of paths; valid as long as the folder, also a moved one.
    const std::vector<const FolderEntry *> &files() const { return m_files; }

    /// What the folder goes by that has that index among the entries; -1: the folder itself.
    QString nameOf(int folder) const;

    /// Why a folder inside can't be read that is one of these, or holds one of them. Each is the
    /// name of a folder, with or without "/" behind it.
    std::optional<FileError> unreadableAmong(const QSet<QString> &names) const;

private:
    MediaFolder(QString given, QString path)
        : m_given(std::move(given))
        , m_path(std::move(path))
    {
    }
    void sortOut();

    QString m_given;
    QString m_path;
    std::vector<FolderEntry> m_entries;
    std::vector<const FolderEntry *> m_files;
    QStringList m_empty; // folders without entries, or such as can't be read
};
