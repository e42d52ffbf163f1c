#include "platform/lists/UserDefaults.h"

#include "platform/core/Log.h"
#include "platform/core/MainThread.h"
#include "platform/lists/PropertyList.h"
#include "platform/lists/own/PreferenceValues.h"
#include "platform/lists/own/PreferencesFile.h"

#include <QDir>
#include <QTimer>

#include <cerrno>
#include <chrono>
#include <utility>

using namespace PreferenceValues;

namespace {

std::atomic<UserDefaults *> standardStore = nullptr;
std::mutex standardMutex;
UserDefaults *builtStore = nullptr; // ours to delete; under standardMutex

qint64 nanosecondsNow()
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
}

} // namespace

UserDefaults::UserDefaults(const QString &domain, const QString &folder, QObject *parent)
    : QObject(parent)
    , m_folder(folder)
    , m_file(std::make_unique<const PreferencesFile>(folder, domain))
{
    synchronize();
}

UserDefaults::~UserDefaults() = default;

UserDefaults &UserDefaults::standard()
{
    if (UserDefaults *store = standardStore.load())
        return *store;
    const std::scoped_lock lock(standardMutex);
    if (!builtStore) {
        builtStore = new UserDefaults(QStringLiteral("org.caravel.Caravel"),
                                      QDir::homePath() + QStringLiteral("/Library/Preferences"));
    }
    standardStore = builtStore;
    return *builtStore;
}

void UserDefaults::setStandard(UserDefaults *store)
{
    const std::scoped_lock lock(standardMutex);
    standardStore = store;
    delete builtStore;
    builtStore = nullptr;
}

void UserDefaults::registerDefaults(const QVariantMap &defaults)
{
    const QVariantMap values = asStored(defaults).toMap();
    const std::scoped_lock lock(m_mutex);
    m_registered.insert(values);
}

QVariant UserDefaults::object(const QString &key) const
{
    const std::scoped_lock lock(m_mutex);
    const auto stored = m_stored.constFind(key);
    return stored != m_stored.constEnd() ? *stored : m_registered.value(key);
}

bool UserDefaults::boolForKey(const QString &key) const
{
    return toBool(object(key));
}

qint64 UserDefaults::integerForKey(const QString &key) const
{
    return toInteger(object(key));
}

quint64 UserDefaults::unsignedForKey(const QString &key) const
{
    return toUnsigned(object(key));
}

QString UserDefaults::stringForKey(const QString &key) const
{
    return toText(object(key));
}

std::optional<QDateTime> UserDefaults::dateForKey(const QString &key) const
{
    const QVariant value = object(key);
    if (value.typeId() != QMetaType::QDateTime)
        return std::nullopt;
    return value.toDateTime();
}

std::optional<QStringList> UserDefaults::stringArrayForKey(const QString &key) const
{
    const QVariant value = object(key);
    if (value.typeId() != QMetaType::QVariantList)
        return std::nullopt;
    return PropertyList::stringsIn(value.toList());
}

bool UserDefaults::isAnySet(QStringView prefix) const
{
    const std::scoped_lock lock(m_mutex);
    const auto first = m_stored.lowerBound(prefix.toString());
    return first != m_stored.end() && first.key().startsWith(prefix);
}

bool UserDefaults::wasSetAside() const
{
    return m_file->wasSetAside();
}

void UserDefaults::setObject(const QString &key, const QVariant &value)
{
    const QVariant stored = asStored(value);
    if (value.isValid() && !stored.isValid()) {
        qCWarning(lcPlatform).noquote()
            << "no preference can hold the value given for" << key << "of type" << value.typeName();
        return;
    }
    {
        const std::scoped_lock lock(m_mutex);
        if (areEqual(m_stored.value(key), stored))
            return;
        apply({{key, stored}}, m_stored);
        m_dirty.insert(key);
    }
    if (m_notificationQueued.exchange(true))
        return;
    performOnMainThread(
        this, [this] { announce(); }, CallMode::DontWait);
}

void UserDefaults::announce()
{
    // Before the signal: what is set from now on wants another one.
    m_notificationQueued = false;
    Q_EMIT changed();
}

bool UserDefaults::synchronize(std::chrono::milliseconds patience)
{
    const std::scoped_lock lock(m_synchronizing);
    const QVariantMap changes = ownChanges();
    const std::optional<FileStamp> stamp = m_file->stamp();
    if (changes.isEmpty() && stamp && stamp == m_lastRead)
        return true;
    const bool done = exchange(changes, patience);
    // Files replaced within one tick of their file system's clock look alike: only a file that had
    // been at rest can be known again.
    constexpr qint64 rest = 3'000'000'000;
    const bool wasAtRest = stamp && stamp->modified < nanosecondsNow() - rest;
    m_lastRead = changes.isEmpty() && wasAtRest ? stamp : std::nullopt;
    return done;
}

/// The keys changed here with their values; invalid for a removed one.
QVariantMap UserDefaults::ownChanges() const
{
    const std::scoped_lock lock(m_mutex);
    QVariantMap changes;
    for (const QString &key : m_dirty)
        changes.insert(key, m_stored.value(key));
    return changes;
}

/// Reads the file, puts our changes over what it holds, and writes it when that made a difference.
bool UserDefaults::exchange(const QVariantMap &changes, std::chrono::milliseconds patience)
{
    if (changes.isEmpty()) {
        if (const std::optional<QVariantMap> contents = readFile(patience))
            adopt(*contents, {});
        return true;
    }
    const FileResult<FileLock> lock = m_file->lock(patience);
    if (!lock) {
        if (lock.error().number == EWOULDBLOCK)
            tryAgainSoon();
        return writingFailed(lock.error());
    }
    const std::optional<QVariantMap> contents = readLockedFile();
    if (!contents)
        return false;
    QVariantMap merged = *contents;
    apply(changes, merged);
    const bool written = !changeAny(changes, *contents) || write(merged);
    adopt(merged, written ? changes : QVariantMap());
    return written;
}

void UserDefaults::tryAgainSoon()
{
    if (m_retryQueued.exchange(true))
        return;
    const auto again = [this] {
        m_retryQueued = false;
        synchronize();
    };
    performOnMainThread(
        this, [this, again] { QTimer::singleShot(std::chrono::seconds(1), this, again); },
        CallMode::DontWait);
}

bool UserDefaults::write(const QVariantMap &values)
{
    const FileResult<> written = m_file->write(values);
    if (!written)
        return writingFailed(written.error());
    m_saidUnwritable = false;
    return true;
}

/// Takes the file's contents over, under the changes that were made meanwhile or are not written
/// yet.
void UserDefaults::adopt(const QVariantMap &contents, const QVariantMap &written)
{
    const std::scoped_lock lock(m_mutex);
    for (auto change = written.begin(); change != written.end(); ++change) {
        if (areEqual(m_stored.value(change.key()), change.value()))
            m_dirty.erase(change.key());
    }
    QVariantMap pending;
    for (const QString &key : m_dirty)
        pending.insert(key, m_stored.value(key));
    m_stored = contents;
    apply(pending, m_stored);
}

/// Empty where no file is; nothing where there is one that must not be touched.
std::optional<QVariantMap> UserDefaults::readFile(std::chrono::milliseconds patience)
{
    const PreferencesContents contents = m_file->read();
    if (contents.state != PreferencesContents::State::Damaged)
        return valuesOf(contents);
    // Another process may be setting the file aside or replacing it right now.
    const FileResult<FileLock> lock = m_file->lock(patience);
    return lock ? readLockedFile() : valuesOf(contents);
}

/// The same under the lock, which sets a damaged file aside.
std::optional<QVariantMap> UserDefaults::readLockedFile()
{
    const PreferencesContents contents = m_file->read();
    if (contents.state != PreferencesContents::State::Damaged)
        return valuesOf(contents);
    const std::optional<QString> aside = m_file->setAside();
    if (!aside)
        return valuesOf(contents);
    qCWarning(lcPlatform).noquote() << "the preferences can't be read and are kept as" << *aside
                                    << "-" << PropertyList::logText(contents.error);
    return valuesOf({});
}

std::optional<QVariantMap> UserDefaults::valuesOf(const PreferencesContents &contents)
{
    m_isReadable = contents.canBeReplaced();
    const bool wasSaid = std::exchange(m_saidUnreadable, !contents.canBeReplaced());
    if (contents.canBeReplaced())
        return contents.values;
    if (!wasSaid) {
        const bool isDamaged = contents.state == PreferencesContents::State::Damaged;
        qCWarning(lcPlatform).noquote()
            << "the preferences in" << m_file->path() << "can't be read and are left alone:"
            << (isDamaged ? PropertyList::logText(contents.error) : contents.error.text);
    }
    return std::nullopt;
}

/// Always false, for the caller to return; said once until a write succeeds.
bool UserDefaults::writingFailed(const FileError &error)
{
    if (std::exchange(m_saidUnwritable, true))
        return false;
    const bool isLock = error.operation == FileError::Operation::Lock;
    qCWarning(lcPlatform).noquote()
        << "can't write the preferences to" << m_file->path() << "-"
        << (isLock ? QStringLiteral("can't lock it: ") : QString()) + error.text;
    return false;
}

FileResult<QVariantMap> UserDefaults::persistentDomain(const QString &name) const
{
    const PreferencesContents contents = PreferencesFile(m_folder, name).read();
    if (contents.state == PreferencesContents::State::Read)
        return contents.values;
    if (!contents.canBeReplaced())
        qCWarning(lcPlatform).noquote() << "can't read" << PropertyList::logText(contents.error);
    return contents.error;
}

bool UserDefaults::editPersistentDomain(const QString &name,
                                        const std::function<bool(QVariantMap &)> &edit)
{
    const PreferencesFile file(m_folder, name);
    const auto failed = [&file](const QString &reason) {
        qCWarning(lcPlatform).noquote() << "can't edit" << file.path() << "-" << reason;
        return false;
    };
    const FileResult<FileLock> lock = file.lock(std::chrono::seconds(1));
    if (!lock)
        return failed(lock.error().text);
    const PreferencesContents before = file.read();
    if (!before.canBeReplaced())
        return failed(PropertyList::logText(before.error));
    QVariantMap values = before.values;
    if (!edit(values))
        return false;
    if (before.state == PreferencesContents::State::Read && before.values == values)
        return true;
    const FileResult<> written = file.write(values);
    return written || failed(written.error().text);
}
