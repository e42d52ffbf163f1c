#pragma once

#include <QString>
#include <QVariantMap>

/// A movie on its way to the library.
struct QueuedMovie
{
    enum class State { Waiting, Converting, Failed };

    QString source; ///< full path
    qint64 added;   ///< seconds since 1970
    QString title;
    QString size;          ///< for the user, as it was when added
    bool isEnabled = true; ///< selected for the mounted PSP; not looked up any more once it failed
    State state = State::Waiting;

    /// By which a row that comes back is told apart from others; two of one source and one second
    /// are not.
    QString key() const;
};

/// The rows in which front-ends get movies and hand them back. A row is a map with "identifier" (a
/// queued movie's source, or of a movie in the library its identifier), "name", "icon" (a path, or
/// the name of an image that front-ends have), "order", "ready", "size", "enabled" (absent where a
/// movie of the library isn't selected), and of a queued or failed one also "identifier2", its key,
/// and "converting" (absent while it waits).
namespace MovieRows {

QVariantMap row(const QueuedMovie &movie);
QVariantMap libraryRow(const QString &identifier, bool isSelected);

/// What a row names; empty where it has no such entry.
QString identifierOf(const QVariantMap &row);
QString keyOf(const QVariantMap &row);

/// Size of a file for the user; a link counts itself.
QString sizeOf(const QString &path);

} // namespace MovieRows
