#pragma once

#include "platform/files/FileLock.h"
#include "platform/files/FileManager.h"

#include <QVariantMap>

#include <chrono>
#include <optional>

/// What a look at a domain's file found.
struct PreferencesContents
{
    enum class State {
        Read,
        Absent,
        Damaged, ///< it is there, but no list, or none with a dictionary as its root
        NoAccess ///< the disk says nothing of what it holds: nothing may be written over it
    };
    State state = State::Absent;
    QVariantMap values = {}; ///< empty where nothing was read
    FileError error = {};    ///< of all but the first

    bool canBeReplaced() const { return state == State::Read || state == State::Absent; }
};

/// The file of one domain: the property list "<domain>.plist" in the preferences folder, and the
/// lock beside it. Writers hold the lock; who only reads needs none, since the file is replaced
/// whole. Any thread.
class PreferencesFile
{
public:
    PreferencesFile(const QString &folder, const QString &domain);

    const QString &path() const { return m_path; }

    PreferencesContents read() const;

    /// Keeps all other writers away while the lock lives; makes the folder where it is missing.
    /// Fails, for logs with the text, where that takes longer than the limit (with EWOULDBLOCK).
    FileResult<FileLock> lock(std::chrono::milliseconds limit) const;

    /// Replaces the file, atomically.
    FileResult<> write(const QVariantMap &values) const;

    /// Under the lock: keeps the file as "<domain>.plist.unreadable", with a number behind it where
    /// earlier ones are kept. The new path; nothing where the file had to stay.
    std::optional<QString> setAside() const;
    bool wasSetAside() const;

    /// Tells that the file is still the one that was read; nothing where there is none.
    std::optional<FileStamp> stamp() const { return files().stamp(m_path); }

private:
    const QString m_folder;
    const QString m_path;
    const QString m_lockPath;
};
