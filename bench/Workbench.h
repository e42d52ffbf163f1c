#pragma once

#include <QString>
#include <QTemporaryDir>

/// A folder in memory (where the machine has one) for the duration of a benchmark.
class Workbench
{
public:
    Workbench();
    QString path() const { return m_folder.path(); }
    QString operator/(const QString &relative) const { return path() + u'/' + relative; }

private:
    QTemporaryDir m_folder;
};

/// Peak resident memory, in bytes, that the work adds to a process of its own.
quint64 peakMemoryOf(void (*work)(const QString &argument), const QString &argument);
