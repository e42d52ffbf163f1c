#pragma once

#include <QDateTime>
#include <QStringList>
#include <QVariantMap>

#include <limits>
#include <optional>
#include <type_traits>
#include <vector>

/// The keys of the preferences domain that the helper and its front-ends share. Keys and stored
/// numbers are frozen: other versions of the system read them.
namespace Settings {

/// How values of a setting are declared and read; without a default they may be absent.
template <typename T>
struct Kept
{
    using Default = T;
    using Value = T;
};
template <>
struct Kept<QString>
{
    using Default = const char *;
    using Value = QString;
};
template <>
struct Kept<QDateTime>
{
    using Default = std::nullopt_t;
    using Value = std::optional<QDateTime>;
};

/// The numbers that front-ends let a setting have, both ends included.
struct Range
{
    qint64 least = std::numeric_limits<int>::min();
    qint64 most = std::numeric_limits<int>::max();
};

/// One key of UserDefaults::standard(), read at the moment of use. Any thread. A stored value of
/// another type is converted as the store does; one outside a setting's range is answered as it is,
/// also an enumeration's.
template <typename T>
struct Setting
{
    QStringView name; ///< of a literal
    typename Kept<T>::Default defaultValue;
    Range range = {};

    QString key() const { return QString::fromRawData(name.data(), name.size()); }
    typename Kept<T>::Value operator()() const;
    /// Nothing takes the stored value away.
    void set(const std::optional<T> &value) const;
};

// --- The PSP and its stick

/// Generation of the PSP's system software, from 0. Below 1 it plays MP3 and shows JPEG only, and
/// knows neither bookmarks nor the contacts page.
inline constexpr Setting<qint64> firmwareVersion{u"firmwareVersion", 1, {.least = 0}};
/// Folder that holds the documents folder, see Folders::isPlace().
inline constexpr Setting<QString> caravelFolder{u"CaravelFolder", "~/Documents"};
/// Selections are read from the stick's own copy; such a stick is never synced on mount.
inline constexpr Setting<bool> useSyncProfiles{u"useSyncProfiles", false};
/// The helper is a login item, shows its status item, and outlives the front-ends.
inline constexpr Setting<bool> startOnLogin{u"startOnLogin", true};
/// A front-end is opened when a PSP mounts.
inline constexpr Setting<bool> openOnMount{u"openOnMount", false};
/// A stick that was synced before is synced when it mounts, and when the movie queue has run empty.
inline constexpr Setting<bool> syncOnMount{u"syncOnMount", true};
/// On: clean-up removes every file in a kind's folder that the run does not place. Off: only those
/// that the kind's last index lists.
inline constexpr Setting<bool> ownOnly{u"ownOnly", true};
/// What a run takes from the stick though no sync had placed it is first copied to the computer.
inline constexpr Setting<bool> keepRemovedFiles{u"keepRemovedFiles", true};
/// A completed run ends with the stick's ejection.
inline constexpr Setting<bool> unmountAfterSync{u"unmountAfterSync", false};
inline constexpr Setting<bool> playSyncCompletionSound{u"playSyncCompletionSound", true};
/// Of other versions' front-ends; nothing here reads it.
inline constexpr Setting<bool> regCheckForUpdates{u"regCheckForUpdates", true};
/// An alert is shown for a Memory Stick that no PSP has formatted.
inline constexpr Setting<bool> warnAboutUnformattedMemorySticks{u"warnAboutUnformattedMemorySticks",
                                                                true};
inline constexpr Setting<bool> useDetailedLogging{u"useDetailedLogging", false};

// --- What is synced

/// The kind of media takes part in runs: "sync" + save name, see takesPart().
inline constexpr Setting<bool> syncContacts{u"syncContacts", true}; ///< bookmarks name the page too
inline constexpr Setting<bool> syncMusic{u"syncMusic", true};
inline constexpr Setting<bool> syncPhotos{u"syncPhotos", true};
inline constexpr Setting<bool> syncMovies{u"syncMovies", true};
inline constexpr Setting<bool> syncBookmarks{u"syncBookmarks", true};
inline constexpr Setting<bool> syncBackup{u"syncBackup", true};
/// What lies in the dropbox folders comes along.
inline constexpr Setting<bool> syncDropboxes{u"syncDropboxes", true};

// --- Names on the stick

/// Folders of music; any other number counts as Album.
enum class MusicFolders : qint64 { Playlist = 0, Artist = 1, Album = 2, ArtistAndAlbum = 3 };
inline constexpr Setting<MusicFolders> organizeMusicBy{
    u"organizeMusicBy", MusicFolders::Album, {0, 3}};
/// What music files' names begin with; any other number counts as DiscAndTrack.
enum class MusicPrefix : qint64 { Position = 0, Nothing = 1, DiscAndTrack = 2 };
inline constexpr Setting<MusicPrefix> sortMusicBy{
    u"sortMusicBy", MusicPrefix::DiscAndTrack, {0, 2}};
/// What photos' names begin with; any other number counts as Nothing.
enum class PhotoPrefix : qint64 { Nothing = 0, Position = 1 };
inline constexpr Setting<PhotoPrefix> sortPhotosBy{u"sortPhotosBy", PhotoPrefix::Nothing, {0, 1}};

// --- The converter, which takes its default for a number outside the range

/// Pixels at most: 0 for 320 by 240, 1 for 368 by 208, 2 for 480 by 272, 3 for 720 by 480.
inline constexpr Setting<qint64> movieConvertVideoResolution{
    u"movieConvertVideoResolution", 0, {0, 3}};
/// From 0 (least, at half the frame rate) to 3.
inline constexpr Setting<qint64> movieConvertVideoQuality{u"movieConvertVideoQuality", 2, {0, 3}};
/// From 0 (least) to 3.
inline constexpr Setting<qint64> movieConvertAudioQuality{u"movieConvertAudioQuality", 2, {0, 3}};
/// Per cent of the source's volume, 0 to 1000.
inline constexpr Setting<qint64> volumeBoost{u"volumeBoost", 100, {0, 1000}};
inline constexpr Setting<bool> deinterlace{u"deinterlace", false};
/// Handed to the converter, which has no use for it.
inline constexpr Setting<bool> useQuickTime{u"useQuickTime", true};

// --- Sources and history

/// Where playlists come from; any other number counts as ITunes.
enum class MusicSource : qint64 { ITunes = 0, Folders = 1, Rhythmbox = 2 };
inline constexpr Setting<MusicSource> musicSource{u"musicSource", MusicSource::ITunes, {0, 2}};
/// Where albums come from; any other number counts as IPhoto.
enum class PhotosSource : qint64 { IPhoto = 0, Folders = 1 };
inline constexpr Setting<PhotosSource> photosSource{u"photosSource", PhotosSource::IPhoto, {0, 1}};
/// Browser whose bookmarks are synced; none for any other number. Firefox is the one that writes
/// its bookmarks to a page, Places the one that keeps them in a database; Chromium stands for its
/// kin too.
enum class BookmarkBrowser : qint64 {
    Safari = 0,
    Firefox = 1,
    OmniWeb = 2,
    Camino = 3,
    Places = 4,
    Chromium = 5
};
inline constexpr Setting<BookmarkBrowser> bookmarkSource{
    u"bookmarkSource", BookmarkBrowser::Safari, {0, 5}};
/// Folder of the profile that Places and Chromium read: a path, or a name among the browser's
/// profiles. Empty: the first that is found.
inline constexpr Setting<QString> bookmarkProfile{u"bookmarkProfile", ""};
/// Backups of each game save: 1 for ten, 2 for twenty-five, 3 for fifty; all for any other number.
inline constexpr Setting<qint64> backupsToKeep{u"backupsToKeep", 2, {0, 3}};

// --- Kept by the helper

/// Bytes that the last sync placed on the stick.
inline constexpr Setting<quint64> lastSyncSize{u"lastSyncSize", 0};
/// Bytes free on the stick when last seen; stands in for them while no PSP is mounted.
inline constexpr Setting<quint64> lastFreeSpace{u"lastFreeSpace", 490943283};
/// End of the last completed sync.
inline constexpr Setting<QDateTime> lastSync{u"lastSync", std::nullopt};
/// Bytes; for the log, and written by nothing here. It has no default in the store.
inline constexpr Setting<quint64> lastStickSize{u"lastStickSize", 0};

/// Whether the kind of media of that save name takes part in runs: "sync" + save name.
bool takesPart(const QString &saveName);

/// musicSource and photosSource as they count.
MusicSource musicLibrary();
PhotosSource photoLibrary();

/// What a kind's selection goes by: the save name, with "@" and its number behind it where the
/// kind's source is another than the first. Each source has a selection of its own, which waits
/// until the source comes back; the browsers with a file of bookmarks share the first's.
QString selectionName(const QString &saveName);
/// The key of what is selected in the kind of that save name, an array of identifiers: "enabled" +
/// selectionName().
QString selectionKey(const QString &saveName);
/// What is selected there; nothing where that was never stored.
std::optional<QStringList> selection(const QString &saveName);
void setSelection(const QString &saveName, const QStringList &identifiers);
/// Whether what was selected is gone with preferences that were damaged and had to be set aside: no
/// selection, of any kind, has been stored since. Asks the disk.
bool isSelectionLost();

// --- All of them

struct Key
{
    QString name;
    QVariant defaultValue; ///< a bool, int, quint64 or QString: the key's type
    Range range;           ///< of an int

    /// The stored value in that type (any whole number for an int), as every reader sees it.
    QVariant value() const;
};

/// The keys that have a default, in the order in which the defaults are installed.
const std::vector<Key> &keys();

/// The same as the store's layer of defaults takes them.
QVariantMap registeredDefaults();

} // namespace Settings
