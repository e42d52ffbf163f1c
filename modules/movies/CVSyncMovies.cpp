#include "modules/movies/CVSyncMovies.h"

#include "platform/core/Localized.h"
#include "platform/desktop/Workspace.h"
#include "sync/ErrorLog.h"
#include "sync/Log.h"
#include "sync/ModuleSelection.h"
#include "util/FileManagerTools.h"
#include "util/Folders.h"
#include "util/PathComponents.h"
#include "util/Settings.h"

#include <map>

namespace {

constexpr int highestId = 99999;

QString libraryRoot()
{
    return Folders::documents() + QStringLiteral("/Movies");
}

QString dropbox()
{
    return Folders::dropbox(QStringLiteral("Movies"));
}

QString idOf(const QString &identifier)
{
    return identifier.section(u'/', 0, 0);
}

QString titleOf(const QString &identifier)
{
    return identifier.section(u'/', 1);
}

// Whether it has an identifier's form: it names no place outside of the library then.
bool isIdentifier(const QString &text)
{
    return PathComponents::count(text) == 2;
}

bool moveReported(const QString &source, const QString &destination)
{
    ErrorLog errors;
    return files().move(source, destination, &errors);
}

// A free name in the support folder: what an earlier movie of that title left there stays.
QString keptFile(const QString &title, const QString &ending)
{
    const QString path = Folders::support() + u'/' + PathComponents::safe(title, ending) + ending;
    QString free = path;
    for (int number = 1; files().linkStatus(free).exists(); ++number)
        free = PathComponents::numbered(path, number);
    return free;
}

void keepConverted(const QString &title)
{
    for (const QString &ending : {QStringLiteral(".MP4"), QStringLiteral(".THM")}) {
        const QString source = CVSyncMovies::convertedFile(ending);
        if (!files().exists(source))
            continue;
        const QString kept = keptFile(title, ending);
        if (moveReported(source, kept))
            qCWarning(lcModules).noquote() << "The converted movie is kept as" << kept;
    }
}

// A movie that waits for its conversion goes by the path of its source.
bool isMovieIdentifier(const QString &text)
{
    return ModuleSelection::isIdentifier(text.startsWith(u'/') ? text.mid(1) : text);
}

} // namespace

CVSyncMovies::CVSyncMovies(const QString &volume)
    : CVSyncModule(volume, saveName())
{
}

ModuleKind CVSyncMovies::kind()
{
    return {.saveName = saveName(),
            .make = [](const QString &volume) { return std::make_unique<CVSyncMovies>(volume); },
            .hasDropbox = true,
            .setSelectedIdentifiers = setSelectedIdentifiers,
            .isIdentifier = isMovieIdentifier};
}

QString CVSyncMovies::saveName()
{
    return QStringLiteral("Movies");
}

// --- The library

QStringList CVSyncMovies::availableIdentifiers()
{
    // Byte order: a movie's last title is the one that counts.
    std::map<int, QString> titles; // by the folder's place in the listing
    const std::vector<FolderEntry> entries = files().subpaths(libraryRoot());
    for (const FolderEntry &entry : entries) {
        const bool isTitle =
            entry.parent >= 0 && entries[static_cast<size_t>(entry.parent)].parent < 0;
        if (isTitle && !entry.path.startsWith(u".DS_Store/"))
            titles[entry.parent] = entry.path;
    }
    QStringList identifiers;
    for (const auto &[parent, path] : titles)
        identifiers.append(path);
    return identifiers;
}

std::optional<QString> CVSyncMovies::nextAvailableMovieId()
{
    const QString root = libraryRoot() + u'/';
    for (int number = 1; number <= highestId; ++number) {
        const QString id = QStringLiteral("M4V%1").arg(number, 5, 10, QChar(u'0'));
        if (!files().linkStatus(root + id).exists())
            return id;
    }
    return std::nullopt;
}

QString CVSyncMovies::fileOf(const QString &identifier, const QString &ending)
{
    return libraryRoot() + u'/' + identifier + u'/' + idOf(identifier) + ending;
}

QString CVSyncMovies::convertedFile(const QString &ending)
{
    return Folders::support() + QStringLiteral("/CONVERT") + ending;
}

std::optional<QString> CVSyncMovies::moveConvertedMovieNamed(const QString &title)
{
    const auto id = nextAvailableMovieId();
    if (!id) {
        qCWarning(lcModules) << "The movie library is full";
        keepConverted(title);
        return std::nullopt;
    }
    const QString identifier = *id + u'/' + PathComponents::safe(title);
    const QString folder = libraryRoot() + u'/' + identifier;
    FileManagerTools::createPath(folder);
    const QString movie = convertedFile(QStringLiteral(".MP4"));
    if (files().exists(movie) && !moveReported(movie, fileOf(identifier, QStringLiteral(".MP4")))) {
        files().remove(libraryRoot() + u'/' + *id, nullptr);
        keepConverted(title);
        return std::nullopt;
    }
    const QString thumbnail = convertedFile(QStringLiteral(".THM"));
    if (files().exists(thumbnail))
        moveReported(thumbnail, fileOf(identifier, QStringLiteral(".THM")));
    return identifier;
}

bool CVSyncMovies::deleteMovieWithIdentifier(const QString &identifier)
{
    const QString folder = libraryRoot() + u'/' + idOf(identifier);
    if (isIdentifier(identifier) && files().linkStatus(folder).exists())
        return Workspace::recycle(folder);
    qCWarning(lcModules).noquote() << "There is no movie to delete named" << identifier;
    return false;
}

bool CVSyncMovies::renameMovieWithIdentifier(const QString &identifier, const QString &newName,
                                             const QString &forPSP)
{
    const QString folder = libraryRoot() + u'/' + identifier;
    if (!isIdentifier(identifier) || !files().linkStatus(folder).isFolder() ||
        !PathComponents::isName(newName)) {
        qCWarning(lcModules).noquote().nospace()
            << "The movie \"" << identifier << "\" can't be renamed to \"" << newName << '"';
        return false;
    }
    const QString renamed = idOf(identifier) + u'/' + newName;
    if (renamed == identifier)
        return true;
    if (!moveReported(folder, libraryRoot() + u'/' + renamed))
        return false;
    ModuleSelection::rename(identifier, renamed, saveName(), forPSP);
    return true;
}

// --- The selection and the run

std::optional<QStringList> CVSyncMovies::selectedIdentifiersForPSP(const QString &volume)
{
    return ModuleSelection::read(saveName(), volume);
}

void CVSyncMovies::setSelectedIdentifiers(const QStringList &identifiers, const QString &forPSP)
{
    ModuleSelection::store(identifiers, saveName(), forPSP);
}

QString CVSyncMovies::moduleName() const
{
    return localized("Movies");
}

QString CVSyncMovies::rootSyncFolder() const
{
    return pspVolume() + QStringLiteral("/MP_ROOT");
}

bool CVSyncMovies::shouldClearUnsyncedFiles() const
{
    return true;
}

std::vector<CVSyncItem> CVSyncMovies::itemsToSync()
{
    std::vector<CVSyncItem> items;
    addLibraryItems(items);
    if (Settings::syncDropboxes())
        addDropboxItems(items);
    return items;
}

void CVSyncMovies::addLibraryItems(std::vector<CVSyncItem> &items) const
{
    const QString folder = rootSyncFolder() + QStringLiteral("/100MNV01/");
    for (const QString &identifier : availableIdentifiers()) {
        if (!isSelected(identifier))
            continue;
        for (const QString &ending : {QStringLiteral(".MP4"), QStringLiteral(".THM")})
            items.emplace_back(fileOf(identifier, ending), folder + idOf(identifier) + ending,
                               titleOf(identifier));
    }
}

void CVSyncMovies::addDropboxItems(std::vector<CVSyncItem> &items) const
{
    const QString from = dropbox() + u'/';
    for (const FolderEntry &entry : files().entries(dropbox())) {
        const QStringView extension = PathComponents::extensionOf(entry.path);
        const bool isWanted = extension.compare(u"MP4", Qt::CaseInsensitive) == 0 ||
                              extension.compare(u"THM", Qt::CaseInsensitive) == 0;
        if (entry.isFolder || !isWanted)
            continue;
        const QString folder = entry.path.startsWith(u"MAQ") ? QStringLiteral("/100ANV01/")
                                                             : QStringLiteral("/101MNV01/");
        items.emplace_back(from + entry.path, rootSyncFolder() + folder + entry.path.toUpper(),
                           entry.path);
    }
}
