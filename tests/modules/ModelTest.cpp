// What must lie on the stick after a run, worked out a second time, slowly and from the rules
// alone, and held against the program over random libraries, sticks, settings and old indexes.
//
// CARAVEL_MODEL_ROUNDS is the number of rounds, 300 unless it says otherwise.

#include "modules/CVSyncMusic.h"
#include "platform/PropertyList.h"
#include "support/MusicLibraryFile.h"
#include "support/SyncHarness.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <random>
#include <set>
#include <vector>

namespace {

struct Track
{
    int id;
    std::optional<QString> artist, album, name;
    QString path;     // of its file, which may be missing
    QString kind;     // "MPEG audio file" or a lossless one
    bool isFile;      // else a stream
    int disc, number; // 0: none
};

struct Playlist
{
    QString name;
    std::vector<int> ids; // of tracks, or of none
};

struct World
{
    std::vector<Track> tracks;
    std::vector<Playlist> playlists;
    std::set<QString> selected;
    std::map<QString, QByteArray> files;       // of the home, by path
    std::map<QString, QByteArray> dropbox;     // by relative path
    std::map<QString, QByteArray> stick;       // below PSP/MUSIC, by relative path
    std::optional<std::vector<QString>> index; // "/PSP/MUSIC/…"
    std::map<QString, int> settings;
};

// --- The model: plain loops, no care for speed

QString cleanName(QString text)
{
    for (const char *c = ":/?<>|*\\"; *c; ++c)
        text.replace(QLatin1Char(*c), u'_');
    text.replace(u'"', u'\'');
    if (text.endsWith(u'.'))
        text[text.size() - 1] = u'_';
    return text.normalized(QString::NormalizationForm_D).trimmed();
}

QString extensionOf(const QString &path)
{
    const QString name = path.section(u'/', -1);
    return name.contains(u'.') ? name.section(u'.', -1) : QString();
}

bool isPlayed(const QString &path, int firmware)
{
    const QString upper = extensionOf(path).toUpper();
    if (upper == u"MP3")
        return true;
    return firmware >= 1 && QStringList{QStringLiteral("M4A"), QStringLiteral("AAC"),
                                        QStringLiteral("WAV"), QStringLiteral("MP4")}
                                .contains(upper);
}

QString stickExtension(const QString &extension)
{
    const QString upper = extension.toUpper();
    return upper == u"M4A" || upper == u"AAC" ? QStringLiteral("MP4") : extension;
}

struct Wish
{
    QString source;
    QString place; // below PSP/MUSIC
};

std::vector<Wish> wishesOf(const World &world, const QString &dropboxFolder)
{
    std::vector<Wish> wishes;
    const int firmware = world.settings.at(QStringLiteral("firmwareVersion"));
    const int sort = world.settings.at(QStringLiteral("sortMusicBy"));
    const int organize = world.settings.at(QStringLiteral("organizeMusicBy"));
    for (const Playlist &playlist : world.playlists) {
        if (!world.selected.contains(playlist.name))
            continue;
        int position = 0;
        for (const int id : playlist.ids) {
            const Track *track = nullptr;
            for (const Track &each : world.tracks)
                track = each.id == id ? &each : track;
            if (!track || !track->isFile || track->kind.contains(u"Lossless") ||
                !isPlayed(track->path, firmware))
                continue;
            const QString p = cleanName(playlist.name);
            const QString a =
                track->artist ? cleanName(*track->artist) : QStringLiteral("Unsorted");
            const QString l = track->album ? cleanName(*track->album) : QStringLiteral("Unsorted");
            const QString t = track->name ? cleanName(*track->name) : QStringLiteral("Untitled");
            QString prefix;
            if (sort == 0)
                prefix = QStringLiteral("%1. ").arg(position, 3, 10, QChar(u'0'));
            else if (sort != 1)
                prefix = QStringLiteral("%1%2. ")
                             .arg(track->disc)
                             .arg(track->number, 2, 10, QChar(u'0'));
            ++position;
            const QString folder = organize == 0   ? p
                                   : organize == 1 ? a
                                   : organize == 3 ? a + QStringLiteral(" - ") + l
                                                   : l;
            const QString name =
                organize == 0 ? prefix + a + QStringLiteral(" - ") + t : prefix + t;
            wishes.push_back({track->path, folder + u'/' + name + u'.' +
                                               stickExtension(extensionOf(track->path))});
        }
    }
    if (world.settings.at(QStringLiteral("syncDropboxes")) != 0) {
        for (const auto &[path, contents] : world.dropbox) {
            const QString extension = extensionOf(path);
            if (isPlayed(path, firmware))
                wishes.push_back({dropboxFolder + u'/' + path,
                                  path.chopped(extension.size()) + stickExtension(extension)});
        }
    }
    std::map<QString, int> seen;
    for (Wish &wish : wishes) {
        const int times = seen[wish.place]++;
        if (times > 0) {
            const QString extension = extensionOf(wish.place);
            wish.place =
                wish.place.chopped(extension.size()) + QString::number(times) + u'.' + extension;
        }
    }
    return wishes;
}

/// The stick after a run, and what its index lists.
std::map<QString, QByteArray> expected(const World &world, const std::vector<Wish> &wishes,
                                       std::set<QString> &index)
{
    std::map<QString, QByteArray> stick;
    std::map<QString, QByteArray> sources = world.files;
    std::set<QString> places;
    for (const Wish &wish : wishes)
        places.insert(wish.place);
    const bool ownOnly =
        world.settings.at(QStringLiteral("ownOnly")) == 0 && world.index.has_value();
    for (const auto &[path, contents] : world.stick) {
        const QString name = path.section(u'/', -1);
        const bool isOurs =
            world.index && std::find(world.index->begin(), world.index->end(),
                                     QStringLiteral("/PSP/MUSIC/") + path) != world.index->end();
        if (name != u".DS_Store" && (places.contains(path) || (ownOnly && !isOurs)))
            stick[path] = contents;
    }
    for (const Wish &wish : wishes) {
        const auto source = sources.find(wish.source);
        if (source == sources.end())
            continue; // what lies at its place stays
        index.insert(QStringLiteral("/PSP/MUSIC/") + wish.place);
        const auto there = stick.find(wish.place);
        if (there == stick.end() || there->second.size() != source->second.size())
            stick[wish.place] = source->second;
    }
    return stick;
}

// --- Random worlds

class Dice
{
public:
    explicit Dice(unsigned seed)
        : m_random(seed)
    {
    }
    int below(int number) { return static_cast<int>(m_random() % static_cast<unsigned>(number)); }
    bool once(int in) { return below(in) == 0; }
    QString word()
    {
        static const QStringList words{
            QStringLiteral("A"),        QStringLiteral("Band"),     QStringLiteral("AC/DC: Live?"),
            QStringLiteral("Café"),     QStringLiteral("\"Q\"<>|"), QStringLiteral("Ends."),
            QStringLiteral(" blanks "), QStringLiteral("日本"),     QStringLiteral("x.1"),
            QStringLiteral("back\\s*"), QStringLiteral("Song"),     QStringLiteral("Dots. ")};
        return words[below(static_cast<int>(words.size()))];
    }
    std::optional<QString> maybeWord() { return once(6) ? std::nullopt : std::optional(word()); }
    QByteArray bytes() { return QByteArray(1 + below(4), static_cast<char>('a' + below(26))); }

private:
    std::mt19937 m_random;
};

World randomWorld(Dice &dice, const QString &home)
{
    World world;
    static const char *const extensions[] = {"mp3", "MP3", "m4a", "aac", "wav",
                                             "mp4", "Mp3", "ogg", "aif"};
    const auto extension = [&] {
        return QString::fromLatin1(extensions[dice.below(9)]);
    };
    for (int id = 1; id <= 2 + dice.below(10); ++id) {
        Track track{id,
                    dice.maybeWord(),
                    dice.maybeWord(),
                    dice.maybeWord(),
                    home + QStringLiteral("/Music/%1.%2").arg(id).arg(extension()),
                    dice.once(8) ? QStringLiteral("Apple Lossless audio file")
                                 : QStringLiteral("MPEG audio file"),
                    !dice.once(8),
                    dice.below(3),
                    dice.below(13)};
        if (!dice.once(8))
            world.files[track.path] = dice.bytes();
        world.tracks.push_back(track);
    }
    for (int i = 0; i <= dice.below(4); ++i) {
        Playlist playlist{dice.word(), {}};
        for (int j = 0; j < dice.below(8); ++j)
            playlist.ids.push_back(1 + dice.below(14));
        world.playlists.push_back(playlist);
        if (!dice.once(3))
            world.selected.insert(playlist.name);
    }
    for (int i = 0; i < dice.below(4); ++i)
        world.dropbox[(dice.once(2) ? QString() : QStringLiteral("Own/")) + QString::number(i) +
                      u'.' + extension()] = dice.bytes();
    const std::pair<const char *, std::vector<int>> settings[] = {
        {"firmwareVersion", {0, 1, 1, 2}},
        {"sortMusicBy", {0, 1, 2, 7}},
        {"organizeMusicBy", {0, 1, 2, 3}},
        {"syncDropboxes", {0, 1}},
        {"ownOnly", {0, 1}},
    };
    for (const auto &[name, values] : settings)
        world.settings[QString::fromLatin1(name)] =
            values[static_cast<size_t>(dice.below(static_cast<int>(values.size())))];
    return world;
}

/// What an earlier run, another program or a file manager may have left.
void litter(World &world, Dice &dice, const std::vector<Wish> &wishes)
{
    for (const Wish &wish : wishes) {
        if (dice.once(3))
            world.stick[wish.place] = dice.bytes();
    }
    for (const char *stray : {"Old/gone.mp3", "Old/.DS_Store", "stray.txt", "A/other.mp3"}) {
        if (dice.once(2))
            world.stick[QString::fromLatin1(stray)] = dice.bytes();
    }
    if (dice.once(3))
        return;
    world.index.emplace();
    for (const auto &[path, contents] : world.stick) {
        if (dice.once(2))
            world.index->push_back(QStringLiteral("/PSP/MUSIC/") + path);
    }
}

void build(const World &world, SyncHarness &harness, const QString &dropboxFolder)
{
    MusicLibraryFile library;
    for (const Track &track : world.tracks) {
        const auto text = [](const char *key, const std::optional<QString> &value) {
            return value ? MusicLibraryFile::string(key, *value) : QByteArray();
        };
        QByteArray inside =
            text("Artist", track.artist) + text("Album", track.album) + text("Name", track.name) +
            text("Kind", track.kind) +
            MusicLibraryFile::string("Track Type", track.isFile ? QStringLiteral("File")
                                                                : QStringLiteral("URL")) +
            MusicLibraryFile::string(
                "Location", QString::fromLatin1(QUrl::fromLocalFile(track.path).toEncoded()));
        if (track.disc > 0)
            inside += MusicLibraryFile::integer("Disc Number", track.disc);
        if (track.number > 0)
            inside += MusicLibraryFile::integer("Track Number", track.number);
        library.addTrack(track.id, inside);
    }
    for (const Playlist &playlist : world.playlists)
        library.addPlaylist(playlist.name, QList<int>(playlist.ids.begin(), playlist.ids.end()));
    writeFile(harness.home(QStringLiteral("Music/iTunes/iTunes Music Library.xml")),
              library.contents());
    for (const auto &[path, contents] : world.files)
        writeFile(path, contents);
    for (const auto &[path, contents] : world.dropbox)
        writeFile(dropboxFolder + u'/' + path, contents);
    for (const auto &[path, contents] : world.stick)
        writeFile(harness.stick(QStringLiteral("PSP/MUSIC/") + path), contents);
    if (world.index) {
        const QVariantList entries(world.index->begin(), world.index->end());
        writeFile(harness.stick(QStringLiteral(".caravel/MusicSyncIndex.plist")),
                  PropertyList::toXml(entries));
    }
    for (const auto &[name, value] : world.settings)
        harness.defaults.setObject(name, value);
    CVSyncMusic::setSelectedIdentifiers(QStringList(world.selected.begin(), world.selected.end()),
                                        harness.stick());
}

std::string describe(const std::map<QString, QByteArray> &files)
{
    QString text;
    for (const auto &[path, contents] : files)
        text += path + u'=' + QString::fromLatin1(contents) + u'\n';
    return text.toStdString();
}

} // namespace

TEST(Model, AgreesOnWhatLiesOnTheStick)
{
    if (QFileInfo(QStringLiteral("/dev/shm")).isWritable())
        qputenv("TMPDIR", "/dev/shm");
    bool isSet = false;
    const int given = qEnvironmentVariableIntValue("CARAVEL_MODEL_ROUNDS", &isSet);
    for (int round = 0; round < (isSet ? given : 300); ++round) {
        SyncHarness harness{ModuleFactory{.music = [](CVSyncModuleDelegate *delegate) {
            return std::make_unique<CVSyncMusic>(delegate);
        }}};
        harness.mountStick();
        Dice dice(static_cast<unsigned>(round));
        const QString dropbox = harness.home(QStringLiteral("Documents/Caravel/Dropboxes/Music"));
        World world = randomWorld(dice, harness.home(QStringLiteral("files")));
        const std::vector<Wish> wishes = wishesOf(world, dropbox);
        litter(world, dice, wishes);
        build(world, harness, dropbox);
        for (const auto &[path, contents] : world.dropbox)
            world.files[dropbox + u'/' + path] = contents;

        std::set<QString> index;
        const auto wanted = expected(world, wishes, index);
        ASSERT_TRUE(harness.run()) << "round " << round;
        std::map<QString, QByteArray> found;
        for (const QString &path : treeOf(harness.stick(QStringLiteral("PSP/MUSIC")))) {
            const QString full = harness.stick(QStringLiteral("PSP/MUSIC/") + path);
            if (!path.endsWith(u'/'))
                found[path] = readFile(full);
            else
                ASSERT_FALSE(QDir(full).isEmpty())
                    << "round " << round << ": " << full.toStdString();
        }
        ASSERT_EQ(describe(found), describe(wanted)) << "round " << round;
        const QStringList listed = harness.index(QStringLiteral("Music"));
        ASSERT_EQ(std::set<QString>(listed.begin(), listed.end()), index) << "round " << round;
        ASSERT_TRUE(harness.run());
        ASSERT_EQ(harness.delegate.events.filter(QStringLiteral("syncWillProcessItem")).size(), 0)
            << "round " << round;
    }
}
