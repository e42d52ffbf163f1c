#pragma once

#include "platform/files/FileManager.h"

#include <QString>

#include <functional>
#include <optional>

class Clock;

/// Keeps on the computer what a run takes from the stick though no sync had placed it: each run's
/// under "Removed from PSP/<yyyy-MM-dd HH.mm.ss>" in the documents folder, by the path that it had
/// on the volume. One run, its thread.
class KeptFiles
{
public:
    struct Asked
    {
        std::function<bool()> shouldStop; ///< after each chunk of 1 MiB
        std::function<void(const FileError &)> tell;
    };

    /// The clock is not owned and outlives it.
    KeptFiles(QString volume, const Clock &clock, Asked asked);

    /// Copies a file or a folder with all that is in it; links as links. Where the copy lies, once
    /// all of it is on the computer's disk; else nothing, and no file is there in part.
    std::optional<QString> keep(const QString &path);

    /// Where all of them lie; empty while there are none.
    QString folder() const { return m_hasKept ? m_folder : QString(); }

private:
    void makeFolder();
    bool keepEntry(const QString &path, bool isFolder, bool isLink);

    const QString m_volume;
    const Clock &m_clock;
    const Asked m_asked;
    QString m_folder;
    bool m_hasKept = false;
};
