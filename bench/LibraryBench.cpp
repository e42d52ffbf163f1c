// Everything of a library of 100,000 tracks, against a bare pass of the XML parser over the same
// file.

#include "Workbench.h"
#include "modules/music/CVSyncMusic.h"
#include "platform/lists/UserDefaults.h"
#include "util/Settings.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <benchmark/benchmark.h>
#include <expat.h>

#include <cstdio>
#include <memory>

namespace {

constexpr int trackCount = 100000;
constexpr int playlistCount = 300;
constexpr int itemsPerPlaylist = 100;

QByteArray pair(const char *key, const char *type, const QByteArray &value)
{
    return QByteArray("\t\t\t<key>") + key + "</key><" + type + ">" + value + "</" + type + ">\n";
}

QByteArray track(int id)
{
    const QByteArray number = QByteArray::number(id);
    const QByteArray artist = "Some Artist " + QByteArray::number(id / 40);
    const QByteArray album = "The Album of the Year " + QByteArray::number(id / 12);
    const QByteArray name = "A Song with a Title " + number;
    return "\t\t<key>" + number + "</key>\n\t\t<dict>\n" + pair("Track ID", "integer", number) +
           pair("Name", "string", name) + pair("Artist", "string", artist) +
           pair("Album Artist", "string", artist) + pair("Composer", "string", artist) +
           pair("Album", "string", album) + pair("Genre", "string", "Alternative &#38; Punk") +
           pair("Kind", "string", "MPEG audio file") + pair("Size", "integer", "5242880") +
           pair("Total Time", "integer", "251000") + pair("Disc Number", "integer", "1") +
           pair("Disc Count", "integer", "1") +
           pair("Track Number", "integer", QByteArray::number(id % 12 + 1)) +
           pair("Track Count", "integer", "12") + pair("Year", "integer", "2006") +
           pair("Date Modified", "date", "2006-03-01T12:00:00Z") +
           pair("Date Added", "date", "2006-03-01T12:00:00Z") + pair("Bit Rate", "integer", "192") +
           pair("Sample Rate", "integer", "44100") + pair("Play Count", "integer", "7") +
           pair("Play Date", "integer", "3224412312") +
           pair("Play Date UTC", "date", "2006-03-05T09:05:12Z") +
           pair("Persistent ID", "string", "9E5D2F4B7C" + number.rightJustified(6, '0')) +
           pair("Track Type", "string", "File") +
           pair("Location", "string",
                "file://localhost/home/user/Music/iTunes/iTunes%20Music/" +
                    QByteArray(artist).replace(' ', "%20") + "/" +
                    QByteArray(album).replace(' ', "%20") + "/" + number + "%20Song.mp3") +
           pair("File Folder Count", "integer", "4") +
           pair("Library Folder Count", "integer", "1") + "\t\t</dict>\n";
}

void writePlaylist(QFile &file, const QByteArray &name, int first, int count)
{
    file.write(
        "\t\t<dict>\n" + pair("Name", "string", name) + pair("Playlist ID", "integer", "9999") +
        "\t\t\t<key>All Items</key><true/>\n\t\t\t<key>Playlist Items</key>\n\t\t\t<array>\n");
    for (int i = 0; i < count; ++i) {
        file.write("\t\t\t\t<dict>\n\t\t\t\t\t<key>Track ID</key><integer>" +
                   QByteArray::number((first + i) % trackCount + 1) +
                   "</integer>\n\t\t\t\t</dict>\n");
    }
    file.write("\t\t\t</array>\n\t\t</dict>\n");
}

void writeLibrary(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("can't write %s", qPrintable(path));
    file.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>\n"
               "\t<key>Tracks</key>\n\t<dict>\n");
    for (int id = 1; id <= trackCount; ++id)
        file.write(track(id));
    file.write("\t</dict>\n\t<key>Playlists</key>\n\t<array>\n");
    writePlaylist(file, "Playlist 0", 0, trackCount);
    for (int i = 1; i < playlistCount; ++i)
        writePlaylist(file, "Playlist " + QByteArray::number(i), i * 331, itemsPerPlaylist);
    file.write("\t</array>\n</dict>\n</plist>\n");
}

/// A home whose library has everything selected.
struct LibraryHome
{
    Workbench folder;
    QString library = folder / QStringLiteral("Music/iTunes/iTunes Music Library.xml");
    UserDefaults defaults{QStringLiteral("org.caravel.Caravel"),
                          folder / QStringLiteral("preferences")};

    LibraryHome()
    {
        QDir().mkpath(folder / QStringLiteral("Music/iTunes"));
        writeLibrary(library);
        qputenv("HOME", folder.path().toUtf8());
        UserDefaults::setStandard(&defaults);
        defaults.registerDefaults(Settings::registeredDefaults());
        QStringList everything;
        for (int i = 0; i < playlistCount; ++i)
            everything.append(QStringLiteral("Playlist %1").arg(i));
        CVSyncMusic::setSelectedIdentifiers(everything, {});
    }
    ~LibraryHome() { UserDefaults::setStandard(nullptr); }
};

size_t itemsToSync()
{
    return CVSyncMusic(QStringLiteral("/media/PSP")).itemsToSync().size();
}

void bareExpatPass(const QString &path)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE *)> file(
        std::fopen(path.toUtf8().constData(), "rb"), std::fclose);
    XML_Parser parser = XML_ParserCreate(nullptr);
    constexpr int chunk = 1 << 20;
    int count = 0;
    do {
        void *buffer = XML_GetBuffer(parser, chunk);
        count = static_cast<int>(std::fread(buffer, 1, chunk, file.get()));
        XML_ParseBuffer(parser, count, count == 0);
    } while (count > 0);
    XML_ParserFree(parser);
}

void libraryItems(benchmark::State &state)
{
    const LibraryHome home;
    size_t items = 0;
    for (auto _ : state)
        items = itemsToSync();
    state.counters["items"] = static_cast<double>(items);
    state.counters["peakMB"] =
        static_cast<double>(peakMemoryOf([](const QString &) { itemsToSync(); }, {})) / 1e6;
}

void libraryExpat(benchmark::State &state)
{
    const LibraryHome home;
    for (auto _ : state)
        bareExpatPass(home.library);
    state.counters["fileMB"] = static_cast<double>(QFile(home.library).size()) / 1e6;
}

void libraryPlistlib(benchmark::State &state)
{
    const LibraryHome home;
    const QString script =
        QStringLiteral("import plistlib, sys; plistlib.load(open(sys.argv[1], 'rb'))");
    for (auto _ : state) {
        if (QProcess::execute(QStringLiteral("python3"),
                              {QStringLiteral("-c"), script, home.library}) != 0)
            state.SkipWithError("python3 failed");
    }
}

BENCHMARK(libraryItems)
    ->Name("library of 100,000 tracks/itemsToSync")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(libraryExpat)
    ->Name("library of 100,000 tracks/peer: bare expat pass")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(libraryPlistlib)
    ->Name("library of 100,000 tracks/peer: Python's plistlib")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace
