#include "app/SelectionLists.h"

#include "app/Log.h"
#include "app/RelativeDate.h"
#include "modules/bookmarks/CVSyncBookmarks.h"
#include "modules/movies/CVSyncMovies.h"
#include "modules/music/CVSyncMusic.h"
#include "modules/photos/CVSyncPhotos.h"
#include "modules/saves/CVSyncBackup.h"
#include "platform/core/Clock.h"
#include "platform/core/Localized.h"
#include "sync/CVSyncManager.h"
#include "sync/ModuleSelection.h"
#include "util/PSFParser.h"
#include "util/PathComponents.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <iterator>

namespace {

struct Kind
{
    QString icon;
    int order;
};

Kind kindOf(const MusicLibrary::Playlist &playlist)
{
    if (playlist.isFolder)
        return {QStringLiteral("Folder16"), 4};
    if (playlist.isMaster)
        return {QStringLiteral("iTunesLibrary"), 0};
    if (playlist.isPodcasts)
        return {QStringLiteral("iTunesPodcasts"), 1};
    if (playlist.isSmart)
        return {QStringLiteral("iTunesSmartPlaylist"), 2};
    return {QStringLiteral("iTunesPlaylist"), 3};
}

Kind kindOf(const PhotoLibrary::Album &album)
{
    static const QHash<QString, Kind> kinds{
        {QStringLiteral("Special Roll"), {QStringLiteral("iPhotoRoll"), 1}},
        {QStringLiteral("Special Month"), {QStringLiteral("iPhotoMonth"), 2}},
        {QStringLiteral("Smart"), {QStringLiteral("iPhotoSmartAlbum"), 3}},
        {QStringLiteral("Regular"), {QStringLiteral("iPhotoAlbum"), 4}},
        {QStringLiteral("Book"), {QStringLiteral("iPhotoBook"), 5}},
        {QStringLiteral("Slideshow"), {QStringLiteral("iPhotoSlideshow"), 6}},
    };
    if (album.isMaster)
        return {QStringLiteral("iPhotoLibrary"), 0};
    return kinds.value(album.type.value_or(QString()), {QStringLiteral("iPhotoAlbum"), 7});
}

Kind kindOf(const BookmarkFolder &folder)
{
    if (folder.title == u"BookmarksBar")
        return {QStringLiteral("BookmarksBar"), 0};
    if (folder.title == u"BookmarksMenu")
        return {QStringLiteral("BookmarksMenu"), 1};
    return {QStringLiteral("Folder16"), 2};
}

// Safari keeps two of its folders under names of its own.
QString shownTitle(const QString &title)
{
    if (title == u"BookmarksBar")
        return localized("Bookmarks Bar");
    return title == u"BookmarksMenu" ? localized("Bookmarks Menu") : title;
}

QSet<QString> toSet(const std::optional<QStringList> &selection)
{
    return selection ? QSet<QString>(selection->begin(), selection->end()) : QSet<QString>();
}

void refuse(const QString &identifier, const QString &saveName)
{
    qCWarning(lcApp).noquote().nospace()
        << "No identifier: \"" << identifier << "\" (" << saveName << ')';
}

// What has no name is shown, and can't be selected.
QVariantMap row(const std::optional<QString> &name, const Kind &kind, qsizetype size,
                const QSet<QString> &selected)
{
    QVariantMap row{
        {QStringLiteral("icon"), kind.icon},
        {QStringLiteral("order"), kind.order},
        {QStringLiteral("size"), static_cast<int>(size)},
    };
    if (!name)
        return row;
    row.insert(QStringLiteral("identifier"), *name);
    row.insert(QStringLiteral("name"), *name);
    if (selected.contains(*name))
        row.insert(QStringLiteral("enabled"), true);
    return row;
}

} // namespace

QVariantList SelectionLists::musicItems() const
{
    const auto playlists = CVSyncMusic::availableIdentifiers();
    if (!playlists)
        return {};
    const QSet<QString> selected =
        toSet(CVSyncMusic::selectedIdentifiersForPSP(m_manager.pspVolume()));
    QVariantList rows;
    for (const MusicLibrary::Playlist &playlist : *playlists) {
        if (playlist.isPartyShuffle || playlist.isPurchasedMusic || playlist.isVideos)
            continue;
        QVariantMap found = row(playlist.identifier(), kindOf(playlist), playlist.size, selected);
        if (playlist.name)
            found.insert(QStringLiteral("name"), *playlist.name);
        rows.append(found);
    }
    return rows;
}

QVariantList SelectionLists::photosItems() const
{
    const auto albums = CVSyncPhotos::availableIdentifiers();
    if (!albums)
        return {};
    const QSet<QString> selected =
        toSet(CVSyncPhotos::selectedIdentifiersForPSP(m_manager.pspVolume()));
    QVariantList rows;
    for (const PhotoLibrary::Album &album : *albums)
        rows.append(row(album.name, kindOf(album), album.size, selected));
    return rows;
}

QVariantList SelectionLists::bookmarksItems() const
{
    const QSet<QString> selected =
        toSet(CVSyncBookmarks::selectedIdentifiersForPSP(m_manager.pspVolume()));
    QVariantList rows;
    const auto folders =
        CVSyncBookmarks::availableIdentifiers([this] { return m_isClosed.load(); });
    for (const BookmarkFolder &folder : folders.valueOr({})) {
        QVariantMap found = row(folder.title, kindOf(folder), folder.size, selected);
        if (folder.title)
            found.insert(QStringLiteral("name"), shownTitle(*folder.title));
        rows.append(found);
    }
    return rows;
}

QVariantList SelectionLists::items(const QString &saveName) const
{
    static const QHash<QString, QVariantList (SelectionLists::*)() const> lists{
        {CVSyncMusic::saveName(), &SelectionLists::musicItems},
        {CVSyncPhotos::saveName(), &SelectionLists::photosItems},
        {CVSyncBookmarks::saveName(), &SelectionLists::bookmarksItems},
        {CVSyncBackup::saveName(), &SelectionLists::backupItems},
    };
    const auto list = lists.constFind(saveName);
    return list == lists.constEnd() ? QVariantList() : (this->**list)();
}

void SelectionLists::setSelected(const QString &saveName, const QStringList &identifiers) const
{
    const auto kind = std::ranges::find(m_catalogue, saveName, &ModuleKind::saveName);
    if (kind == m_catalogue.end() || !kind->setSelectedIdentifiers)
        return;
    // What comes over the bus may name anything.
    const auto isTaken = [&](const QString &identifier) {
        const bool isGood = !kind->isIdentifier || kind->isIdentifier(identifier);
        if (!isGood)
            refuse(identifier, saveName);
        return isGood;
    };
    QStringList taken;
    std::ranges::copy_if(identifiers, std::back_inserter(taken), isTaken);
    kind->setSelectedIdentifiers(taken, m_manager.pspVolume());
    m_manager.userHasLooked();
}

// --- Game saves

namespace {

QString value(const QMap<QString, QString> &parameters, const char *key)
{
    return parameters.value(QString::fromLatin1(key));
}

// The first of the parameters that says anything.
QString firstOf(const QMap<QString, QString> &parameters, std::initializer_list<const char *> keys)
{
    for (const char *key : keys) {
        if (const QString text = value(parameters, key); !text.isEmpty())
            return text;
    }
    return {};
}

QString unknownSave()
{
    return QStringLiteral("Unknown game save");
}

} // namespace

QString SelectionLists::dateText(double timestamp) const
{
    return relativeDate(QDateTime::fromSecsSinceEpoch(static_cast<qint64>(timestamp)),
                        m_clock.now());
}

QVariantList SelectionLists::backupItems() const
{
    QVariantList rows;
    for (const QString &save : CVSyncBackup::availableIdentifiers()) {
        if (save == u".DS_Store")
            continue;
        const QStringList backups = CVSyncBackup::availableSubIdentifiersForIdentifier(save);
        const QString newest = backups.isEmpty() ? QString() : backups.last();
        const QString folder = CVSyncBackup::folderOf(save + u'/' + newest);
        const auto parameters =
            folder.isEmpty()
                ? std::nullopt
                : PSFParser::dictionaryWithPSFFile(folder + QStringLiteral("/PARAM.SFO"));
        QString description = unknownSave();
        if (parameters)
            description = value(*parameters, "SAVEDATA_TITLE").isEmpty()
                              ? localized("No description available")
                              : value(*parameters, "SAVEDATA_TITLE");
        rows.append(QVariantMap{
            {QStringLiteral("identifier"), save},
            {QStringLiteral("name"), parameters ? value(*parameters, "TITLE") : save},
            {QStringLiteral("icon"),
             folder.isEmpty() ? QString() : folder + QStringLiteral("/ICON0.PNG")},
            {QStringLiteral("description"), description},
            {QStringLiteral("date"), dateText(CVSyncBackup::timestampOf(newest))},
        });
    }
    return rows;
}

QVariantList SelectionLists::backupSubItemsForIdentifier(const QString &identifier) const
{
    if (PathComponents::count(identifier) != 1)
        refuse(identifier, CVSyncBackup::saveName());
    QVariantList rows;
    for (const QString &name : CVSyncBackup::availableSubIdentifiersForIdentifier(identifier)) {
        if (name == u".DS_Store")
            continue;
        const QString backup = identifier + u'/' + name;
        const auto parameters = PSFParser::dictionaryWithPSFFile(CVSyncBackup::folderOf(backup) +
                                                                 QStringLiteral("/PARAM.SFO"));
        const double timestamp = CVSyncBackup::timestampOf(name);
        rows.append(QVariantMap{
            {QStringLiteral("identifier"), backup},
            {QStringLiteral("icon"), QStringLiteral("Backup")},
            {QStringLiteral("description"),
             parameters ? firstOf(*parameters, {"SAVEDATA_DETAIL", "SAVEDATA_TITLE", "TITLE"})
                        : unknownSave()},
            {QStringLiteral("date"), dateText(timestamp)},
            {QStringLiteral("timestamp"), timestamp},
        });
    }
    return rows;
}
