#include "modules/movies/MovieQueue.h"

#include "modules/movies/CVSyncMovies.h"
#include "platform/core/Clock.h"
#include "platform/core/Localized.h"
#include "platform/desktop/Sounds.h"
#include "sync/CVSyncManager.h"
#include "sync/Log.h"
#include "util/FileManagerTools.h"
#include "util/Folders.h"
#include "util/PathComponents.h"
#include "util/QMLogger.h"
#include "util/Settings.h"
#include "util/TextFormat.h"

#include <QSet>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

const QString identifierKey = QStringLiteral("identifier");
const QString identifier2Key = QStringLiteral("identifier2");
const QString nameKey = QStringLiteral("name");
const QString iconKey = QStringLiteral("icon");
const QString convertingKey = QStringLiteral("converting");
const QString enabledKey = QStringLiteral("enabled");
const QString readyKey = QStringLiteral("ready");
const QString orderKey = QStringLiteral("order");
const QString sizeKey = QStringLiteral("size");

// How long a quitting helper waits for its converter to remove what it half wrote.
constexpr int quitPatience = 3000; // milliseconds

QString sizeOf(const QString &path)
{
    return FileManagerTools::sizeDescriptionForByteCount(
        FileManager::defaultManager().linkStatus(path).size);
}

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

using Rows = QList<QVariantMap>;

Rows::iterator itemIsInArray(const QVariantMap &item, Rows &rows)
{
    const QVariant wanted = item.value(identifier2Key);
    return std::find_if(rows.begin(), rows.end(), [&](const QVariantMap &row) {
        return wanted.isValid() && row.value(identifier2Key) == wanted;
    });
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

QVariantMap MovieQueue::queuedRow(const QString &path) const
{
    return {
        {identifierKey, path},
        {identifier2Key,
         QStringLiteral("%1-%2").arg(path).arg(m_services.clock.now().toSecsSinceEpoch())},
        {nameKey, PathComponents::stemOf(path)},
        {iconKey, QStringLiteral("ConvertWaiting")},
        {orderKey, 0},
        {readyKey, false},
        {sizeKey, sizeOf(path)},
        {enabledKey, true},
    };
}

QVariantMap MovieQueue::libraryRow(const QString &identifier, const QStringList &selected) const
{
    QVariantMap row{
        {identifierKey, identifier},
        {nameKey, identifier.section(u'/', 1)},
        {iconKey, CVSyncMovies::fileOf(identifier, QStringLiteral(".THM"))},
        {orderKey, 1},
        {readyKey, true},
        {sizeKey, filled(localized("Size: %@"),
                         {sizeOf(CVSyncMovies::fileOf(identifier, QStringLiteral(".MP4")))})},
    };
    if (selected.contains(identifier))
        row.insert(enabledKey, true);
    return row;
}

void MovieQueue::refreshEnabled()
{
    const QStringList selected = selection();
    for (QVariantMap &row : m_moviesQueue)
        row.insert(enabledKey, selected.contains(row.value(identifierKey).toString()));
}

QVariantList MovieQueue::moviesItems()
{
    QVariantList rows;
    const QStringList selected = selection();
    for (const QString &identifier : CVSyncMovies::availableIdentifiers()) {
        const QString movie = CVSyncMovies::fileOf(identifier, QStringLiteral(".MP4"));
        if (!identifier.endsWith(u"/.DS_Store") && FileManager::defaultManager().exists(movie))
            rows.append(libraryRow(identifier, selected));
    }
    refreshEnabled();
    for (const Rows &waiting : {m_moviesQueue, m_moviesFailed})
        rows.append(QVariantList(waiting.begin(), waiting.end()));
    return rows;
}

void MovieQueue::addMoviesFromArray(const QStringList &paths)
{
    QStringList selected = selection();
    QSet<QString> known(selected.begin(), selected.end());
    for (const QString &path : paths) {
        if (!path.startsWith(u'/') || PathComponents::stemOf(path).isEmpty()) {
            qCWarning(lcModules).noquote() << "Not the full path of a movie:" << path;
            continue;
        }
        m_moviesQueue.append(queuedRow(path));
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
    const auto queued = itemIsInArray(row, m_moviesQueue);
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
    const auto failed = itemIsInArray(row, m_moviesFailed);
    if (failed != m_moviesFailed.end()) {
        m_moviesFailed.erase(failed);
        return;
    }
    const QString identifier = row.value(identifierKey).toString();
    if (Settings::useDetailedLogging())
        m_services.logger.log(QStringLiteral("Deleting movie %@... "), identifier);
    CVSyncMovies::deleteMovieWithIdentifier(identifier);
}

void MovieQueue::renameMovieItem(const QVariantMap &row, const QString &newName)
{
    for (Rows *rows : {&m_moviesQueue, &m_moviesFailed}) {
        const auto found = itemIsInArray(row, *rows);
        if (found == rows->end())
            continue;
        if (PathComponents::isName(newName))
            found->insert(nameKey, newName);
        else
            qCWarning(lcModules).noquote() << "This can't be a movie's title:" << newName;
        return;
    }
    CVSyncMovies::renameMovieWithIdentifier(row.value(identifierKey).toString(), newName,
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
    QVariantMap &head = m_moviesQueue.first();
    const QString source = head.value(identifierKey).toString();
    if (Settings::useDetailedLogging())
        qCInfo(lcModules).noquote()
            << QStringLiteral("Starting conversion of movie '%1'...").arg(source);
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
                         argumentsFor(source), m_services.resourceFolder);
    head.insert(iconKey, QStringLiteral("ConvertWorking1"));
    head.insert(convertingKey, true);
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
    QVariantMap row = m_moviesQueue.takeFirst();
    if (exitStatus == 0)
        storeConverted(row);
    else if (!m_movieQueueDidAbort)
        fail(row, error);
    m_percentConverted = ConversionProgress::initialText();
    m_services.delegate.stopConversionAnimation();
    m_services.delegate.reloadMoviesView();
}

void MovieQueue::storeConverted(QVariantMap &row)
{
    const QString name = row.value(nameKey).toString();
    if (Settings::useDetailedLogging())
        m_services.logger.log(QStringLiteral("Movie conversion completed: %@"), name);
    const auto identifier = CVSyncMovies::moveConvertedMovieNamed(name);
    if (!identifier) {
        m_services.delegate.movieAlert(
            localized("Movie could not be stored!"),
            filled(localized("The movie \"%@\" was converted, but there is no place for it in the "
                             "movie library. It is kept in the folder %@."),
                   {name, Folders::support()}));
        return;
    }
    if (row.value(enabledKey).toBool())
        select(selection() << *identifier);
}

void MovieQueue::fail(QVariantMap &row, const QString &error)
{
    const QString name = row.value(nameKey).toString();
    m_services.logger.log(QStringLiteral("Movie conversion failed: %@"), name);
    if (!error.isEmpty())
        qCWarning(lcModules).noquote() << "The converter can't be started:" << error;
    row.insert(iconKey, QStringLiteral("ConvertFailed"));
    row.insert(convertingKey, false);
    m_moviesFailed.append(row);
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
