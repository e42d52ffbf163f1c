#include "modules/movies/CVSyncMovies.h"

#include "modules/movies/ConvertedMovie.h"
#include "platform/core/Localized.h"
#include "platform/desktop/Workspace.h"
#include "sync/ErrorLog.h"
#include "sync/Log.h"
#include "sync/ModuleSelection.h"
#include "util/FileManagerTools.h"
#include "util/Folders.h"
#include "util/PathComponents.h"
#include "util/Settings.h"

#include <QSet>

#include <atomic>
#include <thread>

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

// Odd while a movie is renamed: library and selection call it differently then.
std::atomic<unsigned> renaming = 0;

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
    QStringList identifiers;
    const QString root = libraryRoot() + u'/';
    for (const FolderEntry &entry : files().entries(libraryRoot())) {
        if (entry.path == u".DS_Store" || !(entry.isFolder || entry.isLink))
            continue;
        const std::vector<FolderEntry> titles = files().entries(root + entry.path);
        if (!titles.empty()) // in byte order: a movie's last title is the one that counts
            identifiers.append(entry.path + u'/' + titles.back().path);
    }
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

StoredMovie CVSyncMovies::moveConvertedMovieNamed(const QString &title)
{
    const auto id = nextAvailableMovieId();
    if (!id) {
        qCWarning(lcModules) << "The movie library is full";
        return {.identifier = {}, .keptAs = ConvertedMovie::keep(title)};
    }
    const QString identifier = *id + u'/' + PathComponents::safe(title);
    if (ConvertedMovie::moveInto(libraryRoot() + u'/' + identifier, *id, libraryRoot()))
        return {.identifier = identifier, .keptAs = {}};
    if (const QString folder = libraryRoot() + u'/' + *id; files().linkStatus(folder).exists())
        files().remove(folder, nullptr);
    return {.identifier = {}, .keptAs = ConvertedMovie::keep(title)};
}

void CVSyncMovies::removeLeftovers()
{
    ConvertedMovie::removeLeftovers(libraryRoot());
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
    if (!isIdentifier(identifier) || !files().status(folder).isFolder() ||
        !PathComponents::isName(newName)) {
        qCWarning(lcModules).noquote().nospace()
            << "The movie \"" << identifier << "\" can't be renamed to \"" << newName << '"';
        return false;
    }
    const QString renamed = idOf(identifier) + u'/' + newName;
    if (renamed == identifier)
        return true;
    ErrorLog errors;
    ++renaming;
    const bool isMoved = files().move(folder, libraryRoot() + u'/' + renamed, &errors);
    if (isMoved)
        ModuleSelection::rename(identifier, renamed, saveName(), forPSP);
    ++renaming;
    return isMoved;
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

QStringList CVSyncMovies::selectedMovies() const
{
    for (;;) {
        const unsigned before = renaming;
        const QStringList selected = selectedIdentifiersForPSP(pspVolume()).value_or(QStringList());
        QStringList movies = availableIdentifiers();
        movies.removeIf([isSelected = QSet<QString>(selected.begin(), selected.end())](
                            const QString &movie) { return !isSelected.contains(movie); });
        if (before % 2 == 0 && before == renaming)
            return movies;
        std::this_thread::yield();
    }
}

void CVSyncMovies::addLibraryItems(std::vector<CVSyncItem> &items) const
{
    const QString folder = rootSyncFolder() + QStringLiteral("/100MNV01/");
    for (const QString &identifier : selectedMovies()) {
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
