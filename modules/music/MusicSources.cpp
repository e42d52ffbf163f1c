#include "modules/music/own/MusicSources.h"

#include "modules/music/own/FolderMusicLibrary.h"
#include "modules/music/own/RhythmboxLibrary.h"
#include "util/FileManagerTools.h"
#include "util/Folders.h"
#include "util/StringTools.h"

using Settings::MusicSource;

QString MusicSources::place(MusicSource source)
{
    switch (source) {
    case MusicSource::Folders:
        return Folders::music();
    case MusicSource::Rhythmbox:
        return rhythmboxDatabase();
    case MusicSource::ITunes:
        break;
    }
    return FileManagerTools::pathByResolvingAliasesInPath(
        StringTools::expandingTilde(QStringLiteral("~/Music/iTunes/iTunes Music Library.xml")));
}

FileResult<MusicLibrary> MusicSources::read(MusicSource source, const MusicReading &reading)
{
    switch (source) {
    case MusicSource::Folders:
        return readFolderMusic(place(source), reading);
    case MusicSource::Rhythmbox:
        return readRhythmbox(place(source), reading);
    case MusicSource::ITunes:
        break;
    }
    return MusicLibrary::read(place(source), reading.part);
}
