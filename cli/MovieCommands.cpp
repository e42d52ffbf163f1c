#include "cli/MovieCommands.h"

#include "cli/MeantRow.h"
#include "cli/Output.h"
#include "cli/Session.h"
#include "util/PathComponents.h"

#include <QFileInfo>

namespace {

QVariantMap meantMovie(HelperClient &helper, const QString &id)
{
    return meantRow(helper, Protocol::moviesItems, id, QStringLiteral("movie"),
                    QStringLiteral("movies"));
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
    Session session;
    HelperClient &helper = session.helper();
    helper.ask(Protocol::addMoviesFromArray, {paths});
    return session.report();
}

ExitStatus runRemoveMovie(const QString &id)
{
    Session session;
    HelperClient &helper = session.helper();
    const QVariantMap row = meantMovie(helper, id);
    if (!row.isEmpty())
        helper.ask(Protocol::removeMovieItem, {row});
    return row.isEmpty() && !helper.failed() ? Refused : session.report();
}

ExitStatus runRenameMovie(const QString &id, const QString &title)
{
    // Refused here, since the helper answers nothing.
    if (!PathComponents::isName(title)) {
        Output::error(QStringLiteral("\"%1\" can't be a movie's title").arg(title));
        return Refused;
    }
    Session session;
    HelperClient &helper = session.helper();
    const QVariantMap row = meantMovie(helper, id);
    if (!row.isEmpty())
        helper.ask(Protocol::renameMovieItem, {row, title});
    return row.isEmpty() && !helper.failed() ? Refused : session.report();
}
