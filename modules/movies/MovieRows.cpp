#include "modules/movies/MovieRows.h"

#include "modules/movies/CVSyncMovies.h"
#include "platform/core/Localized.h"
#include "util/ByteCount.h"
#include "util/TextFormat.h"

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

QString iconOf(QueuedMovie::State state)
{
    switch (state) {
    case QueuedMovie::State::Waiting:
        return QStringLiteral("ConvertWaiting");
    case QueuedMovie::State::Converting:
        return QStringLiteral("ConvertWorking1");
    case QueuedMovie::State::Failed:
        return QStringLiteral("ConvertFailed");
    }
    return {};
}

} // namespace

QString QueuedMovie::key() const
{
    return QStringLiteral("%1-%2").arg(source, QString::number(added));
}

QVariantMap MovieRows::row(const QueuedMovie &movie)
{
    QVariantMap row{
        {identifierKey, movie.source},
        {identifier2Key, movie.key()},
        {nameKey, movie.title},
        {iconKey, iconOf(movie.state)},
        {orderKey, 0},
        {readyKey, false},
        {sizeKey, movie.size},
        {enabledKey, movie.isEnabled},
    };
    if (movie.state != QueuedMovie::State::Waiting)
        row.insert(convertingKey, movie.state == QueuedMovie::State::Converting);
    return row;
}

QVariantMap MovieRows::libraryRow(const QString &identifier, bool isSelected)
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
    if (isSelected)
        row.insert(enabledKey, true);
    return row;
}

QString MovieRows::identifierOf(const QVariantMap &row)
{
    return row.value(identifierKey).toString();
}

QString MovieRows::keyOf(const QVariantMap &row)
{
    return row.value(identifier2Key).toString();
}

QString MovieRows::sizeOf(const QString &path)
{
    return FileManagerTools::sizeDescriptionForByteCount(
        FileManager::defaultManager().linkStatus(path).size);
}
