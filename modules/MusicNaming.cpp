#include "modules/MusicNaming.h"

#include "util/FileManagerTools.h"
#include "util/PathComponents.h"

namespace {

QString toQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// Decimal with at least so many digits, as printf's "%0<width>i".
QString padded(int number, qsizetype width)
{
    QString digits = QString::number(number);
    return digits.size() < width ? digits.rightJustified(width, u'0') : digits;
}

bool isOneOf(QStringView extension, std::initializer_list<QStringView> known)
{
    for (const QStringView candidate : known) {
        if (extension.compare(candidate, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

} // namespace

MusicNaming::MusicNaming(qint64 organizeBy, qint64 sortBy)
    : m_organizeBy(organizeBy)
    , m_sortBy(sortBy)
{
}

void MusicNaming::beginPlaylist(const QString &name)
{
    m_playlist = FileManagerTools::makeFilename(name);
}

const QString &MusicNaming::sanitized(const MusicLibrary::Text &text, const QString &absent)
{
    if (!text)
        return absent;
    const auto [place, isNew] = m_sanitized.try_emplace(*text);
    if (isNew)
        place->second = FileManagerTools::makeFilename(toQString(*text));
    return place->second;
}

QString MusicNaming::folder(const MusicLibrary::Track &track)
{
    static const QString unsorted = QStringLiteral("Unsorted");
    switch (m_organizeBy) {
    case Playlist: return m_playlist;
    case Artist: return sanitized(track.artist, unsorted);
    case ArtistAndAlbum:
        return sanitized(track.artist, unsorted) + QStringLiteral(" - ")
            + sanitized(track.album, unsorted);
    default: return sanitized(track.album, unsorted);
    }
}

QString MusicNaming::prefix(const MusicLibrary::Track &track, int position) const
{
    switch (m_sortBy) {
    case Position: return padded(position, 3) + QStringLiteral(". ");
    case Nothing: return {};
    default:
        return QString::number(track.discNumber) + padded(track.trackNumber, 2)
            + QStringLiteral(". ");
    }
}

QString MusicNaming::relativePath(const MusicLibrary::Track &track, int position,
                                  QStringView suffix)
{
    static const QString unsorted = QStringLiteral("Unsorted");
    QString file = prefix(track, position);
    if (m_organizeBy == Playlist)
        file += sanitized(track.artist, unsorted) + QStringLiteral(" - ");
    file += track.name ? FileManagerTools::makeFilename(toQString(*track.name))
                       : QStringLiteral("Untitled");
    return PathComponents::safe(folder(track)) + u'/' + PathComponents::safe(file, suffix);
}

QString MusicNaming::extensionOnStick(QStringView extension)
{
    return isOneOf(extension, {u"M4A", u"AAC"}) ? QStringLiteral("MP4") : extension.toString();
}

bool MusicNaming::isPlayable(QStringView extension, qint64 firmwareVersion)
{
    return isOneOf(extension, {u"MP3"})
        || (firmwareVersion >= 1 && isOneOf(extension, {u"M4A", u"AAC", u"WAV", u"MP4"}));
}
