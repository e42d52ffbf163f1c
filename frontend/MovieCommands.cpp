#include "frontend/MovieCommands.h"

#include "frontend/HelperClient.h"
#include "frontend/Output.h"

#include <QFileInfo>

namespace {

QString text(const QVariantMap &row, QStringView key)
{
    return row.value(key.toString()).toString();
}

/// The one row that the user means; empty, with an error told, for none and for several.
QVariantMap rowNamed(HelperClient &helper, const QString &id)
{
    QList<QVariantMap> byName;
    for (const QVariant &each : helper.ask(QStringLiteral("moviesItems")).toList()) {
        const QVariantMap row = each.toMap();
        if (text(row, u"identifier") == id || text(row, u"identifier2") == id)
            return row;
        if (text(row, u"name") == id)
            byName.append(row);
    }
    if (byName.size() == 1)
        return byName.first();
    if (!helper.failed())
        Output::error(byName.isEmpty()
                          ? QStringLiteral("there is no movie %1").arg(id)
                          : QStringLiteral("several movies are called %1; name one by its "
                                           "identifier, see list movies --json")
                                .arg(id));
    return {};
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
    const QVariantMap row = rowNamed(helper, id);
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
    const QVariantMap row = rowNamed(helper, id);
    if (!row.isEmpty())
        helper.ask(QStringLiteral("renameMovieItem"), {row, title});
    return row.isEmpty() && !helper.failed() ? Refused : helper.reportFailure();
}
