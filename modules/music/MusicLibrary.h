#pragma once

#include "platform/files/FileError.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The user's iTunes library, as far as the system uses it. It is read as a stream and kept small:
/// texts stay UTF-8 in one block (a library of 100,000 tracks takes some 20 MB).
class MusicLibrary
{
public:
    /// A text of the library; nothing where the key was absent or its value no string.
    using Text = std::optional<std::string_view>;

    struct Track
    {
        bool isFile = false;     ///< "Track Type" is "File"
        bool isLossless = false; ///< "Kind" speaks of a lossless format
        int trackNumber = 0;     ///< 0: absent
        int discNumber = 0;
        Text location; ///< URL, percent-encoded
        Text artist;
        Text album;
        Text name;
    };

    struct Playlist
    {
        std::optional<QString> name;
        bool isFolder = false; ///< of files, instead of a list
        bool isMaster = false;
        bool isPodcasts = false;
        bool isSmart = false;
        bool isPartyShuffle = false;
        bool isPurchasedMusic = false;
        bool isVideos = false;
        qsizetype size = 0;               ///< number of entries, usable or not
        std::vector<std::int64_t> tracks; ///< track ids in playlist order

        /// Identifies the playlist: its name, and a folder's with "/" behind it, so that a list of
        /// that name is another. Nothing where it has no name.
        std::optional<QString> identifier() const;
    };

    /// Whether a reader needs the tracks or the playlists alone.
    enum class Part { PlaylistsOnly, Everything };

    /// Errors are those of readPropertyList(); of one but that the file is missing a line in the
    /// system log says what is wrong and where. Any thread.
    static FileResult<MusicLibrary> read(const QString &path, Part part);

    /// One to be filled from elsewhere; of the iTunes library, read() makes it.
    MusicLibrary() = default;
    MusicLibrary(MusicLibrary &&) noexcept = default;
    MusicLibrary &operator=(MusicLibrary &&) noexcept = default;

    /// In file order.
    const std::vector<Playlist> &playlists() const { return m_playlists; }

    /// The track with that id, its texts valid as long as the library.
    std::optional<Track> track(std::int64_t id) const;

    /// For so many tracks, with texts of so many bytes in all; more may come.
    void reserve(size_t tracks, size_t textBytes)
    {
        m_tracks.reserve(tracks);
        m_text.reserve(textBytes);
    }
    /// Adds a track, copying its texts, and gives its id.
    std::int64_t add(const Track &track);
    void add(Playlist playlist) { m_playlists.push_back(std::move(playlist)); }

    /// Why a part that is selected could not be read: what it holds is missing here.
    std::optional<FileError> unreadPart;

private:
    class Reader;

    // Where a text lies in m_text.
    struct Place
    {
        std::uint32_t offset = 0;
        std::uint32_t length = absent;
        static constexpr std::uint32_t absent = UINT32_MAX;
    };
    struct StoredTrack
    {
        std::int64_t id = 0;
        Place location, artist, album, name;
        std::int32_t trackNumber = 0;
        std::int32_t discNumber = 0;
        bool isFile = false;
        bool isLossless = false;
    };

    void sortTracks();
    Place keep(const Text &text);
    Text textAt(Place place) const;

    std::string m_text;
    std::vector<StoredTrack> m_tracks; // by id
    std::vector<Playlist> m_playlists;
};
