#include "platform/lists/UserDefaults.h"

#include "platform/core/Log.h"
#include "platform/core/MainThread.h"
#include "platform/core/own/Posix.h"
#include "platform/lists/PropertyList.h"

#include <QDir>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <limits>
#include <utility>

namespace {

std::atomic<UserDefaults *> standardStore = nullptr;
std::mutex standardMutex;
UserDefaults *builtStore = nullptr; // ours to delete; under standardMutex

/// Keeps other processes, and other stores of this one, away from a domain's file while it lives.
/// The lock's file stays: removing it would let two writers hold locks on different files of one
/// name.
class DomainLock
{
public:
    explicit DomainLock(const QString &path)
        : m_file(::open(Posix::native(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600))
    {
        if (!m_file)
            return;
        int result = 0;
        do
            result = ::flock(m_file.get(), LOCK_EX);
        while (result != 0 && errno == EINTR);
        m_held = result == 0;
    }

    /// When false, errno says why.
    bool isHeld() const { return m_held; }

private:
    const Posix::Descriptor m_file;
    bool m_held = false;
};

template <typename Number>
Number saturated(double value)
{
    using Limits = std::numeric_limits<Number>;
    // The highest number rounds up as a double: what reaches that is out of range.
    if (value >= static_cast<double>(Limits::max()))
        return Limits::max();
    if (value <= static_cast<double>(Limits::lowest()))
        return Limits::lowest();
    return value == value ? static_cast<Number>(value) : 0; // a NaN is no number
}

/// A whole number with its sign apart, so that both 64-bit ranges fit.
struct Whole
{
    bool negative = false;
    quint64 magnitude = 0;
};

Whole wholeOf(const QString &text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    const bool hasSign = trimmed.startsWith(u'-') || trimmed.startsWith(u'+');
    Whole whole{trimmed.startsWith(u'-'), 0};
    for (const QChar character : trimmed.sliced(hasSign ? 1 : 0)) {
        if (character < u'0' || character > u'9')
            break;
        const quint64 digit = quint64(character.unicode() - u'0');
        constexpr quint64 highest = std::numeric_limits<quint64>::max();
        whole.magnitude =
            whole.magnitude > (highest - digit) / 10 ? highest : whole.magnitude * 10 + digit;
    }
    return whole;
}

Whole wholeOf(qint64 number)
{
    return {number < 0, number < 0 ? 0 - quint64(number) : quint64(number)};
}

Whole wholeOf(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return {false, value.toBool() ? 1U : 0U};
    case QMetaType::LongLong:
        return wholeOf(value.toLongLong());
    case QMetaType::ULongLong:
        return {false, value.toULongLong()};
    case QMetaType::Double:
        return value.toDouble() < 0 ? wholeOf(saturated<qint64>(value.toDouble()))
                                    : Whole{false, saturated<quint64>(value.toDouble())};
    case QMetaType::QString:
        return wholeOf(value.toString());
    default:
        return {};
    }
}

qint64 toSigned(Whole whole)
{
    constexpr quint64 highest = quint64(std::numeric_limits<qint64>::max());
    if (whole.magnitude > highest)
        return whole.negative ? std::numeric_limits<qint64>::min() : qint64(highest);
    return whole.negative ? -qint64(whole.magnitude) : qint64(whole.magnitude);
}

bool toBool(const QVariant &value)
{
    if (value.typeId() == QMetaType::Double)
        return value.toDouble() != 0;
    if (value.typeId() == QMetaType::QString) {
        const QString text = value.toString().trimmed().left(1).toLower();
        if (text == u"y" || text == u"t")
            return true;
    }
    return wholeOf(value).magnitude != 0;
}

QVariant asStored(const QVariant &value);

QVariant asStored(const QVariantList &values)
{
    QVariantList stored;
    for (const QVariant &value : values) {
        if (const QVariant entry = asStored(value); entry.isValid())
            stored.append(entry);
    }
    return stored;
}

QVariant asStored(const QVariantMap &values)
{
    QVariantMap stored;
    for (auto entry = values.begin(); entry != values.end(); ++entry) {
        if (const QVariant value = asStored(entry.value()); value.isValid())
            stored.insert(entry.key(), value);
    }
    return stored;
}

QVariant asStored(const QDateTime &date)
{
    const bool fits =
        date.isValid() && date.toUTC().date().year() > 0 && date.toUTC().date().year() < 10000;
    return fits ? QVariant(QDateTime::fromSecsSinceEpoch(date.toSecsSinceEpoch(), Qt::UTC))
                : QVariant();
}

/// The value as it will come back from the file, so that equal values are seen as equal; invalid
/// for what no list can hold.
QVariant asStored(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QVariantMap:
        return asStored(value.toMap());
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return asStored(value.toList());
    case QMetaType::QDateTime:
        return asStored(value.toDateTime());
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
        return value.toLongLong();
    case QMetaType::ULong:
    case QMetaType::ULongLong: {
        const qulonglong number = value.toULongLong();
        const bool fits = number <= qulonglong(std::numeric_limits<qlonglong>::max());
        return fits ? QVariant(qlonglong(number)) : QVariant(number);
    }
    case QMetaType::Float:
        return value.toDouble();
    case QMetaType::Bool:
    case QMetaType::LongLong:
    case QMetaType::Double:
    case QMetaType::QString:
    case QMetaType::QByteArray:
        return value;
    default:
        return {};
    }
}

/// A number and a boolean count as equal for QVariant, but not in a file.
bool areEqual(const QVariant &first, const QVariant &second)
{
    return first.typeId() == second.typeId() && first == second;
}

void apply(const QVariantMap &changes, QVariantMap &values)
{
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (change.value().isValid())
            values.insert(change.key(), change.value());
        else
            values.remove(change.key());
    }
}

qint64 nanosecondsNow()
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
}

/// Whether the changes make a difference to the values.
bool changeAny(const QVariantMap &changes, const QVariantMap &values)
{
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (!areEqual(values.value(change.key()), change.value()))
            return true;
    }
    return false;
}

} // namespace

UserDefaults::UserDefaults(QString domain, QString folder, QObject *parent)
    : QObject(parent)
    , m_domain(std::move(domain))
    , m_folder(std::move(folder))
    , m_alive(std::make_shared<const bool>(true))
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
    return toSigned(wholeOf(object(key)));
}

quint64 UserDefaults::unsignedForKey(const QString &key) const
{
    const Whole whole = wholeOf(object(key));
    return whole.negative ? 0 : whole.magnitude;
}

QString UserDefaults::stringForKey(const QString &key) const
{
    const QVariant value = object(key);
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case QMetaType::QString:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        return value.toString();
    default:
        return {};
    }
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
    QStringList strings;
    for (const QVariant &entry : value.toList()) {
        if (entry.typeId() == QMetaType::QString)
            strings.append(entry.toString());
    }
    return strings;
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
    const auto announceIfAlive = [this, alive = std::weak_ptr(m_alive)] {
        if (!alive.expired())
            announce();
    };
    performOnMainThread(announceIfAlive, CallMode::DontWait);
}

void UserDefaults::announce()
{
    // Before the signal: what is set from now on wants another one.
    m_notificationQueued = false;
    Q_EMIT changed();
}

bool UserDefaults::synchronize()
{
    const std::scoped_lock lock(m_synchronizing);
    const QVariantMap changes = ownChanges();
    const std::optional<Stamp> stamp = stampOf(filePath(m_domain));
    if (changes.isEmpty() && stamp && stamp == m_lastRead)
        return true;
    const bool done = exchange(changes);
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
bool UserDefaults::exchange(const QVariantMap &changes)
{
    if (!changes.isEmpty() && !QDir().mkpath(m_folder))
        return writingFailed(QStringLiteral("can't create the folder"));
    // Without anything to write a missing folder stays missing, and reading needs no lock: writers
    // replace the file whole.
    std::optional<DomainLock> lock;
    if (!changes.isEmpty()) {
        lock.emplace(lockPath(m_domain));
        if (!lock->isHeld())
            return writingFailed(QStringLiteral("can't lock it: ") + Posix::reason(errno));
    }
    const std::optional<QVariantMap> contents = readOwnFile(lock.has_value());
    if (!contents)
        return changes.isEmpty();
    QVariantMap merged = *contents;
    apply(changes, merged);
    const bool written = !changeAny(changes, *contents) || write(merged);
    adopt(merged, written ? changes : QVariantMap());
    return written;
}

bool UserDefaults::write(const QVariantMap &values)
{
    const FileResult<> written = PropertyList::writeAtomically(values, filePath(m_domain));
    if (!written)
        return writingFailed(written.error().text);
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
std::optional<QVariantMap> UserDefaults::readOwnFile(bool locked)
{
    const QString path = filePath(m_domain);
    const FileResult<QVariantMap> contents = PropertyList::readDictionary(path);
    if (contents || contents.error().isMissing()) {
        m_saidUnreadable = false;
        return contents.valueOr({});
    }
    const FileError &error = contents.error();
    if (error.operation == FileError::Operation::Read)
        return leftAlone(error.text);
    if (!locked) {
        // Another process may be setting the file aside or replacing it right now.
        const DomainLock lock(lockPath(m_domain));
        return lock.isHeld() ? readOwnFile(true) : leftAlone(PropertyList::logText(error));
    }
    const QString aside = path + QStringLiteral(".unreadable");
    if (std::rename(Posix::native(path).constData(), Posix::native(aside).constData()) != 0)
        return leftAlone(PropertyList::logText(error));
    qCWarning(lcPlatform).noquote() << "the preferences can't be read and are kept as" << aside
                                    << "-" << PropertyList::logText(error);
    return QVariantMap();
}

std::optional<QVariantMap> UserDefaults::leftAlone(const QString &reason)
{
    if (!m_saidUnreadable.exchange(true)) {
        qCWarning(lcPlatform).noquote() << "the preferences in" << filePath(m_domain)
                                        << "can't be read and are left alone:" << reason;
    }
    return std::nullopt;
}

/// Always false, for the caller to return; said once until a write succeeds.
bool UserDefaults::writingFailed(const QString &reason)
{
    if (!std::exchange(m_saidUnwritable, true)) {
        qCWarning(lcPlatform).noquote()
            << "can't write the preferences to" << filePath(m_domain) << "-" << reason;
    }
    return false;
}

std::optional<QVariantMap> UserDefaults::persistentDomain(const QString &name) const
{
    const FileResult<QVariantMap> values = PropertyList::readDictionary(filePath(name));
    if (values)
        return *values;
    if (!values.error().isMissing())
        qCWarning(lcPlatform).noquote() << "can't read" << PropertyList::logText(values.error());
    return std::nullopt;
}

bool UserDefaults::editPersistentDomain(const QString &name,
                                        const std::function<bool(QVariantMap &)> &edit)
{
    const QString path = filePath(name);
    const auto failed = [&path](const QString &reason) {
        qCWarning(lcPlatform).noquote() << "can't edit" << path << "-" << reason;
        return false;
    };
    if (!QDir().mkpath(m_folder))
        return failed(QStringLiteral("can't create the folder"));
    const DomainLock lock(lockPath(name));
    if (!lock.isHeld())
        return failed(Posix::reason(errno));
    const FileResult<QVariantMap> before = PropertyList::readDictionary(path);
    if (!before && !before.error().isMissing())
        return failed(PropertyList::logText(before.error()));
    QVariantMap values = before.valueOr({});
    if (!edit(values))
        return false;
    if (before && *before == values)
        return true;
    const FileResult<> written = PropertyList::writeAtomically(values, path);
    return written || failed(written.error().text);
}

std::optional<UserDefaults::Stamp> UserDefaults::stampOf(const QString &path)
{
    struct stat status;
    if (::stat(Posix::native(path).constData(), &status) != 0)
        return std::nullopt;
    return Stamp{status.st_dev, status.st_ino, status.st_size,
                 qint64(status.st_mtim.tv_sec) * 1'000'000'000 + status.st_mtim.tv_nsec};
}

QString UserDefaults::filePath(const QString &domain) const
{
    return m_folder + u'/' + domain + QStringLiteral(".plist");
}

QString UserDefaults::lockPath(const QString &domain) const
{
    return m_folder + QStringLiteral("/.") + domain + QStringLiteral(".lock");
}
