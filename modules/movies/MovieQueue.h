#pragma once

#include "modules/movies/ConversionProgress.h"
#include "modules/movies/MovieRows.h"
#include "platform/core/ChildProcess.h"

#include <QHash>
#include <QTimer>
#include <QVariantList>
#include <QVariantMap>

#include <chrono>
#include <memory>

class Clock;
class CVSyncManager;
class QMLogger;
class Sounds;
struct StoredMovie;

/// What the queue tells a front-end. Main thread.
class MovieQueueDelegate
{
public:
    virtual ~MovieQueueDelegate() = default;
    /// The rows of moviesItems() have changed.
    virtual void reloadMoviesView() = 0;
    virtual void startConversionAnimation() = 0;
    virtual void stopConversionAnimation() = 0;
    /// Something that the user must know.
    virtual void movieAlert(const QString &title, const QString &message) = 0;
};

/// The movies that wait for their conversion, one conversion at a time, and the list of all movies.
/// A finished movie goes to the library (CVSyncMovies) and into the mounted PSP's selection.
/// Nothing of the queue survives the process. Rows are those of MovieRows. Main thread.
class MovieQueue : public QObject
{
    Q_OBJECT
public:
    /// Not owned, outliving the queue.
    struct Services
    {
        CVSyncManager &manager;
        QMLogger &logger;
        Sounds &sounds;
        const Clock &clock;
        MovieQueueDelegate &delegate;
        QString resourceFolder; ///< holds "convert.sh"
        /// At most so long the queue waits from one movie's end to what comes next.
        std::chrono::milliseconds tick = std::chrono::seconds(1);
    };
    explicit MovieQueue(Services services, QObject *parent = nullptr);
    ~MovieQueue() override;

    /// What reads, once and on any thread, the library's rows, and adds those of the queue, and of
    /// what failed, as they are now.
    std::function<QVariantList()> moviesItems();
    /// Queues movies by the absolute paths of their sources, which their rows have in normal form;
    /// others are said in the system log.
    void addMoviesFromArray(const QStringList &paths);
    /// Takes a row out of the queue or of what failed (ending its conversion), or moves the
    /// library's movie to the Trash.
    /// A row of the queue whose movie went to the library meanwhile means the movie there.
    void removeMovieItem(const QVariantMap &row);
    void renameMovieItem(const QVariantMap &row, const QString &newName);

    /// Whether movies wait or are being converted.
    bool hasWork() const { return m_movieQueueTimer.isActive() || isBusy(); }
    bool isConvertingMovie() const { return m_convertTask && m_convertTask->isRunning(); }
    QString percentConverted() const { return m_percentConverted; }

    /// For a helper that quits: ends the conversion and waits until the converter has cleaned up.
    void close();

private:
    void manageMovieQueue();
    void startHead();
    void movieConversionOutput(const QByteArray &chunk);
    void movieConversionCompleted(int exitStatus, const QString &error);
    bool isBusy() const { return m_convertTask || m_isStoring; }
    void fail(QueuedMovie movie, const QString &error);
    void storeHead();
    void headIsStored(const StoredMovie &stored);
    void warn(const QueuedMovie &movie, const QString &warning);
    void notStored(QueuedMovie movie, const QString &keptAs);
    void headIsDone();
    void queueRanEmpty();
    QStringList selection() const;
    void select(const QStringList &identifiers) const;
    QString identifierOf(const QVariantMap &row) const;

    const Services m_services;
    QList<QueuedMovie> m_moviesQueue; // the head is the one being converted
    QList<QueuedMovie> m_moviesFailed;
    // The library's ids by QueuedMovie::key(): a row may come back after its movie was stored.
    QHash<QString, QString> m_storedIds;
    QTimer m_movieQueueTimer;
    std::unique_ptr<ChildProcess> m_convertTask; // while one runs or has just ended
    ConversionProgress m_progress{0};
    bool m_isStoring = false; // a worker has what the converter left
    bool m_movieQueueDidAbort = false;
    QString m_saidReason; // why the last one failed, while the queue isn't empty
    QString m_percentConverted = ConversionProgress::initialText();
};
