#include "modules/music/MusicLibrary.h"

#include "platform/lists/PropertyListOutline.h"
#include "sync/Log.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace {

constexpr quint64 libraryLimit = 1ULL << 30; // bytes; offsets into the texts fit 32 bits

// Tracks are found by their id's decimal text, so only an id in its plain form can be one.
std::optional<std::int64_t> trackId(std::string_view key)
{
    std::int64_t id = 0;
    const char *const end = key.data() + key.size();
    const auto [stop, error] = std::from_chars(key.data(), end, id);
    const bool padded = key.size() > 1 && (key[0] == '0' || key.starts_with("-0"));
    if (error != std::errc() || stop != end || padded)
        return std::nullopt;
    return id;
}

std::int32_t clamped(std::int64_t number)
{
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>(number, std::numeric_limits<std::int32_t>::min(),
                                 std::numeric_limits<std::int32_t>::max()));
}

} // namespace

class MusicLibrary::Reader
{
public:
    Reader(MusicLibrary &library, Part part)
        : m_library(library)
        , m_outline(root(part))
    {
    }

    FileResult<> read(const QString &path) { return m_outline.read(path, libraryLimit); }

private:
    using Outline = PropertyListOutline::Place;

    Outline root(Part part);
    Outline tracks();
    Outline playlists();
    Outline text(Place StoredTrack::*field);
    Outline number(std::int32_t StoredTrack::*field);
    Outline flag(bool Playlist::*field);

    StoredTrack &track() { return m_library.m_tracks.back(); }
    Playlist &playlist() { return m_library.m_playlists.back(); }

    MusicLibrary &m_library;
    std::int64_t m_trackId = 0; // of the key read last
    PropertyListOutline m_outline;
};

MusicLibrary::Reader::Outline MusicLibrary::Reader::root(Part part)
{
    Outline::Keys keys{{"Playlists", playlists()}};
    if (part == Part::Everything)
        keys.emplace_back("Tracks", tracks());
    return Outline::dictionary(std::move(keys));
}

MusicLibrary::Reader::Outline MusicLibrary::Reader::tracks()
{
    const Outline each = Outline::dictionary(
        {
            {"Name", text(&StoredTrack::name)},
            {"Artist", text(&StoredTrack::artist)},
            {"Album", text(&StoredTrack::album)},
            {"Kind", Outline::value<std::string_view>([this](std::string_view kind) {
                 track().isLossless = kind.find("Lossless") != kind.npos;
             })},
            {"Location", text(&StoredTrack::location)},
            {"Track Type", Outline::value<std::string_view>(
                               [this](std::string_view type) { track().isFile = type == "File"; })},
            {"Track Number", number(&StoredTrack::trackNumber)},
            {"Disc Number", number(&StoredTrack::discNumber)},
        },
        [this] { m_library.m_tracks.emplace_back().id = m_trackId; });
    return Outline::table(each, [this](std::string_view key) {
        const auto id = trackId(key);
        m_trackId = id.value_or(0);
        return id.has_value();
    });
}

MusicLibrary::Reader::Outline MusicLibrary::Reader::playlists()
{
    const Outline item =
        Outline::dictionary({{"Track ID", Outline::value<std::int64_t>([this](std::int64_t id) {
                                  playlist().tracks.push_back(id);
                              })}},
                            [this] { ++playlist().size; });
    const Outline each = Outline::dictionary(
        {
            {"Name", Outline::value<std::string_view>([this](std::string_view name) {
                 playlist().name = QString::fromUtf8(name);
             })},
            {"Playlist Items", Outline::array(item)},
            {"Master", flag(&Playlist::isMaster)},
            {"Podcasts", flag(&Playlist::isPodcasts)},
            {"Party Shuffle", flag(&Playlist::isPartyShuffle)},
            {"Purchased Music", flag(&Playlist::isPurchasedMusic)},
            {"Videos", flag(&Playlist::isVideos)},
            {"Smart Info", Outline::presence([this] { playlist().isSmart = true; })},
        },
        [this] { m_library.m_playlists.emplace_back(); });
    return Outline::array(each);
}

MusicLibrary::Reader::Outline MusicLibrary::Reader::text(Place StoredTrack::*field)
{
    return Outline::value<std::string_view>(
        [this, field](std::string_view text) { track().*field = m_library.keep(text); });
}

MusicLibrary::Reader::Outline MusicLibrary::Reader::number(std::int32_t StoredTrack::*field)
{
    return Outline::value<std::int64_t>(
        [this, field](std::int64_t number) { track().*field = clamped(number); });
}

MusicLibrary::Reader::Outline MusicLibrary::Reader::flag(bool Playlist::*field)
{
    return Outline::value<bool>([this, field](bool isSet) { playlist().*field = isSet; });
}

FileResult<MusicLibrary> MusicLibrary::read(const QString &path, Part part)
{
    MusicLibrary library;
    if (const FileResult<> done = Reader(library, part).read(path); !done) {
        const FileError &error = done.error();
        if (!error.isMissing())
            qCWarning(lcModules).noquote() << "Can't read the music library" << path << error.text;
        return error;
    }
    library.sortTracks();
    return library;
}

void MusicLibrary::sortTracks()
{
    const auto byId = [](const StoredTrack &a, const StoredTrack &b) {
        return a.id < b.id;
    };
    if (!std::is_sorted(m_tracks.begin(), m_tracks.end(), byId))
        std::stable_sort(m_tracks.begin(), m_tracks.end(), byId);
}

std::int64_t MusicLibrary::add(const Track &track)
{
    const auto id = static_cast<std::int64_t>(m_tracks.size());
    m_tracks.push_back({id, keep(track.location), keep(track.artist), keep(track.album),
                        keep(track.name), track.trackNumber, track.discNumber, track.isFile,
                        track.isLossless});
    return id;
}

std::optional<QString> MusicLibrary::Playlist::identifier() const
{
    return name && isFolder ? *name + u'/' : name;
}

MusicLibrary::Place MusicLibrary::keep(const Text &text)
{
    if (!text)
        return {};
    const auto offset = static_cast<std::uint32_t>(m_text.size());
    m_text.append(*text);
    return {offset, static_cast<std::uint32_t>(text->size())};
}

MusicLibrary::Text MusicLibrary::textAt(Place place) const
{
    if (place.length == Place::absent)
        return std::nullopt;
    return std::string_view(m_text).substr(place.offset, place.length);
}

std::optional<MusicLibrary::Track> MusicLibrary::track(std::int64_t id) const
{
    // Of tracks with one id the last counts, as in a dictionary with one key twice.
    const auto after = std::upper_bound(
        m_tracks.begin(), m_tracks.end(), id,
        [](std::int64_t wanted, const StoredTrack &track) { return wanted < track.id; });
    if (after == m_tracks.begin() || std::prev(after)->id != id)
        return std::nullopt;
    const StoredTrack &found = *std::prev(after);
    return Track{found.isFile,        found.isLossless,       found.trackNumber,
                 found.discNumber,    textAt(found.location), textAt(found.artist),
                 textAt(found.album), textAt(found.name)};
}
