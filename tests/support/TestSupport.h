#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
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

using namespace Qt::StringLiterals;

/// The parts of a text: its words, or what else lies between separators. Empty ones don't count.
inline QStringList list(const char *text, char separator = ' ')
{
    return QString::fromUtf8(text).split(QLatin1Char(separator), Qt::SkipEmptyParts);
}
/// For comparisons that print well.
inline std::string joined(const QStringList &parts, QStringView separator = u"\n")
{
    return parts.join(separator).toStdString();
}

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
    Q_DISABLE_COPY_MOVE(NoThreads)

private:
    pthread_attr_t m_before;
};

/// Paths of everything below a folder, relative and sorted, folders with a trailing slash.
QStringList treeOf(const QString &folder);

/// Collects what is written to the system log (qWarning and the like, as plain lines) while it
/// lives.
class SystemLogCapture
{
public:
    SystemLogCapture();
    ~SystemLogCapture() { qInstallMessageHandler(m_before); }
    Q_DISABLE_COPY_MOVE(SystemLogCapture)
    static QStringList lines();
    bool contains(const QString &text) const { return lines().join(u'\n').contains(text); }

private:
    const QtMessageHandler m_before;
};
