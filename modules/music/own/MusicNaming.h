#pragma once

#include "modules/music/MusicLibrary.h"
#include "util/Settings.h"

#include <QString>
#include <QStringView>

#include <string_view>
#include <unordered_map>

/// Folder and file names of tracks on the stick, for one library and one pair of settings.
class MusicNaming
{
public:
    MusicNaming(Settings::MusicFolders folders, Settings::MusicPrefix prefix);

    /// Names from here on are those of this playlist's tracks.
    void beginPlaylist(const QString &name);

    /// "folder/file" of the playlist's track at the position (from 0), which `suffix` (the
    /// extension with its dot) will follow. Neither component leaves its place or is too long.
    QString relativePath(const MusicLibrary::Track &track, int position, QStringView suffix);

    /// What a file of that extension is called on the stick: "M4A" and "AAC" become "MP4".
    static QString extensionOnStick(QStringView extension);

    /// Whether the stick plays files of that extension; any case.
    static bool isPlayable(QStringView extension, qint64 firmwareVersion);

private:
    // What an artist or an album is called in file names, and as a folder.
    struct Name
    {
        QString sanitized;
        QString folder;
    };

    static Name nameOf(const QString &text);
    const Name &nameOf(const MusicLibrary::Text &text);
    QString folder(const MusicLibrary::Track &track);
    void appendPrefix(QString &file, const MusicLibrary::Track &track, int position) const;

    const Settings::MusicFolders m_folders;
    const Settings::MusicPrefix m_prefix;
    const Name m_unsorted;
    QString m_playlist; // as a folder
    // Artists and albums recur with every track of theirs. The keys are texts of the library.
    std::unordered_map<std::string_view, Name> m_names;
};
