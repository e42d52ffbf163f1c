#include "modules/music/own/RhythmboxLibrary.h"

#include "modules/music/own/RhythmboxQuery.h"
#include "platform/files/OpenFile.h"
#include "sync/Log.h"
#include "util/PathComponents.h"
#include "util/StringTools.h"

#include <QDateTime>
#include <QHash>
#include <QIODevice>
#include <QStandardPaths>
#include <QXmlStreamReader>

#include <algorithm>
#include <cerrno>
#include <functional>
#include <numeric>

namespace {

constexpr quint64 databaseLimit = 1ULL << 30; // bytes
constexpr int steps = 1024;                   // entries between two questions whether to stop

struct Limit
{
    double count = 0; ///< 0: none
    double bytes = 0;
    double seconds = 0;
};

struct List
{
    QString name;
    bool isAutomatic = false;
    QStringList locations; ///< of a static one
    RhythmboxQuery query;  ///< of an automatic one, and how its answer is cut:
    QString sortedBy;      ///< a property; empty: as in the database
    bool isDescending = false;
    Limit limit;
};

struct Song
{
    std::int64_t id = 0;
    std::vector<QString> values; // of the properties that lists look at
};

QString propertyOfSortKey(const QString &key)
{
    static const QHash<QString, QString> properties{
        {QStringLiteral("Artist"), QStringLiteral("artist")},
        {QStringLiteral("Album"), QStringLiteral("album")},
        {QStringLiteral("Title"), QStringLiteral("title")},
        {QStringLiteral("Genre"), QStringLiteral("genre")},
        {QStringLiteral("Track"), QStringLiteral("track-number")},
        {QStringLiteral("Rating"), QStringLiteral("rating")},
        {QStringLiteral("PlayCount"), QStringLiteral("play-count")},
        {QStringLiteral("FirstSeen"), QStringLiteral("first-seen")},
        {QStringLiteral("LastPlayed"), QStringLiteral("last-played")},
        {QStringLiteral("Time"), QStringLiteral("duration")},
        {QStringLiteral("Quality"), QStringLiteral("bitrate")},
        {QStringLiteral("Location"), QStringLiteral("location")},
    };
    return properties.value(key);
}

/// An open file as the XML reader takes it, with what kept it from being read.
class XmlFile : public QIODevice
{
public:
    explicit XmlFile(OpenFile &file)
        : m_file(file)
    {
        open(QIODevice::ReadOnly);
    }

    std::optional<FileError> failure;

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const auto count = m_file.read(data, static_cast<size_t>(size));
        if (count)
            return static_cast<qint64>(*count);
        failure = count.error();
        return -1;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    OpenFile &m_file;
};

/// A file that is read as a stream; the reader's errors become one of ours.
FileResult<> readXml(const QString &path, const std::function<void(QXmlStreamReader &)> &take)
{
    auto opened = OpenFile::forReading(path);
    if (!opened)
        return opened.error();
    if (files().status(path).size > databaseLimit)
        return FileError::of(FileError::Operation::Read, path, EFBIG);
    XmlFile file(*opened);
    QXmlStreamReader xml(&file);
    if (xml.readNextStartElement())
        take(xml);
    if (file.failure)
        return *file.failure;
    if (!xml.hasError())
        return {};
    return FileError{FileError::Operation::Parse, path, 0,
                     QStringLiteral("line %1: %2").arg(xml.lineNumber()).arg(xml.errorString())};
}

class Rhythmbox
{
public:
    explicit Rhythmbox(const MusicReading &reading)
        : m_reading(reading)
    {
    }

    FileResult<MusicLibrary> read(const QString &database);

private:
    void readList(QXmlStreamReader &xml);
    void readSong(QXmlStreamReader &xml);
    void addSong(const QHash<QString, QString> &song);
    MusicLibrary::Playlist playlistOf(const List &list) const;
    std::vector<std::int64_t> answerOf(const List &list) const;
    void sort(std::vector<const Song *> &songs, const List &list) const;
    void cut(std::vector<const Song *> &songs, const Limit &limit) const;
    const QString &valueOf(const Song &song, const QString &property) const;

    const MusicReading &m_reading;
    const qint64 m_now = QDateTime::currentSecsSinceEpoch();
    std::vector<List> m_lists;
    QStringList m_properties; // that lists look at
    std::vector<Song> m_songs;
    QHash<QString, std::int64_t> m_byLocation;
    MusicLibrary m_library;
};

FileResult<MusicLibrary> Rhythmbox::read(const QString &database)
{
    const FileResult<> lists =
        readXml(PathComponents::folderOf(database) + QStringLiteral("/playlists.xml"),
                [this](QXmlStreamReader &xml) {
                    while (xml.readNextStartElement())
                        readList(xml);
                });
    if (!lists && !lists.error().isMissing())
        return lists.error();
    int count = 0;
    const FileResult<> songs = readXml(database, [&](QXmlStreamReader &xml) {
        while ((++count % steps != 0 || !m_reading.shouldStop()) && xml.readNextStartElement())
            readSong(xml);
    });
    if (!songs)
        return songs.error();
    MusicLibrary::Playlist all;
    all.name = QStringLiteral("Music");
    all.isMaster = true;
    all.tracks.resize(m_songs.size());
    std::iota(all.tracks.begin(), all.tracks.end(), 0);
    all.size = static_cast<qsizetype>(m_songs.size());
    m_library.add(std::move(all));
    for (const List &list : m_lists)
        m_library.add(playlistOf(list));
    return std::move(m_library);
}

void Rhythmbox::readList(QXmlStreamReader &xml)
{
    const auto attribute = [&xml](const char *name) {
        return xml.attributes().value(QLatin1StringView(name)).toString();
    };
    const QString type = attribute("type");
    const QString sortKey = attribute("sort-key");
    List list{.name = attribute("name"),
              .isAutomatic = type == u"automatic",
              .locations = {},
              .query = {},
              .sortedBy = propertyOfSortKey(sortKey),
              .isDescending = attribute("sort-direction") == u"1",
              .limit = {attribute("limit-count").toDouble(),
                        attribute("limit-size").toDouble() * 1024 * 1024,
                        attribute("limit-time").toDouble()}};
    while (xml.readNextStartElement()) {
        if (xml.name() == u"location")
            list.locations.append(xml.readElementText(QXmlStreamReader::SkipChildElements));
        else if (xml.name() == u"conjunction")
            list.query.read(xml);
        else
            xml.skipCurrentElement();
    }
    if (!list.isAutomatic && type != u"static")
        return;
    if (!list.query.unknownPart().isEmpty()) {
        qCInfo(lcModules).noquote() << "Left out the automatic playlist" << list.name
                                    << "which asks for" << list.query.unknownPart();
        return;
    }
    m_properties += list.query.properties();
    m_properties += {list.sortedBy, QStringLiteral("file-size"), QStringLiteral("duration")};
    m_properties.removeDuplicates();
    m_lists.push_back(std::move(list));
}

void Rhythmbox::readSong(QXmlStreamReader &xml)
{
    if (xml.attributes().value(QLatin1StringView("type")) != u"song") {
        xml.skipCurrentElement();
        return;
    }
    QHash<QString, QString> song;
    while (xml.readNextStartElement()) {
        const QString name = xml.name().toString();
        song.insert(name, xml.readElementText(QXmlStreamReader::SkipChildElements));
    }
    if (song.value(QStringLiteral("hidden")) != u"1" && !xml.hasError())
        addSong(song);
}

void Rhythmbox::addSong(const QHash<QString, QString> &song)
{
    const auto text = [&song](const char *name) {
        return song.value(QLatin1StringView(name)).toStdString();
    };
    const auto number = [&song](const char *name) {
        return song.value(QLatin1StringView(name)).toInt();
    };
    const std::string location = text("location");
    const std::string artist = text("artist");
    const std::string album = text("album");
    const std::string title = text("title");
    const auto orAbsent = [](const std::string &value) {
        return value.empty() ? MusicLibrary::Text() : MusicLibrary::Text(value);
    };
    Song &added = m_songs.emplace_back();
    added.id = m_library.add({.isFile = true,
                              .isLossless = text("media-type").find("alac") != std::string::npos,
                              .trackNumber = number("track-number"),
                              .discNumber = number("disc-number"),
                              .location = location,
                              .artist = orAbsent(artist),
                              .album = orAbsent(album),
                              .name = orAbsent(title)});
    added.values.reserve(static_cast<size_t>(m_properties.size()));
    for (const QString &property : m_properties)
        added.values.push_back(song.value(property));
    m_byLocation.insert(QString::fromStdString(location), added.id);
}

MusicLibrary::Playlist Rhythmbox::playlistOf(const List &list) const
{
    MusicLibrary::Playlist playlist;
    playlist.name = list.name;
    playlist.isSmart = list.isAutomatic;
    if (list.isAutomatic) {
        playlist.tracks = answerOf(list);
    } else {
        for (const QString &location : list.locations) {
            if (const auto song = m_byLocation.constFind(location); song != m_byLocation.cend())
                playlist.tracks.push_back(*song);
        }
    }
    playlist.size = static_cast<qsizetype>(playlist.tracks.size());
    return playlist;
}

const QString &Rhythmbox::valueOf(const Song &song, const QString &property) const
{
    static const QString none;
    const qsizetype place = m_properties.indexOf(property);
    return place < 0 ? none : song.values[static_cast<size_t>(place)];
}

std::vector<std::int64_t> Rhythmbox::answerOf(const List &list) const
{
    std::vector<const Song *> songs;
    for (const Song &song : m_songs) {
        const auto value = [&](const QString &property) -> const QString & {
            return valueOf(song, property);
        };
        if (list.query.matches(value, m_now))
            songs.push_back(&song);
    }
    sort(songs, list);
    cut(songs, list.limit);
    std::vector<std::int64_t> ids;
    ids.reserve(songs.size());
    for (const Song *song : songs)
        ids.push_back(song->id);
    return ids;
}

void Rhythmbox::sort(std::vector<const Song *> &songs, const List &list) const
{
    if (list.sortedBy.isEmpty())
        return;
    const bool isText = RhythmboxQuery::isText(list.sortedBy);
    std::ranges::stable_sort(songs, [&](const Song *first, const Song *second) {
        const QString &one = valueOf(*(list.isDescending ? second : first), list.sortedBy);
        const QString &other = valueOf(*(list.isDescending ? first : second), list.sortedBy);
        return isText ? RhythmboxQuery::folded(one) < RhythmboxQuery::folded(other)
                      : one.toDouble() < other.toDouble();
    });
}

void Rhythmbox::cut(std::vector<const Song *> &songs, const Limit &limit) const
{
    Limit sum;
    const auto isOver = [&](const Song *song) {
        sum.count += 1;
        sum.bytes += valueOf(*song, QStringLiteral("file-size")).toDouble();
        sum.seconds += valueOf(*song, QStringLiteral("duration")).toDouble();
        return (limit.count > 0 && sum.count > limit.count) ||
               (limit.bytes > 0 && sum.bytes > limit.bytes) ||
               (limit.seconds > 0 && sum.seconds > limit.seconds);
    };
    songs.erase(std::ranges::find_if(songs, isOver), songs.end());
}

} // namespace

QString rhythmboxDatabase()
{
    const QString name = QStringLiteral("/rhythmbox/rhythmdb.xml");
    const QString own =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + name;
    const QString flatpak =
        StringTools::expandingTilde(QStringLiteral("~/.var/app/org.gnome.Rhythmbox3/data")) + name;
    return !files().exists(own) && files().exists(flatpak) ? flatpak : own;
}

FileResult<MusicLibrary> readRhythmbox(const QString &database, const MusicReading &reading)
{
    FileResult<MusicLibrary> library = Rhythmbox(reading).read(database);
    if (!library && !library.error().isMissing())
        qCWarning(lcModules).noquote()
            << "Can't read the music library:" << library.error().description();
    return library;
}
