#include "modules/movies/MovieQueue.h"

#include "modules/movies/CVSyncMovies.h"
#include "platform/core/Clock.h"
#include "platform/core/Localized.h"
#include "platform/desktop/Sounds.h"
#include "sync/CVSyncManager.h"
#include "sync/Log.h"
#include "util/Folders.h"
#include "util/PathComponents.h"
#include "util/QMLogger.h"
#include "util/Settings.h"
#include "util/TextFormat.h"

#include <QSet>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

// How long a quitting helper waits for its converter to remove what it half wrote.
constexpr int quitPatience = 3000; // milliseconds

/// The converter's twelve arguments.
QStringList argumentsFor(const QString &source)
{
    const auto flag = [](bool isOn) {
        return isOn ? QStringLiteral("1") : QStringLiteral("0");
    };
    return {source,
            PathComponents::stemOf(source),
            CVSyncMovies::convertedFile(QStringLiteral(".MP4")),
            CVSyncMovies::convertedFile(QStringLiteral(".THM")),
            QString::number(Settings::movieConvertVideoResolution()),
            QString::number(Settings::movieConvertVideoQuality()),
            QString::number(Settings::movieConvertAudioQuality()),
            flag(Settings::useQuickTime()),
            flag(Settings::deinterlace()),
            QString::number(Settings::volumeBoost()),
            QStringLiteral("0"),
            QString()};
}

// The movie of a row that came back; the end where it is none of these.
QList<QueuedMovie>::iterator find(const QVariantMap &row, QList<QueuedMovie> &movies)
{
    const QString key = MovieRows::keyOf(row);
    return std::find_if(movies.begin(), movies.end(),
                        [&](const QueuedMovie &movie) { return movie.key() == key; });
}

} // namespace

MovieQueue::MovieQueue(Services services, QObject *parent)
    : QObject(parent)
    , m_services(std::move(services))
{
    m_movieQueueTimer.setInterval(1s);
    connect(&m_movieQueueTimer, &QTimer::timeout, this, &MovieQueue::manageMovieQueue);
}

MovieQueue::~MovieQueue() = default;

// --- The list

QStringList MovieQueue::selection() const
{
    return CVSyncMovies::selectedIdentifiersForPSP(m_services.manager.pspVolume())
        .value_or(QStringList());
}

void MovieQueue::select(const QStringList &identifiers) const
{
    CVSyncMovies::setSelectedIdentifiers(identifiers, m_services.manager.pspVolume());
}

void MovieQueue::refreshEnabled()
{
    const QStringList selected = selection();
    for (QueuedMovie &movie : m_moviesQueue)
        movie.isEnabled = selected.contains(movie.source);
}

QVariantList MovieQueue::moviesItems()
{
    QVariantList rows;
    const QStringList selected = selection();
    for (const QString &identifier : CVSyncMovies::availableIdentifiers()) {
        const QString movie = CVSyncMovies::fileOf(identifier, QStringLiteral(".MP4"));
        if (!identifier.endsWith(u"/.DS_Store") && FileManager::defaultManager().exists(movie))
            rows.append(MovieRows::libraryRow(identifier, selected.contains(identifier)));
    }
    refreshEnabled();
    for (const QList<QueuedMovie> &movies : {m_moviesQueue, m_moviesFailed}) {
        for (const QueuedMovie &movie : movies)
            rows.append(MovieRows::row(movie));
    }
    return rows;
}

void MovieQueue::addMoviesFromArray(const QStringList &paths)
{
    QStringList selected = selection();
    QSet<QString> known(selected.begin(), selected.end());
    const qint64 now = m_services.clock.now().toSecsSinceEpoch();
    for (const QString &path : paths) {
        const QString title = PathComponents::stemOf(path);
        if (!path.startsWith(u'/') || title.isEmpty()) {
            qCWarning(lcModules).noquote() << "Not the full path of a movie:" << path;
            continue;
        }
        m_moviesQueue.append(
            {.source = path, .added = now, .title = title, .size = MovieRows::sizeOf(path)});
        if (!known.contains(path))
            selected.append(path);
        known.insert(path);
    }
    select(selected);
    manageMovieQueue();
    m_services.delegate.reloadMoviesView();
}

void MovieQueue::removeMovieItem(const QVariantMap &row)
{
    const auto queued = find(row, m_moviesQueue);
    if (queued != m_moviesQueue.end()) {
        if (queued == m_moviesQueue.begin() && isConvertingMovie()) {
            m_movieQueueDidAbort = true;
            m_convertTask->terminate();
        } else if (queued != m_moviesQueue.begin() || !m_convertTask) {
            m_moviesQueue.erase(queued);
        } else {
            m_movieQueueDidAbort = true; // it has just ended, and leaves the queue in a moment
        }
        return;
    }
    const auto failed = find(row, m_moviesFailed);
    if (failed != m_moviesFailed.end()) {
        m_moviesFailed.erase(failed);
        return;
    }
    const QString identifier = MovieRows::identifierOf(row);
    if (Settings::useDetailedLogging())
        m_services.logger.log(QStringLiteral("Deleting movie %@... "), identifier);
    CVSyncMovies::deleteMovieWithIdentifier(identifier);
}

void MovieQueue::renameMovieItem(const QVariantMap &row, const QString &newName)
{
    for (QList<QueuedMovie> *movies : {&m_moviesQueue, &m_moviesFailed}) {
        const auto found = find(row, *movies);
        if (found == movies->end())
            continue;
        if (PathComponents::isName(newName))
            found->title = newName;
        else
            qCWarning(lcModules).noquote() << "This can't be a movie's title:" << newName;
        return;
    }
    CVSyncMovies::renameMovieWithIdentifier(MovieRows::identifierOf(row), newName,
                                            m_services.manager.pspVolume());
}

// --- The conversions

void MovieQueue::manageMovieQueue()
{
    if (m_moviesQueue.isEmpty()) {
        if (m_movieQueueTimer.isActive())
            queueRanEmpty();
        return;
    }
    if (!m_movieQueueTimer.isActive())
        m_movieQueueTimer.start();
    if (!m_convertTask)
        startHead();
}

void MovieQueue::queueRanEmpty()
{
    m_movieQueueTimer.stop();
    m_services.sounds.play(QStringLiteral("ConvertCompleted"));
    CVSyncManager &manager = m_services.manager;
    if (manager.pspIsMounted() && Settings::syncOnMount() && !manager.isFirstSync())
        manager.sync();
}

void MovieQueue::startHead()
{
    QueuedMovie &head = m_moviesQueue.first();
    if (Settings::useDetailedLogging())
        qCInfo(lcModules).noquote()
            << QStringLiteral("Starting conversion of movie '%1'...").arg(head.source);
    m_progress = ConversionProgress(Settings::movieConvertVideoQuality());
    m_movieQueueDidAbort = false;
    // What an interrupted conversion left must not pass for this one's result.
    for (const QString &ending : {QStringLiteral(".MP4"), QStringLiteral(".THM")}) {
        const QString leftover = CVSyncMovies::convertedFile(ending);
        if (FileManager::defaultManager().linkStatus(leftover).exists())
            FileManager::defaultManager().remove(leftover, nullptr);
    }
    m_convertTask = std::make_unique<ChildProcess>();
    connect(m_convertTask.get(), &ChildProcess::output, this, &MovieQueue::movieConversionOutput);
    connect(m_convertTask.get(), &ChildProcess::ended, this, &MovieQueue::movieConversionCompleted);
    m_convertTask->start(m_services.resourceFolder + QStringLiteral("/convert.sh"),
                         argumentsFor(head.source), m_services.resourceFolder);
    head.state = QueuedMovie::State::Converting;
    m_services.delegate.startConversionAnimation();
}

void MovieQueue::movieConversionOutput(const QByteArray &chunk)
{
    if (Settings::useDetailedLogging())
        qCInfo(lcModules).noquote() << QString::fromUtf8(chunk);
    if (m_progress.take(chunk))
        m_percentConverted = m_progress.text();
}

void MovieQueue::movieConversionCompleted(int exitStatus, const QString &error)
{
    m_convertTask.release()->deleteLater(); // it is in the middle of its signal
    if (m_moviesQueue.isEmpty())
        return;
    refreshEnabled();
    const QueuedMovie movie = m_moviesQueue.takeFirst();
    if (exitStatus == 0)
        storeConverted(movie);
    else if (!m_movieQueueDidAbort)
        fail(movie, error);
    m_percentConverted = ConversionProgress::initialText();
    m_services.delegate.stopConversionAnimation();
    m_services.delegate.reloadMoviesView();
}

void MovieQueue::storeConverted(const QueuedMovie &movie)
{
    if (Settings::useDetailedLogging())
        m_services.logger.log(QStringLiteral("Movie conversion completed: %@"), movie.title);
    const auto identifier = CVSyncMovies::moveConvertedMovieNamed(movie.title);
    if (!identifier) {
        m_services.delegate.movieAlert(
            localized("Movie could not be stored!"),
            filled(localized("The movie \"%@\" was converted, but there is no place for it in the "
                             "movie library. It is kept in the folder %@."),
                   {movie.title, Folders::support()}));
        return;
    }
    if (movie.isEnabled)
        select(selection() << *identifier);
}

void MovieQueue::fail(QueuedMovie movie, const QString &error)
{
    m_services.logger.log(QStringLiteral("Movie conversion failed: %@"), movie.title);
    if (!error.isEmpty())
        qCWarning(lcModules).noquote() << "The converter can't be started:" << error;
    movie.state = QueuedMovie::State::Failed;
    m_moviesFailed.append(std::move(movie));
}

void MovieQueue::close()
{
    m_movieQueueTimer.stop();
    if (!isConvertingMovie())
        return;
    m_convertTask->disconnect(this);
    m_convertTask->terminate();
    if (!m_convertTask->waitForEnd(quitPatience))
        m_convertTask->kill();
}
