// A music folder of 20,000 tagged files: the first reading beside a bare loop of TagLib, and the
// next beside a bare listing with sizes.

#include "modules/music/own/FolderMusicLibrary.h"
#include "platform/files/FileManager.h"
#include "support/SyncHarness.h"
#include "util/Folders.h"

#include <QFile>

#include <benchmark/benchmark.h>
#include <taglib/id3v2tag.h>
#include <taglib/mpegfile.h>

#include <ftw.h>

namespace {

constexpr int folderCount = 1000;
constexpr int filesInEach = 20;
constexpr int fileCount = folderCount * filesInEach;

/// A song as ripped with a small cover: its tag, then some frames.
QByteArray song(int number)
{
    TagLib::ID3v2::Tag tag;
    const std::string text = std::to_string(number);
    tag.setTitle("A Song with a Title " + text);
    tag.setArtist("Some Artist " + std::to_string(number / 40));
    tag.setAlbum("The Album of the Year " + std::to_string(number / 12));
    tag.setTrack(static_cast<unsigned int>(number % 12 + 1));
    const TagLib::ByteVector bytes = tag.render();
    QByteArray contents(bytes.data(), bytes.size());
    for (int frame = 0; frame < 8; ++frame)
        contents += QByteArray("\xff\xfb\x90\x00", 4) + QByteArray(413, 'x');
    return contents;
}

struct MusicHome
{
    SyncHarness harness;
    MusicReading reading{.part = MusicLibrary::Part::Everything};
    const QString music = harness.home(QStringLiteral("Music"));
    const QString index = Folders::support() + QStringLiteral("/MusicTags");

    MusicHome()
    {
        writeFile(Folders::support() + QStringLiteral("/log"), {});
        for (int i = 0; i < fileCount; ++i) {
            const QString folder = QStringLiteral("Artist %1/Album/").arg(i / filesInEach);
            writeFile(music + u'/' + folder + QStringLiteral("%1 Song.mp3").arg(i), song(i));
            reading.selected.insert(folder);
        }
    }

    void read(benchmark::State &state) const
    {
        qputenv("HOME", harness.home({}).toUtf8()); // other benchmarks have homes too
        const auto library = readFolderMusic(music, reading);
        if (!library || !library->track(fileCount - 1) || !library->track(fileCount - 1)->artist)
            state.SkipWithError("not every file was read");
    }
};

const MusicHome &home()
{
    static const MusicHome made;
    return made;
}

int counted = 0;
quint64 bytes = 0;

int countFile(const char *, const struct stat *status, int, FTW *)
{
    ++counted;
    bytes += static_cast<quint64>(status->st_size);
    return 0;
}

int readTags(const char *path, const struct stat *, int kind, FTW *)
{
    if (kind != FTW_F)
        return 0;
    TagLib::MPEG::File file(path, false);
    counted += !file.tag()->artist().isEmpty() && !file.tag()->album().isEmpty() &&
               !file.tag()->title().isEmpty();
    return 0;
}

void walk(benchmark::State &state, __nftw_func_t visit)
{
    const QByteArray top = home().music.toUtf8();
    for ([[maybe_unused]] auto each : state) {
        counted = 0;
        ::nftw(top.constData(), visit, 16, FTW_PHYS);
    }
    if (counted < fileCount)
        state.SkipWithError("not every file was seen");
}

void first(benchmark::State &state)
{
    for ([[maybe_unused]] auto each : state) {
        QFile::remove(home().index);
        home().read(state);
    }
}

void again(benchmark::State &state)
{
    home().read(state);
    for ([[maybe_unused]] auto each : state)
        home().read(state);
}

BENCHMARK(first)->Name("tags of 20,000 files/us")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(walk, tags, readTags)
    ->Name("tags of 20,000 files/peer: bare TagLib loop")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(again)->Name("tags read before/us")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(walk, sizes, countFile)
    ->Name("tags read before/peer: listing with sizes")
    ->Unit(benchmark::kMillisecond);

} // namespace
