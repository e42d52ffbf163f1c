#pragma once

#include "sync/RunReport.h"

#include <QDateTime>
#include <QVariantList>
#include <QVariantMap>

#include <optional>

/// How the last run ended, kept in "LastRun.plist" in the support folder so that it outlives the
/// helper. Written without an end while a run lasts; found so at the start, the run was cut short
/// and counts as cancelled. Main thread.
class RunRecord
{
public:
    /// Reads what is kept; a file that can't be read counts as none, and is named in the system
    /// log.
    RunRecord();

    void begin(const QString &volume, const QDateTime &now);
    /// What is known by now, of a run that has not ended.
    void update(const RunReport &report);
    void end(const RunReport &report, const QDateTime &now);

    /// As Protocol::lastRunSummary and lastRunItems show it; empty where no run was.
    const QVariantMap &summary() const { return m_summary; }
    QVariantList items(quint32 first, quint32 count) const;

    struct Counts
    {
        uint leftOut = 0; ///< though it exists
        uint wanted = 0;  ///< of what exists
    };
    /// Of a run that was completed but for what it left out; else nothing.
    std::optional<Counts> leftOut() const;

private:
    void record(const RunReport &report);
    void read();
    void write() const;

    QString m_volume;
    QVariantMap m_summary;
    QVariantList m_items;
};
