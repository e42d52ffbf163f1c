#include "modules/music/MusicLibrary.h"

#include "platform/lists/PropertyListReader.h"
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

std::int32_t clampedInteger(const PropertyListScalar &value)
{
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>(value.toInteger(), std::numeric_limits<std::int32_t>::min(),
                                 std::numeric_limits<std::int32_t>::max()));
}

} // namespace

// Follows the list's shape with a stack of places; what stands where it doesn't belong opens a
// place in which everything is passed over.
class MusicLibrary::Reader : public PropertyListHandler
{
public:
    Reader(MusicLibrary &library, Part part)
        : m_library(library)
        , m_part(part)
    {
    }

    bool rootIsDictionary() const { return m_rootIsDictionary; }

    bool key(std::string_view name) override;
    void beginDictionary() override;
    void endDictionary() override { m_places.pop_back(); }
    void beginArray() override;
    void endArray() override { m_places.pop_back(); }
    void scalar(const PropertyListScalar &value) override;

private:
    enum class In { Nothing, Root, Tracks, Track, Playlists, Playlist, Items, Item, Unknown };
    enum class Field {
        None,
        TrackTable,
        PlaylistList, // of the root
        Type,
        Kind,
        Location,
        Artist,
        Album,
        Name,
        TrackNumber,
        DiscNumber, // of a track
        PlaylistName,
        Items,
        Master,
        Podcasts,
        PartyShuffle,
        PurchasedMusic,
        Videos,  // of a playlist
        TrackId, // of an item
    };

    In place() const { return m_places.empty() ? In::Nothing : m_places.back(); }
    bool rootKey(std::string_view name);
    bool trackTableKey(std::string_view name);
    bool trackKey(std::string_view name);
    bool playlistKey(std::string_view name);
    void trackScalar(const PropertyListScalar &value);
    void playlistScalar(const PropertyListScalar &value);
    Place keep(std::string_view text);

    MusicLibrary &m_library;
    const Part m_part;
    std::vector<In> m_places;
    Field m_field = Field::None; // of the key read last
    std::int64_t m_trackId = 0;
    bool m_rootIsDictionary = false;
};

bool MusicLibrary::Reader::key(std::string_view name)
{
    switch (place()) {
    case In::Track:
        return trackKey(name);
    case In::Tracks:
        return trackTableKey(name);
    case In::Item:
        m_field = Field::TrackId;
        return name == "Track ID";
    case In::Playlist:
        return playlistKey(name);
    case In::Root:
        return rootKey(name);
    default:
        return false;
    }
}

bool MusicLibrary::Reader::rootKey(std::string_view name)
{
    if (name == "Tracks" && m_part == Part::Everything)
        m_field = Field::TrackTable;
    else if (name == "Playlists")
        m_field = Field::PlaylistList;
    else
        return false;
    return true;
}

bool MusicLibrary::Reader::trackTableKey(std::string_view name)
{
    const auto id = trackId(name);
    m_trackId = id.value_or(0);
    return id.has_value();
}

bool MusicLibrary::Reader::trackKey(std::string_view name)
{
    static constexpr std::pair<std::string_view, Field> fields[] = {
        {"Name", Field::Name},
        {"Artist", Field::Artist},
        {"Album", Field::Album},
        {"Kind", Field::Kind},
        {"Location", Field::Location},
        {"Track Type", Field::Type},
        {"Track Number", Field::TrackNumber},
        {"Disc Number", Field::DiscNumber},
    };
    for (const auto &[key, field] : fields) {
        if (name == key) {
            m_field = field;
            return true;
        }
    }
    return false;
}

bool MusicLibrary::Reader::playlistKey(std::string_view name)
{
    static constexpr std::pair<std::string_view, Field> fields[] = {
        {"Name", Field::PlaylistName},
        {"Playlist Items", Field::Items},
        {"Master", Field::Master},
        {"Podcasts", Field::Podcasts},
        {"Party Shuffle", Field::PartyShuffle},
        {"Purchased Music", Field::PurchasedMusic},
        {"Videos", Field::Videos},
    };
    for (const auto &[key, field] : fields) {
        if (name == key) {
            m_field = field;
            return true;
        }
    }
    // Its presence alone tells.
    if (name == "Smart Info")
        m_library.m_playlists.back().isSmart = true;
    return false;
}

void MusicLibrary::Reader::beginDictionary()
{
    In next = In::Unknown;
    switch (place()) {
    case In::Nothing:
        m_rootIsDictionary = true;
        next = In::Root;
        break;
    case In::Root:
        if (m_field == Field::TrackTable)
            next = In::Tracks;
        break;
    case In::Tracks:
        m_library.m_tracks.emplace_back().id = m_trackId;
        next = In::Track;
        break;
    case In::Playlists:
        m_library.m_playlists.emplace_back();
        next = In::Playlist;
        break;
    case In::Items:
        ++m_library.m_playlists.back().size;
        next = In::Item;
        break;
    default:
        break;
    }
    m_places.push_back(next);
}

void MusicLibrary::Reader::beginArray()
{
    In next = In::Unknown;
    if (place() == In::Root && m_field == Field::PlaylistList)
        next = In::Playlists;
    else if (place() == In::Playlist && m_field == Field::Items)
        next = In::Items;
    m_places.push_back(next);
}

void MusicLibrary::Reader::scalar(const PropertyListScalar &value)
{
    switch (place()) {
    case In::Track:
        trackScalar(value);
        break;
    case In::Playlist:
        playlistScalar(value);
        break;
    case In::Item:
        if (value.type == PropertyListType::Integer)
            m_library.m_playlists.back().tracks.push_back(value.toInteger());
        break;
    default:
        break;
    }
}

void MusicLibrary::Reader::trackScalar(const PropertyListScalar &value)
{
    StoredTrack &track = m_library.m_tracks.back();
    if (value.type == PropertyListType::Integer) {
        if (m_field == Field::TrackNumber)
            track.trackNumber = clampedInteger(value);
        else if (m_field == Field::DiscNumber)
            track.discNumber = clampedInteger(value);
    }
    if (value.type != PropertyListType::String)
        return;
    switch (m_field) {
    case Field::Type:
        track.isFile = value.text == "File";
        break;
    case Field::Kind:
        track.isLossless = value.text.find("Lossless") != value.text.npos;
        break;
    case Field::Location:
        track.location = keep(value.text);
        break;
    case Field::Artist:
        track.artist = keep(value.text);
        break;
    case Field::Album:
        track.album = keep(value.text);
        break;
    case Field::Name:
        track.name = keep(value.text);
        break;
    default:
        break;
    }
}

void MusicLibrary::Reader::playlistScalar(const PropertyListScalar &value)
{
    Playlist &playlist = m_library.m_playlists.back();
    if (m_field == Field::PlaylistName && value.type == PropertyListType::String) {
        playlist.name =
            QString::fromUtf8(value.text.data(), static_cast<qsizetype>(value.text.size()));
        return;
    }
    const bool isTrue = value.type == PropertyListType::Boolean && value.text == "true";
    switch (m_field) {
    case Field::Master:
        playlist.isMaster = isTrue;
        break;
    case Field::Podcasts:
        playlist.isPodcasts = isTrue;
        break;
    case Field::PartyShuffle:
        playlist.isPartyShuffle = isTrue;
        break;
    case Field::PurchasedMusic:
        playlist.isPurchasedMusic = isTrue;
        break;
    case Field::Videos:
        playlist.isVideos = isTrue;
        break;
    default:
        break;
    }
}

MusicLibrary::Place MusicLibrary::Reader::keep(std::string_view text)
{
    const auto offset = static_cast<std::uint32_t>(m_library.m_text.size());
    m_library.m_text.append(text);
    return {offset, static_cast<std::uint32_t>(text.size())};
}

std::optional<MusicLibrary> MusicLibrary::read(const QString &path, Part part)
{
    MusicLibrary library;
    Reader reader(library, part);
    PropertyListError error;
    if (readPropertyList(path, libraryLimit, reader, &error) && !reader.rootIsDictionary())
        error.text = QStringLiteral("the list's root is no dictionary");
    if (error) {
        qCWarning(lcModules).noquote()
            << "Can't read the music library" << path << "line" << error.line << ":" << error.text;
    }
    if (error || !reader.rootIsDictionary())
        return std::nullopt;
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
