#include "modules/movies/MovieQueue.h"

#include "modules/movies/CVSyncMovies.h"
#include "modules/movies/ConvertedMovie.h"
#include "platform/core/Clock.h"
#include "platform/core/Localized.h"
#include "platform/core/MainThread.h"
#include "platform/desktop/Sounds.h"
#include "sync/CVSyncManager.h"
#include "sync/Log.h"
#include "util/Folders.h"
#include "util/PathComponents.h"
#include "util/QMLogger.h"
#include "util/Settings.h"
#include "util/StringTools.h"
#include "util/TextFormat.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>

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
            ConvertedMovie::file(ConvertedMovie::movieEnding),
            ConvertedMovie::file(ConvertedMovie::thumbnailEnding),
            QString::number(Settings::movieConvertVideoResolution()),
            QString::number(Settings::movieConvertVideoQuality()),
            QString::number(Settings::movieConvertAudioQuality()),
            flag(Settings::useQuickTime()),
            flag(Settings::deinterlace()),
            QString::number(Settings::volumeBoost()),
            QStringLiteral("0"),
            QString()};
}

/// A path as a selection can name it, of the same file: a step up leaves the folder that a link
/// leads to.
QString inNormalForm(const QString &path)
{
    const QFileInfo file(path);
    const bool goesUp = path.split(u'/').contains(QStringLiteral(".."));
    const QString folder = goesUp ? QFileInfo(file.path()).canonicalFilePath() : QString();
    return StringTools::standardizingPath(folder.isEmpty() ? path
                                                           : folder + u'/' + file.fileName());
}

// The movie of a row that came back; the end where it is none of these.
QList<QueuedMovie>::iterator find(const QVariantMap &row, QList<QueuedMovie> &movies)
{
    const QString key = MovieRows::keyOf(row);
    return std::find_if(movies.begin(), movies.end(),
                        [&](const QueuedMovie &movie) { return movie.key() == key; });
}

QVariantList libraryRows(const QSet<QString> &selected)
{
    QVariantList rows;
    for (const QString &identifier : CVSyncMovies::availableIdentifiers()) {
        const QString movie = CVSyncMovies::fileOf(identifier, ConvertedMovie::movieEnding);
        if (!identifier.endsWith(u"/.DS_Store") && files().exists(movie))
            rows.append(MovieRows::libraryRow(identifier, selected.contains(identifier)));
    }
    return rows;
}

} // namespace

MovieQueue::MovieQueue(Services services, QObject *parent)
    : QObject(parent)
    , m_services(std::move(services))
{
    m_movieQueueTimer.setInterval(m_services.tick);
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

std::function<QVariantList()> MovieQueue::moviesItems()
{
    QVariantList queued;
    const QStringList chosen = selection();
    const QSet<QString> selected(chosen.begin(), chosen.end());
    for (QueuedMovie &movie : m_moviesQueue) {
        movie.isEnabled = selected.contains(movie.source);
        queued.append(MovieRows::row(movie));
    }
    for (const QueuedMovie &movie : m_moviesFailed)
        queued.append(MovieRows::row(movie));
    return [selected, queued] {
        return libraryRows(selected) + queued;
    };
}

void MovieQueue::addMoviesFromArray(const QStringList &paths)
{
    QStringList selected = selection();
    const qsizetype before = selected.size();
    QSet<QString> known(selected.begin(), selected.end());
    const qint64 now = m_services.clock.now().toSecsSinceEpoch();
    for (const QString &given : paths) {
        const QString path = given.startsWith(u'/') ? inNormalForm(given) : QString();
        const QString title = PathComponents::stemOf(path);
        if (title.isEmpty()) {
            qCWarning(lcModules).noquote() << "Not the full path of a movie:" << given;
            continue;
        }
        m_moviesQueue.append(
            {.source = path, .added = now, .title = title, .size = MovieRows::sizeOf(path)});
        if (!known.contains(path))
            selected.append(path);
        known.insert(path);
    }
    if (selected.size() > before)
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
        } else if (queued != m_moviesQueue.begin() || !isBusy()) {
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
    const QString identifier = identifierOf(row);
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
    CVSyncMovies::renameMovieWithIdentifier(identifierOf(row), newName,
                                            m_services.manager.pspVolume());
}

QString MovieQueue::identifierOf(const QVariantMap &row) const
{
    const auto stored = m_storedIds.constFind(MovieRows::keyOf(row));
    if (stored != m_storedIds.constEnd()) {
        for (const QString &identifier : CVSyncMovies::availableIdentifiers()) {
            if (identifier.section(u'/', 0, 0) == *stored) // its title may be another by now
                return identifier;
        }
    }
    return MovieRows::identifierOf(row);
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
    if (!isBusy())
        startHead();
}

void MovieQueue::queueRanEmpty()
{
    m_movieQueueTimer.stop();
    m_saidReason.clear();
    m_services.sounds.play(QStringLiteral("ConvertCompleted"));
    CVSyncManager &manager = m_services.manager;
    if (manager.pspIsMounted() && Settings::syncOnMount() && !manager.isFirstSync())
        manager.syncByItself();
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
    CVSyncMovies::removeLeftovers();
    const QString thumbnail = ConvertedMovie::file(ConvertedMovie::thumbnailEnding);
    if (files().linkStatus(thumbnail).exists())
        files().remove(thumbnail, nullptr);
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
    if (m_progress.take(chunk, isConvertingMovie()))
        m_percentConverted = m_progress.text();
}

void MovieQueue::movieConversionCompleted(int exitStatus, const QString &error)
{
    m_convertTask.release()->deleteLater(); // it is in the middle of its signal
    if (m_moviesQueue.isEmpty())
        return;
    if (exitStatus == 0) {
        storeHead();
        return;
    }
    QueuedMovie movie = m_moviesQueue.takeFirst();
    if (!m_movieQueueDidAbort)
        fail(std::move(movie), error);
    headIsDone();
}

void MovieQueue::headIsDone()
{
    m_percentConverted = ConversionProgress::initialText();
    m_services.delegate.stopConversionAnimation();
    m_services.delegate.reloadMoviesView();
}

void MovieQueue::fail(QueuedMovie movie, const QString &error)
{
    m_services.logger.log(QStringLiteral("Movie conversion failed: %@"), movie.title);
    if (!error.isEmpty())
        qCWarning(lcModules).noquote() << "The converter can't be started:" << error;
    QString reason = m_progress.reason();
    if (!error.isEmpty())
        reason = filled(localized("The converter can't be started: %@"), {error});
    else if (reason.isEmpty())
        reason = localized("The converter gave no reason.");
    m_services.logger.log(QStringLiteral("Reason: %@"), reason);
    // What stops one movie of a long queue often stops all of them.
    if (std::exchange(m_saidReason, reason) != reason)
        m_services.delegate.movieAlert(
            localized("Movie could not be converted!"),
            filled(localized("The movie \"%@\" could not be converted:\n\n%@"),
                   {movie.title, reason}));
    movie.state = QueuedMovie::State::Failed;
    m_moviesFailed.append(std::move(movie));
}

// The library may lie on another disk.
void MovieQueue::storeHead()
{
    m_isStoring = true;
    const auto store = [this, title = m_moviesQueue.first().title] {
        const StoredMovie stored = CVSyncMovies::moveConvertedMovieNamed(title);
        performOnMainThread(
            this, [this, stored] { headIsStored(stored); }, CallMode::DontWait);
    };
    if (!Workers::start(store))
        store();
}

void MovieQueue::headIsStored(const StoredMovie &stored)
{
    m_isStoring = false;
    QueuedMovie movie = m_moviesQueue.takeFirst();
    if (Settings::useDetailedLogging())
        m_services.logger.log(QStringLiteral("Movie conversion completed: %@"), movie.title);
    if (!m_progress.warning().isEmpty())
        warn(movie, m_progress.warning());
    if (stored.identifier && m_movieQueueDidAbort) {
        CVSyncMovies::deleteMovieWithIdentifier(*stored.identifier); // removed while it was stored
    } else if (stored.identifier) {
        const QString id = stored.identifier->section(u'/', 0, 0);
        m_storedIds.removeIf([&](const auto &older) { return older.value() == id; }); // free again
        m_storedIds.insert(movie.key(), id);
        if (movie.isEnabled)
            select(selection() << *stored.identifier);
        // It may have got another title meanwhile.
        CVSyncMovies::renameMovieWithIdentifier(
            *stored.identifier, PathComponents::safe(movie.title), m_services.manager.pspVolume());
    } else {
        notStored(std::move(movie), stored.keptAs);
    }
    headIsDone();
}

void MovieQueue::warn(const QueuedMovie &movie, const QString &warning)
{
    m_services.logger.log(QStringLiteral("Movie is not complete: %@"), movie.title);
    m_services.logger.log(QStringLiteral("Reason: %@"), warning);
    m_services.delegate.movieAlert(
        localized("Movie is not complete!"),
        filled(localized("The movie \"%@\" was converted, but not all of it is there:\n\n%@"),
               {movie.title, warning}));
}

void MovieQueue::notStored(QueuedMovie movie, const QString &keptAs)
{
    const QString kept =
        localized("The movie \"%@\" was converted, but there is no place for it in the "
                  "movie library. It is kept in the folder %@.");
    const QString lost =
        localized("The movie \"%@\" was converted, but neither the movie library nor "
                  "the folder %@ could take it. It has to be converted again.");
    m_services.delegate.movieAlert(
        localized("Movie could not be stored!"),
        filled(keptAs.isEmpty() ? lost : kept, {movie.title, Folders::support()}));
    if (!keptAs.isEmpty())
        return;
    m_services.logger.log(QStringLiteral("Movie conversion failed: %@"), movie.title);
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
