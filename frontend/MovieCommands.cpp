#include "frontend/MovieCommands.h"

#include "frontend/HelperClient.h"
#include "frontend/Output.h"
#include "frontend/Rows.h"

#include <QFileInfo>

namespace {

/// Empty where there is no such row; the error is told, or remembered by the client.
QVariantMap movieNamed(HelperClient &helper, const QString &id)
{
    const QVariantList movies = helper.ask(QStringLiteral("moviesItems")).toList();
    if (helper.failed())
        return {};
    return Rows::named(movies, id, QStringLiteral("movie"), QStringLiteral("movies"));
}

// Refused here, since the helper answers nothing.
bool canBeTitle(const QString &title)
{
    return !title.isEmpty() && !title.contains(u'/') && title != u"." && title != u".." &&
           title.toUtf8().size() <= 255;
}

} // namespace

ExitStatus runAddMovies(const QStringList &files)
{
    QStringList paths;
    for (const QString &file : files) {
        const QFileInfo info(file);
        if (!info.isFile() || !info.isReadable()) {
            Output::error(
                QStringLiteral("%1 can't be read as a file (nothing was added)").arg(file));
            return Refused;
        }
        paths.append(info.absoluteFilePath());
    }
    HelperClient helper;
    helper.connectToHelper();
    helper.ask(QStringLiteral("addMoviesFromArray"), {paths});
    return helper.reportFailure();
}

ExitStatus runRemoveMovie(const QString &id)
{
    HelperClient helper;
    helper.connectToHelper();
    const QVariantMap row = movieNamed(helper, id);
    if (!row.isEmpty())
        helper.ask(QStringLiteral("removeMovieItem"), {row});
    return row.isEmpty() && !helper.failed() ? Refused : helper.reportFailure();
}

ExitStatus runRenameMovie(const QString &id, const QString &title)
{
    if (!canBeTitle(title)) {
        Output::error(QStringLiteral("\"%1\" can't be a movie's title").arg(title));
        return Refused;
    }
    HelperClient helper;
    helper.connectToHelper();
    const QVariantMap row = movieNamed(helper, id);
    if (!row.isEmpty())
        helper.ask(QStringLiteral("renameMovieItem"), {row, title});
    return row.isEmpty() && !helper.failed() ? Refused : helper.reportFailure();
}
