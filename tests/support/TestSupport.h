#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <chrono>
#include <functional>
#include <optional>
#include <pthread.h>

/// A folder that lives as long as the object, with paths below it.
class TemporaryFolder
{
public:
    /// One that is given is used instead, and stays.
    explicit TemporaryFolder(QString given = {});
    QString path() const { return m_folder ? m_folder->path() : m_given; }
    QString operator/(const QString &relative) const { return path() + u'/' + relative; }
    QString operator/(const char *relative) const { return *this / QString::fromUtf8(relative); }

private:
    const QString m_given;
    std::optional<QTemporaryDir> m_folder;
};

/// Writes a file, making the folders above it.
void writeFile(const QString &path, const QByteArray &contents);
QByteArray readFile(const QString &path);

/// Serves the main thread's event loop until the condition holds; false when it never did. The
/// limit is a safety net against a hanging test, not a measure of speed.
bool waitFor(const std::function<bool()> &condition,
             std::chrono::milliseconds limit = std::chrono::seconds(60));

/// No thread can start while it lives: its stack would be larger than the address space.
class NoThreads
{
public:
    NoThreads();
    ~NoThreads();
    NoThreads(const NoThreads &) = delete;
    NoThreads &operator=(const NoThreads &) = delete;

private:
    pthread_attr_t m_before;
};

/// The memory of this process that is in use and in place.
qint64 residentBytes();

/// Paths of everything below a folder, relative and sorted, folders with a trailing slash.
QStringList treeOf(const QString &folder);

/// Collects what is written to the system log (qWarning and the like, as plain lines) while it
/// lives.
class SystemLogCapture
{
public:
    SystemLogCapture();
    ~SystemLogCapture();
    SystemLogCapture(const SystemLogCapture &) = delete;
    SystemLogCapture &operator=(const SystemLogCapture &) = delete;
    QStringList lines() const;
    bool contains(const QString &text) const;
};
