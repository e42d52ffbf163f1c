#include "Workbench.h"

#include <QFile>
#include <QFileInfo>

#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

QString folderTemplate()
{
    const bool inMemory = QFileInfo(QStringLiteral("/dev/shm")).isWritable();
    return inMemory ? QStringLiteral("/dev/shm/caravel-bench-XXXXXX")
                    : QStringLiteral("/tmp/caravel-bench-XXXXXX");
}

quint64 peakResidentBytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toULongLong() * 1024;
    }
    return 0;
}

void resetPeak()
{
    QFile refs(QStringLiteral("/proc/self/clear_refs"));
    if (refs.open(QIODevice::WriteOnly))
        refs.write("5");
}

} // namespace

Workbench::Workbench()
    : m_folder(folderTemplate())
{
}

quint64 peakMemoryOf(void (*work)(const QString &argument), const QString &argument)
{
    int ends[2];
    if (::pipe(ends) != 0)
        return 0;
    const pid_t child = ::fork();
    if (child == 0) {
        // What the parent has freed must not be there for the work to take.
        ::malloc_trim(0);
        resetPeak();
        const quint64 before = peakResidentBytes();
        work(argument);
        const quint64 added = peakResidentBytes() - before;
        const bool written = ::write(ends[1], &added, sizeof added) == sizeof added;
        ::_exit(written ? 0 : 1);
    }
    ::close(ends[1]);
    quint64 added = 0;
    if (::read(ends[0], &added, sizeof added) != sizeof added)
        added = 0;
    ::close(ends[0]);
    ::waitpid(child, nullptr, 0);
    return added;
}
