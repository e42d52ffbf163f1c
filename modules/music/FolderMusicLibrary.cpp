#include "modules/music/own/FolderMusicLibrary.h"

#include "modules/music/own/MusicNaming.h"
#include "modules/music/own/PlaylistFile.h"
#include "modules/music/own/TagIndex.h"
#include "platform/files/FileManager.h"
#include "sync/Log.h"
#include "util/FileUrl.h"
#include "util/Folders.h"
#include "util/MediaFolder.h"
#include "util/PathComponents.h"
#include "util/Settings.h"
#include "util/StringTools.h"

#include <QHash>
#include <QStringEncoder>

#include <algorithm>
#include <map>
#include <optional>

using Part = MusicLibrary::Part;

namespace {

constexpr int steps = 64;              // between two questions whether to stop
constexpr size_t longestList = 100000; // entries; a PSP shows far fewer
constexpr size_t usualTexts = 200;     // bytes of a song's place and tags, at most

/// A file that the PSP plays.
struct Song
{
    const FolderEntry *entry;
    bool isWanted = false;
    const TagIndex::Entry *known = nullptr; // once its tags are needed
    std::int64_t id = -1;                   // in the library, once it is there
};

/// A playlist with the places of its songs, and what a list calls them.
struct Selection
{
    MusicLibrary::Playlist playlist;
    std::vector<size_t> songs;
    QHash<qsizetype, QString> titles; // by position; a list's own
};

class FolderMusic
{
public:
    FolderMusic(MediaFolder folder, const MusicReading &reading)
        : m_folder(std::move(folder))
        , m_top(m_folder.path().toUtf8() + '/')
        , m_path(m_top.toStdString())
        , m_reading(reading)
    {
    }

    MusicLibrary read();

private:
    void sortOut();
    void addLists();
    Selection listAt(const QString &path);
    std::optional<size_t> songAt(const QString &folder, const QString &place) const;
    std::optional<size_t> songAtPath(const QString &path) const;
    void addFolders();
    void readTags();
    void addTracks(Selection &selection);
    std::int64_t trackOf(Song &song, const QString &titleInList);
    TaggedFile tagged(const Song &song);
    std::string_view pathOf(const Song &song);

    const MediaFolder m_folder;
    const QByteArray m_top; // its path with "/"
    std::string m_path;     // begins with that
    const MusicReading &m_reading;
    std::vector<Song> m_songs;
    QStringList m_lists;                              // their paths below the folder
    std::map<int, std::vector<size_t>> m_songsInside; // by the folder that they lie in
    QHash<QStringView, size_t> m_places;              // of the songs, by path below the folder
    std::vector<Selection> m_found;
    std::optional<TagIndex> m_index;
    MusicLibrary m_library;
};

MusicLibrary FolderMusic::read()
{
    m_library.unreadPart = m_folder.unreadableAmong(m_reading.selected);
    sortOut();
    addLists();
    addFolders();
    readTags();
    for (Selection &selection : m_found)
        addTracks(selection);
    return std::move(m_library);
}

void FolderMusic::sortOut()
{
    const qint64 firmware = Settings::firmwareVersion();
    for (const FolderEntry *entry : m_folder.files()) {
        const QStringView extension = PathComponents::extensionOf(entry->path);
        if (PlaylistFile::isOne(extension)) {
            m_lists.append(entry->path);
        } else if (MusicNaming::isPlayable(extension, firmware)) {
            m_songsInside[entry->parent].push_back(m_songs.size());
            m_songs.push_back({entry});
        }
    }
}

// --- Lists

void FolderMusic::addLists()
{
    if (m_lists.isEmpty())
        return;
    m_places.reserve(static_cast<qsizetype>(m_songs.size()));
    for (size_t i = 0; i < m_songs.size(); ++i)
        m_places.insert(m_songs[i].entry->path, i);
    for (const QString &path : m_lists) {
        if (m_reading.shouldStop())
            return;
        m_found.push_back(listAt(path));
    }
}

Selection FolderMusic::listAt(const QString &path)
{
    Selection found;
    const QString folder = PathComponents::folderOf(path);
    qsizetype leftOut = 0;
    const auto title = PlaylistFile::read(
        m_folder.path() + u'/' + path, [&](const QString &place, const QString &called) {
            const auto song =
                found.songs.size() < longestList ? songAt(folder, place) : std::nullopt;
            if (!song) {
                ++leftOut;
                return;
            }
            if (!called.isEmpty())
                found.titles.insert(static_cast<qsizetype>(found.songs.size()), called);
            found.songs.push_back(*song);
        });
    const QString own = title.valueOr({});
    found.playlist.name = own.isEmpty() ? PathComponents::stemOf(path) : own;
    found.playlist.size = static_cast<qsizetype>(found.songs.size());
    const bool isNeeded = m_reading.needsTracksOf(found.playlist);
    if (!title && isNeeded)
        m_library.unreadPart = title.error();
    if (leftOut > 0 && isNeeded)
        qCInfo(lcModules).noquote() << "Left out of the playlist" << path << ':' << leftOut
                                    << "entries that lie elsewhere, are missing or can't be played";
    return found;
}

// Lists that come from elsewhere have "\" between components, others escape what addresses escape.
std::optional<size_t> FolderMusic::songAt(const QString &folder, const QString &place) const
{
    if (place.startsWith(u"file:", Qt::CaseInsensitive)) {
        const auto path = FileUrl::path(place.toUtf8().toStdString());
        return path ? songAtPath(*path) : std::nullopt;
    }
    const auto at = [&](const QString &text) {
        return songAtPath(text.startsWith(u'/') ? text
                                                : m_folder.path() + u'/' + folder + u'/' + text);
    };
    auto song = at(place);
    if (!song && place.contains(u'\\'))
        song = at(QString(place).replace(u'\\', u'/'));
    if (!song && place.contains(u'%'))
        song = at(QString::fromUtf8(QByteArray::fromPercentEncoding(place.toUtf8())));
    return song;
}

std::optional<size_t> FolderMusic::songAtPath(const QString &path) const
{
    const QString plain = StringTools::standardizingPath(path);
    for (const QString &top : {m_folder.path(), m_folder.givenPath()}) {
        if (plain.size() <= top.size() || !plain.startsWith(top) || plain[top.size()] != u'/')
            continue;
        const auto found = m_places.constFind(QStringView(plain).mid(top.size() + 1));
        if (found != m_places.cend())
            return *found;
    }
    return std::nullopt;
}

// --- Folders

void FolderMusic::addFolders()
{
    for (auto &[place, songs] : m_songsInside) {
        Selection &folder = m_found.emplace_back();
        folder.playlist.isFolder = true;
        folder.playlist.name = m_folder.nameOf(place);
        folder.playlist.size = static_cast<qsizetype>(songs.size());
        folder.songs = std::move(songs);
    }
}

// --- Tracks

// Valid until the next one is asked for: 20,000 of them are felt.
std::string_view FolderMusic::pathOf(const Song &song)
{
    const QString &path = song.entry->path;
    QStringEncoder encoder(QStringEncoder::Utf8);
    const auto top = static_cast<size_t>(m_top.size());
    m_path.resize(top + static_cast<size_t>(encoder.requiredSpace(path.size())));
    const char *const end = encoder.appendToBuffer(m_path.data() + top, path);
    return {m_path.data(), end};
}

TaggedFile FolderMusic::tagged(const Song &song)
{
    TaggedFile file{pathOf(song), song.entry->size, song.entry->modified};
    if (song.entry->isLink) {
        const auto target = files().stamp(m_folder.path() + u'/' + song.entry->path);
        file.size = static_cast<std::uint64_t>(target.value_or(FileStamp()).size);
        file.modified = target.value_or(FileStamp()).modified;
    }
    return file;
}

void FolderMusic::readTags()
{
    if (m_reading.part != Part::Everything)
        return;
    for (const Selection &selection : m_found) {
        if (m_reading.needsTracksOf(selection.playlist)) {
            for (const size_t song : selection.songs)
                m_songs[song].isWanted = true;
        }
    }
    const auto wanted = static_cast<size_t>(
        std::ranges::count_if(m_songs, [](const Song &song) { return song.isWanted; }));
    m_library.reserve(wanted, wanted * usualTexts);
    TagIndex &index = m_index.emplace(Folders::support() + QStringLiteral("/MusicTags"));
    std::vector<Song *> unread;
    for (Song &song : m_songs) {
        song.known = index.known(tagged(song));
        if (song.isWanted && !song.known)
            unread.push_back(&song);
    }
    int done = 0;
    for (Song *song : unread) {
        if (done % steps == 0) {
            m_reading.progress(done, static_cast<int>(unread.size()));
            if (m_reading.shouldStop())
                break;
        }
        song->known = &index.read(tagged(*song));
        ++done;
    }
    index.store();
}

void FolderMusic::addTracks(Selection &selection)
{
    if (m_reading.needsTracksOf(selection.playlist)) {
        selection.playlist.tracks.reserve(selection.songs.size());
        for (size_t i = 0; i < selection.songs.size(); ++i)
            selection.playlist.tracks.push_back(trackOf(
                m_songs[selection.songs[i]], selection.titles.value(static_cast<qsizetype>(i))));
    }
    m_library.add(std::move(selection.playlist));
}

/// A song has one track, and further ones for the titles that lists give it.
std::int64_t FolderMusic::trackOf(Song &song, const QString &titleInList)
{
    if (song.id >= 0 && titleInList.isEmpty())
        return song.id;
    static const FileTags none;
    const FileTags &tags = song.known ? song.known->tags : none; // a cancel came first
    if (song.id >= 0 && tags.title)
        return song.id;
    const std::string location = FileUrl::of(song.known ? song.known->file.path : pathOf(song));
    std::string title;
    if (!tags.title)
        title = (titleInList.isEmpty() ? PathComponents::stemOf(song.entry->path) : titleInList)
                    .toStdString();
    const std::int64_t id = m_library.add({.isFile = true,
                                           .isLossless = tags.isLossless,
                                           .trackNumber = tags.trackNumber,
                                           .discNumber = tags.discNumber,
                                           .location = location,
                                           .artist = tags.artist,
                                           .album = tags.album,
                                           .name = tags.title ? tags.title : title});
    if (tags.title || titleInList.isEmpty())
        song.id = id;
    return id;
}

} // namespace

FileResult<MusicLibrary> readFolderMusic(const QString &folder, const MusicReading &reading)
{
    const bool needsTags = reading.part == Part::Everything;
    FileResult<MediaFolder> found = MediaFolder::read(
        folder, needsTags ? MediaFolder::Detail::Sizes : MediaFolder::Detail::Names);
    if (!found)
        return found.error();
    return FolderMusic(std::move(*found), reading).read();
}
