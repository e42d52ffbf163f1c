#include "support/TestSupport.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTimer>

#include <mutex>

namespace {

std::mutex logMutex;
QStringList logLines;

void collectLine(QtMsgType, const QMessageLogContext &, const QString &message)
{
    const std::scoped_lock lock(logMutex);
    logLines.append(message);
}

} // namespace

TemporaryFolder::TemporaryFolder(QString given)
    : m_given(std::move(given))
{
    if (m_given.isEmpty() && !m_folder.emplace().isValid())
        qFatal("no temporary folder: %s", qPrintable(m_folder->errorString()));
}

void writeFile(const QString &path, const QByteArray &contents)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("can't write %s: %s", qPrintable(path), qPrintable(file.errorString()));
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool waitFor(const std::function<bool()> &condition, std::chrono::milliseconds limit)
{
    const QDeadlineTimer deadline(limit);
    // Conditions that no event announces (a file that another process writes) need a tick.
    QTimer tick;
    tick.start(5);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    return true;
}

NoThreads::NoThreads()
{
    ::pthread_getattr_default_np(&m_before);
    pthread_attr_t none = m_before;
    ::pthread_attr_setstacksize(&none, size_t(1) << 48);
    ::pthread_setattr_default_np(&none);
}

NoThreads::~NoThreads()
{
    ::pthread_setattr_default_np(&m_before);
}

QStringList treeOf(const QString &folder)
{
    QStringList entries;
    QDirIterator walk(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        const bool isFolder = walk.fileInfo().isDir() && !walk.fileInfo().isSymLink();
        entries.append(path.mid(folder.size() + 1) + (isFolder ? u"/"_s : QString()));
    }
    entries.sort();
    return entries;
}

SystemLogCapture::SystemLogCapture()
    : m_before(qInstallMessageHandler(collectLine))
{
    const std::scoped_lock lock(logMutex);
    logLines.clear();
}

QStringList SystemLogCapture::lines()
{
    const std::scoped_lock lock(logMutex);
    return logLines;
}
