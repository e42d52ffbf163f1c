#pragma once

#include "platform/files/FileManager.h"

#include <QDateTime>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <set>

class PreferencesFile;
struct PreferencesContents;

/// The user's preferences store: one domain of our own, a layer of registered defaults below it,
/// and access to other programs' domains. A domain is the property list "<name>.plist" in the
/// user's preferences folder.
///
/// Reads come from memory and never touch the disk; synchronize() brings memory and file together.
/// Values of another type than asked for are converted as the platform does: a bool from "YES",
/// "true", "1" or any number but 0; a number from its text (leading blanks and trailing text are
/// passed over, anything else is 0); a string from a number.
/// All reads and writes may come from any thread; a store is made and destroyed on the main thread.
class UserDefaults : public QObject
{
    Q_OBJECT
public:
    /// `folder` is where the domains' files lie. The domain's file is read at once.
    UserDefaults(const QString &domain, const QString &folder, QObject *parent = nullptr);
    ~UserDefaults() override;

    /// The store of the shared domain "org.caravel.Caravel" under $HOME/Library/Preferences, made
    /// at the first call (main thread).
    static UserDefaults &standard();

    /// For tests: the store that standard() answers from now on (not owned); nullptr makes
    /// standard() build a new one from the current $HOME.
    static void setStandard(UserDefaults *store);

    /// False while the file is there and can't be read: what is answered then are values read
    /// before, or the registered ones.
    bool isReadable() const { return m_isReadable; }

    /// Whether a damaged file had to be set aside, by any process and at any time; the user may
    /// take it away from there. Any thread; asks the disk.
    bool wasSetAside() const;

    /// Values for keys that nobody has set; kept in memory only.
    void registerDefaults(const QVariantMap &defaults);

    /// The set value, else the registered one, else an invalid variant.
    QVariant object(const QString &key) const;
    bool boolForKey(const QString &key) const;
    qint64 integerForKey(const QString &key) const;
    quint64 unsignedForKey(const QString &key) const;
    QString stringForKey(const QString &key) const;
    std::optional<QDateTime> dateForKey(const QString &key) const;
    /// Whether any key that begins so is set; registered ones don't count.
    bool isAnySet(QStringView prefix) const;
    /// Nothing where the key is absent or no array; entries that are no strings are left out.
    std::optional<QStringList> stringArrayForKey(const QString &key) const;

    /// Sets a key for this process; an invalid variant removes it. When that changes anything,
    /// changed() follows on the main thread. Dates keep whole seconds. A value of a type that no
    /// property list can hold changes nothing and is named in the system log. Written to the file
    /// by the next synchronize().
    void setObject(const QString &key, const QVariant &value);

    /// Writes this process's changes into the file (only the keys changed here; all else in the
    /// file stays) and reads what others wrote. Atomic, and safe against other processes and
    /// threads that do the same. False when the file could not be written, or another writer kept
    /// it locked for so long: the changes are kept for the next time, which in the latter case
    /// comes by itself in a second. A file that can't be parsed is kept aside as
    /// "<name>.plist.unreadable", said once in the system log; one that can't be read from the disk
    /// is left as it is, and nothing is written over it. Does not emit changed().
    bool synchronize(std::chrono::milliseconds patience = std::chrono::milliseconds(100));

    /// Another domain, read from its file at each call. Errors are those of readPropertyList(); one
    /// but that it is missing is in the system log, and the file is left alone.
    FileResult<QVariantMap> persistentDomain(const QString &name) const;

    /// Has another domain's values edited and replaces its file whole, atomically, with no other
    /// process of ours in between; a missing domain is edited as an empty one. Nothing is written
    /// where the edit leaves what the file has. A domain that can't be read is named in the system
    /// log and left alone, as one is that `edit` answers false for. False where the file does not
    /// hold the edited values afterwards.
    bool editPersistentDomain(const QString &name, const std::function<bool(QVariantMap &)> &edit);

Q_SIGNALS:
    /// A value was set in this process. Main thread, after setObject() has returned; several
    /// changes may share one signal.
    void changed();

private:
    void announce();
    QVariantMap ownChanges() const;
    bool exchange(const QVariantMap &changes, std::chrono::milliseconds patience);
    void tryAgainSoon();
    bool write(const QVariantMap &values);
    void adopt(const QVariantMap &contents, const QVariantMap &written);
    std::optional<QVariantMap> readFile(std::chrono::milliseconds patience);
    std::optional<QVariantMap> readLockedFile();
    std::optional<QVariantMap> valuesOf(const PreferencesContents &contents);
    bool writingFailed(const FileError &error);

    const QString m_folder;
    const std::unique_ptr<const PreferencesFile> m_file;
    std::atomic<bool> m_notificationQueued = false;
    std::atomic<bool> m_retryQueued = false;
    std::atomic<bool> m_isReadable = true; // as the last read found the file

    std::mutex m_synchronizing; // held through a synchronize(), before m_mutex; guards what follows
    std::optional<FileStamp> m_lastRead;
    bool m_saidUnreadable = false;
    bool m_saidUnwritable = false;

    mutable std::mutex m_mutex; // guards what follows; held for copies only
    QVariantMap m_registered;
    QVariantMap m_stored;      // the file's contents with our changes applied
    std::set<QString> m_dirty; // keys set or removed here since the last successful write
};
