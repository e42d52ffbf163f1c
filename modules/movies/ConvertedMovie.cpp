#include "modules/movies/ConvertedMovie.h"

#include "sync/ErrorLog.h"
#include "sync/Log.h"
#include "util/FileManagerTools.h"
#include "util/Folders.h"
#include "util/PathComponents.h"

namespace ConvertedMovie {

namespace {

const QString part = QStringLiteral(".part");

bool moveReported(const QString &source, const QString &destination)
{
    ErrorLog errors;
    return files().move(source, destination, &errors);
}

void removeIfThere(const QString &path)
{
    if (files().linkStatus(path).exists())
        files().remove(path, nullptr);
}

// On the library's own disk, from where it gets its name in one step.
QString copyIn(const QString &library)
{
    return library + QStringLiteral("/CONVERT") + movieEnding + part;
}

bool isOnAnotherDisk(const QString &path, const QString &other)
{
    const auto one = files().stamp(path);
    const auto two = files().stamp(other);
    return one && two && one->device != two->device;
}

QString freeName(const QString &title, const QString &ending)
{
    const QString path = Folders::support() + u'/' + PathComponents::safe(title, ending) + ending;
    QString free = path;
    for (int number = 1; files().linkStatus(free).exists(); ++number)
        free = PathComponents::numbered(path, number);
    return free;
}

QString keepFile(const QString &title, const QString &ending)
{
    const QString source = file(ending);
    if (!files().exists(source))
        return {};
    const QString kept = freeName(title, ending);
    if (!moveReported(source, kept))
        return {};
    qCWarning(lcModules).noquote() << "The converted movie is kept as" << kept;
    return kept;
}

} // namespace

QString file(const QString &ending)
{
    return Folders::support() + QStringLiteral("/CONVERT") + ending;
}

bool moveInto(const QString &folder, const QString &name, const QString &library)
{
    FileManagerTools::createPath(library);
    QString movie = file(movieEnding);
    if (isOnAnotherDisk(movie, library)) {
        removeIfThere(copyIn(library));
        if (!moveReported(movie, copyIn(library)))
            return false;
        movie = copyIn(library);
    }
    FileManagerTools::createPath(folder);
    const QString stem = folder + u'/' + name;
    if (files().exists(movie) && !moveReported(movie, stem + movieEnding)) {
        if (movie == copyIn(library))
            moveReported(movie, file(movieEnding));
        return false;
    }
    if (const QString thumbnail = file(thumbnailEnding); files().exists(thumbnail))
        moveReported(thumbnail, stem + thumbnailEnding);
    return true;
}

QString keep(const QString &title)
{
    const QString movie = keepFile(title, movieEnding);
    if (!movie.isEmpty())
        keepFile(title, thumbnailEnding);
    return movie;
}

void removeLeftovers(const QString &library)
{
    for (const QString &leftover : {file(movieEnding), file(movieEnding) + part,
                                    file(thumbnailEnding) + part, copyIn(library)})
        removeIfThere(leftover);
}

} // namespace ConvertedMovie
