#include "window/SettingTexts.h"

#include "platform/core/Localized.h"
#include "util/Settings.h"
#include "util/TextFormat.h"

#include <QLocale>

#include <algorithm>

namespace SettingTexts {

namespace {

constexpr const char *general = QT_TRANSLATE_NOOP("", "General");
constexpr const char *syncing = QT_TRANSLATE_NOOP("", "Syncing");
constexpr const char *music = QT_TRANSLATE_NOOP("", "Music");
constexpr const char *photos = QT_TRANSLATE_NOOP("", "Photos");
constexpr const char *movies = QT_TRANSLATE_NOOP("", "Movies");
constexpr const char *bookmarks = QT_TRANSLATE_NOOP("", "Bookmarks");
constexpr const char *people = QT_TRANSLATE_NOOP("", "Contacts and Saves");

using namespace Settings;

QList<Text> generalTexts()
{
    return {
        {general, startOnLogin.name, QT_TRANSLATE_NOOP("", "Start at login"),
         QT_TRANSLATE_NOOP("", "Caravel waits for the PSP as long as you are logged in, and shows "
                               "its icon in the tray.")},
        {general, openOnMount.name,
         QT_TRANSLATE_NOOP("", "Open this window when a PSP is connected"),
         QT_TRANSLATE_NOOP("", "Otherwise only the icon in the tray tells of it.")},
        {general, playSyncCompletionSound.name, QT_TRANSLATE_NOOP("", "Play a sound after a sync"),
         QT_TRANSLATE_NOOP("", "Also after a movie has been converted.")},
        {general, warnAboutUnformattedMemorySticks.name,
         QT_TRANSLATE_NOOP("", "Tell about Memory Sticks without the PSP's folders"),
         QT_TRANSLATE_NOOP("", "Such a stick has to be formatted by the PSP before it can be "
                               "synced.")},
        {general, caravelFolder.name, QT_TRANSLATE_NOOP("", "Place of Caravel's folder"),
         QT_TRANSLATE_NOOP("", "The folder “Caravel” there holds converted movies, game saves and "
                               "the dropboxes. What the old place holds is not moved.")},
        {general, useDetailedLogging.name, QT_TRANSLATE_NOOP("", "Write a detailed log"),
         QT_TRANSLATE_NOOP("", "Each file is named. Useful where something doesn't work.")},
    };
}

QList<Text> syncTexts()
{
    return {
        {syncing,
         firmwareVersion.name,
         QT_TRANSLATE_NOOP("", "System software of the PSP"),
         QT_TRANSLATE_NOOP("",
                           "The first one plays only MP3 music, shows only JPEG photos, and has "
                           "no browser for bookmarks and contacts."),
         {{0, QT_TRANSLATE_NOOP("", "1.x")}, {1, QT_TRANSLATE_NOOP("", "2.00 or later")}}},
        {syncing, syncOnMount.name, QT_TRANSLATE_NOOP("", "Sync as soon as a PSP is connected"),
         QT_TRANSLATE_NOOP("", "Only Memory Sticks that have been synced before.")},
        {syncing, unmountAfterSync.name, QT_TRANSLATE_NOOP("", "Eject the PSP after a sync"),
         QT_TRANSLATE_NOOP("", "Only when the sync was completed.")},
        {syncing, ownOnly.name,
         QT_TRANSLATE_NOOP("", "Remove what is not selected from the media folders"),
         QT_TRANSLATE_NOOP("", "Files that something else has put there go too. Otherwise only "
                               "files that an earlier sync has placed are removed.")},
        {syncing, keepRemovedFiles.name,
         QT_TRANSLATE_NOOP("", "Keep a copy of removed files that no sync has placed"),
         QT_TRANSLATE_NOOP("", "It lies in “Removed from PSP” in the folder “Caravel”.")},
        {syncing, syncDropboxes.name, QT_TRANSLATE_NOOP("", "Sync the dropboxes"),
         QT_TRANSLATE_NOOP("", "Music, photos and movies in the folder “Dropboxes” come along "
                               "without being selected.")},
        {syncing, useSyncProfiles.name,
         QT_TRANSLATE_NOOP("", "A selection of its own for each Memory Stick"),
         QT_TRANSLATE_NOOP("",
                           "It is kept on the stick. Such a stick is never synced as soon as it "
                           "is connected.")},
    };
}

QList<Text> musicAndPhotoTexts()
{
    return {
        {music, syncMusic.name, QT_TRANSLATE_NOOP("", "Sync music"),
         QT_TRANSLATE_NOOP("", "Otherwise a sync removes the music from the PSP.")},
        {music,
         musicSource.name,
         QT_TRANSLATE_NOOP("", "Playlists come from"),
         QT_TRANSLATE_NOOP("", "Each source has a selection of its own."),
         {{0, "iTunes"}, {1, QT_TRANSLATE_NOOP("", "Folders and playlists")}, {2, "Rhythmbox"}}},
        {music,
         organizeMusicBy.name,
         QT_TRANSLATE_NOOP("", "Folders of music on the PSP"),
         QT_TRANSLATE_NOOP("", "What the songs of one folder have in common."),
         {{0, QT_TRANSLATE_NOOP("", "Playlist")},
          {1, QT_TRANSLATE_NOOP("", "Artist")},
          {2, QT_TRANSLATE_NOOP("", "Album")},
          {3, QT_TRANSLATE_NOOP("", "Artist and album")}}},
        {music,
         sortMusicBy.name,
         QT_TRANSLATE_NOOP("", "Names of songs begin with"),
         QT_TRANSLATE_NOOP("", "The PSP plays the songs of a folder in the order of their names."),
         {{0, QT_TRANSLATE_NOOP("", "The position in the playlist")},
          {1, QT_TRANSLATE_NOOP("", "Nothing")},
          {2, QT_TRANSLATE_NOOP("", "Disc and track")}}},
        {photos, syncPhotos.name, QT_TRANSLATE_NOOP("", "Sync photos"),
         QT_TRANSLATE_NOOP("", "Otherwise a sync removes the photos from the PSP.")},
        {photos,
         photosSource.name,
         QT_TRANSLATE_NOOP("", "Albums come from"),
         QT_TRANSLATE_NOOP("", "Each source has a selection of its own."),
         {{0, "iPhoto"}, {1, QT_TRANSLATE_NOOP("", "Folders")}}},
        {photos,
         sortPhotosBy.name,
         QT_TRANSLATE_NOOP("", "Names of photos begin with"),
         QT_TRANSLATE_NOOP("", "The PSP shows the photos of a folder in the order of their names."),
         {{0, QT_TRANSLATE_NOOP("", "Nothing")},
          {1, QT_TRANSLATE_NOOP("", "The position in the album")}}},
    };
}

QList<Choice> qualities(const char *least)
{
    return {{0, least},
            {1, QT_TRANSLATE_NOOP("", "Fair")},
            {2, QT_TRANSLATE_NOOP("", "Good")},
            {3, QT_TRANSLATE_NOOP("", "Best")}};
}

QList<Text> movieTexts()
{
    return {
        {movies, syncMovies.name, QT_TRANSLATE_NOOP("", "Sync movies"),
         QT_TRANSLATE_NOOP("", "Otherwise a sync removes the movies from the PSP.")},
        {movies,
         movieConvertVideoResolution.name,
         QT_TRANSLATE_NOOP("", "Size of the picture"),
         QT_TRANSLATE_NOOP("", "For movies that are added from now on. The two large sizes need "
                               "system software 3.30 or later."),
         {{0, QT_TRANSLATE_NOOP("", "320 × 240")},
          {1, QT_TRANSLATE_NOOP("", "368 × 208")},
          {2, QT_TRANSLATE_NOOP("", "480 × 272 (the PSP's own)")},
          {3, QT_TRANSLATE_NOOP("", "720 × 480 (for a TV)")}}},
        {movies, movieConvertVideoQuality.name, QT_TRANSLATE_NOOP("", "Quality of the picture"),
         QT_TRANSLATE_NOOP("", "A better one takes more room on the PSP."),
         qualities(QT_TRANSLATE_NOOP("", "Least, at half the frames"))},
        {movies, movieConvertAudioQuality.name, QT_TRANSLATE_NOOP("", "Quality of the sound"),
         QT_TRANSLATE_NOOP("", "A better one takes more room on the PSP."),
         qualities(QT_TRANSLATE_NOOP("", "Least"))},
        {movies, volumeBoost.name, QT_TRANSLATE_NOOP("", "Volume"),
         QT_TRANSLATE_NOOP("", "Of the movie's own. More than 100 % makes it louder.")},
        {movies, deinterlace.name, QT_TRANSLATE_NOOP("", "Deinterlace"),
         QT_TRANSLATE_NOOP("", "For recordings of television that show combs where things move.")},
    };
}

QList<Text> otherTexts()
{
    return {
        {bookmarks, syncBookmarks.name, QT_TRANSLATE_NOOP("", "Sync bookmarks"),
         QT_TRANSLATE_NOOP("", "Otherwise a sync leaves the bookmarks of the PSP's browser as they "
                               "are.")},
        {bookmarks,
         bookmarkSource.name,
         QT_TRANSLATE_NOOP("", "Bookmarks come from"),
         QT_TRANSLATE_NOOP("", "“Firefox (page)” is an old one, which keeps its bookmarks in a "
                               "page."),
         {{0, "Safari"},
          {1, QT_TRANSLATE_NOOP("", "Firefox (page)")},
          {2, "OmniWeb"},
          {3, "Camino"},
          {4, "Firefox"},
          {5, QT_TRANSLATE_NOOP("", "Chromium and its kin")}}},
        {bookmarks, bookmarkProfile.name, QT_TRANSLATE_NOOP("", "Profile of the browser"),
         QT_TRANSLATE_NOOP("", "The name or the folder of a profile of Firefox or Chromium. Left "
                               "empty, the first one is taken.")},
        {people, syncContacts.name, QT_TRANSLATE_NOOP("", "Sync contacts"),
         QT_TRANSLATE_NOOP("", "The whole address book, as a page for the PSP's browser.")},
        {people, syncBackup.name, QT_TRANSLATE_NOOP("", "Keep game saves"),
         QT_TRANSLATE_NOOP("", "Each sync copies the game saves that have changed to this "
                               "computer.")},
        {people,
         backupsToKeep.name,
         QT_TRANSLATE_NOOP("", "Backups of each game save"),
         QT_TRANSLATE_NOOP("", "Older ones are removed."),
         {{1, QT_TRANSLATE_NOOP("", "The last 10")},
          {2, QT_TRANSLATE_NOOP("", "The last 25")},
          {3, QT_TRANSLATE_NOOP("", "The last 50")},
          {0, QT_TRANSLATE_NOOP("", "All")}}},
    };
}

} // namespace

const QList<Text> &all()
{
    static const QList<Text> texts =
        generalTexts() + syncTexts() + musicAndPhotoTexts() + movieTexts() + otherTexts();
    return texts;
}

const Text &of(QStringView key)
{
    const auto found = std::ranges::find(all(), key, &Text::key);
    Q_ASSERT(found != all().end());
    return *found;
}

QString shown(const char *text)
{
    return localized(text);
}

QString valueText(const Text &text, const QVariant &value)
{
    if (value.typeId() == QMetaType::Bool)
        return value.toBool() ? localized("on") : localized("off");
    const auto choice = std::ranges::find(text.choices, value.toLongLong(), &Choice::value);
    if (choice != text.choices.end())
        return localized(choice->name);
    if (!text.choices.isEmpty())
        return filled(localized("Another: %@"), {value.toString()});
    if (text.key == Settings::volumeBoost.name)
        return QLocale().toString(value.toLongLong()) + QStringLiteral(" %");
    return value.toString().isEmpty() ? localized("empty") : value.toString();
}

} // namespace SettingTexts
