#include "modules/music/own/MusicNaming.h"

#include "util/Filename.h"
#include "util/PathComponents.h"
#include "util/Settings.h"

#include <algorithm>

using Settings::MusicFolders;
using Settings::MusicPrefix;

namespace {

// Decimal with at least so many digits, as printf's "%0<width>i".
void appendPadded(QString &text, int number, qsizetype width)
{
    const QString digits = QString::number(number);
    text.resize(text.size() + std::max<qsizetype>(width - digits.size(), 0), u'0');
    text += digits;
}

bool isOneOf(QStringView extension, std::initializer_list<QStringView> known)
{
    if (extension.size() != 3) // as all of them have; most that is asked about is one of them
        return false;
    for (const QStringView candidate : known) {
        if (extension.compare(candidate, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

} // namespace

MusicNaming::MusicNaming(MusicFolders folders, MusicPrefix prefix)
    : m_folders(folders)
    , m_prefix(prefix)
    , m_unsorted{QStringLiteral("Unsorted"), QStringLiteral("Unsorted")}
{
}

void MusicNaming::beginPlaylist(const QString &name)
{
    m_playlist = nameOf(name).folder;
}

MusicNaming::Name MusicNaming::nameOf(const QString &text)
{
    const QString sanitized = FileManagerTools::makeFilename(text);
    return {sanitized, PathComponents::safe(sanitized)};
}

const MusicNaming::Name &MusicNaming::nameOf(const MusicLibrary::Text &text)
{
    if (!text)
        return m_unsorted;
    const auto [place, isNew] = m_names.try_emplace(*text);
    if (isNew)
        place->second = nameOf(QString::fromUtf8(*text));
    return place->second;
}

QString MusicNaming::folder(const MusicLibrary::Track &track)
{
    switch (m_folders) {
    case MusicFolders::Playlist:
        return m_playlist;
    case MusicFolders::Artist:
        return nameOf(track.artist).folder;
    case MusicFolders::ArtistAndAlbum:
        return PathComponents::safe(nameOf(track.artist).sanitized + QStringLiteral(" - ") +
                                    nameOf(track.album).sanitized);
    default:
        return nameOf(track.album).folder;
    }
}

void MusicNaming::appendPrefix(QString &file, const MusicLibrary::Track &track, int position) const
{
    if (m_prefix == MusicPrefix::Nothing)
        return;
    if (m_prefix == MusicPrefix::Position) {
        appendPadded(file, position, 3);
    } else {
        appendPadded(file, track.discNumber, 1);
        appendPadded(file, track.trackNumber, 2);
    }
    file += QStringLiteral(". ");
}

QString MusicNaming::relativePath(const MusicLibrary::Track &track, int position,
                                  QStringView suffix)
{
    QString file;
    file.reserve(64);
    appendPrefix(file, track, position);
    if (m_folders == MusicFolders::Playlist)
        file.append(nameOf(track.artist).sanitized).append(QStringLiteral(" - "));
    file += track.name ? FileManagerTools::makeFilename(QString::fromUtf8(*track.name))
                       : QStringLiteral("Untitled");

    QString path = folder(track);
    path.reserve(path.size() + 1 + file.size());
    return path.append(u'/').append(PathComponents::safe(file, suffix));
}

QString MusicNaming::extensionOnStick(QStringView extension)
{
    return isOneOf(extension, {u"M4A", u"AAC"}) ? QStringLiteral("MP4") : extension.toString();
}

bool MusicNaming::isPlayable(QStringView extension, qint64 firmwareVersion)
{
    return isOneOf(extension, {u"MP3"}) ||
           (firmwareVersion >= 1 && isOneOf(extension, {u"M4A", u"AAC", u"WAV", u"MP4"}));
}
